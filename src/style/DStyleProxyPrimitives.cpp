// style/DStyleProxyPrimitives.cpp
//
// The primitive elements but the panel of an item.
#include "style/CopieOption_p.h"
#include "style/CouleursStyle_p.h"
#include "style/DStyleProxy.h"
#include "style/GardePeintre_p.h"
#include "style/GenreDeVue_p.h"
#include "style/LecturePropriete_p.h"
#include "style/ProprietesStyle_p.h"

#include "controls/DListView.h"
#include "controls/DTreeView.h"

#include <QComboBox>
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

bool DessineBaseOnglets(QStyleOption const & option, QPainter & peintre)
{
    QColor const couleur = CouleursStyle::EstSombre(option.palette)
                               ? Voile(CouleursStyle::kSeparateurEntete, option.palette)
                               : CouleursStyle::kBaseOnglets;
    GardePeintre const garde(&peintre);
    peintre.setPen(QPen(couleur, 1, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    peintre.drawLine(option.rect.topRight(), option.rect.topLeft());
    return true;
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
    bool const animay = element == PE_FrameLineEdit || element == PE_PanelLineEdit ||
                        element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton;
    if (animay)
        ArreteAnimations(option, widget);
    if (!option || !DessinePrimitive(element, *option, peintre, widget))
        QProxyStyle::drawPrimitive(element, option, peintre, widget);
}

// False when the element is the base style's.
bool DStyleProxy::DessinePrimitive(PrimitiveElement element, QStyleOption const & option,
                                   QPainter * peintre, QWidget const * widget) const
{
    auto const * const item = qstyleoption_cast<QStyleOptionViewItem const *>(&option);
    auto const baseSans = [&](QStyleOption & copie, State drapeaux) {
        copie.state &= ~drapeaux;
        QProxyStyle::drawPrimitive(element, &copie, peintre, widget);
    };
    switch (element) {
    case PE_FrameFocusRect:
        return EstBooleenVrai(widget, ProprietesStyle::kFocusSansRect);
    case PE_FrameLineEdit:
        EmploieCopie<QStyleOptionFrame>(
            option, [&](QStyleOption & copie) { baseSans(copie, State_MouseOver); });
        return true;
    case PE_FrameTabBarBase:
        return qstyleoption_cast<QStyleOptionTabBarBase const *>(&option) &&
               DessineBaseOnglets(option, *peintre);
    case PE_PanelButtonTool:
        DessinePanneauBoutonOutil(option, peintre, widget);
        return true;
    case PE_PanelButtonCommand:
        // Of a combo box that cannot be edited, Fusion paints a button even without a frame.
        return qobject_cast<QComboBox const *>(widget) &&
               EstBooleenVrai(widget, ProprietesStyle::kComboBoxSansFrame);
    case PE_IndicatorArrowDown:
        if (!EstVrai(widget, ProprietesStyle::kBoutonSansFlecheMenu))
            DessineIndicateur(*peintre, option);
        return true;
    case PE_IndicatorButtonDropDown:
        EmploieCopie<QStyleOptionToolButton, QStyleOptionButton>(
            option, [&](QStyleOption & copie) { baseSans(copie, State_MouseOver | State_On); });
        DessineIndicateur(*peintre, option);
        return true;
    case PE_IndicatorItemViewItemDrop:
        return DessineParVue(element, &option, peintre, widget);
    case PE_PanelItemViewItem:
        return item && !EstTable(widget) && DessinePanneauItem(*item, peintre, widget);
    case PE_PanelItemViewRow:
        return item && DessineRangee(*item, peintre, widget);
    default:
        return false;
    }
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
    int const cote = std::min(kCoteIndicateur, option.rect.width() - 2 * kMargeIndicateur);
    // The application's picture, which it may supply late. Deliberate: no slash behind the colon.
    QString const fichier = u":Images/chevron-DToolButton.svg"_s;
    if (monChevron.isNull() && QFile::exists(fichier)) // an icon without a file warns
        monChevron = QIcon(fichier);
    if (cote <= 0 || monChevron.isNull())
        return;
    auto const mode = option.state & State_Enabled ? QIcon::Normal : QIcon::Disabled;
    auto const etat = option.state & State_On ? QIcon::On : QIcon::Off;
    QPixmap const pixmap =
        monChevron.pixmap(QSize(cote, cote), peintre.device()->devicePixelRatioF(), mode, etat);
    QProxyStyle::drawItemPixmap(&peintre, option.rect, Qt::AlignHCenter | Qt::AlignVCenter, pixmap);
}
