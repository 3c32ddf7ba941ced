// navigation/DTabWidget.cpp
#include "navigation/DTabWidget.h"

#include "foundation/TraductionGui.h"
#include "navigation/DTabBar.h"
#include "navigation/DTabBarInterne.h"

#include <QPushButton>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Logical pixels.
constexpr int kCoteBoutonFermeture = 16;

} // namespace

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value is the interface
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
    // A host that hears of the destruction by `destroyed` may still take pages and tabs away.
    PreteBarreInterne()->disconnect(this);
    maPile->disconnect(this);

    // Destroyed by a receiver of a signal: functions of Qt's bar and of its buttons may be running,
    // which need them until they return.
    if (mesEmissions > 0) {
        monBarre->setParent(nullptr);
        monBarre->deleteLater();
    }
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value is the interface
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

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value is the interface
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
    if (!widget || Contient(widget, this))
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

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value is the interface
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

// Also by way of another window, such as a dialog of the page, which `isAncestorOf` does not see.
bool DTabWidget::Contient(QWidget const * page, QWidget const * widget)
{
    while (widget && widget != page)
        widget = widget->parentWidget();
    return widget;
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
