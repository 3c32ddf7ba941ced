// controls/DCheckBox.h
#pragma once

#include "controls/DBoutonAbstrait.h"

class CheckBoxHover;
class QLabel;

/// A check box whose label is rich text, with links if need be, and wraps where it has no room.
///
/// A release of the mouse that was pressed on the label toggles the box, whatever the button of the
/// mouse and even outside the label. A click on a link does that too and does not follow the link.
/// There is no third state.
///
/// Whoever hears one of the signals may delete the control, except from the `released` of a box
/// that is down while the control or its parent is disabled.
class FABRELGUI_EXPORT DCheckBox : public DBoutonAbstrait
{
    Q_OBJECT

public:
    /// `texte` is HTML; without one the label is hidden. `cochay` is the initial state.
    explicit DCheckBox(QString const & texte, QWidget * parent = nullptr, bool cochay = false);
    ~DCheckBox() override;

    UniChaine DonneTexte() const override;
    bool EstCochay() const override;
    /// Emits `toggled` and `SignalCochageChangay` even when the box has this state already.
    void MetsCochay(bool cochay) override;

    /// False freezes the value: the indicator is disabled, the label is not, but does not toggle.
    /// `MetsCochay` still changes it. The control has no focus policy then; it gets its own back,
    /// unless the host gave it another meanwhile.
    void MetsUtilisateurPeutChangerValeur(bool peut);

    bool eventFilter(QObject * objet, QEvent * evenement) override;

Q_SIGNALS:
    void stateChanged(int etat);
    void clicked(bool cochay = false);
    void pressed();
    void released();
    void toggled(bool cochay);

protected:
    void enterEvent(QEnterEvent * evenement) override;
    void leaveEvent(QEvent * evenement) override;
    void hideEvent(QHideEvent * evenement) override;

private:
    void ChangePolitiqueFocus(bool peut);
    void Branche();

    CheckBoxHover * maCase = nullptr;
    QLabel * monLibelle = nullptr;
    Qt::FocusPolicy maPolitiqueFocus = Qt::NoFocus; // of when the value is not frozen
};
