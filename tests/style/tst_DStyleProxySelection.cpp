// tests/style/tst_DStyleProxySelection.cpp
#include "style/EssaisPeinture.h"

#include "foundation/ThemesQt.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

constexpr QRect kRect(10, 10, 60, 24);
constexpr QSize kTaille(80, 44);
constexpr QStyle::State kSelection = QStyle::State_Enabled | QStyle::State_Selected;
QColor const kAccentApplication(150, 0, 150);

QStyleOptionViewItem
DonneOption(QStyle::State etat,
            QStyleOptionViewItem::ViewItemPosition position = QStyleOptionViewItem::OnlyOne)
{
    QStyleOptionViewItem option;
    option.rect = kRect;
    option.state = etat;
    option.palette = DonnePaletteEssai();
    option.viewItemPosition = position;
    return option;
}

// The smallest rectangle around the opaque pixels.
QRect Marque(QImage const & image)
{
    QRect marque;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (Alpha(image, x, y) == 255)
                marque |= QRect(x, y, 1, 1);
        }
    }
    return marque;
}

} // namespace

// The panel behind an item, and the mark of accent on it.
class tst_DStyleProxySelection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();
    void tableauALaBase();
    void jamaisLaBaseAilleurs();
    void fondDeListe_data();
    void fondDeListe();
    void fondDuModele();
    void fondDuModeleSousLeVoile_data();
    void fondDuModeleSousLeVoile();
    void marquePosition_data();
    void marquePosition();
    void marquePlace_data();
    void marquePlace();
    void marqueCouleurs_data();
    void marqueCouleurs();
    void marqueSuitLeTheme();
    void selecteurSeul_data();
    void selecteurSeul();
    void optionDuMauvaisType();

private:
    QImage PeinsPanneau(QStyleOption const & option, QWidget const * widget) const;

    std::unique_ptr<BancStyle> monBanc;
};

void tst_DStyleProxySelection::initTestCase()
{
    QPalette palette = QApplication::palette();
    MetsAccent(palette, QPalette::Active, kAccentApplication);
    QApplication::setPalette(palette);
}

void tst_DStyleProxySelection::init()
{
    monBanc = std::make_unique<BancStyle>();
}

void tst_DStyleProxySelection::cleanup()
{
    monBanc.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DStyleProxySelection::cleanupTestCase()
{
    ThemesQt::DetruisToi();
}

QImage tst_DStyleProxySelection::PeinsPanneau(QStyleOption const & option,
                                              QWidget const * widget) const
{
    return Peins(kTaille, [&](QPainter & peintre) {
        monBanc->style.drawPrimitive(QStyle::PE_PanelItemViewItem, &option, &peintre, widget);
    });
}

void tst_DStyleProxySelection::tableauALaBase()
{
    QTableView vue;
    QTableWidget derivee;
    QStyleOptionViewItem const option = DonneOption(kSelection, QStyleOptionViewItem::Middle);

    QVERIFY(EstVide(PeinsPanneau(option, &vue)));
    QVERIFY(EstVide(PeinsPanneau(option, &derivee)));

    auto const appels =
        monBanc->espion->Donne(AppelStyle::kPrimitive, QStyle::PE_PanelItemViewItem);
    QCOMPARE(appels.size(), 2);
    QCOMPARE(appels.first().option.state, kSelection);
    QCOMPARE(appels.first().palette, option.palette);
}

void tst_DStyleProxySelection::jamaisLaBaseAilleurs()
{
    QListView liste;
    QTreeView arbre;
    QComboBox combo;
    for (QWidget const * vue :
         std::initializer_list<QWidget const *>{&liste, &arbre, combo.view()}) {
        PeinsPanneau(DonneOption(kSelection), vue);
        PeinsPanneau(DonneOption(QStyle::State_Enabled), vue);
    }

    QVERIFY(monBanc->espion->appels.isEmpty());
}

void tst_DStyleProxySelection::fondDeListe_data()
{
    QTest::addColumn<QStyle::State>("etat");
    QTest::addColumn<int>("alpha");
    QTest::newRow("normal") << QStyle::State(QStyle::State_Enabled) << 0;
    QTest::newRow("selected") << kSelection << 18;
    QTest::newRow("under the mouse")
        << QStyle::State(QStyle::State_Enabled | QStyle::State_MouseOver) << 18;
}

void tst_DStyleProxySelection::fondDeListe()
{
    QFETCH(QStyle::State, etat);
    QFETCH(int, alpha);
    QListView vue;

    QImage const image = PeinsPanneau(DonneOption(etat), &vue);

    QCOMPARE(image.pixelColor(kRect.center()), QColor(0, 0, 0, alpha));
    if (alpha > 0)
        QCOMPARE(Encre(image), kRect.adjusted(2, 2, -2, -2));
}

void tst_DStyleProxySelection::fondDuModele()
{
    QListView vue;
    QStyleOptionViewItem option = DonneOption(QStyle::State_Enabled);
    option.backgroundBrush = QColor(255, 255, 0);

    QImage const image = PeinsPanneau(option, &vue);

    QCOMPARE(image.pixelColor(kRect.center()), QColor(255, 255, 0));
    QCOMPARE(Encre(image), kRect);

    option.state = kSelection;
    QCOMPARE(PeinsPanneau(option, &vue).pixelColor(kRect.center()), QColor(0, 0, 0, 18));
}

void tst_DStyleProxySelection::fondDuModeleSousLeVoile_data()
{
    QTest::addColumn<bool>("liste");
    QTest::addColumn<QStyle::State>("etat");
    QTest::addColumn<QColor>("attendue");
    QColor const jauneVoile(237, 237, 0); // under black of alpha 18
    QStyle::State const survol = QStyle::State_Enabled | QStyle::State_MouseOver;
    QTest::newRow("tree, under the mouse") << false << survol << jauneVoile;
    QTest::newRow("tree, selected") << false << kSelection << QColor(0, 0, 0, 18);
    QTest::newRow("combo box, under the mouse") << true << survol << jauneVoile;
    QTest::newRow("combo box, selected") << true << kSelection << QColor(0, 0, 0, 18);
    QTest::newRow("tree, neither")
        << false << QStyle::State(QStyle::State_Enabled) << QColor(255, 255, 0);
}

// The base paints the panel after the row's background, and without the selection in the list of a
// combo box.
void tst_DStyleProxySelection::fondDuModeleSousLeVoile()
{
    QFETCH(bool, liste);
    QFETCH(QStyle::State, etat);
    QFETCH(QColor, attendue);
    DStyleProxy const style(QStyleFactory::create(u"Fusion"_s));
    QTreeView arbre;
    QComboBox combo;
    QStyleOptionViewItem option = DonneOption(etat);
    option.backgroundBrush = QColor(255, 255, 0);
    option.text.clear();

    QImage const image = Peins(kTaille, [&](QPainter & peintre) {
        style.drawControl(QStyle::CE_ItemViewItem, &option, &peintre,
                          liste ? static_cast<QWidget *>(combo.view()) : &arbre);
    });

    QCOMPARE(image.pixelColor(kRect.center()), attendue);
}

void tst_DStyleProxySelection::marquePosition_data()
{
    using Item = QStyleOptionViewItem;
    QTest::addColumn<Item::ViewItemPosition>("position");
    QTest::addColumn<QStyle::State>("etat");
    QTest::addColumn<bool>("marque");
    QTest::newRow("beginning") << Item::Beginning << kSelection << true;
    QTest::newRow("only one") << Item::OnlyOne << kSelection << true;
    QTest::newRow("middle") << Item::Middle << kSelection << false;
    QTest::newRow("end") << Item::End << kSelection << false;
    QTest::newRow("invalid") << Item::Invalid << kSelection << false;
    QTest::newRow("not selected") << Item::OnlyOne
                                  << QStyle::State(QStyle::State_Enabled | QStyle::State_MouseOver)
                                  << false;
}

void tst_DStyleProxySelection::marquePosition()
{
    QFETCH(QStyleOptionViewItem::ViewItemPosition, position);
    QFETCH(QStyle::State, etat);
    QFETCH(bool, marque);
    QListView liste;
    QTreeView arbre;

    for (QWidget const * vue :
         {static_cast<QWidget const *>(&liste), static_cast<QWidget const *>(&arbre)})
        QCOMPARE(!Marque(PeinsPanneau(DonneOption(etat, position), vue)).isEmpty(), marque);
}

void tst_DStyleProxySelection::marquePlace_data()
{
    QTest::addColumn<Qt::LayoutDirection>("sens");
    QTest::addColumn<QRect>("marque");
    // 2 in for the row, and 2 more under the top and over the bottom.
    QTest::newRow("left to right") << Qt::LeftToRight << QRect(12, 14, 2, 16);
    QTest::newRow("right to left") << Qt::RightToLeft << QRect(66, 14, 2, 16);
}

void tst_DStyleProxySelection::marquePlace()
{
    QFETCH(Qt::LayoutDirection, sens);
    QFETCH(QRect, marque);
    QTreeView vue;
    QStyleOptionViewItem option = DonneOption(kSelection);
    option.direction = sens;

    QImage const image = PeinsPanneau(option, &vue);

    QCOMPARE(Marque(image), marque);
    QCOMPARE(image.pixelColor(marque.center()), kAccentApplication);
}

void tst_DStyleProxySelection::marqueCouleurs_data()
{
    AjouteValeurs(kToutVrai);
}

void tst_DStyleProxySelection::marqueCouleurs()
{
    QFETCH(QVariant, valeur);
    QFETCH(bool, compte);
    QListView dictionnaires;
    QListView guides;
    dictionnaires.setProperty(DStyleProxy::DonneNomStyleSelecteurDictionnaires(), valeur);
    guides.setProperty(DStyleProxy::DonneNomStyleSelecteurGuides(), valeur);

    QImage const image = PeinsPanneau(DonneOption(kSelection), &dictionnaires);
    QImage const autre = PeinsPanneau(DonneOption(kSelection), &guides);

    QCOMPARE(image.pixelColor(12, 20), compte ? QColor(107, 190, 70) : kAccentApplication);
    QCOMPARE(autre.pixelColor(12, 20), compte ? QColor(251, 169, 24) : kAccentApplication);
}

void tst_DStyleProxySelection::marqueSuitLeTheme()
{
    QListView vue;
    vue.setProperty(DStyleProxy::DonneNomStyleSelecteurGuides(), true);
    ThemesQt::Instance()->AjouterVariable(u"couleurAccentGuides"_s, QColor(1, 2, 3));

    QImage const image = PeinsPanneau(DonneOption(kSelection), &vue);

    ThemesQt::Instance()->AjouterVariable(u"couleurAccentGuides"_s, QColor(251, 169, 24));
    QCOMPARE(image.pixelColor(12, 20), QColor(1, 2, 3));
}

void tst_DStyleProxySelection::selecteurSeul_data()
{
    QTest::addColumn<Qt::LayoutDirection>("sens");
    QTest::addColumn<QRect>("attendu");
    QTest::newRow("left to right") << Qt::LeftToRight << QRect(10, 12, 2, 20);
    QTest::newRow("right to left") << Qt::RightToLeft << QRect(68, 12, 2, 20);
}

void tst_DStyleProxySelection::selecteurSeul()
{
    QFETCH(Qt::LayoutDirection, sens);
    QFETCH(QRect, attendu);
    QListView vue;
    QStyleOptionViewItem option = DonneOption(QStyle::State_Enabled);
    option.direction = sens;
    option.palette.setCurrentColorGroup(QPalette::Inactive);

    for (QWidget const * widget :
         {static_cast<QWidget const *>(&vue), static_cast<QWidget const *>(nullptr)}) {
        QImage const image = Peins(kTaille, [&](QPainter & peintre) {
            DStyleProxy::DessineSelecteurAccentListe(&peintre, option, widget, QColor(9, 8, 7));
        });
        QCOMPARE(Encre(image), attendu);
        QCOMPARE(Couverture(image, attendu), 40.0); // no soft edge
        QCOMPARE(image.pixelColor(attendu.center()), QColor(9, 8, 7));
    }
    QCOMPARE(option.palette.currentColorGroup(), QPalette::Inactive);
}

void tst_DStyleProxySelection::optionDuMauvaisType()
{
    QListView vue;
    QStyleOption option;
    option.rect = kRect;
    option.state = kSelection;

    QVERIFY(EstVide(PeinsPanneau(option, &vue)));

    QCOMPARE(monBanc->espion->Donne(AppelStyle::kPrimitive).size(), 1);
}

QTEST_MAIN(tst_DStyleProxySelection)
#include "tst_DStyleProxySelection.moc"
