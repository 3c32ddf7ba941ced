// outils/EntreeX11.cpp
#include "outils/EntreeX11.h"

#include <xcb/xcb.h>
#include <xcb/xcbext.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

// Written out here, as Debian's package of the extension's own library would be needed for this
// one request only. Layout: the protocol of the XTEST extension, version 2.2.
constexpr std::uint8_t kFakeInput = 2;

struct RequeteFakeInput
{
    std::uint8_t majeur, mineur;
    std::uint16_t longueur;
    std::uint8_t type, detail;
    std::uint16_t vide1;
    std::uint32_t delai, racine;
    std::uint8_t vide2[8];
    std::int16_t x, y;
    std::uint8_t vide3[7];
    std::uint8_t appareil;
};
static_assert(sizeof(RequeteFakeInput) == 36);

xcb_extension_t * PreteExtension()
{
    static xcb_extension_t extension = {"XTEST", 0};
    return &extension;
}

} // namespace

EntreeX11::EntreeX11()
    : maConnexion(xcb_connect(nullptr, nullptr))
{
    if (xcb_connection_has_error(maConnexion))
        return;
    maRacine = xcb_setup_roots_iterator(xcb_get_setup(maConnexion)).data->root;
    auto const * const extension = xcb_get_extension_data(maConnexion, PreteExtension());
    monPret = extension && extension->present;
}

EntreeX11::~EntreeX11()
{
    xcb_disconnect(maConnexion);
}

void EntreeX11::Deplace(QPoint const & point)
{
    Envoie(XCB_MOTION_NOTIFY, 0, point);
}

void EntreeX11::Clique(QPoint const & point)
{
    Deplace(point);
    Presse();
    Relache();
}

void EntreeX11::Presse()
{
    Envoie(XCB_BUTTON_PRESS, XCB_BUTTON_INDEX_1);
}

void EntreeX11::Relache()
{
    Envoie(XCB_BUTTON_RELEASE, XCB_BUTTON_INDEX_1);
}

void EntreeX11::Frappe(unsigned touche)
{
    unsigned char const code = TrouveCode(touche);
    Envoie(XCB_KEY_PRESS, code);
    Envoie(XCB_KEY_RELEASE, code);
}

void EntreeX11::Envoie(unsigned char type, unsigned char detail, QPoint const & point)
{
    RequeteFakeInput requete = {};
    requete.type = type;
    requete.detail = detail;
    requete.racine = maRacine;
    requete.x = static_cast<std::int16_t>(point.x());
    requete.y = static_cast<std::int16_t>(point.y());
    xcb_protocol_request_t const description = {1, PreteExtension(), kFakeInput, 1};
    iovec morceaux[3] = {}; // the library uses the two in front of the first
    morceaux[2] = {&requete, sizeof requete};
    xcb_send_request(maConnexion, 0, morceaux + 2, &description);
    xcb_flush(maConnexion);
}

unsigned char EntreeX11::TrouveCode(unsigned touche) const
{
    xcb_setup_t const * const serveur = xcb_get_setup(maConnexion);
    auto const nombre = static_cast<std::uint8_t>(serveur->max_keycode - serveur->min_keycode + 1);
    auto const demande = xcb_get_keyboard_mapping(maConnexion, serveur->min_keycode, nombre);
    std::unique_ptr<xcb_get_keyboard_mapping_reply_t, decltype(&std::free)> const reponse(
        xcb_get_keyboard_mapping_reply(maConnexion, demande, nullptr), &std::free);
    if (!reponse)
        return 0;
    xcb_keysym_t const * const symboles = xcb_get_keyboard_mapping_keysyms(reponse.get());
    for (int i = 0; i < nombre; ++i) {
        if (symboles[i * reponse->keysyms_per_keycode] == touche)
            return static_cast<unsigned char>(serveur->min_keycode + i);
    }
    return 0;
}
