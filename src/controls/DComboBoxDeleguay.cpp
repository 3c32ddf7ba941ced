// controls/DComboBoxDeleguay.cpp
#include "controls/DComboBoxDeleguay_p.h"

#include <QAbstractItemView>
#include <QComboBox>

using namespace Qt::StringLiterals;

DComboBoxDeleguay::DComboBoxDeleguay(QComboBox * combo, QObject * parent)
    : QStyledItemDelegate(parent)
    , monCombo(combo)
{
}

void DComboBoxDeleguay::CachePremierElement()
{
    monPremierCachay = true;
}

bool DComboBoxDeleguay::PremierElementCachay() const
{
    return monPremierCachay;
}

void DComboBoxDeleguay::paint(QPainter * peintre, QStyleOptionViewItem const & option,
                              QModelIndex const & index) const
{
    if (!EstSeparateur(index)) {
        QStyledItemDelegate::paint(peintre, option, index);
        return;
    }
    auto const * vue = qobject_cast<QAbstractItemView const *>(option.widget);
    if (!vue)
        vue = monCombo->view();
    QRect rectangle = option.rect;
    rectangle.setLeft(0); // an item may be narrower than the list, and moved in it
    rectangle.setWidth(vue->viewport()->width());
    QStyleOption separateur;
    separateur.rect = rectangle;
    monCombo->style()->drawPrimitive(QStyle::PE_IndicatorToolBarSeparator, &separateur, peintre,
                                     monCombo);
}

QSize DComboBoxDeleguay::sizeHint(QStyleOptionViewItem const & option,
                                  QModelIndex const & index) const
{
    if (!EstSeparateur(index))
        return QStyledItemDelegate::sizeHint(option, index);
    // As high as in a combo box without this delegate.
    int const epaisseur =
        monCombo->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, monCombo);
    return {epaisseur, epaisseur};
}

bool DComboBoxDeleguay::EstSeparateur(QModelIndex const & index)
{
    return index.data(Qt::AccessibleDescriptionRole).toString() == "separator"_L1;
}
