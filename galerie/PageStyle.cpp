// galerie/PageStyle.cpp
#include "PageStyle.h"

#include "DessinsStyle.h"
#include "EssaisStyle.h"
#include "EtatDessinay.h"
#include "Pages.h"
#include "ProprietesMontrees.h"
#include "TraductionGalerie.h"

#include "style/DStyleProxy.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScrollArea>
#include <QStyleFactory>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

struct EtatMontray
{
    ChaineLocalisable titre;
    QStyle::State etat;
};

constexpr EtatMontray kEtats[] = {
    {TexteGalerie("Normal"), QStyle::State_Enabled},
    {TexteGalerie("Survolé"), QStyle::State_Enabled | QStyle::State_MouseOver},
    {TexteGalerie("Enfoncé"),
     QStyle::State_Enabled | QStyle::State_MouseOver | QStyle::State_Sunken},
    {TexteGalerie("Désactivé"), QStyle::State_None},
    {TexteGalerie("Choisi"), QStyle::State_Enabled | QStyle::State_Selected | QStyle::State_On},
    {TexteGalerie("Focus"),
     QStyle::State_Enabled | QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange},
};
constexpr int kColonnes = static_cast<int>(std::size(kEtats)) + 1;

// Logical pixels.
constexpr int kLargeurTitre = 168;
constexpr int kEspaceAvantSection = 10;

// The rows of all properties have the columns of the heading above the scroll area.
void PrepareGrille(QGridLayout & grille)
{
    grille.setContentsMargins({});
    grille.setSpacing(0);
    grille.setColumnMinimumWidth(0, kLargeurTitre);
    for (int colonne = 1; colonne < kColonnes; ++colonne)
        grille.setColumnMinimumWidth(colonne, EtatDessinay::kLargeur);
    grille.setColumnStretch(kColonnes, 1);
}

QLabel * CreeTitre(QString const & texte)
{
    auto * const titre = new QLabel(texte);
    titre->setFixedWidth(kLargeurTitre);
    titre->setWordWrap(true);
    return titre;
}

} // namespace

PageStyle::PageStyle(QString const & styleDeBase, QWidget * parent)
    : QWidget(parent)
{
    auto * const disposition = CreeMiseEnPage(
        this, TraductionGalerie(TexteGalerie("Style")),
        TraductionGalerie(TexteGalerie(
            "Le style de la bibliothèque sur un style de base : de vrais widgets, puis chaque état "
            "de ce qu’il dessine, et l’effet de chaque propriété.")));
    disposition->addLayout(CreeChoix(styleDeBase));
    mesEssais = new EssaisStyle;
    disposition->addWidget(mesEssais);
    disposition->addWidget(CreeEntete());
    monDefilement = new QScrollArea;
    monDefilement->setWidget(CreeDessins());
    monDefilement->setWidgetResizable(true);
    monDefilement->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    monDefilement->setFrameShape(QFrame::NoFrame);
    disposition->addWidget(monDefilement, 1);

    PriseStyleChoisi();
    connect(monChoixStyle, &QComboBox::currentIndexChanged, this, &PageStyle::PriseStyleChoisi,
            Qt::UniqueConnection);
    connect(monSens, &QCheckBox::toggled, this, &PageStyle::PriseSensChangay, Qt::UniqueConnection);
}

PageStyle::~PageStyle()
{
    // While the style of their widgets is there.
    delete mesEssais;
    delete monDefilement;
}

void PageStyle::changeEvent(QEvent * evenement)
{
    QWidget::changeEvent(evenement);
    // The style keeps the window's colour from when it was made. Later: the widgets are on their
    // way to their new palettes.
    if (evenement->type() == QEvent::PaletteChange)
        QMetaObject::invokeMethod(this, &PageStyle::PriseStyleChoisi, Qt::QueuedConnection);
}

QLayout * PageStyle::CreeChoix(QString const & styleDeBase)
{
    auto * const choix = new QHBoxLayout;
    monChoixStyle = new QComboBox;
    monChoixStyle->setObjectName(u"styleDeBase"_s);
    monChoixStyle->addItems(QStyleFactory::keys());
    int const fusion = monChoixStyle->findText(u"Fusion"_s, Qt::MatchFixedString);
    int const choisi = monChoixStyle->findText(styleDeBase, Qt::MatchFixedString);
    monChoixStyle->setCurrentIndex(choisi >= 0 ? choisi : fusion);
    auto * const etiquette = new QLabel(TraductionGalerie(TexteGalerie("Style de &base")));
    etiquette->setBuddy(monChoixStyle);
    monSens = new QCheckBox(TraductionGalerie(TexteGalerie("De droite à &gauche")));
    monSens->setObjectName(u"deDroiteAGauche"_s);
    choix->addWidget(etiquette);
    choix->addWidget(monChoixStyle);
    choix->addWidget(monSens);
    choix->addStretch();
    return choix;
}

QWidget * PageStyle::CreeEntete()
{
    monEntete = new QWidget;
    auto * const grille = new QGridLayout(monEntete);
    PrepareGrille(*grille);
    for (int i = 0; i + 1 < kColonnes; ++i) {
        auto * const titre = new QLabel(TraductionGalerie(kEtats[i].titre));
        titre->setAlignment(Qt::AlignCenter);
        grille->addWidget(titre, 0, i + 1);
    }
    return monEntete;
}

QWidget * PageStyle::CreeDessins()
{
    auto * const dessins = new QWidget;
    auto * const grille = new QGridLayout(dessins);
    PrepareGrille(*grille);
    AjouteEtats(*grille);
    for (ProprieteMontree const & propriete : DonneProprietesMontrees())
        if (propriete.dessins.isEmpty())
            AjouteMenus(*grille, propriete);
        else
            AjoutePropriete(*grille, propriete);
    return dessins;
}

void PageStyle::AjouteSection(QGridLayout & grille, QString const & titre, QString const & effet)
{
    auto * const nom = new QLabel(titre);
    QFont police = nom->font();
    police.setBold(true);
    nom->setFont(police);
    nom->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto * const explication = new QLabel(effet);
    explication->setObjectName(u"explicationPage"_s); // the sheet's colour for explanations
    explication->setWordWrap(true);
    int const ligne = grille.rowCount();
    grille.setRowMinimumHeight(ligne, kEspaceAvantSection);
    grille.addWidget(nom, ligne + 1, 0, 1, kColonnes);
    grille.addWidget(explication, ligne + 2, 0, 1, kColonnes);
}

void PageStyle::AjouteEtats(QGridLayout & grille)
{
    using enum eDessin;
    AjouteSection(grille, TraductionGalerie(TexteGalerie("Sans propriété")),
                  TraductionGalerie(TexteGalerie("Ce que le style dessine à tous les widgets.")));
    for (eDessin const sorte :
         {kBoutonDefaut, kBouton, kBoutonAvecMenu, kBoutonOutil, kBoutonOutilAvecMenu, kCaseACocher,
          kBoutonRadio, kListeDeroulante, kChamp, kOnglet, kRangDeCellules, kRangSeul,
          kSectionEntete, kItemMenu, kItemBarreMenu, kProgression, kReglette}) {
        DessinStyle const & dessin = DonneDessin(sorte);
        AjouteLigne(grille, TraductionGalerie(dessin.titre), dessin, {}, u"etats"_s);
    }
    DessinStyle const & riche = DonneDessin(kItemMenuRiche);
    AjouteLigne(grille, TraductionGalerie(riche.titre), riche,
                {DStyleProxy::DonneNomProprietePossedeRegleTexteRiche(),
                 DStyleProxy::DonneNomProprieteEnsembleReglesTexteRiche()},
                u"etats"_s);
}

void PageStyle::AjoutePropriete(QGridLayout & grille, ProprieteMontree const & propriete)
{
    QString const nom = QString::fromLatin1(propriete.nom);
    AjouteSection(grille, nom, TraductionGalerie(propriete.effet));
    for (eDessin const sorte : propriete.dessins) {
        DessinStyle const & dessin = DonneDessin(sorte);
        UniChaine const titre(TraductionGalerie(dessin.titre));
        AjouteLigne(grille, TraductionGalerie(TexteGalerie("{1}, sans"), {titre}), dessin,
                    propriete.autres, nom + u"/sans"_s);
        AjouteLigne(grille, TraductionGalerie(TexteGalerie("{1}, avec"), {titre}), dessin,
                    propriete.autres + QList<char const *>{propriete.nom}, nom + u"/avec"_s);
    }
}

// What a menu does shows when it is open.
void PageStyle::AjouteMenus(QGridLayout & grille, ProprieteMontree const & propriete)
{
    AjouteSection(grille, QString::fromLatin1(propriete.nom), TraductionGalerie(propriete.effet));
    UniChaine const menu(TraductionGalerie(TexteGalerie("Menu")));
    for (bool const avec : {false, true}) {
        int const ligne = grille.rowCount();
        grille.addWidget(CreeTitre(TraductionGalerie(
                             avec ? TexteGalerie("{1}, avec") : TexteGalerie("{1}, sans"), {menu})),
                         ligne, 0);
        grille.addWidget(CreeBoutonMenuLong(avec, nullptr), ligne, 1, 1, 2, Qt::AlignLeading);
    }
}

void PageStyle::AjouteLigne(QGridLayout & grille, QString const & titre, DessinStyle const & dessin,
                            QList<char const *> const & proprietes, QString const & nom)
{
    int const ligne = grille.rowCount();
    grille.addWidget(CreeTitre(titre), ligne, 0);
    Modeles const modeles = PreteModeles(dessin, proprietes, grille.parentWidget());
    for (int i = 0; i + 1 < kColonnes; ++i) {
        bool const actif = kEtats[i].etat & QStyle::State_Enabled;
        auto * const dessinay =
            new EtatDessinay(dessin, actif ? *modeles.actif : *modeles.inactif, kEtats[i].etat);
        dessinay->setObjectName(nom);
        dessinay->setAccessibleName(
            TraductionGalerie(TexteGalerie("{1}, {2}"),
                              {UniChaine(titre), UniChaine(TraductionGalerie(kEtats[i].titre))}));
        grille.addWidget(dessinay, ligne, i + 1);
    }
}

PageStyle::Modeles PageStyle::PreteModeles(DessinStyle const & dessin,
                                           QList<char const *> const & proprietes, QWidget * parent)
{
    Modeles & modeles = mesModeles[{dessin.sorte, proprietes}];
    if (modeles.actif)
        return modeles;
    for (QWidget ** const modele : {&modeles.actif, &modeles.inactif}) {
        *modele = dessin.creeModele(parent);
        (*modele)->hide(); // or it would come with the page
        for (char const * const propriete : proprietes)
            MetsPropriete(**modele, propriete);
    }
    modeles.inactif->setEnabled(false); // the style asks the widget too
    return modeles;
}

void PageStyle::PriseStyleChoisi()
{
    auto nouveau =
        std::make_unique<DStyleProxy>(QStyleFactory::create(monChoixStyle->currentText()));
    for (EtatDessinay * const dessinay : findChildren<EtatDessinay *>())
        dessinay->MetsStyleDessin(*nouveau);
    mesEssais->MetsStyleDesWidgets(*nouveau);
    for (QPushButton * const bouton : monDefilement->findChildren<QPushButton *>())
        if (bouton->menu())
            bouton->menu()->setStyle(nouveau.get());
    monStyle = std::move(nouveau); // the widgets have left the one that goes
}

void PageStyle::PriseSensChangay()
{
    auto const sens = monSens->isChecked() ? Qt::RightToLeft : Qt::LeftToRight;
    for (QWidget * const partie :
         {static_cast<QWidget *>(mesEssais), monEntete, static_cast<QWidget *>(monDefilement)})
        partie->setLayoutDirection(sens);
}
