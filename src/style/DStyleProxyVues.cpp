// style/DStyleProxyVues.cpp
//
// The items of views and the sections of their headers.
#include "style/CopieOption_p.h"
#include "style/CouleursStyle_p.h"
#include "style/DStyleProxy.h"
#include "style/GardePeintre_p.h"
#include "style/GenreDeVue_p.h"
#include "style/LecturePropriete_p.h"
#include "style/ProprietesStyle_p.h"

#include "foundation/ThemesQt.h"
#include "foundation/VersionsQt_p.h"

#include <QScopedValueRollback>
#include <QStyleOption>
#include <QTreeView>

#include <algorithm>

using namespace Qt::StringLiterals;

using CouleursStyle::Voile;

namespace {

// Logical pixels.
constexpr int kRetraitItem = 2;   // of the background from the free edges of a row
constexpr int kRayonItem = 3;     // of its corners
constexpr int kSeparateur = 1;    // left free under a row
constexpr int kLargeurMarque = 2; // the accent mark of a selected row
constexpr int kRetraitMarque = 2; // from the top and from the bottom

constexpr QPalette::ColorGroup kGroupes[] = {QPalette::Active, QPalette::Inactive,
                                             QPalette::Disabled};

bool EstMisEnValeur(QStyleOption const & option)
{
    return option.state & (QStyle::State_Selected | QStyle::State_MouseOver);
}

// The text of a selected item is written on the overlay that this style paints, and not on the
// colour of the selection.
void EcrisSurFondClair(QPalette & palette)
{
    for (auto const groupe : kGroupes)
        palette.setBrush(groupe, QPalette::HighlightedText, palette.brush(groupe, QPalette::Text));
}

// The base shall not write the text. One that was there leaves a blank beside a check indicator,
// which would go to the middle of an item without a text.
void EffaceTexte(QStyleOptionViewItem & option)
{
    bool const coche = option.features & QStyleOptionViewItem::HasCheckIndicator;
    option.text = coche && !option.text.isEmpty() ? u" "_s : QString();
}

// What a model asks for behind its item, as the base styles paint it.
void DessineFondDuModele(QStyleOptionViewItem const & option, QPainter & peintre)
{
    if (option.backgroundBrush.style() == Qt::NoBrush || option.state & QStyle::State_Selected)
        return;
    GardePeintre const garde(&peintre);
    peintre.setBrushOrigin(option.rect.topLeft());
    peintre.fillRect(option.rect, option.backgroundBrush);
}

QColor DonneCouleurMarque(QWidget const * widget)
{
    if (EstVrai(widget, ProprietesStyle::kSelecteurDictionnaires))
        return ThemesQt::Instance()->DonneCouleur(u"couleurAccentDictionnaires"_s);
    if (EstVrai(widget, ProprietesStyle::kSelecteurGuides))
        return ThemesQt::Instance()->DonneCouleur(u"couleurAccentGuides"_s);
    return DonneCouleurAccent(QPalette());
}

} // namespace

void DStyleProxy::DessineItemVue(QStyleOptionViewItem const & option, QPainter * peintre,
                                 QWidget const * widget) const
{
    bool const estListeDeCombo = EstListeDeCombo(widget);
    QWidget const * const decideur = DonneDecideur(widget);
    bool const estRiche = EstBooleenVrai(decideur, ProprietesStyle::kTexteRiche);
    bool const suitRegles = estRiche && SuitRegles(option.text, DonneContexte(&option), decideur);
    bool const surFondClair = !EstTable(widget) && EstMisEnValeur(option);
    // The panel of the other views has its background from drawPrimitive, as have the panels that
    // delegates draw by themselves. In the list of a combo box, the base will see no selection.
    bool const fondPeint =
        surFondClair && (estListeDeCombo || qobject_cast<QTreeView const *>(widget));

    QScopedValueRollback const dessin(monItemEstDessinay, true);
    peintre->setRenderHint(QPainter::Antialiasing);
    QStyleOptionViewItem copie(option);
    if (fondPeint) {
        DessineFondDuModele(option, *peintre);
        copie.backgroundBrush = Qt::NoBrush; // the panel comes later, and would cover what follows
        DessineFondItem(option, peintre, widget);
    }
    if (surFondClair)
        EcrisSurFondClair(copie.palette);
    if (estListeDeCombo) {
        copie.state &= ~State_Selected;
        if (estRiche)
            EffaceTexte(copie); // its delegate writes it, or what follows
    } else if (suitRegles) {
        EffaceTexte(copie);
    }
    QScopedValueRollback const fond(monFondItemPeint, fondPeint);
    QProxyStyle::drawControl(CE_ItemViewItem, &copie, peintre, widget);
    bool const sansDelegue = estListeDeCombo && estRiche &&
                             !LisPropriete(decideur, ProprietesStyle::kEnsembleRegles).isNull();
    if (suitRegles || sansDelegue)
        EcrisItem(option, copie.palette, peintre, widget, decideur);
}

// As the base style does, but readable: the background of its items is still drawPrimitive's.
void DStyleProxy::DessineSansExtras(ControlElement element, QStyleOption const * option,
                                    QPainter * peintre, QWidget const * widget) const
{
    QScopedValueRollback const dessin(monItemEstDessinay, element == CE_ItemViewItem);
    auto const * const item = qstyleoption_cast<QStyleOptionViewItem const *>(option);
    if (element != CE_ItemViewItem || !item || EstTable(widget) || !EstMisEnValeur(*item)) {
        QProxyStyle::drawControl(element, option, peintre, widget);
        return;
    }
    QStyleOptionViewItem copie(*item);
    EcrisSurFondClair(copie.palette);
    QProxyStyle::drawControl(element, &copie, peintre, widget);
}

bool DStyleProxy::SuitRegles(QString const & texte, eContextePourStyle contexte,
                             QWidget const * widget) const
{
    return texte.contains(u'<') &&
           InterpreteurChaineSemantiqueT<UniChaine>::PossedeReglesAAppliquer(
               texte, DonneInterpreteurPourContexte(contexte, widget));
}

// By the rules of `decideur`, or as it stands where none applies.
void DStyleProxy::EcrisItem(QStyleOptionViewItem const & option, QPalette const & palette,
                            QPainter * peintre, QWidget const * widget,
                            QWidget const * decideur) const
{
    int const marge = proxy()->pixelMetric(PM_FocusFrameHMargin, &option, widget) + 1;
    QRect const rect =
        proxy()->subElementRect(SE_ItemViewItemText, &option, widget).adjusted(marge, 0, -marge, 0);
    bool const actif = option.state & State_Enabled;
    auto const role = option.state & State_Selected ? QPalette::HighlightedText : QPalette::Text;
    QPalette couleurs(palette);
    for (auto const groupe : kGroupes)
        couleurs.setBrush(groupe, QPalette::WindowText, palette.brush(groupe, role));
    peintre->setFont(option.font);
    if (DessinerTexteRiche(peintre, option.text, rect, actif, couleurs, 0, 0,
                           DonneContexte(&option), static_cast<int>(option.displayAlignment),
                           decideur, false))
        return;
    QString const elide =
        option.fontMetrics.elidedText(option.text, option.textElideMode, rect.width());
    QProxyStyle::drawItemText(peintre, rect, static_cast<int>(option.displayAlignment), couleurs,
                              actif, elide, QPalette::WindowText);
}

void DStyleProxy::DessineFondItem(QStyleOptionViewItem const & option, QPainter * peintre,
                                  QWidget const * widget)
{
    using Option = QStyleOptionViewItem;
    auto const position = option.viewItemPosition;
    bool const estDebut = position == Option::Beginning;
    bool const estFin = position == Option::End;
    bool const estSeul = position == Option::OnlyOne || position == Option::Invalid;

    QRect rect(option.rect);
    if (EstVrai(widget, ProprietesStyle::kListSeparateur))
        rect.adjust(0, 0, 0, -kSeparateur);
    bool const libreALAvant = estDebut || estSeul;
    bool const libreALArriere = estFin || estSeul;
    bool const deDroiteAGauche = option.direction == Qt::RightToLeft;
    bool const libreAGauche = deDroiteAGauche ? libreALArriere : libreALAvant;
    bool const libreADroite = deDroiteAGauche ? libreALAvant : libreALArriere;
    rect.adjust(libreAGauche ? kRetraitItem : 0, kRetraitItem, libreADroite ? -kRetraitItem : 0,
                -kRetraitItem);

    GardePeintre const garde(peintre);
    peintre->setRenderHint(QPainter::Antialiasing);
    int const rayonGauche = libreAGauche ? kRayonItem : 0;
    int const rayonDroite = libreADroite ? kRayonItem : 0;
    peintre->fillPath(DonneRectArondi(rect, rayonGauche, rayonDroite, rayonDroite, rayonGauche),
                      Voile(CouleursStyle::kFondItem, option.palette));
}

QPainterPath DStyleProxy::DonneRectArondi(QRect const & rect, int hautGauche, int hautDroite,
                                          int basDroite, int basGauche)
{
    QRectF const bords(rect);
    // Each corner ends the side in front of it; without a radius, arcTo would leave it out.
    auto const ajouteCoin = [](QPainterPath & forme, QPointF coin, QPointF versLeCentre, int rayon,
                               double angle) {
        if (rayon <= 0) {
            forme.lineTo(coin);
            return;
        }
        QPointF const oppose = coin + 2 * rayon * versLeCentre;
        forme.arcTo(QRectF(coin, oppose).normalized(), angle, -90);
    };
    QPainterPath forme(bords.topLeft() + QPointF(hautGauche, 0));
    ajouteCoin(forme, bords.topRight(), {-1, 1}, hautDroite, 90);
    ajouteCoin(forme, bords.bottomRight(), {-1, -1}, basDroite, 0);
    ajouteCoin(forme, bords.bottomLeft(), {1, -1}, basGauche, -90);
    ajouteCoin(forme, bords.topLeft(), {1, 1}, hautGauche, 180);
    forme.closeSubpath();
    return forme;
}

bool DStyleProxy::DessinePanneauItem(QStyleOptionViewItem const & option, QPainter * peintre,
                                     QWidget const * widget) const
{
    DessineFondDuModele(option, *peintre);
    if (!monFondItemPeint && EstMisEnValeur(option))
        DessineFondItem(option, peintre, widget);
    bool const portMarque = option.viewItemPosition == QStyleOptionViewItem::Beginning ||
                            option.viewItemPosition == QStyleOptionViewItem::OnlyOne;
    if (portMarque && option.state & State_Selected) {
        QStyleOptionViewItem copie(option);
        copie.rect.adjust(kRetraitItem, kRetraitItem, -kRetraitItem, -kRetraitItem);
        DessineSelecteurAccentListe(peintre, copie, widget, DonneCouleurMarque(widget));
    }
    return true;
}

// What is beside the items of a tree, and the stripes of all views.
bool DStyleProxy::DessineRangee(QStyleOptionViewItem const & option, QPainter * peintre,
                                QWidget const * widget) const
{
    auto copie = ActivePalette(option);
    // Deliberate: not the colour of the selection. The base style goes on with the background of
    // the selected items, which is ours.
    if (!EstTable(widget))
        copie.palette.setColor(QPalette::Highlight, Voile(CouleursStyle::kFondItem, copie.palette));
    QProxyStyle::drawPrimitive(PE_PanelItemViewRow, &copie, peintre, widget);
    return true;
}

void DStyleProxy::DessineSelecteurAccentListe(QPainter * peintre,
                                              QStyleOptionViewItem const & option, QWidget const *,
                                              QColor const & couleur)
{
    QRect const rect = option.rect.adjusted(0, kRetraitMarque, 0, -kRetraitMarque);
    // A painter fills what is less than nothing upwards.
    QRect const marque(rect.topLeft(), QSize(kLargeurMarque, std::max(rect.height(), 0)));
    peintre->fillRect(visualRect(option.direction, rect, marque), couleur);
}

void DStyleProxy::DessineSectionEntete(QStyleOptionHeader const & option, QPainter * peintre)
{
    if (option.state & State_MouseOver)
        peintre->fillRect(option.rect, Voile(CouleursStyle::kSurvolEntete, option.palette));
    bool const estPremiere = option.position == QStyleOptionHeader::Beginning ||
                             option.position == QStyleOptionHeader::OnlyOneSection;
    if (estPremiere)
        return;
    // Deliberate: above the sections of a vertical header, which stand one under the other.
    QSize const taille = option.orientation == Qt::Vertical ? QSize(option.rect.width(), 1)
                                                            : QSize(1, option.rect.height());
    peintre->fillRect(
        visualRect(option.direction, option.rect, QRect(option.rect.topLeft(), taille)),
        Voile(CouleursStyle::kSeparateurEntete, option.palette));
}
