// noyau/plateforme/PlateformeFenetresX11_p.h
#pragma once

#include "noyau/plateforme/ClavierX11_p.h"
#include "noyau/plateforme/ConnexionX11_p.h"
#include "noyau/plateforme/PlateformeFenetres.h"

#include <map>
#include <vector>

/// The window operations on X11, by EWMH and ICCCM where there is a window manager that speaks
/// them.
///
/// - A handle is an X window. Top-level windows are those that the manager manages and the children
///   of the root; the frames around managed windows are left out of the Z order.
/// - X knows no threads: the thread of a window is its process, and so is the current one.
/// - A request to the window manager is done when the manager gets to it, after the call; true says
///   that it was sent.
class PlateformeFenetresX11 final : public PlateformeFenetres
{
public:
    PlateformeFenetresX11();

    /// False when no server answers; nothing else may be called then.
    bool EstValide() const { return maConnexion.EstValide(); }

    // Walking the desktop
    HWND GetForegroundWindow() override;
    HWND GetDesktopWindow() override;
    HWND GetTopWindow(HWND parent) override;
    HWND GetWindow(HWND fenetre, UINT relation) override;
    HWND GetParent(HWND fenetre) override;
    HWND FindWindowW(QString const & classe, QString const & titre) override;

    // Asking a window
    bool IsWindow(HWND fenetre) override;
    bool IsWindowVisible(HWND fenetre) override;
    bool IsIconic(HWND fenetre) override;
    bool IsHungAppWindow(HWND fenetre) override;
    LONG_PTR GetWindowLongPtrW(HWND fenetre, int indice) override;
    DWORD GetWindowThreadProcessId(HWND fenetre, DWORD * processus) override;
    QString GetWindowTextW(HWND fenetre) override;
    bool GetClientRect(HWND fenetre, RECT * rect) override;
    bool ClientToScreen(HWND fenetre, POINT * point) override;

    // Changing a window
    bool SetForegroundWindow(HWND fenetre) override;
    bool BringWindowToTop(HWND fenetre) override;
    bool ShowWindow(HWND fenetre, int commande) override;
    bool SetWindowPos(HWND fenetre, HWND apres, int x, int y, int largeur, int hauteur,
                      UINT options) override;
    LONG_PTR SetWindowLongPtrW(HWND fenetre, int indice, LONG_PTR valeur) override;

    // Input and messages
    HWND GetFocus() override;
    DWORD GetCurrentThreadId() override;
    bool AttachThreadInput(DWORD thread, DWORD versThread, bool attache) override;
    bool PostMessageW(HWND fenetre, UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT SendMessageTimeoutW(HWND fenetre, UINT message, WPARAM wParam, LPARAM lParam,
                                UINT options, UINT delai, DWORD_PTR * resultat) override;

    // Marker windows: a class, a window of that class, and their end
    HINSTANCE GetModuleHandleW() override;
    bool RegisterClassW(QString const & classe, UINT style, HINSTANCE module,
                        ULONG_PTR fond) override;
    bool UnregisterClassW(QString const & classe, HINSTANCE module) override;
    HWND CreateWindowExW(DWORD styleEtendu, QString const & classe, QString const & titre,
                         DWORD style, int x, int y, int largeur, int hauteur,
                         HINSTANCE module) override;
    bool DestroyWindow(HWND fenetre) override;

    // The system's colours and monitors
    DWORD GetSysColor(int indice) override;
    HMONITOR MonitorFromWindow(HWND fenetre, DWORD options) override;
    bool GetMonitorInfoW(HMONITOR moniteur, InfosMoniteur * infos) override;

    // Queries of the core library
    QString DonneNomClasse(HWND fenetre) override;
    QString DonneExecutable(HWND fenetre) override;
    HWND DonneEnfantDeClasse(HWND parent, QString const & classe) override;

private:
    struct FenetreCreee
    {
        QString classe;
        DWORD style = 0;
        DWORD styleEtendu = 0;
    };

    bool Existe(xcb_window_t fenetre) const;
    /// The window by which the window manager says that it runs; none when none does.
    xcb_window_t DonneFenetreGestionnaire() const;
    bool GestionnairePresent() const;
    /// True for a window inside one of the manager's own.
    bool EstEncadree(xcb_window_t fenetre) const;
    /// True when requests about the window go to a manager; else the server does them.
    bool EstGeree(xcb_window_t fenetre) const;
    bool EstPremierNiveau(xcb_window_t fenetre) const;
    xcb_window_t DonnePremierNiveau(xcb_window_t fenetre) const;
    xcb_window_t DonneProprietaire(xcb_window_t fenetre) const;
    /// The top-level windows, the topmost first.
    std::vector<xcb_window_t> DonnePile() const;
    QString DonneClasse(xcb_window_t fenetre) const;
    QString DonneTitre(xcb_window_t fenetre) const;
    bool EstRecherchee(xcb_window_t fenetre, QString const & classe, QString const & titre) const;
    xcb_window_t DonneFocus() const;
    DWORD DonneProcessus(xcb_window_t fenetre) const;
    xcb_window_t TrouveEnfant(xcb_window_t parent, QString const & classe) const;

    /// True for what programs keep from the manager: menus, tool tips, marker windows.
    bool EstHorsGestion(xcb_window_t fenetre) const;
    bool EstAffichee(xcb_window_t fenetre) const;
    bool EstIconique(xcb_window_t fenetre) const;
    bool EstHorsBarre(xcb_window_t fenetre) const;
    DWORD DonneStyle(xcb_window_t fenetre) const;
    DWORD DonneStyleEtendu(xcb_window_t fenetre) const;
    bool Repond(xcb_window_t fenetre, int delai) const;
    /// In the root's pixels; empty for a window that has gone.
    QRect DonneRectangle(xcb_window_t fenetre) const;

    bool GestionnaireSait(xcb_atom_t message) const;
    bool Empile(xcb_window_t fenetre, xcb_window_t voisine, std::uint32_t mode) const;
    bool ChangeEtat(xcb_window_t fenetre, bool ajoute, xcb_atom_t etat, xcb_atom_t autre) const;
    bool MetsPremierPlan(xcb_window_t fenetre, bool premierPlan) const;
    bool Restaure(xcb_window_t fenetre) const;
    bool Cache(xcb_window_t fenetre) const;
    bool Deplace(xcb_window_t fenetre, QRect const & rect, UINT options) const;
    bool Ferme(xcb_window_t fenetre) const;

    ConnexionX11 maConnexion;
    ClavierX11 monClavier{maConnexion};
    xcb_atom_t monAtomeEtat = XCB_ATOM_NONE; // WM_STATE
    xcb_atom_t monAtomeChef = XCB_ATOM_NONE; // WM_CLIENT_LEADER
    xcb_atom_t monAtomeChangeEtat = XCB_ATOM_NONE;
    xcb_atom_t monAtomeFermeture = XCB_ATOM_NONE;
    xcb_atom_t monAtomeOpacite = XCB_ATOM_NONE;
    std::vector<QString> mesClasses; // those registered, case folded
    std::map<xcb_window_t, FenetreCreee> mesFenetres;
    std::vector<DWORD> mesProgrammesAttaches; // to this one
};
