// noyau/plateforme/ConnexionX11_p.h
#pragma once

#include "noyau/plateforme/TypesWin32.h"

#include <QByteArray>
#include <QString>

#include <xcb/xcb.h>
#include <xcb/xcb_ewmh.h>

#include <array>
#include <cstdlib>
#include <memory>
#include <vector>

struct LibereReponseX11
{
    void operator()(void * reponse) const { std::free(reponse); }
};
template <typename T>
using ReponseX11 = std::unique_ptr<T, LibereReponseX11>;

// A handle is the X identifier itself, so `winId()` and these functions agree.
inline xcb_window_t DonneXid(HWND fenetre)
{
    return static_cast<xcb_window_t>(reinterpret_cast<std::uintptr_t>(fenetre));
}

inline HWND DonneHwnd(xcb_window_t fenetre)
{
    // NOLINTNEXTLINE(performance-no-int-to-ptr): a handle is a number that nobody dereferences
    return reinterpret_cast<HWND>(static_cast<std::uintptr_t>(fenetre));
}

/// A connection of our own to the server that the environment names, and the requests on it.
///
/// It is not Qt's connection, whose events and errors belong to Qt's event loop. No request raises
/// an error: what concerns a window that has gone answers empty, zero or false.
class ConnexionX11
{
public:
    ConnexionX11();
    ConnexionX11(ConnexionX11 const &) = delete;
    ConnexionX11 & operator=(ConnexionX11 const &) = delete;
    ~ConnexionX11();

    bool EstValide() const { return monEcran != nullptr; }
    xcb_connection_t * Prete() const { return maConnexion; }
    xcb_ewmh_connection_t const & PreteAtomes() const { return mesAtomes; }
    xcb_window_t DonneRacine() const { return monEcran->root; }
    xcb_screen_t const & PreteEcran() const { return *monEcran; }

    xcb_atom_t DonneAtome(char const * nom) const;

    /// Waits until the server has done what Qt has asked of it on its own connection.
    void RattrapeQt() const;

    /// Waits for the answer to a request; null when the server refused it.
    template <typename Reponse, typename Temoin>
    ReponseX11<Reponse> Attends(Reponse * (*lis)(xcb_connection_t *, Temoin,
                                                 xcb_generic_error_t **),
                                Temoin temoin) const
    {
        xcb_generic_error_t * erreur = nullptr;
        ReponseX11<Reponse> reponse(lis(maConnexion, temoin, &erreur));
        std::free(erreur);
        return reponse;
    }

    /// Waits for the fate of a request without answer; true when the server did it.
    bool Reussit(xcb_void_cookie_t temoin) const;

    // Properties
    /// The 32-bit words of a property; empty when it is absent.
    std::vector<std::uint32_t> LisMots(xcb_window_t fenetre, xcb_atom_t propriete) const;
    /// The first word of a property, 0 when it is absent.
    std::uint32_t LisMot(xcb_window_t fenetre, xcb_atom_t propriete) const;
    bool PossedeMot(xcb_window_t fenetre, xcb_atom_t propriete, std::uint32_t mot) const;
    QByteArray LisOctets(xcb_window_t fenetre, xcb_atom_t propriete) const;
    bool EcrisOctets(xcb_window_t fenetre, xcb_atom_t propriete, xcb_atom_t type,
                     QByteArray const & octets) const;

    // Tree of windows
    /// 0 for the root and for a window that has gone.
    xcb_window_t DonneParent(xcb_window_t fenetre) const;
    /// The children, the topmost first.
    std::vector<xcb_window_t> DonneEnfants(xcb_window_t fenetre) const;

    // Client messages
    using Mots = std::array<std::uint32_t, 5>;
    /// Sends to the program that made the window, whatever events that program asked for.
    bool EnvoieAFenetre(xcb_window_t fenetre, xcb_atom_t type, Mots const & mots) const;
    /// Asks the window manager for something about the window.
    bool EnvoieAuGestionnaire(xcb_window_t fenetre, xcb_atom_t type, Mots const & mots) const;

private:
    xcb_connection_t * maConnexion = nullptr;
    xcb_screen_t * monEcran = nullptr;
    xcb_ewmh_connection_t mesAtomes{};
};
