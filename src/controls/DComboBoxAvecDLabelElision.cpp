// controls/DComboBoxAvecDLabelElision.cpp
#include "controls/DComboBoxAvecDLabelElision.h"

#include "controls/DComboBoxDeleguay_p.h"
#include "controls/DLabelElision.h"
#include "style/ProprietesStyle_p.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <QPointer>
#include <QStylePainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLettresMinimales = 7; // as an empty QComboBox
constexpr int kLettresConseillees = 20;
constexpr int kItemsExaminay = 100;  // for an icon: a hint is asked for at each layout
constexpr int kEcartIcone = 4;       // pixels between an icon and the text, as in QFusionStyle
constexpr int kMargeTexte = 1;       // pixels on either side of the text, as in QFusionStyle
constexpr int kHauteurMinimale = 14; // pixels; it and the next as in QComboBox
constexpr int kMargeHauteur = 2;     // pixels

DLabelElision * CreeLabelCachay(QWidget * parent)
{
    auto * const label = new DLabelElision(parent);
    label->hide(); // or it would be shown along with its parent
    return label;
}

// In the middle of the height. The painter's pen is the text's.
void DessineTexte(QPainter & peintre, DLabelElision & label, QRect const & rectangle,
                  Qt::Alignment alignement)
{
    if (rectangle.isEmpty())
        return;
    label.PrendsAlignement(QFlags<Qt::AlignmentFlag>(alignement));
    label.AjusteElision(rectangle.size());
    int const hauteur = label.minimumSizeHint().height();
    QPoint const position(rectangle.left(), rectangle.top() + (rectangle.height() - hauteur) / 2);
    peintre.save();
    peintre.setClipRect(rectangle, Qt::IntersectClip);
    label.render(&peintre, position);
    peintre.restore();
}

DLabelElision::Elision DonneModeElision(Qt::TextElideMode mode)
{
    switch (mode) {
    case Qt::ElideNone:
        return DLabelElision::kSansElision;
    case Qt::ElideLeft:
        return DLabelElision::kElisionDebut;
    case Qt::ElideRight:
    case Qt::ElideMiddle:
        break;
    }
    return DLabelElision::kElisionFin;
}

int DonneEcart(QColor const & une, QColor const & autre)
{
    int const rouge = une.red() - autre.red();
    int const vert = une.green() - autre.green();
    int const bleu = une.blue() - autre.blue();
    return rouge * rouge + vert * vert + bleu * bleu;
}

class DeleguayAvecLabel : public DComboBoxDeleguay
{
public:
    DeleguayAvecLabel(QComboBox * combo, QObject * parent)
        : DComboBoxDeleguay(combo, parent)
        , monLabel(CreeLabelCachay(combo))
    {
    }
    ~DeleguayAvecLabel() override { delete monLabel; }

    void paint(QPainter * peintre, QStyleOptionViewItem const & option,
               QModelIndex const & index) const override;
    QSize sizeHint(QStyleOptionViewItem const & option, QModelIndex const & index) const override;

private:
    static QStyle * PreteStyle(QStyleOptionViewItem const & option)
    {
        return option.widget ? option.widget->style() : QApplication::style();
    }
    static QColor DonneCouleurTexte(QStyleOptionViewItem const & option);
    static bool EstSurligne(QStyleOptionViewItem const & option, QPalette::ColorGroup groupe);

    // Owned, and a child of the combo box, since a label without a parent would be a window.
    QPointer<DLabelElision> monLabel;
};

void DeleguayAvecLabel::paint(QPainter * peintre, QStyleOptionViewItem const & option,
                              QModelIndex const & index) const
{
    if (EstSeparateur(index)) {
        DComboBoxDeleguay::paint(peintre, option, index);
        return;
    }
    QStyleOptionViewItem sansTexte(option);
    initStyleOption(&sansTexte, index);
    // The highlight is that of the row: a style may confine it to the text, and there is none.
    sansTexte.showDecorationSelected = true;
    QStyle * const style = PreteStyle(sansTexte);
    // The styles take this margin from the rectangle themselves when they draw the text.
    int const marge =
        style->pixelMetric(QStyle::PM_FocusFrameHMargin, &sansTexte, sansTexte.widget) + 1;
    QRect const rectangle =
        style->subElementRect(QStyle::SE_ItemViewItemText, &sansTexte, sansTexte.widget)
            .adjusted(marge, 0, -marge, 0);

    monLabel->PrendsTexte(sansTexte.text);
    if (monLabel->DonnePolice() != sansTexte.font)
        monLabel->PrendsPolice(sansTexte.font);
    monLabel->PrendsModeElision(DonneModeElision(sansTexte.textElideMode));
    monLabel->setLayoutDirection(sansTexte.direction);
    // A style may put the check of an item without any text in the middle.
    bool const coche = sansTexte.features & QStyleOptionViewItem::HasCheckIndicator;
    sansTexte.text = coche && !sansTexte.text.isEmpty() ? u" "_s : QString();
    style->drawControl(QStyle::CE_ItemViewItem, &sansTexte, peintre, sansTexte.widget);

    peintre->save();
    peintre->setPen(DonneCouleurTexte(sansTexte));
    DessineTexte(*peintre, *monLabel, rectangle, sansTexte.displayAlignment);
    peintre->restore();
}

QSize DeleguayAvecLabel::sizeHint(QStyleOptionViewItem const & option,
                                  QModelIndex const & index) const
{
    if (EstSeparateur(index) || index.data(Qt::SizeHintRole).isValid())
        return DComboBoxDeleguay::sizeHint(option, index);
    QStyleOptionViewItem sansBalises(option);
    initStyleOption(&sansBalises, index);
    monLabel->PrendsTexte(sansBalises.text);
    sansBalises.text = monLabel->DonneTexte();
    return PreteStyle(sansBalises)
        ->sizeFromContents(QStyle::CT_ItemViewItem, &sansBalises, QSize(), sansBalises.widget);
}

QColor DeleguayAvecLabel::DonneCouleurTexte(QStyleOptionViewItem const & option)
{
    QPalette::ColorGroup groupe = QPalette::Disabled;
    if (option.state & QStyle::State_Enabled)
        groupe = option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
    return option.palette.color(groupe, EstSurligne(option, groupe) ? QPalette::HighlightedText
                                                                    : QPalette::Text);
}

// Not every style fills a selected row with the highlight: some shade it, and the text of the
// highlight could not be read there. So the style is asked for the middle of the row.
bool DeleguayAvecLabel::EstSurligne(QStyleOptionViewItem const & option,
                                    QPalette::ColorGroup groupe)
{
    if (!(option.state & QStyle::State_Selected))
        return false;
    QStyleOptionViewItem fond(option);
    fond.icon = QIcon();
    fond.features &=
        ~(QStyleOptionViewItem::HasDecoration | QStyleOptionViewItem::HasCheckIndicator);
    fond.state &= ~QStyle::State_HasFocus;
    QColor const base = option.palette.color(groupe, QPalette::Base);
    QImage pixel(1, 1, QImage::Format_RGB32);
    pixel.fill(base);
    QPainter peintre(&pixel);
    peintre.translate(-option.rect.center());
    PreteStyle(option)->drawControl(QStyle::CE_ItemViewItem, &fond, &peintre, option.widget);
    peintre.end();
    QColor const peinte = pixel.pixelColor(0, 0);
    return DonneEcart(peinte, option.palette.color(groupe, QPalette::Highlight)) <
           DonneEcart(peinte, base);
}

} // namespace

DComboBoxAvecDLabelElision::DComboBoxAvecDLabelElision(QWidget * parent)
    : DComboBox(parent)
    , monLabel(CreeLabelCachay(this))
{
    QAbstractItemDelegate const * const deleguayDeBase = itemDelegate();
    setItemDelegate(new DeleguayAvecLabel(this, this));
    delete deleguayDeBase;
    setProperty(ProprietesStyle::kTexteRiche, true);
}

QSize DComboBoxAvecDLabelElision::sizeHint() const
{
    return DonneTaillePourLettres(kLettresConseillees);
}

QSize DComboBoxAvecDLabelElision::minimumSizeHint() const
{
    return DonneTaillePourLettres(kLettresMinimales);
}

void DComboBoxAvecDLabelElision::paintEvent(QPaintEvent *)
{
    QStylePainter peintre(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    peintre.setPen(palette().color(QPalette::Text));
    peintre.drawComplexControl(QStyle::CC_ComboBox, option);

    QString texte = option.currentText;
    if (currentIndex() < 0 && !placeholderText().isEmpty()) {
        texte = placeholderText();
        peintre.setPen(palette().color(QPalette::PlaceholderText));
    }
    option.currentText.clear(); // which leaves the icon
    peintre.drawControl(QStyle::CE_ComboBoxLabel, option);
    if (option.editable)
        return;

    QRect rectangle =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    int const icone = option.currentIcon.isNull() ? 0 : option.iconSize.width() + kEcartIcone;
    rectangle.adjust(kMargeTexte, 0, -kMargeTexte, 0);
    if (option.direction == Qt::RightToLeft)
        rectangle.setRight(rectangle.right() - icone);
    else
        rectangle.setLeft(rectangle.left() + icone);
    monLabel->PrendsTexte(texte);
    if (monLabel->DonnePolice() != font()) // a style sheet gives its font to the combo box alone
        monLabel->PrendsPolice(font());
    DessineTexte(peintre, *monLabel, rectangle, option.textAlignment);
}

QSize DComboBoxAvecDLabelElision::DonneTaillePourLettres(int lettres) const
{
    QFontMetrics const mesures = fontMetrics();
    int const nombre = std::max(lettres, minimumContentsLength());
    QSize contenu(nombre * mesures.horizontalAdvance(u'x'),
                  std::max(mesures.height(), kHauteurMinimale) + kMargeHauteur);
    for (int i = 0; i < std::min(count(), kItemsExaminay); ++i) {
        if (itemIcon(i).isNull())
            continue;
        contenu.rwidth() += iconSize().width() + kEcartIcone;
        contenu.setHeight(std::max(contenu.height(), iconSize().height() + kMargeHauteur));
        break;
    }
    QStyleOptionComboBox option;
    initStyleOption(&option);
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, contenu, this);
}
