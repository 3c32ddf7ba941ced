// tests/controls/tst_DListViewCliqueItems.cpp
#include "controls/EssaisListeClique.h"

#include <QtTest>

using namespace EssaisListeClique;
using namespace Qt::StringLiterals;

// The press and the click while items, or the list itself, move or vanish.
class tst_DListViewCliqueItems : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void itemRetiray();
    void autreItemRetiray();
    void itemDeplacay();
    void listeVidee();
    void destruction_data();
    void destruction();
};

void tst_DListViewCliqueItems::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DListViewCliqueItems::itemRetiray()
{
    Banc banc;
    QPoint const position = banc.Milieu(1);
    banc.Presse(position);
    delete banc.liste.takeItem(1);
    banc.Relache(position); // over the item that came into its place
    QCOMPARE(banc.clics.count(), 0);
}

void tst_DListViewCliqueItems::autreItemRetiray()
{
    Banc banc;
    banc.Presse(banc.Milieu(2));
    delete banc.liste.takeItem(0);
    banc.Relache(banc.Milieu(1)); // where the item has gone
    QCOMPARE(Banc::Rangees(banc.clics), Rangees{1});
    QCOMPARE(banc.clics.at(0).at(0).toModelIndex().data().toString(), u"trois"_s);
}

void tst_DListViewCliqueItems::itemDeplacay()
{
    Banc banc;
    banc.Presse(banc.Milieu(0));
    QVERIFY(banc.liste.model()->moveRow({}, 0, {}, 3));
    banc.Relache(banc.Milieu(0));
    QCOMPARE(banc.clics.count(), 0);
    banc.Relache(banc.Milieu(2));
    QCOMPARE(Banc::Rangees(banc.clics), Rangees{2});
    QCOMPARE(banc.clics.at(0).at(0).toModelIndex().data().toString(), u"un"_s);
}

void tst_DListViewCliqueItems::listeVidee()
{
    Banc banc;
    QPoint const position = banc.Milieu(1);
    banc.Presse(position);
    banc.liste.clear();
    banc.Relache(position);
    banc.liste.addItems({u"un"_s, u"deux"_s});
    banc.Relache(position);
    QCOMPARE(banc.clics.count(), 0);
}

void tst_DListViewCliqueItems::destruction_data()
{
    QTest::addColumn<bool>("auClic");
    QTest::newRow("pressed") << false;
    QTest::newRow("clicked") << true;
}

void tst_DListViewCliqueItems::destruction()
{
    QFETCH(bool, auClic);
    QPointer<DListViewClique> const liste = new DListViewClique;
    liste->addItem(u"un"_s);
    liste->show();
    auto const detruis = [liste] { delete liste; };
    if (auClic)
        connect(liste, &DListViewClique::clicked, this, detruis);
    else
        connect(liste, &DListViewClique::pressed, this, detruis);
    QPointF const position = liste->visualItemRect(liste->item(0)).center();
    for (auto const type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent evenement(type, position, position, Qt::LeftButton, Qt::LeftButton, {});
        if (liste)
            QCoreApplication::sendEvent(liste->viewport(), &evenement);
    }
    QVERIFY(!liste);
}

QTEST_MAIN(tst_DListViewCliqueItems)
#include "tst_DListViewCliqueItems.moc"
