// navigation/tst_DTabBarInterneClavier.cpp
// The keys of the bar.
#include "RangeeDEssai.h"

using namespace Qt::StringLiterals;

namespace {

class ParentAttentif : public QWidget
{
public:
    QList<int> touches;

protected:
    void keyPressEvent(QKeyEvent * evenement) override { touches << evenement->key(); }
};

} // namespace

class tst_DTabBarInterneClavier : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

    void touches_data();
    void touches();
    void ongletSuivantSauteLesAutres();
    void touchesLaisseesAuxParents();
};

void tst_DTabBarInterneClavier::touches_data()
{
    QTest::addColumn<int>("nombre");
    QTest::addColumn<int>("courant");
    QTest::addColumn<Qt::Key>("touche");
    QTest::addColumn<Qt::KeyboardModifiers>("modificateurs");
    QTest::addColumn<int>("voulu");
    Qt::KeyboardModifiers const controle = Qt::ControlModifier;
    QTest::newRow("Ctrl+Tab: next") << 3 << 0 << Qt::Key_Tab << controle << 1;
    QTest::newRow("Ctrl+Tab on the last: first") << 3 << 2 << Qt::Key_Tab << controle << 0;
    QTest::newRow("Ctrl+Tab on the only one") << 1 << 0 << Qt::Key_Tab << controle << 0;
    QTest::newRow("Ctrl+Tab without tabs") << 0 << -1 << Qt::Key_Tab << controle << -1;
    QTest::newRow("Ctrl+Shift+Tab: nothing")
        << 3 << 1 << Qt::Key_Backtab << (controle | Qt::ShiftModifier) << 1;
    QTest::newRow("Tab with Ctrl and Shift: nothing")
        << 3 << 1 << Qt::Key_Tab << (controle | Qt::ShiftModifier) << 1;
    QTest::newRow("Ctrl+Alt+Tab: nothing")
        << 3 << 1 << Qt::Key_Tab << (controle | Qt::AltModifier) << 1;
    QTest::newRow("Right: nothing") << 3 << 1 << Qt::Key_Right << Qt::KeyboardModifiers() << 1;
    QTest::newRow("Left: nothing") << 3 << 1 << Qt::Key_Left << Qt::KeyboardModifiers() << 1;
}

void tst_DTabBarInterneClavier::touches()
{
    QFETCH(int, nombre);
    QFETCH(int, courant);
    QFETCH(Qt::Key, touche);
    QFETCH(Qt::KeyboardModifiers, modificateurs);
    QFETCH(int, voulu);
    RangeeDEssai essai(nombre);
    essai.barre->setCurrentIndex(courant);
    essai.Expose();

    QTest::keyClick(essai.barre, touche, modificateurs);

    QCOMPARE(essai.barre->currentIndex(), voulu);
}

void tst_DTabBarInterneClavier::ongletSuivantSauteLesAutres()
{
    RangeeDEssai essai(4);
    essai.barre->setTabEnabled(1, false);
    essai.barre->setTabVisible(2, false);
    essai.Expose();

    QTest::keyClick(essai.barre, Qt::Key_Tab, Qt::ControlModifier);
    QCOMPARE(essai.barre->currentIndex(), 3);
}

void tst_DTabBarInterneClavier::touchesLaisseesAuxParents()
{
    ParentAttentif parent;
    auto * const rangee = new DTabBar(nullptr, "groupe");
    rangee->setParent(&parent);
    rangee->PreteBarreInterne()->addTab(QString());
    rangee->PreteBarreInterne()->addTab(QString());
    parent.show();

    QTest::keyClick(rangee->PreteBarreInterne(), Qt::Key_Tab, Qt::ControlModifier);
    QTest::keyClick(rangee->PreteBarreInterne(), Qt::Key_F5);
    QTest::keyClick(rangee->PreteBarreInterne(), Qt::Key_Right);

    QCOMPARE(parent.touches, (QList<int>{Qt::Key_Control, Qt::Key_F5, Qt::Key_Right}));
}

QTEST_MAIN(tst_DTabBarInterneClavier)
#include "tst_DTabBarInterneClavier.moc"
