// noyau/plateforme/PlateformeFenetres.h
#pragma once

#include "noyau/plateforme/TypesWin32.h"

#include "FabrelNoyauExport.h"

#include <QRect>
#include <QString>

#include <memory>

/// The operations on native windows that the libraries need: one call each, under the platform's
/// names, no policy.
///
/// Backends: user32, X11 (EWMH and ICCCM), and a null one for every other window system, which does
/// nothing and answers null, false or empty. GUI thread only.
class FABRELNOYAU_EXPORT PlateformeFenetres
{
public:
    /// What `GetMonitorInfoW` tells of a monitor; rectangles in native pixels.
    struct InfosMoniteur
    {
        QString nom; ///< the device name, as `QScreen::name()` gives it
        QRect geometrie;
        QRect zoneTravail;
    };

    PlateformeFenetres() = default;
    PlateformeFenetres(PlateformeFenetres const &) = delete;
    PlateformeFenetres & operator=(PlateformeFenetres const &) = delete;
    virtual ~PlateformeFenetres();

    /// The layer of the running window system, or what `Installe` put in its place.
    static PlateformeFenetres & Courante();

    /// Puts another layer in place and returns the one replaced, never null. A null argument puts
    /// the layer of the running window system back.
    static std::unique_ptr<PlateformeFenetres>
    Installe(std::unique_ptr<PlateformeFenetres> plateforme);

    // Walking the desktop
    virtual HWND GetForegroundWindow() = 0;
    virtual HWND GetDesktopWindow() = 0;
    virtual HWND GetTopWindow(HWND parent) = 0;
    virtual HWND GetWindow(HWND fenetre, UINT relation) = 0;
    virtual HWND GetParent(HWND fenetre) = 0;
    virtual HWND FindWindowW(QString const & classe, QString const & titre) = 0;

    // Asking a window
    virtual bool IsWindow(HWND fenetre) = 0;
    virtual bool IsWindowVisible(HWND fenetre) = 0;
    virtual bool IsIconic(HWND fenetre) = 0;
    virtual bool IsHungAppWindow(HWND fenetre) = 0;
    virtual LONG_PTR GetWindowLongPtrW(HWND fenetre, int indice) = 0;
    /// The thread of the window, 0 when unknown; `processus`, if not null, receives its process.
    virtual DWORD GetWindowThreadProcessId(HWND fenetre, DWORD * processus) = 0;
    /// The title; empty when there is none.
    virtual QString GetWindowTextW(HWND fenetre) = 0;
    virtual bool GetClientRect(HWND fenetre, RECT * rect) = 0;
    virtual bool ClientToScreen(HWND fenetre, POINT * point) = 0;

    // Changing a window
    virtual bool SetForegroundWindow(HWND fenetre) = 0;
    virtual bool BringWindowToTop(HWND fenetre) = 0;
    virtual bool ShowWindow(HWND fenetre, int commande) = 0;
    virtual bool SetWindowPos(HWND fenetre, HWND apres, int x, int y, int largeur, int hauteur,
                              UINT options) = 0;
    /// Changes `GWLP_HWNDPARENT`, the owner of a top-level window; answers the number before, or 0.
    /// Does nothing on X11, where Qt names the owner of its windows itself.
    virtual LONG_PTR SetWindowLongPtrW(HWND fenetre, int indice, LONG_PTR valeur) = 0;

    // Input and messages
    /// While the thread is attached to others, none but a window of theirs or of its own.
    virtual HWND GetFocus() = 0;
    virtual DWORD GetCurrentThreadId() = 0;
    virtual bool AttachThreadInput(DWORD thread, DWORD versThread, bool attache) = 0;
    virtual bool PostMessageW(HWND fenetre, UINT message, WPARAM wParam, LPARAM lParam) = 0;
    /// 0 when the window did not answer within `delai` milliseconds or could not be asked.
    virtual LRESULT SendMessageTimeoutW(HWND fenetre, UINT message, WPARAM wParam, LPARAM lParam,
                                        UINT options, UINT delai, DWORD_PTR * resultat) = 0;

    // Marker windows: a class, a window of that class, and their end
    virtual HINSTANCE GetModuleHandleW() = 0;
    /// Registers a class with the default window procedure; false when the name is taken.
    virtual bool RegisterClassW(QString const & classe, UINT style, HINSTANCE module,
                                ULONG_PTR fond) = 0;
    virtual bool UnregisterClassW(QString const & classe, HINSTANCE module) = 0;
    virtual HWND CreateWindowExW(DWORD styleEtendu, QString const & classe, QString const & titre,
                                 DWORD style, int x, int y, int largeur, int hauteur,
                                 HINSTANCE module) = 0;
    virtual bool DestroyWindow(HWND fenetre) = 0;

    // The system's colours and monitors
    /// Red in the low byte, then green, then blue. Where the system has no such call, the colour of
    /// the matching role of the application's palette (text, highlight, highlighted text).
    virtual DWORD GetSysColor(int indice) = 0;
    virtual HMONITOR MonitorFromWindow(HWND fenetre, DWORD options) = 0;
    virtual bool GetMonitorInfoW(HMONITOR moniteur, InfosMoniteur * infos) = 0;

    // Queries of the core library
    virtual QString DonneNomClasse(HWND fenetre) = 0;
    /// The path of the executable that owns the window; empty when it can't be told.
    virtual QString DonneExecutable(HWND fenetre) = 0;
    /// The first child of that class, or else the first below a child; null when there is none.
    virtual HWND DonneEnfantDeClasse(HWND parent, QString const & classe) = 0;

protected:
    /// `GetSysColor` by the application's palette; 0 without an application object.
    static DWORD CouleurDePalette(int indice);
};
