// lists/ListePastille.h
#pragma once

#include "FabrelGuiExport.h"

#include "lists/DFrameChevronnable.h"

class Pastille;

/// A row of pills with a square chevron. It is as high as its highest pill.
///
/// Left and Right lead from pill to pill. Tab goes through them in their order, then to the
/// chevron.
class FABRELGUI_EXPORT ListePastille : public DFrameChevronnable
{
    Q_OBJECT

public:
    explicit ListePastille(QWidget * parent);
    ListePastille();

    /// Takes the pill, at the end of the row, and refreshes the chevron's menu. Null is ignored.
    void AjoutePastille(Pastille * pastille);
    /// Takes the pill out of the row and deletes it. The keyboard focus that it had goes to the
    /// next visible pill, else to the one before, else to `suivant`, which may be null. A pill that
    /// is not in the row is left alone.
    void RetirePastille(Pastille * pastille, QWidget * suivant);
    /// The first pill with these data, or null.
    Pastille * TrouvePastille(QVariant const & donnees) const;

    /// Deletes everything; a pill that is emitting its signal goes once that has been delivered.
    void Vide() override;

    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent * evenement) override;
    void resizeEvent(QResizeEvent * evenement) override;

private:
    void PriseRangeeMiseEnPlace();
    void Initialise();
    void DimensionneChevron();
    void CompleteMenu(Pastille & pastille, bool etaitAJour);
    QWidget * TrouvePrecedente();
    Pastille * TrouveVisible(int index, int pas) const;

    // How many were in the row when the menu was last complete; -1 once the row is laid out anew.
    int monNombreAuMenu = -1;
};
