// tests/editing/tst_DComboJetonableInfobulle.cpp
#include "editing/DComboJetonable.h"

#include "editing/EssaisJetons.h"

#include <QtTest>

#include <memory>

using namespace EssaisJetons;
using namespace Qt::StringLiterals;

namespace {

// As when the mouse rests on `widget`.
void DemandeInfobulle(QWidget & widget)
{
    QPoint const point(5, 5);
    QHelpEvent demande(QEvent::ToolTip, point, widget.mapToGlobal(point));
    QApplication::sendEvent(&widget, &demande);
}

} // namespace

class tst_DComboJetonableInfobulle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void infobulleMontree();
    void infobulleSuitLeJeton_data();
    void infobulleSuitLeJeton();

private:
    std::unique_ptr<DComboJetonable> monCombo;
};

void tst_DComboJetonableInfobulle::init()
{
    monCombo.reset(CreeSansIcones());
    monCombo->show();
    QVERIFY(QTest::qWaitForWindowExposed(monCombo.get()));
}

void tst_DComboJetonableInfobulle::cleanup()
{
    monCombo.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DComboJetonableInfobulle::infobulleMontree()
{
    monCombo->PrendsTexteJeton(u"jeton"_s, u"<b>Nom</b> commun"_s);

    DemandeInfobulle(PreteChamp(*monCombo));

    QVERIFY(QToolTip::isVisible());
    QVERIFY(QToolTip::text().contains(u"<b>Nom</b> commun"));
}

void tst_DComboJetonableInfobulle::infobulleSuitLeJeton_data()
{
    QTest::addColumn<bool>("remplace");
    QTest::newRow("another token") << true;
    QTest::newRow("no token") << false;
}

void tst_DComboJetonableInfobulle::infobulleSuitLeJeton()
{
    QFETCH(bool, remplace);
    monCombo->PrendsTexteJeton(u"jeton"_s, u"Nom commun"_s);
    DemandeInfobulle(PreteChamp(*monCombo));
    QVERIFY(QToolTip::isVisible());

    if (remplace)
        monCombo->PrendsTexteJeton(u"autre"_s, u"Verbe"_s);
    else
        QTest::keyClick(monCombo.get(), Qt::Key_Backspace);

    QTRY_VERIFY(!QToolTip::isVisible()); // long before it would go by itself
}

QTEST_MAIN(tst_DComboJetonableInfobulle)
#include "tst_DComboJetonableInfobulle.moc"
