// noyau/plateforme/ConnexionX11.cpp
#include "noyau/plateforme/ConnexionX11_p.h"

#include <QGuiApplication>

#include <algorithm>
#include <cstring>

namespace {
// Longest property that is read, in 32-bit words; lists of windows and names stay far below.
constexpr std::uint32_t kLongueurMax = 1U << 16;

xcb_screen_t * DonneEcran(xcb_connection_t * connexion, int numero)
{
    auto ecrans = xcb_setup_roots_iterator(xcb_get_setup(connexion));
    while (numero > 0 && ecrans.rem > 1) {
        xcb_screen_next(&ecrans);
        --numero;
    }
    return ecrans.data;
}

xcb_client_message_event_t FaisMessage(xcb_window_t fenetre, xcb_atom_t type,
                                       ConnexionX11::Mots const & mots)
{
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = fenetre;
    message.type = type;
    std::copy(mots.begin(), mots.end(), std::begin(message.data.data32));
    return message;
}
} // namespace

ConnexionX11::ConnexionX11()
{
    int numero = 0;
    maConnexion = xcb_connect(nullptr, &numero);
    if (xcb_connection_has_error(maConnexion))
        return;
    xcb_generic_error_t * erreur = nullptr;
    auto * const temoins = xcb_ewmh_init_atoms(maConnexion, &mesAtomes);
    bool const pret = xcb_ewmh_init_atoms_replies(&mesAtomes, temoins, &erreur);
    std::free(erreur);
    if (pret)
        monEcran = DonneEcran(maConnexion, numero);
}

ConnexionX11::~ConnexionX11()
{
    if (monEcran)
        xcb_ewmh_connection_wipe(&mesAtomes);
    xcb_disconnect(maConnexion);
}

xcb_atom_t ConnexionX11::DonneAtome(char const * nom) const
{
    auto const temoin =
        xcb_intern_atom(maConnexion, 0, static_cast<std::uint16_t>(std::strlen(nom)), nom);
    auto const reponse = Attends(xcb_intern_atom_reply, temoin);
    return reponse ? reponse->atom : xcb_atom_t{XCB_ATOM_NONE};
}

void ConnexionX11::RattrapeQt() const
{
    // The server serves each connection in turn: without an answer on Qt's, a window that Qt has
    // just made or shown might not exist yet on ours.
    if (!qGuiApp)
        return;
    auto * const application = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!application)
        return;
    auto * const connexion = application->connection();
    std::free(xcb_get_input_focus_reply(connexion, xcb_get_input_focus(connexion), nullptr));
}

bool ConnexionX11::Reussit(xcb_void_cookie_t temoin) const
{
    ReponseX11<xcb_generic_error_t> const erreur(xcb_request_check(maConnexion, temoin));
    return !erreur && !xcb_connection_has_error(maConnexion);
}

std::vector<std::uint32_t> ConnexionX11::LisMots(xcb_window_t fenetre, xcb_atom_t propriete) const
{
    auto const reponse =
        Attends(xcb_get_property_reply, xcb_get_property(maConnexion, 0, fenetre, propriete,
                                                         XCB_ATOM_ANY, 0, kLongueurMax));
    if (!reponse || reponse->format != 32)
        return {};
    auto const * const debut =
        static_cast<std::uint32_t const *>(xcb_get_property_value(reponse.get()));
    return {debut, debut + reponse->value_len};
}

std::uint32_t ConnexionX11::LisMot(xcb_window_t fenetre, xcb_atom_t propriete) const
{
    auto const mots = LisMots(fenetre, propriete);
    return mots.empty() ? 0 : mots.front();
}

bool ConnexionX11::PossedeMot(xcb_window_t fenetre, xcb_atom_t propriete, std::uint32_t mot) const
{
    auto const mots = LisMots(fenetre, propriete);
    return std::find(mots.begin(), mots.end(), mot) != mots.end();
}

QByteArray ConnexionX11::LisOctets(xcb_window_t fenetre, xcb_atom_t propriete) const
{
    auto const reponse =
        Attends(xcb_get_property_reply, xcb_get_property(maConnexion, 0, fenetre, propriete,
                                                         XCB_ATOM_ANY, 0, kLongueurMax));
    if (!reponse || reponse->format != 8)
        return {};
    return {static_cast<char const *>(xcb_get_property_value(reponse.get())),
            xcb_get_property_value_length(reponse.get())};
}

bool ConnexionX11::EcrisOctets(xcb_window_t fenetre, xcb_atom_t propriete, xcb_atom_t type,
                               QByteArray const & octets) const
{
    return Reussit(
        xcb_change_property_checked(maConnexion, XCB_PROP_MODE_REPLACE, fenetre, propriete, type, 8,
                                    static_cast<std::uint32_t>(octets.size()), octets.constData()));
}

xcb_window_t ConnexionX11::DonneParent(xcb_window_t fenetre) const
{
    auto const reponse = Attends(xcb_query_tree_reply, xcb_query_tree(maConnexion, fenetre));
    return reponse ? reponse->parent : XCB_NONE;
}

std::vector<xcb_window_t> ConnexionX11::DonneEnfants(xcb_window_t fenetre) const
{
    auto const reponse = Attends(xcb_query_tree_reply, xcb_query_tree(maConnexion, fenetre));
    if (!reponse)
        return {};
    auto const * const debut = xcb_query_tree_children(reponse.get());
    std::vector<xcb_window_t> enfants(debut, debut + reponse->children_len);
    std::reverse(enfants.begin(), enfants.end()); // the server lists the lowest first
    return enfants;
}

bool ConnexionX11::EnvoieAFenetre(xcb_window_t fenetre, xcb_atom_t type, Mots const & mots) const
{
    auto const message = FaisMessage(fenetre, type, mots);
    return Reussit(xcb_send_event_checked(maConnexion, 0, fenetre, XCB_EVENT_MASK_NO_EVENT,
                                          reinterpret_cast<char const *>(&message)));
}

bool ConnexionX11::EnvoieAuGestionnaire(xcb_window_t fenetre, xcb_atom_t type,
                                        Mots const & mots) const
{
    auto const message = FaisMessage(fenetre, type, mots);
    return Reussit(xcb_send_event_checked(maConnexion, 0, DonneRacine(),
                                          XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY |
                                              XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                                          reinterpret_cast<char const *>(&message)));
}
