// tests/controls/tst_DComboBoxPremierCachayListe.cpp
#include "controls/EssaisPremierCachay.h"
#include "controls/StyleTemoin.h"

#include <QScrollBar>
#include <QSignalSpy>

#include <limits>

using namespace Qt::StringLiterals;
using namespace EssaisPremierCachay;

class tst_DComboBoxPremierCachayListe : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void sansPlace_data();
    void sansPlace();
    void nombreDeLignes_data();
    void nombreDeLignes();
    void espacement_data();
    void espacement();
    void listeAuDessus();
    void espacementEnMenu();
    void souris_data();
    void souris();
    void sourisPartout();
    void courantCachay_data();
    void courantCachay();
    void courantCachayDefile();
    void courantOrdinaire();
    void dessineRienDuCachay();

private:
    StyleTemoin monStyle;
};

void tst_DComboBoxPremierCachayListe::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DComboBoxPremierCachayListe::sansPlace_data()
{
    Genres();
}

void tst_DComboBoxPremierCachayListe::sansPlace()
{
    QFETCH(QString, genre);
    DComboBox combo;
    combo.setStyle(&monStyle);
    Prepare(combo, genre);
    combo.setCurrentIndex(2);
    combo.showPopup();
    QVERIFY(combo.view()->isVisible());
    QCOMPARE(DonneLignesVisibles(combo), QList<int>({1, 2, 3, 4}));
    QCOMPARE(combo.view()->visualRect(combo.model()->index(1, 0)).top(), 0);
    QCOMPARE(DonneLignesSousLaSouris(*combo.view()), QSet<int>({1, 2, 3, 4}));
    // The rows fill the list, but for the room that QComboBox leaves to the grid of a table.
    QRect const derniere = combo.view()->visualRect(combo.model()->index(4, 0));
    int const reste = combo.view()->viewport()->height() - derniere.bottom() - 1;
    QVERIFY2(reste >= 0 && reste <= (genre == "table"_L1 ? 2 : 0),
             qPrintable(QString::number(reste)));
    QCOMPARE(combo.view()->verticalScrollBar()->maximum(), 0);
    combo.hidePopup();
}

void tst_DComboBoxPremierCachayListe::nombreDeLignes_data()
{
    QTest::addColumn<int>("maximum");
    QTest::addColumn<QSet<int>>("visibles");
    QTest::newRow("two") << 2 << QSet<int>({1, 2});
    QTest::newRow("all but one") << 3 << QSet<int>({1, 2, 3});
    QTest::newRow("all") << 4 << QSet<int>({1, 2, 3, 4});
    QTest::newRow("more") << 5 << QSet<int>({1, 2, 3, 4});
    QTest::newRow("no limit") << std::numeric_limits<int>::max() << QSet<int>({1, 2, 3, 4});
}

void tst_DComboBoxPremierCachayListe::nombreDeLignes()
{
    QFETCH(int, maximum);
    QFETCH(QSet<int>, visibles);
    QTest::failOnWarning(QRegularExpression(u"setMaxVisibleItems"_s));
    DComboBox combo;
    combo.setStyle(&monStyle);
    Prepare(combo, {});
    combo.setMaxVisibleItems(maximum);
    combo.setCurrentIndex(1);
    combo.showPopup();
    QCOMPARE(DonneLignesSousLaSouris(*combo.view()), visibles);
    QCOMPARE(combo.maxVisibleItems(), maximum);
    combo.hidePopup();
}

void tst_DComboBoxPremierCachayListe::espacement_data()
{
    Genres();
}

void tst_DComboBoxPremierCachayListe::espacement()
{
    QFETCH(QString, genre);
    DComboBox combo;
    combo.setStyle(&monStyle);
    Prepare(combo, genre);
    QComboBox reference;
    reference.setStyle(&monStyle);
    reference.addItems(DonneTextes().mid(1));
    if (QAbstractItemView * const vue = CreeVue(genre)) {
        reference.setView(vue);
        vue->setItemDelegate(combo.itemDelegate());
    }
    reference.show();
    for (QComboBox * const une : {static_cast<QComboBox *>(&combo), &reference}) {
        if (auto * const liste = qobject_cast<QListView *>(une->view()))
            liste->setSpacing(7);
        une->showPopup();
    }
    QCOMPARE(combo.view()->height(), reference.view()->height());
    combo.hidePopup();
    reference.hidePopup();
}

void tst_DComboBoxPremierCachayListe::listeAuDessus()
{
    DComboBox combo;
    combo.setStyle(&monStyle);
    Prepare(combo, {});
    QComboBox reference;
    reference.setStyle(&monStyle);
    reference.addItems(DonneTextes().mid(1));
    reference.show();
    QRect const ecran = combo.screen()->availableGeometry();
    QList<QRect> cadres;
    for (QComboBox * const une : {&reference, static_cast<QComboBox *>(&combo)}) {
        qobject_cast<QListView *>(une->view())->setSpacing(7);
        une->resize(150, 30);
        une->move(ecran.left() + 20, ecran.bottom() - 30);
        une->showPopup();
        cadres << une->view()->parentWidget()->geometry();
        une->hidePopup();
    }
    QVERIFY(cadres.at(0).top() < reference.y());
    QCOMPARE(cadres.at(1), cadres.at(0));
}

void tst_DComboBoxPremierCachayListe::espacementEnMenu()
{
    monStyle.listeEnMenu = true;
    auto const retablis = qScopeGuard([this] { monStyle.listeEnMenu = false; });
    DComboBox combo;
    combo.setStyle(&monStyle);
    Prepare(combo, {});
    combo.setCurrentIndex(0);
    combo.showPopup();
    QCOMPARE(DonneLignesVisibles(combo), QList<int>({1, 2, 3, 4}));
    QVERIFY(combo.screen()->availableGeometry().contains(
        combo.view()->parentWidget()->frameGeometry()));
    combo.hidePopup();
}

void tst_DComboBoxPremierCachayListe::souris_data()
{
    Genres();
}

void tst_DComboBoxPremierCachayListe::souris()
{
    QFETCH(QString, genre);
    DComboBox combo;
    combo.setStyle(&monStyle);
    Prepare(combo, genre);
    combo.showPopup();
    QSignalSpy espion(&combo, &QComboBox::activated);
    QWidget * const surface = combo.view()->viewport();
    QTest::mouseMove(surface, QPoint(3, 3));
    QTest::mouseClick(surface, Qt::LeftButton, {}, QPoint(3, 3)); // the topmost row
    // A release at once after the opening belongs to the click that opened the list.
    if (combo.view()->isVisible())
        QTRY_VERIFY((QTest::mouseClick(surface, Qt::LeftButton, {}, QPoint(3, 3)),
                     !combo.view()->isVisible()));
    QCOMPARE(combo.currentIndex(), 1);
    QCOMPARE(espion.count(), 1);
}

void tst_DComboBoxPremierCachayListe::sourisPartout()
{
    DComboBox combo;
    combo.setStyle(&monStyle);
    Prepare(combo, {});
    combo.showPopup();
    QSignalSpy espion(&combo, &QComboBox::highlighted);
    QWidget * const surface = combo.view()->viewport();
    for (int y = 0; y < surface->height(); y += 2) {
        QTest::mouseMove(surface, QPoint(5, y));
        QVERIFY(combo.view()->currentIndex().row() != 0);
    }
    QCOMPARE(espion.count(), 4);
    QCOMPARE(espion.at(0).at(0).toInt(), 1);
    combo.hidePopup();
}

void tst_DComboBoxPremierCachayListe::courantCachay_data()
{
    Genres();
}

void tst_DComboBoxPremierCachayListe::courantCachay()
{
    QFETCH(QString, genre);
    DComboBox combo;
    combo.setStyle(&monStyle);
    Prepare(combo, genre);
    QCOMPARE(combo.currentIndex(), 0);
    QSignalSpy surlignay(&combo, &QComboBox::highlighted);
    QSignalSpy active(&combo, &QComboBox::activated);
    combo.showPopup();
    QVERIFY(combo.view()->isVisible());
    QVERIFY(!combo.signalsBlocked());
    QVERIFY(!combo.view()->currentIndex().isValid());
    QVERIFY(!combo.view()->selectionModel()->hasSelection());
    QCOMPARE(combo.currentIndex(), 0);
    QCOMPARE(combo.currentText(), u"abricot"_s);
    QTest::keyClick(combo.view(), Qt::Key_Return); // as with nothing selected in any combo box
    QCOMPARE(active.count(), 0);
    QVERIFY(surlignay.isEmpty());
    QTest::keyClick(combo.view(), Qt::Key_Up);
    QCOMPARE(combo.view()->currentIndex().row(), 1);
    if (genre.isEmpty()) // QComboBox knows of the selection of no other view
        QCOMPARE(surlignay.count(), 1);
    combo.hidePopup();
}

void tst_DComboBoxPremierCachayListe::courantCachayDefile()
{
    DComboBox combo;
    combo.setStyle(&monStyle);
    Prepare(combo, {});
    for (int i = 0; i < 60; ++i)
        combo.addItem(QString::number(i));
    combo.setCurrentIndex(50);
    combo.showPopup();
    QVERIFY(combo.view()->verticalScrollBar()->value() > 0);
    combo.hidePopup();
    combo.setCurrentIndex(0);
    combo.showPopup();
    QCOMPARE(combo.view()->verticalScrollBar()->value(), 0);
    combo.hidePopup();
}

void tst_DComboBoxPremierCachayListe::courantOrdinaire()
{
    DComboBox combo;
    combo.setStyle(&monStyle);
    Prepare(combo, {});
    combo.setCurrentIndex(3);
    combo.showPopup();
    QCOMPARE(combo.view()->currentIndex().row(), 3);
    combo.hidePopup();
    combo.setCurrentIndex(-1);
    combo.showPopup();
    QVERIFY(!combo.view()->selectionModel()->hasSelection());
    combo.hidePopup();
}

void tst_DComboBoxPremierCachayListe::dessineRienDuCachay()
{
    DComboBox combo;
    combo.setStyle(&monStyle);
    Prepare(combo, {});
    combo.view()->setStyle(&monStyle);
    combo.showPopup();
    monStyle.mesItems.clear();
    combo.view()->viewport()->grab();
    QStringList textes;
    for (StyleTemoin::Item const & item : monStyle.mesItems)
        textes << item.texte;
    QCOMPARE(textes, DonneTextes().mid(1));
    combo.hidePopup();
}

QTEST_MAIN(tst_DComboBoxPremierCachayListe)
#include "tst_DComboBoxPremierCachayListe.moc"
