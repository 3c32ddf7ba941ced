// controls/RoutinesBouton_p.h
#pragma once

class QAbstractButton;
class QEvent;
class QLabel;
class QObject;
class QString;
class QWidget;

/// What a control made of an indicator and a label needs, be it a check box or a radio button.
namespace RoutinesBouton {

/// Lays the indicator `bouton` and a new label out in `controle`, which gets the focus by the
/// indicator.
QLabel * Assemble(QWidget & controle, QAbstractButton & bouton, QString const & texte);

/// True for the event of the label that toggles the control.
bool EstBascule(QAbstractButton const & bouton, QLabel const & libelle, QObject const * objet,
                QEvent const & evenement);

} // namespace RoutinesBouton
