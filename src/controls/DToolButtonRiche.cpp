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

#include <cmath>

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
    if (!monHtmlActif)
        mesPinceauxTexte = TexteSeul(palette());
    monHtml = html;
    monHtmlActif = true;
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
        QPalette palette = SansTexte(this->palette());
        for (auto const groupe : kGroupes)
            if (mesPinceauxTexte.isBrushSet(groupe, QPalette::ButtonText))
                palette.setBrush(groupe, QPalette::ButtonText,
                                 mesPinceauxTexte.brush(groupe, QPalette::ButtonText));
        setPalette(palette);
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
    QSizeF const taille = document.size();
    return {static_cast<int>(std::ceil(taille.width())),
            static_cast<int>(std::ceil(taille.height()))};
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
    // A host's new palette brings the text of the base class back, and with it the next brush.
    if (evenement->type() == QEvent::PaletteChange && monHtmlActif &&
        !TexteEstTransparent(palette())) {
        mesPinceauxTexte = TexteSeul(palette());
        RendsTexteTransparent();
    }
}

void DToolButtonRiche::getStyleOption(QStyleOptionToolButton * option) const
{
    initStyleOption(option);
    option->text = text();
    // A style sheet may give the text a colour of its own, under which a transparent brush is lost.
    if (style()->inherits("QStyleSheetStyle"))
        option->text.clear();
}

void DToolButtonRiche::RendsTexteTransparent()
{
    QPalette palette = this->palette();
    palette.setBrush(QPalette::ButtonText, Qt::transparent);
    setPalette(palette);
}

// What the palette would have for the text if it were not transparent.
QBrush DToolButtonRiche::DonnePinceauTexte() const
{
    auto const groupe = palette().currentColorGroup();
    if (mesPinceauxTexte.isBrushSet(groupe, QPalette::ButtonText))
        return mesPinceauxTexte.brush(groupe, QPalette::ButtonText);
    bool const herite = parentWidget() && !isWindow();
    QPalette const source = herite ? parentWidget()->palette() : QApplication::palette(this);
    return source.brush(groupe, QPalette::ButtonText);
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
    double const ratio = std::max(devicePixelRatioF(), ecran ? ecran->devicePixelRatio() : 1.0);
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
