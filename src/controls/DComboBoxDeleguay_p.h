// controls/DComboBoxDeleguay_p.h
#pragma once

#include <QStyledItemDelegate>

class QComboBox;

/// Draws the separators of a combo box over the whole width of its list, and gives them their
/// height. It keeps in mind whether the first item is hidden.
class DComboBoxDeleguay : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// The combo box is not owned and must outlive the delegate.
    DComboBoxDeleguay(QComboBox * combo, QObject * parent);

    void CachePremierElement();
    bool PremierElementCachay() const;

    /// As `QComboBox::insertSeparator` marks them.
    static bool EstSeparateur(QModelIndex const & index);

    void paint(QPainter * peintre, QStyleOptionViewItem const & option,
               QModelIndex const & index) const override;
    QSize sizeHint(QStyleOptionViewItem const & option, QModelIndex const & index) const override;

private:
    QComboBox * monCombo;
    bool monPremierCachay = false;
};
