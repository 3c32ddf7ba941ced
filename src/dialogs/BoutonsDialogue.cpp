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

// No algorithm of std::ranges: its function object is a symbol of which there is one in a process,
// and the library that brings it can't be unloaded any more.
Description const * Cherche(eBoutons bouton)
{
    auto const * const trouvee =
        std::find_if(std::begin(kDescriptions), std::end(kDescriptions),
                     [bouton](Description const & d) { return d.bouton == bouton; });
    return trouvee == std::end(kDescriptions) ? nullptr : trouvee;
}
} // namespace

QString BoutonsDialogue::DonneNom(eBoutons bouton)
{
    Description const * const description = Cherche(bouton);
    return description ? QString::fromLatin1(description->nom) : QString();
}

eBoutons BoutonsDialogue::DonneBouton(QString const & nom)
{
    auto const estNommay = [&nom](Description const & description) {
        return nom == QLatin1StringView(description.nom);
    };
    auto const * const trouvee =
        std::find_if(std::begin(kDescriptions), std::end(kDescriptions), estNommay);
    return trouvee == std::end(kDescriptions) ? kBoutonAucun : trouvee->bouton;
}

QMessageBox::StandardButton BoutonsDialogue::DonneBoutonStandard(eBoutons bouton)
{
    Description const * const description = Cherche(bouton);
    return description ? description->standard : QMessageBox::NoButton;
}
