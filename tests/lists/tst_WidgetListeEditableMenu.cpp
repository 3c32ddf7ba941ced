#include "lists/WidgetListeEditable.h"

#include "lists/EssaisListeEditable.h"

using namespace EssaisListeEditable;
using namespace Qt::StringLiterals;

// The context menu, which is the host's.

class tst_WidgetListeEditableMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void surUneRangee();
    void horsDesRangees();
    void destruction();
};

namespace {

void ClicDroit(ListeEssai const & liste, QPoint const & position)
{
    QContextMenuEvent menu(QContextMenuEvent::Mouse, position,
                           liste.PreteVue()->viewport()->mapToGlobal(position));
    QCoreApplication::sendEvent(liste.PreteVue()->viewport(), &menu);
}

} // namespace

void tst_WidgetListeEditableMenu::cleanup()
{
    QVERIFY(ToutEstParti());
}

void tst_WidgetListeEditableMenu::surUneRangee()
{
    ListeEssai liste(3);
    liste.AjouteElement(CreeValeurs({u"a"_s, u"1"_s}));
    liste.AjouteElement(CreeValeurs({u"b"_s, u"2"_s}));
    QVERIFY(liste.Montre());
    QSignalSpy const espion(&liste, &WidgetListeEditable::SignalMenuContextuel);
    QPoint const position = liste.Milieu(1, 1);
    ClicDroit(liste, position);
    QCOMPARE(espion.count(), 1);
    QList<QStandardItem *> const items = {liste.DonneElement(1, 0), liste.DonneElement(1, 1),
                                          nullptr};
    QCOMPARE(espion.at(0).at(0).value<QList<QStandardItem *>>(), items);
    QCOMPARE(espion.at(0).at(1).toPoint(), liste.PreteVue()->viewport()->mapToGlobal(position));
    QVERIFY(QApplication::activePopupWidget() == nullptr); // the list shows none
}

void tst_WidgetListeEditableMenu::horsDesRangees()
{
    ListeEssai liste;
    liste.Remplis({u"a"_s});
    QVERIFY(liste.Montre());
    QSignalSpy const espion(&liste, &WidgetListeEditable::SignalMenuContextuel);
    ClicDroit(liste, QPoint(5, liste.PreteVue()->visualRect(liste.Index(0)).bottom() + 20));
    QCOMPARE(espion.count(), 0);
}

void tst_WidgetListeEditableMenu::destruction()
{
    QPointer<ListeEssai> const liste = new ListeEssai;
    liste->Remplis({u"a"_s});
    QVERIFY(liste->Montre());
    connect(liste, &WidgetListeEditable::SignalMenuContextuel, this, [&] { delete liste.data(); });
    ClicDroit(*liste, liste->Milieu(0));
    QVERIFY(!liste);
}

QTEST_MAIN(tst_WidgetListeEditableMenu)
#include "tst_WidgetListeEditableMenu.moc"
