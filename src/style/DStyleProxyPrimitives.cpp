// style/DStyleProxyPrimitives.cpp
//
// The primitive elements but the panel of an item.
#include "style/CopieOption_p.h"
#include "style/CouleursStyle_p.h"
#include "style/DStyleProxy.h"
#include "style/GardePeintre_p.h"
#include "style/LecturePropriete_p.h"
#include "style/ProprietesStyle_p.h"

#include "controls/DListView.h"
#include "controls/DTreeView.h"

#include <QFile>
#include <QIcon>

using namespace Qt::StringLiterals;

using CouleursStyle::Voile;

namespace {

// Logical pixels.
constexpr int kCoteIndicateur = 10;
constexpr int kMargeIndicateur = 1; // on either side
constexpr double kRayonBoutonOutil = 3.0;

QColor DonneCouleurBoutonOutil(QStyle::State etat)
{
    bool const survolay = etat & QStyle::State_MouseOver;
    if (etat & QStyle::State_Sunken)
        return CouleursStyle::kBoutonOutilEnfoncay;
    if (survolay && etat & QStyle::State_On)
        return CouleursStyle::kBoutonOutilCochaySurvolay;
    return survolay ? CouleursStyle::kBoutonOutilSurvolay : CouleursStyle::kBoutonOutil;
}

void DessineBaseOnglets(QRect const & rect, QPainter & peintre)
{
    GardePeintre const garde(&peintre);
    peintre.setPen(QPen(CouleursStyle::kBaseOnglets, 1, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    peintre.drawLine(rect.topRight(), rect.topLeft());
}

bool DessineParVue(QStyle::PrimitiveElement element, QStyleOption const * option,
                   QPainter * peintre, QWidget const * widget)
{
    if (!EstBooleenVrai(widget, ProprietesStyle::kPourStyle))
        return false;
    if (auto const * const arbre = qobject_cast<DTreeView const *>(widget))
        return arbre->GereDrawPrimitive(element, option, peintre, widget);
    if (auto const * const liste = qobject_cast<DListView const *>(widget))
        return liste->GereDrawPrimitive(element, option, peintre, widget);
    return false;
}

} // namespace

void DStyleProxy::drawPrimitive(PrimitiveElement element, QStyleOption const * option,
                                QPainter * peintre, QWidget const * widget) const
{
    auto const base = [&](QStyleOption const * copie) {
        QProxyStyle::drawPrimitive(element, copie, peintre, widget);
    };
    if (!option) {
        base(option);
        return;
    }
    auto const baseSans = [&](QStyleOption & copie, State drapeaux) {
        copie.state &= ~drapeaux;
        base(&copie);
    };
    switch (element) {
    case PE_FrameFocusRect:
        if (!EstBooleenVrai(widget, ProprietesStyle::kFocusSansRect))
            base(option);
        return;
    case PE_FrameLineEdit:
        ArreteAnimations(option, widget);
        EmploieCopie<QStyleOptionFrame>(
            *option, [&](QStyleOption & copie) { baseSans(copie, State_MouseOver); });
        return;
    case PE_FrameTabBarBase:
        if (!qstyleoption_cast<QStyleOptionTabBarBase const *>(option))
            break;
        DessineBaseOnglets(option->rect, *peintre);
        return;
    case PE_PanelButtonTool:
        DessinePanneauBoutonOutil(*option, peintre, widget);
        return;
    case PE_PanelLineEdit:
    case PE_IndicatorCheckBox:
    case PE_IndicatorRadioButton:
        ArreteAnimations(option, widget);
        break;
    case PE_IndicatorArrowDown:
        if (!EstVrai(widget, ProprietesStyle::kBoutonSansFlecheMenu))
            DessineIndicateur(*peintre, *option);
        return;
    case PE_IndicatorButtonDropDown:
        EmploieCopie<QStyleOptionToolButton, QStyleOptionButton>(
            *option, [&](QStyleOption & copie) { baseSans(copie, State_MouseOver | State_On); });
        DessineIndicateur(*peintre, *option);
        return;
    case PE_IndicatorItemViewItemDrop:
        if (DessineParVue(element, option, peintre, widget))
            return;
        break;
    case PE_PanelItemViewItem:
        if (auto const * const item = qstyleoption_cast<QStyleOptionViewItem const *>(option)) {
            DessinePanneauItem(*item, peintre, widget);
            return;
        }
        break;
    case PE_PanelItemViewRow:
        if (auto const * const item = qstyleoption_cast<QStyleOptionViewItem const *>(option)) {
            DessineRangee(*item, peintre, widget);
            return;
        }
        break;
    default:
        break;
    }
    base(option);
}

void DStyleProxy::DessinePanneauBoutonOutil(QStyleOption const & option, QPainter * peintre,
                                            QWidget const * widget) const
{
    EmploieCopie<QStyleOptionToolButton>(option, [&](QStyleOption & copie) {
        copie.state &= ~(State_MouseOver | State_On);
        QProxyStyle::drawPrimitive(PE_PanelButtonTool, &copie, peintre, widget);
    });
    GardePeintre const garde(peintre);
    peintre->setRenderHint(QPainter::Antialiasing);
    peintre->setPen(Qt::NoPen);
    peintre->setBrush(Voile(DonneCouleurBoutonOutil(option.state), option.palette));
    peintre->drawRoundedRect(option.rect, kRayonBoutonOutil, kRayonBoutonOutil);
}

void DStyleProxy::DessineIndicateur(QPainter & peintre, QStyleOption const & option) const
{
    // The application's picture. Deliberate: no slash behind the colon.
    QString const fichier = u":Images/chevron-DToolButton.svg"_s;
    int const cote = std::min(kCoteIndicateur, option.rect.width() - 2 * kMargeIndicateur);
    if (cote <= 0 || !QFile::exists(fichier)) // an icon without its file warns at each drawing
        return;
    QIcon const chevron(fichier);
    auto const mode = option.state & State_Enabled ? QIcon::Normal : QIcon::Disabled;
    auto const etat = option.state & State_On ? QIcon::On : QIcon::Off;
    QPixmap const pixmap =
        chevron.pixmap(QSize(cote, cote), peintre.device()->devicePixelRatioF(), mode, etat);
    QProxyStyle::drawItemPixmap(&peintre, option.rect, Qt::AlignHCenter | Qt::AlignVCenter, pixmap);
}
