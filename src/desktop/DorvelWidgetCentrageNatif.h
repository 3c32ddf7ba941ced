// desktop/DorvelWidgetCentrageNatif.h
#pragma once

#include "FabrelGuiExport.h"

#include "noyau/plateforme/TypesWin32.h"

#include <QWidget>

/// Stands in for a native parent: keeps the window on which dialogs are centred, and tells them
/// when to close.
class FABRELGUI_EXPORT DorvelWidgetCentrageNatif : public QWidget
{
    Q_OBJECT

public:
    explicit DorvelWidgetCentrageNatif(HWND fenetre);
    ~DorvelWidgetCentrageNatif() override;

    /// The widget on which a dialog is to be centred and whose child it is to be; owned.
    QWidget * PreteFenetreCentrage() const;

Q_SIGNALS:
    /// The dialogs of this parent must close.
    void SignalFermerDialogue();
};
