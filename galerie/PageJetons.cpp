// galerie/PageJetons.cpp
#include "PageJetons.h"

#include "ApercuFenetre.h"
#include "HoteJetons.h"
#include "Pages.h"
#include "TraceSignaux.h"
#include "TraductionGalerie.h"

#include "editing/DComboJetonable.h"
#include "lists/ListeChoixFlottante.h"

#include <QCheckBox>
#include <QFontInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QSpinBox>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

// Logical pixels.
constexpr int kLargeurChamp = 230;
constexpr int kHauteurMots = 120;
constexpr int kHauteurTrace = 110;
constexpr int kTailleMin = 8; // of the letters of a token
constexpr int kTailleMax = 18;

DComboJetonable * CreeChamp(QString const & nom, bool avecIcones)
{
    auto * const champ = new DComboJetonable(
        nullptr, avecIcones, u":/images/jetonOuvrir.svg"_s, u":/images/jetonOuvrirSurvol.svg"_s,
        u":/images/jetonSupprimer.svg"_s, u":/images/jetonSupprimerSurvol.svg"_s);
    champ->setObjectName(nom);
    champ->PrendsTextePlaceHolder(TraductionGalerie(TexteGalerie("Un mot ou une catégorie")));
    champ->setFixedWidth(kLargeurChamp);
    return champ;
}

QLabel * CreeLegende(ChaineLocalisable texte)
{
    auto * const legende = new QLabel(TraductionGalerie(texte));
    legende->setObjectName(u"explicationPage"_s); // the sheet's colour for explanations
    return legende;
}

} // namespace

PageJetons::PageJetons(QWidget * parent)
    : QWidget(parent)
{
    auto * const disposition = CreeMiseEnPage(
        this, TraductionGalerie(TexteGalerie("Jetons")),
        TraductionGalerie(TexteGalerie(
            "Un champ qui reçoit un mot libre ou une catégorie choisie dans une liste, qui devient "
            "un jeton. Une touche enlève le jeton, l’icône de droite aussi ; la souris posée sur "
            "lui l’explique.")));
    auto * const rangee = new QHBoxLayout;
    rangee->addWidget(CreeRecherche(), 1);
    auto * const droite = new QVBoxLayout;
    droite->addWidget(CreeVariantes());
    droite->addWidget(CreePolice());
    droite->addStretch();
    rangee->addLayout(droite, 1);
    disposition->addLayout(rangee);
    disposition->addWidget(CreeTrace());
    disposition->addStretch();

    monHote->Choisis(0);
    PriseContenuChangay();
    PrisePoliceChangee();
    Branche(); // the trace begins with what the user does
}

QWidget * PageJetons::CreeRecherche()
{
    monChamp = CreeChamp(u"motCherche"_s, true);
    monHote = new HoteJetons(*monChamp);
    monHote->PreparePourApercu();
    mesMots = new QListWidget;
    mesMots->setAccessibleName(TraductionGalerie(TexteGalerie("Mots trouvés")));
    mesMots->setFixedSize(kLargeurChamp, kHauteurMots);

    auto * const groupe = new QGroupBox(TraductionGalerie(TexteGalerie("Chercher un mot")));
    auto * const grille = new QGridLayout(groupe);
    auto * const etiquette =
        new QLabel(TraductionGalerie(TexteGalerie("&Mot ou catégorie de mots")));
    etiquette->setBuddy(monChamp);
    grille->addWidget(etiquette, 0, 0);
    grille->addWidget(monChamp, 1, 0);
    grille->addWidget(CreeLegende(TexteGalerie("Mots trouvés")), 2, 0);
    grille->addWidget(mesMots, 3, 0);
    grille->addWidget(CreeLegende(TexteGalerie("Ce qui s’ouvre")), 4, 0);
    grille->addWidget(
        new ApercuFenetre(TraductionGalerie(TexteGalerie("Ce qui s’ouvre")), monHote->PreteListe()),
        5, 0, Qt::AlignTop | Qt::AlignLeading);
    grille->setColumnStretch(1, 1);
    grille->setRowStretch(6, 1);
    return groupe;
}

QWidget * PageJetons::CreeVariantes()
{
    monSansSuppression = CreeChamp(u"sansSuppression"_s, true);
    monSansSuppression->DesactiveSuppression();
    monSansIcones = CreeChamp(u"sansIcones"_s, false);

    auto * const groupe = new QGroupBox(TraductionGalerie(TexteGalerie("Variantes")));
    auto * const grille = new QGridLayout(groupe);
    AjouteChamp(*grille, TraductionGalerie(TexteGalerie("Sans s&uppression par l’icône")),
                *monSansSuppression, 2);
    // The last category is too long for a field.
    AjouteChamp(*grille, TraductionGalerie(TexteGalerie("Sans &icône, jeton abrégé")),
                *monSansIcones, static_cast<int>(HoteJetons::DonneCategories().size()) - 1);
    grille->setColumnStretch(1, 1);
    return groupe;
}

void PageJetons::AjouteChamp(QGridLayout & grille, QString const & texte, DComboJetonable & champ,
                             int categorie)
{
    (new HoteJetons(champ))->Choisis(categorie);
    auto * const etiquette = new QLabel(texte);
    etiquette->setBuddy(&champ);
    grille.addWidget(etiquette, grille.rowCount(), 0);
    grille.addWidget(&champ, grille.rowCount(), 0);
}

QWidget * PageJetons::CreePolice()
{
    maTaille = new QSpinBox;
    maTaille->setObjectName(u"tailleJeton"_s);
    maTaille->setRange(kTailleMin, kTailleMax);
    maTaille->setSuffix(u" px"_s);
    maTaille->setValue(QFontInfo(font()).pixelSize());
    monGras = new QCheckBox(TraductionGalerie(TexteGalerie("&Gras")));
    monGras->setObjectName(u"jetonGras"_s);
    monItalique = new QCheckBox(TraductionGalerie(TexteGalerie("I&talique")));
    monItalique->setObjectName(u"jetonItalique"_s);
    auto * const etiquette = new QLabel(TraductionGalerie(TexteGalerie("Taill&e")));
    etiquette->setBuddy(maTaille);

    auto * const groupe = new QGroupBox(TraductionGalerie(TexteGalerie("Police des jetons")));
    auto * const disposition = new QHBoxLayout(groupe);
    disposition->addWidget(etiquette);
    disposition->addWidget(maTaille);
    disposition->addWidget(monGras);
    disposition->addWidget(monItalique);
    disposition->addStretch();
    return groupe;
}

QWidget * PageJetons::CreeTrace()
{
    maTrace = new TraceSignaux(TraductionGalerie(TexteGalerie("Signaux")));
    return EtiquetteTrace(*maTrace, TraductionGalerie(TexteGalerie("&Signaux")), kHauteurTrace);
}

void PageJetons::Branche()
{
    connect(monChamp, &QComboBox::editTextChanged, this, &PageJetons::PriseContenuChangay,
            Qt::UniqueConnection);
    connect(monChamp, &DComboJetonable::SignalJetonChangay, this, &PageJetons::PriseContenuChangay,
            Qt::UniqueConnection);
    connect(maTaille, &QSpinBox::valueChanged, this, &PageJetons::PrisePoliceChangee,
            Qt::UniqueConnection);
    connect(monGras, &QCheckBox::toggled, this, &PageJetons::PrisePoliceChangee,
            Qt::UniqueConnection);
    connect(monItalique, &QCheckBox::toggled, this, &PageJetons::PrisePoliceChangee,
            Qt::UniqueConnection);
    for (DComboJetonable * const champ : {monChamp, monSansSuppression, monSansIcones}) {
        maTrace->Suis(champ, &DComboJetonable::SignalShowPopup, u"SignalShowPopup"_s);
        maTrace->Suis(champ, &DComboJetonable::SignalBoutonXAppuyay, u"SignalBoutonXAppuyay"_s);
        maTrace->Suis(champ, &DComboJetonable::SignalJetonChangay, u"SignalJetonChangay"_s);
        maTrace->Suis(champ, &QComboBox::editTextChanged, u"editTextChanged"_s);
    }
}

void PageJetons::PriseContenuChangay()
{
    int const categorie = monHote->DonneCategorie();
    QString const debut = monChamp->currentText();
    mesMots->clear();
    for (int i = 0; i < HoteJetons::DonneCategories().size(); ++i)
        for (QString const & mot : HoteJetons::DonneCategories().at(i).mots)
            if (categorie >= 0 ? i == categorie : mot.startsWith(debut, Qt::CaseInsensitive))
                mesMots->addItem(mot);
    mesMots->sortItems();
}

void PageJetons::PrisePoliceChangee()
{
    QFont police;
    police.setPixelSize(maTaille->value());
    police.setBold(monGras->isChecked());
    police.setItalic(monItalique->isChecked());
    for (DComboJetonable * const champ : {monChamp, monSansSuppression, monSansIcones})
        champ->PrendsPoliceJeton(police);
}
