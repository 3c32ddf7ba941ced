// galerie/SaisieAlerte.cpp
#include "SaisieAlerte.h"

#include "dialogs/DAlerteInfoMaison.h"

#include <QIcon>
#include <QWidget>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int kCoteImage = 64; // logical pixels, enough for the box to make it smaller

// An alert whose explanation is known beforehand: the library leaves it to the application.
template <class Alerte>
class AvecExplication : public Alerte
{
public:
    AvecExplication(UniChaine const & explication, Alerte const & alerte)
        : Alerte(alerte)
        , monExplication(explication)
    {
    }
    UniChaine DonneExplication() const override { return monExplication; }

private:
    UniChaine monExplication;
};

template <class Alerte>
std::unique_ptr<DAlerteInfo> Complete(Alerte alerte, SaisieAlerte const & saisie)
{
    alerte.texteRiche = saisie.texteRiche;
    alerte.libelleCaseACocher = saisie.libelleCase;
    alerte.dureeAffichage = saisie.duree;
    return std::make_unique<AvecExplication<Alerte>>(saisie.explication, alerte);
}

std::unique_ptr<DAlerteInfo> CreeInfo(SaisieAlerte const & saisie)
{
    if (saisie.type == DAlerteInfo::kMaison)
        return Complete(DAlerteInfoMaison(QIcon(u":/images/alertes.svg"_s).pixmap(kCoteImage),
                                          saisie.message, saisie.note, saisie.titre),
                        saisie);
    return Complete(DAlerteInfo(saisie.type, saisie.message, saisie.note, saisie.titre), saisie);
}

HWND DonneFenetreNative(QWidget const & widget)
{
    // NOLINTNEXTLINE(performance-no-int-to-ptr): a handle is a number that nobody dereferences
    return reinterpret_cast<HWND>(widget.window()->winId());
}

DDialogue::eBoutons LanceRetour(SaisieAlerte const & s, QWidget * parent, DAlerteInfo const & info)
{
    auto const & [l1, l2, l3, l4, l5] = s.labels;
    if (s.stockeur)
        return DAlerteRappel(parent, info, *s.stockeur, s.guid, s.boutons, s.defaut, s.echap, l1,
                             l2, l3, l4, l5);
    if (s.centrageNatif)
        return DAlerteCentrageNatif(DonneFenetreNative(*parent), info, s.boutons, s.defaut, s.echap,
                                    l1, l2, l3, l4, l5);
    return DAlerte(parent, info, s.boutons, s.defaut, s.echap, l1, l2, l3, l4, l5);
}

void LanceRappel(SaisieAlerte const & s, QWidget * parent, DAlerteInfo const & info,
                 RappelAlerte rappel)
{
    std::list<UniChaine> const labels(s.labels.begin(), s.labels.end());
    if (s.stockeur)
        DAlerteRappel(parent, info, *s.stockeur, s.guid, s.boutons, s.defaut, s.echap, labels,
                      std::move(rappel));
    else
        DAlerte(parent, info, s.boutons, s.defaut, s.echap, labels, std::move(rappel));
}

void LanceReceveur(SaisieAlerte const & s, QWidget * parent, DAlerteInfo const & info,
                   DDialogue::DAlerteReceveur const & receveur)
{
    auto const & [l1, l2, l3, l4, l5] = s.labels;
    if (s.stockeur)
        DAlerteRappel(parent, &receveur, info, *s.stockeur, s.guid, s.boutons, s.defaut, s.echap,
                      l1, l2, l3, l4, l5);
    else if (s.centrageNatif)
        // Not on the window: that form would end with the call.
        DAlerteCentrageNatif(&receveur, info);
    else
        DAlerte(parent, &receveur, info, s.boutons, s.defaut, s.echap, l1, l2, l3, l4, l5);
}

} // namespace

bool EstSansReponse(SaisieAlerte const & saisie)
{
    return saisie.type == DAlerteInfo::kEphemere || saisie.type == DAlerteInfo::kProgressionInfinie;
}

bool EstRefusee(SaisieAlerte const & saisie)
{
    return saisie.forme == SaisieAlerte::kRetour && EstSansReponse(saisie) &&
           !saisie.message.EstVide();
}

std::optional<DDialogue::eBoutons> Lance(SaisieAlerte const & saisie, QWidget * parent,
                                         DDialogue::DAlerteReceveur const & receveur,
                                         RappelAlerte rappel)
{
    std::unique_ptr<DAlerteInfo> const info = CreeInfo(saisie);
    switch (saisie.forme) {
    case SaisieAlerte::kRetour:
        return LanceRetour(saisie, parent, *info);
    case SaisieAlerte::kRappel:
        LanceRappel(saisie, parent, *info, std::move(rappel));
        break;
    case SaisieAlerte::kReceveur:
        LanceReceveur(saisie, parent, *info, receveur);
        break;
    }
    return std::nullopt;
}
