// tests/search/FrontalEspion.h
#pragma once

#include "search/HoteEspion.h"

// What the controls of the front end below say at each refresh.
inline constexpr auto kChaineLue = "lue";
inline constexpr auto kRemplacementLu = "remplacement lu";
inline constexpr short kOptionsLues = 0x12;

// A front end without controls, which records the virtual calls on it, with the direction that a
// refresh and a new text find.
class FrontalEspion : public WidgetRechercheAbstrait
{
public:
    using WidgetRechercheAbstrait::AfficheToi;
    using WidgetRechercheAbstrait::DonnePermetRemplacer;
    using WidgetRechercheAbstrait::PriseBoutonAnnuler;
    using WidgetRechercheAbstrait::RetiensChaineRecherche;
    using WidgetRechercheAbstrait::RetiensChaineRemplacement;
    using WidgetRechercheAbstrait::RetiensSensRecherche;
    using WidgetRechercheAbstrait::WidgetRechercheAbstrait;

    void AfficheMessageTexteIntrouvable(bool) const override {}
    void AfficheToi() override { journal << QStringLiteral("AfficheToi"); }
    void ActualiseOccurrences(int const & position, int const & total) override
    {
        journal << QStringLiteral("ActualiseOccurrences(%1, %2)").arg(position).arg(total);
    }
    void CacheToi() override { journal << QStringLiteral("CacheToi"); }
    QWidget * DonneMoiEnWidget() override { return nullptr; }
    void MetsChaineAChercher(UniChaine chaine) override
    {
        journal << QStringLiteral("MetsChaineAChercher(%1, %2)")
                       .arg(QString(chaine))
                       .arg(int(DonneSensRecherche()));
    }
    void ModifieSensRecherche(CstRecherche::eTypeRecherche type) override
    {
        journal << QStringLiteral("ModifieSensRecherche(%1)").arg(int(type));
        RetiensSensRecherche(type);
    }
    void PrendsChaineRecherche(QString const &) override
    {
        journal << QStringLiteral("PrendsChaineRecherche");
    }
    void PrendsChaineRemplacement(QString const &) override
    {
        journal << QStringLiteral("PrendsChaineRemplacement");
    }
    void PrendsFocus() override { journal << QStringLiteral("PrendsFocus"); }
    void PriseBoutonFermer() override {}

    QStringList journal;

protected:
    void ActualiserEtatPanneau() override
    {
        journal << QStringLiteral("ActualiserEtatPanneau(%1)").arg(int(DonneSensRecherche()));
        RetiensChaineRecherche(QString::fromLatin1(kChaineLue));
        RetiensChaineRemplacement(QString::fromLatin1(kRemplacementLu));
        PrendsOptions(kOptionsLues);
    }
    void PriseActualiserEtatPanneau() override {}
    void PriseBoutonChercher() override {}
    void PriseChercherSuivant() override {}
    void PriseChercherPrecedent() override {}
    void PriseBoutonRemplacerTout() override {}
    void PriseBoutonRemplacer() override {}
};

// A host that writes its calls into the journal of the front end, among the virtual calls.
class HoteDuFrontal
{
public:
    explicit HoteDuFrontal(FrontalEspion * frontal)
        : espion(frontal)
    {
        espion.pendantUnAppel = [frontal](QString const & nom) { frontal->journal << nom; };
    }

    HoteEspion espion;
};

// A front end in a state that no gesture leaves behind.
inline void Prepare(FrontalEspion & frontal, CstRecherche::eTypeRecherche sens)
{
    frontal.RetiensChaineRecherche(QStringLiteral("ancienne"));
    frontal.RetiensChaineRemplacement(QStringLiteral("ancien remplacement"));
    frontal.PrendsOptions(0x40);
    frontal.RetiensSensRecherche(sens);
}
