// galerie/TexteCellule.h
#pragma once

#include <QPlainTextEdit>

class QAbstractItemView;

/// The whole text of the current cell of a table whose columns may cut it: two lines that the
/// keyboard reaches and scrolls.
class TexteCellule : public QPlainTextEdit
{
    Q_OBJECT

public:
    /// `table` has its model already, keeps it, and outlives this.
    explicit TexteCellule(QAbstractItemView const * table, QWidget * parent = nullptr);

private:
    void MontreTexte();

    QAbstractItemView const * maTable;
};
