// tests/search/tst_BarreRechercheFermeture.cpp
#include "search/HoteEspion.h"
#include "search/PiecesBarre.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

// Writes down what the host and the receivers of a bar hear, with "!" once the bar is hidden.
class JournalFermeture : public QObject
{
public:
    explicit JournalFermeture(BarreRecherche * barre)
        : espion(barre)
    {
        auto const note = [this, barre](QString const & nom) {
            lignes << (barre->isHidden() ? u'!' + nom : nom);
        };
        espion.pendantUnAppel = note;
        connect(barre, &BarreRecherche::SignalFermeture, this, [=] { note(u"Fermeture"_s); });
        connect(barre, &BarreRecherche::SignalBarreRechercheFermay, this,
                [=] { note(u"Fermay"_s); });
    }

    HoteEspion espion;
    QStringList lignes;
};

// Sees the releases of Escape that arrive at an object, and lets them pass.
class TemoinEchap : public QObject
{
public:
    bool eventFilter(QObject *, QEvent * evenement) override
    {
        if (evenement->type() == QEvent::KeyRelease &&
            static_cast<QKeyEvent *>(evenement)->key() == Qt::Key_Escape)
            ++releves;
        return false;
    }

    int releves = 0;
};

} // namespace

class tst_BarreRechercheFermeture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void parLeBouton();
    void parLaPrise();
    void parEchap_data();
    void parEchap();
    void echapAuRelachement();
    void echapDuMenu();
    void autresTouches_data();
    void autresTouches();
    void echapAilleurs_data();
    void echapAilleurs();
    void echapNonAvalay();
    void parLHote();
    void dejaCachee();
    void fermetureRedefinie();
};

void tst_BarreRechercheFermeture::cleanup()
{
    EnvoieSuppressions();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_BarreRechercheFermeture::parLeBouton()
{
    FenetreDeBarre essai;
    QVERIFY(essai.Montre());
    JournalFermeture const journal(essai.barre);
    QTest::mouseClick(essai.pieces.fermer, Qt::LeftButton);
    QCOMPARE(journal.lignes, QStringList({u"AnnulerRemplacerTout"_s, u"Fermay"_s, u"Fermeture"_s}));
    QVERIFY(essai.barre->isHidden());
}

void tst_BarreRechercheFermeture::parLaPrise()
{
    FenetreDeBarre essai;
    QVERIFY(essai.Montre());
    essai.barre->MetsCallback(nullptr);
    QSignalSpy const espion(essai.barre, &BarreRecherche::SignalBarreRechercheFermay);
    WidgetRechercheAbstrait & recherche = *essai.barre;
    recherche.PriseBoutonFermer();
    QCOMPARE(espion.size(), 1);
    QVERIFY(essai.barre->isHidden());
}

void tst_BarreRechercheFermeture::parEchap_data()
{
    QTest::addColumn<bool>("recherche");
    QTest::newRow("search field") << true;
    QTest::newRow("replace field") << false;
}

void tst_BarreRechercheFermeture::parEchap()
{
    QFETCH(bool, recherche);
    FenetreDeBarre essai;
    essai.pieces.Action(u"Remplacer"_s)->trigger();
    QVERIFY(essai.Montre());
    essai.barre->MetEnCoursDeRemplacerTout(true);
    JournalFermeture const journal(essai.barre);
    QLineEdit * const champ = recherche ? essai.pieces.recherche : essai.pieces.remplacement;
    champ->setFocus();

    QTest::keyClick(champ, Qt::Key_Escape);

    // Not the order of the button, and what runs goes on.
    QCOMPARE(journal.lignes, QStringList({u"Fermeture"_s, u"!Fermay"_s}));
    QVERIFY(essai.barre->isHidden());
}

void tst_BarreRechercheFermeture::echapAuRelachement()
{
    FenetreDeBarre essai;
    QVERIFY(essai.Montre());
    JournalFermeture const journal(essai.barre);
    QTest::keyPress(essai.pieces.recherche, Qt::Key_Escape);
    QVERIFY(journal.lignes.isEmpty());
    QVERIFY(essai.barre->isVisible());
    QTest::keyRelease(essai.pieces.recherche, Qt::Key_Escape);
    QCOMPARE(journal.lignes.size(), 2);
    QVERIFY(essai.barre->isHidden());
}

void tst_BarreRechercheFermeture::echapDuMenu()
{
    FenetreDeBarre essai;
    QVERIFY(essai.Montre());
    QMenu * const menu = essai.pieces.Menu();
    menu->popup(essai.fenetre.mapToGlobal(QPoint()));
    QTRY_VERIFY(menu->isVisible());
    QTest::keyPress(menu, Qt::Key_Escape);
    QVERIFY(!menu->isVisible());
    QVERIFY(essai.barre->isVisible());
    // The key comes up in the field, which has the focus again.
    QTest::keyRelease(essai.fenetre.windowHandle(), Qt::Key_Escape);
    QVERIFY(essai.barre->isHidden());
}

void tst_BarreRechercheFermeture::autresTouches_data()
{
    QTest::addColumn<Qt::Key>("touche");
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("letter") << Qt::Key_A;
    QTest::newRow("F3") << Qt::Key_F3;
    QTest::newRow("arrow") << Qt::Key_Down;
}

void tst_BarreRechercheFermeture::autresTouches()
{
    QFETCH(Qt::Key, touche);
    FenetreDeBarre essai;
    QVERIFY(essai.Montre());
    QSignalSpy const espion(essai.barre, &BarreRecherche::SignalFermeture);
    QTest::keyClick(essai.pieces.recherche, touche);
    QCOMPARE(espion.size(), 0);
    QVERIFY(essai.barre->isVisible());
}

void tst_BarreRechercheFermeture::echapAilleurs_data()
{
    QTest::addColumn<QToolButton * PiecesBarre::*>("bouton");
    QTest::newRow("options") << &PiecesBarre::options;
    QTest::newRow("previous") << &PiecesBarre::precedent;
    QTest::newRow("next") << &PiecesBarre::suivant;
    QTest::newRow("close") << &PiecesBarre::fermer;
    QTest::newRow("replace") << &PiecesBarre::remplacer;
    QTest::newRow("all") << &PiecesBarre::tout;
}

void tst_BarreRechercheFermeture::echapAilleurs()
{
    QFETCH(QToolButton * PiecesBarre::*, bouton);
    FenetreDeBarre essai;
    essai.pieces.Action(u"Remplacer"_s)->trigger();
    QVERIFY(essai.Montre());
    JournalFermeture const journal(essai.barre);
    (essai.pieces.*bouton)->installEventFilter(essai.barre); // even if it hears of the key
    (essai.pieces.*bouton)->setFocus();
    QTest::keyClick(essai.pieces.*bouton, Qt::Key_Escape);
    QTest::keyClick(essai.barre, Qt::Key_Escape);
    QVERIFY(journal.lignes.isEmpty());
    QVERIFY(essai.barre->isVisible());
}

void tst_BarreRechercheFermeture::echapNonAvalay()
{
    FenetreDeBarre essai;
    QVERIFY(essai.Montre());
    QLineEdit * const champ = essai.pieces.recherche;
    TemoinEchap temoin;
    // Qt asks the filter that came last first: the witness comes behind the bar.
    champ->removeEventFilter(essai.barre);
    champ->installEventFilter(&temoin);
    champ->installEventFilter(essai.barre);

    QTest::keyClick(champ, Qt::Key_Escape);

    QVERIFY(essai.barre->isHidden());
    QCOMPARE(temoin.releves, 1);
}

void tst_BarreRechercheFermeture::parLHote()
{
    FenetreDeBarre essai;
    QVERIFY(essai.Montre());
    JournalFermeture const journal(essai.barre);
    essai.barre->CacheToi();
    QCOMPARE(journal.lignes, QStringList{u"Fermeture"_s});
    QVERIFY(essai.barre->isHidden());
}

void tst_BarreRechercheFermeture::dejaCachee()
{
    BarreRecherche barre;
    JournalFermeture const journal(&barre);
    barre.CacheToi();
    QCOMPARE(journal.lignes, QStringList{u"!Fermeture"_s});
}

void tst_BarreRechercheFermeture::fermetureRedefinie()
{
    class BarreDerivee : public BarreRecherche
    {
    public:
        using BarreRecherche::BarreRecherche;
        void CacheToi() override { ++fermetures; }

        int fermetures = 0;
    };
    BarreDerivee barre;
    PiecesBarre const pieces(barre);
    QTest::keyClick(pieces.recherche, Qt::Key_Escape);
    QCOMPARE(barre.fermetures, 1);
    QTest::mouseClick(pieces.fermer, Qt::LeftButton);
    QCOMPARE(barre.fermetures, 2);
}

QTEST_MAIN(tst_BarreRechercheFermeture)
#include "tst_BarreRechercheFermeture.moc"
