// galerie/AssistantImport.cpp
#include "AssistantImport.h"

#include "EtapeFormat.h"
#include "EtapeResume.h"
#include "EtapeSource.h"
#include "EtapeTri.h"
#include "EtapeVerification.h"
#include "TraductionGalerie.h"

#include "dialogs/DAlerte.h"
#include "noyau/DAlerteInfo.h"

#include <QAbstractItemView>
#include <QApplication>

#include <algorithm>

namespace {

constexpr QSize kTaille(660, 396); // logical pixels

constexpr int kMilieu = 128; // of the lightness, 0 to 255: texts of a dark theme are above

} // namespace

AssistantImport::AssistantImport(QWidget * parent)
    : DAssistant(parent)
{
    resize(kTaille);
    QStringList const titres = DonneTitres();
    mesEtapes = {new EtapeSource(*this, titres.at(0)), new EtapeFormat(*this, titres.at(1)),
                 new EtapeTri(*this, titres.at(2)), new EtapeVerification(*this, titres.at(3)),
                 new EtapeResume(*this, titres.at(4))};
    for (EtapeImport * const etape : std::as_const(mesEtapes))
        AjouteEtape(etape, false);
    MetsCouleursClaires();
}

QStringList AssistantImport::DonneTitres()
{
    return {TraductionGalerie(TexteGalerie("Source")), TraductionGalerie(TexteGalerie("Format")),
            TraductionGalerie(TexteGalerie("Tri")), TraductionGalerie(TexteGalerie("Vérification")),
            TraductionGalerie(TexteGalerie("Résumé"))};
}

SaisieImport AssistantImport::DonneSaisie()
{
    SaisieImport saisie;
    for (QLatin1StringView const cle : OptionsImport::kToutes)
        if (QVariant const valeur = DonneOption(cle); valeur.isValid())
            saisie.options.insert(cle, valeur);
    saisie.etape = monEtapeCourante;
    saisie.etapeMax = DonneMaxEtapeParcouru();
    saisie.geometrie = saveGeometry();
    return saisie;
}

void AssistantImport::Ouvre(SaisieImport const & saisie)
{
    for (auto option = saisie.options.begin(); option != saisie.options.end(); ++option)
        PrendsOption(option.key(), option.value());
    if (!saisie.geometrie.isEmpty())
        restoreGeometry(saisie.geometrie);
    show();
    while (monEtapeCourante < saisie.etapeMax && PriseBoutonSuivant()) {
    }
    if (monEtapeCourante < saisie.etapeMax)
        mesEtapes.at(monEtapeCourante)->AbandonneAvance();
    while (monEtapeCourante > saisie.etape)
        PriseBoutonPrecedent();
}

void AssistantImport::OuvrePourApercu(SaisieImport const & saisie)
{
    setAttribute(Qt::WA_DontShowOnScreen);
    Ouvre(saisie);
    hide();
}

bool AssistantImport::EstVierge()
{
    return DonneOption(OptionsImport::kChemin).toString().isEmpty() &&
           DonneOption(OptionsImport::kTexte).toString().isEmpty();
}

MemoireImports::Liste AssistantImport::DonneListe()
{
    return {DonneOption(OptionsImport::kNom).toString(),
            DonneOption(OptionsImport::kMotsRetenus).toStringList()};
}

void AssistantImport::NoteEtape(EtapeImport const & etape)
{
    monEtapeCourante =
        static_cast<int>(std::find(mesEtapes.begin(), mesEtapes.end(), &etape) - mesEtapes.begin());
    Q_EMIT SignalEtapeChangee(monEtapeCourante);
}

void AssistantImport::NoteFocus()
{
    monFocusEtaitDansLaListe =
        focusWidget() && qobject_cast<QAbstractItemView *>(focusWidget()) &&
        std::none_of(mesEtapes.begin(), mesEtapes.end(), [this](EtapeImport const * etape) {
            return etape->isAncestorOf(focusWidget());
        });
}

// Not by a form that blocks: the page, and the wizard with it, may go while the question is asked.
void AssistantImport::DemandeAbandon()
{
    DAlerteInfo const info(
        DAlerteInfo::kQuestion,
        UniChaine(TraductionGalerie(TexteGalerie("Abandonner l’importation ?"))),
        UniChaine(TraductionGalerie(TexteGalerie("Ce qui a été entré sera perdu."))));
    DAlerte(this, info, DDialogue::kBoutonMaison1 | DDialogue::kBoutonAnnuler,
            DDialogue::kBoutonAnnuler, DDialogue::kBoutonAnnuler,
            {UniChaine(TraductionGalerie(TexteGalerie("Abandonner")))},
            [this](DDialogue::eBoutons reponse) {
                if (reponse == DDialogue::kBoutonMaison1)
                    QMetaObject::invokeMethod(this, &QDialog::reject, Qt::QueuedConnection);
            });
}

// The window is white in every theme: texts and edges of a dark one would be lost on it.
void AssistantImport::MetsCouleursClaires()
{
    if (QApplication::palette().color(QPalette::WindowText).lightness() < kMilieu)
        return;
    QPalette couleurs = palette();
    QColor const texte(31, 35, 40);
    QColor const texteGris(120, 125, 133);
    QPalette const claires(QColor(239, 240, 242), QColor(Qt::white));
    for (auto const role : {QPalette::Button, QPalette::Light, QPalette::Midlight, QPalette::Dark,
                            QPalette::Mid, QPalette::Shadow, QPalette::Window, QPalette::Base})
        couleurs.setColor(role, claires.color(role));
    couleurs.setColor(QPalette::AlternateBase, QColor(246, 247, 249));
    couleurs.setColor(QPalette::PlaceholderText, texteGris);
    for (auto const role : {QPalette::ButtonText, QPalette::Text, QPalette::WindowText}) {
        couleurs.setColor(role, texte);
        couleurs.setColor(QPalette::Disabled, role, texteGris);
    }
    setPalette(couleurs);
    // Under a style sheet no widget takes the colours of its parent; those that have a sheet of
    // their own take them from the application's alone.
    for (QWidget * const widget : findChildren<QWidget *>())
        widget->setPalette(couleurs);
    setProperty("themeSombre", true);
}
