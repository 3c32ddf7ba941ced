// desktop/QWinWidget.h
#pragma once

#include "FabrelGuiExport.h"

#include "noyau/plateforme/TypesWin32.h"

#include <QWidget>

#include <memory>

class QWindow;

/// Stands for a native window, of this program or another, as the parent of our windows.
///
/// Windows that are its children when they are shown are kept in front of the native window and are
/// centred on it, as on any parent. They are destroyed with this widget, not with the native
/// window: once that has gone, or without one, they are windows of their own, centred where it was
/// last. Windows itself takes what is on the screen away together with the native window. The
/// widget itself is never on the screen and takes no focus. It follows the geometry of the native
/// window when a child is added or shown, not in between.
class FABRELGUI_EXPORT QWinWidget : public QWidget
{
    Q_OBJECT

public:
    /// A null or dead handle gives a hidden widget without a place.
    explicit QWinWidget(HWND fenetre);
    ~QWinWidget() override;

    /// The native window, as it was given, whether it still exists or not.
    HWND DonneFenetreNative() const { return maFenetreNative; }

    /// Never shows: what it stands for is on the screen by itself.
    void setVisible(bool visible) override;

    bool eventFilter(QObject * objet, QEvent * evenement) override;

protected:
    void childEvent(QChildEvent * evenement) override;

private:
    void SuisFenetreNative();
    void Rattache(QWidget & enfant);
    void RattacheNatif(QWidget const & enfant) const;

    HWND maFenetreNative;
    std::unique_ptr<QWindow> monProprietaire; // the native window for Qt; null until it is needed
    bool monProprietaireEstDemanday = false;
};
