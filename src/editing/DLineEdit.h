// editing/DLineEdit.h
#pragma once

#include "FabrelGuiExport.h"

#include <QLineEdit>
#include <QPalette>

/// A line edit that can show that what it holds is wrong: its text turns to the theme's colour
/// "couleurErreurLineEdit" until the user comes to the field with the mouse or the focus. A mouse
/// that was over the field before the error does not count until it moves out and in again.
///
/// The theme's colour is read when the field is made. All other colours are those that any line
/// edit would have at its place, and follow the application's palette, its parents' palettes and
/// its style sheet; the text of an error stands above the sheet's colour. What `setPalette` gives
/// to the field itself is lost the next time that the field shows or hides an error or is polished:
/// give it colours by `QApplication::setPalette` with its class name, or by a style sheet.
class FABRELGUI_EXPORT DLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit DLineEdit(QWidget * parent = nullptr);

    /// Puts the field in error or takes it out. Style sheets see it as the property "erreur", which
    /// is unset until the first change.
    void MetsErreur(bool erreur);

    /// Takes the colours that the state asks for: those of an error when the field is in error and
    /// has neither the focus nor the mouse over it, which counts if it came during the error;
    /// otherwise the normal ones. A style calls it when it polishes the field.
    void MetsAJourPalette();

    /// Follows the mouse and the focus; consumes nothing.
    bool eventFilter(QObject * objet, QEvent * evenement) override;

protected:
    void changeEvent(QEvent * evenement) override;

private:
    void MontrePalette(bool erreur);
    void MontrePaletteAvecFeuille(bool erreur);

    QPalette maPaletteErreur;
    QPalette maPaletteNormale;
    bool monSurvol = false;
    bool monErreur = false;
    bool monErreurEstMontree = false;
    bool monChangementEnCours = false; // of the palette
};
