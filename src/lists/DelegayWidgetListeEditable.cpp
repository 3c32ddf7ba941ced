// lists/DelegayWidgetListeEditable.cpp
#include "lists/DelegayWidgetListeEditable_p.h"

#include <algorithm>

namespace {

// Logical pixels.
constexpr int kMargeTexte = 2;  // what the editor adds to the height of its font
constexpr int kMargeRangee = 2; // what the row keeps of its own height

} // namespace

void DelegayWidgetListeEditable::updateEditorGeometry(QWidget * editeur,
                                                      QStyleOptionViewItem const & option,
                                                      QModelIndex const & index) const
{
    if (editeur == nullptr)
        return;
    QStyledItemDelegate::updateEditorGeometry(editeur, option, index);
    int const hauteur =
        std::min(option.fontMetrics.ascent() + option.fontMetrics.descent() + kMargeTexte,
                 option.rect.height() - kMargeRangee);
    int const haut = option.rect.top() + (option.rect.height() - hauteur) / 2;
    editeur->setGeometry(editeur->x(), haut, editeur->width(), hauteur);
}
