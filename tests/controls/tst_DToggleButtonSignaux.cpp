// tests/controls/tst_DToggleButtonSignaux.cpp
#include "controls/DToggleButton.h"

#include "controls/EssaisBascule.h"
#include "controls/RenduBoutons.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QtTest>

#include <functional>

using namespace EssaisBascule;
using namespace Qt::StringLiterals;

namespace {

using Action = std::function<void(QAbstractButton &)>;

constexpr QPoint kDansLaCase(6, 10);

// What the button and a group tell, in order. With `retablit` a slot of the group's signal sets the
// state back.
QStringList Suite(QAbstractButton & bouton, Action const & action, bool retablit)
{
    QStringList suite;
    QButtonGroup groupe;
    groupe.setExclusive(false);
    groupe.addButton(&bouton);
    auto const note = [&suite](QString const & nom, bool cochay) {
        suite << u"%1 %2"_s.arg(nom).arg(cochay);
    };
    QObject::connect(&bouton, &QAbstractButton::toggled, &groupe,
                     [&](bool cochay) { note(u"toggled"_s, cochay); });
    QObject::connect(&bouton, &QAbstractButton::clicked, &groupe,
                     [&](bool cochay) { note(u"clicked"_s, cochay); });
    QObject::connect(&groupe, &QButtonGroup::buttonToggled, &groupe,
                     [&](QAbstractButton * source, bool cochay) {
                         note(u"buttonToggled"_s, cochay);
                         if (retablit && cochay)
                             source->setChecked(false);
                     });
    action(bouton);
    note(u"at last"_s, bouton.isChecked());
    return suite;
}

// Not by QTest, which looks at the widget afterwards.
void Clique(QPointer<QWidget> const & cible, bool souris)
{
    QPointF const milieu(kFinNonCochay, kPiste);
    auto const envoie = [&](QEvent && evenement) {
        QCoreApplication::sendEvent(cible, &evenement);
    };
    if (souris) {
        envoie(QMouseEvent(QEvent::MouseButtonPress, milieu, milieu, Qt::LeftButton, Qt::LeftButton,
                           Qt::NoModifier));
        envoie(QMouseEvent(QEvent::MouseButtonRelease, milieu, milieu, Qt::LeftButton, Qt::NoButton,
                           Qt::NoModifier));
    } else {
        envoie(QKeyEvent(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier));
        envoie(QKeyEvent(QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier));
    }
}

} // namespace

// What the switch tells, when, and what receivers may do.
class tst_DToggleButtonSignaux : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void commeUneCase_data();
    void commeUneCase();
    void comptesDesSignaux();
    void glissementVuParLesRecepteurs();
    void groupeDecoche();
    void recepteurRetablit_data();
    void recepteurRetablit();
    void recepteurDetruit_data();
    void recepteurDetruit();

private:
    std::unique_ptr<DToggleButton> maBascule;
};

void tst_DToggleButtonSignaux::init()
{
    maBascule = std::make_unique<DToggleButton>(kPiste, kPouce);
    RenduBoutons::Dispose(*maBascule, maBascule->sizeHint());
}

void tst_DToggleButtonSignaux::cleanup()
{
    maBascule.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DToggleButtonSignaux::commeUneCase_data()
{
    QTest::addColumn<Action>("action");
    QTest::addColumn<bool>("retablit");
    std::pair<char const *, Action> const actions[] = {
        {"setChecked",
         [](auto & b) { QMetaObject::invokeMethod(&b, "setChecked", Q_ARG(bool, true)); }},
        {"the same state", [](auto & b) { b.setProperty("checked", false); }},
        {"toggle", [](auto & b) { b.toggle(); }},
        {"click", [](auto & b) { b.click(); }},
        {"mouse", [](auto & b) { QTest::mouseClick(&b, Qt::LeftButton, {}, kDansLaCase); }},
        {"space", [](auto & b) { QTest::keyClick(&b, Qt::Key_Space); }},
    };
    for (auto const & [nom, action] : actions) {
        QTest::newRow(nom) << action << false;
        QTest::addRow("%s, set back by the group's receiver", nom) << action << true;
    }
}

void tst_DToggleButtonSignaux::commeUneCase()
{
    QFETCH(Action, action);
    QFETCH(bool, retablit);
    QCheckBox boite;
    RenduBoutons::Dispose(boite, QSize(54, 20));
    QStringList const attendue = Suite(boite, action, retablit);
    QCOMPARE(Suite(*maBascule, action, retablit), attendue);
    QTRY_COMPARE(maBascule->offset(), maBascule->isChecked() ? kFinCochay : kFinNonCochay);
}

void tst_DToggleButtonSignaux::comptesDesSignaux()
{
    QSignalSpy bascules(maBascule.get(), &DToggleButton::toggled);
    QSignalSpy clics(maBascule.get(), &DToggleButton::clicked);
    maBascule->setChecked(false);
    QCOMPARE(bascules.count(), 0);
    maBascule->setChecked(true);
    maBascule->setChecked(true);
    QCOMPARE(bascules.count(), 1);
    QCOMPARE(clics.count(), 0);
    QTest::mouseClick(maBascule.get(), Qt::LeftButton);
    QCOMPARE(bascules.count(), 2);
    QCOMPARE(bascules.last().first().toBool(), false);
    QCOMPARE(clics.count(), 1);
}

// A host may open a dialog from its slot: the thumb must not stand still all the while.
void tst_DToggleButtonSignaux::glissementVuParLesRecepteurs()
{
    bool glissait = false;
    connect(maBascule.get(), &DToggleButton::toggled, this, [&] {
        glissait = Glisse(*maBascule);
        QTRY_COMPARE(maBascule->offset(), kFinCochay);
    });
    QTest::mouseClick(maBascule.get(), Qt::LeftButton);
    QVERIFY(glissait);
    QCOMPARE(maBascule->offset(), kFinCochay);
}

void tst_DToggleButtonSignaux::groupeDecoche()
{
    DToggleButton autre(kPiste, kPouce);
    QButtonGroup groupe;
    groupe.addButton(maBascule.get());
    groupe.addButton(&autre);
    maBascule->setChecked(true);

    QTest::mouseClick(&autre, Qt::LeftButton);
    QVERIFY(!maBascule->isChecked());
    QCOMPARE(maBascule->offset(), kFinNonCochay);
    QVERIFY(!Glisse(*maBascule));
    QTRY_COMPARE(autre.offset(), kFinCochay);

    QTest::mouseClick(&autre, Qt::LeftButton); // the group lets none be unchecked
    QVERIFY(autre.isChecked());
    QCOMPARE(autre.offset(), kFinCochay);
    autre.setChecked(false);
    QCOMPARE(autre.offset(), kFinCochay);
}

void tst_DToggleButtonSignaux::recepteurRetablit_data()
{
    QTest::addColumn<bool>("souris");
    QTest::addColumn<bool>("bloque");
    QTest::newRow("mouse") << true << false;
    QTest::newRow("mouse, while signals are blocked") << true << true;
    QTest::newRow("space") << false << false;
    QTest::newRow("space, while signals are blocked") << false << true;
}

// Through the base, as code that knows of no switch does.
void tst_DToggleButtonSignaux::recepteurRetablit()
{
    QFETCH(bool, souris);
    QFETCH(bool, bloque);
    connect(maBascule.get(), &DToggleButton::toggled, this, [&](bool cochay) {
        QSignalBlocker const bloqueur(bloque ? maBascule.get() : nullptr);
        if (cochay)
            static_cast<QAbstractButton &>(*maBascule).setChecked(false);
    });
    Clique(maBascule.get(), souris);
    QVERIFY(!maBascule->isChecked());
    QVERIFY(!Glisse(*maBascule));
    QCOMPARE(maBascule->offset(), kFinNonCochay);
}

void tst_DToggleButtonSignaux::recepteurDetruit_data()
{
    QTest::addColumn<bool>("souris");
    QTest::addColumn<QByteArray>("signal");
    for (char const * const signal : {"toggled", "buttonToggled", "clicked"}) {
        QTest::addRow("%s, mouse", signal) << true << QByteArray(signal);
        QTest::addRow("%s, space", signal) << false << QByteArray(signal);
    }
}

// At once from `clicked`, which Qt allows, and later from the others.
void tst_DToggleButtonSignaux::recepteurDetruit()
{
    QFETCH(bool, souris);
    QFETCH(QByteArray, signal);
    QButtonGroup groupe;
    groupe.addButton(maBascule.get());
    QPointer<QWidget> const cible(maBascule.get());
    auto const detruit = [this] { maBascule.reset(); };
    auto const detruitPlusTard = [this] { maBascule.release()->deleteLater(); };
    if (signal == "toggled")
        connect(maBascule.get(), &DToggleButton::toggled, this, detruitPlusTard);
    else if (signal == "buttonToggled")
        connect(&groupe, &QButtonGroup::buttonToggled, this, detruitPlusTard);
    else
        connect(maBascule.get(), &DToggleButton::clicked, this, detruit);
    Clique(cible, souris);
    QTRY_VERIFY(!cible);
}

QTEST_MAIN(tst_DToggleButtonSignaux)
#include "tst_DToggleButtonSignaux.moc"
