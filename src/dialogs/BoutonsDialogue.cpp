// dialogs/BoutonsDialogue.cpp
#include "dialogs/BoutonsDialogue_p.h"

#include <algorithm>

using namespace DDialogue;

namespace {
struct Description
{
    eBoutons bouton;
    char const * nom; // ASCII; an application reads it back, so no name ever changes
    QMessageBox::StandardButton standard;
};

constexpr Description kDescriptions[] = {
    {kBoutonAucun, "kBoutonAucun", QMessageBox::NoButton},
    {kBoutonOk, "kBoutonOk", QMessageBox::Ok},
    {kBoutonAnnuler, "kBoutonAnnuler", QMessageBox::Cancel},
    {kBoutonAppliquer, "kBoutonAppliquer", QMessageBox::Apply},
    {kBoutonFermer, "kBoutonFermer", QMessageBox::Close},
    {kBoutonSauvegarder, "kBoutonSauvegarder", QMessageBox::Save},
    {kBoutonSauvegarderTout, "kBoutonSauvegarderTout", QMessageBox::SaveAll},
    {kBoutonAide, "kBoutonAide", QMessageBox::Help},
    {kBoutonOui, "kBoutonOui", QMessageBox::Yes},
    {kBoutonOuiTout, "kBoutonOuiTout", QMessageBox::YesToAll},
    {kBoutonNon, "kBoutonNon", QMessageBox::No},
    {kBoutonNonTout, "kBoutonNonTout", QMessageBox::NoToAll},
    {kBoutonReessayer, "kBoutonReessayer", QMessageBox::Retry},
    {kBoutonIgnorer, "kBoutonIgnorer", QMessageBox::Ignore},
    {kBoutonContinuer, "kBoutonContinuer", QMessageBox::NoButton},
    {kBoutonEssayer, "kBoutonEssayer", QMessageBox::NoButton},
    {kBoutonMaison1, "kBoutonMaison1", QMessageBox::NoButton},
    {kBoutonMaison2, "kBoutonMaison2", QMessageBox::NoButton},
    {kBoutonMaison3, "kBoutonMaison3", QMessageBox::NoButton},
    {kBoutonMaison4, "kBoutonMaison4", QMessageBox::NoButton},
    {kBoutonMaison5, "kBoutonMaison5", QMessageBox::NoButton},
    {kBoutonLien, "kBoutonLien", QMessageBox::NoButton},
    {kBoutonMaisonElevee1, "kBoutonMaisonElevee1", QMessageBox::NoButton},
};
} // namespace

QString BoutonsDialogue::DonneNom(eBoutons bouton)
{
    auto const trouvee = std::ranges::find(kDescriptions, bouton, &Description::bouton);
    return trouvee == std::end(kDescriptions) ? QString() : QString::fromLatin1(trouvee->nom);
}

eBoutons BoutonsDialogue::DonneBouton(QString const & nom)
{
    auto const estNommay = [&nom](Description const & description) {
        return nom == QLatin1StringView(description.nom);
    };
    auto const trouvee = std::ranges::find_if(kDescriptions, estNommay);
    return trouvee == std::end(kDescriptions) ? kBoutonAucun : trouvee->bouton;
}

QMessageBox::StandardButton BoutonsDialogue::DonneBoutonStandard(eBoutons bouton)
{
    auto const trouvee = std::ranges::find(kDescriptions, bouton, &Description::bouton);
    return trouvee == std::end(kDescriptions) ? QMessageBox::NoButton : trouvee->standard;
}
