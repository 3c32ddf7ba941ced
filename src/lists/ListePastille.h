// lists/ListePastille.h
#pragma once

#include "FabrelGuiExport.h"

#include "lists/DFrameChevronnable.h"

#include <QBasicTimer>

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

    /// Takes the pill, at the end of the row.
    void AjoutePastille(Pastille * pastille);
    /// Takes the pill out of the row and deletes it. The keyboard focus that it had goes to the
    /// next visible pill, else to the one before, else to `suivant`, which may be null.
    void RetirePastille(Pastille * pastille, QWidget * suivant);
    /// The first pill with these data, or null.
    Pastille * TrouvePastille(QVariant const & donnees) const;
    /// Refreshes the chevron's menu: at once, or, with many pills, once for all that has changed
    /// until the event loop is back. The menu is always right when it opens.
    void RafraichisMenu();

    /// Deletes everything; a pill that is emitting its signal goes once that has been delivered.
    void Vide() override;

    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent * evenement) override;
    void resizeEvent(QResizeEvent * evenement) override;
    void timerEvent(QTimerEvent * evenement) override;

private:
    void Initialise();
    void DimensionneChevron();
    Pastille * TrouveVisible(int index, int pas) const;

    QWidget * monRepere = nullptr; // never seen; where in the order of Tab the next pill goes
    QBasicTimer monRafraichissement;
};
