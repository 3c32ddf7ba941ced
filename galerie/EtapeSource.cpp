// galerie/EtapeSource.cpp
#include "EtapeSource.h"

#include "AssistantImport.h"
#include "ImportMots.h"
#include "ImportMotsLecture.h"
#include "TraductionGalerie.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

bool ContientDesMots(QByteArray const & octets)
{
    QString const texte =
        ImportMots::Decode(octets, ImportMots::DevineCodage(octets)).value_or(QString());
    return std::any_of(texte.begin(), texte.end(),
                       [](QChar signe) { return signe.isLetterOrNumber(); });
}

} // namespace

EtapeSource::EtapeSource(AssistantImport & assistant, QString const & titre)
    : EtapeImport(assistant, titre)
{
    monChoixFichier = new QRadioButton(TraductionGalerie(TexteGalerie("Un &fichier")));
    monChoixFichier->setObjectName(u"choixFichier"_s);
    monChoixTexte = new QRadioButton(TraductionGalerie(TexteGalerie("Un &texte collé")));
    monChoixTexte->setObjectName(u"choixTexte"_s);
    monTexte = new QPlainTextEdit;
    monTexte->setObjectName(u"texteColle"_s);
    monTexte->setAccessibleName(TraductionGalerie(TexteGalerie("Texte collé")));
    monTexte->setPlaceholderText(
        TraductionGalerie(TexteGalerie("Un mot par ligne, ou séparés par des virgules")));
    monTexte->setTabChangesFocus(true);
    // To wrap a line of a million characters takes Qt a minute.
    monTexte->setLineWrapMode(QPlainTextEdit::NoWrap);
    monAvancement = new QLabel(TraductionGalerie(TexteGalerie("Lecture du fichier…")));
    monAvancement->setObjectName(u"explicationPage"_s);
    monAvancement->hide();

    PreteContenu()->addWidget(monChoixFichier);
    PreteContenu()->addLayout(CreeFichier());
    PreteContenu()->addWidget(monChoixTexte);
    PreteContenu()->addWidget(monTexte, 1);
    PreteContenu()->addWidget(monAvancement);
    Branche();
}

QLayout * EtapeSource::CreeFichier()
{
    monChemin = new QLineEdit;
    monChemin->setObjectName(u"chemin"_s);
    monChemin->setAccessibleName(TraductionGalerie(TexteGalerie("Chemin du fichier")));
    monChemin->setPlaceholderText(TraductionGalerie(TexteGalerie("Chemin du fichier")));
    monBoutonParcourir = new QPushButton(TraductionGalerie(TexteGalerie("&Parcourir…")));
    monBoutonParcourir->setObjectName(u"parcourir"_s);
    monBoutonParcourir->setAutoDefault(false); // Return goes on
    auto * const rangee = new QHBoxLayout;
    rangee->addWidget(monChemin, 1);
    rangee->addWidget(monBoutonParcourir);
    return rangee;
}

void EtapeSource::Branche()
{
    connect(monChoixTexte, &QRadioButton::toggled, this, &EtapeSource::PriseChoix,
            Qt::UniqueConnection);
    connect(monChemin, &QLineEdit::textChanged, this, &EtapeSource::PriseSaisie,
            Qt::UniqueConnection);
    connect(monTexte, &QPlainTextEdit::textChanged, this, &EtapeSource::PriseTexte,
            Qt::UniqueConnection);
    connect(monBoutonParcourir, &QPushButton::clicked, this, &EtapeSource::PriseParcourir,
            Qt::UniqueConnection);
}

bool EtapeSource::BloqueAvance()
{
    EtapeImport::BloqueAvance();
    if (monChoixTexte->isChecked() || monChemin->text().isEmpty() || FichierEstLu())
        return false;
    if (!maLecture) {
        MontreRefus(QString());
        maLecture = new ImportMotsLecture(monChemin->text(), this);
        connect(maLecture, &ImportMotsLecture::SignalTermine, this, &EtapeSource::PriseLu,
                Qt::UniqueConnection);
        monAvancement->show();
    }
    return true;
}

bool EtapeSource::PeutAvancer()
{
    if (monChoixTexte->isChecked()) {
        PrendsOption(OptionsImport::kOctets, monTexte->toPlainText().toUtf8());
        PrendsOption(OptionsImport::kOctetsDe, QString());
    }
    return EtapeImport::PeutAvancer();
}

void EtapeSource::AbandonneAvance()
{
    AbandonneLecture();
    EtapeImport::AbandonneAvance();
}

void EtapeSource::Affiche()
{
    QSignalBlocker const choix(monChoixTexte);
    QSignalBlocker const chemin(monChemin);
    QSignalBlocker const texte(monTexte);
    bool const estColle = DonneOption(OptionsImport::kEstColle).toBool();
    (estColle ? monChoixTexte : monChoixFichier)->setChecked(true);
    // Setting a text that is there already would lose the cursor and what can be undone.
    if (QString const voulu = DonneOption(OptionsImport::kChemin).toString();
        monChemin->text() != voulu)
        monChemin->setText(voulu);
    if (QString const voulu = DonneOption(OptionsImport::kTexte).toString();
        monTexte->toPlainText() != voulu)
        monTexte->setPlainText(voulu);
    ActualiseChamps();
}

QString EtapeSource::DonneRefus() const
{
    bool const avecMots = ContientDesMots(DonneOption(OptionsImport::kOctets).toByteArray());
    if (monChoixTexte->isChecked())
        return avecMots ? QString()
                        : TraductionGalerie(TexteGalerie("Le texte collé ne contient aucun mot."));
    if (monChemin->text().isEmpty())
        return TraductionGalerie(TexteGalerie("Aucun fichier n’est choisi."));
    return avecMots ? QString()
                    : TraductionGalerie(TexteGalerie("{1} ne contient aucun mot."),
                                        {UniChaine(QDir::toNativeSeparators(monChemin->text()))});
}

QWidget * EtapeSource::PreteChamp() const
{
    return monChoixTexte->isChecked() ? static_cast<QWidget *>(monTexte) : monChemin;
}

void EtapeSource::ActualiseChamps()
{
    bool const estColle = monChoixTexte->isChecked();
    monChemin->setEnabled(!estColle);
    monBoutonParcourir->setEnabled(!estColle);
    monTexte->setEnabled(estColle);
}

bool EtapeSource::FichierEstLu() const
{
    return DonneOption(OptionsImport::kOctetsDe).toString() == monChemin->text();
}

void EtapeSource::AbandonneLecture()
{
    delete maLecture;
    monAvancement->hide();
}

void EtapeSource::PriseChoix()
{
    ActualiseChamps();
    PriseSaisie();
    PreteChamp()->setFocus();
}

void EtapeSource::PriseSaisie()
{
    AbandonneLecture();
    PrendsOption(OptionsImport::kEstColle, monChoixTexte->isChecked());
    PrendsOption(OptionsImport::kChemin, monChemin->text());
    // The file may have been changed because of a refusal.
    PrendsOption(OptionsImport::kOctetsDe, QString());
    LeveRefus();
}

void EtapeSource::PriseTexte()
{
    PrendsOption(OptionsImport::kTexte, monTexte->toPlainText());
    PriseSaisie();
}

void EtapeSource::PriseParcourir()
{
    auto * const dialogue =
        new QFileDialog(this, TraductionGalerie(TexteGalerie("Ouvrir une liste de mots")),
                        QFileInfo(monChemin->text()).path());
    dialogue->setAttribute(Qt::WA_DeleteOnClose);
    dialogue->setFileMode(QFileDialog::ExistingFile);
    connect(dialogue, &QFileDialog::fileSelected, this, &EtapeSource::PriseFichierChoisi,
            Qt::UniqueConnection);
    dialogue->open();
}

void EtapeSource::PriseFichierChoisi(QString const & fichier)
{
    monChemin->setText(QDir::toNativeSeparators(fichier));
    PriseSaisie(); // also the same one again
}

void EtapeSource::PriseLu()
{
    ImportMotsLecture const & lecture = *maLecture;
    maLecture->deleteLater(); // it is telling this
    monAvancement->hide();
    if (lecture.DonneResultat() != ImportMotsLecture::kLu) {
        MontreRefus(lecture.DonneMessage());
        maLecture = nullptr;
        return;
    }
    PrendsOption(OptionsImport::kOctets, lecture.DonneOctets());
    PrendsOption(OptionsImport::kOctetsDe, monChemin->text());
    maLecture = nullptr;
    PreteAssistant().PriseBoutonSuivant();
}
