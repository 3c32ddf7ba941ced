// tests/style/tst_DStyleProxyVues.cpp
#include "style/EssaisPeinture.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

constexpr QRect kRect(10, 10, 60, 24);
constexpr QSize kTaille(80, 44);
constexpr int kAlphaFond = 18;
constexpr QStyle::State kSurvol = QStyle::State_Enabled | QStyle::State_MouseOver;

QStyleOptionViewItem
DonneOption(QStyle::State etat,
            QStyleOptionViewItem::ViewItemPosition position = QStyleOptionViewItem::OnlyOne)
{
    QStyleOptionViewItem option;
    option.rect = kRect;
    option.state = etat;
    option.palette = DonnePaletteEssai();
    option.text = u"Rangée"_s;
    option.features = QStyleOptionViewItem::HasDisplay;
    option.viewItemPosition = position;
    return option;
}

} // namespace

// The items of views: the element CE_ItemViewItem.
class tst_DStyleProxyVues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void lissage();
    void fondSelonEtat_data();
    void fondSelonEtat();
    void fondArbresSeulement();
    void fondUneSeuleFois();
    void texteLisible();
    void fondForme_data();
    void fondForme();
    void fondSeparateur_data();
    void fondSeparateur();
    void widgetDeStyleSansFond();
    void listeDeCombo_data();
    void listeDeCombo();
    void listeDeComboNonSelectionnee();
    void ligneDePanneau();
    void ligneDePanneauDeTableau();
    void optionDuMauvaisType();

private:
    QImage PeinsItem(QStyleOption const & option, QWidget const * widget) const;

    std::unique_ptr<BancStyle> monBanc;
};

void tst_DStyleProxyVues::init()
{
    monBanc = std::make_unique<BancStyle>();
}

void tst_DStyleProxyVues::cleanup()
{
    monBanc.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

QImage tst_DStyleProxyVues::PeinsItem(QStyleOption const & option, QWidget const * widget) const
{
    return Peins(kTaille, [&](QPainter & peintre) {
        monBanc->style.drawControl(QStyle::CE_ItemViewItem, &option, &peintre, widget);
        if (peintre.testRenderHint(QPainter::Antialiasing))
            QTest::qFail("The painter is left with antialiasing", __FILE__, __LINE__);
    });
}

void tst_DStyleProxyVues::lissage()
{
    QListView vue;

    PeinsItem(DonneOption(QStyle::State_Enabled), &vue);
    PeinsItem(DonneOption(QStyle::State_Enabled), nullptr);

    auto const appels = monBanc->espion->Donne(AppelStyle::kControle, QStyle::CE_ItemViewItem);
    QCOMPARE(appels.size(), 2);
    QVERIFY(appels.at(0).indices.testFlag(QPainter::Antialiasing));
    QVERIFY(appels.at(1).indices.testFlag(QPainter::Antialiasing));
    QCOMPARE(appels.at(0).texte, u"Rangée"_s);
}

void tst_DStyleProxyVues::fondSelonEtat_data()
{
    QTest::addColumn<QStyle::State>("etat");
    QTest::addColumn<bool>("fond");
    QTest::newRow("normal") << QStyle::State(QStyle::State_Enabled) << false;
    QTest::newRow("focused") << QStyle::State(QStyle::State_Enabled | QStyle::State_HasFocus)
                             << false;
    QTest::newRow("selected") << QStyle::State(QStyle::State_Enabled | QStyle::State_Selected)
                              << true;
    QTest::newRow("under the mouse") << kSurvol << true;
    QTest::newRow("selected under the mouse")
        << QStyle::State(kSurvol | QStyle::State_Selected) << true;
}

void tst_DStyleProxyVues::fondSelonEtat()
{
    QFETCH(QStyle::State, etat);
    QFETCH(bool, fond);
    QTreeView vue;
    QTreeWidget derivee;

    for (QWidget const * widget :
         {static_cast<QWidget const *>(&vue), static_cast<QWidget const *>(&derivee)}) {
        QImage const image = PeinsItem(DonneOption(etat), widget);
        QCOMPARE(image.pixelColor(kRect.center()), QColor(0, 0, 0, fond ? kAlphaFond : 0));
    }

    QCOMPARE(monBanc->espion->Donne(AppelStyle::kControle, QStyle::CE_ItemViewItem).size(), 2);
}

// Lists have it from the panel that the base asks for, tables from the base itself.
void tst_DStyleProxyVues::fondArbresSeulement()
{
    QListView liste;
    QTableView tableau;
    QTableWidget derivee;
    QStyleOptionViewItem const option = DonneOption(kSurvol | QStyle::State_Selected);

    QVERIFY(EstVide(PeinsItem(option, &liste)));
    QVERIFY(EstVide(PeinsItem(option, &tableau)));
    QVERIFY(EstVide(PeinsItem(option, &derivee)));

    auto const appels = monBanc->espion->Donne(AppelStyle::kControle, QStyle::CE_ItemViewItem);
    QCOMPARE(appels.size(), 3);
    QCOMPARE(appels.first().option.state, option.state);
    QCOMPARE(appels.last().palette, option.palette);
}

// The base asks for the panel of the item while it draws it.
void tst_DStyleProxyVues::fondUneSeuleFois()
{
    monBanc = std::make_unique<BancStyle>(StyleEspion::kDessine);
    QTreeView arbre;
    QListView liste;
    QStyleOptionViewItem option = DonneOption(kSurvol | QStyle::State_Selected);
    option.text.clear();
    for (QWidget const * vue :
         {static_cast<QWidget const *>(&arbre), static_cast<QWidget const *>(&liste)}) {
        QImage const image = PeinsItem(option, vue);
        QCOMPARE(image.pixelColor(kRect.center()), QColor(0, 0, 0, kAlphaFond));
        QCOMPARE(image.pixelColor(12, kRect.center().y()).alpha(), 255); // the mark
    }
    QVERIFY(monBanc->espion->Donne(AppelStyle::kPrimitive, QStyle::PE_PanelItemViewItem).isEmpty());
}

// The highlighted text is made for the colour of the selection, which isn't painted here.
void tst_DStyleProxyVues::texteLisible()
{
    QTreeView arbre;
    QStyleOptionViewItem option = DonneOption(QStyle::State_Enabled | QStyle::State_Selected);
    option.palette.setColor(QPalette::All, QPalette::Text, QColor(1, 2, 3));
    option.palette.setColor(QPalette::All, QPalette::HighlightedText, Qt::white);

    PeinsItem(option, &arbre);

    auto const appels = monBanc->espion->Donne(AppelStyle::kControle, QStyle::CE_ItemViewItem);
    QCOMPARE(appels.size(), 1);
    AppelStyle const appel = appels.first();
    auto const role =
        appel.option.state & QStyle::State_Selected ? QPalette::HighlightedText : QPalette::Text;
    QCOMPARE(appel.palette.color(role), QColor(1, 2, 3));
    QCOMPARE(option.palette.color(QPalette::HighlightedText), QColor(Qt::white));
}

void tst_DStyleProxyVues::fondForme_data()
{
    using Item = QStyleOptionViewItem;
    QTest::addColumn<Item::ViewItemPosition>("position");
    QTest::addColumn<Qt::LayoutDirection>("sens");
    QTest::addColumn<QMargins>("marges");
    QTest::addColumn<bool>("rondAGauche");
    QTest::addColumn<bool>("rondADroite");
    QMargins const toutes(2, 2, 2, 2);
    QMargins const saufDroite(2, 2, 0, 2);
    QMargins const saufGauche(0, 2, 2, 2);
    QMargins const milieu(0, 2, 0, 2);
    QTest::newRow("beginning") << Item::Beginning << Qt::LeftToRight << saufDroite << true << false;
    QTest::newRow("middle") << Item::Middle << Qt::LeftToRight << milieu << false << false;
    QTest::newRow("end") << Item::End << Qt::LeftToRight << saufGauche << false << true;
    QTest::newRow("invalid") << Item::Invalid << Qt::LeftToRight << toutes << true << true;
    QTest::newRow("only one") << Item::OnlyOne << Qt::LeftToRight << toutes << true << true;
    QTest::newRow("beginning, right to left")
        << Item::Beginning << Qt::RightToLeft << saufGauche << false << true;
    QTest::newRow("end, right to left")
        << Item::End << Qt::RightToLeft << saufDroite << true << false;
}

void tst_DStyleProxyVues::fondForme()
{
    QFETCH(QStyleOptionViewItem::ViewItemPosition, position);
    QFETCH(Qt::LayoutDirection, sens);
    QFETCH(QMargins, marges);
    QFETCH(bool, rondAGauche);
    QFETCH(bool, rondADroite);
    QTreeView vue;
    QStyleOptionViewItem option = DonneOption(kSurvol, position);
    option.direction = sens;

    QImage const image = PeinsItem(option, &vue);

    QRect const fond = kRect - marges;
    QCOMPARE(Encre(image), fond);
    QCOMPARE(Alpha(image, fond.center().x(), fond.top()), kAlphaFond); // no pen
    QCOMPARE(Alpha(image, fond.left(), fond.center().y()), kAlphaFond);
    QCOMPARE(Alpha(image, fond.right(), fond.center().y()), kAlphaFond);
    QCOMPARE(Alpha(image, fond.center().x(), fond.bottom()), kAlphaFond);
    // The area outside of an arc is (1 - pi / 4) of its radius' square.
    double const arrondi = 0.2146 * 3.0 * 3.0;
    auto const manque = [&](int x, int y) {
        return 16.0 - Couverture(image, QRect(x, y, 4, 4), kAlphaFond);
    };
    for (int const y : {fond.top(), fond.bottom() - 3}) {
        double const gauche = manque(fond.left(), y);
        double const droite = manque(fond.right() - 3, y);
        QVERIFY2(qAbs(gauche - (rondAGauche ? arrondi : 0.0)) < 0.45,
                 qPrintable(QString::number(gauche)));
        QVERIFY2(qAbs(droite - (rondADroite ? arrondi : 0.0)) < 0.45,
                 qPrintable(QString::number(droite)));
    }
}

void tst_DStyleProxyVues::fondSeparateur_data()
{
    AjouteValeurs(kToutVrai);
}

void tst_DStyleProxyVues::fondSeparateur()
{
    QFETCH(QVariant, valeur);
    QFETCH(bool, compte);
    QTreeView vue;
    vue.setProperty(DStyleProxy::DonneNomStyleListSeparateur(), valeur);

    QImage const image = PeinsItem(DonneOption(kSurvol), &vue);

    QCOMPARE(Encre(image), kRect.adjusted(2, 2, -2, compte ? -3 : -2));
}

void tst_DStyleProxyVues::widgetDeStyleSansFond()
{
    QTreeView vue;
    vue.setProperty(DStyleProxy::DonneNomAttributPourStyle(), true);

    QVERIFY(EstVide(PeinsItem(DonneOption(kSurvol | QStyle::State_Selected), &vue)));

    QCOMPARE(monBanc->espion->appels.size(), 1);
    QVERIFY(!monBanc->espion->appels.first().indices.testFlag(QPainter::Antialiasing));
}

void tst_DStyleProxyVues::listeDeCombo_data()
{
    AjouteValeurs(kBooleenSeul);
}

// The combo box, not its list, tells that its texts are rich.
void tst_DStyleProxyVues::listeDeCombo()
{
    QFETCH(QVariant, valeur);
    QFETCH(bool, compte);
    QComboBox combo;
    QVERIFY(combo.view()->inherits("QComboBoxListView"));
    combo.setProperty(DStyleProxy::DonneNomProprietePossedeRegleTexteRiche(), valeur);
    QStyleOptionViewItem const option = DonneOption(kSurvol | QStyle::State_Selected);

    QImage const image = PeinsItem(option, combo.view());

    // The base, which sees no selection, would ask for no background.
    QCOMPARE(image.pixelColor(kRect.center()), QColor(0, 0, 0, kAlphaFond));
    auto const appels = monBanc->espion->Donne(AppelStyle::kControle, QStyle::CE_ItemViewItem);
    QCOMPARE(appels.size(), 1);
    QCOMPARE(appels.first().option.state, kSurvol);
    QCOMPARE(appels.first().texte, compte ? QString() : u"Rangée"_s);
    QCOMPARE(option.text, u"Rangée"_s);
    QVERIFY(option.state.testFlag(QStyle::State_Selected));
}

void tst_DStyleProxyVues::listeDeComboNonSelectionnee()
{
    QComboBox combo;
    combo.view()->setProperty(DStyleProxy::DonneNomProprietePossedeRegleTexteRiche(), true);

    PeinsItem(DonneOption(QStyle::State_Enabled), combo.view());

    auto const appels = monBanc->espion->Donne(AppelStyle::kControle, QStyle::CE_ItemViewItem);
    QCOMPARE(appels.size(), 1);
    QCOMPARE(appels.first().option.state, QStyle::State(QStyle::State_Enabled));
    QCOMPARE(appels.first().texte, u"Rangée"_s);
}

void tst_DStyleProxyVues::ligneDePanneau()
{
    QTreeView vue;
    QStyleOptionViewItem option = DonneOption(kSurvol);
    for (auto const groupe : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        option.palette.setCurrentColorGroup(groupe);
        Peins(kTaille, [&](QPainter & peintre) {
            monBanc->style.drawPrimitive(QStyle::PE_PanelItemViewRow, &option, &peintre, &vue);
        });
        QCOMPARE(option.palette.currentColorGroup(), groupe);
    }

    auto const appels = monBanc->espion->Donne(AppelStyle::kPrimitive, QStyle::PE_PanelItemViewRow);
    QCOMPARE(appels.size(), 3);
    QCOMPARE(appels.at(0).palette.currentColorGroup(), QPalette::Active);
    QCOMPARE(appels.at(1).palette.currentColorGroup(), QPalette::Active);
    QCOMPARE(appels.at(2).palette.currentColorGroup(), QPalette::Disabled);
    QCOMPARE(appels.at(1).option.state, kSurvol);
    // The base paints the selection beside the item too, in the same tone as the style.
    QCOMPARE(appels.at(1).palette.highlight().color(), QColor(0, 0, 0, kAlphaFond));
    QCOMPARE(option.palette.color(QPalette::Active, QPalette::Highlight), kAccentActif);
}

void tst_DStyleProxyVues::ligneDePanneauDeTableau()
{
    QTableView vue;
    QStyleOptionViewItem const option = DonneOption(kSurvol);
    Peins(kTaille, [&](QPainter & peintre) {
        monBanc->style.drawPrimitive(QStyle::PE_PanelItemViewRow, &option, &peintre, &vue);
    });

    QCOMPARE(monBanc->espion->appels.size(), 1);
    QCOMPARE(monBanc->espion->appels.first().palette, option.palette);
}

void tst_DStyleProxyVues::optionDuMauvaisType()
{
    QTreeView vue;
    QStyleOption option;
    option.rect = kRect;
    option.state = QStyle::State_Selected;

    QVERIFY(EstVide(PeinsItem(option, &vue)));

    QCOMPARE(monBanc->espion->Donne(AppelStyle::kControle, QStyle::CE_ItemViewItem).size(), 1);
    QCOMPARE(monBanc->espion->appels.first().option.state, option.state);
}

QTEST_MAIN(tst_DStyleProxyVues)
#include "tst_DStyleProxyVues.moc"
