// controls/DToolButtonRiche.cpp
#include "controls/DToolButtonRiche.h"

#include "foundation/GeometrieEcran.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QEvent>
#include <QScreen>
#include <QStyleOptionToolButton>
#include <QStylePainter>
#include <QTextDocument>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

constexpr QPalette::ColorGroup kGroupes[] = {QPalette::Active, QPalette::Disabled,
                                             QPalette::Inactive};

// A palette with the brushes that were set in the other one for the roles of which `garde` is true.
template <typename Garde>
QPalette Filtre(QPalette const & palette, Garde const & garde)
{
    QPalette filtree;
    for (auto const groupe : kGroupes) {
        for (int i = 0; i < QPalette::NColorRoles; ++i) {
            auto const role = static_cast<QPalette::ColorRole>(i);
            if (garde(role) && palette.isBrushSet(groupe, role))
                filtree.setBrush(groupe, role, palette.brush(groupe, role));
        }
    }
    return filtree;
}

QPalette TexteSeul(QPalette const & palette)
{
    return Filtre(palette, [](QPalette::ColorRole role) { return role == QPalette::ButtonText; });
}

QPalette SansTexte(QPalette const & palette)
{
    return Filtre(palette, [](QPalette::ColorRole role) { return role != QPalette::ButtonText; });
}

bool TexteEstTransparent(QPalette const & palette)
{
    return std::all_of(std::begin(kGroupes), std::end(kGroupes), [&](auto groupe) {
        return palette.brush(groupe, QPalette::ButtonText) == QBrush(Qt::transparent);
    });
}

QString TexteBrut(QTextDocument const & document)
{
    return document.toPlainText().remove(QChar::ObjectReplacementCharacter);
}

} // namespace

DToolButtonRiche::DToolButtonRiche(QWidget * parent)
    : QToolButton(parent)
{
}

void DToolButtonRiche::setHtml(QString const & html)
{
    if (!monHtmlActif) {
        mesPinceauxSousFeuille = TexteSeul(palette());
        // A style sheet that found an earlier HTML stands over brushes that are known already.
        if (!EstSousFeuille() || !monTexteFutTransparent)
            mesPinceauxPropres = mesPinceauxSousFeuille;
    }
    monHtml = html;
    monHtmlActif = true;
    monTexteFutTransparent = true;
    RendsTexteTransparent();
    QToolButton::setText(text().replace(u'&', "&&"_L1));
    updateGeometry(); // also where only the mark-up changed
    update();
}

void DToolButtonRiche::setText(QString const & texte)
{
    if (monHtmlActif) {
        monHtmlActif = false;
        monHtml.clear();
        RetablisTexte(PretePinceaux());
        updateGeometry();
        update();
    }
    QToolButton::setText(texte);
}

QString DToolButtonRiche::text() const
{
    if (!monHtmlActif)
        return QToolButton::text();
    QTextDocument document;
    document.setHtml(monHtml);
    return TexteBrut(document);
}

QSize DToolButtonRiche::sizeHint() const
{
    if (!monHtmlActif)
        return QToolButton::sizeHint();
    QTextDocument document;
    RemplisDocument(document);
    return document.size().toSize();
}

void DToolButtonRiche::paintEvent(QPaintEvent * evenement)
{
    if (!monHtmlActif) {
        QToolButton::paintEvent(evenement);
        return;
    }
    QStyleOptionToolButton option;
    getStyleOption(&option);
    QStylePainter peintre(this);
    peintre.drawComplexControl(QStyle::CC_ToolButton, option);

    QTextDocument document;
    RemplisDocument(document);
    peintre.drawPixmap(0, 0, DonneRendu(document));
}

void DToolButtonRiche::changeEvent(QEvent * evenement)
{
    QToolButton::changeEvent(evenement);
    if (evenement->type() == QEvent::PaletteChange)
        SuisPalette();
    else if (evenement->type() == QEvent::StyleChange && !EstSousFeuille())
        mesPinceauxSousFeuille = mesPinceauxPropres; // what the next sheet finds
}

void DToolButtonRiche::SuisPalette()
{
    bool const transparent = TexteEstTransparent(palette());
    if (monHtmlActif && !transparent) {
        // A host's new palette brings the text of the base class back, and with it the next brush.
        // A style sheet that sets a colour does so too, but takes it away again when it goes.
        mesPinceauxSousFeuille = TexteSeul(palette());
        if (!EstSousFeuille())
            mesPinceauxPropres = mesPinceauxSousFeuille;
        RendsTexteTransparent();
    } else if (!monHtmlActif && transparent && monTexteFutTransparent) {
        // A style sheet that goes puts the palette back that it found while there was HTML.
        RetablisTexte(mesPinceauxPropres);
    }
}

void DToolButtonRiche::getStyleOption(QStyleOptionToolButton * option) const
{
    initStyleOption(option);
    option->text = text();
    // Where a transparent brush does not hide the text: a style sheet may give it a colour of its
    // own, and some styles draw the text of a disabled button a second time, in the light colour.
    if (EstSousFeuille() || !isEnabled())
        option->text.clear();
}

bool DToolButtonRiche::EstSousFeuille() const
{
    return style()->inherits("QStyleSheetStyle");
}

void DToolButtonRiche::RendsTexteTransparent()
{
    QPalette palette = this->palette();
    palette.setBrush(QPalette::ButtonText, Qt::transparent);
    setPalette(palette);
}

void DToolButtonRiche::RetablisTexte(QPalette const & pinceaux)
{
    QPalette palette = SansTexte(this->palette());
    for (auto const groupe : kGroupes)
        if (pinceaux.isBrushSet(groupe, QPalette::ButtonText))
            palette.setBrush(groupe, QPalette::ButtonText,
                             pinceaux.brush(groupe, QPalette::ButtonText));
    setPalette(palette);
}

QPalette const & DToolButtonRiche::PretePinceaux() const
{
    return EstSousFeuille() ? mesPinceauxSousFeuille : mesPinceauxPropres;
}

// What the palette would have for the text if it were not transparent.
QBrush DToolButtonRiche::DonnePinceauTexte() const
{
    auto const groupe = palette().currentColorGroup();
    if (PretePinceaux().isBrushSet(groupe, QPalette::ButtonText))
        return PretePinceaux().brush(groupe, QPalette::ButtonText);

    // As a widget without a brush of its own finds it: where its class has a palette, only what an
    // ancestor was given goes before that one.
    QPalette const classe = QApplication::palette(this);
    bool const sansPaletteDeClasse = classe.isCopyOf(QGuiApplication::palette());
    for (QWidget const * widget = this; !widget->isWindow() && widget->parentWidget();) {
        widget = widget->parentWidget();
        if (sansPaletteDeClasse || widget->palette().isBrushSet(groupe, QPalette::ButtonText))
            return widget->palette().brush(groupe, QPalette::ButtonText);
    }
    return classe.brush(groupe, QPalette::ButtonText);
}

void DToolButtonRiche::RemplisDocument(QTextDocument & document) const
{
    QTextOption option = document.defaultTextOption();
    option.setTextDirection(layoutDirection());
    document.setDefaultTextOption(option);
    document.setDefaultFont(font());
    document.setHtml(monHtml);
}

// The HTML in the middle of a picture of the button's size.
QPixmap DToolButtonRiche::DonneRendu(QTextDocument const & document) const
{
    QScreen const * const ecran =
        RoutinesGeneralesQt::EcranLePlusProche(mapToGlobal(rect().center()));
    double const ratio = ecran ? ecran->devicePixelRatio() : devicePixelRatioF();
    QPixmap rendu(size() * ratio);
    rendu.setDevicePixelRatio(ratio);
    rendu.fill(Qt::transparent);

    QSizeF const taille = document.size();
    QPainter peintre(&rendu);
    peintre.translate((width() - taille.width()) * 0.5, (height() - taille.height()) * 0.5);
    QAbstractTextDocumentLayout::PaintContext contexte;
    contexte.palette.setBrush(QPalette::Text, DonnePinceauTexte());
    contexte.clip = QRectF(QPointF(), taille);
    peintre.setClipRect(contexte.clip);
    document.documentLayout()->draw(&peintre, contexte);
    return rendu;
}
