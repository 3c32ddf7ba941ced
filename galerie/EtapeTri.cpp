// galerie/EtapeTri.cpp
#include "EtapeTri.h"

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

#include <numeric>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLongueurProposee = 20; // characters, the most that a shortest word may have

QString DonneRaison(ImportMots::eMotif motif)
{
    switch (motif) {
    case ImportMots::kDoublon:
        return TraductionGalerie(TexteGalerie("Doublon"));
    case ImportMots::kCourt:
        return TraductionGalerie(TexteGalerie("Trop court"));
    case ImportMots::kLong:
        return TraductionGalerie(TexteGalerie("Trop long"));
    case ImportMots::kChiffre:
        return TraductionGalerie(TexteGalerie("Avec des chiffres"));
    case ImportMots::kFinMotifs:
        break;
    }
    return {};
}

} // namespace

EtapeTri::EtapeTri(AssistantImport & assistant, QString const & titre)
    : EtapeImport(assistant, titre)
{
    CreeChoix();
    CreeVue();
    mesNombres = new QLabel;
    mesNombres->setObjectName(u"nombresTri"_s);
    PreteContenu()->addLayout(CreeGrille());
    PreteContenu()->addWidget(mesNombres);
    PreteContenu()->addWidget(maVue, 1);
    Branche();
}

void EtapeTri::CreeChoix()
{
    maCasse = new QComboBox;
    maCasse->setObjectName(u"casse"_s);
    maCasse->addItem(TraductionGalerie(TexteGalerie("Laissée telle quelle")),
                     ImportMots::kCasseGardee);
    maCasse->addItem(TraductionGalerie(TexteGalerie("Tout en minuscules")),
                     ImportMots::kMinuscules);
    maCasse->addItem(TraductionGalerie(TexteGalerie("Tout en majuscules")),
                     ImportMots::kMajuscules);
    maLongueur = new QSpinBox;
    maLongueur->setObjectName(u"longueurMin"_s);
    maLongueur->setRange(1, kLongueurProposee);
    mesDoublons = new QCheckBox(TraductionGalerie(TexteGalerie("Retirer les &doublons")));
    mesDoublons->setObjectName(u"doublons"_s);
    mesChiffres =
        new QCheckBox(TraductionGalerie(TexteGalerie("Retirer les mots avec des c&hiffres")));
    mesChiffres->setObjectName(u"chiffres"_s);
}

QLayout * EtapeTri::CreeGrille()
{
    auto * const etiquetteCasse = new QLabel(TraductionGalerie(TexteGalerie("C&asse")));
    etiquetteCasse->setBuddy(maCasse);
    auto * const etiquetteLongueur =
        new QLabel(TraductionGalerie(TexteGalerie("Longueur &minimale")));
    etiquetteLongueur->setBuddy(maLongueur);
    auto * const grille = new QGridLayout;
    grille->addWidget(etiquetteCasse, 0, 0);
    grille->addWidget(maCasse, 1, 0);
    grille->addWidget(etiquetteLongueur, 0, 1);
    grille->addWidget(maLongueur, 1, 1);
    grille->addWidget(mesDoublons, 2, 0);
    grille->addWidget(mesChiffres, 2, 1);
    grille->setColumnStretch(0, 1);
    grille->setColumnStretch(1, 1);
    return grille;
}

void EtapeTri::CreeVue()
{
    mesEcartes = new QStandardItemModel(this);
    maVue = new DTreeView;
    maVue->setObjectName(u"ecartes"_s);
    maVue->setAccessibleName(TraductionGalerie(TexteGalerie("Mots écartés")));
    maVue->setModel(mesEcartes);
    maVue->setRootIsDecorated(false);
    maVue->setUniformRowHeights(true);
    maVue->setEditTriggers(QAbstractItemView::NoEditTriggers);
    maVue->setSelectionMode(QAbstractItemView::NoSelection);
    maVue->AfficheMessageSiVide(TraductionGalerie(TexteGalerie("Aucun mot n’est écarté.")));
}

void EtapeTri::Branche()
{
    connect(maCasse, &QComboBox::currentIndexChanged, this, &EtapeTri::PriseChangement,
            Qt::UniqueConnection);
    connect(maLongueur, &QSpinBox::valueChanged, this, &EtapeTri::PriseChangement,
            Qt::UniqueConnection);
    connect(mesDoublons, &QCheckBox::toggled, this, &EtapeTri::PriseChangement,
            Qt::UniqueConnection);
    connect(mesChiffres, &QCheckBox::toggled, this, &EtapeTri::PriseChangement,
            Qt::UniqueConnection);
}

void EtapeTri::Affiche()
{
    // Made by default until something is chosen.
    MetsTri(DonneOption(OptionsImport::kTri).value<ImportMots::Tri>());
    Calcule();
}

QString EtapeTri::DonneRefus() const
{
    return DonneOption(OptionsImport::kMotsTries).toStringList().isEmpty()
               ? TraductionGalerie(TexteGalerie("Aucun mot ne reste après ce tri."))
               : QString();
}

QWidget * EtapeTri::PreteChamp() const
{
    return maCasse;
}

ImportMots::Tri EtapeTri::DonneTri() const
{
    ImportMots::Tri tri;
    tri.casse = static_cast<ImportMots::eCasse>(maCasse->currentData().toInt());
    tri.longueurMin = maLongueur->value();
    tri.sansDoublons = mesDoublons->isChecked();
    tri.sansChiffres = mesChiffres->isChecked();
    return tri;
}

void EtapeTri::MetsTri(ImportMots::Tri const & tri)
{
    QSignalBlocker const casse(maCasse);
    QSignalBlocker const longueur(maLongueur);
    QSignalBlocker const doublons(mesDoublons);
    QSignalBlocker const chiffres(mesChiffres);
    maCasse->setCurrentIndex(maCasse->findData(tri.casse));
    maLongueur->setValue(tri.longueurMin);
    mesDoublons->setChecked(tri.sansDoublons);
    mesChiffres->setChecked(tri.sansChiffres);
}

// Some hundredths of a second for the words of a dictionary.
void EtapeTri::Calcule()
{
    ImportMots::ResultatTri const resultat =
        ImportMots::Trie(DonneOption(OptionsImport::kMots).toStringList(), DonneTri());
    PrendsOption(OptionsImport::kMotsTries, resultat.gardes);
    auto const nombre = [](qsizetype valeur) { return UniChaine(QLocale().toString(valeur)); };
    mesNombres->setText(TraductionGalerie(
        TexteGalerie("Mots gardés : {1}. Mots écartés : {2}."),
        {nombre(resultat.gardes.size()),
         nombre(std::accumulate(resultat.nombres.begin(), resultat.nombres.end(), 0))}));

    mesEcartes->clear();
    mesEcartes->setHorizontalHeaderLabels(
        {TraductionGalerie(TexteGalerie("Mot écarté")), TraductionGalerie(TexteGalerie("Raison"))});
    for (ImportMots::MotEcarte const & ecarte : resultat.ecartes)
        mesEcartes->appendRow(
            {new QStandardItem(ecarte.mot), new QStandardItem(DonneRaison(ecarte.motif))});
    maVue->header()->setSectionResizeMode(QHeaderView::Stretch);
}

void EtapeTri::PriseChangement()
{
    PrendsOption(OptionsImport::kTri, QVariant::fromValue(DonneTri()));
    Calcule();
    LeveRefus();
}
