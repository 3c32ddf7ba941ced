// tests/style/tst_DStyleProxyMesures.cpp
#include "style/DStyleProxy.h"

#include "foundation/Polices.h"
#include "style/EssaisTexteRiche.h"
#include "style/StyleDeMesures.h"

#include <QtTest>

#include <QListView>
#include <QTableView>

using namespace Qt::StringLiterals;
using RoutinesGeneralesQt::ModulateurFont;

namespace {

constexpr QRect kElement(10, 20, 100, 30);

// A widget with these properties true.
std::unique_ptr<QWidget> WidgetAvec(std::initializer_list<char const *> proprietes)
{
    auto widget = std::make_unique<QWidget>();
    for (char const * const propriete : proprietes)
        widget->setProperty(propriete, true);
    return widget;
}

} // namespace

class tst_DStyleProxyMesures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void indicateurs_data();
    void indicateurs();
    void indicateursSansLaPropriete();
    void decalagesDuBouton();
    void autresMesures();
    void demandesTransmises();
    void itemDeVue_data();
    void itemDeVue();
    void autresTailles();
    void indications_data();
    void indications();
    void comboSansFleche_data();
    void comboSansFleche();
    void autresSousControles();
    void caseACocherDeVue_data();
    void caseACocherDeVue();
    void texteDeVue_data();
    void texteDeVue();
    void contenuDuChampTexte();
    void autresElements();
    void optionNulle();

private:
    StyleDeMesures * maBase = nullptr;
    std::unique_ptr<DStyleProxy> monStyle;
};

void tst_DStyleProxyMesures::init()
{
    ModulateurFont::Instance()->PrendsModulateur(1.0);
    maBase = new StyleDeMesures;
    monStyle = std::make_unique<DStyleProxy>(maBase);
}

void tst_DStyleProxyMesures::cleanup()
{
    monStyle.reset();
    ModulateurFont::LibereInstance();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DStyleProxyMesures::indicateurs_data()
{
    QTest::addColumn<int>("mesure");
    QTest::addColumn<bool>("reduit");
    QTest::addColumn<int>("base");
    QTest::addColumn<double>("modulateur");
    QTest::addColumn<int>("attendue");
    struct
    {
        char const * nom;
        QStyle::PixelMetric mesure;
        bool peutEtreReduite;
    } const mesures[] = {
        {"indicator width", QStyle::PM_IndicatorWidth, false},
        {"indicator height", QStyle::PM_IndicatorHeight, false},
        {"exclusive indicator width", QStyle::PM_ExclusiveIndicatorWidth, false},
        {"exclusive indicator height", QStyle::PM_ExclusiveIndicatorHeight, false},
        {"spacing of a check box", QStyle::PM_CheckBoxLabelSpacing, true},
        {"spacing of a radio button", QStyle::PM_RadioButtonLabelSpacing, false},
    };
    for (auto const & mesure : mesures) {
        bool const reduite = mesure.peutEtreReduite;
        auto const ligne = [&](char const * cas, bool reduit, double modulateur, int attendue) {
            QTest::addRow("%s of 7, %s", mesure.nom, cas)
                << int(mesure.mesure) << reduit << 7 << modulateur << attendue;
        };
        ligne("as it is", false, 1.0, 7);
        ligne("modulated", false, 1.5, 4);
        ligne("modulated by 2", false, 2.0, 3);
        ligne("modulated by a half", false, 0.5, 14);
        ligne("halved", true, 1.0, reduite ? 3 : 7);
        ligne("halved, then modulated", true, 1.5, reduite ? 2 : 4);
        ligne("halved, modulated by a half", true, 0.5, reduite ? 6 : 14);
    }
    QTest::newRow("no spacing") << int(QStyle::PM_CheckBoxLabelSpacing) << true << 0 << 1.5 << 0;
}

void tst_DStyleProxyMesures::indicateurs()
{
    QFETCH(int, mesure);
    QFETCH(bool, reduit);
    QFETCH(int, base);
    QFETCH(double, modulateur);
    ModulateurFont::Instance()->PrendsModulateur(modulateur);
    maBase->mesures[mesure] = base;
    auto const widget = WidgetAvec({DStyleProxy::DonneNomAttributPourStyle()});
    widget->setProperty(DStyleProxy::DonneNomStyleEspacementReduitCaseCochay(), reduit);
    QTEST(monStyle->pixelMetric(QStyle::PixelMetric(mesure), nullptr, widget.get()), "attendue");
}

void tst_DStyleProxyMesures::indicateursSansLaPropriete()
{
    ModulateurFont::Instance()->PrendsModulateur(1.5);
    auto const widget = WidgetAvec({DStyleProxy::DonneNomStyleEspacementReduitCaseCochay()});
    for (auto const mesure :
         {QStyle::PM_IndicatorWidth, QStyle::PM_IndicatorHeight, QStyle::PM_ExclusiveIndicatorWidth,
          QStyle::PM_ExclusiveIndicatorHeight, QStyle::PM_CheckBoxLabelSpacing,
          QStyle::PM_RadioButtonLabelSpacing}) {
        maBase->mesures[mesure] = 7;
        QCOMPARE(monStyle->pixelMetric(mesure, nullptr, widget.get()), 7);
        QCOMPARE(monStyle->pixelMetric(mesure), 7);
    }
}

void tst_DStyleProxyMesures::decalagesDuBouton()
{
    maBase->mesures = {{QStyle::PM_ButtonShiftHorizontal, 5}, {QStyle::PM_ButtonShiftVertical, 6}};
    auto const widget = WidgetAvec({DStyleProxy::DonneNomAttributStyleBoutonSansDecalage()});
    QWidget const autre;
    QCOMPARE(monStyle->pixelMetric(QStyle::PM_ButtonShiftHorizontal, nullptr, widget.get()), 0);
    QCOMPARE(monStyle->pixelMetric(QStyle::PM_ButtonShiftVertical, nullptr, widget.get()), 0);
    QCOMPARE(monStyle->pixelMetric(QStyle::PM_ButtonShiftHorizontal, nullptr, &autre), 5);
    QCOMPARE(monStyle->pixelMetric(QStyle::PM_ButtonShiftVertical, nullptr, &autre), 6);
    QCOMPARE(monStyle->pixelMetric(QStyle::PM_ButtonShiftHorizontal), 5);
}

// Of all other metrics the base decides, whatever the widget asks for.
void tst_DStyleProxyMesures::autresMesures()
{
    ModulateurFont::Instance()->PrendsModulateur(1.5);
    auto const widget = WidgetAvec({DStyleProxy::DonneNomAttributPourStyle(),
                                    DStyleProxy::DonneNomAttributStyleBoutonSansDecalage(),
                                    DStyleProxy::DonneNomStyleEspacementReduitCaseCochay()});
    QList<int> const miennes = {
        QStyle::PM_IndicatorWidth,          QStyle::PM_IndicatorHeight,
        QStyle::PM_ExclusiveIndicatorWidth, QStyle::PM_ExclusiveIndicatorHeight,
        QStyle::PM_CheckBoxLabelSpacing,    QStyle::PM_RadioButtonLabelSpacing,
        QStyle::PM_ButtonShiftHorizontal,   QStyle::PM_ButtonShiftVertical};
    int comparees = 0;
    for (int mesure = 0; mesure <= int(QStyle::PM_LineEditIconMargin); ++mesure) {
        if (miennes.contains(mesure))
            continue;
        maBase->mesures[mesure] = 1'000 + mesure;
        QCOMPARE(monStyle->pixelMetric(QStyle::PixelMetric(mesure), nullptr, widget.get()),
                 1'000 + mesure);
        ++comparees;
    }
    QCOMPARE_GT(comparees, 50);
}

void tst_DStyleProxyMesures::demandesTransmises()
{
    auto const widget = WidgetAvec({DStyleProxy::DonneNomAttributPourStyle()});
    QStyleOptionMenuItem const item;
    maBase->mesures[QStyle::PM_IndicatorWidth] = 7;
    monStyle->pixelMetric(QStyle::PM_IndicatorWidth, &item, widget.get());
    QCOMPARE(maBase->derniereOption, &item);
    QCOMPARE(maBase->dernierWidget, widget.get());

    QStyleOptionComboBox const combo;
    maBase->sousControles[QStyle::SC_ComboBoxListBoxPopup] = kElement;
    monStyle->subControlRect(QStyle::CC_ComboBox, &combo, QStyle::SC_ComboBoxListBoxPopup,
                             widget.get());
    QCOMPARE(maBase->derniereOption, &combo);
    QCOMPARE(maBase->dernierWidget, widget.get());

    QStyleOptionViewItem const element;
    maBase->elements[QStyle::SE_ItemViewItemText] = kElement;
    monStyle->subElementRect(QStyle::SE_ItemViewItemText, &element, widget.get());
    QCOMPARE(maBase->derniereOption, &element);
    QCOMPARE(maBase->dernierWidget, widget.get());
}

void tst_DStyleProxyMesures::itemDeVue_data()
{
    QTest::addColumn<bool>("icone");
    QTest::addColumn<int>("hauteur");
    QTest::newRow("without a picture") << false << 29;
    QTest::newRow("with a picture") << true << 25;
}

void tst_DStyleProxyMesures::itemDeVue()
{
    QFETCH(bool, icone);
    maBase->marges[QStyle::CT_ItemViewItem] = QSize(4, 5);
    QListView const vue;
    QStyleOptionViewItem option;
    if (icone) {
        QPixmap image(16, 16);
        image.fill(Qt::red);
        option.icon = image;
    }
    for (QWidget const * const de :
         {static_cast<QWidget const *>(&vue), static_cast<QWidget const *>(nullptr)})
        QTEST(monStyle->sizeFromContents(QStyle::CT_ItemViewItem, &option, QSize(60, 20), de)
                  .height(),
              "hauteur");
    QCOMPARE(
        monStyle->sizeFromContents(QStyle::CT_ItemViewItem, &option, QSize(60, 20), &vue).width(),
        64);
    QStyleOption const autre; // no view item: of whose picture nothing is known
    QCOMPARE(monStyle->sizeFromContents(QStyle::CT_ItemViewItem, &autre, QSize(60, 20), &vue),
             QSize(64, 25));
}

void tst_DStyleProxyMesures::autresTailles()
{
    auto const widget = WidgetAvec({DStyleProxy::DonneNomAttributPourStyle(),
                                    DStyleProxy::DonneNomProprietePossedeRegleTexteRiche()});
    QStyleOption const option;
    for (int type = 0; type <= int(QStyle::CT_ItemViewItem); ++type) {
        if (type == QStyle::CT_MenuBarItem || type == QStyle::CT_ItemViewItem)
            continue;
        maBase->marges[type] = QSize(type, 2 * type);
        QCOMPARE(monStyle->sizeFromContents(QStyle::ContentsType(type), &option, QSize(60, 20),
                                            widget.get()),
                 QSize(60 + type, 20 + 2 * type));
    }
}

void tst_DStyleProxyMesures::indications_data()
{
    QTest::addColumn<int>("indication");
    QTest::addColumn<bool>("propriete");
    QTest::addColumn<int>("base");
    QTest::addColumn<int>("attendue");
    auto const defilement = int(QStyle::SH_Menu_Scrollable);
    auto const liste = int(QStyle::SH_ComboBox_Popup);
    QTest::newRow("scrolling menu") << defilement << true << 0 << 1;
    QTest::newRow("scrolling menu, as the base has it") << defilement << true << 1 << 1;
    QTest::newRow("menu of a base that does not scroll") << defilement << false << 0 << 0;
    QTest::newRow("menu of a base that scrolls") << defilement << false << 1 << 1;
    QTest::newRow("combo box of a base with menus") << liste << false << 1 << 0;
    QTest::newRow("combo box of a base with lists") << liste << true << 0 << 0;
    QTest::newRow("other hint") << int(QStyle::SH_EtchDisabledText) << true << 7 << 7;
}

void tst_DStyleProxyMesures::indications()
{
    QFETCH(int, indication);
    QFETCH(bool, propriete);
    QFETCH(int, base);
    maBase->indications[indication] = base;
    QWidget widget;
    widget.setProperty(DStyleProxy::DonneNomAttributPourStyleScrolling(), propriete);
    QTEST(monStyle->styleHint(QStyle::StyleHint(indication), nullptr, &widget), "attendue");

    bool const comboBox = indication == QStyle::SH_ComboBox_Popup;
    QCOMPARE(monStyle->styleHint(QStyle::StyleHint(indication)), comboBox ? 0 : base);
}

void tst_DStyleProxyMesures::comboSansFleche_data()
{
    QTest::addColumn<bool>("droiteAGauche");
    QTest::addColumn<QRect>("champ");
    QTest::addColumn<QRect>("fleche");
    QTest::addColumn<QRect>("elargi");
    QTest::newRow("left to right")
        << false << QRect(3, 2, 70, 20) << QRect(78, 1, 20, 22) << QRect(3, 2, 95, 20);
    QTest::newRow("right to left")
        << true << QRect(27, 2, 70, 20) << QRect(2, 1, 20, 22) << QRect(2, 2, 95, 20);
}

void tst_DStyleProxyMesures::comboSansFleche()
{
    QFETCH(bool, droiteAGauche);
    QFETCH(QRect, champ);
    QFETCH(QRect, fleche);
    QFETCH(QRect, elargi);
    maBase->sousControles = {{QStyle::SC_ComboBoxEditField, champ},
                             {QStyle::SC_ComboBoxArrow, fleche}};
    QStyleOptionComboBox option;
    option.rect = QRect(0, 0, 100, 24);
    option.direction = droiteAGauche ? Qt::RightToLeft : Qt::LeftToRight;
    auto const rect = [&](QStyle::SubControl sousControle, QWidget const * widget) {
        return monStyle->subControlRect(QStyle::CC_ComboBox, &option, sousControle, widget);
    };
    auto const sans = WidgetAvec({DStyleProxy::DonneNomAttributStyleComboBoxSansFleche()});
    QVERIFY(rect(QStyle::SC_ComboBoxArrow, sans.get()).isEmpty());
    QCOMPARE(rect(QStyle::SC_ComboBoxEditField, sans.get()), elargi);

    QWidget const avec;
    for (QWidget const * const widget : {&avec, static_cast<QWidget const *>(nullptr)}) {
        QCOMPARE(rect(QStyle::SC_ComboBoxArrow, widget), fleche);
        QCOMPARE(rect(QStyle::SC_ComboBoxEditField, widget), champ);
    }
}

void tst_DStyleProxyMesures::autresSousControles()
{
    auto const widget = WidgetAvec({DStyleProxy::DonneNomAttributStyleComboBoxSansFleche()});
    maBase->sousControles = {{QStyle::SC_ComboBoxFrame, kElement}};
    QStyleOptionComboBox const combo;
    QCOMPARE(monStyle->subControlRect(QStyle::CC_ComboBox, &combo, QStyle::SC_ComboBoxFrame,
                                      widget.get()),
             kElement);
    // The numbers of the parts are those of the combo box, but the control is another one.
    maBase->sousControles = {{QStyle::SC_SpinBoxFrame, kElement},
                             {QStyle::SC_SpinBoxEditField, kElement}};
    QStyleOptionSpinBox const spinBox;
    for (auto const partie : {QStyle::SC_SpinBoxFrame, QStyle::SC_SpinBoxEditField})
        QCOMPARE(monStyle->subControlRect(QStyle::CC_SpinBox, &spinBox, partie, widget.get()),
                 kElement);
}

void tst_DStyleProxyMesures::caseACocherDeVue_data()
{
    QTest::addColumn<bool>("cochable");
    QTest::addColumn<QString>("texte");
    QTest::addColumn<int>("direction");
    QTest::addColumn<QRect>("base");
    QTest::addColumn<QRect>("attendue");
    QRect const aGauche(14, 28, 14, 12);
    QRect const aDroite(92, 28, 14, 12);
    QRect const auMilieu(53, 28, 14, 12); // 43 units on either side
    auto const gaucheADroite = int(Qt::LeftToRight);
    auto const droiteAGauche = int(Qt::RightToLeft);
    QTest::newRow("no text") << true << QString() << gaucheADroite << aGauche << auMilieu;
    QTest::newRow("no text, right to left")
        << true << QString() << droiteAGauche << aDroite << auMilieu;
    QTest::newRow("text") << true << u"x"_s << gaucheADroite << aGauche << aGauche;
    QTest::newRow("text, right to left") << true << u"x"_s << droiteAGauche << aDroite << aDroite;
    QTest::newRow("not checkable") << false << QString() << gaucheADroite << aGauche << aGauche;
    QTest::newRow("wider") << true << QString() << gaucheADroite << QRect(14, 28, 20, 12)
                           << QRect(50, 28, 20, 12);
}

void tst_DStyleProxyMesures::caseACocherDeVue()
{
    QFETCH(bool, cochable);
    QFETCH(QString, texte);
    QFETCH(int, direction);
    QFETCH(QRect, base);
    maBase->elements[QStyle::SE_ItemViewItemCheckIndicator] = base;
    QStyleOptionViewItem option;
    option.rect = kElement;
    option.direction = Qt::LayoutDirection(direction);
    option.text = texte;
    option.features.setFlag(QStyleOptionViewItem::HasCheckIndicator, cochable);
    QListView const vue;
    for (QWidget const * const widget :
         {static_cast<QWidget const *>(&vue), static_cast<QWidget const *>(nullptr)})
        QTEST(monStyle->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, widget),
              "attendue");
}

void tst_DStyleProxyMesures::texteDeVue_data()
{
    QTest::addColumn<bool>("table");
    QTest::addColumn<QRect>("attendue");
    QTest::newRow("table") << true << QRect(10, 22, 80, 26);
    QTest::newRow("list") << false << QRect(30, 22, 60, 26);
}

void tst_DStyleProxyMesures::texteDeVue()
{
    QFETCH(bool, table);
    maBase->elements[QStyle::SE_ItemViewItemText] = QRect(30, 22, 60, 26);
    QStyleOptionViewItem option;
    option.rect = kElement;
    QTableView const vueTable;
    QListView const vueListe;
    QWidget const * const vue = table ? static_cast<QWidget const *>(&vueTable) : &vueListe;
    QTEST(monStyle->subElementRect(QStyle::SE_ItemViewItemText, &option, vue), "attendue");
    QCOMPARE(monStyle->subElementRect(QStyle::SE_ItemViewItemText, &option, nullptr),
             QRect(30, 22, 60, 26));
    QStyleOption const autre; // no view item
    QCOMPARE(monStyle->subElementRect(QStyle::SE_ItemViewItemText, &autre, vue),
             QRect(30, 22, 60, 26));
}

void tst_DStyleProxyMesures::contenuDuChampTexte()
{
    maBase->elements[QStyle::SE_LineEditContents] = QRect(6, 3, 80, 18);
    QStyleOptionFrame const option;
    QLineEdit const champ;
    for (QWidget const * const widget :
         {static_cast<QWidget const *>(&champ), static_cast<QWidget const *>(nullptr)})
        QCOMPARE(monStyle->subElementRect(QStyle::SE_LineEditContents, &option, widget),
                 QRect(2, 3, 84, 18));
}

void tst_DStyleProxyMesures::autresElements()
{
    QTableView const vue;
    QStyleOptionViewItem option;
    option.rect = kElement;
    option.features = QStyleOptionViewItem::HasCheckIndicator;
    QRect const base(30, 22, 60, 26);
    for (int element = 0; element <= int(QStyle::SE_TabBarTabText); ++element) {
        if (element == QStyle::SE_LineEditContents ||
            element == QStyle::SE_ItemViewItemCheckIndicator ||
            element == QStyle::SE_ItemViewItemText)
            continue;
        maBase->elements[element] = base;
        QCOMPARE(monStyle->subElementRect(QStyle::SubElement(element), &option, &vue), base);
    }
}

// Where there is no option, or one of another kind, the base decides alone.
void tst_DStyleProxyMesures::optionNulle()
{
    auto const widget = WidgetAvec({DStyleProxy::DonneNomProprietePossedeRegleTexteRiche(),
                                    DStyleProxy::DonneNomAttributPourStyle()});
    MetsRegle(*widget, "q");
    for (auto const type : {QStyle::CT_MenuItem, QStyle::CT_ItemViewItem}) {
        maBase->marges[type] = QSize(4, 5);
        QStyleOptionButton const autre;
        for (QStyleOption const * const option : {static_cast<QStyleOption const *>(&autre),
                                                  static_cast<QStyleOption const *>(nullptr)})
            QCOMPARE(monStyle->sizeFromContents(type, option, QSize(60, 20), widget.get()),
                     QSize(64, 25));
    }
    QTableView const vue;
    for (auto const element :
         {QStyle::SE_ItemViewItemCheckIndicator, QStyle::SE_ItemViewItemText}) {
        maBase->elements[element] = kElement;
        QCOMPARE(monStyle->subElementRect(element, nullptr, &vue), kElement);
    }
}

QTEST_MAIN(tst_DStyleProxyMesures)
#include "tst_DStyleProxyMesures.moc"
