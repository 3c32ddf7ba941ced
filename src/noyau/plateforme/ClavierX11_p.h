// noyau/plateforme/ClavierX11_p.h
#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <optional>
#include <vector>

class ConnexionX11;

/// Sends characters to foreign windows as key events.
///
/// A character that no key of the keyboard gives is put on a key that gives nothing. That key keeps
/// it until the end, since the receiver looks it up only when it comes to the event; the destructor
/// clears it.
class ClavierX11
{
public:
    explicit ClavierX11(ConnexionX11 const & connexion);
    ClavierX11(ClavierX11 const &) = delete;
    ClavierX11 & operator=(ClavierX11 const &) = delete;
    ~ClavierX11();

    /// Presses or releases the key of the Unicode character `caractere` for one window alone,
    /// focused or not. The program sees that a program sent it, and a few refuse such events.
    bool Envoie(xcb_window_t fenetre, char32_t caractere, bool enfonce);

private:
    struct Touche
    {
        xcb_keycode_t code = 0;
        std::uint16_t modificateurs = 0;
    };

    std::optional<Touche> TrouveTouche(xcb_keysym_t symbole);
    std::optional<Touche> EmprunteTouche(xcb_keysym_t symbole, xcb_keycode_t libre);
    bool PoseSymbole(xcb_keycode_t code, xcb_keysym_t symbole) const;

    ConnexionX11 const & maConnexion;
    std::vector<xcb_keycode_t> mesEmprunts; // the oldest first
};
