// navigation/DelegayVueEtapes.cpp
#include "navigation/DelegayVueEtapes.h"

#include "navigation/DAssistant.h"

namespace {
constexpr int kHauteurRangee = 30; // logical pixels
}

DelegayVueEtapes::DelegayVueEtapes(DAssistant * assistant)
    : QStyledItemDelegate(assistant)
    , monAssistant(assistant)
{
}

void DelegayVueEtapes::paint(QPainter * peintre, QStyleOptionViewItem const & option,
                             QModelIndex const & index) const
{
    QStyleOptionViewItem copie = option;
    if (!copie.state.testFlag(QStyle::State_Enabled))
        copie.state.setFlag(QStyle::State_MouseOver, false);
    QStyledItemDelegate::paint(peintre, copie, index);
}

QSize DelegayVueEtapes::sizeHint(QStyleOptionViewItem const & option, QModelIndex const &) const
{
    return {option.rect.width(), kHauteurRangee};
}
