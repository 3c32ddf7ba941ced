#include "navigation/DTabWidget.h"

#include "navigation/EssaisOnglets.h"

#include <QPointer>
#include <QtTest>

#include <functional>
#include <memory>

using namespace EssaisOnglets;
using namespace Qt::StringLiterals;

namespace {

// Two widgets of one group, whose host does something unexpected when it hears of a signal.
struct Scene
{
    Scene()
        : source(new DTabWidget(nullptr, u"g"_s))
        , cible(new DTabWidget(nullptr, u"g"_s))
    {
        source->resize(900, 200);
        cible->resize(900, 200);
    }

    ~Scene()
    {
        delete source;
        delete cible;
    }

    QPointer<DTabWidget> source;
    QPointer<DTabWidget> cible;
};

using Geste = std::function<void(Scene &)>;

// The page dies with the widget when a receiver destroys that first.
void Ferme(QPointer<DTabWidget> onglets, int index)
{
    QPointer<QWidget> const page(onglets ? onglets->DonneWidget(index) : nullptr);
    if (onglets)
        onglets->RetireOnglet(index);
    delete page;
}

void FermeTout(QPointer<DTabWidget> onglets)
{
    for (int reste = onglets ? onglets->DonneTotalOnglet() : 0; reste > 0; --reste)
        Ferme(onglets, 0);
}

void Glisse(DTabWidget & onglets, bool lache)
{
    onglets.show();
    QVERIFY(QTest::qWaitForWindowExposed(&onglets));
    QPointer<DTabBarInterne> const barre(&Barre(onglets));
    QPoint const depart = barre->tabRect(0).center();
    // As in life: each event may find the bar gone.
    for (int pas = 0; pas <= 25 && barre; ++pas) {
        QPoint const position = depart + QPoint(20 * pas, 0);
        if (pas == 0)
            QTest::mousePress(barre.data(), Qt::LeftButton, {}, position);
        else
            QTest::mouseMove(barre.data(), position);
    }
    if (barre && lache)
        QTest::mouseRelease(barre.data(), Qt::LeftButton, {}, depart + QPoint(500, 0));
}

struct Nommay
{
    char const * nom;
    Geste geste;
};

QList<Nommay> Declencheurs()
{
    return {
        {"the first tab",
         [](Scene & s) {
             FermeTout(s.source);
             if (s.source)
                 s.source->AjouteOnglet(Page(u"n"_s), u"n"_s);
         }},
        {"another tab", [](Scene & s) { s.source->MetsIndexCourant(2); }},
        {"a press on a tab",
         [](Scene & s) {
             s.source->show();
             QTest::mousePress(&Barre(*s.source), Qt::LeftButton, {},
                               Barre(*s.source).tabRect(1).center());
         }},
        {"Ctrl+Tab",
         [](Scene & s) { QTest::keyClick(&Barre(*s.source), Qt::Key_Tab, Qt::ControlModifier); }},
        {"the active tab closed", [](Scene & s) { Ferme(s.source, 0); }},
        {"the active tab, the last one, closed",
         [](Scene & s) {
             s.source->MetsIndexCourant(3);
             Ferme(s.source, 3);
         }},
        {"a tab before the active one closed",
         [](Scene & s) {
             s.source->MetsIndexCourant(3);
             Ferme(s.source, 0);
         }},
        {"a move by the host", [](Scene & s) { Barre(*s.source).moveTab(0, 2); }},
        {"a move with the mouse", [](Scene & s) { Glisse(*s.source, true); }},
        {"a move with the mouse, not released", [](Scene & s) { Glisse(*s.source, false); }},
        {"the close button", [](Scene & s) { Fermeture(*s.source, 1)->click(); }},
        {"the close button with the mouse",
         [](Scene & s) {
             s.source->show();
             QTest::mouseClick(Fermeture(*s.source, 1), Qt::LeftButton);
         }},
        {"the middle button",
         [](Scene & s) {
             s.source->show();
             QTest::mouseClick(&Barre(*s.source), Qt::MiddleButton, {},
                               Barre(*s.source).tabRect(1).center());
         }},
        {"the add button", [](Scene & s) { s.source->PreteBarre()->PreteBoutonAjout()->click(); }},
        {"sent to the other widget", [](Scene & s) { s.source->EnvoieOnglet(0, s.cible, 1); }},
        {"sent to the other widget, empty",
         [](Scene & s) {
             FermeTout(s.cible);
             if (s.source && s.cible)
                 s.source->EnvoieOnglet(1, s.cible, 0);
         }},
        {"the last one sent",
         [](Scene & s) {
             while (s.source && s.source->DonneTotalOnglet() > 1)
                 Ferme(s.source, 1);
             if (s.source && s.cible)
                 s.source->EnvoieOnglet(0, s.cible, 0);
         }},
        {"taken into the other widget",
         [](Scene & s) { s.cible->InsereOnglet(s.source->DonneWidget(0), 0, u"a"_s); }},
        {"added once more",
         [](Scene & s) { s.source->AjouteOnglet(s.source->DonneWidget(0), u"a"_s); }},
        {"torn off", [](Scene & s) { s.source->DetacheOnglet(2); }},
        {"a page destroyed", [](Scene & s) { delete s.source->DonneWidget(0); }},
        {"all pages destroyed",
         [](Scene & s) {
             while (s.source && s.source->DonneTotalOnglet() > 0)
                 delete s.source->DonneWidget(0);
         }},
        {"a page taken away",
         [](Scene & s) {
             QWidget ailleurs;
             s.source->DonneWidget(0)->setParent(&ailleurs);
         }},
    };
}

QList<Nommay> Reactions()
{
    return {
        {"nothing", [](Scene &) {}},
        {"destroys the widget", [](Scene & s) { delete s.source; }},
        {"destroys the other widget", [](Scene & s) { delete s.cible; }},
        {"destroys both",
         [](Scene & s) {
             delete s.cible;
             delete s.source;
         }},
        {"closes the first tab", [](Scene & s) { Ferme(s.source, 0); }},
        {"closes the last tab",
         [](Scene & s) { Ferme(s.source, s.source ? s.source->DonneTotalOnglet() - 1 : 0); }},
        {"closes all tabs", [](Scene & s) { FermeTout(s.source); }},
        {"closes all tabs of the other widget", [](Scene & s) { FermeTout(s.cible); }},
        {"destroys a page",
         [](Scene & s) { delete (s.source ? s.source->DonneWidget(0) : nullptr); }},
        {"adds a tab",
         [](Scene & s) {
             if (s.source && s.source->DonneTotalOnglet() < 9)
                 s.source->AjouteOnglet(Page(u"x"_s), u"x"_s);
         }},
        {"inserts a tab",
         [](Scene & s) {
             if (s.source && s.source->DonneTotalOnglet() < 9)
                 s.source->InsereOnglet(Page(u"x"_s), 0, u"x"_s);
         }},
        {"sends a tab on",
         [](Scene & s) {
             if (s.source)
                 s.source->EnvoieOnglet(0, s.cible, 0);
         }},
        {"sends a tab back",
         [](Scene & s) {
             if (s.cible)
                 s.cible->EnvoieOnglet(0, s.source, 0);
         }},
        {"makes the last tab current",
         [](Scene & s) {
             if (s.source)
                 s.source->MetsIndexCourant(s.source->DonneTotalOnglet() - 1);
         }},
    };
}

// No receiver of a receiver: each reacts a few times, not forever.
void Branche(Scene & scene, QObject & contexte, Geste const & reaction)
{
    auto const reste = std::make_shared<int>(3);
    auto const reagis = [&scene, reaction, reste] {
        if ((*reste)-- > 0)
            reaction(scene);
    };
    for (DTabWidget * onglets : {scene.source.data(), scene.cible.data()}) {
        QObject::connect(onglets, &DTabWidget::SignalAjouteOnglet, &contexte, reagis);
        QObject::connect(onglets, &DTabWidget::SignalDemandeFermetureOnglet, &contexte, reagis);
        QObject::connect(onglets, &DTabWidget::SignalOngletCourantChangay, &contexte, reagis);
        QObject::connect(onglets, &DTabWidget::SignalOngletDeplacay, &contexte, reagis);
        QObject::connect(onglets, &DTabWidget::SignalOngletDeplacayVersBarreExterne, &contexte,
                         reagis);
        QObject::connect(onglets, &DTabWidget::SignalOngletNouvelleFenetre, &contexte, reagis);
    }
}

void Verifie(DTabWidget const & onglets)
{
    QCOMPARE(Pile(onglets).count(), onglets.DonneTotalOnglet());
    QCOMPARE(Pile(onglets).currentIndex(), onglets.DonneIndexCourant());
    for (int i = 0; i < onglets.DonneTotalOnglet(); ++i) {
        QVERIFY(onglets.DonneWidget(i));
        QCOMPARE(onglets.DonneTitre(i), onglets.DonneWidget(i)->objectName());
        QVERIFY(Fermeture(onglets, i));
    }
}

} // namespace

// Whatever a receiver does to the widgets, to their tabs and to their pages.
class tst_DTabWidgetVies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void receveurs_data();
    void receveurs();
    void fenetreDetruitePendantLeSignal();
    void receveurQuiInsereAvantLePremier();
    void hoteQuiRangeALaDestruction();
    void tousLesMouvementsSontDits();
};

void tst_DTabWidgetVies::cleanup()
{
    EnvoieSuppressions();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DTabWidgetVies::receveurs_data()
{
    QTest::addColumn<Geste>("declencheur");
    QTest::addColumn<Geste>("reaction");
    for (Nommay const & declencheur : Declencheurs())
        for (Nommay const & reaction : Reactions())
            QTest::addRow("%s; %s", declencheur.nom, reaction.nom)
                << declencheur.geste << reaction.geste;
}

void tst_DTabWidgetVies::receveurs()
{
    QFETCH(Geste, declencheur);
    QFETCH(Geste, reaction);
    Scene scene;
    Remplis(*scene.source, u"a b c d"_s);
    Remplis(*scene.cible, u"e f"_s);
    QObject contexte;
    Branche(scene, contexte, reaction);
    declencheur(scene);
    QCoreApplication::processEvents(); // for what is told later
    if (scene.source)
        Verifie(*scene.source);
    if (scene.cible)
        Verifie(*scene.cible);
}

// The widget dies as a child.
void tst_DTabWidgetVies::fenetreDetruitePendantLeSignal()
{
    auto * const fenetre = new QWidget;
    fenetre->resize(900, 300);
    auto * const onglets = new DTabWidget(fenetre, {});
    onglets->resize(900, 300);
    Remplis(*onglets, u"a b c"_s);
    fenetre->show();
    QVERIFY(QTest::qWaitForWindowExposed(fenetre));
    QPointer<QWidget> const page(onglets->DonneWidget(0));
    connect(onglets, &DTabWidget::SignalOngletCourantChangay, this, [fenetre] { delete fenetre; });
    QTest::mousePress(&Barre(*onglets), Qt::LeftButton, {}, Barre(*onglets).tabRect(1).center());
    QVERIFY(!page);
}

// What follows the tab that is being added goes to that one.
void tst_DTabWidgetVies::receveurQuiInsereAvantLePremier()
{
    DTabWidget onglets(nullptr, {});
    connect(&onglets, &DTabWidget::SignalOngletCourantChangay, this, [&] {
        if (onglets.DonneTotalOnglet() == 1)
            onglets.InsereOnglet(Page(u"x"_s), 0, u"x"_s);
    });
    QCOMPARE(onglets.AjouteOnglet(Page(u"a"_s), u"a"_s), 1);
    QCOMPARE(Titres(onglets), u"x a"_s);
    onglets.MetsIndexCourant(0);
    QCOMPARE(Fermeture(onglets, 0)->property("selectionnay"), QVariant(true));
    QCOMPARE(Fermeture(onglets, 1)->property("selectionnay"), QVariant(false));
    QCOMPARE(Couleurs(onglets), u"Ag"_s);
}

// Bar and pile live until then, but are no longer kept in step.
void tst_DTabWidgetVies::hoteQuiRangeALaDestruction()
{
    auto * const onglets = new DTabWidget(nullptr, {});
    Remplis(*onglets, u"a b c"_s);
    DTabBarInterne & barre = Barre(*onglets);
    QStackedWidget & pile = Pile(*onglets);
    bool range = false;
    connect(onglets, &QObject::destroyed, this, [&] {
        delete pile.widget(0);
        QCOMPARE(barre.count(), 3);
        barre.setCurrentIndex(2);
        QCOMPARE(pile.currentIndex(), 0);
        range = true;
    });
    delete onglets;
    QVERIFY(range);
}

// One event of the mouse may move a tab by several places.
void tst_DTabWidgetVies::tousLesMouvementsSontDits()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b c d"_s);
    onglets.resize(900, 200);
    onglets.show();
    QVERIFY(QTest::qWaitForWindowExposed(&onglets));
    Journal journal;
    journal.Ecoute(onglets, u"x"_s);
    QPoint const depart = Barre(onglets).tabRect(0).center();
    QTest::mousePress(&Barre(onglets), Qt::LeftButton, {}, depart);
    QTest::mouseMove(&Barre(onglets), depart + QPoint(500, 0));
    QCOMPARE(journal.lignes.filter(u"deplacay"_s).size(), 3);
    QCOMPARE(journal.lignes.last(), u"x courant 3"_s);
    QCOMPARE(Titres(onglets), u"b c d a"_s);
}

QTEST_MAIN(tst_DTabWidgetVies)
#include "tst_DTabWidgetVies.moc"
