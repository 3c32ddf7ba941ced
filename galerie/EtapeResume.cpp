// galerie/EtapeResume.cpp
#include "EtapeResume.h"

#include "AssistantImport.h"
#include "TraductionGalerie.h"

#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace {
constexpr int kPremiersMots = 12;
} // namespace

EtapeResume::EtapeResume(AssistantImport & assistant, QString const & titre)
    : EtapeImport(assistant, titre)
{
    monNom = new QLineEdit;
    monNom->setObjectName(u"nom"_s);
    auto * const etiquette = new QLabel(TraductionGalerie(TexteGalerie("&Nom de la liste")));
    etiquette->setBuddy(monNom);
    auto * const grille = new QGridLayout;
    grille->addWidget(etiquette, 0, 0);
    grille->addWidget(monNom, 0, 1);
    maSource = AjouteLigne(*grille, TraductionGalerie(TexteGalerie("Source")));
    monNombre = AjouteLigne(*grille, TraductionGalerie(TexteGalerie("Mots gardés")));
    mesPremiers = AjouteLigne(*grille, TraductionGalerie(TexteGalerie("Premiers mots")));
    grille->setColumnStretch(1, 1);
    PreteContenu()->addLayout(grille);
    PreteContenu()->addStretch();
    connect(monNom, &QLineEdit::textEdited, this, &EtapeResume::PriseNom, Qt::UniqueConnection);
    // Next, the default button, has nowhere to go here.
    connect(monNom, &QLineEdit::returnPressed, &assistant, &DAssistant::PriseBoutonTermine,
            Qt::UniqueConnection);
}

void EtapeResume::EntreDansEtape()
{
    EtapeImport::EntreDansEtape();
    PreteAssistant().ActiveBoutonSuivant(false); // the last step
    VerifieNom();
}

bool EtapeResume::PeutTerminer()
{
    QString const refus = DonneRefus();
    MontreRefus(refus);
    if (refus.isEmpty())
        PrendsOption(OptionsImport::kNom, monNom->text().trimmed());
    return refus.isEmpty();
}

void EtapeResume::Affiche()
{
    QStringList const mots = DonneOption(OptionsImport::kMotsRetenus).toStringList();
    maSource->setText(DonneOption(OptionsImport::kEstColle).toBool()
                          ? TraductionGalerie(TexteGalerie("Texte collé"))
                          : DonneOption(OptionsImport::kChemin).toString());
    monNombre->setText(QLocale().toString(mots.size()));
    mesPremiers->setText(mots.mid(0, kPremiersMots).join(u", "_s) +
                         (mots.size() > kPremiersMots ? u"…"_s : QString()));
    QVariant const nom = DonneOption(OptionsImport::kNom);
    monNom->setText(nom.isValid() ? nom.toString() : ProposeNom());
}

QString EtapeResume::DonneRefus() const
{
    if (monNom->text().trimmed().isEmpty())
        return TraductionGalerie(TexteGalerie("La liste n’a pas de nom."));
    if (MemoireImports::Contient(monNom->text()))
        return TraductionGalerie(TexteGalerie("Une liste a déjà ce nom."));
    return {};
}

QWidget * EtapeResume::PreteChamp() const
{
    return monNom;
}

QLabel * EtapeResume::AjouteLigne(QGridLayout & grille, QString const & titre)
{
    auto * const valeur = new QLabel;
    valeur->setTextFormat(Qt::PlainText); // files and words may look like something else
    valeur->setWordWrap(true);
    valeur->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // whatever it names
    int const rangee = grille.rowCount();
    grille.addWidget(new QLabel(titre), rangee, 0, Qt::AlignTop);
    grille.addWidget(valeur, rangee, 1);
    return valeur;
}

// That of the file, with a number where it is taken.
QString EtapeResume::ProposeNom() const
{
    QString const base =
        DonneOption(OptionsImport::kEstColle).toBool()
            ? TraductionGalerie(TexteGalerie("Texte collé"))
            : QFileInfo(DonneOption(OptionsImport::kChemin).toString()).completeBaseName();
    QString nom = base;
    for (int i = 2; MemoireImports::Contient(nom); ++i)
        nom = u"%1 %2"_s.arg(base, QString::number(i));
    return nom;
}

void EtapeResume::VerifieNom()
{
    QString const refus = DonneRefus();
    MontreRefus(refus);
    PreteAssistant().ActiveBoutonTermine(refus.isEmpty());
}

void EtapeResume::PriseNom(QString const & nom)
{
    PrendsOption(OptionsImport::kNom, nom);
    VerifieNom();
}
