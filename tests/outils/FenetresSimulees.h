// tests/outils/FenetresSimulees.h
#pragma once

#include "noyau/plateforme/PlateformeFenetres.h"

#include <QHash>
#include <QStringList>

#include <map>
#include <vector>

/// A desktop in memory: windows in Z order, of this program and of others, and monitors.
///
/// Install it with `PlateformeFenetres::Installe`. Operations do what they say to the desktop;
/// those that change something or send something are also noted in `appels`, as "Name(class,
/// arguments)".
class FenetresSimulees : public PlateformeFenetres
{
public:
    static constexpr DWORD kNotreProcessus = 100;
    static constexpr DWORD kNotreThread = 101;
    static constexpr DWORD kAutreProcessus = 200;
    static constexpr DWORD kAutreThread = 201;

    /// By default, the main window of another program.
    struct Fenetre
    {
        QString classe{};
        QString titre{};
        DWORD style = WS_VISIBLE | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME;
        DWORD styleEtendu = WS_EX_APPWINDOW;
        HWND proprietaire = nullptr; ///< of a top-level window
        HWND parent = nullptr;       ///< of a child; null for a top-level window
        DWORD processus = kAutreProcessus;
        DWORD thread = kAutreThread;
        QString executable{};
        bool gelee = false;
        QRect client{}; ///< in native pixels of the screen
        HMONITOR moniteur = nullptr;
    };

    FenetresSimulees();

    /// Adds a window on top of the others, or of its siblings; `WS_MINIMIZE` makes it iconic.
    HWND Ajoute(Fenetre const & fenetre);
    /// The same under a handle that exists already, such as the `winId()` of a widget.
    void Ajoute(HWND poignee, Fenetre const & fenetre);
    /// The window goes away, as when its program ends; its handle is dead from then on.
    void Retire(HWND fenetre);
    /// The record of a live window; a dead handle ends the test program.
    Fenetre & Prete(HWND fenetre);
    HMONITOR AjouteMoniteur(InfosMoniteur const & infos);
    /// The live top-level windows, the topmost first.
    std::vector<HWND> DonnePile() const;
    /// The Unicode characters posted to the window, each by its key going down or by itself.
    QString DonneTexteRecu(HWND fenetre) const;

    QStringList appels;
    HWND avantPlan = nullptr; ///< the foreground window
    HWND focus = nullptr;
    HWND bureau = nullptr;          ///< the desktop's own window; not in the Z order
    bool refuseAvantPlan = false;   ///< SetForegroundWindow fails
    bool refuseAttachement = false; ///< AttachThreadInput fails
    QHash<int, DWORD> couleurs;     ///< for GetSysColor; other indices come from the palette

    HWND GetForegroundWindow() override;
    HWND GetDesktopWindow() override;
    HWND GetTopWindow(HWND parent) override;
    HWND GetWindow(HWND fenetre, UINT relation) override;
    HWND GetParent(HWND fenetre) override;
    HWND FindWindowW(QString const & classe, QString const & titre) override;

    bool IsWindow(HWND fenetre) override;
    bool IsWindowVisible(HWND fenetre) override;
    bool IsIconic(HWND fenetre) override;
    bool IsHungAppWindow(HWND fenetre) override;
    LONG_PTR GetWindowLongPtrW(HWND fenetre, int indice) override;
    DWORD GetWindowThreadProcessId(HWND fenetre, DWORD * processus) override;
    QString GetWindowTextW(HWND fenetre) override;
    bool GetClientRect(HWND fenetre, RECT * rect) override;
    bool ClientToScreen(HWND fenetre, POINT * point) override;

    bool SetForegroundWindow(HWND fenetre) override;
    bool BringWindowToTop(HWND fenetre) override;
    bool ShowWindow(HWND fenetre, int commande) override;
    bool SetWindowPos(HWND fenetre, HWND apres, int x, int y, int largeur, int hauteur,
                      UINT options) override;
    LONG_PTR SetWindowLongPtrW(HWND fenetre, int indice, LONG_PTR valeur) override;

    HWND GetFocus() override;
    DWORD GetCurrentThreadId() override;
    bool AttachThreadInput(DWORD thread, DWORD versThread, bool attache) override;
    bool PostMessageW(HWND fenetre, UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT SendMessageTimeoutW(HWND fenetre, UINT message, WPARAM wParam, LPARAM lParam,
                                UINT options, UINT delai, DWORD_PTR * resultat) override;

    HINSTANCE GetModuleHandleW() override;
    bool RegisterClassW(QString const & classe, UINT style, HINSTANCE module,
                        ULONG_PTR fond) override;
    bool UnregisterClassW(QString const & classe, HINSTANCE module) override;
    HWND CreateWindowExW(DWORD styleEtendu, QString const & classe, QString const & titre,
                         DWORD style, int x, int y, int largeur, int hauteur,
                         HINSTANCE module) override;
    bool DestroyWindow(HWND fenetre) override;

    DWORD GetSysColor(int indice) override;
    HMONITOR MonitorFromWindow(HWND fenetre, DWORD options) override;
    bool GetMonitorInfoW(HMONITOR moniteur, InfosMoniteur * infos) override;

    QString DonneNomClasse(HWND fenetre) override;
    QString DonneExecutable(HWND fenetre) override;
    HWND DonneEnfantDeClasse(HWND parent, QString const & classe) override;

private:
    Fenetre const * Cherche(HWND fenetre) const;
    /// The live children of a window, or the top-level windows for null; the topmost first.
    std::vector<HWND> DonneEnfants(HWND parent) const;
    void PlaceEnHaut(HWND fenetre);
    void PlaceSous(HWND fenetre, HWND voisine);
    QString DonneNom(HWND fenetre) const;
    void Note(char const * operation, HWND fenetre, QStringList const & arguments = {});

    std::map<HWND, Fenetre> mesFenetres;
    std::vector<HWND> monOrdre; // all windows, children too, the topmost first
    std::vector<InfosMoniteur> mesMoniteurs;
    QStringList mesClasses;
    QHash<HWND, QString> mesTextes;
    quintptr monDernierNumero = 0x1000;
};
