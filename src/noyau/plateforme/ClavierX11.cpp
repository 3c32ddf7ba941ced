// noyau/plateforme/ClavierX11.cpp
#include "noyau/plateforme/ClavierX11_p.h"

#include "noyau/plateforme/ConnexionX11_p.h"

#include <algorithm>
#include <utility>

namespace {
// Keys whose symbol is not their character, from the X11 protocol's table of keyboard symbols.
constexpr std::pair<char32_t, xcb_keysym_t> kSymbolesDeControle[] = {
    {0x08, 0xff08}, // BackSpace
    {0x09, 0xff09}, // Tab
    {0x0a, 0xff0d}, // Return
    {0x0d, 0xff0d}, // Return
    {0x1b, 0xff1b}, // Escape
    {0x7f, 0xffff}, // Delete
};

xcb_keysym_t DonneSymbole(char32_t caractere)
{
    for (auto const & [controle, symbole] : kSymbolesDeControle)
        if (controle == caractere)
            return symbole;
    if (caractere < 0x20 || (caractere > 0x7f && caractere < 0xa0) || caractere > 0x10ffff)
        return XCB_NO_SYMBOL;
    // Latin-1 symbols are their own characters; the others carry this mark.
    return caractere < 0x100 ? caractere : caractere | 0x01000000;
}
} // namespace

ClavierX11::ClavierX11(ConnexionX11 const & connexion)
    : maConnexion(connexion)
{
}

ClavierX11::~ClavierX11()
{
    for (xcb_keycode_t const code : mesEmprunts)
        PoseSymbole(code, XCB_NO_SYMBOL);
}

bool ClavierX11::Envoie(xcb_window_t fenetre, char32_t caractere, bool enfonce)
{
    xcb_keysym_t const symbole = DonneSymbole(caractere);
    if (symbole == XCB_NO_SYMBOL)
        return false;
    auto const touche = TrouveTouche(symbole);
    if (!touche)
        return false;

    xcb_key_press_event_t evenement{};
    evenement.response_type = enfonce ? XCB_KEY_PRESS : XCB_KEY_RELEASE;
    evenement.detail = touche->code;
    evenement.time = XCB_CURRENT_TIME;
    evenement.root = maConnexion.DonneRacine();
    evenement.event = fenetre;
    evenement.state = touche->modificateurs;
    evenement.same_screen = 1;
    // An empty mask reaches the program that made the window even where it takes its own keys
    // through an extension.
    return maConnexion.Reussit(xcb_send_event_checked(maConnexion.Prete(), 0, fenetre,
                                                      XCB_EVENT_MASK_NO_EVENT,
                                                      reinterpret_cast<char const *>(&evenement)));
}

std::optional<ClavierX11::Touche> ClavierX11::TrouveTouche(xcb_keysym_t symbole)
{
    auto const * const infos = xcb_get_setup(maConnexion.Prete());
    int const premier = infos->min_keycode;
    int const nombre = infos->max_keycode - premier + 1;
    auto const table =
        maConnexion.Attends(xcb_get_keyboard_mapping_reply,
                            xcb_get_keyboard_mapping(maConnexion.Prete(), infos->min_keycode,
                                                     static_cast<std::uint8_t>(nombre)));
    if (!table || table->keysyms_per_keycode == 0)
        return std::nullopt;

    auto const * const symboles = xcb_get_keyboard_mapping_keysyms(table.get());
    int const colonnes = table->keysyms_per_keycode;
    xcb_keycode_t libre = 0;
    for (int rang = 0; rang < nombre; ++rang) {
        auto const * const ligne = symboles + rang * colonnes;
        auto const code = static_cast<xcb_keycode_t>(premier + rang);
        // Column 0 is the bare key, 1 the key with Shift. The other columns depend on how the
        // layout lays out its groups; a key of our own does not.
        if (ligne[0] == symbole)
            return Touche{code, 0};
        if (colonnes > 1 && ligne[1] == symbole)
            return Touche{code, XCB_MOD_MASK_SHIFT};
        if (std::all_of(ligne, ligne + colonnes, [](auto s) { return s == XCB_NO_SYMBOL; }))
            libre = code; // the last of them: the first ones are those that new hardware takes
    }
    return EmprunteTouche(symbole, libre);
}

std::optional<ClavierX11::Touche> ClavierX11::EmprunteTouche(xcb_keysym_t symbole,
                                                             xcb_keycode_t libre)
{
    if (libre == 0) {
        if (mesEmprunts.empty())
            return std::nullopt;
        libre = mesEmprunts.front();
    }
    if (!PoseSymbole(libre, symbole))
        return std::nullopt;
    std::erase(mesEmprunts, libre);
    mesEmprunts.push_back(libre);
    return Touche{libre, 0};
}

bool ClavierX11::PoseSymbole(xcb_keycode_t code, xcb_keysym_t symbole) const
{
    // Both columns, so that the state of Shift does not matter.
    xcb_keysym_t const symboles[] = {symbole, symbole};
    return maConnexion.Reussit(
        xcb_change_keyboard_mapping_checked(maConnexion.Prete(), 1, code, 2, symboles));
}
