// galerie/EtapeVerification.cpp
#include "EtapeVerification.h"

#include "AssistantImport.h"
#include "ImportMotsVerification.h"
#include "PageRecherche.h"
#include "TraductionGalerie.h"

#include "controls/DListView.h"

#include <QCheckBox>
#include <QLabel>
#include <QLocale>
#include <QSignalBlocker>
#include <QStringListModel>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

EtapeVerification::EtapeVerification(AssistantImport & assistant, QString const & titre)
    : EtapeImport(assistant, titre)
{
    monResultat = new QLabel;
    monResultat->setObjectName(u"resultatVerification"_s);
    monResultat->setWordWrap(true);
    mesInconnus = new QStringListModel(this);
    maVue = new DListView;
    maVue->setObjectName(u"inconnus"_s);
    maVue->setAccessibleName(TraductionGalerie(TexteGalerie("Mots inconnus")));
    maVue->setModel(mesInconnus);
    maVue->setUniformItemSizes(true);
    maVue->setEditTriggers(QAbstractItemView::NoEditTriggers);
    monRetrait = new QCheckBox(TraductionGalerie(TexteGalerie("Retirer les mots inconn&us")));
    monRetrait->setObjectName(u"retrait"_s);
    PreteContenu()->addWidget(monResultat);
    PreteContenu()->addWidget(maVue, 1);
    PreteContenu()->addWidget(monRetrait);
    connect(monRetrait, &QCheckBox::toggled, this, &EtapeVerification::PriseRetrait,
            Qt::UniqueConnection);
}

bool EtapeVerification::BloqueAvance()
{
    EtapeImport::BloqueAvance();
    if (maVerification)
        monAvanceEstDemandee = true;
    return maVerification;
}

bool EtapeVerification::BloqueRetour()
{
    monAvanceEstDemandee = false; // no longer
    return EtapeImport::BloqueRetour();
}

bool EtapeVerification::PeutAvancer()
{
    PrendsOption(OptionsImport::kMotsRetenus, DonneRetenus());
    return EtapeImport::PeutAvancer();
}

void EtapeVerification::AbandonneAvance()
{
    monAvanceEstDemandee = false;
    EtapeImport::AbandonneAvance();
}

void EtapeVerification::Affiche()
{
    QSignalBlocker const retrait(monRetrait);
    monRetrait->setChecked(DonneOption(OptionsImport::kRetireInconnus).toBool());
    QStringList const mots = DonneOption(OptionsImport::kMotsTries).toStringList();
    if (DonneOption(OptionsImport::kMotsVerifies).toStringList() == mots)
        MontreResultat();
    else if (!maVerification || maVerification->DonneMots() != mots)
        Commence(mots);
}

QString EtapeVerification::DonneRefus() const
{
    return DonneRetenus().isEmpty()
               ? TraductionGalerie(TexteGalerie("Aucun mot ne reste : tous sont inconnus."))
               : QString();
}

QWidget * EtapeVerification::PreteChamp() const
{
    return monRetrait->isEnabled() ? static_cast<QWidget *>(monRetrait) : maVue;
}

void EtapeVerification::Commence(QStringList const & mots)
{
    delete maVerification;
    PrendsOption(OptionsImport::kMotsVerifies, QVariant());
    maVerification = new ImportMotsVerification(mots, PageRecherche::PreteMemoire().mots, this);
    connect(maVerification, &ImportMotsVerification::SignalAvance, this,
            &EtapeVerification::PriseAvancement, Qt::UniqueConnection);
    connect(maVerification, &ImportMotsVerification::SignalTermine, this,
            &EtapeVerification::PriseVerifie, Qt::UniqueConnection);
    mesInconnus->setStringList({});
    PriseAvancement();
}

void EtapeVerification::MontreResultat()
{
    auto const resultat =
        DonneOption(OptionsImport::kVerification).value<ImportMots::Verification>();
    auto const nombre = [](qsizetype valeur) { return UniChaine(QLocale().toString(valeur)); };
    mesInconnus->setStringList(resultat.inconnus.mid(0, ImportMots::kEcartesMontres));
    monRetrait->setEnabled(resultat.faite && !resultat.inconnus.isEmpty());
    monResultat->setText(
        resultat.faite
            ? TraductionGalerie(TexteGalerie("Mots connus : {1}. Mots inconnus : {2}."),
                                {nombre(resultat.connus.size()), nombre(resultat.inconnus.size())})
            : TraductionGalerie(TexteGalerie("Les mots français viennent du paquet {1}, qui n’est "
                                             "pas installé : rien n’est vérifié."),
                                {UniChaine("wfrench")}));
}

QStringList EtapeVerification::DonneRetenus() const
{
    auto const resultat =
        DonneOption(OptionsImport::kVerification).value<ImportMots::Verification>();
    return resultat.faite && monRetrait->isChecked()
               ? resultat.connus
               : DonneOption(OptionsImport::kMotsTries).toStringList();
}

void EtapeVerification::PriseAvancement()
{
    qsizetype const nombre = std::max<qsizetype>(maVerification->DonneMots().size(), 1);
    monResultat->setText(
        TraductionGalerie(TexteGalerie("Vérification en cours : {1} %."),
                          {UniChaine::DepuisNombre(static_cast<int>(
                              maVerification->DonneAvancement() * 100 / nombre))}));
}

void EtapeVerification::PriseVerifie()
{
    PrendsOption(OptionsImport::kVerification,
                 QVariant::fromValue(maVerification->DonneVerification()));
    PrendsOption(OptionsImport::kMotsVerifies, maVerification->DonneMots());
    maVerification->deleteLater(); // it is telling this
    maVerification = nullptr;
    MontreResultat();
    if (std::exchange(monAvanceEstDemandee, false))
        PreteAssistant().PriseBoutonSuivant();
}

void EtapeVerification::PriseRetrait(bool retire)
{
    PrendsOption(OptionsImport::kRetireInconnus, retire);
    LeveRefus();
}
