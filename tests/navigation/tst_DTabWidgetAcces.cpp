#include "navigation/DTabWidget.h"

#include "navigation/EssaisOnglets.h"
#include "noyau/Traductions.h"
#include "outils/LecteurSimulay.h"

#include <QAccessible>
#include <QScopeGuard>
#include <QtTest>

using namespace EssaisOnglets;
using namespace Qt::StringLiterals;

namespace {

void Parcours(QAccessibleInterface * interface, QList<QAccessibleInterface *> & visites)
{
    if (!interface || !interface->isValid())
        return;
    visites.append(interface);
    for (int i = 0; i < interface->childCount(); ++i)
        Parcours(interface->child(i), visites);
}

QStringList Noms(DTabWidget & onglets, QAccessible::Role role)
{
    QList<QAccessibleInterface *> visites;
    Parcours(QAccessible::queryAccessibleInterface(&onglets), visites);
    QStringList noms;
    for (QAccessibleInterface * const interface : std::as_const(visites))
        if (interface->role() == role)
            noms.append(interface->text(QAccessible::Name));
    return noms;
}

// The names of the tabs that the screen reader takes for the active one.
QStringList Selectionnes(DTabWidget & onglets)
{
    QList<QAccessibleInterface *> visites;
    Parcours(QAccessible::queryAccessibleInterface(&onglets), visites);
    QStringList noms;
    for (QAccessibleInterface * const interface : std::as_const(visites)) {
        QAccessible::State const etat = interface->state();
        if (interface->role() == QAccessible::PageTab && etat.selected)
            noms.append(interface->text(QAccessible::Name));
    }
    return noms;
}

} // namespace

// What a screen reader finds.
class tst_DTabWidgetAcces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { LecteurSimulay::Installe(); }
    void cleanup();
    void nomsDesOnglets();
    void ongletActif();
    void boutons();
    void boutonsDansUneAutreLangue();
    void boutonsDeFermetureParLeurNom();
};

void tst_DTabWidgetAcces::cleanup()
{
    EnvoieSuppressions();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DTabWidgetAcces::nomsDesOnglets()
{
    DTabWidget onglets(nullptr, {});
    DTabWidget autre(nullptr, {});
    Remplis(onglets, u"a b c"_s);
    onglets.show();
    QCOMPARE(Noms(onglets, QAccessible::PageTab), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
    onglets.MetsTexteOnglet(0, u"R&D"_s);
    onglets.InsereOnglet(Page(u"d"_s), 1, u"d"_s);
    QCOMPARE(Noms(onglets, QAccessible::PageTab), (QStringList{u"R&D"_s, u"d"_s, u"b"_s, u"c"_s}));
    Barre(onglets).moveTab(0, 3);
    QCOMPARE(Noms(onglets, QAccessible::PageTab), (QStringList{u"d"_s, u"b"_s, u"c"_s, u"R&D"_s}));
    QVERIFY(onglets.EnvoieOnglet(3, &autre, 0));
    QCOMPARE(Noms(onglets, QAccessible::PageTab), (QStringList{u"d"_s, u"b"_s, u"c"_s}));
    QCOMPARE(Noms(autre, QAccessible::PageTab), QStringList(u"R&D"_s));
}

void tst_DTabWidgetAcces::ongletActif()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b c"_s);
    onglets.show();
    QCOMPARE(Selectionnes(onglets), QStringList(u"a"_s));
    onglets.MetsIndexCourant(2);
    QCOMPARE(Selectionnes(onglets), QStringList(u"c"_s));
    Barre(onglets).moveTab(2, 0);
    QCOMPARE(Selectionnes(onglets), QStringList(u"c"_s));
    delete onglets.DonneWidget(0);
    QCOMPARE(Selectionnes(onglets), QStringList(u"a"_s));
}

void tst_DTabWidgetAcces::boutons()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b"_s);
    onglets.show();
    QStringList noms;
    QList<QAccessibleInterface *> visites;
    Parcours(QAccessible::queryAccessibleInterface(&onglets), visites);
    for (QAccessibleInterface * const interface : std::as_const(visites)) {
        if (!qobject_cast<QAbstractButton *>(interface->object()))
            continue;
        noms.append(interface->text(QAccessible::Name));
        QVERIFY(!noms.last().isEmpty()); // the scroll buttons of the bar, too
    }
    QCOMPARE(noms.count(u"Fermer l'onglet"_s), 2);
    QCOMPARE(noms.count(u"Ajouter un onglet"_s), 1);
}

void tst_DTabWidgetAcces::boutonsDeFermetureParLeurNom()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b"_s);
    onglets.show();
    for (int i : {0, 1}) {
        auto * const interface = QAccessible::queryAccessibleInterface(Fermeture(onglets, i));
        QVERIFY(interface);
        QCOMPARE(interface->text(QAccessible::Name), u"Fermer l'onglet"_s);
        QCOMPARE(interface->role(), QAccessible::PushButton);
        QVERIFY(interface->actionInterface());
        QSignalSpy const espion(&onglets, &DTabWidget::SignalDemandeFermetureOnglet);
        interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QTRY_COMPARE(espion.count(), 1);
        QCOMPARE(espion.at(0).at(0).toInt(), i);
    }
}

void tst_DTabWidgetAcces::boutonsDansUneAutreLangue()
{
    auto const retablis = qScopeGuard([langue = Traductions::DonneLanguePourApplicationCourante()] {
        Traductions::MetsLanguePourApplicationCourante(langue);
    });
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
    QWidget fenetre;
    DTabWidget onglets(&fenetre, {});
    Remplis(onglets, u"a b"_s);
    auto * const aLHote = new QToolButton; // in the place of the widget's own
    aLHote->setAccessibleName(u"Plus"_s);
    Barre(onglets).setTabButton(1, QTabBar::RightSide, aLHote);
    QPushButton const & ajout = *onglets.PreteBarre()->PreteBoutonAjout();
    QCOMPARE(Fermeture(onglets, 0)->accessibleName(), u"Fermer l'onglet"_s);

    Traductions::MetsLanguePourApplicationCourante(kLangueAnglais);
    QEvent langue(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&fenetre, &langue);

    QCOMPARE(Fermeture(onglets, 0)->accessibleName(), u"Close Tab"_s);
    QCOMPARE(ajout.accessibleName(), u"Add Tab"_s);
    QCOMPARE(aLHote->accessibleName(), u"Plus"_s);
}

QTEST_MAIN(tst_DTabWidgetAcces)
#include "tst_DTabWidgetAcces.moc"
