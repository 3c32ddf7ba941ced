// tests/controls/tst_DListViewClique.cpp
#include "controls/EssaisListeClique.h"

#include <QtTest>

using namespace EssaisListeClique;
using namespace Qt::StringLiterals;

class tst_DListViewClique : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void construction();
    void clic_data();
    void clic();
    void signauxDItem();
    void neSelectionneRien();
    void glisseSansSelectionner();
    void relacheSansPresse();
    void relacheDeNouveau();
    void doubleClic();
    void positionArrondie();
    void boutons_data();
    void boutons();
    void itemDesactive();
    void listeDesactivee();
    void clavier();
    void tabulation();
};

void tst_DListViewClique::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DListViewClique::construction()
{
    QWidget parent;
    DListViewClique const liste(&parent);
    QCOMPARE(liste.parentWidget(), &parent);
    QCOMPARE(liste.count(), 0);
}

void tst_DListViewClique::clic_data()
{
    QTest::addColumn<int>("pressay");
    QTest::addColumn<int>("relachay");
    QTest::addColumn<Rangees>("presses");
    QTest::addColumn<Rangees>("clics");
    QTest::newRow("same item") << 1 << 1 << Rangees{1} << Rangees{1};
    QTest::newRow("another item") << 1 << 2 << Rangees{1} << Rangees{};
    QTest::newRow("from an item to empty space") << 1 << -1 << Rangees{1} << Rangees{};
    QTest::newRow("from empty space to an item") << -1 << 1 << Rangees{} << Rangees{};
    QTest::newRow("empty space") << -1 << -1 << Rangees{} << Rangees{};
}

void tst_DListViewClique::clic()
{
    QFETCH(int, pressay);
    QFETCH(int, relachay);
    QFETCH(Rangees, presses);
    QFETCH(Rangees, clics);
    Banc banc;
    banc.Presse(banc.Position(pressay));
    QCOMPARE(Banc::Rangees(banc.presses), presses);
    QCOMPARE(banc.clics.count(), 0);
    banc.Relache(banc.Position(relachay));
    QCOMPARE(Banc::Rangees(banc.presses), presses);
    QCOMPARE(Banc::Rangees(banc.clics), clics);
}

void tst_DListViewClique::signauxDItem()
{
    Banc banc;
    QSignalSpy const presses(&banc.liste, &QListWidget::itemPressed);
    QSignalSpy const clics(&banc.liste, &QListWidget::itemClicked);
    QTest::mouseClick(banc.liste.viewport(), Qt::LeftButton, {}, banc.Milieu(2));
    QCOMPARE(presses.count(), 1);
    QCOMPARE(clics.count(), 1);
    QCOMPARE(clics.at(0).at(0).value<QListWidgetItem *>(), banc.liste.item(2));
}

void tst_DListViewClique::neSelectionneRien()
{
    Banc banc;
    // The list takes the focus, and with it a current row, before it is clicked.
    QVERIFY(banc.Active());
    int const courant = banc.liste.currentRow();
    QTest::mouseClick(banc.liste.viewport(), Qt::LeftButton, {}, banc.Milieu(1));
    QVERIFY(banc.liste.selectedItems().isEmpty());
    QCOMPARE(banc.liste.currentRow(), courant);
    QCOMPARE(banc.selections.count(), 0);
    QCOMPARE(banc.courants.count(), 0);
    QCOMPARE(banc.activations.count(), 0);

    banc.liste.setCurrentRow(3);
    banc.OublieSignaux();
    QTest::mouseClick(banc.liste.viewport(), Qt::LeftButton, {}, banc.Milieu(1));
    QTest::mouseClick(banc.liste.viewport(), Qt::LeftButton, {}, Banc::Vide());
    QCOMPARE(banc.liste.currentRow(), 3);
    QCOMPARE(banc.liste.selectedItems(), QList<QListWidgetItem *>{banc.liste.item(3)});
    QCOMPARE(banc.selections.count(), 0);
    QCOMPARE(banc.courants.count(), 0);
}

void tst_DListViewClique::glisseSansSelectionner()
{
    for (auto const mode :
         {QAbstractItemView::SingleSelection, QAbstractItemView::ExtendedSelection,
          QAbstractItemView::MultiSelection}) {
        Banc banc;
        banc.liste.setSelectionMode(mode);
        banc.liste.setMouseTracking(true);
        QVERIFY(banc.Active());
        QSignalSpy const entrees(&banc.liste, &QListWidget::entered);
        banc.Presse(banc.Milieu(0));
        for (int const rangee : {0, 1, 2, 3}) {
            QMouseEvent mouvement(QEvent::MouseMove, banc.Milieu(rangee), banc.Milieu(rangee),
                                  Qt::NoButton, Qt::LeftButton, {});
            QCoreApplication::sendEvent(banc.liste.viewport(), &mouvement);
        }
        banc.Relache(banc.Milieu(3));
        QVERIFY(banc.liste.selectedItems().isEmpty());
        QCOMPARE(banc.selections.count(), 0);
        QCOMPARE(banc.courants.count(), 0);
        QCOMPARE(banc.clics.count(), 0);
        QCOMPARE(entrees.count(), 0);
    }
}

void tst_DListViewClique::relacheSansPresse()
{
    Banc banc;
    banc.Relache(banc.Milieu(1));
    banc.Relache(Banc::Vide());
    QCOMPARE(banc.clics.count(), 0);
}

// The press is kept until the next one.
void tst_DListViewClique::relacheDeNouveau()
{
    Banc banc;
    banc.Presse(banc.Milieu(1));
    banc.Relache(banc.Milieu(2));
    banc.Relache(banc.Milieu(1));
    banc.Relache(banc.Milieu(1));
    QCOMPARE(Banc::Rangees(banc.clics), (Rangees{1, 1}));
    banc.Presse(Banc::Vide());
    banc.Relache(banc.Milieu(1));
    QCOMPARE(banc.clics.count(), 2);
}

void tst_DListViewClique::doubleClic()
{
    Banc banc;
    QTest::mouseClick(banc.liste.viewport(), Qt::LeftButton, {}, banc.Milieu(1));
    QTest::mouseDClick(banc.liste.viewport(), Qt::LeftButton, {}, banc.Milieu(1));
    banc.Relache(banc.Milieu(1)); // which mouseDClick leaves out
    QCOMPARE(Banc::Rangees(banc.presses), (Rangees{1, 1}));
    QCOMPARE(Banc::Rangees(banc.clics), (Rangees{1, 1}));
    QCOMPARE(banc.doubles.count(), 0);
    QCOMPARE(banc.activations.count(), 0);
    QVERIFY(banc.liste.selectedItems().isEmpty());
}

void tst_DListViewClique::positionArrondie()
{
    Banc banc;
    double const bas = banc.liste.visualItemRect(banc.liste.item(1)).bottom();
    for (double const ecart : {0.4, 0.6}) {
        QPointF const position(50, bas + ecart);
        QMouseEvent presse(QEvent::MouseButtonPress, position, position, Qt::LeftButton,
                           Qt::LeftButton, {});
        QCoreApplication::sendEvent(banc.liste.viewport(), &presse);
    }
    QCOMPARE(Banc::Rangees(banc.presses), (Rangees{1, 2}));
}

void tst_DListViewClique::boutons_data()
{
    QTest::addColumn<Qt::MouseButton>("bouton");
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
    QTest::newRow("back") << Qt::BackButton;
}

void tst_DListViewClique::boutons()
{
    QFETCH(Qt::MouseButton, bouton);
    Banc banc;
    banc.Presse(banc.Milieu(1), bouton);
    banc.Relache(banc.Milieu(1), bouton);
    QCOMPARE(Banc::Rangees(banc.presses), Rangees{1});
    QCOMPARE(Banc::Rangees(banc.clics), Rangees{1});
}

void tst_DListViewClique::itemDesactive()
{
    Banc banc;
    banc.liste.item(1)->setFlags(Qt::NoItemFlags);
    QTest::mouseClick(banc.liste.viewport(), Qt::LeftButton, {}, banc.Milieu(1));
    QCOMPARE(Banc::Rangees(banc.presses), Rangees{1});
    QCOMPARE(Banc::Rangees(banc.clics), Rangees{1});
}

void tst_DListViewClique::listeDesactivee()
{
    Banc banc;
    banc.liste.setEnabled(false);
    QTest::mouseClick(banc.liste.viewport(), Qt::LeftButton, {}, banc.Milieu(1));
    QCOMPARE(banc.presses.count(), 0);
    QCOMPARE(banc.clics.count(), 0);
}

void tst_DListViewClique::clavier()
{
    Banc banc;
    banc.liste.setCurrentRow(0);
    QTest::keyClick(&banc.liste, Qt::Key_Down);
    QCOMPARE(banc.liste.currentRow(), 1);
    QVERIFY(banc.liste.item(1)->isSelected());
    QTest::keyClick(&banc.liste, Qt::Key_End);
    QCOMPARE(banc.liste.currentRow(), 3);
    QTest::keyClick(&banc.liste, Qt::Key_Return);
    QCOMPARE(Banc::Rangees(banc.activations), Rangees{3});
    QCOMPARE(banc.presses.count(), 0);
    QCOMPARE(banc.clics.count(), 0);
}

void tst_DListViewClique::tabulation()
{
    QWidget fenetre;
    DListViewClique const liste(&fenetre);
    QListWidget const plain(&fenetre);
    QCOMPARE(liste.focusPolicy(), plain.focusPolicy());
    QCOMPARE(liste.tabKeyNavigation(), plain.tabKeyNavigation());
    QCOMPARE(liste.nextInFocusChain(), static_cast<QWidget const *>(liste.viewport()));
}

QTEST_MAIN(tst_DListViewClique)
#include "tst_DListViewClique.moc"
