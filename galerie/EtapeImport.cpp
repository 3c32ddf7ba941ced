// galerie/EtapeImport.cpp
#include "EtapeImport.h"

#include "AssistantImport.h"
#include "TraductionGalerie.h"

#include <QAccessible>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {
constexpr int kMarge = 18;      // logical pixels, around a step
constexpr int kEspacement = 10; // logical pixels, between its parts
} // namespace

EtapeImport::EtapeImport(AssistantImport & assistant, QString const & titre)
    : monAssistant(assistant)
    , monTitre(titre)
{
    MetsTitre(
        TraductionGalerie(TexteGalerie("Importer une liste de mots – {1}"), {UniChaine(titre)}));
    monEntete = new QLabel;
    monEntete->setObjectName(u"titreEtape"_s);
    monContenu = new QVBoxLayout;
    monContenu->setSpacing(kEspacement);
    monRefus = new QLabel;
    monRefus->setObjectName(u"messageErreur"_s);
    monRefus->setTextFormat(Qt::PlainText); // it may name a file that looks like something else
    monRefus->setWordWrap(true);
    monRefus->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // whatever it names
    monRefus->hide();

    auto * const disposition = new QVBoxLayout(this);
    disposition->setContentsMargins(kMarge, kMarge, kMarge, kMarge);
    disposition->setSpacing(kEspacement);
    disposition->addWidget(monEntete);
    disposition->addLayout(monContenu, 1);
    disposition->addWidget(monRefus);
}

UniChaine EtapeImport::DonneTitreEtape()
{
    return monTitre;
}

void EtapeImport::EntreDansEtape()
{
    monEntete->setText(TraductionGalerie(
        TexteGalerie("{1} – {2}"), {monAssistant.DonneTitreGenerique(this), UniChaine(monTitre)}));
    MontreRefus(QString());
    Affiche();
    monAssistant.ActiveBoutonSuivant(true);
    if (!monAssistant.FocusEtaitDansLaListe())
        PreteChamp()->setFocus();
    monAssistant.NoteEtape(*this);
}

bool EtapeImport::PeutAvancer()
{
    QString const refus = DonneRefus();
    MontreRefus(refus);
    return refus.isEmpty();
}

bool EtapeImport::BloqueRetour()
{
    monAssistant.NoteFocus();
    return false;
}

bool EtapeImport::BloqueAvance()
{
    monAssistant.NoteFocus();
    return false;
}

bool EtapeImport::PeutFermer(QCloseEvent *)
{
    if (monAssistant.EstVierge())
        return true;
    monAssistant.DemandeAbandon();
    return false;
}

void EtapeImport::AbandonneAvance()
{
    LeveRefus();
}

QVariant EtapeImport::DonneOption(QLatin1StringView nom) const
{
    return monAssistant.DonneOption(nom);
}

void EtapeImport::PrendsOption(QLatin1StringView nom, QVariant const & valeur)
{
    monAssistant.PrendsOption(nom, valeur);
}

void EtapeImport::MontreRefus(QString const & refus)
{
    monRefus->setText(refus);
    monRefus->setVisible(!refus.isEmpty());
    if (refus.isEmpty())
        return;
    // Next is disabled now, and the focus has gone elsewhere: back to what there is to change.
    if (!monAssistant.FocusEtaitDansLaListe())
        PreteChamp()->setFocus();
    QAccessibleEvent alerte(monRefus, QAccessible::Alert);
    QAccessible::updateAccessibility(&alerte);
}

void EtapeImport::LeveRefus()
{
    MontreRefus(QString());
    monAssistant.ActiveBoutonSuivant(true);
}
