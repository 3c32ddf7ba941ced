// galerie/TexteCellule.cpp
#include "TexteCellule.h"

#include "TraductionGalerie.h"

#include <QAbstractItemView>
#include <QTextDocument>

namespace {
constexpr int kLignes = 2; // of text, the rest scrolls
} // namespace

TexteCellule::TexteCellule(QAbstractItemView const * table, QWidget * parent)
    : QPlainTextEdit(parent)
    , maTable(table)
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setPlaceholderText(TraductionGalerie(TexteGalerie("Le texte entier de la cellule courante")));
    setAccessibleName(placeholderText());
    setFixedHeight(kLignes * fontMetrics().lineSpacing() +
                   2 * (frameWidth() + static_cast<int>(document()->documentMargin())));
    MontreTexte();
    connect(table->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &TexteCellule::MontreTexte, Qt::UniqueConnection);
    connect(table->model(), &QAbstractItemModel::dataChanged, this, &TexteCellule::MontreTexte,
            Qt::UniqueConnection);
}

void TexteCellule::MontreTexte()
{
    // Null for a cell that is not there, as an empty one.
    setPlainText(maTable->currentIndex().data().toString());
}
