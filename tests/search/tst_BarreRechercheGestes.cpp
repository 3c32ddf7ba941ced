// tests/search/tst_BarreRechercheGestes.cpp
#include "search/HoteEspion.h"
#include "search/PiecesBarre.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using CstRecherche::eTypeRecherche;

namespace {

// What the user does to the bar.
using Geste = std::function<void(PiecesBarre const &)>;

Geste Clic(QToolButton * PiecesBarre::*bouton)
{
    return
        [bouton](PiecesBarre const & pieces) { QTest::mouseClick(pieces.*bouton, Qt::LeftButton); };
}

Geste Touche(QLineEdit * PiecesBarre::*champ, Qt::Key touche)
{
    return [=](PiecesBarre const & pieces) { QTest::keyClick(pieces.*champ, touche); };
}

Geste Choix(QString const & texte)
{
    return [texte](PiecesBarre const & pieces) { pieces.Action(texte)->trigger(); };
}

} // namespace

Q_DECLARE_METATYPE(Geste)

class tst_BarreRechercheGestes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void gestes_data();
    void gestes();
    void precedentApresSuivant();
    void gesteSansHote();
    void chaqueFrappe();
    void effacement();
    void texteParProgramme();
    void ordreDuTexteParProgramme();
    void remplacementTapay();
    void choixDansLeMenu();
    void suivantRedefini();
};

void tst_BarreRechercheGestes::cleanup()
{
    EnvoieSuppressions();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_BarreRechercheGestes::gestes_data()
{
    QTest::addColumn<Geste>("geste");
    QTest::addColumn<QStringList>("appels");
    QTest::addColumn<int>("options");
    QTest::addColumn<int>("sens");

    QStringList const cherche = {u"Chercher"_s};
    QStringList const remplace = {u"Remplacer"_s};
    // The direction before is backward, 0x14: what keeps it is seen.
    QTest::newRow("next") << Clic(&PiecesBarre::suivant) << cherche << 0x24 << 1;
    QTest::newRow("previous") << Clic(&PiecesBarre::precedent) << cherche << 0x14 << 2;
    QTest::newRow("replace") << Clic(&PiecesBarre::remplacer) << remplace << 0x14 << 2;
    QTest::newRow("replace all") << Clic(&PiecesBarre::tout) << QStringList{u"RemplacerTout"_s}
                                 << 0x34 << 2;
    QTest::newRow("cancel, while nothing runs")
        << Clic(&PiecesBarre::annuler) << QStringList() << 0x14 << 2;
    QTest::newRow("Return in the search field")
        << Touche(&PiecesBarre::recherche, Qt::Key_Return) << cherche << 0x24 << 1;
    QTest::newRow("Enter in the search field")
        << Touche(&PiecesBarre::recherche, Qt::Key_Enter) << cherche << 0x24 << 1;
    QTest::newRow("Return in the replace field")
        << Touche(&PiecesBarre::remplacement, Qt::Key_Return) << remplace << 0x14 << 2;
    QTest::newRow("letter in the search field")
        << Touche(&PiecesBarre::recherche, Qt::Key_A) << cherche << 0x224 << 1;
    QTest::newRow("letter in the replace field")
        << Touche(&PiecesBarre::remplacement, Qt::Key_A) << QStringList() << 0x14 << 2;
    QTest::newRow("arrow key in the search field")
        << Touche(&PiecesBarre::recherche, Qt::Key_Left) << QStringList() << 0x14 << 2;
    QTest::newRow("mode contains, chosen again") << Choix(u"contient"_s) << cherche << 0x24 << 1;
    QTest::newRow("mode begins with") << Choix(u"commence par"_s) << cherche << 0x64 << 1;
    QTest::newRow("mode whole word") << Choix(u"Mot entier"_s) << cherche << 0x25 << 1;
    QTest::newRow("case") << Choix(u"respecter la casse"_s) << cherche << 0x26 << 1;
    QTest::newRow("replace row") << Choix(u"Remplacer"_s) << QStringList() << 0x14 << 2;
}

void tst_BarreRechercheGestes::gestes()
{
    QFETCH(Geste, geste);
    FenetreDeBarre essai;
    essai.barre->ActualiseOccurrences(1, 2);
    essai.pieces.Action(u"Remplacer"_s)->trigger();
    QVERIFY(essai.Montre());
    HoteEspion const hote(essai.barre);
    essai.barre->ModifieSensRecherche(CstRecherche::kVersLeHaut);

    geste(essai.pieces);

    QTEST(hote.DonneNoms(), "appels");
    QTEST(int(essai.barre->DonneOptions()), "options");
    QTEST(int(essai.barre->DonneSensRecherche()), "sens");
    for (AppelRecherche const & appel : hote.appels)
        QTEST(int(appel.options), "options");
}

void tst_BarreRechercheGestes::precedentApresSuivant()
{
    BarreRecherche barre;
    PiecesBarre const pieces(barre);
    HoteEspion const hote(&barre);
    barre.ModifieSensRecherche(CstRecherche::kVersLeBas);
    QTest::mouseClick(pieces.precedent, Qt::LeftButton);
    // The new direction is there before the options are read anew.
    QCOMPARE(hote.appels.constLast().options, short(0x14));
    QCOMPARE(hote.appels.constLast().sens, CstRecherche::kVersLeHaut);
}

void tst_BarreRechercheGestes::gesteSansHote()
{
    BarreRecherche barre(nullptr, true);
    PiecesBarre const pieces(barre);
    QTest::keyClicks(pieces.recherche, u"mot"_s);
    QCOMPARE(barre.DonneChaineRecherche(), u"mot"_s);
    QCOMPARE(barre.DonneSensRecherche(), CstRecherche::kVersLeBas);
    QTest::mouseClick(pieces.precedent, Qt::LeftButton);
    QCOMPARE(barre.DonneSensRecherche(), CstRecherche::kVersLeHaut);
    QTest::mouseClick(pieces.tout, Qt::LeftButton);
    QCOMPARE(barre.DonneOptions(), short(0x34));
    QTest::mouseClick(pieces.fermer, Qt::LeftButton);
}

void tst_BarreRechercheGestes::chaqueFrappe()
{
    BarreRecherche barre;
    PiecesBarre const pieces(barre);
    HoteEspion const hote(&barre);

    QTest::keyClicks(pieces.recherche, u"mot"_s);
    QCOMPARE(hote.DonneNoms(), QStringList({u"Chercher"_s, u"Chercher"_s, u"Chercher"_s}));
    QStringList chaines;
    for (AppelRecherche const & appel : hote.appels) {
        chaines.append(appel.chaine);
        QVERIFY((appel.options & CstRecherche::kTexteEdite) != 0);
    }
    QCOMPARE(chaines, QStringList({u"m"_s, u"mo"_s, u"mot"_s}));

    QTest::keyClick(pieces.recherche, Qt::Key_Return);
    QCOMPARE(hote.appels.size(), 4);
    QCOMPARE(hote.appels.constLast().options & CstRecherche::kTexteEdite, 0);
    QCOMPARE(hote.appels.constLast().chaine, u"mot"_s);
}

void tst_BarreRechercheGestes::effacement()
{
    FenetreDeBarre essai;
    QVERIFY(essai.Montre());
    QTest::keyClicks(essai.pieces.recherche, u"ab"_s);
    HoteEspion const hote(essai.barre);

    QTest::keyClick(essai.pieces.recherche, Qt::Key_Backspace);
    auto * const croix = essai.pieces.recherche->findChild<QToolButton *>();
    QVERIFY(croix != nullptr);
    croix->click(); // its picture fades in, so that a click of the mouse may come too early

    QCOMPARE(hote.appels.size(), 2);
    QCOMPARE(hote.appels.at(0).chaine, u"a"_s);
    QCOMPARE(hote.appels.at(1).chaine, QString());
    QVERIFY((hote.appels.at(1).options & CstRecherche::kTexteEdite) != 0);
}

void tst_BarreRechercheGestes::texteParProgramme()
{
    BarreRecherche barre;
    PiecesBarre const pieces(barre);
    HoteEspion const hote(&barre);

    barre.MetsChaineAChercher(UniChaine("un"_L1));
    QCOMPARE(pieces.recherche->text(), u"un"_s);
    QCOMPARE(barre.DonneChaineRecherche(), u"un"_s);
    barre.PrendsChaineRecherche(u"deux"_s);
    QCOMPARE(pieces.recherche->text(), u"deux"_s);
    QCOMPARE(barre.DonneChaineRecherche(), u"deux"_s);
    barre.MetsChaineAChercher(kUniChaineNulle);
    QVERIFY(pieces.recherche->text().isEmpty());
    QVERIFY(barre.DonneChaineRecherche().isEmpty());

    QVERIFY(hote.appels.isEmpty()); // only the user's text searches
}

void tst_BarreRechercheGestes::ordreDuTexteParProgramme()
{
    BarreRecherche barre;
    QStringList retenues; // what the bar holds while its field changes
    connect(PiecesBarre(barre).recherche, &QLineEdit::textChanged, this,
            [&] { retenues << barre.DonneChaineRecherche(); });

    barre.MetsChaineAChercher(UniChaine("un"_L1)); // the field comes first
    barre.PrendsChaineRecherche(u"deux"_s);        // the field comes last
    barre.MetsChaineAChercher(UniChaine("trois"_L1));

    QCOMPARE(retenues, QStringList({QString(), u"deux"_s, u"deux"_s}));
}

void tst_BarreRechercheGestes::remplacementTapay()
{
    BarreRecherche barre(nullptr, true);
    PiecesBarre const pieces(barre);
    HoteEspion const hote(&barre);
    QTest::keyClicks(pieces.recherche, u"a"_s);
    QTest::keyClicks(pieces.remplacement, u"b"_s);
    QTest::keyClick(pieces.remplacement, Qt::Key_Return);
    QCOMPARE(hote.DonneNoms(), QStringList({u"Chercher"_s, u"Remplacer"_s}));
    QCOMPARE(hote.appels.constLast().chaine, u"a"_s);
    QCOMPARE(hote.appels.constLast().remplacement, u"b"_s);
    QCOMPARE(hote.appels.constLast().sens, CstRecherche::kVersLeBas);
}

void tst_BarreRechercheGestes::choixDansLeMenu()
{
    FenetreDeBarre essai;
    QVERIFY(essai.Montre());
    HoteEspion const hote(essai.barre);
    QMenu * const menu = essai.pieces.Menu();
    QAction * const motEntier = essai.pieces.Action(u"Mot entier"_s);
    // The button opens its menu at once and waits for it; the user clicks in the meantime.
    QTimer::singleShot(0, menu, [=] {
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(motEntier).center());
    });
    QTimer::singleShot(5000, menu, &QMenu::close); // rather a failed test than one that hangs

    QTest::mouseClick(essai.pieces.options, Qt::LeftButton);

    QTRY_COMPARE(hote.DonneNoms(), QStringList{u"Chercher"_s});
    QCOMPARE(hote.appels.constFirst().options, short(0x25));
    QVERIFY(motEntier->isChecked());
    QVERIFY(!essai.pieces.Action(u"contient"_s)->isChecked());
}

void tst_BarreRechercheGestes::suivantRedefini()
{
    class BarreDerivee : public BarreRecherche
    {
    public:
        using BarreRecherche::BarreRecherche;
        void ChercherSuivant() override { ++suivants; }
        void ChercherPrecedent() override { ++precedents; }

        int suivants = 0;
        int precedents = 0;
    };
    BarreDerivee barre;
    PiecesBarre const pieces(barre);
    HoteEspion const hote(&barre);
    QTest::mouseClick(pieces.suivant, Qt::LeftButton);
    QTest::mouseClick(pieces.precedent, Qt::LeftButton);
    QCOMPARE(barre.suivants, 1);
    QCOMPARE(barre.precedents, 1);
    QTest::keyClick(pieces.recherche, Qt::Key_Return); // the gesture itself, not its virtual name
    QCOMPARE(barre.suivants, 1);
    QCOMPARE(hote.DonneNoms(), QStringList{u"Chercher"_s});
}

QTEST_MAIN(tst_BarreRechercheGestes)
#include "tst_BarreRechercheGestes.moc"
