// galerie/RemplacementTout.h
#pragma once

#include "OccurrencesTexte.h"

#include <QObject>
#include <QPointer>
#include <QTextCursor>
#include <QTextDocument>

class DDialogueProgressionInfinie;
class EditeurCherchable;

/// Replaces all matches of a text, in slices between which the event loop turns, as one undo step.
///
/// The document is whole after each slice. The editor is read-only meanwhile; if it takes long, a
/// window over the editor's shows how far it is and offers to cancel. What is replaced when it is
/// cancelled stays replaced. If somebody else changes the document in between, or it dies, it ends
/// there, as it does when this object is deleted.
class RemplacementTout : public QObject
{
    Q_OBJECT

public:
    /// How long a slice may take, so that the user interface keeps answering. Once per slice the
    /// editor lays out what has changed, which for a `QTextEdit` of a megabyte takes longer.
    static constexpr int kDureeTranche = 10; // ms
    /// How long it works before the window opens.
    static constexpr int kDelaiFenetre = 300; // ms
    /// Of the window, which stays with the editor's and never takes the focus from the text.
    static constexpr Qt::WindowFlags kDrapeauxFenetre =
        Qt::Tool | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus;
    /// So many are replaced in a slice before the clock is looked at.
    static constexpr int kRemplacementsParMesure = 32;

    /// `occurrences` are those of the editor's document as it is now. `editeur` must outlive this
    /// object; its widget need not.
    RemplacementTout(EditeurCherchable & editeur, OccurrencesTexte occurrences,
                     QString remplacement, QObject * parent = nullptr);
    ~RemplacementTout() override;

    /// Puts a text in the place of another, with the format that the first character has. Returns
    /// by how much the text has grown.
    static int Remplace(QTextCursor & curseur, OccurrencesTexte::Plage const & plage,
                        QString const & remplacement);

    /// In milliseconds; 0 for the shortest slices. To be called before `Demarre`, like the next
    /// one, where 0 opens the window behind the first slice.
    void MetsDureeTranche(int duree) { maDureeTranche = duree; }
    void MetsDelaiFenetre(int delai) { monDelaiFenetre = delai; }

    /// Replaces the first slice at once. True when there is more to do: then `SignalFini` follows,
    /// and only then. To be called once.
    bool Demarre();
    /// While it does, the caret moves with the text.
    bool EcrisTuLeTexte() const { return jEcrisLeTexte; }
    bool eventFilter(QObject * objet, QEvent * evenement) override;

    int DonneNombreRemplacees() const { return mesRemplacees; }

Q_SIGNALS:
    /// All is replaced, or it was cancelled. The sender is no longer used: it may be deleted.
    void SignalFini(int remplacees);

public Q_SLOTS:
    /// Nothing when it has ended.
    void PriseAnnuler();

private Q_SLOTS:
    void PriseContinuer();
    void PriseOuvrirFenetre();

private:
    // What every change of the document changes, unlike its revision, which also counts the
    // formatting of a syntax highlighter.
    struct Empreinte
    {
        int caracteres = 0;
        int pasAnnulables = 0;
        int revision = 0; // 0 where there are undo steps

        bool operator==(Empreinte const & autre) const = default;
    };

    Empreinte DonneEmpreinte() const;
    bool EstPerturbay() const;
    bool EstFini() const { return mesRemplacees == mesOccurrences.DonneNombre(); }
    void RemplaceTranche();
    QString DonneAvancement() const;
    void Arrete();
    void Finis();

    EditeurCherchable & monEditeur;
    OccurrencesTexte const mesOccurrences;
    QString const monRemplacement;
    QPointer<QTextDocument> monDocument;
    QTextCursor monCurseur;
    int mesRemplacees = 0;
    int monDecalage = 0;    // by how much the text has grown
    Empreinte monEmpreinte; // of the document after the last slice
    int maDureeTranche = kDureeTranche;
    int monDelaiFenetre = kDelaiFenetre;
    bool jeSuisEnCours = false;
    bool jEcrisLeTexte = false;
    Qt::TextInteractionFlags monInteraction; // the editor's own, while it is under way
    QPointer<DDialogueProgressionInfinie> maFenetre;
};
