// galerie/AssistantImport.h
#pragma once

#include "MemoireImports.h"
#include "SaisieImport.h"

#include "navigation/DAssistant.h"

#include <QList>

class EtapeImport;

/// The wizard that imports a list of words in five steps.
///
/// The steps keep what is entered in the wizard's options, as it is entered.
class AssistantImport : public DAssistant
{
    Q_OBJECT

public:
    explicit AssistantImport(QWidget * parent);

    /// The titles of the steps, in the language of the application.
    static QStringList DonneTitres();

    SaisieImport DonneSaisie();
    /// Shows the wizard, which must not have been shown yet, where `saisie` left it; the moves
    /// that lead there are made anew, and end at a step that refuses or waits.
    void Ouvre(SaisieImport const & saisie);
    /// The same without a window on the screen, for a picture of it.
    void OuvrePourApercu(SaisieImport const & saisie);

    /// Nothing was entered: it may close without a question.
    bool EstVierge();
    int DonneEtapeCourante() const { return monEtapeCourante; }
    /// What the import leads to; complete once it was accepted.
    MemoireImports::Liste DonneListe();

    // For the steps.

    /// `etape` has become the current one.
    void NoteEtape(EtapeImport const & etape);
    /// To be called before a move, which disables buttons and so takes the focus from them.
    void NoteFocus();
    /// Before the last move, the focus was in the list of steps, where the arrow keys are to go on.
    bool FocusEtaitDansLaListe() const { return monFocusEtaitDansLaListe; }
    /// Asks whether to give up; closes the wizard later if so.
    void DemandeAbandon();

Q_SIGNALS:
    void SignalEtapeChangee(int etape);

private:
    void MetsCouleursClaires();

    QList<EtapeImport *> mesEtapes;
    int monEtapeCourante = 0;
    bool monFocusEtaitDansLaListe = false;
};
