// galerie/HoteRecherche.h
#pragma once

#include "EditeurCherchable.h"
#include "OccurrencesTexte.h"
#include "RemplacementTout.h"

#include "search/UtilisateurWidgetRecherche.h"

#include <QPointer>
#include <QTextCursor>
#include <QTimer>

#include <memory>

class QKeyEvent;
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
/// The matches that the viewport shows are highlighted by extra selections, beside those of the
/// application; the current match is the editor's selection. The counter's first number is that of
/// the match that is selected, 0 when none is. Both follow every edit as long as the front end is
/// visible.
///
/// Editor, front end and host may die in any order. The front end must be a widget itself, as all
/// of the library are, and has no other host.
class HoteRecherche : public QObject, public UtilisateurWidgetRecherche
{
    Q_OBJECT

public:
    HoteRecherche(QTextEdit & editeur, WidgetRechercheAbstrait & frontal,
                  QObject * parent = nullptr);
    HoteRecherche(QPlainTextEdit & editeur, WidgetRechercheAbstrait & frontal,
                  QObject * parent = nullptr);
    ~HoteRecherche() override;

    /// Binds the usual keys in `zone` and the widgets in it: find, find next and find previous.
    void BrancheTouches(QWidget & zone);

    bool EstEnTrainDeRemplacer() const { return monRemplacement != nullptr; }
    /// Times of the next replace-all, as in `RemplacementTout`; for tests and demonstrations.
    void MetsDureesRemplacement(int dureeTranche, int delaiFenetre);

    void CallbackNettoyerRecherche() override;
    void CallbackChercher() override;
    /// Like the next one, does nothing when the editor is read-only.
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
    void PriseTexteModifiay();
    void PriseCurseurBougeay();
    void PriseRenouveler();
    void PriseBarreFerme();
    void PriseRemplacementFini(int remplacees);

private:
    HoteRecherche(std::unique_ptr<EditeurCherchable> editeur, WidgetRechercheAbstrait & frontal,
                  QObject * parent);
};
