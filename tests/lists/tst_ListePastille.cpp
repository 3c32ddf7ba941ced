#include "lists/ListePastille.h"

#include "lists/EssaisListePastille.h"

using namespace EssaisListePastille;
using namespace Qt::StringLiterals;

class tst_ListePastille : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void construction();
    void chevronCarre();
    void chevronApresUneHauteurNulle();
    void hauteur();
    void largeur();
    void trouve();
    void retire();
    void vide();
    void videPendantLeSignal();
    void rien();
    void menuApresChaqueAjout();
    void menuApresUneMiseEnPlace();
    void menuApresUnRetrait();
    void actionAjouteeAuMenu();
};

namespace {

QStringList Menu(ListePastille const & liste)
{
    QStringList textes;
    for (QAction const * const action : Chevron(liste)->menu()->actions())
        textes << action->text();
    return textes;
}

} // namespace

void tst_ListePastille::cleanup()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_ListePastille::construction()
{
    QWidget parent;
    ListePastille const enfant(&parent);
    QCOMPARE(enfant.parentWidget(), &parent);
    QCOMPARE(Chevron(enfant)->maximumSize(), QSize(enfant.height(), enfant.height()));
    ListePastille const seule;
    QCOMPARE(seule.parentWidget(), nullptr);
    QCOMPARE(Chevron(seule)->maximumSize(), QSize(seule.height(), seule.height()));
    QCOMPARE(seule.sizeHint(), QSize(0, 0));
}

void tst_ListePastille::chevronCarre()
{
    ListePastille liste;
    for (int const hauteur : {17, 40, 3}) {
        liste.resize(200, hauteur);
        QResizeEvent evenement(liste.size(), QSize());
        QCoreApplication::sendEvent(&liste, &evenement);
        QCOMPARE(Chevron(liste)->maximumSize(), QSize(hauteur, hauteur));
    }
}

void tst_ListePastille::chevronApresUneHauteurNulle()
{
    Hote hote(10);
    hote.liste->resize(100, 0);
    QVERIFY(hote.Montre());
    QCOMPARE(Chevron(*hote.liste)->maximumSize(), QSize(0, 0));
    hote.liste->resize(100, 20);
    QTRY_VERIFY(Chevron(*hote.liste)->width() > 0);
    QCOMPARE(Chevron(*hote.liste)->maximumSize(), QSize(20, 20));
    QVERIFY(hote.liste->rect().contains(Chevron(*hote.liste)->geometry()));
}

void tst_ListePastille::hauteur()
{
    ListePastille liste;
    Pastille * const petite = Ajoute(liste, 1);
    QCOMPARE(liste.sizeHint().height(), petite->sizeHint().height());
    Pastille * const grande = Ajoute(liste, 2);
    QFont police = grande->font();
    police.setPixelSize(50);
    grande->setFont(police);
    QVERIFY(grande->sizeHint().height() > petite->sizeHint().height());
    QCOMPARE(liste.sizeHint().height(), grande->sizeHint().height());
    liste.RetirePastille(grande, nullptr);
    QCOMPARE(liste.sizeHint().height(), petite->sizeHint().height());
    liste.RetirePastille(petite, nullptr);
    QCOMPARE(liste.sizeHint().height(), 0);
}

void tst_ListePastille::largeur()
{
    ListePastille liste;
    liste.setSpacing(10);
    int somme = 0;
    for (int i = 0; i < 3; ++i)
        somme += Ajoute(liste, i, QString(i + 1, u'm'))->sizeHint().width();
    QCOMPARE(liste.sizeHint().width(), somme); // without the spacing
}

void tst_ListePastille::trouve()
{
    ListePastille liste;
    QCOMPARE(liste.TrouvePastille(1), nullptr);
    Pastille * const un = Ajoute(liste, 1);
    Ajoute(liste, 1);
    Pastille * const texte = Ajoute(liste, u"1x"_s);
    Pastille * const rien = Ajoute(liste, QVariant());
    QCOMPARE(liste.TrouvePastille(1), un); // the first
    QCOMPARE(liste.TrouvePastille(u"1x"_s), texte);
    QCOMPARE(liste.TrouvePastille(QVariant()), rien);
    QCOMPARE(liste.TrouvePastille(2), nullptr);
}

void tst_ListePastille::retire()
{
    ListePastille liste;
    QPointer<Pastille> const premiere = Ajoute(liste, 1);
    Pastille * const seconde = Ajoute(liste, 2);
    liste.RetirePastille(premiere, nullptr);
    QVERIFY(!premiere);
    QCOMPARE(liste.PreteListeWidgets(), std::list<QWidget *>{seconde});
}

void tst_ListePastille::vide()
{
    ListePastille liste;
    QPointer<Pastille> const pastille = Ajoute(liste, 1);
    liste.addSpacer();
    QPointer<Pastille> const autre = Ajoute(liste, 2);
    liste.Vide();
    QVERIFY(!pastille);
    QVERIFY(!autre);
    QCOMPARE(liste.layout()->count(), 0);
    liste.Vide();
    Ajoute(liste, 3);
    QCOMPARE(liste.layout()->count(), 1);
}

void tst_ListePastille::videPendantLeSignal()
{
    ListePastille liste;
    QPointer<Pastille> const pastille = Ajoute(liste, 1);
    QPointer<Pastille> const autre = Ajoute(liste, 2);
    connect(pastille, &Pastille::PastilleASupprimer, &liste, &ListePastille::Vide);
    QTest::keyClick(pastille, Qt::Key_Delete);
    QVERIFY(!autre);
    QCOMPARE(liste.layout()->count(), 0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!pastille);
}

void tst_ListePastille::rien()
{
    ListePastille liste;
    liste.AjoutePastille(nullptr);
    liste.RetirePastille(nullptr, nullptr);
    Pastille ailleurs(u"mot"_s, 1);
    liste.RetirePastille(&ailleurs, nullptr); // is left alone
    QCOMPARE(liste.layout()->count(), 0);
}

void tst_ListePastille::menuApresChaqueAjout()
{
    ListePastille liste;
    QStringList attendus;
    for (int i = 0; i < 100; ++i) {
        QString const titre = QString::number(i);
        Ajoute(liste, i, titre);
        attendus << u"Enlever «%1»"_s.arg(titre);
        QCOMPARE(Menu(liste), attendus); // none is laid out yet
    }
    Q_EMIT Chevron(liste)->menu()->aboutToShow();
    QCOMPARE(Menu(liste), attendus);
    // The action that the menu has lost takes nothing along.
    QCOMPARE(liste.PreteListeWidgets().size(), 100U);
}

void tst_ListePastille::menuApresUneMiseEnPlace()
{
    Hote hote(3);
    QCOMPARE(Menu(*hote.liste).size(), 3);
    QVERIFY(hote.Montre());
    QVERIFY(hote.liste->WidgetEstVisible(2));
    Ajoute(*hote.liste, 3, u"nouveau"_s);
    QCOMPARE(Menu(*hote.liste), QStringList(u"Enlever «nouveau»"_s));
}

void tst_ListePastille::menuApresUnRetrait()
{
    ListePastille liste;
    Ajoute(liste, 0, u"a"_s);
    Pastille * const partie = Ajoute(liste, 1, u"b"_s);
    Ajoute(liste, 2, u"c"_s);
    liste.RetirePastille(partie, nullptr);
    Ajoute(liste, 3, u"d"_s);
    QCOMPARE(Menu(liste), QStringList({u"Enlever «a»"_s, u"Enlever «c»"_s, u"Enlever «d»"_s}));
    liste.Vide();
    for (int i = 0; i < 3; ++i)
        Ajoute(liste, i, u"e"_s);
    QCOMPARE(Menu(liste).size(), 3);
    // Without the row's knowledge.
    delete liste.PreteWidgetA(0);
    Ajoute(liste, 4, u"f"_s);
    QCOMPARE(Menu(liste), QStringList({u"Enlever «e»"_s, u"Enlever «e»"_s, u"Enlever «f»"_s}));
}

void tst_ListePastille::actionAjouteeAuMenu()
{
    ListePastille liste;
    Ajoute(liste, 0);
    Pastille const * const pastille = Ajoute(liste, 1);
    QSignalSpy const espion(pastille, &Pastille::PastilleASupprimer);
    QPointer<QAction> const action = Chevron(liste)->menu()->actions().at(1);
    action->trigger();
    Q_EMIT Chevron(liste)->menu()->aboutToShow(); // the menu is built anew
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!action);
    QTRY_COMPARE(espion.count(), 1);
}

QTEST_MAIN(tst_ListePastille)
#include "tst_ListePastille.moc"
