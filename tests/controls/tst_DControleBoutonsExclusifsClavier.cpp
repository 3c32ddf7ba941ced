// tests/controls/tst_DControleBoutonsExclusifsClavier.cpp
#include "controls/DControleBoutonsExclusifs.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QtTest>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

using Action = std::function<void(DControleBoutonsExclusifs &)>;

} // namespace

// Tab, the arrow keys and assistive technologies.
class tst_DControleBoutonsExclusifsClavier : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void tabEntre_data();
    void tabEntre();
    void tabTraverse();
    void aucunCochay();
    void focusAilleursDansLaRangee();
    void fleches_data();
    void fleches();
    void accessibilite();

private:
    QAbstractButton & Bouton(int identifiant) const;
    QVariant EntreParTab(QWidget & champ, Qt::Key touche) const;

    std::unique_ptr<QWidget> maFenetre;
    QLineEdit * monAvant = nullptr;
    QLineEdit * monApres = nullptr;
    DControleBoutonsExclusifs * monControle = nullptr;
};

// A row of three, the second one checked, between two fields.
void tst_DControleBoutonsExclusifsClavier::init()
{
    std::vector<DControleBoutonsExclusifs::InfosBouton> const infos{
        {u"a"_s, 1}, {u"b"_s, 2, true, true}, {u"c"_s, 3, false, true}};
    maFenetre = std::make_unique<QWidget>();
    monAvant = new QLineEdit;
    monControle = new DControleBoutonsExclusifs(infos);
    monApres = new QLineEdit;
    auto * const disposition = new QHBoxLayout(maFenetre.get());
    for (QWidget * const widget :
         {static_cast<QWidget *>(monAvant), static_cast<QWidget *>(monControle),
          static_cast<QWidget *>(monApres)})
        disposition->addWidget(widget);
    maFenetre->show();
    maFenetre->activateWindow();
    monAvant->setFocus();
    QTRY_VERIFY(monAvant->hasFocus());
}

void tst_DControleBoutonsExclusifsClavier::cleanup()
{
    maFenetre.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

QAbstractButton & tst_DControleBoutonsExclusifsClavier::Bouton(int identifiant) const
{
    return *monControle->DonneBouton(identifiant);
}

// The button of the row that Tab or Backtab reaches from a field.
QVariant tst_DControleBoutonsExclusifsClavier::EntreParTab(QWidget & champ, Qt::Key touche) const
{
    champ.setFocus();
    QTest::keyClick(&champ, touche);
    return monControle->DonneIdentifiant(
        qobject_cast<QAbstractButton *>(QApplication::focusWidget()));
}

void tst_DControleBoutonsExclusifsClavier::tabEntre_data()
{
    QTest::addColumn<Action>("action");
    QTest::addColumn<int>("deDevant");
    QTest::addColumn<int>("deDerriere");
    QTest::newRow("at construction") << Action([](auto &) {}) << 2 << 2;
    QTest::newRow("another one") << Action([](auto & c) { c.MetsCochay(3, true); }) << 3 << 3;
    QTest::newRow("while signals are blocked") << Action([](auto & c) {
        QSignalBlocker const bloqueur(c.DonneBouton(3));
        c.MetsCochay(3, true);
    }) << 3 << 3;
    QTest::newRow("click") << Action([](auto & c) { c.DonneBouton(1)->click(); }) << 1 << 1;
    QTest::newRow("disabled") << Action([](auto & c) { c.DonneBouton(2)->setEnabled(false); }) << 1
                              << 3;
    QTest::newRow("enabled again") << Action([](auto & c) {
        c.DonneBouton(2)->setEnabled(false);
        c.DonneBouton(2)->setEnabled(true);
    }) << 2 << 2;
    QTest::newRow("hidden") << Action([](auto & c) { c.DonneBouton(2)->hide(); }) << 1 << 3;
    QTest::newRow("shown again") << Action([](auto & c) {
        c.DonneBouton(2)->hide();
        c.DonneBouton(2)->show();
    }) << 2 << 2;
    QTest::newRow("deleted") << Action([](auto & c) { delete c.DonneBouton(2); }) << 1 << 3;
}

void tst_DControleBoutonsExclusifsClavier::tabEntre()
{
    QFETCH(Action, action);
    QFETCH(int, deDevant);
    QFETCH(int, deDerriere);
    action(*monControle);
    QCOMPARE(EntreParTab(*monAvant, Qt::Key_Tab), QVariant(deDevant));
    QCOMPARE(EntreParTab(*monApres, Qt::Key_Backtab), QVariant(deDerriere));
}

void tst_DControleBoutonsExclusifsClavier::tabTraverse()
{
    QCOMPARE(EntreParTab(*monAvant, Qt::Key_Tab), QVariant(2));
    QTest::keyClick(&Bouton(2), Qt::Key_Tab);
    QVERIFY(monApres->hasFocus());
    QTest::keyClick(monApres, Qt::Key_Backtab);
    QTest::keyClick(&Bouton(2), Qt::Key_Backtab);
    QVERIFY(monAvant->hasFocus());
}

void tst_DControleBoutonsExclusifsClavier::aucunCochay()
{
    DControleBoutonsExclusifs const controle({{u"a"_s, 1}, {u"b"_s, 2}});
    for (int const identifiant : {1, 2})
        QVERIFY(controle.DonneBouton(identifiant)->focusPolicy() & Qt::TabFocus);
    controle.DonneBouton(2)->setChecked(true);
    QVERIFY(!(controle.DonneBouton(1)->focusPolicy() & Qt::TabFocus));
    QVERIFY(controle.DonneBouton(1)->focusPolicy() & Qt::ClickFocus);
}

// A button that had the focus and was not checked is not where Tab comes back to.
void tst_DControleBoutonsExclusifsClavier::focusAilleursDansLaRangee()
{
    Bouton(1).setFocus();
    QCOMPARE(monControle->DonneIdentifiantCochay(), QVariant(2));
    QCOMPARE(EntreParTab(*monAvant, Qt::Key_Tab), QVariant(2));
}

void tst_DControleBoutonsExclusifsClavier::fleches_data()
{
    QTest::addColumn<Qt::LayoutDirection>("sens");
    QTest::addColumn<Qt::Key>("touche");
    QTest::newRow("right") << Qt::LeftToRight << Qt::Key_Right;
    QTest::newRow("left, from right to left") << Qt::RightToLeft << Qt::Key_Left;
}

void tst_DControleBoutonsExclusifsClavier::fleches()
{
    QFETCH(Qt::LayoutDirection, sens);
    QFETCH(Qt::Key, touche);
    Qt::Key const retour = touche == Qt::Key_Right ? Qt::Key_Left : Qt::Key_Right;
    maFenetre->setLayoutDirection(sens);
    maFenetre->layout()->activate();
    monControle->layout()->activate();
    QCOMPARE(EntreParTab(*monAvant, Qt::Key_Tab), QVariant(2));
    QTest::keyClick(&Bouton(2), touche);
    QCOMPARE(monControle->DonneIdentifiantCochay(), QVariant(3));
    QVERIFY(Bouton(3).hasFocus());
    QTest::keyClick(&Bouton(3), retour);
    QTest::keyClick(&Bouton(2), retour);
    QCOMPARE(monControle->DonneIdentifiantCochay(), QVariant(1));
    QVERIFY(Bouton(1).hasFocus());
}

void tst_DControleBoutonsExclusifsClavier::accessibilite()
{
    auto * const interface = QAccessible::queryAccessibleInterface(&Bouton(2));
    QVERIFY(interface);
    QCOMPARE(interface->role(), QAccessible::RadioButton);
    QCOMPARE(interface->text(QAccessible::Name), u"b"_s);
    QVERIFY(interface->state().checkable);
    QVERIFY(interface->state().checked);
    auto * const autre = QAccessible::queryAccessibleInterface(&Bouton(1));
    autre->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QCOMPARE(monControle->DonneIdentifiantCochay(), QVariant(1));
}

QTEST_MAIN(tst_DControleBoutonsExclusifsClavier)
#include "tst_DControleBoutonsExclusifsClavier.moc"
