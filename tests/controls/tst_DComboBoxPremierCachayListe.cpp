// tests/controls/tst_DComboBoxPremierCachayListe.cpp
#include "controls/DComboBox.h"

#include "controls/StyleTemoin.h"

#include <QHeaderView>
#include <QListView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QStringListModel>
#include <QTableView>
#include <QTreeView>
#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;

// The list of a combo box whose first item is hidden.

namespace {

QStringList const & DonneTextes()
{
    static QStringList const textes = {u"abricot"_s, u"avocat"_s, u"banane"_s, u"cerise"_s,
                                       u"datte"_s};
    return textes;
}

QAbstractItemView * CreeVue(QString const & genre)
{
    if (genre == "tree"_L1) {
        auto * const arbre = new QTreeView;
        arbre->setHeaderHidden(true);
        return arbre;
    }
    if (genre == "table"_L1) {
        auto * const table = new QTableView;
        table->horizontalHeader()->hide();
        table->verticalHeader()->hide();
        return table;
    }
    return genre == "list"_L1 ? new QListView : nullptr;
}

int DonneHauteur(QComboBox const & combo, int ligne)
{
    QModelIndex const index =
        combo.model()->index(ligne, combo.modelColumn(), combo.rootModelIndex());
    return combo.view()->visualRect(index).height();
}

QList<int> DonneLignesVisibles(QComboBox const & combo)
{
    QList<int> lignes;
    for (int i = 0; i < combo.count(); ++i)
        if (DonneHauteur(combo, i) > 0)
            lignes << i;
    return lignes;
}

// Every row that a point of the list belongs to.
QSet<int> DonneLignesSousLaSouris(QAbstractItemView const & vue)
{
    QSet<int> lignes;
    for (int y = 0; y < vue.viewport()->height(); ++y)
        if (QModelIndex const index = vue.indexAt(QPoint(2, y)); index.isValid())
            lignes << index.row();
    return lignes;
}

} // namespace

class tst_DComboBoxPremierCachayListe : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void sansPlace_data();
    void sansPlace();
    void nombreDeLignes_data();
    void nombreDeLignes();
    void espacement_data();
    void espacement();
    void listeAuDessus();
    void espacementEnMenu();
    void touches_data();
    void touches();
    void pages_data();
    void pages();
    void lettres_data();
    void lettres();
    void lettresEtEspace();
    void souris_data();
    void souris();
    void sourisPartout();
    void courantCachay_data();
    void courantCachay();
    void courantCachayDefile();
    void courantOrdinaire();
    void modeleChangeOuvert_data();
    void modeleChangeOuvert();
    void lignesDeplacees();
    void remplacements_data();
    void remplacements();
    void racineEtColonne();
    void arbreDeplie();
    void deleguayRemplacay_data();
    void deleguayRemplacay();
    void lignesCacheesParLHote();
    void dessineRienDuCachay();

private:
    void Prepare(QComboBox & combo, QString const & genre);
    static void Genres();

    StyleTemoin monStyle;
};

void tst_DComboBoxPremierCachayListe::init()
{
    QApplication::setKeyboardInputInterval(0);
}

void tst_DComboBoxPremierCachayListe::cleanup()
{
    QApplication::setKeyboardInputInterval(-1); // as the platform has it
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DComboBoxPremierCachayListe::Genres()
{
    QTest::addColumn<QString>("genre");
    QTest::newRow("own view") << u""_s;
    QTest::newRow("list") << u"list"_s;
    QTest::newRow("tree") << u"tree"_s;
    QTest::newRow("table") << u"table"_s;
}

void tst_DComboBoxPremierCachayListe::Prepare(QComboBox & combo, QString const & genre)
{
    combo.setStyle(&monStyle);
    combo.addItems(DonneTextes());
    if (QAbstractItemView * const vue = CreeVue(genre))
        static_cast<DComboBox &>(combo).setView(vue);
    static_cast<DComboBox &>(combo).CachePremierElement();
    combo.show();
}

void tst_DComboBoxPremierCachayListe::sansPlace_data()
{
    Genres();
}

void tst_DComboBoxPremierCachayListe::sansPlace()
{
    QFETCH(QString, genre);
    DComboBox combo;
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
}

void tst_DComboBoxPremierCachayListe::nombreDeLignes()
{
    QFETCH(int, maximum);
    QFETCH(QSet<int>, visibles);
    DComboBox combo;
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
    Prepare(combo, {});
    combo.setCurrentIndex(0);
    combo.showPopup();
    QCOMPARE(DonneLignesVisibles(combo), QList<int>({1, 2, 3, 4}));
    QVERIFY(combo.screen()->availableGeometry().contains(
        combo.view()->parentWidget()->frameGeometry()));
    combo.hidePopup();
}

void tst_DComboBoxPremierCachayListe::touches_data()
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

void tst_DComboBoxPremierCachayListe::touches()
{
    QFETCH(QString, genre);
    QFETCH(int, depart);
    QFETCH(QList<int>, desactives);
    QFETCH(Qt::Key, touche);
    QFETCH(int, arrivee);
    DComboBox combo;
    Prepare(combo, genre);
    for (int const ligne : desactives)
        qobject_cast<QStandardItemModel *>(combo.model())->item(ligne)->setEnabled(false);
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

void tst_DComboBoxPremierCachayListe::pages_data()
{
    Genres();
}

void tst_DComboBoxPremierCachayListe::pages()
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

void tst_DComboBoxPremierCachayListe::lettres_data()
{
    Genres();
}

void tst_DComboBoxPremierCachayListe::lettres()
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

void tst_DComboBoxPremierCachayListe::lettresEtEspace()
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

void tst_DComboBoxPremierCachayListe::souris_data()
{
    Genres();
}

void tst_DComboBoxPremierCachayListe::souris()
{
    QFETCH(QString, genre);
    DComboBox combo;
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

void tst_DComboBoxPremierCachayListe::modeleChangeOuvert_data()
{
    Genres();
}

void tst_DComboBoxPremierCachayListe::modeleChangeOuvert()
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

void tst_DComboBoxPremierCachayListe::lignesDeplacees()
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

void tst_DComboBoxPremierCachayListe::remplacements_data()
{
    Genres();
}

void tst_DComboBoxPremierCachayListe::remplacements()
{
    QFETCH(QString, genre);
    QStringListModel modele({u"x"_s, u"y"_s, u"z"_s});
    DComboBox combo;
    Prepare(combo, {});
    combo.setModel(&modele);
    combo.showPopup();
    QCOMPARE(DonneLignesVisibles(combo), QList<int>({1, 2}));
    combo.hidePopup();
    if (QAbstractItemView * const vue = CreeVue(genre))
        combo.setView(vue);
    combo.showPopup();
    QCOMPARE(DonneLignesVisibles(combo), QList<int>({1, 2}));
    modele.insertRow(0);
    QCOMPARE(DonneLignesVisibles(combo), QList<int>({1, 2, 3}));
    combo.hidePopup();
}

void tst_DComboBoxPremierCachayListe::racineEtColonne()
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
    combo.setRootModelIndex({});
    combo.setCurrentIndex(1);
    combo.showPopup();
    QVERIFY(!qobject_cast<QListView *>(combo.view())->isRowHidden(1));
    combo.hidePopup();
}

void tst_DComboBoxPremierCachayListe::arbreDeplie()
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

void tst_DComboBoxPremierCachayListe::deleguayRemplacay_data()
{
    Genres();
}

void tst_DComboBoxPremierCachayListe::deleguayRemplacay()
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

void tst_DComboBoxPremierCachayListe::lignesCacheesParLHote()
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

void tst_DComboBoxPremierCachayListe::dessineRienDuCachay()
{
    DComboBox combo;
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
