// galerie/PageAlertes.cpp
#include "PageAlertes.h"

#include "ChampAvecDefaut.h"
#include "ChoixBoutons.h"
#include "JournalAffichay.h"
#include "Pages.h"
#include "TraductionGalerie.h"

#include "dialogs/DDialogueProgressionInfinie.h"
#include "dialogs/StockageReponse.h"
#include "noyau/ExecutionSilencieuse.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QFile>
#include <QFontDatabase>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int kSansStockeur = -1;
constexpr int kLignesJournal = 500;
constexpr double kDureeUsuelle = -1.0; // seconds
constexpr double kDureeMax = 60.0;
constexpr char16_t kGuid[] = u"galerie.enregistrer";

// In the order of their values, which begin at 1.
constexpr ChaineLocalisable kTypes[] = {
    TexteGalerie("Question"),         TexteGalerie("Information"),    TexteGalerie("Avertissement"),
    TexteGalerie("Erreur"),           TexteGalerie("Bulle éphémère"), TexteGalerie("Notification"),
    TexteGalerie("Attente sans fin"), TexteGalerie("Icône maison"),   TexteGalerie("Sans icône"),
};

// What the file of that type of store holds.
QString LisFichier(DDialogue::eTypStockeur type)
{
    auto const description = StockageReponse::assocTypQSettings.find(type);
    if (description == StockageReponse::assocTypQSettings.end())
        return {};
    auto const & [nom, format] = description->second;
    QSettings(QString(nom), format).sync(); // what was answered a moment ago is still in memory
    QFile fichier((QString(nom)));
    return fichier.open(QIODevice::ReadOnly) ? QString::fromUtf8(fichier.readAll()) : QString();
}

} // namespace

void PageAlertes::Receveur::TraiteReponse(int const &, int reponse)
{
    maPage.MontreReponse(reponse);
}

PageAlertes::PageAlertes(QWidget * parent)
    : QWidget(parent)
{
    monJournal = new JournalAffichay(this);
    auto * const disposition =
        CreeMiseEnPage(this, TraductionGalerie(TexteGalerie("Alertes")),
                       TraductionGalerie(TexteGalerie(
                           "Une alerte de chaque sorte, posée de chaque façon : la réponse, ce que "
                           "le journal en dit et les réponses retenues.")));
    auto * const haut = new QHBoxLayout;
    haut->addWidget(CreeContenu(), 1);
    haut->addWidget(CreeAppel(), 1);
    mesBoutons = new ChoixBoutons;
    disposition->addLayout(haut);
    disposition->addWidget(mesBoutons);
    disposition->addLayout(CreeLancement());
    disposition->addLayout(CreeResultats(), 1);

    PriseFormeChangee();
    Branche();
}

PageAlertes::~PageAlertes()
{
    if (monSilence->isChecked())
        ExecutionSilencieuse::Arrete();
}

QWidget * PageAlertes::CreeContenu()
{
    auto * const groupe = new QGroupBox(TraductionGalerie(TexteGalerie("Contenu")));
    auto * const formulaire = new QFormLayout(groupe);
    monType = new QComboBox;
    monType->setObjectName(u"typeAlerte"_s);
    for (ChaineLocalisable const & type : kTypes)
        monType->addItem(TraductionGalerie(type));
    formulaire->addRow(TraductionGalerie(TexteGalerie("Typ&e")), monType);
    struct
    {
        ChampAvecDefaut *& champ;
        QString nom;
        ChaineLocalisable libelle;
        QString texte;
    } const champs[] = {
        {monTitre, u"titre"_s, TexteGalerie("&Titre"), {}},
        {monMessage, u"message"_s, TexteGalerie("&Message"),
         TraductionGalerie(TexteGalerie("Enregistrer les modifications ?"))},
        {maNote, u"note"_s, TexteGalerie("&Note"),
         TraductionGalerie(TexteGalerie("Sinon, elles seront perdues."))},
        {monExplication, u"explication"_s, TexteGalerie("E&xplication"), {}},
    };
    for (auto const & [champ, nom, libelle, texte] : champs) {
        champ = new ChampAvecDefaut(texte);
        champ->setObjectName(nom);
        formulaire->addRow(TraductionGalerie(libelle), champ);
    }
    monTitre->setPlaceholderText(TraductionGalerie(TexteGalerie("Celui de la fenêtre")));
    AjouteOptions(formulaire);
    return groupe;
}

void PageAlertes::AjouteOptions(QFormLayout * formulaire)
{
    maDuree = new QDoubleSpinBox;
    maDuree->setObjectName(u"dureeAffichage"_s);
    maDuree->setRange(kDureeUsuelle, kDureeMax);
    maDuree->setSpecialValueText(TraductionGalerie(TexteGalerie("Usuelle")));
    maDuree->setSuffix(TraductionGalerie(TexteGalerie(" s")));
    maDuree->setDecimals(1);
    maDuree->setValue(kDureeUsuelle);
    monTexteRiche = new QCheckBox(TraductionGalerie(TexteGalerie("Texte r&iche")));
    monTexteRiche->setObjectName(u"texteRiche"_s);
    auto * const ligne = new QHBoxLayout;
    ligne->addWidget(maDuree, 1);
    ligne->addWidget(monTexteRiche);
    auto * const etiquette = new QLabel(TraductionGalerie(TexteGalerie("&Durée")));
    etiquette->setBuddy(maDuree);
    formulaire->addRow(etiquette, ligne);
}

QWidget * PageAlertes::CreeAppel()
{
    auto * const groupe = new QGroupBox(TraductionGalerie(TexteGalerie("Appel")));
    auto * const formulaire = new QFormLayout(groupe);
    maForme = new QComboBox;
    maForme->setObjectName(u"forme"_s);
    maForme->addItems({TraductionGalerie(TexteGalerie("Bloquant, réponse rendue")),
                       TraductionGalerie(TexteGalerie("Fonction de rappel")),
                       TraductionGalerie(TexteGalerie("Objet receveur"))});
    monStockeur = new QComboBox;
    monStockeur->setObjectName(u"stockeur"_s);
    monStockeur->addItem(TraductionGalerie(TexteGalerie("Aucune")), kSansStockeur);
    monStockeur->addItem(u"StockeurParDefaut"_s, DDialogue::StockeurParDefaut);
    monStockeur->addItem(u"StockeurNePlusMAviser"_s, DDialogue::StockeurNePlusMAviser);
    monGuid = new QLineEdit(QString::fromUtf16(kGuid));
    monGuid->setObjectName(u"guid"_s);
    monLibelleCase = new ChampAvecDefaut;
    monLibelleCase->setObjectName(u"libelleCase"_s);
    monLibelleCase->setPlaceholderText(TraductionGalerie(TexteGalerie("Celui de la bibliothèque")));
    monCentrageNatif =
        new QCheckBox(TraductionGalerie(TexteGalerie("Centrer sur la fenêtre nati&ve")));
    monCentrageNatif->setObjectName(u"centrageNatif"_s);
    monSilence = new QCheckBox(TraductionGalerie(TexteGalerie("Exécution &silencieuse")));
    monSilence->setObjectName(u"silence"_s);

    formulaire->addRow(TraductionGalerie(TexteGalerie("&Forme")), maForme);
    formulaire->addRow(TraductionGalerie(TexteGalerie("Mém&oire")), monStockeur);
    formulaire->addRow(TraductionGalerie(TexteGalerie("&GUID")), monGuid);
    formulaire->addRow(TraductionGalerie(TexteGalerie("&Case à cocher")), monLibelleCase);
    formulaire->addRow(QString(), monCentrageNatif);
    formulaire->addRow(QString(), monSilence);
    return groupe;
}

QLayout * PageAlertes::CreeLancement()
{
    auto * const ligne = new QHBoxLayout;
    monBoutonLancer = new QPushButton(TraductionGalerie(TexteGalerie("&Présenter l’alerte")));
    monBoutonLancer->setObjectName(u"boutonLancer"_s);
    monBoutonFermerAttente = new QPushButton(TraductionGalerie(TexteGalerie("Fermer l’&attente")));
    monBoutonFermerAttente->setObjectName(u"boutonFermerAttente"_s);
    monBoutonFermerAttente->setEnabled(false);
    maReponse = new QLabel(TraductionGalerie(TexteGalerie("Réponse : aucune encore")));
    maReponse->setObjectName(u"reponse"_s);
    ligne->addWidget(monBoutonLancer);
    ligne->addWidget(monBoutonFermerAttente);
    ligne->addWidget(maReponse, 1);
    return ligne;
}

QLayout * PageAlertes::CreeResultats()
{
    auto * const grille = new QGridLayout;
    QString const titreJournal = TraductionGalerie(TexteGalerie("Journal"));
    QString const titreFichier = TraductionGalerie(TexteGalerie("Réponses retenues"));
    monTexteJournal = CreeTexte(u"journalAlertes"_s, titreJournal);
    monTexteJournal->setMaximumBlockCount(kLignesJournal);
    monTexteFichier = CreeTexte(u"fichierReponses"_s, titreFichier);
    monTexteFichier->setPlaceholderText(TraductionGalerie(TexteGalerie("Aucune")));
    monBoutonOublier = new QPushButton(TraductionGalerie(TexteGalerie("O&ublier les réponses")));
    monBoutonOublier->setObjectName(u"boutonOublier"_s);
    auto * const enteteFichier = new QHBoxLayout;
    enteteFichier->addWidget(new QLabel(titreFichier), 1);
    enteteFichier->addWidget(monBoutonOublier);
    grille->addWidget(new QLabel(titreJournal), 0, 0);
    grille->addLayout(enteteFichier, 0, 1);
    grille->addWidget(monTexteJournal, 1, 0);
    grille->addWidget(monTexteFichier, 1, 1);
    grille->setColumnStretch(0, 1);
    grille->setColumnStretch(1, 1);
    return grille;
}

QPlainTextEdit * PageAlertes::CreeTexte(QString const & nom, QString const & titre)
{
    auto * const texte = new QPlainTextEdit;
    texte->setObjectName(nom);
    texte->setAccessibleName(titre);
    texte->setReadOnly(true);
    texte->setTabChangesFocus(true);
    texte->setLineWrapMode(QPlainTextEdit::NoWrap);
    texte->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    return texte;
}

void PageAlertes::Branche()
{
    connect(monBoutonLancer, &QPushButton::clicked, this, &PageAlertes::PriseLancer,
            Qt::UniqueConnection);
    connect(monBoutonFermerAttente, &QPushButton::clicked, this, &PageAlertes::PriseFermerAttente,
            Qt::UniqueConnection);
    connect(monBoutonOublier, &QPushButton::clicked, this, &PageAlertes::PriseOublier,
            Qt::UniqueConnection);
    for (QComboBox const * const choix : {monType, maForme, monStockeur})
        connect(choix, &QComboBox::currentIndexChanged, this, &PageAlertes::PriseFormeChangee,
                Qt::UniqueConnection);
    connect(monSilence, &QCheckBox::toggled, this, &PageAlertes::PriseSilence,
            Qt::UniqueConnection);
    connect(monJournal, &JournalAffichay::SignalLigne, this, &PageAlertes::PriseLigne,
            Qt::UniqueConnection);
}

SaisieAlerte PageAlertes::DonneSaisie() const
{
    SaisieAlerte saisie;
    saisie.type = static_cast<DAlerteInfo::eTypeDialogue>(monType->currentIndex() + 1);
    saisie.titre = monTitre->text();
    saisie.message = monMessage->text();
    saisie.note = maNote->text();
    saisie.explication = monExplication->text();
    saisie.libelleCase = monLibelleCase->text();
    saisie.texteRiche = monTexteRiche->isChecked();
    saisie.duree = static_cast<float>(maDuree->value());
    saisie.boutons = mesBoutons->DonneMasque();
    saisie.defaut = mesBoutons->DonneDefaut();
    saisie.echap = mesBoutons->DonneEchap();
    saisie.labels = mesBoutons->DonneLabels();
    saisie.forme = static_cast<SaisieAlerte::eForme>(maForme->currentIndex());
    if (monStockeur->currentData() != kSansStockeur)
        saisie.stockeur = static_cast<DDialogue::eTypStockeur>(monStockeur->currentData().toInt());
    saisie.guid = monGuid->text();
    saisie.centrageNatif = monCentrageNatif->isEnabled() && monCentrageNatif->isChecked();
    return saisie;
}

void PageAlertes::PriseLancer()
{
    SaisieAlerte const saisie = DonneSaisie();
    setWindowTitle(window()->windowTitle()); // an alert without a title takes that of its parent
    maReponse->setText(EstSansReponse(saisie)
                           ? TraductionGalerie(TexteGalerie("Réponse : ce type n’en donne pas"))
                           : TraductionGalerie(TexteGalerie("Réponse : en attente")));
    QPointer<PageAlertes> const moi(this); // the alert may outlive the page
    auto const rappel = [moi](DDialogue::eBoutons const & reponse) {
        if (moi)
            moi->MontreReponse(static_cast<int>(reponse));
    };
    auto const reponse = Lance(saisie, this, monReceveur, RappelSurThreadGraphique(rappel));
    if (!moi)
        return;
    monBoutonFermerAttente->setEnabled(findChild<DDialogueProgressionInfinie *>());
    if (EstRefusee(saisie))
        maReponse->setText(TraductionGalerie(TexteGalerie(
            "Refusée : une forme bloquante attendrait une réponse que ce type ne donne pas")));
    else if (reponse)
        MontreReponse(static_cast<int>(*reponse));
}

void PageAlertes::PriseFermerAttente()
{
    for (auto * const attente : findChildren<DDialogueProgressionInfinie *>())
        attente->PriseFermerDialogue();
    monBoutonFermerAttente->setEnabled(false);
}

void PageAlertes::PriseOublier()
{
    DAlerteOublieToutesLesReponses(DonneStockeurMontray());
    MontreFichier();
}

void PageAlertes::PriseFormeChangee()
{
    bool const avecStockeur = monStockeur->currentData() != kSansStockeur;
    monGuid->setEnabled(avecStockeur);
    monLibelleCase->setEnabled(monStockeur->currentData() == DDialogue::StockeurNePlusMAviser);
    // The forms in front of a native window remember nothing, and none of them takes a function.
    monCentrageNatif->setEnabled(!avecStockeur && maForme->currentIndex() != SaisieAlerte::kRappel);
    maDuree->setEnabled(monType->currentIndex() + 1 == DAlerteInfo::kEphemere);
    MontreFichier();
}

void PageAlertes::PriseSilence(bool silencieux)
{
    if (silencieux)
        ExecutionSilencieuse::Demarre();
    else
        ExecutionSilencieuse::Arrete();
}

void PageAlertes::PriseLigne(QString const & ligne)
{
    monTexteJournal->appendPlainText(ligne);
}

void PageAlertes::MontreReponse(int reponse)
{
    maReponse->setText(
        TraductionGalerie(TexteGalerie("Réponse : {1}"), {UniChaine(DonneNomReponse(reponse))}));
    MontreFichier();
}

void PageAlertes::MontreFichier()
{
    monTexteFichier->setPlainText(LisFichier(DonneStockeurMontray()));
}

DDialogue::eTypStockeur PageAlertes::DonneStockeurMontray() const
{
    return DonneSaisie().stockeur.value_or(DDialogue::StockeurNePlusMAviser);
}

bool PageAlertes::event(QEvent * evenement)
{
    // A notification that has become a box was answered behind the page's back.
    if (evenement->type() == QEvent::WindowActivate)
        MontreFichier();
    return QWidget::event(evenement);
}
