// dialogs/DDialogueNotification.cpp
#include "dialogs/DDialogueNotification.h"

#include "dialogs/BoutonsDialogue_p.h"
#include "dialogs/DAlerteNotification.h"
#include "dialogs/DocumentToast_p.h"
#include "dialogs/DorvelToastEventHandler_p.h"
#include "foundation/TraductionGui.h"

#include "noyau/RoutinesBureau.h"
#include "noyau/plateforme/PlateformeToasts.h"
#include "noyau/plateforme/ReferenceComptay.h"

#include <QMessageBox>
#include <QPushButton>

#include <memory>
#include <utility>

using namespace DDialogue;
using namespace Qt::StringLiterals;
using namespace Toasts;

namespace {
constexpr auto kClasseGestionnaire = "Windows.UI.Notifications.ToastNotificationManager"_L1;
constexpr auto kClasseToast = "Windows.UI.Notifications.ToastNotification"_L1;

// Deliberate: the bits between these two that are no button of ours are listed as well; they make
// an action without a text, whose answer is none.
QList<eBoutons> DonneListeBoutons(int masque)
{
    auto const bits = static_cast<unsigned>(masque);
    QList<eBoutons> boutons;
    for (unsigned bit = kBoutonOk; bit <= kBoutonLien; bit <<= 1) {
        if (bits & bit)
            boutons << static_cast<eBoutons>(bit);
    }
    if (bits & kBoutonMaisonElevee1)
        boutons << kBoutonMaisonElevee1;
    return boutons;
}

QString DonneLabel(std::list<UniChaine> const & labels, std::size_t indice)
{
    if (indice >= labels.size())
        return {};
    return *std::next(labels.begin(), static_cast<std::ptrdiff_t>(indice));
}

QString DonneLibelle(eBoutons bouton, std::list<UniChaine> const & labels)
{
    switch (bouton) {
    case kBoutonContinuer:
        return TraductionGui(TexteGui("Continuer"));
    case kBoutonEssayer:
        return TraductionGui(TexteGui("Essayer"));
    case kBoutonMaison1:
    case kBoutonMaisonElevee1:
        return DonneLabel(labels, 0);
    case kBoutonMaison2:
        return DonneLabel(labels, 1);
    case kBoutonMaison3:
        return DonneLabel(labels, 2);
    case kBoutonMaison4:
        return DonneLabel(labels, 3);
    case kBoutonMaison5:
        return DonneLabel(labels, 4);
    default:
        break;
    }
    auto const standard = BoutonsDialogue::DonneBoutonStandard(bouton);
    if (standard == QMessageBox::NoButton)
        return {};
    // The text that the box would show here and now: it is Qt's and the platform's to say.
    QMessageBox boite;
    return boite.addButton(standard)->text();
}

QList<ContenuToast::Action> DonneActions(int masque, std::list<UniChaine> const & labels)
{
    QList<eBoutons> const boutons = DonneListeBoutons(masque);
    // To press the toast itself is enough of an OK.
    if (boutons.isEmpty() || boutons == QList{kBoutonOk})
        return {};
    QList<ContenuToast::Action> actions;
    for (eBoutons const bouton : boutons) {
        // Every "&", a doubled one too: a toast has no mnemonics.
        QString const libelle = DonneLibelle(bouton, labels).remove(u'&');
        actions.append({libelle, BoutonsDialogue::DonneNom(bouton)});
    }
    return actions;
}

HRESULT CreeDocument(IToastNotificationManagerStatics * gestionnaire, ContenuToast const & contenu,
                     ReferenceComptay<IXmlDocument> & document)
{
    HRESULT const resultat = ExigeObjet(
        gestionnaire->GetTemplateContent(ToastImageAndText04, document.Recois()), document);
    return FAILED(resultat) ? resultat : RemplisDocumentToast(document.Prete(), contenu);
}

HRESULT CreeNotificateur(IToastNotificationManagerStatics * gestionnaire,
                         QString const & identifiantApplication,
                         ReferenceComptay<IToastNotifier> & notificateur)
{
    HRESULT resultat = ExigeObjet(
        gestionnaire->CreateToastNotifierWithId(identifiantApplication, notificateur.Recois()),
        notificateur);
    if (FAILED(resultat))
        return resultat;
    NotificationSetting reglage = NotificationSetting_Enabled;
    resultat = notificateur->get_Setting(&reglage);
    if (SUCCEEDED(resultat) && reglage != NotificationSetting_Enabled)
        return E_FAIL; // the user wants none from this application
    return resultat;
}

HRESULT CreeNotification(IXmlDocument * document, ReferenceComptay<IToastNotification> & toast)
{
    ReferenceComptay<IToastNotificationFactory> fabrique;
    HRESULT const resultat = ExigeObjet(
        PlateformeToasts::Courante().RoGetActivationFactory(kClasseToast, fabrique.Recois()),
        fabrique);
    if (FAILED(resultat))
        return resultat;
    return ExigeObjet(fabrique->CreateToastNotification(document, toast.Recois()), toast);
}

HRESULT Branche(IToastNotification * toast, DorvelToastEventHandler * gestionnaire)
{
    EventRegistrationToken jeton; // not kept: nothing is ever taken back
    HRESULT resultat = toast->add_Activated(gestionnaire, &jeton);
    if (SUCCEEDED(resultat))
        resultat = toast->add_Dismissed(gestionnaire, &jeton);
    if (SUCCEEDED(resultat))
        resultat = toast->add_Failed(gestionnaire, &jeton);
    return resultat;
}

// A restart of the machine takes the toast away: nobody is left to answer to.
HRESULT MetsExpiration(IToastNotification * toast)
{
    ReferenceComptay<IToastNotification6> notification;
    HRESULT const resultat = ExigeObjet(toast->QueryInterface(notification.Recois()), notification);
    return FAILED(resultat) ? resultat : notification->put_ExpiresOnReboot(true);
}

HRESULT Montre(IToastNotificationManagerStatics * gestionnaire, IXmlDocument * document,
               QString const & identifiantApplication, bool retirer,
               std::function<void(eBoutons const &)> rappel)
{
    ReferenceComptay<IToastNotifier> notificateur;
    HRESULT resultat = CreeNotificateur(gestionnaire, identifiantApplication, notificateur);
    if (FAILED(resultat))
        return resultat;
    ReferenceComptay<IToastNotification> toast;
    resultat = CreeNotification(document, toast);
    if (FAILED(resultat))
        return resultat;
    ReferenceComptay<DorvelToastEventHandler> const evenements(
        new DorvelToastEventHandler(std::move(rappel), notificateur.Prete(), retirer));
    resultat = Branche(toast.Prete(), evenements.Prete());
    if (SUCCEEDED(resultat))
        resultat = MetsExpiration(toast.Prete());
    return FAILED(resultat) ? resultat : notificateur->Show(toast.Prete());
}
} // namespace

bool DDialogueNotification::PeutUtiliserAPIToastNotification()
{
    return WindowsEstAuMoins(kWindows10);
}

// NOLINTBEGIN(performance-unnecessary-value-param): callers hand their list over
bool DDialogueNotification::Affiche(DAlerteInfo const & info, int boutons, eBoutons, eBoutons,
                                    std::list<UniChaine> labels,
                                    std::function<void(eBoutons const &)> rappel)
// NOLINTEND(performance-unnecessary-value-param)
{
    auto const * alerte = dynamic_cast<DAlerteNotification const *>(&info);
    std::unique_ptr<DAlerteNotification> temporaire;
    if (!alerte) {
        temporaire = std::make_unique<DAlerteNotification>(info);
        alerte = temporaire.get();
    }
    Raccourci::InfosPourRaccourci const raccourci = alerte->DonneInfosPourRaccourcis();
    if (!Raccourci::RaccourciProgrammesExiste(raccourci))
        return false;

    ReferenceComptay<IToastNotificationManagerStatics> gestionnaire;
    HRESULT const resultat = ExigeObjet(PlateformeToasts::Courante().RoGetActivationFactory(
                                            kClasseGestionnaire, gestionnaire.Recois()),
                                        gestionnaire);
    if (FAILED(resultat))
        return false;
    // The explanation is that of the caller's class, which the temporary alert does not have.
    ContenuToast const contenu{"file:///"_L1 + QString(alerte->DonneNomFichierImage()),
                               {info.DonneMessage(), info.DonneExplication()},
                               DonneActions(boutons, labels)};
    ReferenceComptay<IXmlDocument> document;
    if (FAILED(CreeDocument(gestionnaire.Prete(), contenu, document)))
        return false;
    // Exactly: a toast that the platform accepted but keeps from the user is none.
    return Montre(gestionnaire.Prete(), document.Prete(), raccourci.identifiantApplication,
                  boutons == kBoutonOk, std::move(rappel)) == S_OK;
}
