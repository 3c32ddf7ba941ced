// dialogs/DMessageBoxAvecCaseACocher.h
#pragma once

#include "dialogs/DMessageBox.h"

class QCheckBox;

/// The box of an alert whose answer the user may have remembered.
class FABRELGUI_EXPORT DMessageBoxAvecCaseACocher : public DMessageBox
{
    Q_OBJECT

public:
    DMessageBoxAvecCaseACocher(DDialogueAbs * proprietaire, QWidget * parent,
                               DAlerteInfo const & info);

protected:
    void showEvent(QShowEvent * evenement) override;

public:
    bool CaseEstCochee() const override;

protected:
    void changeEvent(QEvent * evenement) override;

private:
    void PlaceCaseACocher();

    QCheckBox * maCaseACocher = nullptr;
};
