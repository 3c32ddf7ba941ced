// tests/controls/tst_DToggleButton.cpp
#include "controls/DToggleButton.h"
#include "controls/GeometrieBascule_p.h"

#include "controls/EssaisBascule.h"
#include "controls/RenduBoutons.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QtTest>

#include <functional>

using namespace EssaisBascule;
using namespace Qt::StringLiterals;

class tst_DToggleButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void constructeur();
    void geometrie_data();
    void geometrie();
    void jamaisSerree();
    void sauts_data();
    void sauts();
    void clicGlisse();
    void clicPendantLeGlissement();
    void clicSignauxBloques();
    void clicDansUnCoin();
    void relacheAilleurs();
    void autreBouton();
    void sautArreteLeGlissement_data();
    void sautArreteLeGlissement();
    void glissementCache();
    void decalage();
    void desactivay();
    void accessibilite();

private:
    std::unique_ptr<DToggleButton> maBascule;
};

void tst_DToggleButton::init()
{
    maBascule = std::make_unique<DToggleButton>(kPiste, kPouce);
    RenduBoutons::Dispose(*maBascule, maBascule->sizeHint());
}

void tst_DToggleButton::cleanup()
{
    maBascule.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DToggleButton::constructeur()
{
    QWidget parent;
    DToggleButton const bascule(kPiste, kPouce, &parent);
    QCOMPARE(bascule.parentWidget(), &parent);
    QVERIFY(bascule.isCheckable());
    QVERIFY(!bascule.isChecked());
    QCOMPARE(bascule.offset(), kFinNonCochay);
    QCOMPARE(bascule.sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
    QVERIFY(bascule.focusPolicy() & Qt::TabFocus);
}

void tst_DToggleButton::geometrie_data()
{
    QTest::addColumn<int>("piste");
    QTest::addColumn<int>("pouce");
    QTest::addColumn<int>("marge");
    QTest::addColumn<QSize>("taille");
    QTest::addColumn<int>("finNonCochay");
    QTest::addColumn<int>("finCochay");
    QTest::newRow("smaller thumb: the difference is the margin")
        << 12 << 9 << 3 << QSize(54, 30) << 15 << 39;
    QTest::newRow("smaller by one") << 10 << 9 << 1 << QSize(42, 22) << 11 << 31;
    QTest::newRow("same radii: no margin") << 10 << 10 << 0 << QSize(40, 20) << 10 << 30;
    QTest::newRow("larger by one: no room for it") << 10 << 11 << 0 << QSize(40, 20) << 10 << 30;
    QTest::newRow("larger thumb: no room for it") << 7 << 20 << 0 << QSize(28, 14) << 7 << 21;
    QTest::newRow("no thumb") << 5 << 0 << 5 << QSize(30, 20) << 10 << 20;
    QTest::newRow("nothing") << 0 << 0 << 0 << QSize(0, 0) << 0 << 0;
    QTest::newRow("negative thumb counts as none") << 5 << -4 << 5 << QSize(30, 20) << 10 << 20;
    QTest::newRow("negative track counts as none") << -5 << 4 << 0 << QSize(0, 0) << 0 << 0;
    QTest::newRow("both negative") << -5 << -9 << 0 << QSize(0, 0) << 0 << 0;
}

void tst_DToggleButton::geometrie()
{
    QFETCH(int, piste);
    QFETCH(int, pouce);
    QFETCH(QSize, taille);
    QFETCH(int, finNonCochay);
    QFETCH(int, finCochay);
    QTEST(CalculeGeometrieBascule(piste, pouce).marge, "marge");

    DToggleButton bascule(piste, pouce);
    QCOMPARE(bascule.sizeHint(), taille);
    QCOMPARE(bascule.offset(), finNonCochay);
    bascule.setChecked(true);
    QCOMPARE(bascule.offset(), finCochay);
}

// The fixed size policy makes what it asks for the least, too.
void tst_DToggleButton::jamaisSerree()
{
    QWidget fenetre;
    auto * const disposition = new QHBoxLayout(&fenetre);
    disposition->setContentsMargins({});
    auto * const bascule = new DToggleButton(kPiste, kPouce, &fenetre);
    disposition->addWidget(bascule);
    fenetre.setAttribute(Qt::WA_DontShowOnScreen);
    fenetre.show();
    QCOMPARE(disposition->minimumSize(), bascule->sizeHint());
    QCOMPARE(disposition->maximumSize(), bascule->sizeHint());
}

void tst_DToggleButton::sauts_data()
{
    using Action = std::function<void(DToggleButton &)>;
    QTest::addColumn<Action>("action");
    QTest::newRow("setChecked") << Action([](auto & b) { b.setChecked(true); });
    QTest::newRow("setChecked of the base")
        << Action([](auto & b) { static_cast<QAbstractButton &>(b).setChecked(true); });
    QTest::newRow("setChecked while signals are blocked") << Action([](auto & b) {
        QSignalBlocker const bloqueur(b);
        static_cast<QAbstractButton &>(b).setChecked(true);
    });
    QTest::newRow("its own setChecked while signals are blocked") << Action([](auto & b) {
        QSignalBlocker const bloqueur(b);
        b.setChecked(true);
    });
    QTest::newRow("the property") << Action([](auto & b) { b.setProperty("checked", true); });
    QTest::newRow("the slot by name")
        << Action([](auto & b) { QMetaObject::invokeMethod(&b, "setChecked", Q_ARG(bool, true)); });
    QTest::newRow("toggle") << Action([](auto & b) { b.toggle(); });
    QTest::newRow("click") << Action([](auto & b) { b.click(); });
    QTest::newRow("click while signals are blocked") << Action([](auto & b) {
        QSignalBlocker const bloqueur(b);
        b.click();
    });
    QTest::newRow("animateClick") << Action([](auto & b) {
        b.animateClick();
        QTRY_VERIFY(b.isChecked());
    });
    QTest::newRow("space") << Action([](auto & b) { QTest::keyClick(&b, Qt::Key_Space); });
    QTest::newRow("twice and back") << Action([](auto & b) {
        b.click();
        b.toggle();
        b.toggle();
    });
}

void tst_DToggleButton::sauts()
{
    QFETCH(std::function<void(DToggleButton &)>, action);
    action(*maBascule);
    QVERIFY(maBascule->isChecked());
    QCOMPARE(maBascule->offset(), kFinCochay);
    QVERIFY(!Glisse(*maBascule));

    maBascule->toggle();
    QCOMPARE(maBascule->offset(), kFinNonCochay);
}

void tst_DToggleButton::clicGlisse()
{
    QTest::mouseClick(maBascule.get(), Qt::LeftButton);
    QVERIFY(maBascule->isChecked());
    QVERIFY(Glisse(*maBascule));
    QVERIFY(maBascule->offset() < kFinCochay);
    auto const & animation = Animation(*maBascule);
    QCOMPARE(animation.targetObject(), maBascule.get());
    QCOMPARE(animation.propertyName(), "mOffset"_ba);
    QCOMPARE(animation.duration(), 100);
    QCOMPARE(animation.startValue().toInt(), kFinNonCochay);
    QCOMPARE(animation.endValue().toInt(), kFinCochay);
    QTRY_VERIFY(!Glisse(*maBascule));
    QCOMPARE(maBascule->offset(), kFinCochay);

    QTest::mouseClick(maBascule.get(), Qt::LeftButton);
    QVERIFY(maBascule->offset() > kFinNonCochay);
    QTRY_COMPARE(maBascule->offset(), kFinNonCochay);
}

void tst_DToggleButton::clicPendantLeGlissement()
{
    QTest::mouseClick(maBascule.get(), Qt::LeftButton);
    QTRY_VERIFY(maBascule->offset() > kFinNonCochay);
    int const depart = maBascule->offset();
    QTest::mouseClick(maBascule.get(), Qt::LeftButton);
    QVERIFY(!maBascule->isChecked());
    // A little later at the most: the mouse press paints before the release.
    QVERIFY(Animation(*maBascule).startValue().toInt() >= depart);
    QCOMPARE(Animation(*maBascule).endValue().toInt(), kFinNonCochay);
    QTRY_COMPARE(maBascule->offset(), kFinNonCochay);
}

void tst_DToggleButton::clicSignauxBloques()
{
    QSignalBlocker const bloqueur(*maBascule);
    QTest::mouseClick(maBascule.get(), Qt::LeftButton);
    QVERIFY(Glisse(*maBascule));
    QTRY_COMPARE(maBascule->offset(), kFinCochay);
}

void tst_DToggleButton::clicDansUnCoin()
{
    QTest::mouseClick(maBascule.get(), Qt::LeftButton, {}, QPoint(0, 0));
    QVERIFY(maBascule->isChecked());
    QTest::mouseClick(maBascule.get(), Qt::LeftButton, {}, maBascule->rect().bottomRight());
    QVERIFY(!maBascule->isChecked());
}

void tst_DToggleButton::relacheAilleurs()
{
    QTest::mousePress(maBascule.get(), Qt::LeftButton);
    QTest::mouseRelease(maBascule.get(), Qt::LeftButton, {}, QPoint(-5, -5));
    QVERIFY(!maBascule->isChecked());
    QVERIFY(!Glisse(*maBascule));
    QCOMPARE(maBascule->offset(), kFinNonCochay);
    maBascule->setChecked(true); // nothing is left of the release
    QCOMPARE(maBascule->offset(), kFinCochay);
}

void tst_DToggleButton::autreBouton()
{
    QTest::mouseClick(maBascule.get(), Qt::RightButton);
    QVERIFY(!maBascule->isChecked());
    QTest::mouseRelease(maBascule.get(), Qt::LeftButton); // without a press
    QVERIFY(!maBascule->isChecked());
    QVERIFY(!Glisse(*maBascule));
}

void tst_DToggleButton::sautArreteLeGlissement_data()
{
    using Action = std::function<void(DToggleButton &)>;
    QTest::addColumn<Action>("action");
    QTest::addColumn<int>("fin");
    QTest::newRow("the same state") << Action([](auto & b) { b.setChecked(true); }) << kFinCochay;
    QTest::newRow("the same state, through the base")
        << Action([](auto & b) { static_cast<QAbstractButton &>(b).setChecked(true); })
        << kFinCochay;
    QTest::newRow("the other state")
        << Action([](auto & b) { b.setChecked(false); }) << kFinNonCochay;
    QTest::newRow("click") << Action([](auto & b) { b.click(); }) << kFinNonCochay;
    QTest::newRow("resize") << Action([](auto & b) { b.resize(100, 60); }) << kFinCochay;
}

void tst_DToggleButton::sautArreteLeGlissement()
{
    QFETCH(std::function<void(DToggleButton &)>, action);
    QFETCH(int, fin);
    QTest::mouseClick(maBascule.get(), Qt::LeftButton);
    QVERIFY(Glisse(*maBascule));
    action(*maBascule);
    QVERIFY(!Glisse(*maBascule));
    QCOMPARE(maBascule->offset(), fin);
}

void tst_DToggleButton::glissementCache()
{
    QTest::mouseClick(maBascule.get(), Qt::LeftButton);
    maBascule->hide();
    QTRY_COMPARE(maBascule->offset(), kFinCochay);
    maBascule->show();
    QCOMPARE(maBascule->offset(), kFinCochay);
}

void tst_DToggleButton::decalage()
{
    QSignalSpy espion(maBascule.get(), &DToggleButton::toggled);
    maBascule->setOffset(20);
    QCOMPARE(maBascule->offset(), 20);
    QCOMPARE(maBascule->property("mOffset").toInt(), 20);
    QVERIFY(maBascule->setProperty("mOffset", -3));
    QCOMPARE(maBascule->offset(), -3);
    QVERIFY(!maBascule->isChecked());
    QCOMPARE(espion.count(), 0);
}

void tst_DToggleButton::desactivay()
{
    maBascule->setEnabled(false);
    QTest::mouseClick(maBascule.get(), Qt::LeftButton);
    QVERIFY(!maBascule->isChecked());
    maBascule->setChecked(true);
    QCOMPARE(maBascule->offset(), kFinCochay);
}

void tst_DToggleButton::accessibilite()
{
    maBascule->setAccessibleName(u"Mode sombre"_s);
    auto * const interface = QAccessible::queryAccessibleInterface(maBascule.get());
    QVERIFY(interface);
    QCOMPARE(interface->role(), QAccessible::CheckBox);
    QCOMPARE(interface->text(QAccessible::Name), u"Mode sombre"_s);
    QVERIFY(interface->state().checkable);
    QVERIFY(!interface->state().checked);
    QVERIFY(interface->state().focusable);
    auto * const actions = interface->actionInterface();
    QVERIFY(actions);
    QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::toggleAction()));
    actions->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(maBascule->isChecked());
    QVERIFY(interface->state().checked);
    QCOMPARE(maBascule->offset(), kFinCochay);
}

QTEST_MAIN(tst_DToggleButton)
#include "tst_DToggleButton.moc"
