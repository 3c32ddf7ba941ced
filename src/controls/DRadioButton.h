// controls/DRadioButton.h
#pragma once

#include "controls/DBoutonAbstrait.h"

class BoutonHover;
class QButtonGroup;
class QLabel;

/// A radio button whose label is rich text, with links if need be, and wraps where it has no room.
///
/// Only buttons of the same exclusive `QButtonGroup` exclude one another, not those of the same
/// parent: without a group the user can uncheck the button. A release of the mouse that was pressed
/// on the label toggles it, whatever the button of the mouse and even outside the label. A click on
/// a link does that too and does not follow the link.
///
/// Whoever hears the signal of the control may delete it. That does not hold for the signals of the
/// group when the application checks an indicator through the group.
class FABRELGUI_EXPORT DRadioButton : public DBoutonAbstrait
{
    Q_OBJECT

public:
    /// `texte` is HTML; without one the label is hidden. `cochay` is the initial state. `groupe` is
    /// as for `AssocierAuGroupe`.
    explicit DRadioButton(QString const & texte, QWidget * parent = nullptr, bool cochay = false,
                          QButtonGroup * groupe = nullptr);
    ~DRadioButton() override;

    UniChaine DonneTexte() const override;
    bool EstCochay() const override;
    /// The checked button of an exclusive group stays checked until another one is.
    void MetsCochay(bool cochay) override;

    /// Puts the button into `groupe`, which gives it an identifier, and takes it out of the group
    /// in which it was. Null does nothing.
    void AssocierAuGroupe(QButtonGroup * groupe);

    bool eventFilter(QObject * objet, QEvent * evenement) override;

protected:
    void enterEvent(QEnterEvent * evenement) override;
    void leaveEvent(QEvent * evenement) override;
    void hideEvent(QHideEvent * evenement) override;

private:
    void Branche();

    BoutonHover * monBouton = nullptr;
    QLabel * monLibelle = nullptr;
};
