// galerie/PagePriseEnMain.cpp
#include "PagePriseEnMain.h"

#include "ApercuFenetre.h"
#include "CtrlPriseEnMain.h"
#include "Pages.h"
#include "TraductionGalerie.h"

#include "navigation/FenPriseEnMain.h"
#include "noyau/RoutinesTexte.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QFontDatabase>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Where the window stood on a page that is being built anew.
std::optional<QPoint> & PreteOuverture()
{
    static std::optional<QPoint> position;
    return position;
}

// A page that is gone for good, and not replaced at once, leaves nothing to the next one.
void OublieOuverturePlusTard()
{
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [] { PreteOuverture().reset(); }, Qt::QueuedConnection);
}

} // namespace

PagePriseEnMain::PagePriseEnMain(QWidget * parent)
    : QWidget(parent)
{
    CreeFenetre();
    auto * const disposition = CreeMiseEnPage(
        this, TraductionGalerie(TexteGalerie("Prise en main")),
        TraductionGalerie(TexteGalerie(
            "La fenêtre qui accueille un nouvel utilisateur : des liens vers l’aide, lus dans un "
            "document JSON, et ce qu’il en a déjà vu, que l’application retient.")));
    auto * const gauche = new QVBoxLayout;
    gauche->addWidget(CreeCommandes());
    gauche->addWidget(CreeApercu());
    gauche->addStretch();
    auto * const rangee = new QHBoxLayout;
    rangee->addLayout(gauche);
    rangee->addWidget(CreeDocument(), 1);
    disposition->addLayout(rangee, 1);
    PriseReglage();
    Branche();
    if (auto const position = std::exchange(PreteOuverture(), std::nullopt)) {
        FenPriseEnMain::Instance()->move(*position);
        FenPriseEnMain::Instance()->show();
    }
}

PagePriseEnMain::~PagePriseEnMain()
{
    FenPriseEnMain const * const fenetre = FenPriseEnMain::Instance();
    if (fenetre && fenetre->isVisible()) {
        PreteOuverture() = fenetre->pos();
        OublieOuverturePlusTard();
    }
    FenPriseEnMain::LibereSingleton();
    FenPriseEnMain::monCtrl = nullptr;
}

void PagePriseEnMain::CreeFenetre()
{
    monCtrl = new CtrlPriseEnMain(this);
    FenPriseEnMain::monCtrl = monCtrl;
    FenPriseEnMain::AlloueInstance(true, true);
    FenPriseEnMain::Instance()->setAttribute(Qt::WA_QuitOnClose, false);
}

QWidget * PagePriseEnMain::CreeCommandes()
{
    monBoutonOuvrir = new QPushButton(TraductionGalerie(TexteGalerie("&Ouvrir la fenêtre")));
    monBoutonOuvrir->setObjectName(u"ouvrirPriseEnMain"_s);
    monBoutonOublier = new QPushButton(TraductionGalerie(TexteGalerie("&Tout oublier")));
    monBoutonOublier->setObjectName(u"oublierPriseEnMain"_s);
    monEtat = new QLabel;
    monEtat->setObjectName(u"etatPriseEnMain"_s);
    maBarre = new QProgressBar;
    maBarre->setTextVisible(false);
    maBarre->setMaximum(static_cast<int>(CtrlPriseEnMain::DonneCles().size()));
    maBarre->setAccessibleName(TraductionGalerie(TexteGalerie("Sujets vus")));
    maPosition = new QLabel(
        TraductionGalerie(TexteGalerie("La fenêtre n’a pas encore été fermée sur cette page.")));
    maPosition->setObjectName(u"explicationPage"_s); // the sheet's colour for explanations
    maPosition->setWordWrap(true);

    auto * const groupe = new QGroupBox(TraductionGalerie(TexteGalerie("Sujets vus")));
    auto * const disposition = new QVBoxLayout(groupe);
    for (QWidget * const widget : std::initializer_list<QWidget *>{
             monEtat, maBarre, monBoutonOuvrir, monBoutonOublier, maPosition})
        disposition->addWidget(widget);
    return groupe;
}

QWidget * PagePriseEnMain::CreeApercu()
{
    QString const titre = TraductionGalerie(TexteGalerie("Ce qui s’ouvre"));
    monApercu = new ApercuFenetre(titre, *FenPriseEnMain::Instance());
    auto * const groupe = new QGroupBox(titre);
    auto * const disposition = new QVBoxLayout(groupe);
    disposition->addWidget(monApercu, 0, Qt::AlignTop | Qt::AlignLeading);
    return groupe;
}

QWidget * PagePriseEnMain::CreeDocument()
{
    QString const titre = TraductionGalerie(TexteGalerie("Son document"));
    auto * const texte = new QPlainTextEdit(
        RoutinesGeneralesQt::ContenuFichier(u":/fichiers/DonneesPriseEnMain.json"_s));
    texte->setAccessibleName(titre);
    texte->setReadOnly(true);
    texte->setTabChangesFocus(true);
    texte->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    auto * const groupe = new QGroupBox(titre);
    auto * const disposition = new QVBoxLayout(groupe);
    disposition->addWidget(texte);
    return groupe;
}

void PagePriseEnMain::Branche()
{
    connect(monBoutonOuvrir, &QPushButton::clicked, this, &PagePriseEnMain::PriseOuvrir,
            Qt::UniqueConnection);
    connect(monBoutonOublier, &QPushButton::clicked, this, &PagePriseEnMain::PriseOublier,
            Qt::UniqueConnection);
    connect(monCtrl, &CtrlPriseEnMain::SignalReglageChangay, this, &PagePriseEnMain::PriseReglage,
            Qt::UniqueConnection);
    FenPriseEnMain::Instance()->MetsCallbackFermeture(
        [this](QPoint position) { PriseFermee(position); });
}

void PagePriseEnMain::PriseOuvrir()
{
    FenPriseEnMain & fenetre = *FenPriseEnMain::Instance();
    fenetre.show();
    fenetre.raise();
    fenetre.activateWindow();
}

void PagePriseEnMain::PriseOublier()
{
    // As the user would: the window gives the link its colour back and tells of each.
    for (auto * const caseVue :
         FenPriseEnMain::Instance()->findChildren<QCheckBox *>(u"CheckBoxListeLien"_s))
        if (caseVue->isChecked())
            caseVue->click();
    monApercu->Actualise();
}

void PagePriseEnMain::PriseReglage()
{
    int const vus = monCtrl->CompteVus();
    monEtat->setText(TraductionGalerie(
        TexteGalerie("Vus : {1} sur {2}"),
        {UniChaine::DepuisNombre(vus), UniChaine::DepuisNombre(maBarre->maximum())}));
    maBarre->setValue(vus);
    monBoutonOublier->setEnabled(vus > 0);
}

void PagePriseEnMain::PriseFermee(QPoint position)
{
    maPosition->setText(TraductionGalerie(
        TexteGalerie("Fermée à la position {1}, {2}."),
        {UniChaine::DepuisNombre(position.x()), UniChaine::DepuisNombre(position.y())}));
}
