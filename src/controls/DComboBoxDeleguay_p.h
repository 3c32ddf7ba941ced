// controls/DComboBoxDeleguay_p.h
#pragma once

#include <QStyledItemDelegate>

class QComboBox;

/// Draws the separators of a combo box over the whole width of its list, and gives them their
/// height.
class DComboBoxDeleguay : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// The combo box is not owned and must outlive the delegate.
    DComboBoxDeleguay(QComboBox * combo, QObject * parent);

    void paint(QPainter * peintre, QStyleOptionViewItem const & option,
               QModelIndex const & index) const override;
    QSize sizeHint(QStyleOptionViewItem const & option, QModelIndex const & index) const override;

protected:
    static bool EstSeparateur(QModelIndex const & index);

private:
    QComboBox * monCombo;
};
