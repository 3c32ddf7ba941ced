// navigation/tst_DTabBarInterneAccessible.cpp
// What assistive technologies are told of the tabs.
#include "RangeeDEssai.h"

using namespace Qt::StringLiterals;

namespace {

QStringList DonneNoms(QTabBar * barre)
{
    QAccessibleInterface * const interface = QAccessible::queryAccessibleInterface(barre);
    QStringList noms;
    for (int i = 0; i < barre->count(); ++i)
        noms << interface->child(i)->text(QAccessible::Name);
    return noms;
}

} // namespace

class tst_DTabBarInterneAccessible : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QAccessible::setActive(true); }
    void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

    void roles();
    void nomsDesOnglets();
    void nomsApresMouvements();
    void ongletSelectionnay();
    void boutonsDeDefilementNommes();
    void changementDeNomAnnoncay();
};

void tst_DTabBarInterneAccessible::roles()
{
    RangeeDEssai essai(3);
    essai.Expose();
    QAccessibleInterface * const interface = QAccessible::queryAccessibleInterface(essai.barre);

    QCOMPARE(interface->role(), QAccessible::PageTabList);
    QVERIFY(interface->childCount() >= 3);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(interface->child(i)->role(), QAccessible::PageTab);
        QVERIFY(!interface->child(i)->state().invisible);
        QCOMPARE(interface->child(i)->rect().size(), essai.barre->tabRect(i).size());
    }
}

void tst_DTabBarInterneAccessible::nomsDesOnglets()
{
    RangeeDEssai essai(3);
    essai.Expose();

    QCOMPARE(DonneNoms(essai.barre), (QStringList{u"Onglet 0"_s, u"Onglet 1"_s, u"Onglet 2"_s}));
    essai.barre->MetsTitreOnglet(1, "R&D <b>");
    QCOMPARE(DonneNoms(essai.barre).at(1), u"R&D <b>"_s);
}

void tst_DTabBarInterneAccessible::nomsApresMouvements()
{
    RangeeDEssai essai(4);
    essai.Expose();
    DonneNoms(essai.barre); // has the interfaces made

    essai.barre->moveTab(0, 2);
    QCOMPARE(DonneNoms(essai.barre),
             (QStringList{u"Onglet 1"_s, u"Onglet 2"_s, u"Onglet 0"_s, u"Onglet 3"_s}));
    essai.barre->removeTab(1);
    essai.InsereOnglet(0, u"Neuf"_s);
    QCOMPARE(DonneNoms(essai.barre),
             (QStringList{u"Neuf"_s, u"Onglet 1"_s, u"Onglet 0"_s, u"Onglet 3"_s}));
}

void tst_DTabBarInterneAccessible::ongletSelectionnay()
{
    RangeeDEssai essai(3);
    essai.Expose();
    QAccessibleInterface * const interface = QAccessible::queryAccessibleInterface(essai.barre);

    essai.barre->setCurrentIndex(2);

    for (int i = 0; i < 3; ++i)
        QCOMPARE(bool(interface->child(i)->state().selected), i == 2);
}

void tst_DTabBarInterneAccessible::boutonsDeDefilementNommes()
{
    RangeeDEssai essai(10);
    essai.Expose();

    auto const boutons = essai.barre->findChildren<QToolButton *>();
    int defilement = 0;
    for (QToolButton * const bouton : boutons) {
        if (!bouton->objectName().startsWith(u"Scroll"_s))
            continue;
        ++defilement;
        QVERIFY(bouton->isVisible());
        QVERIFY(!QAccessible::queryAccessibleInterface(bouton)->text(QAccessible::Name).isEmpty());
    }
    QCOMPARE(defilement, 2);
}

namespace {

QList<QPair<QAccessible::Event, int>> evenements;

void Note(QAccessibleEvent * evenement)
{
    evenements.append({evenement->type(), evenement->child()});
}

} // namespace

void tst_DTabBarInterneAccessible::changementDeNomAnnoncay()
{
    RangeeDEssai essai(3);
    essai.Expose();
    evenements.clear();
    auto const avant = QAccessible::installUpdateHandler(Note);

    essai.barre->MetsTitreOnglet(1, "Autre");
    essai.barre->setCurrentIndex(2);

    QAccessible::installUpdateHandler(avant);
    QVERIFY(evenements.contains(qMakePair(QAccessible::NameChanged, 1)));
    QVERIFY(evenements.contains(qMakePair(QAccessible::Selection, 2)));
}

QTEST_MAIN(tst_DTabBarInterneAccessible)
#include "tst_DTabBarInterneAccessible.moc"
