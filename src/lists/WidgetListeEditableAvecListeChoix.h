// lists/WidgetListeEditableAvecListeChoix.h
#pragma once

#include "lists/InterfaceUtilisantListeChoixFlottante.h"
#include "lists/WidgetListeEditable.h"

#include <functional>
#include <memory>

class ListeChoixFlottante;
class QKeyEvent;

/// An editable list that proposes texts for the cell that is being edited, in a list that floats
/// under the editor.
///
/// What is proposed comes from a function of the host, which is asked when an editor opens and
/// whenever the user changes its text. Down and Up go through the proposals, Return or a click
/// takes one: its text becomes that of the cell, and the edit ends as Return ends it, validators
/// included. While no proposal is current, Return takes what was typed. Escape closes the
/// proposals, and the next one the editor.
///
/// The proposals follow their editor when the window moves or the list scrolls, and hide with it.
class FABRELGUI_EXPORT WidgetListeEditableAvecListeChoix : public WidgetListeEditable
{
    Q_OBJECT

public:
    using Propositions = QList<QList<QStandardItem *>>;
    /// The proposals for `texte` in a cell of `colonne`, already filtered: rows of items, which the
    /// list takes and deletes. The `Qt::EditRole` of the first item of a row is what it puts into
    /// the cell. Without rows nothing shows. It may change or delete the list.
    using Proposant = std::function<Propositions(int colonne, QString const & texte)>;

    /// As `WidgetListeEditable`.
    WidgetListeEditableAvecListeChoix(QWidget * parent, int nbColonnes, bool editable,
                                      bool avecBoutonAjouter, QList<QValidator *> validateurs,
                                      bool insereApresSelection);
    ~WidgetListeEditableAvecListeChoix() override;

    /// From the next change of text on. An empty function proposes nothing, as at first.
    void MetsProposant(Proposant proposant);
    /// The list of proposals, for its name, its delegate or its least width; never null.
    ListeChoixFlottante * PreteListeChoix() const;

    bool eventFilter(QObject * objet, QEvent * evenement) override;

protected:
    void MetsEditeur(QLineEdit * editeur) override;

private Q_SLOTS:
    void PriseTexteTapay(QString const & texte);
    void PrisePropositionChoisie(QList<std::shared_ptr<QStandardItem>> const & items);

private:
    void SuisEditeur(QLineEdit & editeur);
    void Propose(QString const & texte);
    bool FiltreEditeur(QEvent const & evenement);
    bool TraiteToucheDeLEditeur(QKeyEvent const & touche);
    void SuisDeplacement();

    InterfaceUtilisantListeChoixFlottante monInterface;
    std::unique_ptr<ListeChoixFlottante> maListe; // a window, which belongs to no other widget
    Proposant monProposant;
    QPointer<QWidget> monEditeurSuivi; // still told of events when it is no `QLineEdit` any more
    int maColonne = 0;                 // of the editor
};
