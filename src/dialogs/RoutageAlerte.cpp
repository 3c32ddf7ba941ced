// dialogs/RoutageAlerte.cpp
#include "dialogs/RoutageAlerte_p.h"

#include "dialogs/DAlerteEphemere_p.h"
#include "dialogs/DDialogueNotification.h"
#include "dialogs/DDialogueProgressionInfinie.h"
#include "dialogs/StockageReponse.h"
#include "dialogs/TextesAlerte_p.h"
#include "foundation/Demarrage.h"
#include "foundation/GeometrieEcran.h"

#include <QCoreApplication>
#include <QPixmap>

#include <list>

using namespace DDialogue;
using namespace Qt::StringLiterals;

namespace {

bool EstSansReponse(DAlerteInfo const & info)
{
    auto const type = info.DonneTypeDialogue();
    return type == DAlerteInfo::kEphemere || type == DAlerteInfo::kProgressionInfinie;
}

void AfficheBulle(QWidget * parent, DAlerteInfo const & info)
{
    QPixmap const image(u":/Images/fiole_32"_s); // the application's, if it has one
    if (!DDialogueAbs::ExecutionEstSilencieuse())
        DAlerteEphemere::Affiche(parent, info, image);
}

void AfficheProgression(QWidget * parent, DAlerteInfo const & info)
{
    if (DDialogueAbs::ExecutionEstSilencieuse())
        return;
    auto * const dialogue =
        new DDialogueProgressionInfinie(parent, info.DonneMessage(), DonneExplicationAvecNote(info),
                                        Qt::ToolTip | Qt::FramelessWindowHint);
    dialogue->adjustSize(); // a window has the size of its content once it is shown, too late here
    RoutinesFenetre::CentrageWidgetDansParentOuEcran(dialogue, false);
    dialogue->show();
}

bool AfficheToast(DAlerteInfo const & info, int boutons, eBoutons defaut, eBoutons echap,
                  DDialogueAbs::Labels const & labels, RappelAlerte const & rappel)
{
    return DDialogueNotification::PeutUtiliserAPIToastNotification() &&
           DDialogueNotification::Affiche(info, boutons, defaut, echap,
                                          std::list<UniChaine>(labels.begin(), labels.end()),
                                          rappel);
}

} // namespace

bool AlertePeutEtreLancee(DAlerteInfo const & info, bool synchrone)
{
    if (info.DonneMessage().EstVide())
        return true;
    if (synchrone && EstSansReponse(info))
        return false;
    return RoutinesGeneralesQt::EstThreadGraphique() && QCoreApplication::instance();
}

eBoutons DAlerteCommune(QWidget * parent, DAlerteReceveur const * receveur,
                        DAlerteInfo const & info, eTypStockeur typeStockeur, UniChaine const * guid,
                        int boutons, eBoutons defaut, eBoutons echap, bool synchrone,
                        DDialogueAbs::Labels const & labels, bool strict, RappelAlerte rappel)
{
    bool const deuxDestinataires = receveur && rappel;
    bool const reponseEnDouble =
        strict && synchrone && !EstSansReponse(info) && (receveur || rappel);
    bool const estVide = info.DonneMessage().EstVide();
    if (!estVide && (deuxDestinataires || reponseEnDouble))
        return kBoutonAucun;
    if (!AlertePeutEtreLancee(info, synchrone))
        return kBoutonAucun;
    return LanceAlerte(parent, receveur, info, typeStockeur, guid, boutons, defaut, echap,
                       synchrone, labels, std::move(rappel), !strict);
}

eBoutons LanceAlerte(QWidget * parent, DAlerteReceveur const * receveur, DAlerteInfo const & info,
                     eTypStockeur typeStockeur, UniChaine const * guid, int boutons,
                     eBoutons defaut, eBoutons echap, bool synchrone,
                     DDialogueAbs::Labels const & labels, RappelAlerte rappel, bool modalFenetre)
{
    switch (info.DonneTypeDialogue()) {
    case DAlerteInfo::kEphemere:
        AfficheBulle(parent, info);
        return kBoutonAucun;
    case DAlerteInfo::kProgressionInfinie:
        AfficheProgression(parent, info);
        return kBoutonAucun;
    case DAlerteInfo::kNotification:
        synchrone = false; // whatever the form: a notification does not interrupt
        if (AfficheToast(info, boutons, defaut, echap, labels, rappel))
            return kBoutonAucun;
        break;
    default:
        break;
    }
    StockageReponse const * const stockage =
        StockageReponse::Instance(typeStockeur, guid ? *guid : UniChaine());
    // Freed with its box.
    auto * const dialogue =
        new DDialogueAbs(parent, receveur, synchrone, info, stockage, boutons, defaut, echap,
                         labels, std::move(rappel), modalFenetre);
    if (synchrone)
        return dialogue->ExecuteDialogue();
    dialogue->AfficheAsynchrone();
    return kBoutonAucun;
}
