// style/ProprietesStyle_p.h
#pragma once

// The dynamic properties by which a widget asks the style for a behaviour. Widgets know the style
// by these names alone, and so do style sheets and applications: the literals stay as they are,
// spelling included.
namespace ProprietesStyle {

constexpr char const * kPourStyle = "DStyleProxy";
constexpr char const * kBoutonCheckable = "DStyleProxyBoutonCheckable";
constexpr char const * kMonochrome = "DStyleProxyMonochrome";
constexpr char const * kScrolling = "DStyleProxyScrolling";
constexpr char const * kBoutonSansDecalage = "DStyleProxyBoutonSansDecalage";
constexpr char const * kChampTexteSansLigneDecoratrice =
    "DStyleProxyChampTexteSansLigneDecoratrice";
constexpr char const * kComboBoxSansFleche = "DStyleProxyComboBoxSansFleche";
constexpr char const * kCrochetMenu = "DStyleProxyCrochetMenu";
constexpr char const * kMenuSansSectionACocher = "DStyleMenuSansSectionACocher";
constexpr char const * kEnsembleRegles = "DStyleProxyEnsembleRegles";
constexpr char const * kTexteRiche = "DStyleProxyTexteRiche";
constexpr char const * kBoutonsStyleHomographes = "DStyleProxyBoutonsStyleHomographes";
constexpr char const * kComboBoxSansFrame = "DStyleProxyComboBoxSansFrame";
constexpr char const * kCouleurBordure = "DonneNomStyleCouleurBordure";
constexpr char const * kBoutonSansBevel = "DStyleProxyBtnSansBevel";
constexpr char const * kBoutonSansFlecheMenu = "DStyleProxyBtnSansFlecheMenu";
constexpr char const * kEspacementReduitCaseCochay = "DStyleProxyEspacementReduitCaseCochay";
constexpr char const * kFocusSansRect = "DStyleProcyFocusSansRect"; // Deliberate: "Procy"
constexpr char const * kListSeparateur = "DonneNomStyleListSeparateur";
constexpr char const * kSelecteurDictionnaires = "DStyleProxySelecteurDictionnaires";
constexpr char const * kSelecteurGuides = "DStyleProxySelecteurGuides";

} // namespace ProprietesStyle
