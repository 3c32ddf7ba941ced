// navigation/DTabBarInterne.cpp
#include "navigation/DTabBarInterne.h"

#include "controls/DLabelElision.h"

#include "foundation/ThemesQt.h"

#include "navigation/BarreOngletsAccessible_p.h"
#include "navigation/DTabBar.h"
#include "navigation/FantomeOnglet_p.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScopedValueRollback>
#include <QStyle>
#include <QStyleOptionTab>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Logical pixels.
constexpr int kHorsDuTitre = 66;     // of a tab's width
constexpr int kEcartTitre = 5;       // before the title, and between the frame and the right button
constexpr int kMargeSansBouton = 15; // of a tab without a right button

} // namespace

DTabBarInterne::DTabBarInterne(DTabBar * parent, UniChaine identifiantGroupe)
    : QTabBar(parent)
    , monIdentifiantGroupe(std::move(identifiantGroupe))
    , monFantome(std::make_unique<FantomeOnglet>())
{
    BarreOngletsAccessible::PrendsFabrique();
    qRegisterMetaType<DTabBarInterne::InfosOnglet>("DTabBarInterne::InfosOnglet");
    connect(this, &QTabBar::tabMoved, this, &DTabBarInterne::PriseOngletDeplacay,
            Qt::UniqueConnection);
}

DTabBarInterne::~DTabBarInterne()
{
    VideCible();
    BarreOngletsAccessible::LibereFabrique();
}

int DTabBarInterne::InsereOngletVide(int index)
{
    QScopedValueRollback const sommaire(monLayoutEstSommaire, !isVisible());
    return insertTab(index, QString());
}

void DTabBarInterne::PoseBouton(int index, ButtonPosition cote, QWidget * bouton)
{
    QScopedValueRollback const sommaire(monLayoutEstSommaire, !isVisible());
    setTabButton(index, cote, bouton);
}

void DTabBarInterne::CreeCadreOnglet(int index)
{
    if (index < 0 || index >= count())
        return;
    InfosOnglet infos = DonneInfos(index);
    infos.cadre = new QFrame(this);
    infos.cadre->setMinimumHeight(maTailleIcone.height());
    CreeEtiquettes(infos);
    PoseBouton(index, LeftSide, infos.cadre);
    MetsInfos(index, infos);
    AjusteLargeurTitre(index);
}

void DTabBarInterne::CreeEtiquettes(InfosOnglet & infos)
{
    auto * const layout = new QHBoxLayout(infos.cadre);
    layout->setContentsMargins(0, 0, 0, 0);

    infos.etiquetteIcone = new QLabel(infos.cadre);
    infos.etiquetteIcone->setAttribute(Qt::WA_TransparentForMouseEvents);
    layout->addWidget(infos.etiquetteIcone);
    infos.etiquetteIcone->setFixedSize(maTailleIcone);
    infos.etiquetteIcone->hide();

    infos.etiquetteTitre = new DLabelElision(infos.cadre);
    infos.etiquetteTitre->setObjectName(u"TestUI_EditeurInterneEtiquetteTexte"_s);
    infos.etiquetteTitre->setAttribute(Qt::WA_TransparentForMouseEvents);
    infos.etiquetteTitre->PrendsPolice(font());
    infos.etiquetteTitre->PrendsModeElision(DLabelElision::kElisionFin);
    infos.etiquetteTitre->setFixedWidth(std::max(maLargeurOnglet - kHorsDuTitre, 0));
    layout->addSpacing(kEcartTitre);
    layout->addWidget(infos.etiquetteTitre);
}

DTabBarInterne::InfosOnglet DTabBarInterne::DonneInfos(int index) const
{
    return tabData(index).value<InfosOnglet>();
}

void DTabBarInterne::MetsInfos(int index, InfosOnglet const & infos)
{
    setTabData(index, QVariant::fromValue(infos));
}

void DTabBarInterne::MetsTitreOnglet(int index, UniChaine const & titre)
{
    InfosOnglet infos = DonneInfos(index);
    infos.titre = titre;
    MetsInfos(index, infos);
    AjusteLargeurTitre(index);
    setAccessibleTabName(index, titre);
}

void DTabBarInterne::MetsIconeOnglet(int index, QIcon const & icone)
{
    InfosOnglet infos = DonneInfos(index);
    infos.icone = icone;
    MetsInfos(index, infos);
    if (!infos.etiquetteIcone)
        return;
    MetsPixmapIcone(infos);
    infos.etiquetteIcone->setVisible(!icone.isNull());
    MetsLargeurCadre(index, infos); // the icon takes its room from the title
}

void DTabBarInterne::MetsPixmapIcone(InfosOnglet const & infos)
{
    infos.etiquetteIcone->setPixmap(infos.icone.pixmap(maTailleIcone, devicePixelRatioF()));
}

void DTabBarInterne::MetsCouleurTitre(int index, bool actif)
{
    DLabelElision * const etiquette = DonneInfos(index).etiquetteTitre;
    if (!etiquette)
        return;
    QPalette palette = etiquette->palette();
    palette.setColor(QPalette::WindowText,
                     ThemesQt::Instance()->DonneCouleur(actif ? u"couleurTexteDeBase"_s
                                                              : u"couleurTexteGris"_s));
    etiquette->setPalette(palette);
}

void DTabBarInterne::AjusteLargeurTitre(int index)
{
    InfosOnglet const infos = DonneInfos(index);
    if (!infos.etiquetteTitre)
        return;
    if (infos.titre.EstVide()) {
        infos.etiquetteTitre->PrendsTexte(QString());
        return;
    }
    MetsLargeurCadre(index, infos);
    infos.etiquetteTitre->adjustSize();
    infos.etiquetteTitre->PrendsTexte(infos.titre);
}

void DTabBarInterne::MetsLargeurCadre(int index, InfosOnglet const & infos)
{
    int const largeur = DonneLargeurCadre(index);
    if (largeur < 0)
        return;
    QWidget * const gauche = tabButton(index, LeftSide);
    QPoint const coin(gauche->geometry().right() + 1 - largeur, gauche->y());
    gauche->setFixedWidth(largeur);
    if (isRightToLeft()) // the edge at which Qt has placed it is the right one
        gauche->move(coin);
    if (!infos.etiquetteTitre || !infos.cadre)
        return;
    int place = maLargeurOnglet - kHorsDuTitre;
    // The title gives way to the icon: else its end, ellipsis and all, would be cut off.
    if (!infos.etiquetteIcone->isHidden())
        place = std::min(place, largeur - kEcartTitre - maTailleIcone.width() -
                                    infos.cadre->layout()->spacing());
    infos.etiquetteTitre->setFixedWidth(std::clamp(place, 0, std::max(largeur, 0)));
}

// What the frame of a tab may take, or -1 while that is not known. Both buttons stand where the
// last layout put them, which `setTabButton` has made even of a hidden bar: asking for the tab's
// rectangle would lay out the whole bar once more.
int DTabBarInterne::DonneLargeurCadre(int index) const
{
    QWidget const * const gauche = tabButton(index, LeftSide);
    if (!gauche)
        return -1;
    // From right to left, the "left" button stands at the right end of the tab: without mirroring,
    // there would be no room at all between it and the other one.
    auto const bordAvant = [this](QRect const & place) {
        return QStyle::visualRect(layoutDirection(), rect(), place).x();
    };
    int const debut = bordAvant(gauche->geometry());
    if (QWidget const * const droite = tabButton(index, RightSide))
        return std::max(bordAvant(droite->geometry()) - kEcartTitre - debut, 0);
    if (!isVisible())
        return -1;
    // The left of the tab is added: the frame's place counts from the bar's.
    QRect const onglet = tabRect(index);
    return std::max(bordAvant(onglet) + onglet.width() - kMargeSansBouton - debut, 0);
}

void DTabBarInterne::AjusteLargeursCadres()
{
    for (int i = 0; i < count(); ++i) {
        QWidget const * const gauche = tabButton(i, LeftSide);
        int const largeur = DonneLargeurCadre(i);
        if (gauche && largeur >= 0 && gauche->width() != largeur)
            AjusteLargeurTitre(i);
    }
}

void DTabBarInterne::MetsPeutGlisserDeposer(bool peut)
{
    monPeutGlisserDeposer = peut;
    if (!peut && monDeplacementExterne)
        AbandonneDeplacement();
}

void DTabBarInterne::MetsTailleOnglets(int largeur)
{
    maLargeurOnglet = std::max(largeur, 0);
    RefaisMiseEnPage();
    adjustSize();
    for (int i = 0; i < count(); ++i)
        AjusteLargeurTitre(i);
}

// Qt keeps the sizes of the tabs and has no call to have them asked for anew; this one, with what
// it has already, changes nothing else.
void DTabBarInterne::RefaisMiseEnPage()
{
    setElideMode(elideMode());
}

void DTabBarInterne::MetsTailleIcone(QSize const & taille)
{
    setIconSize(taille);
    maTailleIcone = iconSize(); // the style's for an invalid one
    for (int i = 0; i < count(); ++i) {
        InfosOnglet const infos = DonneInfos(i);
        if (!infos.etiquetteIcone)
            continue;
        infos.cadre->setMinimumHeight(maTailleIcone.height());
        infos.etiquetteIcone->setFixedSize(maTailleIcone);
        MetsPixmapIcone(infos);
        MetsLargeurCadre(i, infos);
    }
}

void DTabBarInterne::keyPressEvent(QKeyEvent * evenement)
{
    bool const suivant =
        evenement->key() == Qt::Key_Tab && evenement->modifiers() == Qt::ControlModifier;
    // The parents may know what to do with the others; the base would move with the arrows.
    evenement->setAccepted(suivant);
    for (int i = 1; suivant && i < count(); ++i) {
        int const index = (currentIndex() + i) % count();
        if (isTabEnabled(index) && isTabVisible(index)) {
            setCurrentIndex(index);
            return;
        }
    }
}

void DTabBarInterne::paintEvent(QPaintEvent * evenement)
{
    // Deliberate: nothing draws the place of a tab that comes from elsewhere.
    QTabBar::paintEvent(evenement);
}

void DTabBarInterne::showEvent(QShowEvent * evenement)
{
    QTabBar::showEvent(evenement);
    AjusteLargeursCadres();
}

void DTabBarInterne::hideEvent(QHideEvent * evenement)
{
    AbandonneDeplacement();
    QTabBar::hideEvent(evenement);
}

void DTabBarInterne::changeEvent(QEvent * evenement)
{
    QTabBar::changeEvent(evenement);
    if (evenement->type() == QEvent::EnabledChange && !isEnabled())
        AbandonneDeplacement();
    if (evenement->type() == QEvent::LayoutDirectionChange)
        RefaisMiseEnPage(); // Qt mirrors the tabs, but leaves their buttons where they are
    if (evenement->type() != QEvent::FontChange)
        return;
    for (int i = 0; i < count(); ++i)
        if (DLabelElision * const etiquette = DonneInfos(i).etiquetteTitre)
            etiquette->PrendsPolice(font());
}

void DTabBarInterne::initStyleOption(QStyleOptionTab * option, int index) const
{
    if (!monLayoutEstSommaire) {
        QTabBar::initStyleOption(option, index);
        return;
    }
    // Qt asks for every tab at each insertion and at each button, though only one is new. What the
    // places of the buttons depend on is a small part of the option.
    option->direction = layoutDirection();
    option->rect = tabRect(index);
    if (QWidget const * const gauche = tabButton(index, LeftSide))
        option->leftButtonSize = gauche->size();
    if (QWidget const * const droite = tabButton(index, RightSide))
        option->rightButtonSize = droite->size();
}

QSize DTabBarInterne::tabSizeHint(int) const
{
    return {maLargeurOnglet, height()};
}

QSize DTabBarInterne::minimumTabSizeHint(int index) const
{
    return tabSizeHint(index);
}

void DTabBarInterne::tabLayoutChange()
{
    QTabBar::tabLayoutChange();
    if (isVisible())
        AjusteLargeursCadres();
}
