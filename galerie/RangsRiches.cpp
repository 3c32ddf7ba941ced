// galerie/RangsRiches.cpp
#include "RangsRiches.h"

#include "TraductionGalerie.h"

#include "foundation/TexteRiche.h"

#include <QApplication>
#include <QLocale>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {
// Logical pixels.
constexpr int kMargeHorizontale = 6;
constexpr int kMargeVerticale = 4;
} // namespace

RangsRiches::RangsRiches(QObject * parent)
    : QAbstractListModel(parent)
    , mesModeles{
          TraductionGalerie(TexteGalerie(
              "<pn>Mot {1}</pn>, <i>nom masculin</i>. Suite de <b>sons</b> qui a un sens.")),
          TraductionGalerie(TexteGalerie(
              "<b>Terme {1}</b> <s>grammaire</s> Voir <font color =\"#2e7ab8\">mot</font>.")),
          TraductionGalerie(
              TexteGalerie("Formule {1}, H<sub>2</sub>O et x<sup>2</sup>, <em>exemple</em>.")),
          TraductionGalerie(
              TexteGalerie("Phrase {1}, où un <i>mot <b>se</b> distingue</i> des autres."))}
{
}

int RangsRiches::rowCount(QModelIndex const & parent) const
{
    return parent.isValid() ? 0 : kRangs;
}

QVariant RangsRiches::data(QModelIndex const & index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    if (role == Qt::DisplayRole)
        return DonneTexte(index.row());
    if (role == Qt::AccessibleTextRole)
        return QString(
            RoutinesGeneralesQt::DonneTexteAvecFormat(DonneTexte(index.row()), QFont()).texte);
    return {};
}

QString RangsRiches::DonneTexte(int rang) const
{
    QString texte = mesModeles.at(rang % mesModeles.size());
    return texte.replace(u"{1}"_s, QLocale().toString(rang + 1));
}

DelegueRangRiche::DelegueRangRiche(QObject * parent)
    : QStyledItemDelegate(parent)
{
}

void DelegueRangRiche::paint(QPainter * peintre, QStyleOptionViewItem const & option,
                             QModelIndex const & index) const
{
    QStyleOptionViewItem fond(option);
    initStyleOption(&fond, index);
    UniChaine const texte(fond.text);
    fond.text.clear();
    QStyle const * const style = fond.widget ? fond.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &fond, peintre, fond.widget);

    // The text begins at the top of its rectangle.
    QRect const place = QStyle::alignedRect(
        Qt::LeftToRight, Qt::AlignCenter,
        QSize(option.rect.width() - 2 * kMargeHorizontale, fond.fontMetrics.lineSpacing()),
        option.rect);
    QPen const plume = peintre->pen();
    peintre->setPen(fond.palette.color(QPalette::Text));
    RoutinesGeneralesQt::DessineTexteRiche(*peintre, place, fond.font, texte);
    peintre->setPen(plume);
}

QSize DelegueRangRiche::sizeHint(QStyleOptionViewItem const & option, QModelIndex const &) const
{
    return {0, option.fontMetrics.lineSpacing() + 2 * kMargeVerticale};
}
