// style/DStyleProxyNoms.cpp
#include "style/DStyleProxy.h"
#include "style/ProprietesStyle_p.h"

char const * DStyleProxy::DonneNomAttributPourStyle()
{
    return ProprietesStyle::kPourStyle;
}

char const * DStyleProxy::DonneNomAttributPourStyleBoutonCheckable()
{
    return ProprietesStyle::kBoutonCheckable;
}

char const * DStyleProxy::DonneNomAttributPourStyleMonochrome()
{
    return ProprietesStyle::kMonochrome;
}

char const * DStyleProxy::DonneNomAttributPourStyleScrolling()
{
    return ProprietesStyle::kScrolling;
}

char const * DStyleProxy::DonneNomAttributStyleBoutonSansDecalage()
{
    return ProprietesStyle::kBoutonSansDecalage;
}

char const * DStyleProxy::DonneNomAttributStyleChampTexteSansLigneDecoratrice()
{
    return ProprietesStyle::kChampTexteSansLigneDecoratrice;
}

char const * DStyleProxy::DonneNomAttributStyleComboBoxSansFleche()
{
    return ProprietesStyle::kComboBoxSansFleche;
}

char const * DStyleProxy::DonneNomAttributStyleCrochetMenu()
{
    return ProprietesStyle::kCrochetMenu;
}

char const * DStyleProxy::DonneNomAttributMenuCochableSansLaSectionACocher()
{
    return ProprietesStyle::kMenuSansSectionACocher;
}

char const * DStyleProxy::DonneNomProprieteEnsembleReglesTexteRiche()
{
    return ProprietesStyle::kEnsembleRegles;
}

char const * DStyleProxy::DonneNomProprietePossedeRegleTexteRiche()
{
    return ProprietesStyle::kTexteRiche;
}

char const * DStyleProxy::DonneNomStyleBoutonsStyleHomographes()
{
    return ProprietesStyle::kBoutonsStyleHomographes;
}

char const * DStyleProxy::DonneNomStyleComboBoxSansFrame()
{
    return ProprietesStyle::kComboBoxSansFrame;
}

char const * DStyleProxy::DonneNomStyleCouleurBordure()
{
    return ProprietesStyle::kCouleurBordure;
}

char const * DStyleProxy::DonneNomStyleDesactiveBevelBouton()
{
    return ProprietesStyle::kBoutonSansBevel;
}

char const * DStyleProxy::DonneNomStyleDesactiveFlecheMenuBouton()
{
    return ProprietesStyle::kBoutonSansFlecheMenu;
}

char const * DStyleProxy::DonneNomStyleEspacementReduitCaseCochay()
{
    return ProprietesStyle::kEspacementReduitCaseCochay;
}

char const * DStyleProxy::DonneNomStyleFocusSansRect()
{
    return ProprietesStyle::kFocusSansRect;
}

char const * DStyleProxy::DonneNomStyleListSeparateur()
{
    return ProprietesStyle::kListSeparateur;
}

char const * DStyleProxy::DonneNomStyleSelecteurDictionnaires()
{
    return ProprietesStyle::kSelecteurDictionnaires;
}

char const * DStyleProxy::DonneNomStyleSelecteurGuides()
{
    return ProprietesStyle::kSelecteurGuides;
}
