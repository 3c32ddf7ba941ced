// galerie/RangsRiches.h
#pragma once

#include <QAbstractListModel>
#include <QStringList>
#include <QStyledItemDelegate>

/// So many tagged texts that none of them may be kept: each is made when it is asked for.
class RangsRiches : public QAbstractListModel
{
    Q_OBJECT

public:
    static constexpr int kRangs = 100'000;

    explicit RangsRiches(QObject * parent = nullptr);

    int rowCount(QModelIndex const & parent = {}) const override;
    /// The text with its tags; to assistive technology without them.
    QVariant data(QModelIndex const & index, int role = Qt::DisplayRole) const override;

private:
    QString DonneTexte(int rang) const;

    QStringList mesModeles; // "{1}" stands for the number of the row
};

/// Draws a tagged text in a line of a view.
class DelegueRangRiche : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit DelegueRangRiche(QObject * parent = nullptr);

    void paint(QPainter * peintre, QStyleOptionViewItem const & option,
               QModelIndex const & index) const override;
    QSize sizeHint(QStyleOptionViewItem const & option, QModelIndex const & index) const override;
};
