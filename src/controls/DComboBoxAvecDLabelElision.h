// controls/DComboBoxAvecDLabelElision.h
#pragma once

#include "controls/DComboBox.h"

class DLabelElision;

/// A combo box that shows its items and its current text as a `DLabelElision` does: rich text with
/// its formats, and "…" where there is no room. Whatever their vertical alignment, they stand in
/// the middle of the height.
///
/// Its size hints do not depend on the texts of its items, nor on a placeholder: they give room for
/// `minimumContentsLength` average letters, for 7 at the least in `minimumSizeHint` and for 20 in
/// `sizeHint`, beside the icon if one of the first 100 items has one. The policy of
/// `sizeAdjustPolicy` does not matter.
class FABRELGUI_EXPORT DComboBoxAvecDLabelElision : public DComboBox
{
    Q_OBJECT

public:
    explicit DComboBoxAvecDLabelElision(QWidget * parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent * evenement) override;

private:
    QSize DonneTaillePourLettres(int lettres) const;

    DLabelElision * monLabel = nullptr; // never shown: it draws the text of the closed combo box
};
