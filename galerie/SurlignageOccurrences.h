// galerie/SurlignageOccurrences.h
#pragma once

#include "EditeurCherchable.h"
#include "OccurrencesTexte.h"

#include <QObject>
#include <QPalette>
#include <QPointer>
#include <QTextDocument>

/// Highlights matches in an editor, by extra selections beside those of the application: only in
/// the lines that the viewport shows, for an editor gets slow with ten thousand of them.
///
/// Of several in one editor, the last one to begin highlights, and the others cease to.
///
/// While it does, the editor's selection wears the colour of the current match whenever the focus
/// is elsewhere.
class SurlignageOccurrences : public QObject
{
    Q_OBJECT

public:
    /// `editeur` must outlive this object; its widget need not.
    explicit SurlignageOccurrences(EditeurCherchable & editeur);
    ~SurlignageOccurrences() override;

    /// The matches of the document as it is now. After an edit those that are highlighted move with
    /// their text, until the next call.
    void Montre(OccurrencesTexte const & occurrences);
    void Retire();
    /// Another one highlights in the editor.
    bool EstEvincay() const;

    bool eventFilter(QObject * objet, QEvent * evenement) override;

private:
    EditeurCherchable::Selections DonneSelectionsDesAutres() const;
    bool EstPerimay() const;
    void Renouvelle();
    SurlignageOccurrences * PreteActif() const;
    void PrendsLaPlace();
    void ColoreSelection();
    void RendsSelection();

    EditeurCherchable & monEditeur;
    OccurrencesTexte mesOccurrences;
    bool jeMontre = false;
    QPointer<QTextDocument> monDocument; // what the matches are those of
    int maRevision = 0;                  // of that document
    OccurrencesTexte::Plage maPlage;     // what was visible at the last renewal
    qsizetype mesSurlignees = 0;         // and how many were highlighted
    QPalette maPalette;                  // the editor's before `jeMontre`
};
