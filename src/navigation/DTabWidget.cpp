// navigation/DTabWidget.cpp
#include "navigation/DTabWidget.h"

#include "foundation/TraductionGui.h"
#include "navigation/DTabBar.h"
#include "navigation/DTabBarInterne.h"

#include <QEvent>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QStackedWidget>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Logical pixels.
constexpr int kCoteBoutonFermeture = 16;

} // namespace

DTabWidget::DTabWidget(QWidget * parent, QString identifiantGroupe)
    : QFrame(parent)
    , monIconeFermeture(u":/Images/fermer.svg"_s)
{
    maPile = new QStackedWidget;
    monBarre = new DTabBar(this, identifiantGroupe);
    monLayout = new QVBoxLayout(this);
    monLayout->setContentsMargins(0, 0, 0, 0);
    monLayout->addWidget(monBarre);
    monLayout->addWidget(maPile);
    Branche();
}

DTabWidget::~DTabWidget()
{
    // Their deletion by the base tells of changes, which nobody is left to follow.
    PreteBarreInterne()->disconnect(this);
    maPile->disconnect(this);
    PreteBarreInterne()->removeEventFilter(this);

    // Destroyed by a receiver of a signal: functions of Qt's bar and of its buttons may be running,
    // which need them until they return.
    if (mesEmissions > 0) {
        monBarre->setParent(nullptr);
        monBarre->deleteLater();
    }
}

int DTabWidget::AjouteOnglet(QWidget * page, QString titre)
{
    int const index = PoseOnglet(page, -1);
    if (index < 0)
        return -1;
    DTabBarInterne & barre = *PreteBarreInterne();
    barre.CreeCadreOnglet(index);
    barre.MetsTitreOnglet(index, titre);
    barre.MetsCouleurTitre(index, true);
    barre.setTabToolTip(index, titre);
    AjouteBoutonFermeture(index);
    return index;
}

void DTabWidget::InsereOnglet(QWidget * page, int index, QString titre)
{
    index = PoseOnglet(page, index);
    if (index < 0)
        return;
    DTabBarInterne & barre = *PreteBarreInterne();
    barre.CreeCadreOnglet(index);
    barre.MetsTitreOnglet(index, titre);
    AjouteBoutonFermeture(index);
    barre.setTabToolTip(index, titre);
    barre.MetsCouleurTitre(index, true);
}

void DTabWidget::RetireOnglet(int index)
{
    QWidget * const page = maPile->widget(index);
    if (!page)
        return;
    RetireDeLaPile(page);
    RetireDeLaBarre(index);
}

void DTabWidget::AjouteWidgetCommun(QWidget * widget)
{
    if (!widget)
        return;
    // One that the host has deleted since is counted, but has no place any more.
    monLayout->removeWidget(widget);
    monLayout->insertWidget(std::min(monNombreWidgetsCommuns + 1, monLayout->indexOf(maPile)),
                            widget);
    ++monNombreWidgetsCommuns;
}

void DTabWidget::AfficheBarreOnglets()
{
    monBarre->show();
}

void DTabWidget::CacheBarreOnglets()
{
    monBarre->hide();
}

void DTabWidget::CacheAjoutOnglet()
{
    monBarre->PreteBoutonAjout()->hide();
}

int DTabWidget::DonneIndexCourant() const
{
    return PreteBarreInterne()->currentIndex();
}

int DTabWidget::DonneTotalOnglet() const
{
    return PreteBarreInterne()->count();
}

QWidget * DTabWidget::DonneWidget(int index) const
{
    return maPile->widget(index);
}

QWidget * DTabWidget::DonneWidgetCourant() const
{
    return maPile->currentWidget();
}

QString DTabWidget::DonneTitre(int index) const
{
    return PreteBarreInterne()->DonneInfos(index).titre;
}

QIcon DTabWidget::DonneIconeOnglet(int index) const
{
    return PreteBarreInterne()->DonneInfos(index).icone;
}

QVariant DTabWidget::DonneDataOnglet(int index, int cle) const
{
    return PreteBarreInterne()->DonneInfos(index).donnees.value(cle);
}

void DTabWidget::MetsDataOnglet(int index, QVariant const & donnee, int cle)
{
    if (!maPile->widget(index))
        return;
    auto infos = PreteBarreInterne()->DonneInfos(index);
    infos.donnees.insert(cle, donnee);
    PreteBarreInterne()->MetsInfos(index, infos);
}

QSize DTabWidget::DonneTailleBoutonAjout() const
{
    // Deliberate: hosts line their own widgets up with the bar by it.
    return PreteBarreInterne()->size();
}

QSize DTabWidget::DonneTailleIcone() const
{
    return PreteBarreInterne()->iconSize();
}

void DTabWidget::MetsTailleIcone(QSize const & taille)
{
    PreteBarreInterne()->MetsTailleIcone(taille);
}

void DTabWidget::MetsIconeOnglet(int index, QIcon const & icone)
{
    if (maPile->widget(index))
        PreteBarreInterne()->MetsIconeOnglet(index, icone);
}

void DTabWidget::MetsIndexCourant(int index)
{
    if (!maPile->widget(index))
        return;
    QPointer<DTabWidget> const vivant(this);
    maPile->setCurrentIndex(index);
    if (!vivant)
        return;
    PreteBarreInterne()->setCurrentIndex(index);
    // Qt's bar keeps its tab while one is being dragged.
    if (vivant)
        maPile->setCurrentIndex(PreteBarreInterne()->currentIndex());
}

void DTabWidget::MetsPeutGlisserDeposerOnglet(bool peut)
{
    PreteBarreInterne()->MetsPeutGlisserDeposer(peut);
}

void DTabWidget::MetsTailleOnglets(int largeur)
{
    PreteBarreInterne()->MetsTailleOnglets(largeur);
}

void DTabWidget::MetsTexteOnglet(int index, QString texte)
{
    if (!maPile->widget(index))
        return;
    PreteBarreInterne()->MetsTitreOnglet(index, texte);
    PreteBarreInterne()->setTabToolTip(index, texte);
}

DTabBar * DTabWidget::PreteBarre() const
{
    return monBarre;
}

void DTabWidget::changeEvent(QEvent * evenement)
{
    QFrame::changeEvent(evenement);
    // The theme has no signal of its own; an application that changes it changes one of these.
    if (evenement->type() == QEvent::PaletteChange || evenement->type() == QEvent::StyleChange)
        ActualiseCouleurs();
    // Style sheets take their palettes away from the labels, which hear of it only behind this.
    if (evenement->type() == QEvent::StyleChange)
        QMetaObject::invokeMethod(this, &DTabWidget::ActualiseCouleurs, Qt::QueuedConnection);
    if (evenement->type() == QEvent::LanguageChange)
        NommeBoutonsFermeture();
}

bool DTabWidget::eventFilter(QObject * objet, QEvent * evenement)
{
    if (evenement->type() != QEvent::MouseMove || objet != PreteBarreInterne())
        return QFrame::eventFilter(objet, evenement);
    // While it moves a tab with the mouse, Qt's bar does not stand the removal of another: hosts
    // hear of the move when the event is over.
    ++mesRetenues;
    objet->event(evenement);
    --mesRetenues;
    Diffuse();
    return true;
}

void DTabWidget::PriseOngletChangay(int index)
{
    maPile->setCurrentIndex(index);
    MontreActif(index, true);
    // A tab that has only got another index is no new one.
    if (index != monIndexPrecedent) {
        MontreActif(monIndexPrecedent, false);
        GriseTitresNeufs(index);
    }
    monIndexPrecedent = index;
    Publie({false, index, index});
}

void DTabWidget::PriseBoutonFermeture()
{
    DTabBarInterne const & barre = *PreteBarreInterne();
    for (int i = 0; sender() && i < barre.count(); ++i) {
        if (barre.tabButton(i, QTabBar::RightSide) != sender())
            continue;
        QPointer<DTabWidget> const vivant(this);
        ++mesEmissions; // Qt's button is still handling its release
        Q_EMIT SignalDemandeFermetureOnglet(i);
        if (vivant)
            --mesEmissions;
        return;
    }
}

void DTabWidget::PrisePageRetiree(int index)
{
    if (monRetraitEnCours)
        return;
    // Amid the destruction of a page or its change of parent, no receiver may destroy this.
    ++mesRetenues;
    RetireDeLaBarre(index);
    --mesRetenues;
    QMetaObject::invokeMethod(this, &DTabWidget::Diffuse, Qt::QueuedConnection);
}

DTabBarInterne * DTabWidget::PreteBarreInterne() const
{
    return monBarre->PreteBarreInterne();
}

DTabWidget * DTabWidget::TrouveDepuis(QWidget * widget)
{
    while (widget && !qobject_cast<DTabWidget *>(widget))
        widget = widget->parentWidget();
    return static_cast<DTabWidget *>(widget);
}

void DTabWidget::Branche()
{
    DTabBarInterne * const barre = PreteBarreInterne();
    connect(monBarre, &DTabBar::SignalAjouteOnglet, this, &DTabWidget::SignalAjouteOnglet,
            Qt::UniqueConnection);
    connect(barre, &DTabBarInterne::SignalAjouteOngletBarreExterne, this,
            &DTabWidget::PriseDeplaceOngletVersBarreExterne, Qt::UniqueConnection);
    connect(barre, &QTabBar::currentChanged, this, &DTabWidget::PriseOngletChangay,
            Qt::UniqueConnection);
    connect(barre, &QTabBar::tabMoved, this, &DTabWidget::PriseOngletDeplacay,
            Qt::UniqueConnection);
    connect(barre, &DTabBarInterne::SignalOngletNouvelleFenetre, this,
            &DTabWidget::PriseNouvelleFenetreOngletExistant, Qt::UniqueConnection);
    // Deliberate: the -1 of a middle click beside the tabs passes through.
    connect(barre, &QTabBar::tabCloseRequested, this, &DTabWidget::SignalDemandeFermetureOnglet,
            Qt::UniqueConnection);
    connect(maPile, &QStackedWidget::widgetRemoved, this, &DTabWidget::PrisePageRetiree,
            Qt::UniqueConnection);
    barre->installEventFilter(this);
}

// The index of the new tab; -1 when there is none, and when this is gone.
int DTabWidget::PoseOnglet(QWidget * page, int position)
{
    if (!page || page == maPile || page->isAncestorOf(maPile))
        return -1;
    QPointer<DTabWidget> const vivant(this);
    QPointer<QWidget> const pageVivante(page);
    // Out of the tab that it has, before the pile takes it out of there amid its own change.
    DTabWidget * const ancien = TrouveDepuis(page->parentWidget());
    if (ancien)
        ancien->RetireOnglet(ancien->maPile->indexOf(page));
    if (!vivant || !pageVivante)
        return -1;

    int const index = maPile->insertWidget(position, page);
    ++mesRetenues; // Qt's bar does not stand that receivers change it while it inserts a tab
    PreteBarreInterne()->InsereOngletVide(index);
    --mesRetenues;
    if (index <= monIndexPrecedent && DonneTotalOnglet() > 1)
        ++monIndexPrecedent;
    mesPagesNeuves.append(pageVivante);
    if (mesPagesNeuves.size() > DonneTotalOnglet()) // some have gone again
        mesPagesNeuves.removeIf([this](auto const & neuve) { return maPile->indexOf(neuve) < 0; });
    Diffuse();
    return vivant && pageVivante ? maPile->indexOf(page) : -1;
}

void DTabWidget::AjouteBoutonFermeture(int index)
{
    auto * const bouton = new QToolButton;
    bouton->setIcon(monIconeFermeture);
    connect(bouton, &QToolButton::clicked, this, &DTabWidget::PriseBoutonFermeture,
            Qt::UniqueConnection);
    bouton->setObjectName(u"boutonFermeture"_s); // style sheets know it under this name
    bouton->setAccessibleName(TraductionGui(TexteGui("Fermer l'onglet")));
    bouton->setFixedSize(kCoteBoutonFermeture, kCoteBoutonFermeture);
    PreteBarreInterne()->PoseBouton(index, QTabBar::RightSide, bouton);
    PreteBarreInterne()->AjusteLargeurTitre(index);
}

void DTabWidget::NommeBoutonsFermeture()
{
    for (QToolButton * const bouton :
         PreteBarreInterne()->findChildren<QToolButton *>(u"boutonFermeture"_s))
        bouton->setAccessibleName(TraductionGui(TexteGui("Fermer l'onglet")));
}

void DTabWidget::RetireDeLaPile(QWidget * page)
{
    QScopedValueRollback const retrait(monRetraitEnCours, true);
    maPile->removeWidget(page);
}

void DTabWidget::RetireDeLaBarre(int index)
{
    if (index == monIndexPrecedent)
        monIndexPrecedent = -1;
    else if (index < monIndexPrecedent)
        --monIndexPrecedent;
    ++mesRetenues; // Qt's bar does not stand that receivers change it while it removes a tab
    PreteBarreInterne()->removeTab(index);
    --mesRetenues;
    Diffuse();
}

void DTabWidget::MontreActif(int index, bool actif)
{
    if (index < 0)
        return;
    DTabBarInterne & barre = *PreteBarreInterne();
    auto * const bouton = qobject_cast<QToolButton *>(barre.tabButton(index, QTabBar::RightSide));
    if (bouton || !actif)
        barre.MetsCouleurTitre(index, actif);
    if (!bouton)
        return;
    bouton->setProperty("selectionnay", actif);
    bouton->style()->unpolish(bouton);
    bouton->style()->polish(bouton);
    if (actif)
        bouton->setIcon(monIconeFermeture);
}

// Titles begin with the active colour. Of all those that are not the active one, the first change
// of tab takes it.
void DTabWidget::GriseTitresNeufs(int indexActif)
{
    for (QPointer<QWidget> const & page : std::exchange(mesPagesNeuves, {})) {
        int const index = maPile->indexOf(page);
        if (index >= 0 && index != indexActif)
            PreteBarreInterne()->MetsCouleurTitre(index, false);
    }
}

void DTabWidget::ActualiseCouleurs()
{
    for (int i = 0; i < DonneTotalOnglet(); ++i) {
        bool const actif = i == monIndexPrecedent || mesPagesNeuves.contains(DonneWidget(i));
        PreteBarreInterne()->MetsCouleurTitre(i, actif);
    }
}

void DTabWidget::Publie(Annonce const & annonce)
{
    mesAnnonces.append(annonce);
    Diffuse();
}

void DTabWidget::Diffuse()
{
    QPointer<DTabWidget> const vivant(this);
    while (vivant && mesRetenues == 0 && !mesAnnonces.isEmpty()) {
        Annonce const annonce = mesAnnonces.takeFirst();
        ++mesEmissions;
        if (annonce.deplacement)
            Q_EMIT SignalOngletDeplacay(annonce.de, annonce.vers);
        else
            Q_EMIT SignalOngletCourantChangay(annonce.vers);
        if (vivant)
            --mesEmissions;
    }
}
