// navigation/FenPriseEnMain.cpp
#include "navigation/FenPriseEnMain.h"

#include "foundation/ThemesQt.h"
#include "foundation/TraductionGui.h"
#include "navigation/CtrlFenPriseEnMainInterface.h"

#include "noyau/RoutinesBureau.h"
#include "noyau/RoutinesTexte.h"
#include "noyau/Traductions.h"

#include <QAccessible>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QSvgRenderer>
#include <QSvgWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

// Logical pixels.
constexpr int kMarge = 10;
constexpr int kHauteurImage = 50;
constexpr int kHauteurMarges = 20; // above and below the contents
constexpr int kHauteurReserve = 10;

constexpr std::size_t kRangeesVisibles = 8;

// Never narrower than its contents beside the scroll bar: there is no other to reach the rest with.
class Defilement : public QScrollArea
{
public:
    QSize sizeHint() const override
    {
        return QScrollArea::sizeHint().expandedTo(QSize(DonneLargeurUtile(), 0));
    }
    QSize minimumSizeHint() const override
    {
        return QScrollArea::minimumSizeHint().expandedTo(QSize(DonneLargeurUtile(), 0));
    }

private:
    int DonneLargeurUtile() const
    {
        return widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width();
    }
};

// False when the window is gone: an application may open its addresses itself, and put the window
// away for good as it does.
bool OuvreLien(QPushButton & bouton, UniChaine const & lien)
{
    QPointer<QPushButton> const temoin = &bouton;
    RoutinesGeneralesQt::LanceFureteurExterne(
        ContexteLocalisationGui(), Traductions::DonneLocalePourApplicationCourante(), lien, {});
    return !temoin.isNull();
}

void MetsFeuille(QPushButton & bouton, QString const & feuille)
{
    bouton.setStyleSheet(ThemesQt::Instance()->AppliquerVariable(feuille));
}

void MetsCouleurLien(QPushButton & bouton)
{
    MetsFeuille(bouton, u"color: @couleurTexteLien;"_s);
}

void MetsCouleurVisitay(QPushButton & bouton)
{
    MetsFeuille(bouton, u"color :@couleurTexteDeBase;"_s);
}

} // namespace

FenPriseEnMain * FenPriseEnMain::monInstance = nullptr;
CtrlFenPriseEnMainInterface * FenPriseEnMain::monCtrl = nullptr;

FenPriseEnMain::FenPriseEnMain(bool premier, bool second)
{
    setWindowFlags(Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Preferred);
    if (monCtrl)
        monCtrl->Initialise(
            RoutinesGeneralesQt::ContenuFichier(u":/fichiers/DonneesPriseEnMain.json"_s), premier,
            second);

    setStyleSheet(ThemesQt::Instance()->AppliquerVariable(
        RoutinesGeneralesQt::ContenuFichier(u":/Style/FenPriseEnMain.qss"_s)));
    setWindowTitle(TraductionGui(TexteGui("Prise en main")));
    CreeDefilement();

    connect(this, &QDialog::finished, this, &FenPriseEnMain::PriseFermeture, Qt::UniqueConnection);
    auto * const raccourci = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_W), this);
    connect(raccourci, &QShortcut::activated, this, &QWidget::close, Qt::UniqueConnection);
}

FenPriseEnMain::~FenPriseEnMain()
{
    if (monInstance == this)
        monInstance = nullptr;
}

void FenPriseEnMain::AlloueInstance(bool premier, bool second)
{
    monInstance = new FenPriseEnMain(premier, second);
}

FenPriseEnMain * FenPriseEnMain::Instance()
{
    return monInstance;
}

void FenPriseEnMain::LibereSingleton()
{
    delete monInstance;
    monInstance = nullptr;
}

void FenPriseEnMain::MetsCallbackFermeture(std::function<void(QPoint)> const & callback)
{
    monCallbackFermeture = callback;
}

void FenPriseEnMain::PopuleAffichage(QVBoxLayout * disposition)
{
    if (!disposition)
        return;
    mesRangees.clear();
    CreeEntete(disposition);
    if (!monCtrl)
        return;
    for (RangeePriseEnMain & rangee : monCtrl->PreteVecteurRangeesPriseEnMain()) {
        mesRangees.push_back(CreeRangee(rangee));
        disposition->addLayout(mesRangees.back());
    }
}

void FenPriseEnMain::resizeEvent(QResizeEvent * evenement)
{
    QDialog::resizeEvent(evenement);
    if (mesRangees.size() <= kRangeesVisibles)
        return;
    int hauteur = monTitre->sizeHint().height() + monExplication->sizeHint().height() +
                  monImage->height() + kHauteurMarges;
    for (std::size_t i = 0; i < kRangeesVisibles; ++i)
        hauteur += mesRangees[i]->sizeHint().height();
    setMaximumHeight(hauteur + kHauteurReserve);
    // The limit has shrunk the window in the midst of its layout, which is now done anew.
    monDefilement->setWidgetResizable(false);
    monDefilement->setWidgetResizable(true);
}

// A link that has the focus takes the Enter key itself. Elsewhere the key would go to the dialog's
// default button, which is whichever link comes first.
void FenPriseEnMain::keyPressEvent(QKeyEvent * evenement)
{
    if (evenement->key() == Qt::Key_Return || evenement->key() == Qt::Key_Enter)
        evenement->ignore();
    else
        QDialog::keyPressEvent(evenement);
}

void FenPriseEnMain::CreeDefilement()
{
    auto * const contenu = new QFrame;
    contenu->setFrameStyle(0);
    auto * const dispositionContenu = new QVBoxLayout(contenu);
    dispositionContenu->setContentsMargins(kMarge, kMarge, kMarge, kMarge);

    monDefilement = new Defilement;
    monDefilement->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    monDefilement->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    monDefilement->setWidgetResizable(true);
    monDefilement->setFrameShape(QFrame::NoFrame);
    monDefilement->setFocusPolicy(Qt::NoFocus); // it has no frame that would show the focus
    monDefilement->setWidget(contenu);

    auto * const disposition = new QVBoxLayout(this);
    disposition->setContentsMargins({});
    disposition->addWidget(monDefilement);
    PopuleAffichage(dispositionContenu);
}

void FenPriseEnMain::CreeEntete(QVBoxLayout * disposition)
{
    auto * const entete = new QHBoxLayout;
    entete->setAlignment(Qt::AlignCenter);
    monImage = new QSvgWidget(u":/Images/fenetre-decouvrir-panacel.svg"_s);
    monImage->renderer()->setAspectRatioMode(Qt::KeepAspectRatio);
    monImage->setFixedHeight(kHauteurImage);
    monImage->setAccessibleName(monCtrl ? monCtrl->DonneTitreFenetre() : kUniChaineNulle);
    entete->addWidget(monImage);

    monTitre = new QLabel(monCtrl ? monCtrl->DonneTitreFenetre() : kUniChaineNulle);
    monTitre->setObjectName(u"titrePriseEnMain"_s);
    monTitre->setAlignment(Qt::AlignCenter);
    monExplication = new QLabel(monCtrl ? monCtrl->DonneExplication() : kUniChaineNulle);
    monExplication->setObjectName(u"explicationPriseEnMain"_s);
    monExplication->setAlignment(Qt::AlignCenter);
    monExplication->setWordWrap(true);

    disposition->addLayout(entete);
    disposition->addWidget(monTitre);
    disposition->addWidget(monExplication);
    if (!QAccessible::isActive())
        return;
    for (QWidget * const widget :
         {static_cast<QWidget *>(monImage), static_cast<QWidget *>(monTitre),
          static_cast<QWidget *>(monExplication)})
        widget->setFocusPolicy(Qt::TabFocus);
}

QHBoxLayout * FenPriseEnMain::CreeRangee(RangeePriseEnMain & rangee)
{
    auto * const caseVue = new QCheckBox;
    caseVue->setObjectName(u"CheckBoxListeLien"_s);
    caseVue->setAccessibleName(rangee.titre);
    caseVue->setChecked(monCtrl->LisReglage(rangee.cle));

    auto * const bouton = new QPushButton(rangee.titre);
    bouton->setFlat(true);
    bouton->setSizePolicy(QSizePolicy::Expanding, bouton->sizePolicy().verticalPolicy());
    bouton->setObjectName(u"BoutonListeLien"_s);
    // Deliberate: also for a link that was seen before this window was made.
    MetsCouleurLien(*bouton);

    BrancheRangee(rangee, caseVue, bouton);
    auto * const disposition = new QHBoxLayout;
    disposition->addWidget(caseVue);
    disposition->addWidget(bouton);
    return disposition;
}

void FenPriseEnMain::BrancheRangee(RangeePriseEnMain const & rangee, QCheckBox * caseVue,
                                   QPushButton * bouton)
{
    connect(bouton, &QPushButton::clicked, this,
            [=, this, lien = rangee.lien] { PriseLien(caseVue, bouton, lien); });
    connect(caseVue, &QCheckBox::stateChanged, this,
            [=, this, cle = rangee.cle](int etat) { PriseEtat(cle, etat); });
    connect(caseVue, &QCheckBox::clicked, this,
            [=, this, lien = rangee.lien](bool coche) { PriseCase(coche, bouton, lien); });
}

void FenPriseEnMain::PriseFermeture()
{
    // A copy: the callback may destroy the window that holds it.
    if (auto const callback = monCallbackFermeture)
        callback(pos());
}

void FenPriseEnMain::PriseLien(QCheckBox * caseVue, QPushButton * bouton, UniChaine const & lien)
{
    if (!OuvreLien(*bouton, lien))
        return;
    caseVue->setChecked(true);
    MetsCouleurVisitay(*bouton);
}

void FenPriseEnMain::PriseEtat(UniChaine const & cle, int etat)
{
    if (monCtrl)
        monCtrl->MetsReglage(cle, etat == Qt::Checked);
}

void FenPriseEnMain::PriseCase(bool coche, QPushButton * bouton, UniChaine const & lien)
{
    if (!coche) {
        MetsCouleurLien(*bouton);
        return;
    }
    if (OuvreLien(*bouton, lien))
        MetsCouleurVisitay(*bouton);
}
