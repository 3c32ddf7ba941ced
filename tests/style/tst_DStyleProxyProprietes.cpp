// tests/style/tst_DStyleProxyProprietes.cpp
#include "style/DStyleProxy.h"

#include "foundation/Polices.h"
#include "style/InterpreteurChaineSemantiqueT.h"
#include "style/StyleDeMesures.h"

#include <QtTest>

#include <QStyleOption>

using namespace Qt::StringLiterals;
using RoutinesGeneralesQt::ModulateurFont;

namespace {

using NomDePropriete = char const * (*)();

// A property whose effect can be measured.
struct Effet
{
    char const * nom; // of the data row
    NomDePropriete propriete;
    bool stricte; // nothing but a boolean counts
    bool (*seVoit)(DStyleProxy const & style, QWidget const & widget);
};

bool MenuDefile(DStyleProxy const & style, QWidget const & widget)
{
    return style.styleHint(QStyle::SH_Menu_Scrollable, nullptr, &widget) == 1;
}

bool MenuPlafonne(DStyleProxy const & style, QWidget const & widget)
{
    return style.sizeFromContents(QStyle::CT_MenuItem, nullptr, QSize(100, 5'000), &widget)
               .height() == widget.maximumHeight();
}

bool BoutonSansDecalage(DStyleProxy const & style, QWidget const & widget)
{
    return style.pixelMetric(QStyle::PM_ButtonShiftHorizontal, nullptr, &widget) == 0 &&
           style.pixelMetric(QStyle::PM_ButtonShiftVertical, nullptr, &widget) == 0;
}

bool IndicateurModulay(DStyleProxy const & style, QWidget const & widget)
{
    return style.pixelMetric(QStyle::PM_IndicatorWidth, nullptr, &widget) == 8;
}

bool EspacementReduit(DStyleProxy const & style, QWidget const & widget)
{
    return style.pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, &widget) == 4;
}

bool ComboSansFleche(DStyleProxy const & style, QWidget const & widget)
{
    QStyleOptionComboBox const option;
    return style.subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, &widget)
        .isEmpty();
}

bool ItemRiche(DStyleProxy const & style, QWidget const & widget)
{
    QStyleOptionMenuItem option;
    option.text = u"<b>x</b>"_s;
    constexpr QSize kContenu(5'000, 20); // far wider than the letter
    return style.sizeFromContents(QStyle::CT_MenuItem, &option, kContenu, &widget).width() < 5'000;
}

constexpr Effet kEffets[] = {
    {"scrolling menu", &DStyleProxy::DonneNomAttributPourStyleScrolling, true, &MenuDefile},
    {"height of a scrolling menu", &DStyleProxy::DonneNomAttributPourStyleScrolling, true,
     &MenuPlafonne},
    {"shift of a button", &DStyleProxy::DonneNomAttributStyleBoutonSansDecalage, true,
     &BoutonSansDecalage},
    {"indicator", &DStyleProxy::DonneNomAttributPourStyle, true, &IndicateurModulay},
    {"spacing of a check box", &DStyleProxy::DonneNomStyleEspacementReduitCaseCochay, false,
     &EspacementReduit},
    {"arrow of a combo box", &DStyleProxy::DonneNomAttributStyleComboBoxSansFleche, false,
     &ComboSansFleche},
    {"width of a rich menu item", &DStyleProxy::DonneNomProprietePossedeRegleTexteRiche, true,
     &ItemRiche},
};

// A base whose answers are told from those of the properties.
StyleDeMesures * CreeBase()
{
    auto * const base = new StyleDeMesures;
    base->indications = {{QStyle::SH_Menu_Scrollable, 0}};
    base->mesures = {{QStyle::PM_ButtonShiftHorizontal, 5},
                     {QStyle::PM_ButtonShiftVertical, 6},
                     {QStyle::PM_IndicatorWidth, 16},
                     {QStyle::PM_CheckBoxLabelSpacing, 16}};
    base->marges = {{QStyle::CT_MenuItem, QSize(20, 4)}};
    base->sousControles = {{QStyle::SC_ComboBoxArrow, QRect(80, 0, 20, 20)}};
    return base;
}

// A widget whose other properties let the one that is tried be seen.
void Prepare(QWidget & widget, char const * propriete)
{
    using Interpreteur = InterpreteurChaineSemantiqueT<UniChaine>;
    widget.setMaximumHeight(300);
    if (qstrcmp(propriete, DStyleProxy::DonneNomStyleEspacementReduitCaseCochay()) == 0)
        widget.setProperty(DStyleProxy::DonneNomAttributPourStyle(), true);
    EnsembleRegles const regles = {
        {UniChaine("b"), Interpreteur::CreeFonctionRemplacerBalisesAvecTexte({}, {})}};
    widget.setProperty(DStyleProxy::DonneNomProprieteEnsembleReglesTexteRiche(),
                       QVariant::fromValue(MapDeRegles{{kContexteNormal, regles}}));
}

} // namespace

// A class that happens to have declared a property of that name.
class WidgetADefilement : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool DStyleProxyScrolling READ AUnDefilement CONSTANT)

public:
    bool AUnDefilement() const { return true; }
};

class tst_DStyleProxyProprietes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void noms_data();
    void noms();
    void valeurs_data();
    void valeurs();
    void luesAChaqueFois();
    void duWidgetSeul();
    void dynamiquesSeulement();
};

void tst_DStyleProxyProprietes::cleanup()
{
    ModulateurFont::LibereInstance();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

// What style sheets and applications know the behaviours by.
void tst_DStyleProxyProprietes::noms_data()
{
    QTest::addColumn<QByteArray>("nom");
    QTest::addColumn<QByteArray>("litteral");
    QTest::addColumn<bool>("vieStatique");
    struct
    {
        NomDePropriete fonction;
        char const * nom;
    } const lignes[] = {
        {&DStyleProxy::DonneNomAttributPourStyle, "DStyleProxy"},
        {&DStyleProxy::DonneNomAttributPourStyleBoutonCheckable, "DStyleProxyBoutonCheckable"},
        {&DStyleProxy::DonneNomAttributPourStyleMonochrome, "DStyleProxyMonochrome"},
        {&DStyleProxy::DonneNomAttributPourStyleScrolling, "DStyleProxyScrolling"},
        {&DStyleProxy::DonneNomAttributStyleBoutonSansDecalage, "DStyleProxyBoutonSansDecalage"},
        {&DStyleProxy::DonneNomAttributStyleChampTexteSansLigneDecoratrice,
         "DStyleProxyChampTexteSansLigneDecoratrice"},
        {&DStyleProxy::DonneNomAttributStyleComboBoxSansFleche, "DStyleProxyComboBoxSansFleche"},
        {&DStyleProxy::DonneNomAttributStyleCrochetMenu, "DStyleProxyCrochetMenu"},
        {&DStyleProxy::DonneNomAttributMenuCochableSansLaSectionACocher,
         "DStyleMenuSansSectionACocher"},
        {&DStyleProxy::DonneNomProprieteEnsembleReglesTexteRiche, "DStyleProxyEnsembleRegles"},
        {&DStyleProxy::DonneNomProprietePossedeRegleTexteRiche, "DStyleProxyTexteRiche"},
        {&DStyleProxy::DonneNomStyleBoutonsStyleHomographes, "DStyleProxyBoutonsStyleHomographes"},
        {&DStyleProxy::DonneNomStyleComboBoxSansFrame, "DStyleProxyComboBoxSansFrame"},
        // Deliberate: the function's own name.
        {&DStyleProxy::DonneNomStyleCouleurBordure, "DonneNomStyleCouleurBordure"},
        {&DStyleProxy::DonneNomStyleDesactiveBevelBouton, "DStyleProxyBtnSansBevel"},
        {&DStyleProxy::DonneNomStyleDesactiveFlecheMenuBouton, "DStyleProxyBtnSansFlecheMenu"},
        {&DStyleProxy::DonneNomStyleEspacementReduitCaseCochay,
         "DStyleProxyEspacementReduitCaseCochay"},
        // Deliberate: "Procy".
        {&DStyleProxy::DonneNomStyleFocusSansRect, "DStyleProcyFocusSansRect"},
        // Deliberate: the function's own name.
        {&DStyleProxy::DonneNomStyleListSeparateur, "DonneNomStyleListSeparateur"},
        {&DStyleProxy::DonneNomStyleSelecteurDictionnaires, "DStyleProxySelecteurDictionnaires"},
        {&DStyleProxy::DonneNomStyleSelecteurGuides, "DStyleProxySelecteurGuides"},
    };
    QCOMPARE(std::size(lignes), std::size_t(21));
    for (auto const & ligne : lignes) {
        char const * const nom = ligne.fonction();
        QTest::newRow(ligne.nom) << QByteArray(nom) << QByteArray(ligne.nom)
                                 << (nom == ligne.fonction());
    }
}

void tst_DStyleProxyProprietes::noms()
{
    QFETCH(QByteArray, nom);
    QFETCH(bool, vieStatique);
    QTEST(nom, "litteral");
    QVERIFY(vieStatique);
}

void tst_DStyleProxyProprietes::valeurs_data()
{
    QTest::addColumn<int>("effet");
    QTest::addColumn<QVariant>("valeur");
    QTest::addColumn<bool>("vu");
    struct
    {
        char const * nom;
        QVariant valeur;
        bool vraie;   // for whoever takes any true value
        bool stricte; // for whoever takes booleans only
    } const valeurs[] = {
        {"true", true, true, true},
        {"false", false, false, false},
        {"1", 1, true, false},
        {"0", 0, false, false},
        {"-1", -1, true, false},
        {"1 as a long integer", 1LL, true, false},
        {"0.5", 0.5, true, false},
        {"text of true", u"true"_s, true, false},
        {"text of 1", u"1"_s, true, false},
        {"other text", u"oui"_s, true, false},
        {"text of false", u"false"_s, false, false},
        {"text of 0", u"0"_s, false, false},
        {"empty text", u""_s, false, false},
        {"bytes of true", QByteArray("true"), true, false},
        {"no truth in it", QSize(1, 1), false, false},
        {"null boolean", QVariant(QMetaType(QMetaType::Bool)), false, false},
        {"invalid", QVariant(), false, false},
    };
    for (std::size_t i = 0; i < std::size(kEffets); ++i) {
        for (auto const & valeur : valeurs)
            QTest::addRow("%s, %s", kEffets[i].nom, valeur.nom)
                << static_cast<int>(i) << valeur.valeur
                << (kEffets[i].stricte ? valeur.stricte : valeur.vraie);
    }
}

void tst_DStyleProxyProprietes::valeurs()
{
    QFETCH(int, effet);
    QFETCH(QVariant, valeur);
    Effet const & essayay = kEffets[effet];
    ModulateurFont::Instance()->PrendsModulateur(2.0);
    DStyleProxy const style(CreeBase());
    QWidget widget;
    Prepare(widget, essayay.propriete());
    widget.setProperty(essayay.propriete(), valeur);
    QTEST(essayay.seVoit(style, widget), "vu");
}

void tst_DStyleProxyProprietes::luesAChaqueFois()
{
    ModulateurFont::Instance()->PrendsModulateur(2.0);
    DStyleProxy const style(CreeBase());
    for (Effet const & effet : kEffets) {
        QWidget widget;
        Prepare(widget, effet.propriete());
        for (bool const voulu : {true, false, true}) {
            widget.setProperty(effet.propriete(), voulu);
            QCOMPARE(effet.seVoit(style, widget), voulu);
        }
        widget.setProperty(effet.propriete(), QVariant());
        QVERIFY(!effet.seVoit(style, widget));
    }
}

// Neither the parent's properties count nor those of the children.
void tst_DStyleProxyProprietes::duWidgetSeul()
{
    ModulateurFont::Instance()->PrendsModulateur(2.0);
    DStyleProxy const style(CreeBase());
    for (Effet const & effet : kEffets) {
        QWidget parent;
        QWidget widget(&parent);
        QWidget enfant(&widget);
        Prepare(widget, effet.propriete());
        parent.setProperty(effet.propriete(), true);
        enfant.setProperty(effet.propriete(), true);
        QVERIFY(!effet.seVoit(style, widget));
    }
}

// What a class declares is its own affair: a widget asks for a behaviour by what is set on it.
void tst_DStyleProxyProprietes::dynamiquesSeulement()
{
    DStyleProxy const style(CreeBase());
    WidgetADefilement const widget;
    QVERIFY(widget.property(DStyleProxy::DonneNomAttributPourStyleScrolling()).toBool());
    QVERIFY(!MenuDefile(style, widget));
}

QTEST_MAIN(tst_DStyleProxyProprietes)
#include "tst_DStyleProxyProprietes.moc"
