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
    /// How long a slice may take, so that the user interface keeps answering.
    static constexpr int kDureeTranche = 10; // ms
    /// How long it works before the window opens.
    static constexpr int kDelaiFenetre = 300; // ms
    /// At least so many are replaced in a slice, before the clock is looked at.
    static constexpr int kRemplacementsParMesure = 32;

    /// `occurrences` are those of the editor's document as it is now. The editor must outlive this
    /// object, unlike its widget.
    RemplacementTout(EditeurCherchable & editeur, OccurrencesTexte occurrences,
                     QString remplacement, QObject * parent = nullptr);
    ~RemplacementTout() override;

    /// In milliseconds; 0 for the shortest slices. To be called before `Demarre`.
    void MetsDureeTranche(int duree) { maDureeTranche = duree; }
    /// In milliseconds; 0 opens the window behind the first slice.
    void MetsDelaiFenetre(int delai) { monDelaiFenetre = delai; }

    /// Replaces the first slice at once. True when there is more to do: then `SignalFini` follows,
    /// and only then.
    bool Demarre();

    int DonneNombreRemplacees() const { return mesRemplacees; }

Q_SIGNALS:
    /// After each slice but the last.
    void SignalAvancement(int remplacees, int total);
    /// All is replaced, or it was cancelled. A receiver may delete the sender later, not at once.
    void SignalFini(int remplacees);

public Q_SLOTS:
    /// Ends it; nothing when it has ended.
    void PriseAnnuler();

private Q_SLOTS:
    void PriseContinuer();
    void PriseOuvrirFenetre();

private:
    void RemplaceTranche();
    void Remplace(OccurrencesTexte::Plage const & plage);
    QString DonneAvancement() const;
    bool EstPerturbay() const;
    void Rends();
    void Finis();

    EditeurCherchable & monEditeur;
    OccurrencesTexte mesOccurrences;
    QString monRemplacement;
    QPointer<QTextDocument> monDocument;
    QTextCursor monCurseur;
    int mesRemplacees = 0;
    int monDecalage = 0; // characters that the replaced ones have added
    int maRevision = 0;  // of the document after the last slice
    int maDureeTranche = kDureeTranche;
    int monDelaiFenetre = kDelaiFenetre;
    Qt::TextInteractionFlags monInteraction; // the editor's own, while `jeSuisEnCours`
    bool jeSuisEnCours = false;
    QPointer<DDialogueProgressionInfinie> maFenetre;
};
