// noyau/plateforme/PlateformeFenetresX11Etat.cpp
#include "noyau/plateforme/PlateformeFenetresX11_p.h"

#include "noyau/plateforme/SondeX11_p.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <limits>

#include <cerrno>
#include <csignal>

#include <unistd.h>

namespace {
// How long a program may take to answer before it counts as hung. The call blocks meanwhile, so it
// is far below the 5 s of the other platform, which knows without asking.
constexpr int kDelaiGel = 500; // ms

// WM_STATE
constexpr std::uint32_t kEtatIconique = 3;

constexpr std::uint32_t kOpaque = 0xffffffff;

// Screens lie at native coordinates, and only lengths inside them are scaled.
QRect DonneRectNatif(QScreen const & ecran, QRect const & rect)
{
    QPoint const origine = ecran.geometry().topLeft();
    qreal const echelle = ecran.devicePixelRatio();
    return {origine + (QPointF(rect.topLeft() - origine) * echelle).toPoint(),
            (QSizeF(rect.size()) * echelle).toSize()};
}

QScreen * DonneEcran(HMONITOR moniteur)
{
    auto const rang = reinterpret_cast<std::uintptr_t>(moniteur);
    return QGuiApplication::screens().value(static_cast<qsizetype>(rang) - 1);
}

// The handle of a monitor is the rank of its screen, counted from 1: null is no monitor.
HMONITOR DonneMoniteur(qsizetype rang)
{
    // NOLINTNEXTLINE(performance-no-int-to-ptr): a handle is a number that nobody dereferences
    return reinterpret_cast<HMONITOR>(static_cast<std::uintptr_t>(rang + 1));
}

int DonneDistance(QRect const & a, QRect const & b)
{
    int const dx = std::max({a.left() - b.right(), b.left() - a.right(), 0});
    int const dy = std::max({a.top() - b.bottom(), b.top() - a.bottom(), 0});
    return dx + dy;
}
} // namespace

bool PlateformeFenetresX11::IsWindow(HWND fenetre)
{
    maConnexion.RattrapeQt();
    return fenetre && Existe(DonneXid(fenetre));
}

bool PlateformeFenetresX11::IsWindowVisible(HWND fenetre)
{
    maConnexion.RattrapeQt();
    return EstAffichee(DonneXid(fenetre));
}

bool PlateformeFenetresX11::IsIconic(HWND fenetre)
{
    maConnexion.RattrapeQt();
    return EstIconique(DonneXid(fenetre));
}

bool PlateformeFenetresX11::IsHungAppWindow(HWND fenetre)
{
    maConnexion.RattrapeQt();
    return !Repond(DonneXid(fenetre), kDelaiGel) && Existe(DonneXid(fenetre));
}

LONG_PTR PlateformeFenetresX11::GetWindowLongPtrW(HWND fenetre, int indice)
{
    maConnexion.RattrapeQt();
    xcb_window_t const xid = DonneXid(fenetre);
    if (!Existe(xid) || (indice != GWL_STYLE && indice != GWL_EXSTYLE))
        return 0;
    return static_cast<LONG_PTR>(indice == GWL_STYLE ? DonneStyle(xid) : DonneStyleEtendu(xid));
}

DWORD PlateformeFenetresX11::GetWindowThreadProcessId(HWND fenetre, DWORD * processus)
{
    maConnexion.RattrapeQt();
    DWORD const numero = DonneProcessus(DonneXid(fenetre));
    if (processus)
        *processus = numero;
    return numero;
}

QString PlateformeFenetresX11::GetWindowTextW(HWND fenetre)
{
    maConnexion.RattrapeQt();
    return DonneTitre(DonneXid(fenetre));
}

bool PlateformeFenetresX11::GetClientRect(HWND fenetre, RECT * rect)
{
    maConnexion.RattrapeQt();
    auto const geometrie = maConnexion.Attends(
        xcb_get_geometry_reply, xcb_get_geometry(maConnexion.Prete(), DonneXid(fenetre)));
    if (!geometrie || !rect)
        return false;
    *rect = {0, 0, geometrie->width, geometrie->height};
    return true;
}

bool PlateformeFenetresX11::ClientToScreen(HWND fenetre, POINT * point)
{
    maConnexion.RattrapeQt();
    if (!point)
        return false;
    auto const origine =
        maConnexion.Attends(xcb_translate_coordinates_reply,
                            xcb_translate_coordinates(maConnexion.Prete(), DonneXid(fenetre),
                                                      maConnexion.DonneRacine(), 0, 0));
    if (!origine)
        return false;
    point->x += origine->dst_x;
    point->y += origine->dst_y;
    return true;
}

HWND PlateformeFenetresX11::GetFocus()
{
    maConnexion.RattrapeQt();
    xcb_window_t const focus = DonneFocus();
    if (focus == XCB_NONE || mesProgrammesAttaches.empty())
        return DonneHwnd(focus);
    // There is one focus for all programs, which a third one may have.
    DWORD const processus = DonneProcessus(focus);
    bool const estDesNotres = processus == GetCurrentThreadId() ||
                              std::find(mesProgrammesAttaches.begin(), mesProgrammesAttaches.end(),
                                        processus) != mesProgrammesAttaches.end();
    return estDesNotres ? DonneHwnd(focus) : nullptr;
}

DWORD PlateformeFenetresX11::GetCurrentThreadId()
{
    return static_cast<DWORD>(getpid());
}

bool PlateformeFenetresX11::AttachThreadInput(DWORD thread, DWORD versThread, bool attache)
{
    DWORD const nous = GetCurrentThreadId();
    if (thread == nous || versThread == nous)
        std::erase(mesProgrammesAttaches, thread == nous ? versThread : thread);
    // The input of all programs is one here, so there is nothing to attach. The answer tells what
    // callers learn by it: two programs, both alive.
    auto const vit = [](DWORD numero) {
        return numero != 0 && (kill(static_cast<pid_t>(numero), 0) == 0 || errno == EPERM);
    };
    bool const reussite = thread != versThread && vit(thread) && vit(versThread);
    if (reussite && attache && (thread == nous || versThread == nous))
        mesProgrammesAttaches.push_back(thread == nous ? versThread : thread);
    return reussite;
}

DWORD PlateformeFenetresX11::GetSysColor(int indice)
{
    return CouleurDePalette(indice);
}

HMONITOR PlateformeFenetresX11::MonitorFromWindow(HWND fenetre, DWORD options)
{
    maConnexion.RattrapeQt();
    QRect const rect = DonneRectangle(DonneXid(fenetre));
    auto const ecrans = QGuiApplication::screens();
    int meilleureAire = 0;
    int meilleureDistance = std::numeric_limits<int>::max();
    HMONITOR leplusCouvert = nullptr;
    HMONITOR lePlusProche = nullptr;
    for (qsizetype rang = 0; rang < ecrans.size(); ++rang) {
        QRect const ecran = DonneRectNatif(*ecrans[rang], ecrans[rang]->geometry());
        QSize const commun = ecran.intersected(rect).size();
        if (int const aire = commun.width() * commun.height(); aire > meilleureAire) {
            meilleureAire = aire;
            leplusCouvert = DonneMoniteur(rang);
        }
        if (int const distance = DonneDistance(ecran, rect); distance < meilleureDistance) {
            meilleureDistance = distance;
            lePlusProche = DonneMoniteur(rang);
        }
    }
    if (leplusCouvert || options == MONITOR_DEFAULTTONULL)
        return leplusCouvert;
    // The first screen of the list is the primary one.
    if (options == MONITOR_DEFAULTTOPRIMARY || rect.isEmpty())
        return ecrans.isEmpty() ? nullptr : DonneMoniteur(0);
    return lePlusProche;
}

bool PlateformeFenetresX11::GetMonitorInfoW(HMONITOR moniteur, InfosMoniteur * infos)
{
    QScreen const * const ecran = DonneEcran(moniteur);
    if (!ecran || !infos)
        return false;
    infos->nom = ecran->name();
    infos->geometrie = DonneRectNatif(*ecran, ecran->geometry());
    infos->zoneTravail = DonneRectNatif(*ecran, ecran->availableGeometry());
    return true;
}

bool PlateformeFenetresX11::EstHorsGestion(xcb_window_t fenetre) const
{
    auto const attributs = maConnexion.Attends(
        xcb_get_window_attributes_reply, xcb_get_window_attributes(maConnexion.Prete(), fenetre));
    return attributs && attributs->override_redirect;
}

bool PlateformeFenetresX11::EstAffichee(xcb_window_t fenetre) const
{
    auto const attributs = maConnexion.Attends(
        xcb_get_window_attributes_reply, xcb_get_window_attributes(maConnexion.Prete(), fenetre));
    if (!attributs)
        return false;
    // An iconic window is unmapped here, but counts as visible on the other platform.
    return attributs->map_state == XCB_MAP_STATE_VIEWABLE || EstIconique(fenetre);
}

bool PlateformeFenetresX11::EstIconique(xcb_window_t fenetre) const
{
    auto const & atomes = maConnexion.PreteAtomes();
    return maConnexion.LisMot(fenetre, monAtomeEtat) == kEtatIconique ||
           maConnexion.PossedeMot(fenetre, atomes._NET_WM_STATE, atomes._NET_WM_STATE_HIDDEN);
}

bool PlateformeFenetresX11::EstHorsBarre(xcb_window_t fenetre) const
{
    auto const & atomes = maConnexion.PreteAtomes();
    if (maConnexion.PossedeMot(fenetre, atomes._NET_WM_STATE, atomes._NET_WM_STATE_SKIP_TASKBAR))
        return true;
    // The first type that is known counts: programs name their own first, then a standard one.
    for (xcb_atom_t const type : maConnexion.LisMots(fenetre, atomes._NET_WM_WINDOW_TYPE)) {
        if (type == atomes._NET_WM_WINDOW_TYPE_NORMAL || type == atomes._NET_WM_WINDOW_TYPE_DIALOG)
            return false;
        for (xcb_atom_t const accessoire :
             {atomes._NET_WM_WINDOW_TYPE_COMBO, atomes._NET_WM_WINDOW_TYPE_DESKTOP,
              atomes._NET_WM_WINDOW_TYPE_DND, atomes._NET_WM_WINDOW_TYPE_DOCK,
              atomes._NET_WM_WINDOW_TYPE_DROPDOWN_MENU, atomes._NET_WM_WINDOW_TYPE_MENU,
              atomes._NET_WM_WINDOW_TYPE_NOTIFICATION, atomes._NET_WM_WINDOW_TYPE_POPUP_MENU,
              atomes._NET_WM_WINDOW_TYPE_SPLASH, atomes._NET_WM_WINDOW_TYPE_TOOLBAR,
              atomes._NET_WM_WINDOW_TYPE_TOOLTIP, atomes._NET_WM_WINDOW_TYPE_UTILITY})
            if (type == accessoire)
                return true;
    }
    return false;
}

DWORD PlateformeFenetresX11::DonneStyle(xcb_window_t fenetre) const
{
    auto const creee = mesFenetres.find(fenetre);
    DWORD style = creee == mesFenetres.end() ? 0 : creee->second.style;
    if (EstAffichee(fenetre))
        style |= WS_VISIBLE;
    if (EstIconique(fenetre))
        style |= WS_MINIMIZE;
    if (creee != mesFenetres.end())
        return style;
    if (!EstPremierNiveau(fenetre))
        return style | WS_CHILD;
    // A dialog with an owner counts as a popup without a menu of its own, so that a search for the
    // main window goes on to the owner. One without owner stands for itself, like a main window.
    if (EstHorsGestion(fenetre) || DonneProprietaire(fenetre) != XCB_NONE)
        return style | WS_POPUP;
    return style | (EstHorsBarre(fenetre) ? WS_POPUP : WS_CAPTION | WS_SYSMENU | WS_THICKFRAME);
}

DWORD PlateformeFenetresX11::DonneStyleEtendu(xcb_window_t fenetre) const
{
    auto const & atomes = maConnexion.PreteAtomes();
    auto const creee = mesFenetres.find(fenetre);
    if (creee != mesFenetres.end())
        return creee->second.styleEtendu;
    DWORD style = 0;
    auto const opacite = maConnexion.LisMots(fenetre, monAtomeOpacite);
    if (!opacite.empty() && opacite.front() != kOpaque)
        style |= WS_EX_LAYERED;
    if (!EstPremierNiveau(fenetre))
        return style;
    if (EstHorsGestion(fenetre)) // such windows stand above all others
        return style | WS_EX_TOOLWINDOW | WS_EX_TOPMOST;
    if (maConnexion.PossedeMot(fenetre, atomes._NET_WM_STATE, atomes._NET_WM_STATE_ABOVE))
        style |= WS_EX_TOPMOST;
    if (EstHorsBarre(fenetre))
        style |= WS_EX_TOOLWINDOW;
    else if (DonneProprietaire(fenetre) == XCB_NONE)
        style |= WS_EX_APPWINDOW;
    return style;
}

bool PlateformeFenetresX11::Repond(xcb_window_t fenetre, int delai) const
{
    // Our own windows answer from the thread that is waiting here.
    if (DonneProcessus(fenetre) == static_cast<DWORD>(getpid()))
        return true;
    return RepondASonde(maConnexion, DonnePremierNiveau(fenetre), delai);
}

QRect PlateformeFenetresX11::DonneRectangle(xcb_window_t fenetre) const
{
    auto * const connexion = maConnexion.Prete();
    auto const geometrie =
        maConnexion.Attends(xcb_get_geometry_reply, xcb_get_geometry(connexion, fenetre));
    auto const origine = maConnexion.Attends(
        xcb_translate_coordinates_reply,
        xcb_translate_coordinates(connexion, fenetre, maConnexion.DonneRacine(), 0, 0));
    if (!geometrie || !origine)
        return {};
    return {origine->dst_x, origine->dst_y, geometrie->width, geometrie->height};
}
