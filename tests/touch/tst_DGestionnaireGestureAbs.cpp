// tests/touch/tst_DGestionnaireGestureAbs.cpp
#include "touch/DGestionnaireGestureAbs.h"

#include "touch/EssaisTactiles.h"

using namespace EssaisTactiles;
using Outil = QPointingDevice::PointerType;

namespace {

class Gestionnaire : public DGestionnaireGestureAbs
{
public:
    using DGestionnaireGestureAbs::DGestionnaireGestureAbs;
    using DGestionnaireGestureAbs::DoitIgnorerEvenement;
    using DGestionnaireGestureAbs::DonneEvenementSouris;
    using DGestionnaireGestureAbs::EstEvenementTablet;
    using DGestionnaireGestureAbs::TraiteEvenementTablet;
};

enum class Place
{
    DansLeMenu,
    LeMenu,
    Ailleurs,
    NullePart
};

} // namespace

class tst_DGestionnaireGestureAbs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void meurtAvecSonWidget();
    void sansWidget();
    void sourisAIgnorer_data();
    void sourisAIgnorer();
    void sourisDansUnMenuOuvert_data();
    void sourisDansUnMenuOuvert();
    void sourisDUnePlume_data();
    void sourisDUnePlume();
    void autresEvenements_data();
    void autresEvenements();
    void plumeEnSouris_data();
    void plumeEnSouris();
    void pasDeSouris_data();
    void pasDeSouris();
    void envoiSynchrone();
    void rienPourUneGomme();
};

void tst_DGestionnaireGestureAbs::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DGestionnaireGestureAbs::meurtAvecSonWidget()
{
    auto * const widget = new QWidget;
    QPointer<DGestionnaireGestureAbs> const gestionnaire = new DGestionnaireGestureAbs(widget);
    QCOMPARE(gestionnaire->parent(), widget);
    delete widget;
    QVERIFY(!gestionnaire);
}

void tst_DGestionnaireGestureAbs::sansWidget()
{
    DGestionnaireGestureAbs const gestionnaire(nullptr);
    QCOMPARE(gestionnaire.parent(), nullptr);
}

void tst_DGestionnaireGestureAbs::sourisAIgnorer_data()
{
    QTest::addColumn<QEvent::Type>("type");
    QTest::addColumn<Qt::MouseEventSource>("source");
    QTest::addColumn<bool>("attendu");
    for (auto const & [type, nom] :
         {std::pair(QEvent::MouseButtonPress, "press"),
          std::pair(QEvent::MouseButtonRelease, "release"), std::pair(QEvent::MouseMove, "move"),
          std::pair(QEvent::MouseButtonDblClick, "double click")}) {
        bool const simple = type != QEvent::MouseButtonDblClick;
        QTest::addRow("%s, real", nom) << type << Qt::MouseEventNotSynthesized << false;
        QTest::addRow("%s, by the system", nom)
            << type << Qt::MouseEventSynthesizedBySystem << simple;
        QTest::addRow("%s, by Qt", nom) << type << Qt::MouseEventSynthesizedByQt << simple;
        QTest::addRow("%s, by the application", nom)
            << type << Qt::MouseEventSynthesizedByApplication << false;
    }
}

void tst_DGestionnaireGestureAbs::sourisAIgnorer()
{
    QFETCH(QEvent::Type, type);
    QFETCH(Qt::MouseEventSource, source);
    QMouseEvent souris = FaisSouris(type, source);
    QTEST(Gestionnaire(nullptr).DoitIgnorerEvenement(&souris), "attendu");
}

void tst_DGestionnaireGestureAbs::sourisDansUnMenuOuvert_data()
{
    QTest::addColumn<Place>("place");
    QTest::addColumn<bool>("attendu");
    QTest::newRow("in the pop-up") << Place::DansLeMenu << false;
    QTest::newRow("the pop-up itself") << Place::LeMenu << false;
    QTest::newRow("another widget's pop-up: swallowed") << Place::Ailleurs << true;
    QTest::newRow("no widget: swallowed") << Place::NullePart << true;
}

void tst_DGestionnaireGestureAbs::sourisDansUnMenuOuvert()
{
    QFETCH(Place, place);
    QFETCH(bool, attendu);
    QWidget menu(nullptr, Qt::Popup);
    auto * const dedans = new QWidget(&menu);
    QWidget ailleurs;
    QHash<Place, QWidget *> const widgets{
        {Place::DansLeMenu, dedans}, {Place::LeMenu, &menu}, {Place::Ailleurs, &ailleurs}};
    Gestionnaire const gestionnaire(widgets.value(place));
    menu.show();
    QCOMPARE(QApplication::activePopupWidget(), &menu);
    QMouseEvent deQt = FaisSouris(QEvent::MouseButtonPress, Qt::MouseEventSynthesizedByQt);
    QCOMPARE(gestionnaire.DoitIgnorerEvenement(&deQt), attendu);
    QMouseEvent duSysteme = FaisSouris(QEvent::MouseButtonPress, Qt::MouseEventSynthesizedBySystem);
    QVERIFY(gestionnaire.DoitIgnorerEvenement(&duSysteme));
    menu.close();
    QVERIFY(gestionnaire.DoitIgnorerEvenement(&deQt));
}

void tst_DGestionnaireGestureAbs::sourisDUnePlume_data()
{
    QTest::addColumn<QEvent::Type>("type");
    QTest::addColumn<Outil>("outil");
    QTest::addColumn<bool>("attendu");
    QTest::newRow("a pen's press") << QEvent::MouseButtonPress << Outil::Pen << true;
    QTest::newRow("a pen's release") << QEvent::MouseButtonRelease << Outil::Pen << true;
    QTest::newRow("a pen's move") << QEvent::MouseMove << Outil::Pen << true;
    QTest::newRow("a pen's double click passes")
        << QEvent::MouseButtonDblClick << Outil::Pen << false;
    QTest::newRow("an eraser's press passes") << QEvent::MouseButtonPress << Outil::Eraser << false;
}

void tst_DGestionnaireGestureAbs::sourisDUnePlume()
{
    QFETCH(QEvent::Type, type);
    QFETCH(Outil, outil);
    // The source that Qt gives to the mouse event that it makes of an ignored tablet event.
    QMouseEvent souris = FaisSouris(type, Qt::MouseEventNotSynthesized, DonneOutil(outil));
    QTEST(Gestionnaire(nullptr).DoitIgnorerEvenement(&souris), "attendu");
}

void tst_DGestionnaireGestureAbs::autresEvenements_data()
{
    QTest::addColumn<QEvent::Type>("type");
    QTest::addColumn<bool>("tablette");
    QTest::newRow("tablet press") << QEvent::TabletPress << true;
    QTest::newRow("tablet release") << QEvent::TabletRelease << true;
    QTest::newRow("tablet move") << QEvent::TabletMove << true;
    QTest::newRow("a tool comes near") << QEvent::TabletEnterProximity << false;
    QTest::newRow("a tool leaves") << QEvent::TabletLeaveProximity << false;
    QTest::newRow("touch begin") << QEvent::TouchBegin << false;
    QTest::newRow("enter") << QEvent::Enter << false;
    QTest::newRow("none") << QEvent::None << false;
}

void tst_DGestionnaireGestureAbs::autresEvenements()
{
    QFETCH(QEvent::Type, type);
    QEvent evenement(type);
    Gestionnaire const gestionnaire(nullptr);
    QTEST(gestionnaire.EstEvenementTablet(&evenement), "tablette");
    QVERIFY(!gestionnaire.DoitIgnorerEvenement(&evenement));
}

void tst_DGestionnaireGestureAbs::plumeEnSouris_data()
{
    QTest::addColumn<QEvent::Type>("tablette");
    QTest::addColumn<QEvent::Type>("souris");
    QTest::newRow("move") << QEvent::TabletMove << QEvent::MouseMove;
    QTest::newRow("press") << QEvent::TabletPress << QEvent::MouseButtonPress;
    QTest::newRow("release") << QEvent::TabletRelease << QEvent::MouseButtonRelease;
}

void tst_DGestionnaireGestureAbs::plumeEnSouris()
{
    QFETCH(QEvent::Type, tablette);
    auto const plume = FaisTablette(tablette, QPointF(3.5, 4.25), QPointF(103.5, 204.25));
    auto const souris = Gestionnaire(nullptr).DonneEvenementSouris(plume.get());
    QVERIFY(souris);
    QTEST(souris->type(), "souris");
    QCOMPARE(souris->position(), QPointF(3.5, 4.25));
    QCOMPARE(souris->globalPosition(), QPointF(103.5, 204.25));
    QCOMPARE(souris->button(), plume->button());
    QCOMPARE(souris->buttons(), plume->buttons());
    QCOMPARE(plume->modifiers(), Qt::ControlModifier); // what it does not take over
    QCOMPARE(souris->modifiers(), Qt::NoModifier);
    QCOMPARE(souris->pointingDevice(), QPointingDevice::primaryPointingDevice());
    QCOMPARE(souris->source(), Qt::MouseEventNotSynthesized);
    QVERIFY(!Gestionnaire(nullptr).DoitIgnorerEvenement(souris.get()));
}

void tst_DGestionnaireGestureAbs::pasDeSouris_data()
{
    QTest::addColumn<QEvent::Type>("type");
    QTest::addColumn<Outil>("outil");
    QTest::newRow("eraser") << QEvent::TabletPress << Outil::Eraser;
    QTest::newRow("finger") << QEvent::TabletPress << Outil::Finger;
    QTest::newRow("a pen comes near") << QEvent::TabletEnterProximity << Outil::Pen;
    QTest::newRow("a pen leaves") << QEvent::TabletLeaveProximity << Outil::Pen;
}

void tst_DGestionnaireGestureAbs::pasDeSouris()
{
    QFETCH(QEvent::Type, type);
    QFETCH(Outil, outil);
    auto const tablette = FaisTablette(type, QPointF(1, 1), {}, DonneOutil(outil));
    QVERIFY(!Gestionnaire(nullptr).DonneEvenementSouris(tablette.get()));
}

void tst_DGestionnaireGestureAbs::envoiSynchrone()
{
    QWidget widget;
    Temoin const temoin(&widget, Temoin::Souris());
    auto const plume = FaisTablette(QEvent::TabletPress, QPointF(7, 8));
    Gestionnaire(nullptr).TraiteEvenementTablet(plume.get(), &widget);
    QCOMPARE(temoin.DonneTypes(), QList{QEvent::MouseButtonPress});
    QCOMPARE(temoin.DonneTraces().first().position, QPointF(7, 8));
}

void tst_DGestionnaireGestureAbs::rienPourUneGomme()
{
    QWidget widget;
    Temoin const temoin(&widget, Temoin::Souris());
    auto const gomme =
        FaisTablette(QEvent::TabletPress, QPointF(7, 8), {}, DonneOutil(Outil::Eraser));
    Gestionnaire(nullptr).TraiteEvenementTablet(gomme.get(), &widget);
    QCOMPARE(temoin.Compte(), 0);
}

QTEST_MAIN(tst_DGestionnaireGestureAbs)
#include "tst_DGestionnaireGestureAbs.moc"
