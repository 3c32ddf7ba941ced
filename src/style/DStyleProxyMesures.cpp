// style/DStyleProxyMesures.cpp
//
// Metrics, sizes, hints, and the parts of simple elements.
#include "style/DStyleProxy.h"
#include "style/GenreDeVue_p.h"
#include "style/LecturePropriete_p.h"
#include "style/ProprietesStyle_p.h"
#include "style/TexteDeLabel_p.h"

#include "controls/DLabelElision.h"
#include "foundation/Polices.h"
#include "foundation/TailleTexte.h"

#include <QLabel>
#include <QStyleOption>

using RoutinesGeneralesQt::ModulateurFont;

using Interpreteur = InterpreteurChaineSemantiqueT<UniChaine>;

namespace {

// Logical pixels.
constexpr QSize kAjoutItemBarreMenu(26, 13);
constexpr int kAjoutItemSansIcone = 4;
constexpr int kDebordChampTexte = 4; // of the text of a line edit, to its left

} // namespace

QRect DStyleProxy::subElementRect(SubElement element, QStyleOption const * option,
                                  QWidget const * widget) const
{
    QRect rect = QProxyStyle::subElementRect(element, option, widget);
    if (element == SE_LineEditContents)
        return rect.adjusted(-kDebordChampTexte, 0, 0, 0);
    auto const * const item = qstyleoption_cast<QStyleOptionViewItem const *>(option);
    if (!item)
        return rect;
    if (element == SE_ItemViewItemCheckIndicator && item->text.isEmpty() &&
        item->features & QStyleOptionViewItem::HasCheckIndicator)
        rect.moveLeft(item->rect.left() + (item->rect.width() - rect.width()) / 2);
    // Not while the item is drawn: its text would cover the picture or the check in front of it.
    bool const laissePlace =
        monItemEstDessinay && item->features & (QStyleOptionViewItem::HasDecoration |
                                                QStyleOptionViewItem::HasCheckIndicator);
    if (element == SE_ItemViewItemText && EstTable(widget) && !laissePlace)
        rect.setLeft(item->rect.left());
    return rect;
}

int DStyleProxy::pixelMetric(PixelMetric mesure, QStyleOption const * option,
                             QWidget const * widget) const
{
    int valeur = QProxyStyle::pixelMetric(mesure, option, widget);
    switch (mesure) {
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return EstBooleenVrai(widget, ProprietesStyle::kBoutonSansDecalage) ? 0 : valeur;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
        if (!EstBooleenVrai(widget, ProprietesStyle::kPourStyle))
            return valeur;
        if (mesure == PM_CheckBoxLabelSpacing &&
            EstVrai(widget, ProprietesStyle::kEspacementReduitCaseCochay))
            valeur /= 2;
        // Fonts shrink with the modulator, and the indicators beside them.
        return static_cast<int>(ModulateurFont::Instance()->DonneValeurDeZoom(valeur));
    default:
        return valeur;
    }
}

QSize DStyleProxy::sizeFromContents(ContentsType type, QStyleOption const * option,
                                    QSize const & taille, QWidget const * widget) const
{
    QSize resultat = QProxyStyle::sizeFromContents(type, option, taille, widget);
    if (type == CT_MenuItem) {
        auto const * const menu = qstyleoption_cast<QStyleOptionMenuItem const *>(option);
        if (menu && EstBooleenVrai(widget, ProprietesStyle::kTexteRiche))
            resultat.rwidth() += MesureTexteItemMenu(*menu, widget) - taille.width();
    } else if (type == CT_MenuBarItem) {
        resultat += kAjoutItemBarreMenu;
    } else if (type == CT_ItemViewItem) {
        auto const * const item = qstyleoption_cast<QStyleOptionViewItem const *>(option);
        if (item)
            resultat = MesureItemVue(*item, resultat, widget);
    }
    if (EstBooleenVrai(widget, ProprietesStyle::kScrolling))
        resultat.setHeight(std::min(resultat.height(), widget->maximumHeight()));
    return resultat;
}

// `taille` is what the base style says for the tagged text.
QSize DStyleProxy::MesureItemVue(QStyleOptionViewItem const & option, QSize const & taille,
                                 QWidget const * widget) const
{
    QSize resultat = taille;
    if (option.icon.isNull())
        resultat.rheight() += kAjoutItemSansIcone;
    QWidget const * const decideur = DonneDecideur(widget);
    auto const contexte = DonneContexte(&option);
    if (!EstBooleenVrai(decideur, ProprietesStyle::kTexteRiche) ||
        !SuitRegles(option.text, contexte, decideur))
        return resultat;
    QSize const riche = MesureTexteRiche(option.text, option.font,
                                         DonneInterpreteurPourContexte(contexte, decideur));
    QSize const brut = RoutinesGeneralesQt::DonneTailleTexteBrut(option.text, option.font);
    return resultat +
           QSize(riche.width() - brut.width(), std::max(0, riche.height() - brut.height()));
}

QSize DStyleProxy::MesureTexteRiche(QString const & texte, QFont const & font,
                                    EnsembleRegles const & regles) const
{
    QLabel & label = PreteLabel(monLabelMesure);
    label.setFont(font);
    label.setText(TexteDeLabel::ProtegeChevrons(Interpreteur::AppliqueRegles(texte, regles)));
    // Not adjustSize, which stays within two thirds of the screen.
    label.resize(label.sizeHint());
    return label.size();
}

int DStyleProxy::MesureTexteItemMenu(QStyleOptionMenuItem const & option,
                                     QWidget const * widget) const
{
    QString const texte = TexteDeLabel::SansMnemonique(DonneChainesDansItemMenu(&option).texte);
    EnsembleRegles const regles = DonneInterpreteurPourContexte(DonneContexte(&option), widget);
    if (Interpreteur::PossedeReglesAAppliquer(texte, regles))
        return MesureTexteRiche(texte, option.font, regles).width();
    if (!monLabelElision) // whoever deletes all windows took it
        monLabelElision = new DLabelElision(nullptr);
    monLabelElision->PrendsPolice(option.font);
    monLabelElision->PrendsTexte(texte, true);
    monLabelElision->AjusteElision(QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    return monLabelElision->DonneLongueurLigne();
}

int DStyleProxy::styleHint(StyleHint indication, QStyleOption const * option,
                           QWidget const * widget, QStyleHintReturn * retour) const
{
    if (indication == SH_ComboBox_Popup)
        return 0; // a list, and not a menu
    if (indication == SH_Menu_Scrollable && EstBooleenVrai(widget, ProprietesStyle::kScrolling))
        return 1;
    return QProxyStyle::styleHint(indication, option, widget, retour);
}
