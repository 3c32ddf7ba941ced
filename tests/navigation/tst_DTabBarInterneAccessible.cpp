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
    void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

    void roles();
    void nomsDesOnglets();
    void nomsApresMouvements();
    void ongletSelectionnay();
    void boutonsDeDefilementNommes();
    void etatsDesOnglets();
    void boutonsAtteints();
    void ongletRetire();
    void action();
    void textes();
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

void tst_DTabBarInterneAccessible::etatsDesOnglets()
{
    RangeeDEssai essai(4);
    essai.barre->setTabEnabled(1, false);
    essai.barre->setTabVisible(2, false);
    essai.Expose();
    QAccessibleInterface * const interface = QAccessible::queryAccessibleInterface(essai.barre);

    for (int i = 0; i < 4; ++i) {
        QVERIFY(interface->child(i)->state().selectable);
        QCOMPARE(bool(interface->child(i)->state().disabled), i == 1);
        QCOMPARE(bool(interface->child(i)->state().invisible), i == 2);
    }
    essai.barre->setFocus();
    QTRY_VERIFY(essai.barre->hasFocus());
    QCOMPARE(interface->focusChild(), interface->child(0));
    QVERIFY(interface->child(0)->state().focused);
    QVERIFY(!interface->child(3)->state().focused);
    essai.hide();
    QVERIFY(interface->child(0)->state().invisible);
}

void tst_DTabBarInterneAccessible::boutonsAtteints()
{
    RangeeDEssai essai(2);
    essai.Expose();
    QAccessibleInterface * const interface = QAccessible::queryAccessibleInterface(essai.barre);
    QWidget * const bouton = essai.barre->tabButton(1, QTabBar::RightSide);
    QAccessibleInterface * const duBouton = QAccessible::queryAccessibleInterface(bouton);

    QCOMPARE(interface->childCount(), 2 + 2 + 2); // tabs, scrolling, closing
    for (int i = 0; i < interface->childCount(); ++i) {
        QVERIFY(interface->child(i));
        QCOMPARE(interface->indexOfChild(interface->child(i)), i);
        QCOMPARE(interface->child(i)->parent(), interface);
    }
    QCOMPARE(interface->indexOfChild(duBouton), 5);
    QPoint const centre = bouton->mapToGlobal(bouton->rect().center());
    QCOMPARE(interface->childAt(centre.x(), centre.y()), duBouton);
    QPoint const onglet = essai.DonnePoint(1);
    QCOMPARE(interface->childAt(onglet.x(), onglet.y()), interface->child(1));
    QCOMPARE(interface->childAt(onglet.x(), onglet.y() + 300), nullptr);
    QVERIFY(!interface->child(-1) && !interface->child(6));
    QCOMPARE(interface->indexOfChild(nullptr), -1);
    QCOMPARE(interface->indexOfChild(QAccessible::queryAccessibleInterface(&essai)), -1);
}

void tst_DTabBarInterneAccessible::ongletRetire()
{
    RangeeDEssai essai(2);
    essai.Expose();
    QAccessibleInterface * const interface = QAccessible::queryAccessibleInterface(essai.barre);
    QAccessibleInterface * const dernier = interface->child(1);

    essai.barre->removeTab(0);

    QVERIFY(!dernier->isValid());
    QVERIFY(dernier->state().invalid);
    QVERIFY(dernier->rect().isNull());
    QCOMPARE(dernier->text(QAccessible::Name), QString());
    QCOMPARE(interface->child(0)->text(QAccessible::Name), u"Onglet 1"_s);
    QCOMPARE(interface->child(1)->role(), QAccessible::Button); // not the tab of before
}

void tst_DTabBarInterneAccessible::action()
{
    RangeeDEssai essai(3);
    essai.barre->setTabEnabled(1, false);
    essai.Expose();
    QAccessibleInterface * const interface = QAccessible::queryAccessibleInterface(essai.barre);
    auto const presse = [interface](int index) {
        QAccessibleActionInterface * const actions = interface->child(index)->actionInterface();
        actions->doAction(QAccessibleActionInterface::pressAction());
    };

    presse(2);
    QCOMPARE(essai.barre->currentIndex(), 2);
    presse(1);
    QCOMPARE(essai.barre->currentIndex(), 2);
}

void tst_DTabBarInterneAccessible::textes()
{
    RangeeDEssai essai(2);
    QAccessibleInterface * const interface = QAccessible::queryAccessibleInterface(essai.barre);
    QCOMPARE(interface->text(QAccessible::Name), u"Onglet 0"_s);
    essai.barre->setAccessibleName(u"Documents"_s);
    QCOMPARE(interface->text(QAccessible::Name), u"Documents"_s);

    QCOMPARE(interface->child(1)->text(QAccessible::Description), u"Infobulle de Onglet 1"_s);
    essai.barre->setTabToolTip(1, u"Onglet 1"_s);
    QCOMPARE(interface->child(1)->text(QAccessible::Description), QString());

    essai.barre->addTab(u"De Qt"_s); // without a record
    QCOMPARE(interface->child(2)->text(QAccessible::Name), u"De Qt"_s);
}

QTEST_MAIN(tst_DTabBarInterneAccessible)
#include "tst_DTabBarInterneAccessible.moc"
