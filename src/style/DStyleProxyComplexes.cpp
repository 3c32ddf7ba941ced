// style/DStyleProxyComplexes.cpp
//
// The complex controls, and where their parts are.
#include "style/CopieOption_p.h"
#include "style/CouleursStyle_p.h"
#include "style/DStyleProxy.h"
#include "style/GardePeintre_p.h"
#include "style/LecturePropriete_p.h"
#include "style/ProprietesStyle_p.h"

#include "foundation/VersionsQt_p.h"

#include <QToolButton>

namespace {

// Logical pixels.
constexpr int kEpaisseurFocus = 2;
constexpr int kMargeFocus = 2; // from either end of the combo box

// Parts that no combo box has. The active parts belong to the key by which Fusion finds its picture
// of a combo box again, and an ordinary one must not get that of one without arrow or frame.
constexpr auto kCleSansFleche = static_cast<QStyle::SubControl>(0x10000000);
constexpr auto kCleSansFrame = static_cast<QStyle::SubControl>(0x20000000);

} // namespace

void DStyleProxy::drawComplexControl(ComplexControl controle, QStyleOptionComplex const * option,
                                     QPainter * peintre, QWidget const * widget) const
{
    if (controle == CC_ComboBox) {
        ArreteAnimations(option, widget);
        if (auto const * const combo = qstyleoption_cast<QStyleOptionComboBox const *>(option)) {
            DessineComboBox(*combo, peintre, widget);
            return;
        }
    } else if (controle == CC_ToolButton) {
        auto const * const bouton = qstyleoption_cast<QStyleOptionToolButton const *>(option);
        if (bouton && qobject_cast<QToolButton const *>(widget)) {
            DessineBoutonOutil(*bouton, peintre, widget);
            return;
        }
    } else if (controle == CC_Slider) {
        if (auto const * const reglette = qstyleoption_cast<QStyleOptionSlider const *>(option)) {
            auto const active = ActivePalette(*reglette);
            QProxyStyle::drawComplexControl(controle, &active, peintre, widget);
            return;
        }
    }
    QProxyStyle::drawComplexControl(controle, option, peintre, widget);
}

void DStyleProxy::DessineBoutonOutil(QStyleOptionToolButton const & option, QPainter * peintre,
                                     QWidget const * widget) const
{
    auto const & bouton = *static_cast<QToolButton const *>(widget);
    QStyleOptionToolButton copie(option);
    if (bouton.isDown() && bouton.autoRaise())
        copie.state &= ~State_On;
    if (EstVrai(widget, ProprietesStyle::kBoutonSansFlecheMenu))
        copie.subControls &= ~SC_ToolButtonMenu;

    bool const aPartieMenu = copie.subControls & SC_ToolButtonMenu;
    QRect const partieMenu =
        proxy()->subControlRect(CC_ToolButton, &copie, SC_ToolButtonMenu, widget);
    if (aPartieMenu && copie.activeSubControls & SC_ToolButtonMenu && copie.state & State_Sunken) {
        QStyleOptionToolButton menu(copie);
        menu.rect = partieMenu;
        proxy()->drawPrimitive(PE_IndicatorButtonDropDown, &menu, peintre, widget);
    }
    QProxyStyle::drawComplexControl(CC_ToolButton, &copie, peintre, widget);
    if (!aPartieMenu)
        return;
    GardePeintre const garde(peintre);
    peintre->setRenderHint(QPainter::Antialiasing, false);
    peintre->setPen(CouleursStyle::Voile(CouleursStyle::kSeparateurMenuBouton, copie.palette));
    bool const aGauche = copie.direction == Qt::RightToLeft; // of the button
    peintre->drawLine(aGauche ? partieMenu.topRight() : partieMenu.topLeft(),
                      aGauche ? partieMenu.bottomRight() : partieMenu.bottomLeft());
}

void DStyleProxy::DessineComboBox(QStyleOptionComboBox const & option, QPainter * peintre,
                                  QWidget const * widget) const
{
    QStyleOptionComboBox copie(option);
    if (EstVrai(widget, ProprietesStyle::kComboBoxSansFleche))
        copie.activeSubControls |= kCleSansFleche;
    if (EstBooleenVrai(widget, ProprietesStyle::kComboBoxSansFrame)) {
        copie.activeSubControls |= kCleSansFrame;
        copie.state &= ~State_MouseOver;
        copie.frame = false;
        copie.subControls &= ~SC_ComboBoxFrame;
    }
    QProxyStyle::drawComplexControl(CC_ComboBox, &copie, peintre, widget);
    if (copie.editable || !(copie.state & State_HasFocus))
        return;
    GardePeintre const garde(peintre);
    peintre->setPen(QPen(DonneCouleurAccent(copie.palette), kEpaisseurFocus, Qt::SolidLine,
                         Qt::FlatCap, Qt::MiterJoin));
    peintre->drawLine(copie.rect.bottomLeft() + QPoint(kMargeFocus, 0),
                      copie.rect.bottomRight() - QPoint(kMargeFocus, 0));
}

QRect DStyleProxy::subControlRect(ComplexControl controle, QStyleOptionComplex const * option,
                                  SubControl sousControle, QWidget const * widget) const
{
    QRect rect = QProxyStyle::subControlRect(controle, option, sousControle, widget);
    if (controle != CC_ComboBox || !EstVrai(widget, ProprietesStyle::kComboBoxSansFleche))
        return rect;
    if (sousControle == SC_ComboBoxArrow)
        return {};
    if (sousControle == SC_ComboBoxEditField) {
        QRect const fleche =
            QProxyStyle::subControlRect(controle, option, SC_ComboBoxArrow, widget);
        if (option && option->direction == Qt::RightToLeft)
            rect.setLeft(fleche.left());
        else
            rect.setRight(fleche.right());
    }
    return rect;
}
