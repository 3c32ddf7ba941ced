// desktop/DorvelWidgetCentrageNatif.h
#pragma once

#include "FabrelGuiExport.h"

#include "noyau/plateforme/TypesWin32.h"

#include <QWidget>

#include <memory>

class QTimer;
class QWinWidget;

/// Stands in for a native parent: keeps the window on which dialogs are centred, and tells them
/// when to close.
///
/// Never shown itself. With a null handle, or one whose window is gone already, it keeps a centring
/// window without a place, and only its own end closes the dialogs.
class FABRELGUI_EXPORT DorvelWidgetCentrageNatif : public QWidget
{
    Q_OBJECT

public:
    explicit DorvelWidgetCentrageNatif(HWND fenetre);
    /// Emits `SignalFermerDialogue`; dialogs that stay open all the same are destroyed.
    ~DorvelWidgetCentrageNatif() override;

    /// The widget on which a dialog is to be centred and whose child it is to be; owned.
    QWidget * PreteFenetreCentrage() const;

Q_SIGNALS:
    /// The dialogs of this parent must close: the native window has gone, which is noticed within
    /// half a second, or this widget was closed or is being destroyed.
    void SignalFermerDialogue();

protected:
    void closeEvent(QCloseEvent * evenement) override;

private Q_SLOTS:
    void PriseVerifier();

private:
    std::unique_ptr<QWinWidget> maFenetreCentrage;
    QTimer * monMinuteur; // runs while the native window is there
};
