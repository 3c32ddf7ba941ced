// foundation/VariablesParDefaut_p.h
#pragma once

#include <QStringView>

/// A row of the table that every `ThemesQt` starts with.
struct VariableParDefaut
{
    QStringView nom;
    QStringView valeur;
};

// The alpha of a colour is on the scale from 0 to 255. The colours of the system are not data: the
// table asks for them when it is built.
inline constexpr VariableParDefaut kVariablesParDefaut[] = {
    {u"couleurAccentBoutonSelectionner", u"rgba(86,177,233,255)"},
    {u"couleurAccentRechercheALaFrappe", u"rgba(224,224,224,255)"},
    {u"couleurAccentDictionnaires", u"rgba(107,190,70,255)"},
    {u"couleurAccentGuides", u"rgba(251,169,24,255)"},
    {u"couleurSeparateur", u"rgba(220,220,220,255)"},
    {u"couleurBordure", u"rgba(220,220,220,255)"},
    {u"couleurBordureAlternateQTreeView", u"rgba(222,222,222,255)"},
    {u"couleurBordureGeneral", u"rgba(153,153,153,255)"},
    {u"couleurBordureGui", u"rgba(187,187,187,255)"},
    {u"couleurBordureQTreeView", u"rgba(112,192,231,255)"},
    {u"couleurBordureBoutonTransparentSelectionnay", u"rgba(210,210,210,255)"},
    {u"couleurErreurLineEdit", u"rgba(238,0,0,255)"},
    {u"couleurFondBoutonTransparentSelectionnay", u"rgba(217,217,217,255)"},
    {u"couleurFondBoutonTransparentFavorisHover", u"rgba(230,230,230,255)"},
    {u"couleurFondAlternateQTreeView", u"rgba(222,222,222,178)"},
    {u"couleurFondBarre", u"rgba(255,255,255,255)"},
    {u"couleurFondBarreDictionnaireGuide", u"rgba(59,82,129,255)"},
    {u"couleurFondBlanc", u"rgba(255,255,255,255)"},
    {u"couleurFondBoutonHover", u"rgba(230,230,230,255)"},
    {u"couleurFondGris", u"rgba(249,249,249,255)"},
    {u"couleurFondMoinsBlanc", u"rgba(250,250,250,255)"},
    {u"couleurFondQPushButton", u"rgba(123,196,238,255)"},
    {u"couleurFondBoutonTransparentHover", u"rgba(229,243,255,255)"},
    {u"couleurFondQTreeView", u"rgba(225,241,250,178)"},
    {u"couleurTexteBoutonClicker", u"rgba(255,255,255,255)"},
    {u"couleurTexteDeBase", u"rgba(0,0,0,255)"},
    {u"couleurTexteFoncee", u"rgba(102,102,102,255)"},
    {u"couleurTexteGris", u"rgba(128,128,128,255)"},
    {u"couleurTexteHomographe", u"rgba(81,154,240,255)"},
    {u"couleurTexteInversee", u"rgba(255,255,255,255)"},
    {u"couleurTexteBarreStats", u"rgba(121,121,121,255)"},
    {u"couleurTexteLien", u"rgba(24,126,188,255)"},
    {u"couleurItemMenuActifSelectionnay", u"rgba(144,200,246,255)"},
    {u"couleurPrismeCorrLing", u"rgba(212,108,101,255)"},
    {u"couleurPrismeCorrTypo", u"rgba(230,184,66,255)"},
    {u"couleurPrismeCorrStyle", u"rgba(14,165,230,255)"},
    {u"couleurPrismeCorrRevision", u"rgba(212,212,212,255)"},
    {u"CouleurSelectionDefautCorrecteur", u"rgba(138,197,255,255)"},
    {u"CouleurFondBoutonSelectionnay", u"rgba(204,232,255,255)"},
    {u"couleurFondElementSelectionnayQTreeView", u"rgba(196,226,255,178)"},
    {u"couleurFondElementSelectionnayPasFocusQTreeView", u"rgba(196,226,255,100)"},
    {u"couleurBordureElementSelectionnayPasFocusQTreeView", u"rgba(196,226,255,125)"},
    {u"couleurSurlignesDefautPrefs", u"rgba(253,255,154,255)"},
    {u"CouleurSurligneSecDefautPrefs", u"rgba(255,166,0,255)"},
    {u"couleurCorrPhraseInactive", u"rgba(128,128,128,255)"},
    {u"couleurCorrPhrasePasAnalysee", u"rgba(187,187,187,255)"},
    {u"couleurCorrPhraseDefault", u"rgba(0,0,0,255)"},
    {u"couleurCorrSouligneRouge", u"rgba(229,1,0,255)"},
    {u"couleurCorrSouligneViolet", u"rgba(180,29,216,255)"},
    {u"couleurCorrSouligneVert", u"rgba(48,201,104,255)"},
    {u"couleurListDetectSouligneVert", u"rgba(193,235,193,255)"},
    {u"couleurCorrSouligneBleuAlerte", u"rgba(82,104,164,255)"},
    {u"couleurCorrSouligneBleu", u"rgba(51,51,255,255)"},
    {u"couleurListDetectSouligneBleu", u"rgba(170,187,247,255)"},
    {u"couleurCorrSouligneOrange", u"rgba(255,166,0,255)"},
    {u"couleurCorrSouligneGris", u"rgba(170,170,170,255)"},
    {u"couleurCorrSouligneNoir", u"rgba(0,0,0,255)"},
    {u"couleurReformulationSouligneBleu", u"rgba(49,140,231,191)"},
    {u"couleurConjugaisonTapee", u"rgba(223,116,25,255)"},
    {u"couleurEtiquettesSelectionner", u"rgba(157,157,157,255)"},
    {u"couleurEtiquettesSourisParDessus", u"rgba(211,211,211,255)"},
    {u"couleurHistogrammeAxe", u"rgba(0,0,0,255)"},
    {u"couleurHistogrammeBordureBande", u"rgba(0,0,0,0)"},
    {u"couleurBandeauModeEssai", u"rgba(255,228,241,127)"},
    {u"policeTitre", u"\"Segoe UI Semibold\""},
    {u"tailleTitre", u"26px"},
    {u"rayonBordureBouton", u"3px"},
};
