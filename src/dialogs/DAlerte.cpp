// dialogs/DAlerte.cpp
#include "dialogs/DAlerte.h"

#include "desktop/QWinWidget.h"
#include "dialogs/RoutageAlerte_p.h"
#include "dialogs/StockageReponse.h"

#include <memory>

using namespace DDialogue;

namespace {

using Labels = DDialogueAbs::Labels;

Labels LisLabels(std::list<UniChaine> const & labels)
{
    Labels resultat;
    auto suivant = labels.begin();
    for (UniChaine & label : resultat) {
        if (suivant == labels.end())
            break;
        label = *suivant++;
    }
    return resultat;
}

/// The blocking forms without a store.
eBoutons Demande(QWidget * parent, DAlerteInfo const & info, int boutons, eBoutons defaut,
                 eBoutons echap, Labels const & labels, bool strict)
{
    return DAlerteCommune(parent, nullptr, info, StockeurParDefaut, nullptr, boutons, defaut, echap,
                          true, labels, strict, {});
}

/// The forms with a receiver.
void DemandeAvecReceveur(QWidget * parent, DAlerteReceveur const * receveur,
                         DAlerteInfo const & info, eTypStockeur typeStockeur,
                         UniChaine const * guid, int boutons, eBoutons defaut, eBoutons echap,
                         Labels const & labels)
{
    DAlerteCommune(parent, receveur, info, typeStockeur, guid, boutons, defaut, echap, false,
                   labels, true, {});
}

/// The forms with a callback: not modal to the application, checked for themselves.
void DemandeAvecRappel(QWidget * parent, DAlerteInfo const & info, eTypStockeur typeStockeur,
                       UniChaine const * guid, int boutons, eBoutons defaut, eBoutons echap,
                       std::list<UniChaine> const & labels, RappelAlerte rappel)
{
    if (AlertePeutEtreLancee(info, false))
        LanceAlerte(parent, nullptr, info, typeStockeur, guid, boutons, defaut, echap, false,
                    LisLabels(labels), std::move(rappel), false);
}

} // namespace

// NOLINTBEGIN(performance-unnecessary-value-param): texts, lists and callbacks come by value, so
// that an application may give its own away.

eBoutons DAlerte(QWidget * parent, DAlerteInfo const & info)
{
    return Demande(parent, info, kBoutonOk, kBoutonOk, kBoutonOk, {}, false);
}

eBoutons DAlerte(QWidget * parent, DAlerteInfo const & info, int boutons, eBoutons defaut,
                 eBoutons echap, UniChaine const & label1, UniChaine const & label2,
                 UniChaine const & label3, UniChaine const & label4, UniChaine const & label5)
{
    return Demande(parent, info, boutons, defaut, echap, {label1, label2, label3, label4, label5},
                   false);
}

eBoutons DAlerteSynchroneEtModalFenetre(QWidget * parent, DAlerteInfo const & info)
{
    return DAlerte(parent, info);
}

eBoutons DAlerteSynchroneEtModalFenetre(QWidget * parent, DAlerteInfo const & info, int boutons,
                                        eBoutons defaut, eBoutons echap, UniChaine const & label1,
                                        UniChaine const & label2, UniChaine const & label3,
                                        UniChaine const & label4, UniChaine const & label5)
{
    return DAlerte(parent, info, boutons, defaut, echap, label1, label2, label3, label4, label5);
}

void DAlerte(QWidget * parent, DAlerteInfo const & info, int boutons, eBoutons defaut, eBoutons,
             RappelAlerte rappel)
{
    DAlerte(parent, info, boutons, defaut, kBoutonAnnuler, std::list<UniChaine>(),
            std::move(rappel));
}

void DAlerte(QWidget * parent, DAlerteInfo const & info, int boutons, eBoutons defaut,
             eBoutons echap, std::list<UniChaine> labels, RappelAlerte rappel)
{
    DemandeAvecRappel(parent, info, StockeurParDefaut, nullptr, boutons, defaut, echap, labels,
                      std::move(rappel));
}

void DAlerte(QWidget * parent, DAlerteReceveur const * receveur, DAlerteInfo const & info)
{
    DemandeAvecReceveur(parent, receveur, info, StockeurParDefaut, nullptr, kBoutonOk, kBoutonOk,
                        kBoutonOk, {});
}

void DAlerte(QWidget * parent, DAlerteReceveur const * receveur, DAlerteInfo const & info,
             int boutons, eBoutons defaut, eBoutons echap, UniChaine const & label1,
             UniChaine const & label2, UniChaine const & label3, UniChaine const & label4,
             UniChaine const & label5)
{
    DemandeAvecReceveur(parent, receveur, info, StockeurParDefaut, nullptr, boutons, defaut, echap,
                        {label1, label2, label3, label4, label5});
}

eBoutons DAlerteCentrageNatif(DAlerteInfo const & info)
{
    return DAlerteCentrageNatif(HWND(nullptr), info);
}

eBoutons DAlerteCentrageNatif(DAlerteInfo const & info, int boutons, eBoutons defaut,
                              eBoutons echap, UniChaine const & label1, UniChaine const & label2,
                              UniChaine const & label3, UniChaine const & label4,
                              UniChaine const & label5)
{
    return DAlerteCentrageNatif(HWND(nullptr), info, boutons, defaut, echap, label1, label2, label3,
                                label4, label5);
}

eBoutons DAlerteCentrageNatif(HWND fenetre, DAlerteInfo const & info)
{
    return DAlerteCentrageNatif(fenetre, info, kBoutonOk, kBoutonOk, kBoutonOk);
}

eBoutons DAlerteCentrageNatif(HWND fenetre, DAlerteInfo const & info, int boutons, eBoutons defaut,
                              eBoutons echap, UniChaine const & label1, UniChaine const & label2,
                              UniChaine const & label3, UniChaine const & label4,
                              UniChaine const & label5)
{
    if (!AlertePeutEtreLancee(info, true)) // before a widget is made on a thread that may have none
        return kBoutonAucun;
    auto const parent = fenetre ? std::make_unique<QWinWidget>(fenetre) : nullptr;
    return Demande(parent.get(), info, boutons, defaut, echap,
                   {label1, label2, label3, label4, label5}, true);
}

void DAlerteCentrageNatif(DAlerteReceveur const * receveur, DAlerteInfo const & info)
{
    DAlerteCentrageNatif(HWND(nullptr), receveur, info);
}

void DAlerteCentrageNatif(HWND fenetre, DAlerteReceveur const * receveur, DAlerteInfo const & info)
{
    if (info.DonneMessage().EstVide() || !AlertePeutEtreLancee(info, false))
        return;
    auto const demande = [&](QWidget * parent) {
        DemandeAvecReceveur(parent, receveur, info, StockeurParDefaut, nullptr, kBoutonOk,
                            kBoutonOk, kBoutonAucun, {});
    };
    if (!fenetre) {
        demande(nullptr);
        return;
    }
    // Deliberate: on the stack, so the box goes with it when the call returns.
    QWinWidget parent(fenetre);
    demande(&parent);
}

eBoutons DAlerteRappel(QWidget * parent, DAlerteInfo const & info, eTypStockeur typeStockeur,
                       UniChaine guid, int boutons, eBoutons defaut, eBoutons echap,
                       UniChaine const & label1, UniChaine const & label2, UniChaine const & label3,
                       UniChaine const & label4, UniChaine const & label5)
{
    return DAlerteCommune(parent, nullptr, info, typeStockeur, &guid, boutons, defaut, echap, true,
                          {label1, label2, label3, label4, label5}, true, {});
}

void DAlerteRappel(QWidget * parent, DAlerteInfo const & info, eTypStockeur typeStockeur,
                   UniChaine guid, int boutons, eBoutons defaut, eBoutons echap,
                   RappelAlerte rappel)
{
    DAlerteRappel(parent, info, typeStockeur, std::move(guid), boutons, defaut, echap,
                  std::list<UniChaine>(), std::move(rappel));
}

void DAlerteRappel(QWidget * parent, DAlerteInfo const & info, eTypStockeur typeStockeur,
                   UniChaine guid, int boutons, eBoutons defaut, eBoutons echap,
                   std::list<UniChaine> labels, RappelAlerte rappel)
{
    DemandeAvecRappel(parent, info, typeStockeur, &guid, boutons, defaut, echap, labels,
                      std::move(rappel));
}

void DAlerteRappel(QWidget * parent, DAlerteReceveur const * receveur, DAlerteInfo const & info,
                   eTypStockeur typeStockeur, UniChaine guid, int boutons, eBoutons defaut,
                   eBoutons echap, UniChaine const & label1, UniChaine const & label2,
                   UniChaine const & label3, UniChaine const & label4, UniChaine const & label5)
{
    DemandeAvecReceveur(parent, receveur, info, typeStockeur, &guid, boutons, defaut, echap,
                        {label1, label2, label3, label4, label5});
}

eBoutons DAlerteRappelSynchroneEtModalAFenetre(QWidget * parent, DAlerteInfo const & info,
                                               eTypStockeur typeStockeur, UniChaine guid,
                                               int boutons, eBoutons defaut, eBoutons echap,
                                               UniChaine const & label1, UniChaine const & label2,
                                               UniChaine const & label3, UniChaine const & label4,
                                               UniChaine const & label5)
{
    return DAlerteCommune(parent, nullptr, info, typeStockeur, &guid, boutons, defaut, echap, true,
                          {label1, label2, label3, label4, label5}, false, {});
}

// NOLINTEND(performance-unnecessary-value-param)

void DAlerteOublieToutesLesReponses(eTypStockeur typeStockeur)
{
    StockageReponse::ReinitialiseToutLeStockeur(typeStockeur);
}

bool DAlerteRappelDejaCochay(eTypStockeur typeStockeur, UniChaine const & guid)
{
    StockageReponse const * const stockage = StockageReponse::Instance(typeStockeur, guid);
    // A copy opens the settings anew, and so sees what another process has written since.
    return stockage && StockageReponse(*stockage).UtilisateurADejaRepondu();
}
