// navigation/DAssistantEtape.h
#pragma once

#include "noyau/UniChaine.h"

#include "FabrelGuiExport.h"

#include <QWidget>

class QCloseEvent;

/// One step of a `DAssistant`, which asks it before each move. Every answer has a default that
/// lets the move happen.
///
/// An operation may call the wizard's own slots, delete the step or delete the wizard: the move
/// under way then ends there. Only while the wizard is being shown must its deletion be left to
/// `deleteLater`.
class FABRELGUI_EXPORT DAssistantEtape : public QWidget
{
    Q_OBJECT

public:
    explicit DAssistantEtape(QWidget * parent = nullptr);

    /// The title that the wizard's window shows while this step is the current one. It is read
    /// when the step becomes current and at each show of the wizard.
    void MetsTitre(QString const & titre);
    QString DonneTitre() const;

    /// The text of the step in the wizard's list, read once, when it is added. The title by
    /// default.
    virtual UniChaine DonneTitreEtape();

    /// The step has become the current one, or the wizard is shown again. The place to enable Next
    /// or Finish: every move disables them just before.
    virtual void EntreDansEtape();

    /// The wizard is being cancelled, which can't be refused.
    virtual void AnnuleEtape();

    /// False stops a move back.
    virtual bool PeutRevenir();

    /// False stops a move forward; Next and Finish then stay disabled until the step enables them.
    virtual bool PeutAvancer();

    /// False keeps the wizard from finishing.
    virtual bool PeutTerminer();

    /// True stops a move back before `PeutRevenir` is asked.
    virtual bool BloqueRetour();

    /// True keeps Previous enabled when the wizard is back at the first visited step.
    virtual bool GardePrecedentActif();

    /// True stops a move forward before `PeutAvancer` is asked and before any button changes.
    virtual bool BloqueAvance();

    /// False keeps the window open. Not asked by Cancel.
    virtual bool PeutFermer(QCloseEvent * evenement);

private:
    QString monTitre;
};
