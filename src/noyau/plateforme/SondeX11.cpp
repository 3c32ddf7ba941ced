// noyau/plateforme/SondeX11.cpp
#include "noyau/plateforme/SondeX11_p.h"

#include "noyau/plateforme/ConnexionX11_p.h"

#include <QDeadlineTimer>

#include <poll.h>

namespace {
// Answers to a ping come to the root window, for those who listen there. We listen only meanwhile:
// nobody reads this connection's events at other times, and they would pile up.
class EcouteRacine
{
public:
    explicit EcouteRacine(ConnexionX11 const & connexion)
        : maConnexion(connexion)
    {
        // Programs send the answer to the first of these, and those on Qt to the second.
        Choisis(XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    }
    EcouteRacine(EcouteRacine const &) = delete;
    EcouteRacine & operator=(EcouteRacine const &) = delete;
    ~EcouteRacine()
    {
        Choisis(XCB_EVENT_MASK_NO_EVENT);
        while (ReponseX11<xcb_generic_event_t>(xcb_poll_for_event(maConnexion.Prete()))) {
        }
    }

private:
    void Choisis(std::uint32_t masque)
    {
        maConnexion.Reussit(xcb_change_window_attributes_checked(
            maConnexion.Prete(), maConnexion.DonneRacine(), XCB_CW_EVENT_MASK, &masque));
    }

    ConnexionX11 const & maConnexion;
};

bool EstReponse(ConnexionX11 const & connexion, xcb_generic_event_t const & evenement,
                xcb_window_t fenetre, std::uint32_t numero)
{
    auto const & atomes = connexion.PreteAtomes();
    // The top bit says that a program sent it, as is always so here.
    if ((evenement.response_type & 0x7f) != XCB_CLIENT_MESSAGE)
        return false;
    auto const & message = reinterpret_cast<xcb_client_message_event_t const &>(evenement);
    return message.type == atomes.WM_PROTOCOLS && message.data.data32[0] == atomes._NET_WM_PING &&
           message.data.data32[1] == numero && message.data.data32[2] == fenetre;
}

bool AttendReponse(ConnexionX11 const & connexion, xcb_window_t fenetre, std::uint32_t numero,
                   QDeadlineTimer const & echeance)
{
    pollfd attente{xcb_get_file_descriptor(connexion.Prete()), POLLIN, 0};
    while (!xcb_connection_has_error(connexion.Prete())) {
        while (
            ReponseX11<xcb_generic_event_t> const evenement{xcb_poll_for_event(connexion.Prete())})
            if (EstReponse(connexion, *evenement, fenetre, numero))
                return true;
        if (echeance.hasExpired())
            return false;
        poll(&attente, 1, static_cast<int>(echeance.remainingTime()));
    }
    return false;
}
} // namespace

bool RepondASonde(ConnexionX11 const & connexion, xcb_window_t fenetre, int delai)
{
    auto const & atomes = connexion.PreteAtomes();
    if (!connexion.PossedeMot(fenetre, atomes.WM_PROTOCOLS, atomes._NET_WM_PING))
        return true;

    // The second word comes back as it went; it tells our ping from the window manager's, which
    // takes the server's time there.
    static std::uint32_t numero = 0;
    ++numero;
    EcouteRacine const ecoute(connexion);
    if (!connexion.EnvoieAFenetre(fenetre, atomes.WM_PROTOCOLS,
                                  {atomes._NET_WM_PING, numero, fenetre, 0, 0}))
        return true;
    return AttendReponse(connexion, fenetre, numero, QDeadlineTimer(delai));
}
