// dialogs/DDialogueAbs.cpp
#include "dialogs/DDialogueAbs.h"

#include "desktop/QWinWidget.h"
#include "dialogs/BoutonsDialogue_p.h"
#include "dialogs/DMessageBoxAvecCaseACocher.h"
#include "dialogs/StockageReponse.h"
#include "foundation/Polices.h"
#include "foundation/TraductionGui.h"

#include "noyau/ExecutionSilencieuse.h"
#include "noyau/JournalAbs.h"
#include "noyau/RoutinesBureau.h"
#include "noyau/RoutinesTexte.h"

#include <QApplication>
#include <QPointer>
#include <QPushButton>
#include <QStyle>

#include <algorithm>

using namespace DDialogue;
using namespace Qt::StringLiterals;

namespace {

// Leaving without an answer is no answer to remember.
constexpr int kReponsesJamaisEnregistrees = kBoutonAnnuler | kBoutonFermer | kBoutonAide;

QString DonneNomDeReponse(int reponse)
{
    switch (static_cast<eBoutons>(reponse)) {
    case kBoutonOk:
        return u"OK"_s;
    case kBoutonOui:
        return u"Oui"_s;
    case kBoutonNon:
        return u"Non"_s;
    case kBoutonAnnuler:
        return u"Annuler"_s;
    case kBoutonReessayer:
        return u"Réessayer"_s;
    default:
        return QString::number(static_cast<unsigned int>(reponse));
    }
}

/// An alert is one line of the journal, whatever its message holds.
UniChaine DonneTextePourJournal(int reponse, UniChaine const & message,
                                UniChaine const & texteDuStockage)
{
    QString texte = u"Réponse="_s + DonneNomDeReponse(reponse) + u'\t' + QString(message) + u'\t' +
                    QString(texteDuStockage);
    texte.replace(u'\n', u'\t').replace(u'\r', u'\t');
    return texte;
}

} // namespace

DDialogueAbs::DDialogueAbs(QWidget * parent, DAlerteReceveur const * receveur, bool synchrone,
                           DAlerteInfo const & info, StockageReponse const * stockage, int boutons,
                           eBoutons defaut, eBoutons echap, Labels const & labels,
                           RappelAlerte rappel, bool modalFenetre)
    : monParent(parent)
    , monReceveur(receveur)
    , monIdMessage(receveur ? receveur->DonneIdMessage() : -1)
    , monRappel(std::move(rappel))
    , monInfo(info)
    , monStockage(stockage ? std::make_unique<StockageReponse>(*stockage) : nullptr)
{
    qRegisterMetaType<eBoutons>("DDialogue::eBoutons"); // answers travel in variants
    if (monStockage && monStockage->JAfficheCaseACocher())
        maBoite = new DMessageBoxAvecCaseACocher(this, parent, info);
    else
        maBoite = new DMessageBox(this, parent, info);
    RegleFenetre(synchrone, modalFenetre);
    AjouteBoutonsStandards(boutons);
    AjouteBoutonsMaison(boutons, labels);
    DesigneBoutons(defaut, echap);
}

DDialogueAbs::~DDialogueAbs() = default;

bool DDialogueAbs::ExecutionEstSilencieuse()
{
    ExecutionSilencieuse const * const execution = ExecutionSilencieuse::Instance();
    return execution && execution->EstSilencieux();
}

eBoutons DDialogueAbs::ExecuteDialogue()
{
    // This object goes with its box: what the journal needs is taken beforehand.
    UniChaine const message = monInfo.DonneMessagePourJournalisation();
    UniChaine const texteDuStockage = DonneTexteDuStockage();
    Issue issue = DonneIssue();
    UniChaine texte;
    if (issue.nature == eIssue::kMontree) {
        auto const donnee = std::make_shared<int>(issue.reponse);
        QObject::connect(maBoite, &DMessageBox::SignalEnFermeture, maBoite,
                         [donnee](eBoutons reponse) { *donnee = static_cast<int>(reponse); });
        maBoite->exec(); // destroys the box
        issue.reponse = *donnee;
        texte = DonneTextePourJournal(issue.reponse, message, texteDuStockage);
    } else {
        QPointer<DMessageBox> const boite = maBoite;
        boite->PriseResultat(QVariant::fromValue(static_cast<eBoutons>(issue.reponse)));
        texte = DonneTextePourJournal(issue.reponse, message, texteDuStockage);
        ExecutionSilencieuse::JournaliseDialogueSilencieux(texte);
        // At once, as after exec(): a script that raises alerts in a loop need not return to the
        // event loop to be rid of them.
        delete boite;
    }
    static constexpr char const * kLibelles[] = {"Dialogue modal.", "Dialogue déjà répondu.",
                                                 "Dialogue silencieux."};
    JournaliseSiActif(UniChaine(kLibelles[static_cast<int>(issue.nature)]) + texte);
    return static_cast<eBoutons>(issue.reponse);
}

void DDialogueAbs::AfficheAsynchrone()
{
    UniChaine const message = monInfo.DonneMessagePourJournalisation();
    UniChaine const texteDuStockage = DonneTexteDuStockage();
    Issue const issue = DonneIssue();
    UniChaine const texte = DonneTextePourJournal(issue.reponse, message, texteDuStockage);
    if (issue.nature == eIssue::kMontree) {
        maBoite->show();
    } else {
        Q_EMIT maBoite->SignalDejaRepondu(
            QVariant::fromValue(static_cast<eBoutons>(issue.reponse)));
        ExecutionSilencieuse::JournaliseDialogueSilencieux(texte);
    }
    static constexpr char const * kLibelles[] = {"Dialogue asynchrone non répondu",
                                                 "Dialogue asynchrone déjà répondu.",
                                                 "Dialogue asynchrone silencieux."};
    JournaliseSiActif(UniChaine(kLibelles[static_cast<int>(issue.nature)]) + texte);
}

int DDialogueAbs::TransmetsReponse(int reponse)
{
    if (monStockage && maBoite->CaseEstCochee() && !(reponse & DonneMasqueRefusay()))
        monStockage->ActualiseReponse(reponse);
    if (monReceveur) {
        // By reference, and the receiver may destroy this object while it reads it.
        int const idMessage = monIdMessage;
        // The receiver is passed around as const and answered all the same.
        const_cast<DAlerteReceveur *>(monReceveur)->TraiteReponse(idMessage, reponse);
    } else if (RappelAlerte const rappel = monRappel) // a copy: the call may destroy this object
    {
        rappel(static_cast<eBoutons>(reponse));
    }
    return reponse;
}

int DDialogueAbs::DonneIdentifiant(QAbstractButton const * bouton) const
{
    auto const trouvay = std::find_if(mesBoutons.crbegin(), mesBoutons.crend(),
                                      [bouton](auto const & b) { return b.second == bouton; });
    return trouvay == mesBoutons.crend() ? 0 : trouvay->first;
}

UniChaine DDialogueAbs::DonneStyleSheet(QFont const & font)
{
    using RoutinesGeneralesQt::ModulateurFont;
    auto const pixels = [&font](double difference) {
        return QString::number(ModulateurFont::Instance()
                                   ->DonneFontPointVersPixelsAvecDiff(font, difference)
                                   .pixelSize());
    };
    QString const modele =
        RoutinesGeneralesQt::ContenuFichier(u":/Style/StyleGeneralGuiPrive.qss"_s);
    return modele.arg(pixels(2.0), pixels(0.0), font.family());
}

void DDialogueAbs::RegleFenetre(bool synchrone, bool modalFenetre)
{
    if (monReceveur)
        maBoite->setWindowModality(monParent ? Qt::WindowModal : Qt::NonModal);
    else
        maBoite->setWindowModality(synchrone && !modalFenetre ? Qt::ApplicationModal
                                                              : Qt::WindowModal);
    Qt::WindowFlags options = maBoite->windowFlags() & ~Qt::WindowContextHelpButtonHint;
    bool const estNotificationLibre =
        monInfo.DonneTypeDialogue() == DAlerteInfo::kNotification && !monParent;
    if (estNotificationLibre || qobject_cast<QWinWidget *>(monParent))
        options |= Qt::WindowStaysOnTopHint;
    maBoite->setWindowFlags(options);
    maBoite->setAttribute(Qt::WA_DeleteOnClose);
}

void DDialogueAbs::AjouteBoutonsStandards(int boutons)
{
    for (int bit = kBoutonOk; bit <= static_cast<int>(kBoutonIgnorer); bit <<= 1) {
        if (boutons & bit) {
            auto const standard = BoutonsDialogue::DonneBoutonStandard(static_cast<eBoutons>(bit));
            mesBoutons.append({bit, maBoite->addButton(standard)});
        }
    }
}

void DDialogueAbs::AjouteBoutonsMaison(int boutons, Labels const & labels)
{
    UniChaine const continuer = TraductionGui(TexteGui("Continuer"));
    UniChaine const essayer = TraductionGui(TexteGui("Essayer"));
    struct
    {
        eBoutons identifiant;
        UniChaine const & label;
        QMessageBox::ButtonRole role;
    } const descriptions[] = {
        {kBoutonContinuer, continuer, QMessageBox::AcceptRole},
        {kBoutonEssayer, essayer, QMessageBox::ActionRole},
        {kBoutonMaison1, labels[0], QMessageBox::ActionRole},
        {kBoutonMaisonElevee1, labels[0], QMessageBox::ActionRole},
        {kBoutonMaison2, labels[1], QMessageBox::ActionRole},
        {kBoutonMaison3, labels[2], QMessageBox::ActionRole},
        {kBoutonMaison4, labels[3], QMessageBox::ActionRole},
        {kBoutonMaison5, labels[4], QMessageBox::ActionRole},
    };
    for (auto const & [identifiant, label, role] : descriptions) {
        if (!(boutons & static_cast<int>(identifiant)) || label.EstVide())
            continue;
        QAbstractButton * bouton = nullptr;
        if (identifiant == kBoutonMaisonElevee1) {
            bouton = CreeBoutonElevay(label);
            maBoite->addButton(bouton, role);
        } else {
            bouton = maBoite->addButton(label, role);
        }
        mesBoutons.append({static_cast<int>(identifiant), bouton});
    }
}

QPushButton * DDialogueAbs::CreeBoutonElevay(UniChaine const & label) const
{
    auto * const bouton =
        new QPushButton(QApplication::style()->standardIcon(QStyle::SP_VistaShield), label);
    bouton->setEnabled(RoutinesGeneralesQt::DonneUtilisateurPeutExecuterElevay());
    return bouton;
}

void DDialogueAbs::DesigneBoutons(eBoutons defaut, eBoutons echap)
{
    for (auto const & [identifiant, bouton] : std::as_const(mesBoutons)) {
        if (identifiant == static_cast<int>(defaut))
            maBoite->setDefaultButton(qobject_cast<QPushButton *>(bouton));
        if (identifiant == static_cast<int>(echap))
            maBoite->setEscapeButton(bouton);
    }
}

bool DDialogueAbs::SeraMontree() const
{
    return DonneReponseEnregistree() == kBoutonAucun && !ExecutionEstSilencieuse();
}

DDialogueAbs::Issue DDialogueAbs::DonneIssue() const
{
    if (eBoutons const reponse = DonneReponseEnregistree(); reponse != kBoutonAucun)
        return {eIssue::kDejaRepondue, static_cast<int>(reponse)};
    if (ExecutionEstSilencieuse())
        return {eIssue::kSilencieuse, DonneIdentifiant(maBoite->defaultButton())};
    return {eIssue::kMontree, static_cast<int>(kBoutonAucun)};
}

eBoutons DDialogueAbs::DonneReponseEnregistree() const
{
    return monStockage ? monStockage->DonneReponseEnregistree() : kBoutonAucun;
}

UniChaine DDialogueAbs::DonneTexteDuStockage() const
{
    return monStockage ? monStockage->DonneMessagePourJournalisation() : UniChaine();
}

int DDialogueAbs::DonneMasqueRefusay() const
{
    int echap = static_cast<int>(kBoutonAucun);
    if (QAbstractButton const * const bouton = maBoite->escapeButton())
        echap = DonneIdentifiant(bouton);
    // An OK that also ends on Escape is meant: only leaving without it is not.
    if (echap == static_cast<int>(kBoutonOk))
        echap = static_cast<int>(kBoutonAnnuler);
    return echap | kReponsesJamaisEnregistrees;
}
