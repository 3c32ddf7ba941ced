// style/DStyleProxyTexteRiche.cpp
#include "style/DStyleProxy.h"
#include "style/GardePeintre_p.h"
#include "style/LecturePropriete_p.h"
#include "style/ProprietesStyle_p.h"
#include "style/ReglesDeBase_p.h"
#include "style/TexteDeLabel_p.h"

#include <QGuiApplication>
#include <QLabel>

using namespace Qt::StringLiterals;

using Interpreteur = InterpreteurChaineSemantiqueT<UniChaine>;

namespace {

constexpr int kMasqueAlignement = 0x1ff; // the bits of Qt::Alignment; those above are text flags

QPalette DonnePalettePourContexte(QPalette palette, eContextePourStyle contexte)
{
    if (contexte == kContexteMenuSelectionnay)
        palette.setColor(QPalette::Window, Qt::transparent);
    // Deliberate: the name of the theme variable, which is no colour, and not its value. The colour
    // is invalid, and the text is drawn on whatever is there.
    if (contexte == kContexteSurvolay)
        palette.setColor(QPalette::Window, QColor(u"couleurBoutonDStyleProxyMouseOver"_s));
    return palette;
}

// A label writes in the colour of window text.
QPalette DonnePaletteAvecRole(QPainter const & peintre, QPalette palette, QPalette::ColorRole role)
{
    QColor const couleur = role == QPalette::NoRole ? peintre.pen().color() : palette.color(role);
    palette.setColor(QPalette::Active, QPalette::WindowText, couleur);
    palette.setColor(QPalette::Inactive, QPalette::WindowText, couleur);
    if (role == QPalette::ButtonText)
        palette.setColor(QPalette::ButtonText, Qt::transparent);
    return palette;
}

} // namespace

EnsembleRegles DStyleProxy::DonneReglesDeBase()
{
    if (reglesDeBase.empty()) {
        reglesDeBase.emplace(UniChaine("br/"),
                             Interpreteur::CreeFonctionRemplacerBalisesAvecTexte("<br>", ""));
        for (QString const & nom : {u"i"_s, u"sup"_s, u"b"_s})
            reglesDeBase.emplace(UniChaine(nom),
                                 Interpreteur::CreeFonctionRemplacerBalisesAvecTexte(
                                     u"<%1>"_s.arg(nom), u"</%1>"_s.arg(nom)));
    }
    return reglesDeBase;
}

EnsembleRegles DStyleProxy::DonneInterpreteurPourContexte(eContextePourStyle contexte,
                                                          QWidget const * const widget) const
{
    if (!widget)
        return DonneReglesDeBase();
    QVariant const regles = LisPropriete(widget, ProprietesStyle::kEnsembleRegles);
    if (regles.isNull())
        return {};
    return regles.value<MapDeRegles>().value(contexte);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value is the interface
bool DStyleProxy::DessinerTexteRiche(QPainter * peintre, QString texte, QRect const & rect,
                                     bool actif, QPalette const & palette, int decalageHorizontal,
                                     int decalageVertical, eContextePourStyle contexte,
                                     int alignement, QWidget const * const widget,
                                     bool forcay) const
{
    if (!forcay && !texte.contains(u'<'))
        return false;
    EnsembleRegles const regles = DonneInterpreteurPourContexte(contexte, widget);
    if (!forcay && !Interpreteur::PossedeReglesAAppliquer(texte, regles))
        return false;
    QString const html = TexteDeLabel::ProtegeChevrons(Interpreteur::AppliqueRegles(texte, regles));

    QLabel & label = PreteLabel(monLabelRendu);
    label.setPalette(DonnePalettePourContexte(palette, contexte));
    label.setEnabled(actif);
    label.setFont(peintre->font());
    label.setLayoutDirection(widget ? widget->layoutDirection()
                                    : QGuiApplication::layoutDirection());
    Qt::Alignment cote(alignement & kMasqueAlignement);
    // Left to itself, the label mirrors a rich text by its letters and not by its own direction.
    if (label.layoutDirection() == Qt::RightToLeft)
        cote = visualAlignment(Qt::RightToLeft, cote);
    label.setAlignment(cote);
    label.setText(html);
    label.setFixedSize(rect.size().expandedTo(QSize(0, 0)));

    GardePeintre const garde(peintre);
    // The label draws its frame through this style, and would be the widget being drawn.
    QPointer<QWidget const> const dessinay = monWidgetDessinay;
    peintre->translate(decalageHorizontal, decalageVertical);
    peintre->setBrush(Qt::transparent);
    label.render(peintre, rect.topLeft(), QRegion(),
                 QWidget::DrawChildren | QWidget::DrawWindowBackground);
    monWidgetDessinay = dessinay;
    return true;
}

void DStyleProxy::drawItemText(QPainter * peintre, QRect const & rect, int drapeaux,
                               QPalette const & palette, bool actif, QString const & texte,
                               QPalette::ColorRole role) const
{
    // Without a "<" there is no tag: most texts are spared the rest. The rules of a widget that is
    // gone are gone with it.
    bool const widgetEstParti = !monWidgetDessinay && !monWidgetManque;
    if (texte.contains(u'<') && !widgetEstParti &&
        DessinerTexteRiche(peintre, texte, rect, actif,
                           DonnePaletteAvecRole(*peintre, palette, role), 0, 0, kContexteNormal,
                           drapeaux, monWidgetDessinay, false))
        return;
    QProxyStyle::drawItemText(peintre, rect, drapeaux, palette, actif, texte, role);
}
