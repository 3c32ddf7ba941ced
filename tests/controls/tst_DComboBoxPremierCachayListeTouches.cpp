// tests/controls/tst_DComboBoxPremierCachayListeTouches.cpp
#include "controls/EssaisPremierCachay.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace EssaisPremierCachay;

class tst_DComboBoxPremierCachayListeTouches : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void touches_data();
    void touches();
    void pages_data();
    void pages();
    void lettres_data();
    void lettres();
    void lettresEtEspace();
    void espaceCoche_data();
    void espaceCoche();
    void espaceSansCase();
    void arbreDeplie();
    void plusEtMoinsDeplient();
    void lignesCacheesParLHote();
};

void tst_DComboBoxPremierCachayListeTouches::init()
{
    QApplication::setKeyboardInputInterval(0);
}

void tst_DComboBoxPremierCachayListeTouches::cleanup()
{
    QApplication::setKeyboardInputInterval(-1); // as the platform has it
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DComboBoxPremierCachayListeTouches::touches_data()
{
    QTest::addColumn<QString>("genre");
    QTest::addColumn<int>("depart");
    QTest::addColumn<QList<int>>("desactives");
    QTest::addColumn<Qt::Key>("touche");
    QTest::addColumn<int>("arrivee");
    struct Cas
    {
        char const * nom;
        int depart;
        QList<int> desactives;
        Qt::Key touche;
        int arrivee;
    };
    QList<Cas> const cas = {
        {"home from none", -1, {}, Qt::Key_Home, 1},
        {"down from the hidden one", 0, {}, Qt::Key_Down, 1},
        {"home from the hidden one", 0, {}, Qt::Key_Home, 1},
        {"up from 1", 1, {}, Qt::Key_Up, 1},
        {"home from 1", 1, {}, Qt::Key_Home, 1},
        {"home from 4", 4, {}, Qt::Key_Home, 1},
        {"page up from 1", 1, {}, Qt::Key_PageUp, 1},
        {"page up from 4", 4, {}, Qt::Key_PageUp, 1},
        {"page down from 1", 1, {}, Qt::Key_PageDown, 4},
        {"end from 1", 1, {}, Qt::Key_End, 4},
        {"up before a disabled one", 2, {1}, Qt::Key_Up, 2},
        {"up from 3", 3, {}, Qt::Key_Up, 2},
    };
    for (QString const & genre : {u""_s, u"tree"_s, u"table"_s})
        for (Cas const & c : cas)
            QTest::addRow("%s %s", qPrintable(genre), c.nom)
                << genre << c.depart << c.desactives << c.touche << c.arrivee;
    QTest::newRow("list home before a disabled one")
        << u"list"_s << 4 << QList<int>{1} << Qt::Key_Home << 2;
}

void tst_DComboBoxPremierCachayListeTouches::touches()
{
    QFETCH(QString, genre);
    QFETCH(int, depart);
    QFETCH(QList<int>, desactives);
    QFETCH(Qt::Key, touche);
    QFETCH(int, arrivee);
    DComboBox combo;
    Prepare(combo, genre);
    for (int const ligne : desactives)
        Desactive(combo, ligne);
    combo.setCurrentIndex(depart);
    combo.showPopup();
    if ((genre == "table"_L1) && (touche == Qt::Key_Home || touche == Qt::Key_End)) {
        // In a table these keys go along the row.
        QTest::keyClick(combo.view(), touche);
        QVERIFY(combo.view()->currentIndex().row() != 0);
        combo.hidePopup();
        return;
    }

    QTest::keyClick(combo.view(), touche);
    QCOMPARE(combo.view()->currentIndex().row(), arrivee);
    QSignalSpy espion(&combo, &QComboBox::activated);
    QTest::keyClick(combo.view(), Qt::Key_Return);
    QCOMPARE(espion.count(), 1);
    QCOMPARE(combo.currentIndex(), arrivee);
    QVERIFY(!combo.view()->isVisible());
}

void tst_DComboBoxPremierCachayListeTouches::pages_data()
{
    Genres();
}

void tst_DComboBoxPremierCachayListeTouches::pages()
{
    QFETCH(QString, genre);
    DComboBox combo;
    Prepare(combo, genre);
    for (int i = 0; i < 60; ++i)
        combo.addItem(QString::number(i));
    combo.setCurrentIndex(combo.count() - 1);
    combo.showPopup();
    QAbstractItemView * const vue = combo.view();
    for (int i = 0; i < 20; ++i) {
        QTest::keyClick(vue, Qt::Key_PageUp);
        QVERIFY(vue->currentIndex().row() > 0);
    }
    QCOMPARE(vue->currentIndex().row(), 1);
    for (int i = 0; i < 20; ++i)
        QTest::keyClick(vue, Qt::Key_PageDown);
    QCOMPARE(vue->currentIndex().row(), combo.count() - 1);
    combo.hidePopup();
}

void tst_DComboBoxPremierCachayListeTouches::lettres_data()
{
    Genres();
}

void tst_DComboBoxPremierCachayListeTouches::lettres()
{
    QFETCH(QString, genre);
    DComboBox combo;
    Prepare(combo, genre);
    combo.showPopup();
    QAbstractItemView * const vue = combo.view();
    QTest::keyClick(vue, Qt::Key_A);
    QCOMPARE(vue->currentIndex().row(), 1);
    QTest::keyClick(vue, Qt::Key_A);
    QCOMPARE(vue->currentIndex().row(), 1);
    QTest::keyClick(vue, Qt::Key_C);
    QCOMPARE(vue->currentIndex().row(), 3);
    QVERIFY(vue->selectionModel()->isSelected(vue->currentIndex()));
    QTest::keyClick(vue, Qt::Key_A);
    QCOMPARE(vue->currentIndex().row(), 1);
    QTest::keyClick(vue, Qt::Key_D, Qt::ControlModifier); // no letter
    QCOMPARE(vue->currentIndex().row(), 1);
    QCOMPARE(combo.currentIndex(), 0); // nothing is chosen yet
    QTest::keyClick(vue, Qt::Key_Escape);
    QVERIFY(!vue->isVisible());
    QCOMPARE(combo.currentIndex(), 0);
}

void tst_DComboBoxPremierCachayListeTouches::lettresEtEspace()
{
    QApplication::setKeyboardInputInterval(60000);
    DComboBox combo;
    combo.addItems({u"la"_s, u"la fin"_s, u"lac"_s});
    combo.CachePremierElement();
    combo.show();
    combo.showPopup();
    QTest::keyClicks(combo.view(), u"lac"_s);
    QCOMPARE(combo.view()->currentIndex().row(), 2);
    combo.hidePopup();

    combo.setItemText(2, u"la paix"_s);
    QApplication::setKeyboardInputInterval(0); // begins anew
    combo.showPopup();
    QTest::keyClick(combo.view(), Qt::Key_L);
    QApplication::setKeyboardInputInterval(60000);
    QTest::keyClicks(combo.view(), u"a p"_s);
    QCOMPARE(combo.view()->currentIndex().row(), 2);
    combo.hidePopup();
}

void tst_DComboBoxPremierCachayListeTouches::espaceCoche_data()
{
    Genres();
}

void tst_DComboBoxPremierCachayListeTouches::espaceCoche()
{
    QFETCH(QString, genre);
    DComboBox combo;
    Prepare(combo, genre);
    auto * const modele = qobject_cast<QStandardItemModel *>(combo.model());
    for (int i = 0; i < combo.count(); ++i)
        modele->item(i)->setCheckable(true);
    combo.setCurrentIndex(2);
    combo.showPopup();
    for (Qt::CheckState const etat : {Qt::Checked, Qt::Unchecked}) {
        QTest::keyClick(combo.view(), Qt::Key_Space);
        QCOMPARE(modele->item(2)->checkState(), etat);
        QCOMPARE(combo.view()->currentIndex().row(), 2);
    }
    QCOMPARE(modele->item(0)->checkState(), Qt::Unchecked);
    combo.hidePopup();
}

// The view would then look for a text that begins with a space, hidden or not.
void tst_DComboBoxPremierCachayListeTouches::espaceSansCase()
{
    DComboBox combo;
    Prepare(combo, {});
    combo.setItemText(0, u" aucun"_s);
    auto * const modele = qobject_cast<QStandardItemModel *>(combo.model());
    modele->item(2)->setFlags(modele->item(2)->flags() | Qt::ItemIsUserCheckable); // and no state
    combo.setCurrentIndex(2);
    combo.showPopup();
    QTest::keyClick(combo.view(), Qt::Key_Space);
    QCOMPARE(combo.view()->currentIndex().row(), 2);
    combo.hidePopup();
}

void tst_DComboBoxPremierCachayListeTouches::arbreDeplie()
{
    QStandardItemModel modele;
    for (QString const & texte : {u"premier"_s, u"racine"_s, u"autre"_s}) {
        auto * const parent = new QStandardItem(texte);
        parent->appendRow(new QStandardItem(u"enfant de "_s + texte));
        modele.appendRow(parent);
    }
    DComboBox combo;
    combo.setModel(&modele);
    auto * const arbre = new QTreeView;
    combo.setView(arbre);
    combo.CachePremierElement();
    arbre->expandAll();
    combo.setCurrentIndex(1);
    combo.show();
    combo.showPopup();
    auto const enfant = [&](int ligne) { return modele.index(0, 0, modele.index(ligne, 0)); };
    QVERIFY(arbre->visualRect(enfant(1)).height() > 0); // the first child of another row stays
    QCOMPARE(arbre->visualRect(enfant(0)).height(), 0);
    QTest::keyClick(arbre, Qt::Key_E);
    QCOMPARE(arbre->currentIndex(), enfant(1));
    QTest::keyClick(arbre, Qt::Key_E);
    QCOMPARE(arbre->currentIndex(), enfant(2));
    QTest::keyClick(arbre, Qt::Key_E);
    QCOMPARE(arbre->currentIndex(), enfant(1));
    combo.hidePopup();
}

void tst_DComboBoxPremierCachayListeTouches::plusEtMoinsDeplient()
{
    QStandardItemModel modele;
    for (QString const & texte : {u"- aucun -"_s, u"racine"_s, u"-1"_s})
        modele.appendRow(new QStandardItem(texte));
    auto * const enfant = new QStandardItem(u"enfant"_s);
    modele.item(1)->appendRow(enfant);
    enfant->appendRow(new QStandardItem(u"petit-enfant"_s));
    DComboBox combo;
    combo.setModel(&modele);
    auto * const arbre = new QTreeView;
    combo.setView(arbre);
    combo.CachePremierElement();
    combo.setCurrentIndex(1);
    combo.show();
    combo.showPopup();
    QModelIndex const racine = modele.index(1, 0);
    QTest::keyClick(arbre, Qt::Key_Plus);
    QVERIFY(arbre->isExpanded(racine));
    QVERIFY(!arbre->isExpanded(enfant->index()));
    QTest::keyClick(arbre, Qt::Key_Asterisk);
    QVERIFY(arbre->isExpanded(enfant->index()));
    QCOMPARE(arbre->currentIndex(), racine);
    QTest::keyClick(arbre, Qt::Key_Minus);
    QVERIFY(!arbre->isExpanded(racine));
    QCOMPARE(arbre->currentIndex().row(), 2); // it is a letter as well

    arbre->setCurrentIndex(racine);
    arbre->setItemsExpandable(false);
    QTest::keyClick(arbre, Qt::Key_Plus);
    QVERIFY(!arbre->isExpanded(racine));
    arbre->selectionModel()->clear();
    QTest::keyClick(arbre, Qt::Key_Plus); // there is nothing to expand
    QVERIFY(!arbre->currentIndex().isValid());
    combo.hidePopup();
}

void tst_DComboBoxPremierCachayListeTouches::lignesCacheesParLHote()
{
    DComboBox combo;
    Prepare(combo, {});
    qobject_cast<QListView *>(combo.view())->setRowHidden(1, true);
    combo.setCurrentIndex(4);
    combo.showPopup();
    QCOMPARE(DonneLignesVisibles(combo), QList<int>({2, 3, 4}));
    QTest::keyClick(combo.view(), Qt::Key_Home);
    QCOMPARE(combo.view()->currentIndex().row(), 2);
    QTest::keyClick(combo.view(), Qt::Key_A);
    QCOMPARE(combo.view()->currentIndex().row(), 2);
    combo.hidePopup();
}

QTEST_MAIN(tst_DComboBoxPremierCachayListeTouches)
#include "tst_DComboBoxPremierCachayListeTouches.moc"
