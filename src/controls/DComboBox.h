// controls/DComboBox.h
#pragma once

#include "FabrelGuiExport.h"

#include <QComboBox>

class MasqueurPremierElement;
class QAbstractItemView;

/// A combo box whose separators span the list, and whose first item can be hidden.
///
/// It filters the events of its view; subclasses see them in `eventFilter`.
class FABRELGUI_EXPORT DComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit DComboBox(QWidget * parent = nullptr);
    ~DComboBox() override;

    /// Keeps row 0, whatever item is there, out of the user's reach, for good: it has no place in
    /// the list, and neither keys, typed letters, the wheel, the mouse nor the completer lead to
    /// it. With no other row the list does not open.
    ///
    /// `setCurrentIndex(0)` still makes it the current item, as do a new model and the first item
    /// of an empty combo box; its text is then shown, and the list opens with nothing selected.
    /// Where the combo box is editable, its text typed in full and entered or left selects it too.
    /// `view()->keyboardSearch`, called by the host, is no key, and may find the hidden item.
    ///
    /// The item delegate keeps this in mind: with a delegate of the host's own, the first item is
    /// not hidden. The view is a list, a tree or a table; others cannot hide a row.
    ///
    /// A completer that works on the combo box's model, whenever it comes, is put on a filter of it
    /// before it completes anything typed, pasted or dropped. Asked by the host before that, it
    /// may offer the hidden item.
    void CachePremierElement();
    /// False until `CachePremierElement`, and with a delegate of the host's own.
    bool PremierElementCachay() const;

    /// Shows the list in `vue`, which the combo box takes, and deletes the view that it had. The
    /// item delegate stays, in place of the one that `vue` has; null, or the view that is there,
    /// does nothing. By a pointer to `QComboBox` the delegate and the filter are lost.
    void setView(QAbstractItemView * vue);

    void setModel(QAbstractItemModel * modele) override;
    void showPopup() override;

    bool eventFilter(QObject * objet, QEvent * evenement) override;

protected:
    void keyPressEvent(QKeyEvent * evenement) override;
    void wheelEvent(QWheelEvent * evenement) override;
    void inputMethodEvent(QInputMethodEvent * evenement) override;

private:
    bool TraiteTouche(QKeyEvent const & evenement);
    bool TraiteToucheDeLaListe(QKeyEvent const & evenement);
    void RetireEspaceDuCachay();
    void Active(int ligne);

    MasqueurPremierElement * monMasqueur = nullptr; // a child
};
