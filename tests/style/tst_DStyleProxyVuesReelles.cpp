// tests/style/tst_DStyleProxyVuesReelles.cpp
#include "style/EssaisPeinture.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kTaille(240, 120);
constexpr QColor kTexte(1, 2, 130);
constexpr QColor kEnValeur(250, 200, 10);

QPixmap DonneImage()
{
    QPixmap image(16, 16);
    image.fill(Qt::blue);
    return image;
}

QFont DonneFont()
{
    QFont font;
    font.setPixelSize(30); // strokes wider than a pixel
    font.setBold(true);
    return font;
}

int Compte(QImage const & image, QColor const & couleur)
{
    int compte = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            compte += image.pixelColor(x, y) == couleur ? 1 : 0;
    }
    return compte;
}

QImage PeinsVue(QAbstractItemView & vue)
{
    vue.resize(kTaille);
    QImage image(kTaille, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    vue.render(&image);
    return image;
}

} // namespace

// Whole views, drawn by the style on Fusion.
class tst_DStyleProxyVuesReelles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void rectangleDuTexte_data();
    void rectangleDuTexte();
    void cellule_data();
    void cellule();
    void selectionLisible_data();
    void selectionLisible();

private:
    std::unique_ptr<DStyleProxy> monStyle;
};

void tst_DStyleProxyVuesReelles::init()
{
    monStyle = std::make_unique<DStyleProxy>(QStyleFactory::create(u"Fusion"_s));
}

void tst_DStyleProxyVuesReelles::cleanup()
{
    monStyle.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DStyleProxyVuesReelles::rectangleDuTexte_data()
{
    using Item = QStyleOptionViewItem;
    QTest::addColumn<int>("caracteristiques");
    QTest::newRow("text") << int(Item::HasDisplay);
    QTest::newRow("picture") << int(Item::HasDisplay | Item::HasDecoration);
    QTest::newRow("check") << int(Item::HasDisplay | Item::HasCheckIndicator);
    QTest::newRow("both") << int(Item::HasDisplay | Item::HasDecoration | Item::HasCheckIndicator);
}

// To whom asks, the text of a table's cell begins where the cell does; it ends where the base says.
void tst_DStyleProxyVuesReelles::rectangleDuTexte()
{
    QFETCH(int, caracteristiques);
    QTableWidget table(1, 1);
    QListWidget liste;
    QStyleOptionViewItem option;
    option.rect = QRect(10, 20, 150, 40);
    option.text = u"Mot"_s;
    option.icon = DonneImage();
    option.decorationSize = QSize(16, 16);
    option.features = QStyleOptionViewItem::ViewItemFeatures(caracteristiques);
    auto const texte = [&option](QStyle const & style, QWidget const & vue) {
        return style.subElementRect(QStyle::SE_ItemViewItemText, &option, &vue);
    };
    QRect attendu = texte(*monStyle->baseStyle(), table);
    bool const decale = caracteristiques != int(QStyleOptionViewItem::HasDisplay);
    QCOMPARE(attendu.left() > 20, decale);
    QCOMPARE(texte(*monStyle, liste), attendu);

    attendu.setLeft(10);
    QCOMPARE(texte(*monStyle, table), attendu);
    // Also after a cell was drawn.
    table.setItem(0, 0, new QTableWidgetItem(QIcon(DonneImage()), u"Mot"_s));
    table.setStyle(monStyle.get());
    PeinsVue(table);
    QCOMPARE(texte(*monStyle, table), attendu);
    table.setStyle(nullptr);
}

void tst_DStyleProxyVuesReelles::cellule_data()
{
    QTest::addColumn<bool>("image");
    QTest::addColumn<bool>("coche");
    QTest::addColumn<Qt::LayoutDirection>("sens");
    QTest::addColumn<bool>("deStyle");
    for (bool const deStyle : {false, true}) {
        for (auto const sens : {Qt::LeftToRight, Qt::RightToLeft}) {
            QByteArray const suite = QByteArray(sens == Qt::RightToLeft ? ", right to left" : "") +
                                     (deStyle ? ", DStyleProxy" : "");
            QTest::addRow("text%s", suite.data()) << false << false << sens << deStyle;
            QTest::addRow("picture%s", suite.data()) << true << false << sens << deStyle;
            QTest::addRow("check%s", suite.data()) << false << true << sens << deStyle;
            QTest::addRow("both%s", suite.data()) << true << true << sens << deStyle;
        }
    }
}

// What is in front of the text looks as it does without one.
void tst_DStyleProxyVuesReelles::cellule()
{
    QFETCH(bool, image);
    QFETCH(bool, coche);
    QFETCH(Qt::LayoutDirection, sens);
    QFETCH(bool, deStyle);
    QTableWidget table(1, 1);
    table.setProperty(DStyleProxy::DonneNomAttributPourStyle(), deStyle);
    table.setStyle(monStyle.get());
    table.setLayoutDirection(sens);
    table.setIconSize(QSize(16, 16));
    table.horizontalHeader()->hide();
    table.verticalHeader()->hide();
    table.setColumnWidth(0, 200);
    table.setRowHeight(0, 60);
    auto * const item = new QTableWidgetItem;
    item->setForeground(Qt::red);
    item->setFont(DonneFont());
    if (image)
        item->setIcon(DonneImage());
    if (coche)
        item->setCheckState(Qt::Checked);
    table.setItem(0, 0, item);
    item->setText(u" "_s); // a check without any text has another place
    QImage const sans = PeinsVue(table);
    item->setText(u"IIII"_s);
    QImage const avec = PeinsVue(table);
    table.setStyle(nullptr);

    QCOMPARE(Compte(sans, Qt::blue), image ? 16 * 16 : 0);
    QCOMPARE(Compte(avec, Qt::blue), Compte(sans, Qt::blue));
    QRect const rouge = Etendue(avec, Qt::red);
    QVERIFY(!rouge.isEmpty());
    // All that the text has changed begins at one side of what is in front of it.
    int const bord = sens == Qt::LeftToRight ? rouge.left() : rouge.right();
    for (int y = 0; y < avec.height(); ++y) {
        for (int x = 0; x < avec.width(); ++x) {
            bool const devant = sens == Qt::LeftToRight ? x < bord - 2 : x > bord + 2;
            if (devant)
                QCOMPARE(avec.pixelColor(x, y), sans.pixelColor(x, y));
            else if (sans.pixelColor(x, y) == QColor(Qt::blue))
                QFAIL("The text covers the picture");
        }
    }
}

void tst_DStyleProxyVuesReelles::selectionLisible_data()
{
    QTest::addColumn<int>("genre");
    QTest::addColumn<bool>("deStyle");
    for (bool const deStyle : {false, true}) {
        char const * const suite = deStyle ? ", of the style" : "";
        QTest::addRow("list%s", suite) << 0 << deStyle;
        QTest::addRow("tree%s", suite) << 1 << deStyle;
        QTest::addRow("table%s", suite) << 2 << deStyle;
    }
}

// On a pale overlay in lists and trees, on the colour of the selection in tables.
void tst_DStyleProxyVuesReelles::selectionLisible()
{
    QFETCH(int, genre);
    QFETCH(bool, deStyle);
    QListView liste;
    QTreeView arbre;
    QTableView table;
    QList<QAbstractItemView *> const vues = {&liste, &arbre, &table};
    QAbstractItemView & vue = *vues.at(genre);
    arbre.setHeaderHidden(true);
    QStandardItemModel modele(1, 1);
    modele.setData(modele.index(0, 0), u"IIII"_s);
    modele.setData(modele.index(0, 0), DonneFont(), Qt::FontRole);
    table.setModel(&modele);
    table.setRowHeight(0, 60);
    QPalette palette = DonnePaletteEssai();
    palette.setColor(QPalette::All, QPalette::Base, Qt::white);
    palette.setColor(QPalette::All, QPalette::Text, kTexte);
    palette.setColor(QPalette::All, QPalette::HighlightedText, kEnValeur);
    vue.setPalette(palette);
    vue.setStyle(monStyle.get());
    vue.setProperty(DStyleProxy::DonneNomAttributPourStyle(), deStyle);
    vue.setModel(&modele);
    QCOMPARE_GT(Compte(PeinsVue(vue), kTexte), 10);
    vue.selectionModel()->select(modele.index(0, 0), QItemSelectionModel::ClearAndSelect);

    QImage const image = PeinsVue(vue);
    vue.setStyle(nullptr);

    bool const estTable = genre == 2;
    QCOMPARE_GT(Compte(image, estTable ? kEnValeur : kTexte), 10);
    QCOMPARE(Compte(image, estTable ? kTexte : kEnValeur), 0);
}

QTEST_MAIN(tst_DStyleProxyVuesReelles)
#include "tst_DStyleProxyVuesReelles.moc"
