// desktop/QWinWidget.h
#pragma once

#include "FabrelGuiExport.h"

#include "noyau/plateforme/TypesWin32.h"

#include <QWidget>

/// Stands for a native window, of this program or another, as the parent of our windows.
class FABRELGUI_EXPORT QWinWidget : public QWidget
{
    Q_OBJECT

public:
    explicit QWinWidget(HWND fenetre);
    ~QWinWidget() override;

    /// The native window, as it was given.
    HWND DonneFenetreNative() const { return maFenetreNative; }

private:
    HWND maFenetreNative;
};
