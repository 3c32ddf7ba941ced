// galerie/EtapeFormat.cpp
#include "EtapeFormat.h"

#include "SaisieImport.h"
#include "TraductionGalerie.h"

#include "controls/DTreeView.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QStandardItemModel>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kColonneMax = 99;
constexpr int kRangeesMontrees = 8;
constexpr int kColonnesMontrees = 6;
constexpr int kCaracteresMontres = 60; // of a cell: a line may have a million

} // namespace

EtapeFormat::EtapeFormat(AssistantImport & assistant, QString const & titre)
    : EtapeImport(assistant, titre)
{
    CreeChoix();
    CreeVue();
    monNombre = new QLabel;
    monNombre->setObjectName(u"nombreLu"_s);
    PreteContenu()->addLayout(CreeGrille());
    PreteContenu()->addWidget(maVue, 1);
    PreteContenu()->addWidget(monNombre);
    Branche();
}

void EtapeFormat::CreeChoix()
{
    monCodage = new QComboBox;
    monCodage->setObjectName(u"codage"_s);
    monCodage->addItem(u"UTF-8"_s, ImportMots::kUtf8);
    monCodage->addItem(u"Latin-1"_s, ImportMots::kLatin1);
    monSeparateur = new QComboBox;
    monSeparateur->setObjectName(u"separateur"_s);
    monSeparateur->addItem(TraductionGalerie(TexteGalerie("Fin de ligne")), ImportMots::kLigne);
    monSeparateur->addItem(TraductionGalerie(TexteGalerie("Virgule")), ImportMots::kVirgule);
    monSeparateur->addItem(TraductionGalerie(TexteGalerie("Point-virgule")),
                           ImportMots::kPointVirgule);
    monSeparateur->addItem(TraductionGalerie(TexteGalerie("Tabulation")), ImportMots::kTabulation);
    maColonne = new QSpinBox;
    maColonne->setObjectName(u"colonne"_s);
    maColonne->setRange(ImportMots::kToutesLesColonnes, kColonneMax);
    maColonne->setSpecialValueText(TraductionGalerie(TexteGalerie("Toutes")));
    monEnTete = new QCheckBox(TraductionGalerie(TexteGalerie("La première ligne est un &en-tête")));
    monEnTete->setObjectName(u"enTete"_s);
}

QLayout * EtapeFormat::CreeGrille()
{
    auto * const grille = new QGridLayout;
    struct
    {
        ChaineLocalisable texte;
        QWidget * champ;
    } const champs[] = {
        {TexteGalerie("&Codage"), monCodage},
        {TexteGalerie("&Séparateur"), monSeparateur},
        {TexteGalerie("C&olonne"), maColonne},
    };
    int colonne = 0;
    for (auto const & [texte, champ] : champs) {
        auto * const etiquette = new QLabel(TraductionGalerie(texte));
        etiquette->setBuddy(champ);
        grille->addWidget(etiquette, 0, colonne);
        grille->addWidget(champ, 1, colonne);
        grille->setColumnStretch(colonne++, 1);
    }
    grille->addWidget(monEnTete, 2, 0, 1, colonne);
    return grille;
}

void EtapeFormat::CreeVue()
{
    mesRangees = new QStandardItemModel(this);
    maVue = new DTreeView;
    maVue->setObjectName(u"rangees"_s);
    maVue->setAccessibleName(TraductionGalerie(TexteGalerie("Premières lignes")));
    maVue->setModel(mesRangees);
    maVue->setRootIsDecorated(false);
    maVue->setUniformRowHeights(true);
    maVue->setEditTriggers(QAbstractItemView::NoEditTriggers);
    maVue->setSelectionMode(QAbstractItemView::NoSelection);
}

void EtapeFormat::Branche()
{
    connect(monCodage, &QComboBox::currentIndexChanged, this, &EtapeFormat::PriseChangement,
            Qt::UniqueConnection);
    connect(monSeparateur, &QComboBox::currentIndexChanged, this, &EtapeFormat::PriseChangement,
            Qt::UniqueConnection);
    connect(maColonne, &QSpinBox::valueChanged, this, &EtapeFormat::PriseChangement,
            Qt::UniqueConnection);
    connect(monEnTete, &QCheckBox::toggled, this, &EtapeFormat::PriseChangement,
            Qt::UniqueConnection);
}

void EtapeFormat::Affiche()
{
    // What was chosen holds for the bytes that it was chosen for.
    QByteArray const octets = DonneOption(OptionsImport::kOctets).toByteArray();
    QVariant const pour = DonneOption(OptionsImport::kFormatPour);
    if (!pour.isValid() || pour.toByteArray() != octets) {
        PrendsOption(OptionsImport::kFormat, QVariant::fromValue(ImportMots::DevineFormat(octets)));
        PrendsOption(OptionsImport::kFormatPour, octets);
    }
    MetsFormat(DonneOption(OptionsImport::kFormat).value<ImportMots::Format>());
    // The bytes of what is pasted were made here.
    monCodage->setEnabled(!DonneOption(OptionsImport::kEstColle).toBool());
    Calcule();
}

QString EtapeFormat::DonneRefus() const
{
    if (!DonneTexte())
        return TraductionGalerie(TexteGalerie("Ce texte n’est pas en {1}."),
                                 {UniChaine(monCodage->currentText())});
    if (DonneOption(OptionsImport::kMots).toStringList().isEmpty())
        return TraductionGalerie(TexteGalerie("Ainsi lu, le texte ne contient aucun mot."));
    return {};
}

QWidget * EtapeFormat::PreteChamp() const
{
    return monCodage->isEnabled() ? monCodage : monSeparateur;
}

ImportMots::Format EtapeFormat::DonneFormat() const
{
    ImportMots::Format format;
    format.codage = static_cast<ImportMots::eCodage>(monCodage->currentData().toInt());
    format.separateur = static_cast<ImportMots::eSeparateur>(monSeparateur->currentData().toInt());
    format.colonne = maColonne->value();
    format.avecEnTete = monEnTete->isChecked();
    return format;
}

void EtapeFormat::MetsFormat(ImportMots::Format const & format)
{
    QSignalBlocker const codage(monCodage);
    QSignalBlocker const separateur(monSeparateur);
    QSignalBlocker const colonne(maColonne);
    QSignalBlocker const enTete(monEnTete);
    monCodage->setCurrentIndex(monCodage->findData(format.codage));
    monSeparateur->setCurrentIndex(monSeparateur->findData(format.separateur));
    maColonne->setValue(format.colonne);
    monEnTete->setChecked(format.avecEnTete);
}

std::optional<QString> EtapeFormat::DonneTexte() const
{
    return ImportMots::Decode(DonneOption(OptionsImport::kOctets).toByteArray(),
                              DonneFormat().codage);
}

void EtapeFormat::MontreRangees(QString const & texte)
{
    ImportMots::Format const format = DonneFormat();
    mesRangees->clear();
    QStringList titres;
    int rang = 0;
    for (QStringList const & cellules :
         ImportMots::DonneRangees(texte, format.separateur, kRangeesMontrees)) {
        QList<QStandardItem *> rangee;
        bool const estEnTete = format.avecEnTete && rang++ == 0;
        for (int i = 0; i < std::min<int>(static_cast<int>(cellules.size()), kColonnesMontrees);
             ++i) {
            auto * const item = new QStandardItem(cellules.at(i).left(kCaracteresMontres));
            if (estEnTete || !format.PrendsColonne(i + 1))
                item->setForeground(palette().brush(QPalette::PlaceholderText));
            rangee.append(item);
            if (titres.size() <= i)
                titres.append(TraductionGalerie(TexteGalerie("Colonne {1}"),
                                                {UniChaine::DepuisNombre(i + 1)}));
        }
        mesRangees->appendRow(rangee);
    }
    mesRangees->setHorizontalHeaderLabels(titres);
    maVue->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
}

// A few hundredths of a second for the words of a dictionary.
void EtapeFormat::Calcule()
{
    QString const texte = DonneTexte().value_or(QString());
    QStringList const mots = ImportMots::DonneMots(texte, DonneFormat());
    PrendsOption(OptionsImport::kMots, mots);
    maColonne->setEnabled(DonneFormat().separateur != ImportMots::kLigne);
    MontreRangees(texte);
    monNombre->setText(TraductionPlurielGalerie(TextePlurielGalerie("{1} mot lu", "{1} mots lus"),
                                                static_cast<int>(mots.size())));
}

void EtapeFormat::PriseChangement()
{
    PrendsOption(OptionsImport::kFormat, QVariant::fromValue(DonneFormat()));
    Calcule();
    LeveRefus();
}
