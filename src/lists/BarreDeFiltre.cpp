// lists/BarreDeFiltre.cpp
#include "lists/BarreDeFiltre.h"

#include "foundation/GeometrieEcran.h"
#include "foundation/TraductionGui.h"

#include "lists/ListePastille.h"
#include "lists/Pastille.h"
#include "lists/ToolTipComboBox.h"

#include <QApplication>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QScreen>
#include <QToolButton>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

// Logical pixels.
constexpr int kMargeGauche = 15;
constexpr int kEspacementPastilles = 10;
constexpr int kMargeEtiquette = 7;
constexpr QSize kTailleIcone(18, 18);
constexpr int kEcartOuverture = 7;  // between the pop-up and the button, as it opens
constexpr int kEcartPlacement = 10; // and once it has its size

constexpr double kPartDesPastilles = 0.6; // of the width of the bar, at most

// Qt would warn of an image that the application does not supply.
QIcon DonneIconeFiltre(bool actif)
{
    QString const chemin = actif ? u":/Images/filtreActiver.svg"_s : u":/Images/filtreGris.svg"_s;
    return QFile::exists(chemin) ? QIcon(chemin) : QIcon();
}

bool EstUnClic(QEvent::Type type)
{
    return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease ||
           type == QEvent::MouseButtonDblClick;
}

} // namespace

BarreDeFiltre::BarreDeFiltre(bool avecBoutonOptions, bool avecToolTip, QWidget * parent)
    : QFrame(parent)
    , monAvecToolTip(avecToolTip)
{
    if (monAvecToolTip)
        CreeToolTip();
    setObjectName(u"BandeauRecherche"_s); // style sheets know the search bar by it too
    monLayout = new QHBoxLayout;
    monLayout->setContentsMargins(kMargeGauche, 0, 0, 0);
    CreePastilles();
    CreeChampRecherche();
    CreeEtiquette();
    if (avecBoutonOptions)
        CreeBoutonOptions();
    setAccessibleName(TraductionGui(TexteGui("Barre des filtres")));
    setLayout(monLayout);
}

void BarreDeFiltre::AjouterComboBox(int id, QString const & libelle, QComboBox * combo)
{
    if (monToolTip)
        monToolTip->AjouterComboBox(id, libelle, combo);
}

void BarreDeFiltre::AjouterMenu(QMenu * menu)
{
    monMenu = menu;
    if (monBoutonOptions)
        monBoutonOptions->setMenu(menu);
}

void BarreDeFiltre::AjouterMotPastille(QString const & titre, QVariant const & donnees, bool)
{
    if (!maListePastille->TrouvePastille(donnees)) {
        auto * const pastille = new Pastille(titre, donnees, this);
        connect(pastille, &Pastille::PastilleASupprimer, this, &BarreDeFiltre::PastilleASupprimer,
                Qt::UniqueConnection);
        maListePastille->AjoutePastille(pastille);
    }
    if (!maListePastille->WidgetEstVisible(maListePastille->layout()->count() - 1))
        MetAJourTailleListePastille();
}

void BarreDeFiltre::AfficherListePastille(bool affiche)
{
    maListePastille->setVisible(affiche);
}

void BarreDeFiltre::CacheIconeFlecheToolButton()
{
    if (monBoutonOptions)
        monBoutonOptions->setStyleSheet(u"::menu-indicator{ image: none; }"_s);
}

int BarreDeFiltre::DonneLargeurBoutonOptions() const
{
    return monBoutonOptions ? monBoutonOptions->width() : 0;
}

QPoint BarreDeFiltre::DonnePositionBoutonOptions() const
{
    return monBoutonOptions ? monBoutonOptions->mapToGlobal(QPoint(0, 0)) : QPoint();
}

QSize BarreDeFiltre::DonneTailleBoutonOptions() const
{
    return monBoutonOptions ? monBoutonOptions->size() : QSize(0, 0);
}

void BarreDeFiltre::MetsBoutonFiltreActif(bool const & actif)
{
    if (monBoutonOptions)
        monBoutonOptions->setIcon(DonneIconeFiltre(actif));
}

void BarreDeFiltre::MetsIndexCourantComboBox(int id, int index)
{
    if (monToolTip)
        monToolTip->MetsIndexCourantComboBox(id, index);
}

QComboBox * BarreDeFiltre::PreteComboBox(int id)
{
    return monToolTip ? monToolTip->PreteComboBox(id) : nullptr;
}

int BarreDeFiltre::TrouveIndexAvecData(int id, QVariant const & donnees)
{
    return monToolTip ? monToolTip->TrouveIndexAvecData(id, donnees) : -1;
}

void BarreDeFiltre::MetsTexteCardinalitay(UniChaine const & texte)
{
    monEtiquetteCardinalitay->setText(texte);
    Q_EMIT EtiquetteCardinalitayModifiay();
}

void BarreDeFiltre::NetoyerPastille()
{
    bool const avaitLeFocus = maListePastille->isAncestorOf(QApplication::focusWidget());
    maListePastille->Vide();
    if (avaitLeFocus)
        monComboRecherche->setFocus();
    MetAJourTailleListePastille();
}

DChampRecherche * BarreDeFiltre::PreteComboDeRecherche() const
{
    return monComboRecherche;
}

void BarreDeFiltre::ReinitialiseFiltresActifs()
{
    MetsBoutonFiltreActif(false);
}

void BarreDeFiltre::SupprimerPastille(QVariant const & donnees)
{
    if (Pastille * const pastille = maListePastille->TrouvePastille(donnees))
        maListePastille->RetirePastille(pastille, monComboRecherche);
    MetAJourTailleListePastille();
}

bool BarreDeFiltre::eventFilter(QObject * objet, QEvent * evenement)
{
    // The pills may change their size, with the font or the style sheet, and then the list must.
    if (objet == maListePastille && evenement->type() == QEvent::LayoutRequest)
        MetAJourTailleListePastille();
    // The type first: the pop-up also tells of its own end.
    if (evenement->type() == QEvent::Show && monToolTip && objet == monToolTip->window())
        PlaceToolTip(); // opened again at the same size, it hears of no resize
    bool const clic = EstUnClic(evenement->type()) && monToolTip &&
                      (objet == monToolTip || objet == monToolTip->window());
    if (clic && MangeClic(static_cast<QMouseEvent const &>(*evenement)))
        return true;
    return QFrame::eventFilter(objet, evenement);
}

void BarreDeFiltre::hideEvent(QHideEvent * evenement)
{
    if (monToolTip)
        monToolTip->window()->hide(); // a menu would stay without what it belongs to
    QFrame::hideEvent(evenement);
}

void BarreDeFiltre::resizeEvent(QResizeEvent * evenement)
{
    QFrame::resizeEvent(evenement);
    maListePastille->MetAJourMenu();
    MetAJourTailleListePastille();
}

void BarreDeFiltre::PriseAfficherToolTip()
{
    if (!monToolTip || !monBoutonOptions)
        return;
    QSize const taille = monToolTip->sizeHint();
    QPoint const bouton = mapToGlobal(monBoutonOptions->pos());
    // Last: it blocks until the pop-up is closed, and the bar may be gone by then.
    monToolTip->OuvrirMenuALaPosition(
        {bouton.x() - taille.width() / 2, bouton.y() - taille.height() - kEcartOuverture});
}

void BarreDeFiltre::PriseEtiquetteModifiay()
{
    int const marge = monEtiquetteCardinalitay->text().isEmpty() ? 0 : kMargeEtiquette;
    monEtiquetteCardinalitay->setContentsMargins(marge, 0, marge, 0);
}

void BarreDeFiltre::PriseOuvreMenu()
{
    monBoutonOptions->setChecked(false);
}

void BarreDeFiltre::PlaceToolTip()
{
    QWidget & fenetre = *monToolTip->window(); // the menu in which the pop-up stands
    if (!monBoutonOptions || !fenetre.isVisible())
        return;
    QRect const ecran = screen()->availableGeometry();
    QPoint const bouton = monBoutonOptions->mapToGlobal(QPoint(0, 0));
    QPoint position(bouton.x() + monBoutonOptions->width() / 2 - monToolTip->width() / 2,
                    bouton.y() - kEcartPlacement - monToolTip->height());
    // Deliberate: where there is no room above, below, where the button can still be clicked.
    if (position.y() < ecran.top())
        position.setY(bouton.y() + monBoutonOptions->height() + kEcartPlacement);
    fenetre.move(position);
    if (!ecran.contains(fenetre.frameGeometry()))
        RoutinesGeneralesQt::AjusteDansEcran(fenetre, false, true, false);
}

void BarreDeFiltre::CreeToolTip()
{
    monToolTip = new ToolTipComboBox(this);
    monToolTip->installEventFilter(this);
    // QMenu is what gets the clicks beside the pop-up, those on the button too.
    monToolTip->window()->installEventFilter(this);
    connect(monToolTip, &ToolTipComboBox::SignalResizeEvent, this, &BarreDeFiltre::PlaceToolTip,
            Qt::UniqueConnection);
    connect(monToolTip, &ToolTipComboBox::SignalValeurChanger, this,
            &BarreDeFiltre::SignalValeurChanger, Qt::UniqueConnection);
}

void BarreDeFiltre::CreePastilles()
{
    maListePastille = new ListePastille(this);
    maListePastille->setSpacing(kEspacementPastilles);
    MetAJourTailleListePastille();
    monLayout->addWidget(maListePastille, 0, Qt::AlignVCenter);
    maListePastille->hide();
    maListePastille->installEventFilter(this);
}

void BarreDeFiltre::CreeChampRecherche()
{
    monComboRecherche = new DChampRecherche(this);
    monComboRecherche->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    monComboRecherche->setObjectName(u"ComboFiltre"_s);
    monComboRecherche->VideToutMode();
    monLayout->addWidget(monComboRecherche);
}

void BarreDeFiltre::CreeEtiquette()
{
    monEtiquetteCardinalitay = new QLabel(this);
    connect(this, &BarreDeFiltre::EtiquetteCardinalitayModifiay, this,
            &BarreDeFiltre::PriseEtiquetteModifiay, Qt::UniqueConnection);
    monLayout->addWidget(monEtiquetteCardinalitay);
}

void BarreDeFiltre::CreeBoutonOptions()
{
    monBoutonOptions = new QToolButton(this);
    monBoutonOptions->setIcon(DonneIconeFiltre(false));
    monBoutonOptions->setIconSize(kTailleIcone);
    monBoutonOptions->setToolTip(TraductionGui(TexteGui("Configuration de l’affichage")));
    monBoutonOptions->setAccessibleName(monBoutonOptions->toolTip()); // it shows no text
    monBoutonOptions->setCheckable(true);
    monBoutonOptions->setAutoRaise(true);
    if (monAvecToolTip) {
        BrancheToolTip();
    } else {
        monMenu = new QMenu(this);
        monBoutonOptions->setMenu(monMenu);
        monBoutonOptions->setPopupMode(QToolButton::InstantPopup);
    }
    monLayout->addWidget(monBoutonOptions);
}

void BarreDeFiltre::BrancheToolTip()
{
    // The pop-up blocks in the first connection of its signal: the button is down while it is open.
    connect(monToolTip, &DMenuAction::SignalOuvreMenu, this, &BarreDeFiltre::PriseOuvreMenu,
            Qt::UniqueConnection);
    connect(monToolTip, &ToolTipComboBox::SignalFiltreActif, this,
            &BarreDeFiltre::MetsBoutonFiltreActif, Qt::UniqueConnection);
    connect(monBoutonOptions, &QToolButton::clicked, this, &BarreDeFiltre::PriseAfficherToolTip,
            Qt::ConnectionType(Qt::QueuedConnection | Qt::UniqueConnection));
}

bool BarreDeFiltre::MangeClic(QMouseEvent const & evenement)
{
    QPoint const global = evenement.globalPosition().toPoint();
    if (!monBoutonOptions || childAt(mapFromGlobal(global)) != monBoutonOptions)
        return false;
    // The menu, not the pop-up in it, which would be missing from it the next time.
    if (evenement.type() == QEvent::MouseButtonRelease)
        monToolTip->window()->close();
    return true;
}

void BarreDeFiltre::MetAJourTailleListePastille()
{
    QLayout const & rangee = *maListePastille->layout();
    int const place = static_cast<int>(std::lround(width() * kPartDesPastilles));
    // That of the base, which is the width alone: this runs for each of many pills.
    int const voulue =
        maListePastille->DFrameChevronnable::sizeHint().width() + rangee.spacing() * rangee.count();
    maListePastille->setFixedWidth(std::min(place, voulue));
}
