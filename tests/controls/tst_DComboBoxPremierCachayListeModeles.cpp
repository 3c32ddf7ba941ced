// tests/controls/tst_DComboBoxPremierCachayListeModeles.cpp
#include "controls/EssaisPremierCachay.h"

#include <QSignalSpy>
#include <QStandardItemModel>
#include <QStringListModel>

using namespace Qt::StringLiterals;
using namespace EssaisPremierCachay;

class tst_DComboBoxPremierCachayListeModeles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void modeleChangeOuvert_data();
    void modeleChangeOuvert();
    void lignesDeplacees();
    void remplacements_data();
    void remplacements();
    void racineEtColonne();
    void deleguayRemplacay_data();
    void deleguayRemplacay();
};

void tst_DComboBoxPremierCachayListeModeles::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DComboBoxPremierCachayListeModeles::modeleChangeOuvert_data()
{
    Genres();
}

void tst_DComboBoxPremierCachayListeModeles::modeleChangeOuvert()
{
    QFETCH(QString, genre);
    DComboBox combo;
    Prepare(combo, genre);
    combo.setCurrentIndex(1);
    combo.showPopup();

    combo.insertItem(0, u"zeste"_s);
    QCOMPARE(DonneLignesVisibles(combo), QList<int>({1, 2, 3, 4, 5}));
    combo.removeItem(0);
    QCOMPARE(DonneLignesVisibles(combo), QList<int>({1, 2, 3, 4}));
    combo.removeItem(0); // the next one takes its place, which is the current one of the list
    QCOMPARE(DonneLignesVisibles(combo), QList<int>({1, 2, 3}));
    QVERIFY(combo.view()->currentIndex().row() != 0);
    combo.insertItems(0, {u"un"_s, u"deux"_s});
    QCOMPARE(DonneLignesVisibles(combo), QList<int>({1, 2, 3, 4, 5}));
    combo.clear();
    combo.addItems({u"x"_s, u"y"_s});
    QCOMPARE(DonneLignesVisibles(combo), QList<int>({1}));
    combo.hidePopup();
    combo.showPopup();
    QCOMPARE(DonneLignesVisibles(combo), QList<int>({1}));
    combo.hidePopup();
}

void tst_DComboBoxPremierCachayListeModeles::lignesDeplacees()
{
    QStringListModel modele(DonneTextes());
    DComboBox combo;
    combo.setModel(&modele);
    combo.CachePremierElement();
    combo.show();
    combo.setCurrentIndex(2);
    combo.showPopup();
    modele.moveRow({}, 0, {}, 3);
    QCOMPARE(DonneLignesVisibles(combo), QList<int>({1, 2, 3, 4}));
    modele.sort(0, Qt::DescendingOrder);
    QCOMPARE(DonneLignesVisibles(combo), QList<int>({1, 2, 3, 4}));
    modele.setStringList({u"a"_s, u"b"_s, u"c"_s});
    QCOMPARE(DonneLignesVisibles(combo), QList<int>({1, 2}));
    combo.hidePopup();
}

void tst_DComboBoxPremierCachayListeModeles::remplacements_data()
{
    Genres();
}

void tst_DComboBoxPremierCachayListeModeles::remplacements()
{
    QFETCH(QString, genre);
    QStringListModel modele({u"x"_s, u"y"_s, u"z"_s});
    DComboBox combo;
    Prepare(combo, {});
    combo.setModel(&modele);
    QCOMPARE(DonneLignesVisibles(combo), QList<int>({1, 2}));
    combo.showPopup();
    QCOMPARE(DonneLignesVisibles(combo), QList<int>({1, 2}));
    combo.hidePopup();
    if (QAbstractItemView * const vue = CreeVue(genre))
        combo.setView(vue);
    QCOMPARE(DonneLignesVisibles(combo), QList<int>({1, 2}));
    combo.showPopup();
    QCOMPARE(DonneLignesVisibles(combo), QList<int>({1, 2}));
    modele.insertRow(0);
    QCOMPARE(DonneLignesVisibles(combo), QList<int>({1, 2, 3}));
    combo.hidePopup();
}

void tst_DComboBoxPremierCachayListeModeles::racineEtColonne()
{
    QStandardItemModel modele;
    auto * const parent = new QStandardItem(u"parent"_s);
    for (QString const & texte : {u"a"_s, u"b"_s, u"c"_s})
        parent->appendRow({new QStandardItem(u"-"_s), new QStandardItem(texte)});
    modele.appendRow(parent);
    modele.appendRow(new QStandardItem(u"autre"_s));
    DComboBox combo;
    combo.setModel(&modele);
    combo.CachePremierElement();
    combo.show();
    combo.showPopup();
    QCOMPARE(DonneLignesVisibles(combo), QList<int>({1}));
    combo.hidePopup();
    combo.setRootModelIndex(parent->index());
    combo.setModelColumn(1);
    combo.showPopup();
    QCOMPARE(DonneLignesVisibles(combo), QList<int>({1, 2}));
    QTest::keyClick(combo.view(), Qt::Key_C);
    QTest::keyClick(combo.view(), Qt::Key_Return);
    QCOMPARE(combo.currentText(), u"c"_s);
    combo.showPopup();
    combo.setRootModelIndex({});
    combo.setModelColumn(0);
    // Nobody tells of the root, but the list lays itself out.
    QTRY_COMPARE(DonneLignesVisibles(combo), QList<int>({1}));
    combo.hidePopup();
    combo.setCurrentIndex(1);
    combo.showPopup();
    QVERIFY(!qobject_cast<QListView *>(combo.view())->isRowHidden(1));
    combo.hidePopup();
}

void tst_DComboBoxPremierCachayListeModeles::deleguayRemplacay_data()
{
    Genres();
}

void tst_DComboBoxPremierCachayListeModeles::deleguayRemplacay()
{
    QFETCH(QString, genre);
    DComboBox combo;
    Prepare(combo, genre);
    combo.showPopup();
    QCOMPARE(DonneLignesVisibles(combo), QList<int>({1, 2, 3, 4}));
    combo.hidePopup();
    combo.setItemDelegate(new QStyledItemDelegate(&combo));
    QSignalSpy espion(&combo, &QComboBox::highlighted);
    combo.showPopup();
    QCOMPARE(DonneLignesVisibles(combo), QList<int>({0, 1, 2, 3, 4}));
    QCOMPARE(combo.view()->currentIndex().row(), 0);
    QTest::keyClick(combo.view(), Qt::Key_Down);
    QTest::keyClick(combo.view(), Qt::Key_Up);
    QCOMPARE(combo.view()->currentIndex().row(), 0);
    combo.hidePopup();
}

QTEST_MAIN(tst_DComboBoxPremierCachayListeModeles)
#include "tst_DComboBoxPremierCachayListeModeles.moc"
