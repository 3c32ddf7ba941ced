// search/WidgetRechercheAbstrait.cpp
#include "search/WidgetRechercheAbstrait.h"

#include "search/UtilisateurWidgetRecherche.h"

using namespace Qt::StringLiterals;

WidgetRechercheAbstrait::WidgetRechercheAbstrait(bool permetRemplacer)
    : jePermetsRemplacer(permetRemplacer)
{
}

WidgetRechercheAbstrait::~WidgetRechercheAbstrait() = default;

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value is the interface
void WidgetRechercheAbstrait::AfficheToi(CstRecherche::eTypeRecherche type, UniChaine chaine)
{
    if (type == CstRecherche::kNouvelleRecherche) {
        NettoyerRecherche();
        if (!chaine.NettoieBlancs().EstVide())
            MetsChaineAChercher(chaine);
        PrendsFocus();
    }
    AfficheToi();
    ModifieSensRecherche(type);
    AppelleHote(&UtilisateurWidgetRecherche::CallbackChercher);
}

void WidgetRechercheAbstrait::ActualiseOccurrences(int const &, int const &) {}

void WidgetRechercheAbstrait::MetEnCoursDeRemplacerTout(bool) {}

void WidgetRechercheAbstrait::EffectuerRecherche(UniChaine const & chaine)
{
    if (chaine.EstVide())
        return;
    monSensRecherche = CstRecherche::kVersLeHaut;
    MetsChaineAChercher(chaine);
    AppelleHote(&UtilisateurWidgetRecherche::CallbackChercher);
}

void WidgetRechercheAbstrait::ChercherSuivant()
{
    BoutonChercher();
}

void WidgetRechercheAbstrait::ChercherPrecedent()
{
    monSensRecherche = CstRecherche::kVersLeHaut;
    ActualiserEtatPanneau();
    AppelleHote(&UtilisateurWidgetRecherche::CallbackChercher);
}

QRegularExpression WidgetRechercheAbstrait::DonneExpRegContient() const
{
    return DonneExpRegContient(maChaineRecherche);
}

QRegularExpression WidgetRechercheAbstrait::DonneExpRegCommencePar() const
{
    return DonneExpRegCommencePar(maChaineRecherche);
}

QRegularExpression WidgetRechercheAbstrait::DonneExpRegMotEntier() const
{
    return DonneExpRegMotEntier(maChaineRecherche);
}

QRegularExpression WidgetRechercheAbstrait::DonneExpRegContient(QString const & chaine)
{
    return QRegularExpression(QRegularExpression::escape(chaine));
}

QRegularExpression WidgetRechercheAbstrait::DonneExpRegCommencePar(QString const & chaine)
{
    return QRegularExpression(u"\\b("_s + QRegularExpression::escape(chaine) + u')');
}

QRegularExpression WidgetRechercheAbstrait::DonneExpRegMotEntier(QString const & chaine)
{
    return QRegularExpression(u"\\b%1\\b"_s.arg(QRegularExpression::escape(chaine)));
}

void WidgetRechercheAbstrait::BoutonChercher()
{
    monSensRecherche = CstRecherche::kVersLeBas;
    ActualiserEtatPanneau();
    AppelleHote(&UtilisateurWidgetRecherche::CallbackChercher);
}

void WidgetRechercheAbstrait::BoutonRemplacer()
{
    ActualiserEtatPanneau();
    AppelleHote(&UtilisateurWidgetRecherche::CallbackRemplacer);
}

void WidgetRechercheAbstrait::BoutonRemplacerTout()
{
    ActualiserEtatPanneau();
    mesOptions |= CstRecherche::kBoucler | CstRecherche::kBas;
    AppelleHote(&UtilisateurWidgetRecherche::CallbackRemplacerTout);
}

void WidgetRechercheAbstrait::BoutonAnnulerRemplacerTout()
{
    AppelleHote(&UtilisateurWidgetRecherche::CallbackAnnulerRemplacerTout);
}

void WidgetRechercheAbstrait::NettoyerRecherche()
{
    AppelleHote(&UtilisateurWidgetRecherche::CallbackNettoyerRecherche);
    ActualiseOccurrences(0, 0);
}

void WidgetRechercheAbstrait::TexteDeRechercheChanger()
{
    monSensRecherche = CstRecherche::kVersLeBas;
    ActualiserEtatPanneau();
    mesOptions |= CstRecherche::kTexteEdite;
    AppelleHote(&UtilisateurWidgetRecherche::CallbackChercher);
}

void WidgetRechercheAbstrait::PriseBoutonAnnuler() {}

void WidgetRechercheAbstrait::AppelleHote(void (UtilisateurWidgetRecherche::*appel)())
{
    if (monCallback != nullptr)
        (monCallback->*appel)();
}
