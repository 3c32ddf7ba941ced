// galerie/HoteRecherche.h
#pragma once

#include "EditeurCherchable.h"
#include "OccurrencesTexte.h"
#include "RechercheTexte.h"
#include "RemplacementTout.h"
#include "SurlignageOccurrences.h"

#include "search/UtilisateurWidgetRecherche.h"

#include <QPointer>
#include <QTextCursor>
#include <QTimer>

#include <memory>

class WidgetRechercheAbstrait;

/// Finds and replaces in a text editor what a search front end asks for.
///
/// A window gets a search bar in ten lines:
///
///     auto * const editeur = new QPlainTextEdit;
///     auto * const barre = new BarreRecherche(nullptr, true, true, true, true);
///     auto * const colonne = new QVBoxLayout(this);
///     colonne->addWidget(editeur);
///     colonne->addWidget(barre);
///     barre->hide();
///     auto * const hote = new HoteRecherche(*editeur, *barre, this);
///     hote->BrancheTouches(*this);
///
/// While the front end is visible, the matches in the viewport are highlighted; the current one is
/// the editor's selection. The counter tells the number of the match that is selected, 0 when the
/// selection is none. All of it follows every edit. A no-break blank is found by a plain one, and
/// the other way round.
///
/// What is typed is searched for from where the caret was put last, by the user or by a command to
/// find, so that a longer text extends a match and a shorter one goes back.
///
/// In a `BarreRecherche` Escape closes the bar from each of its controls, and never the dialog that
/// the bar is in; nor does Return press a button of that dialog. When the bar closes, the focus
/// goes from it to the editor.
///
/// To be copied with the six classes that it needs, `EditeurCherchable`, `OccurrencesTexte`,
/// `RechercheTexte`, `RemplacementTout`, `SurlignageOccurrences` and `TouchesBarreRecherche`; the
/// texts of RemplacementTout.cpp come from `TraductionGalerie`: put your own.
///
/// Editor, front end and host may die in any order; but who hears of the editor's caret deletes the
/// host with `deleteLater`. The front end must be a widget itself, as those of the library are, and
/// has no other host. An editor may have several, each with a front end of its own: the one that
/// has searched last highlights, or whose front end was shown last. GUI thread only.
class HoteRecherche : public QObject, public UtilisateurWidgetRecherche
{
    Q_OBJECT

public:
    HoteRecherche(QTextEdit & editeur, WidgetRechercheAbstrait & frontal,
                  QObject * parent = nullptr)
        : HoteRecherche(EditeurCherchable::Fais(editeur), frontal, parent)
    {
    }
    HoteRecherche(QPlainTextEdit & editeur, WidgetRechercheAbstrait & frontal,
                  QObject * parent = nullptr)
        : HoteRecherche(EditeurCherchable::Fais(editeur), frontal, parent)
    {
    }
    ~HoteRecherche() override;

    /// Binds the usual keys in `zone` and the widgets in it: find, find next, find previous.
    void BrancheTouches(QWidget & zone);

    bool EstEnTrainDeRemplacer() const { return monRemplacement != nullptr; }
    /// Milliseconds, as in `RemplacementTout`, for the next replace-all.
    void MetsDureesRemplacement(int dureeTranche, int delaiFenetre)
    {
        maDureeTranche = dureeTranche;
        monDelaiFenetre = delaiFenetre;
    }

    void CallbackNettoyerRecherche() override;
    void CallbackChercher() override;
    /// Replaces the match that is selected and goes on in the direction of the last search;
    /// otherwise only goes on. Like the next one, does nothing when the editor is read-only.
    void CallbackRemplacer() override;
    void CallbackRemplacerTout() override;
    void CallbackAnnulerRemplacerTout() override;

    bool eventFilter(QObject * objet, QEvent * evenement) override;

Q_SIGNALS:
    /// After each search: false when the text is nowhere in the document, so that an application
    /// can colour the search field. True for an empty text.
    void SignalTrouvay(bool trouvay);
    /// A replace-all has ended, or was cancelled, with so many replaced.
    void SignalRemplacementFini(int remplacees);

public Q_SLOTS:
    /// Opens the front end for a new search, with the selected text if it is on one line.
    void PriseOuvrir();
    /// Go on with the text of the front end, shown or not; without one they open it.
    void PriseSuivant();
    void PrisePrecedent();

private Q_SLOTS:
    void PriseCurseurBougeay();
    void PriseRenouveler();
    void PriseBarreFerme();
    void PriseEditeurDetruit();
    void PriseRemplacementFini(int remplacees);

private:
    HoteRecherche(std::unique_ptr<EditeurCherchable> editeur, WidgetRechercheAbstrait & frontal,
                  QObject * parent);

    WidgetRechercheAbstrait * PreteFrontal() const;
    bool EstPret() const;
    bool PeutRemplacer() const;
    void MetsDepart(int position);

    bool LisDemande();
    bool Cherche() { return maRecherche.Cherche(*monEditeur->PreteDocument()); }
    void Continue(void (WidgetRechercheAbstrait::*versOu)());
    void ChercheAuFil(bool occurrenceSelectionnay);
    void VaPlusLoin(OccurrencesTexte::Plage const & depuis, bool avecMessage);
    void Selectionne(OccurrencesTexte::Plage const & plage);
    void Rapporte(bool prendsLaPlace);
    void Annonce();
    void Termine(bool avecMessage);

    std::unique_ptr<EditeurCherchable> const monEditeur;
    SurlignageOccurrences monSurlignage;
    QPointer<QWidget> const monWidget; // the front end
    QTimer maMinuterie;                // several changes at once are followed once

    RechercheTexte maRecherche;
    QTextCursor monDepart;          // where what is typed is searched for from
    bool monCurseurABougeay = true; // by others: what is typed starts there
    bool jeBougeLeCurseur = false;

    RemplacementTout * monRemplacement = nullptr; // null when none is under way
    int maDureeTranche = RemplacementTout::kDureeTranche;
    int monDelaiFenetre = RemplacementTout::kDelaiFenetre;
};
