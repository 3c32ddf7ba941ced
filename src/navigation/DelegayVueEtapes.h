// navigation/DelegayVueEtapes.h
#pragma once

#include "FabrelGuiExport.h"

#include <QStyledItemDelegate>

class DAssistant;

/// Draws the list of a wizard's steps: rows of one height, without hover look where a step has not
/// been reached.
class FABRELGUI_EXPORT DelegayVueEtapes : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit DelegayVueEtapes(DAssistant * assistant);

    void paint(QPainter * peintre, QStyleOptionViewItem const & option,
               QModelIndex const & index) const override;
    QSize sizeHint(QStyleOptionViewItem const & option, QModelIndex const & index) const override;

private:
    [[maybe_unused]] DAssistant * monAssistant;
};
