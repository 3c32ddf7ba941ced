// galerie/EditeurCherchable.h
#pragma once

#include "OccurrencesTexte.h"

#include <QObject>
#include <QTextEdit>

#include <memory>

class QAbstractScrollArea;
class QPlainTextEdit;
class QTextCursor;
class QTextDocument;

/// What a search needs of an editor: one face for `QTextEdit` and `QPlainTextEdit`, which share no
/// base that has a text.
///
/// The editor may die first: then `PreteWidget` and `PreteDocument` are null, and nothing else may
/// be called.
class EditeurCherchable : public QObject
{
    Q_OBJECT

public:
    using Selections = QList<QTextEdit::ExtraSelection>;

    static std::unique_ptr<EditeurCherchable> Fais(QTextEdit & editeur);
    static std::unique_ptr<EditeurCherchable> Fais(QPlainTextEdit & editeur);

    virtual QAbstractScrollArea * PreteWidget() const = 0;
    virtual QTextDocument * PreteDocument() const = 0;
    virtual QTextCursor DonneCurseur() const = 0;
    /// Scrolls to it, if need be.
    virtual void MetsCurseur(QTextCursor const & curseur) = 0;
    virtual Selections DonneSelections() const = 0;
    virtual void MetsSelections(Selections const & selections) = 0;
    /// The positions of whole lines that the viewport shows.
    virtual OccurrencesTexte::Plage DonnePlageVisible() const = 0;
    /// What the user may do with the text; it is read-only without `Qt::TextEditable`.
    virtual Qt::TextInteractionFlags DonneInteraction() const = 0;
    virtual void MetsInteraction(Qt::TextInteractionFlags interaction) = 0;

    /// Empty at the caret when nothing is selected.
    OccurrencesTexte::Plage DonneSelection() const;
    /// With the caret behind it.
    void Selectionne(OccurrencesTexte::Plage const & plage);

Q_SIGNALS:
    void SignalTexteChangay();
    /// The caret or the selection has, perhaps with the text.
    void SignalCurseurBougeay();
};
