// lists/DelegayWidgetListeEditable_p.h
#pragma once

#include <QStyledItemDelegate>

/// The delegate of an editable list: an editor no higher than its text, in the middle of the row.
class DelegayWidgetListeEditable : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void updateEditorGeometry(QWidget * editeur, QStyleOptionViewItem const & option,
                              QModelIndex const & index) const override;
};
