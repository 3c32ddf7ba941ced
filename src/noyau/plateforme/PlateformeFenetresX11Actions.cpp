// noyau/plateforme/PlateformeFenetresX11Actions.cpp
#include "noyau/plateforme/PlateformeFenetresX11_p.h"

#include <QSysInfo>

#include <algorithm>
#include <limits>

#include <unistd.h>

namespace {
// Who asks, in messages to the window manager: a pager or the like. Requests of ordinary programs
// may be refused to keep them from stealing the focus, and the operation is there to take it.
constexpr std::uint32_t kSourceOutil = 2;

// WM_CHANGE_STATE
constexpr std::uint32_t kIconise = 3;

// _NET_WM_STATE
constexpr std::uint32_t kEnleve = 0;
constexpr std::uint32_t kAjoute = 1;

// _NET_MOVERESIZE_WINDOW: which of its numbers count
constexpr std::uint32_t kPosition = 3U << 8;
constexpr std::uint32_t kDimensions = 3U << 10;

std::int16_t DonneCoordonnee(int valeur)
{
    using Limites = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(std::clamp<int>(valeur, Limites::min(), Limites::max()));
}

// A window without surface is an error in X.
std::uint16_t DonneLongueur(int valeur)
{
    return static_cast<std::uint16_t>(
        std::clamp<int>(valeur, 1, std::numeric_limits<std::int16_t>::max()));
}
} // namespace

bool PlateformeFenetresX11::SetForegroundWindow(HWND fenetre)
{
    maConnexion.RattrapeQt();
    xcb_window_t const xid = DonneXid(fenetre);
    auto const & atomes = maConnexion.PreteAtomes();
    // A manager also brings an iconic window back, which the other platform leaves iconic.
    if (EstGeree(xid))
        return maConnexion.EnvoieAuGestionnaire(xid, atomes._NET_ACTIVE_WINDOW,
                                                {kSourceOutil, XCB_CURRENT_TIME, 0, 0, 0});
    return xid != XCB_NONE // which would take the focus from every window
           && maConnexion.Reussit(xcb_set_input_focus_checked(
                  maConnexion.Prete(), XCB_INPUT_FOCUS_PARENT, xid, XCB_CURRENT_TIME));
}

bool PlateformeFenetresX11::BringWindowToTop(HWND fenetre)
{
    maConnexion.RattrapeQt();
    return Empile(DonneXid(fenetre), XCB_NONE, XCB_STACK_MODE_ABOVE);
}

bool PlateformeFenetresX11::ShowWindow(HWND fenetre, int commande)
{
    maConnexion.RattrapeQt();
    xcb_window_t const xid = DonneXid(fenetre);
    bool const etaitAffichee = EstAffichee(xid);
    switch (commande) {
    case SW_HIDE:
        Cache(xid);
        break;
    case SW_MINIMIZE:
        if (EstGeree(xid))
            maConnexion.EnvoieAuGestionnaire(xid, monAtomeChangeEtat, {kIconise, 0, 0, 0, 0});
        break;
    case SW_SHOWNORMAL:
    case SW_RESTORE:
        Restaure(xid);
        break;
    case SW_SHOW:
        if (!EstIconique(xid))
            maConnexion.Reussit(xcb_map_window_checked(maConnexion.Prete(), xid));
        break;
    default:
        break;
    }
    return etaitAffichee;
}

bool PlateformeFenetresX11::SetWindowPos(HWND fenetre, HWND apres, int x, int y, int largeur,
                                         int hauteur, UINT options)
{
    maConnexion.RattrapeQt();
    xcb_window_t const xid = DonneXid(fenetre);
    if (!Existe(xid))
        return false;
    bool reussite = true;
    if (!(options & SWP_NOZORDER)) {
        if (apres == HWND_TOPMOST || apres == HWND_NOTOPMOST)
            reussite = MetsPremierPlan(xid, apres == HWND_TOPMOST);
        else if (apres == HWND_TOP)
            reussite = Empile(xid, XCB_NONE, XCB_STACK_MODE_ABOVE);
        else if (apres == HWND_BOTTOM)
            reussite = Empile(xid, XCB_NONE, XCB_STACK_MODE_BELOW);
        else
            reussite = Empile(xid, DonneXid(apres), XCB_STACK_MODE_BELOW);
    }
    // Activation is for the window manager to decide, and SetForegroundWindow asks it. Only where
    // no window is active there is nobody from whom this could take it.
    if (!(options & (SWP_NOACTIVATE | SWP_NOZORDER)) && apres != HWND_BOTTOM && EstGeree(xid) &&
        !GetForegroundWindow())
        SetForegroundWindow(fenetre);
    return Deplace(xid, QRect(x, y, largeur, hauteur), options) && reussite;
}

LONG_PTR PlateformeFenetresX11::SetWindowLongPtrW(HWND, int, LONG_PTR)
{
    return 0;
}

bool PlateformeFenetresX11::PostMessageW(HWND fenetre, UINT message, WPARAM wParam, LPARAM)
{
    maConnexion.RattrapeQt();
    xcb_window_t const xid = DonneXid(fenetre);
    if (!Existe(xid)) // 0 and 1 would mean the window under the pointer and the focus
        return false;
    // The scan code in the last argument belongs to another keyboard; the character decides.
    auto const caractere = static_cast<char32_t>(wParam);
    switch (message) {
    case WM_NULL:
        return true;
    case WM_CLOSE:
        return Ferme(xid);
    case WM_KEYDOWN:
    case WM_KEYUP:
        return monClavier.Envoie(xid, caractere, message == WM_KEYDOWN);
    case WM_CHAR:
        return monClavier.Envoie(xid, caractere, true) && monClavier.Envoie(xid, caractere, false);
    default:
        return false;
    }
}

LRESULT PlateformeFenetresX11::SendMessageTimeoutW(HWND fenetre, UINT message, WPARAM, LPARAM, UINT,
                                                   UINT delai, DWORD_PTR * resultat)
{
    maConnexion.RattrapeQt();
    xcb_window_t const xid = DonneXid(fenetre);
    // The empty message is the only one that has a counterpart with an answer.
    if (message != WM_NULL || !Existe(xid) || !Repond(xid, static_cast<int>(delai)))
        return 0;
    if (resultat)
        *resultat = 0;
    return 1;
}

HINSTANCE PlateformeFenetresX11::GetModuleHandleW()
{
    return nullptr;
}

bool PlateformeFenetresX11::RegisterClassW(QString const & classe, UINT, HINSTANCE, ULONG_PTR)
{
    QString const nom = classe.toCaseFolded();
    if (nom.isEmpty() || std::find(mesClasses.begin(), mesClasses.end(), nom) != mesClasses.end())
        return false;
    mesClasses.push_back(nom);
    return true;
}

bool PlateformeFenetresX11::UnregisterClassW(QString const & classe, HINSTANCE)
{
    QString const nom = classe.toCaseFolded();
    for (auto const & [fenetre, creee] : mesFenetres)
        if (creee.classe.toCaseFolded() == nom)
            return false;
    return std::erase(mesClasses, nom) > 0;
}

HWND PlateformeFenetresX11::CreateWindowExW(DWORD styleEtendu, QString const & classe,
                                            QString const & titre, DWORD style, int x, int y,
                                            int largeur, int hauteur, HINSTANCE)
{
    if (std::find(mesClasses.begin(), mesClasses.end(), classe.toCaseFolded()) == mesClasses.end())
        return nullptr;
    auto * const connexion = maConnexion.Prete();
    xcb_window_t const fenetre = xcb_generate_id(connexion);
    std::uint32_t const sansGestionnaire = 1;
    if (!maConnexion.Reussit(xcb_create_window_checked(
            connexion, XCB_COPY_FROM_PARENT, fenetre, maConnexion.DonneRacine(), DonneCoordonnee(x),
            DonneCoordonnee(y), DonneLongueur(largeur), DonneLongueur(hauteur), 0,
            XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT,
            &sansGestionnaire)))
        return nullptr;

    auto const & atomes = maConnexion.PreteAtomes();
    QByteArray const nom = classe.toUtf8();
    maConnexion.EcrisOctets(fenetre, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, nom + '\0' + nom + '\0');
    maConnexion.EcrisOctets(fenetre, atomes._NET_WM_NAME, atomes.UTF8_STRING, titre.toUtf8());
    maConnexion.EcrisOctets(fenetre, XCB_ATOM_WM_CLIENT_MACHINE, XCB_ATOM_STRING,
                            QSysInfo::machineHostName().toLocal8Bit());
    auto const processus = static_cast<std::uint32_t>(getpid());
    maConnexion.Reussit(xcb_change_property_checked(connexion, XCB_PROP_MODE_REPLACE, fenetre,
                                                    atomes._NET_WM_PID, XCB_ATOM_CARDINAL, 32, 1,
                                                    &processus));
    mesFenetres[fenetre] = {classe, style & ~WS_VISIBLE, styleEtendu};
    if (style & WS_VISIBLE)
        maConnexion.Reussit(xcb_map_window_checked(connexion, fenetre));
    return DonneHwnd(fenetre);
}

bool PlateformeFenetresX11::DestroyWindow(HWND fenetre)
{
    // Only what CreateWindowExW made: X would let any program destroy any window.
    return mesFenetres.erase(DonneXid(fenetre)) > 0 &&
           maConnexion.Reussit(xcb_destroy_window_checked(maConnexion.Prete(), DonneXid(fenetre)));
}

bool PlateformeFenetresX11::GestionnaireSait(xcb_atom_t message) const
{
    return maConnexion.PossedeMot(maConnexion.DonneRacine(),
                                  maConnexion.PreteAtomes()._NET_SUPPORTED, message);
}

bool PlateformeFenetresX11::Empile(xcb_window_t fenetre, xcb_window_t voisine,
                                   std::uint32_t mode) const
{
    auto const & atomes = maConnexion.PreteAtomes();
    if (GestionnaireSait(atomes._NET_RESTACK_WINDOW) && EstGeree(fenetre))
        return maConnexion.EnvoieAuGestionnaire(fenetre, atomes._NET_RESTACK_WINDOW,
                                                {kSourceOutil, voisine, mode, 0, 0});
    std::uint16_t masque = XCB_CONFIG_WINDOW_STACK_MODE;
    std::vector<std::uint32_t> valeurs;
    if (voisine != XCB_NONE) {
        masque |= XCB_CONFIG_WINDOW_SIBLING;
        valeurs.push_back(voisine);
    }
    valeurs.push_back(mode);
    return maConnexion.Reussit(
        xcb_configure_window_checked(maConnexion.Prete(), fenetre, masque, valeurs.data()));
}

bool PlateformeFenetresX11::ChangeEtat(xcb_window_t fenetre, bool ajoute, xcb_atom_t etat,
                                       xcb_atom_t autre) const
{
    return EstGeree(fenetre) && maConnexion.EnvoieAuGestionnaire(
                                    fenetre, maConnexion.PreteAtomes()._NET_WM_STATE,
                                    {ajoute ? kAjoute : kEnleve, etat, autre, kSourceOutil, 0});
}

bool PlateformeFenetresX11::MetsPremierPlan(xcb_window_t fenetre, bool premierPlan) const
{
    // Both ways end at the top of the group. The state is always sent, never compared: the manager
    // may not have come to the previous request yet.
    return ChangeEtat(fenetre, premierPlan, maConnexion.PreteAtomes()._NET_WM_STATE_ABOVE,
                      XCB_NONE) &&
           Empile(fenetre, XCB_NONE, XCB_STACK_MODE_ABOVE);
}

bool PlateformeFenetresX11::Restaure(xcb_window_t fenetre) const
{
    auto const & atomes = maConnexion.PreteAtomes();
    bool const etaitIconique = EstIconique(fenetre);
    bool const agrandie =
        maConnexion.PossedeMot(fenetre, atomes._NET_WM_STATE, atomes._NET_WM_STATE_MAXIMIZED_VERT);
    if (agrandie && !etaitIconique) // an iconic window comes back as it was
        return ChangeEtat(fenetre, false, atomes._NET_WM_STATE_MAXIMIZED_VERT,
                          atomes._NET_WM_STATE_MAXIMIZED_HORZ);
    bool const montree = maConnexion.Reussit(xcb_map_window_checked(maConnexion.Prete(), fenetre));
    if (!montree || !EstGeree(fenetre))
        return montree;
    return maConnexion.EnvoieAuGestionnaire(fenetre, atomes._NET_ACTIVE_WINDOW,
                                            {kSourceOutil, XCB_CURRENT_TIME, 0, 0, 0});
}

bool PlateformeFenetresX11::Cache(xcb_window_t fenetre) const
{
    bool const geree = EstGeree(fenetre);
    if (!maConnexion.Reussit(xcb_unmap_window_checked(maConnexion.Prete(), fenetre)))
        return false;
    if (!geree)
        return true;
    // A manager learns of the withdrawal of an iconic window, already unmapped, by this alone.
    xcb_unmap_notify_event_t evenement{};
    evenement.response_type = XCB_UNMAP_NOTIFY;
    evenement.event = maConnexion.DonneRacine();
    evenement.window = fenetre;
    return maConnexion.Reussit(xcb_send_event_checked(
        maConnexion.Prete(), 0, maConnexion.DonneRacine(),
        XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
        reinterpret_cast<char const *>(&evenement)));
}

bool PlateformeFenetresX11::Deplace(xcb_window_t fenetre, QRect const & rect, UINT options) const
{
    bool const deplace = !(options & SWP_NOMOVE);
    bool const dimensionne = !(options & SWP_NOSIZE);
    if (!deplace && !dimensionne)
        return true;

    auto const & atomes = maConnexion.PreteAtomes();
    auto const x = static_cast<std::uint32_t>(rect.x());
    auto const y = static_cast<std::uint32_t>(rect.y());
    std::uint32_t const largeur = DonneLongueur(rect.width());
    std::uint32_t const hauteur = DonneLongueur(rect.height());
    // The position is that of the frame, as elsewhere; the size is that of the window inside it.
    if (GestionnaireSait(atomes._NET_MOVERESIZE_WINDOW) && EstGeree(fenetre)) {
        std::uint32_t const champs = (deplace ? kPosition : 0) | (dimensionne ? kDimensions : 0);
        return maConnexion.EnvoieAuGestionnaire(
            fenetre, atomes._NET_MOVERESIZE_WINDOW,
            {XCB_GRAVITY_NORTH_WEST | champs | kSourceOutil << 12, x, y, largeur, hauteur});
    }
    std::uint16_t masque = 0;
    std::vector<std::uint32_t> valeurs;
    if (deplace) {
        masque |= XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y;
        valeurs.insert(valeurs.end(), {x, y});
    }
    if (dimensionne) {
        masque |= XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT;
        valeurs.insert(valeurs.end(), {largeur, hauteur});
    }
    return maConnexion.Reussit(
        xcb_configure_window_checked(maConnexion.Prete(), fenetre, masque, valeurs.data()));
}

bool PlateformeFenetresX11::Ferme(xcb_window_t fenetre) const
{
    auto const & atomes = maConnexion.PreteAtomes();
    return maConnexion.PossedeMot(fenetre, atomes.WM_PROTOCOLS, monAtomeFermeture) &&
           maConnexion.EnvoieAFenetre(fenetre, atomes.WM_PROTOCOLS,
                                      {monAtomeFermeture, XCB_CURRENT_TIME, 0, 0, 0});
}
