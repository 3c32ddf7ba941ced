// style/DStyleProxyControles.cpp
//
// The control elements but those of item views.
#include "style/CopieOption_p.h"
#include "style/CouleursStyle_p.h"
#include "style/DStyleProxy.h"
#include "style/GardePeintre_p.h"
#include "style/LecturePropriete_p.h"
#include "style/MemoirePalettes_p.h"
#include "style/ProprietesStyle_p.h"
#include "style/TexteDeLabel_p.h"

#include "foundation/VersionsQt_p.h"

#include <QStyleOption>
#include <QTabBar>

#include <cmath>

using namespace Qt::StringLiterals;

using CouleursStyle::EstSombre;
using CouleursStyle::Voile;
using TexteDeLabel::SansMnemonique;

namespace {

constexpr double kOpaciteDesactivay = 0.55;

// Logical pixels.
constexpr int kDecalageMenu = 32; // of a menu's text, behind the column for checks
constexpr int kDecalageMenuSansCochage = 4;
constexpr double kMargeBoutonDefaut = 1.5;
constexpr double kRayonBouton = 3.0;
constexpr double kMargeLigneFocus = 3.0;
constexpr int kRayonOnglet = 3;
constexpr int kEpaisseurAccentOnglet = 3;
constexpr int kMargeAccentOnglet = 3;
constexpr int kHautSeparateurOnglet = 7;
constexpr int kBasSeparateurOnglet = 5;

// Percentages of QColor::lighter.
constexpr int kClarteEnfoncay = 110;
constexpr int kClarteSurvolay = 105;

// Draws an option of the type that the element has; false, and draws nothing, for any other one.
template <typename Option, typename Dessin>
bool Dessine(QStyleOption const * option, Dessin const & dessin)
{
    auto const * const typee = qstyleoption_cast<Option const *>(option);
    if (typee)
        dessin(*typee);
    return typee;
}

bool EstDefaut(QStyleOptionButton const & option)
{
    return option.features & QStyleOptionButton::DefaultButton;
}

QColor MelangeSur(QColor const & fond, QColor const & couche)
{
    double const part = couche.alphaF();
    auto const melange = [part](int dessous, int dessus) {
        return static_cast<int>(std::lround(dessous + (dessus - dessous) * part));
    };
    return {melange(fond.red(), couche.red()), melange(fond.green(), couche.green()),
            melange(fond.blue(), couche.blue())};
}

void DessineBoutonDefaut(QStyleOptionButton const & option, QPainter & peintre)
{
    QColor couleur = DonneCouleurAccent(option.palette);
    if (option.state & QStyle::State_Sunken)
        couleur = couleur.lighter(kClarteEnfoncay);
    else if (option.state & QStyle::State_MouseOver)
        couleur = couleur.lighter(kClarteSurvolay);

    QRectF const rect = QRectF(option.rect)
                            .adjusted(kMargeBoutonDefaut, kMargeBoutonDefaut, -kMargeBoutonDefaut,
                                      -kMargeBoutonDefaut);
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setPen(couleur);
    peintre.setBrush(couleur);
    peintre.drawRoundedRect(rect, kRayonBouton, kRayonBouton, Qt::AbsoluteSize);
    if (option.state & QStyle::State_HasFocus) {
        peintre.setPen(
            QPen(Voile(CouleursStyle::kLigneFocus, option.palette), 1, Qt::SolidLine, Qt::FlatCap));
        peintre.drawLine(rect.bottomLeft() + QPointF(kMargeLigneFocus, 0),
                         rect.bottomRight() - QPointF(kMargeLigneFocus, 0));
    }
}

void DessineSeparateurOnglet(QStyleOptionTab const & option, QPainter & peintre,
                             QTabBar const & barre)
{
    int const index = barre.tabAt(option.rect.bottomLeft());
    bool const estDernier = index == barre.count() - 1;
    bool const cotoieCourant =
        barre.currentIndex() >= 0 && std::abs(index - barre.currentIndex()) <= 1;
    if (index < 0 || estDernier || cotoieCourant)
        return;
    bool const versLaGauche = option.direction == Qt::RightToLeft;
    double const x = (versLaGauche ? option.rect.left() : option.rect.right()) + 0.5;
    peintre.setPen(QPen(Voile(CouleursStyle::kSeparateurOnglet, option.palette), 1, Qt::SolidLine,
                        Qt::FlatCap));
    peintre.drawLine(QPointF(x, option.rect.top() + kHautSeparateurOnglet),
                     QPointF(x, option.rect.bottom() - kBasSeparateurOnglet));
}

} // namespace

void DStyleProxy::drawControl(ControlElement element, QStyleOption const * option,
                              QPainter * peintre, QWidget const * widget) const
{
    GardePeintre const garde(peintre); // also from what the base style leaves behind
    if (element == CE_RadioButton || element == CE_ComboBoxLabel)
        ArreteAnimations(option, widget);
    monWidgetDessinay = widget;
    monWidgetManque = !widget;
    if (EstBooleenVrai(widget, ProprietesStyle::kChampTexteSansLigneDecoratrice))
        return;
    if (option && !(option->state & State_Enabled) &&
        EstBooleenVrai(widget, ProprietesStyle::kMonochrome))
        peintre->setOpacity(kOpaciteDesactivay);
    if (auto const * const menu = qstyleoption_cast<QStyleOptionMenuItem const *>(option))
        DessineItemMenu(element, *menu, peintre, widget);
    else if (EstBooleenVrai(widget, ProprietesStyle::kPourStyle))
        DessineSansExtras(element, option, peintre, widget);
    else if (!DessineElement(element, option, peintre, widget))
        QProxyStyle::drawControl(element, option, peintre, widget);
}

// False when the element is the base style's.
bool DStyleProxy::DessineElement(ControlElement element, QStyleOption const * option,
                                 QPainter * peintre, QWidget const * widget) const
{
    switch (element) {
    case CE_PushButtonBevel:
        return Dessine<QStyleOptionButton>(
            option, [&](auto const & bouton) { DessineFondBouton(bouton, peintre, widget); });
    case CE_PushButtonLabel:
        return Dessine<QStyleOptionButton>(
            option, [&](auto const & bouton) { DessineTexteBouton(bouton, peintre, widget); });
    case CE_TabBarTabShape:
        return Dessine<QStyleOptionTab>(
            option, [&](auto const & onglet) { DessineOnglet(onglet, peintre, widget); });
    case CE_TabBarTabLabel:
        return Dessine<QStyleOptionTab>(
            option, [&](auto const & onglet) { DessineTexteOnglet(onglet, peintre, widget); });
    case CE_ItemViewItem:
        return Dessine<QStyleOptionViewItem>(
            option, [&](auto const & item) { DessineItemVue(item, peintre, widget); });
    case CE_ToolButtonLabel:
        return Dessine<QStyleOptionToolButton>(
            option, [&](auto const & bouton) { DessineTexteBoutonOutil(bouton, peintre, widget); });
    case CE_HeaderSection:
        return Dessine<QStyleOptionHeader>(
            option, [&](auto const & section) { DessineSectionEntete(section, peintre); });
    case CE_ProgressBarContents:
        return Dessine<QStyleOptionProgressBar>(option, [&](auto const & progression) {
            auto const active = ActivePalette(progression);
            QProxyStyle::drawControl(CE_ProgressBarContents, &active, peintre, widget);
        });
    case CE_ShapedFrame:
        return DessineCadre(option, peintre, widget);
    default:
        return false;
    }
}

bool DStyleProxy::DessineCadre(QStyleOption const * option, QPainter * peintre,
                               QWidget const * widget) const
{
    auto const * const cadre = qstyleoption_cast<QStyleOptionFrame const *>(option);
    if (!cadre || (cadre->frameShape != QFrame::StyledPanel && cadre->frameShape != QFrame::Panel))
        return false;
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): past the frame of the platform's style
    QCommonStyle::drawControl(CE_ShapedFrame, option, peintre, widget);
    return true;
}

void DStyleProxy::DessineItemMenu(ControlElement element, QStyleOptionMenuItem const & option,
                                  QPainter * peintre, QWidget const * widget) const
{
    QStyleOptionMenuItem copie(option);
    if (EstBooleenVrai(widget, ProprietesStyle::kCrochetMenu))
        copie.checkType = QStyleOptionMenuItem::NonExclusive;
    if (!EstBooleenVrai(widget, ProprietesStyle::kTexteRiche)) {
        QProxyStyle::drawControl(element, &copie, peintre, widget);
        return;
    }

    int decalage = kDecalageMenu;
    if (EstBooleenVrai(widget, ProprietesStyle::kMenuSansSectionACocher)) {
        copie.checkType = QStyleOptionMenuItem::NotCheckable;
        decalage = kDecalageMenuSansCochage;
    }
    auto const chaines = DonneChainesDansItemMenu(&option);
    copie.text = chaines.raccourci.EstVide() ? QString() : u'\t' + QString(chaines.raccourci);
    QProxyStyle::drawControl(element, &copie, peintre, widget);

    QPalette palette(option.palette);
    palette.setColor(QPalette::Window, maCouleurFenetre);
    if (option.state & State_Selected && SelectionnaySurFondAccent())
        palette.setColor(QPalette::WindowText, palette.color(QPalette::HighlightedText));
    peintre->setFont(option.font); // as measured
    DessinerTexteRiche(peintre, SansMnemonique(chaines.texte), option.rect,
                       option.state & State_Enabled, palette,
                       option.direction == Qt::RightToLeft ? -decalage : decalage, 0,
                       DonneContexte(&option), Qt::AlignLeft | Qt::AlignVCenter, widget, true);
}

DStyleProxy::ChainesItemMenu
DStyleProxy::DonneChainesDansItemMenu(QStyleOptionMenuItem const * option)
{
    constexpr QChar kSeparateur = u'\t';

    qsizetype const separateur = option->text.indexOf(kSeparateur);
    if (separateur < 0)
        return {option->text, {}};
    return {option->text.left(separateur), option->text.mid(separateur + 1)};
}

void DStyleProxy::DessineFondBouton(QStyleOptionButton const & option, QPainter * peintre,
                                    QWidget const * widget) const
{
    QStyleOptionButton copie = ActivePalette(option);
    if (EstVrai(widget, ProprietesStyle::kBoutonsStyleHomographes))
        copie.state &= ~State_MouseOver;
    if (EstBooleenVrai(widget, ProprietesStyle::kBoutonSansBevel))
        return;
    if (widget && EstDefaut(copie)) {
        DessineBoutonDefaut(copie, *peintre);
        return;
    }
    if (copie.palette.currentColorGroup() != QPalette::Disabled)
        copie.palette =
            maMemoirePalettes->Donne(copie.palette, QPalette::Button, DonneFondBouton(copie));
    QProxyStyle::drawControl(CE_PushButtonBevel, &copie, peintre, widget);
}

QColor DStyleProxy::DonneFondBouton(QStyleOptionButton const & option) const
{
    QColor const bouton = option.palette.color(QPalette::Button);
    bool const survolay = option.state & State_MouseOver;
    // The light background would hide the light text of a dark palette.
    if (!survolay && EstSombre(option.palette, QPalette::ButtonText, QPalette::Button))
        return bouton;
    QColor const couche =
        survolay ? Voile(CouleursStyle::kSurvolBouton, option.palette) : CouleursStyle::kFondBouton;
    // Fusion drops the alpha of the colour, and would paint the overlay for the mouse in solid
    // black. It gets what the overlay gives on its own button.
    return baseStyle()->inherits("QFusionStyle") ? MelangeSur(bouton, couche) : couche;
}

void DStyleProxy::DessineTexteBouton(QStyleOptionButton const & option, QPainter * peintre,
                                     QWidget const * widget) const
{
    QStyleOptionButton copie(option);
    if (!(copie.state & State_Enabled))
        copie.state |= State_Sunken;
    if (EstVrai(widget, ProprietesStyle::kBoutonsStyleHomographes)) {
        // A push button that is chosen is "on": styles never see it as selected.
        if (copie.state & (State_Selected | State_On | State_MouseOver))
            copie.palette.setColor(QPalette::ButtonText, DonneCouleurAccent(QPalette()));
        copie.state &= ~State_MouseOver;
    }
    if (widget && EstDefaut(copie)) {
        if (copie.state & State_Sunken)
            copie.state |= State_On;
        else if (!EstBooleenVrai(widget, ProprietesStyle::kBoutonSansBevel)) // on the accent only
            copie.palette =
                maMemoirePalettes->Donne(copie.palette, QPalette::ButtonText, Qt::white);
    }
    QProxyStyle::drawControl(CE_PushButtonLabel, &copie, peintre, widget);
}

void DStyleProxy::DessineOnglet(QStyleOptionTab const & option, QPainter * peintre,
                                QWidget const * widget)
{
    peintre->setRenderHint(QPainter::Antialiasing);
    if (option.state & State_Selected) {
        peintre->setPen(Voile(CouleursStyle::kContourOnglet, option.palette));
        peintre->setBrush(Qt::white);
        peintre->drawPath(DonneFormeOnglet(option.rect));
        QRectF const accent(option.rect.left() + kMargeAccentOnglet, option.rect.top(),
                            option.rect.width() - 2 * kMargeAccentOnglet, kEpaisseurAccentOnglet);
        peintre->setPen(QPen(DonneCouleurAccent(option.palette), kEpaisseurAccentOnglet,
                             Qt::SolidLine, Qt::FlatCap));
        peintre->drawLine(
            QLineF(accent.left(), accent.center().y(), accent.right(), accent.center().y()));
    } else if (option.state & State_MouseOver) {
        peintre->setPen(Qt::transparent);
        peintre->setBrush(Voile(CouleursStyle::kSurvolBouton, option.palette));
        peintre->drawPath(DonneFormeOnglet(option.rect));
    } else if (auto const * const barre = qobject_cast<QTabBar const *>(widget)) {
        DessineSeparateurOnglet(option, *peintre, *barre);
    }
}

// The selected tab is white in every palette.
void DStyleProxy::DessineTexteOnglet(QStyleOptionTab const & option, QPainter * peintre,
                                     QWidget const * widget) const
{
    QStyleOptionTab copie(option);
    if (copie.state & State_Selected && EstSombre(copie.palette)) {
        for (auto const role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
            copie.palette.setColor(role, Qt::black);
    }
    QProxyStyle::drawControl(CE_TabBarTabLabel, &copie, peintre, widget);
}

QPainterPath DStyleProxy::DonneFormeOnglet(QRect const & rect)
{
    // Through the middle of the pixels, so that the outline is one pixel wide.
    QRectF const contour = QRectF(rect).adjusted(0.5, 0.5, -0.5, 0.0);
    QSizeF const coin(2 * kRayonOnglet, 2 * kRayonOnglet);
    QPainterPath forme(contour.bottomLeft());
    forme.arcTo(QRectF(contour.topLeft(), coin), 180, -90);
    forme.arcTo(QRectF(contour.topRight() - QPointF(coin.width(), 0), coin), 90, -90);
    forme.lineTo(contour.bottomRight());
    return forme;
}

void DStyleProxy::DessineTexteBoutonOutil(QStyleOptionToolButton const & option, QPainter * peintre,
                                          QWidget const * widget) const
{
    QStyleOptionToolButton copie(option);
    if (widget && (widget->objectName() == "BoutonFavorisChevronnable"_L1 ||
                   widget->objectName() == "DBoutonReformulation"_L1))
        copie.features &= ~QStyleOptionToolButton::Arrow;
    QProxyStyle::drawControl(CE_ToolButtonLabel, &copie, peintre, widget);
}
