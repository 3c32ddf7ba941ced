// noyau/plateforme/PlateformeFenetresX11.cpp
#include "noyau/plateforme/PlateformeFenetresX11_p.h"

#include "noyau/plateforme/PlateformeFenetresSysteme_p.h"

#include <QFile>
#include <QStringDecoder>
#include <QSysInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
// Programs write names in UTF-8 or, the older ones, in Latin-1.
QString Decode(QByteArray const & octets)
{
    QStringDecoder decodeur(QStringDecoder::Utf8);
    QString const texte = decodeur(octets);
    return decodeur.hasError() ? QString::fromLatin1(octets) : texte;
}

// The neighbour in a list whose topmost window comes first; null beyond its ends.
HWND DonneVoisine(std::vector<xcb_window_t> const & pile, xcb_window_t fenetre, UINT relation)
{
    if (pile.empty())
        return nullptr;
    if (relation == GW_HWNDFIRST)
        return DonneHwnd(pile.front());
    if (relation == GW_HWNDLAST)
        return DonneHwnd(pile.back());
    auto const position = std::find(pile.begin(), pile.end(), fenetre);
    if (relation == GW_HWNDNEXT) {
        // A window that no manager manages, such as a menu, stands above those that are.
        auto const suivante = position == pile.end() ? pile.begin() : position + 1;
        return suivante == pile.end() ? nullptr : DonneHwnd(*suivante);
    }
    if (relation == GW_HWNDPREV && position != pile.end() && position != pile.begin())
        return DonneHwnd(*(position - 1));
    return nullptr;
}
} // namespace

std::unique_ptr<PlateformeFenetres> CreePlateformeFenetresDuSysteme(QString const & plugin)
{
    if (plugin != "xcb"_L1)
        return nullptr;
    auto plateforme = std::make_unique<PlateformeFenetresX11>();
    if (!plateforme->EstValide())
        return nullptr;
    return plateforme;
}

PlateformeFenetresX11::PlateformeFenetresX11()
{
    if (!maConnexion.EstValide())
        return;
    monAtomeEtat = maConnexion.DonneAtome("WM_STATE");
    monAtomeChef = maConnexion.DonneAtome("WM_CLIENT_LEADER");
    monAtomeChangeEtat = maConnexion.DonneAtome("WM_CHANGE_STATE");
    monAtomeFermeture = maConnexion.DonneAtome("WM_DELETE_WINDOW");
    monAtomeOpacite = maConnexion.DonneAtome("_NET_WM_WINDOW_OPACITY");
}

HWND PlateformeFenetresX11::GetForegroundWindow()
{
    maConnexion.RattrapeQt();
    if (GestionnairePresent())
        return DonneHwnd(maConnexion.LisMot(maConnexion.DonneRacine(),
                                            maConnexion.PreteAtomes()._NET_ACTIVE_WINDOW));
    return DonneHwnd(DonnePremierNiveau(DonneFocus()));
}

HWND PlateformeFenetresX11::GetDesktopWindow()
{
    return DonneHwnd(maConnexion.DonneRacine());
}

HWND PlateformeFenetresX11::GetTopWindow(HWND parent)
{
    maConnexion.RattrapeQt();
    xcb_window_t const xid = DonneXid(parent);
    auto const pile = xid == XCB_NONE || xid == maConnexion.DonneRacine()
                          ? DonnePile()
                          : maConnexion.DonneEnfants(xid);
    return pile.empty() ? nullptr : DonneHwnd(pile.front());
}

HWND PlateformeFenetresX11::GetWindow(HWND fenetre, UINT relation)
{
    maConnexion.RattrapeQt();
    xcb_window_t const xid = DonneXid(fenetre);
    if (relation == GW_CHILD)
        return fenetre ? GetTopWindow(fenetre) : nullptr;
    if (relation == GW_OWNER)
        return DonneHwnd(DonneProprietaire(xid));
    xcb_window_t const parent = maConnexion.DonneParent(xid);
    if (parent == XCB_NONE)
        return nullptr;
    auto const pile = EstPremierNiveau(xid) ? DonnePile() : maConnexion.DonneEnfants(parent);
    return DonneVoisine(pile, xid, relation);
}

HWND PlateformeFenetresX11::GetParent(HWND fenetre)
{
    maConnexion.RattrapeQt();
    xcb_window_t const xid = DonneXid(fenetre);
    return DonneHwnd(EstPremierNiveau(xid) ? DonneProprietaire(xid) : maConnexion.DonneParent(xid));
}

HWND PlateformeFenetresX11::FindWindowW(QString const & classe, QString const & titre)
{
    maConnexion.RattrapeQt();
    // Marker windows are never shown, so no manager lists them: they are children of the root.
    auto candidates = DonnePile();
    auto const autres = maConnexion.DonneEnfants(maConnexion.DonneRacine());
    candidates.insert(candidates.end(), autres.begin(), autres.end());
    for (xcb_window_t const candidate : candidates)
        if (EstRecherchee(candidate, classe, titre))
            return DonneHwnd(candidate);
    return nullptr;
}

QString PlateformeFenetresX11::DonneNomClasse(HWND fenetre)
{
    maConnexion.RattrapeQt();
    return DonneClasse(DonneXid(fenetre));
}

QString PlateformeFenetresX11::DonneExecutable(HWND fenetre)
{
    maConnexion.RattrapeQt();
    DWORD const processus = DonneProcessus(DonneXid(fenetre));
    if (processus == 0)
        return {};
    QString chemin = QFile::symLinkTarget(u"/proc/%1/exe"_s.arg(processus));
    // The kernel's mark for a program whose file was replaced while it ran.
    constexpr auto kSupprime = " (deleted)"_L1;
    if (chemin.endsWith(kSupprime))
        chemin.chop(kSupprime.size());
    return chemin;
}

HWND PlateformeFenetresX11::DonneEnfantDeClasse(HWND parent, QString const & classe)
{
    maConnexion.RattrapeQt();
    if (!parent || classe.isEmpty())
        return nullptr;
    return DonneHwnd(TrouveEnfant(DonneXid(parent), classe));
}

bool PlateformeFenetresX11::Existe(xcb_window_t fenetre) const
{
    auto * const connexion = maConnexion.Prete();
    return maConnexion.Attends(xcb_get_window_attributes_reply,
                               xcb_get_window_attributes(connexion, fenetre)) != nullptr;
}

xcb_window_t PlateformeFenetresX11::DonneFenetreGestionnaire() const
{
    // A manager that died leaves its properties on the root, but not the window that they name.
    xcb_atom_t const temoin = maConnexion.PreteAtomes()._NET_SUPPORTING_WM_CHECK;
    xcb_window_t const fenetre = maConnexion.LisMot(maConnexion.DonneRacine(), temoin);
    return maConnexion.LisMot(fenetre, temoin) == fenetre ? fenetre : XCB_NONE;
}

bool PlateformeFenetresX11::GestionnairePresent() const
{
    return DonneFenetreGestionnaire() != XCB_NONE;
}

bool PlateformeFenetresX11::EstEncadree(xcb_window_t fenetre) const
{
    xcb_window_t const parent = maConnexion.DonneParent(fenetre);
    xcb_window_t const gestionnaire = DonneFenetreGestionnaire();
    // The upper bits of an identifier tell the program that made the window.
    std::uint32_t const masque = ~xcb_get_setup(maConnexion.Prete())->resource_id_mask;
    return parent != XCB_NONE && gestionnaire != XCB_NONE &&
           (parent & masque) == (gestionnaire & masque);
}

bool PlateformeFenetresX11::EstGeree(xcb_window_t fenetre) const
{
    // A manager says WM_STATE last, and one that leaves frames to another program says nothing
    // else.
    return EstEncadree(fenetre) ||
           (maConnexion.LisMot(fenetre, monAtomeEtat) != 0 && GestionnairePresent());
}

bool PlateformeFenetresX11::EstPremierNiveau(xcb_window_t fenetre) const
{
    return maConnexion.DonneParent(fenetre) == maConnexion.DonneRacine() || EstEncadree(fenetre) ||
           !maConnexion.LisMots(fenetre, monAtomeEtat).empty();
}

xcb_window_t PlateformeFenetresX11::DonnePremierNiveau(xcb_window_t fenetre) const
{
    while (fenetre != XCB_NONE && !EstPremierNiveau(fenetre))
        fenetre = maConnexion.DonneParent(fenetre);
    return fenetre;
}

xcb_window_t PlateformeFenetresX11::DonneProprietaire(xcb_window_t fenetre) const
{
    xcb_window_t const proprietaire = maConnexion.LisMot(fenetre, XCB_ATOM_WM_TRANSIENT_FOR);
    // The root stands for "the whole program"; some windows name themselves.
    if (proprietaire == maConnexion.DonneRacine() || proprietaire == fenetre ||
        !Existe(proprietaire))
        return XCB_NONE;
    // The window that leads a program's group stands for the program too while it is hidden: Qt
    // names it for a dialog without a parent. Older programs lead by their main window.
    bool const estChef = proprietaire == maConnexion.LisMot(fenetre, monAtomeChef);
    return estChef && !EstAffichee(proprietaire) && !EstGeree(proprietaire) ? XCB_NONE
                                                                            : proprietaire;
}

std::vector<xcb_window_t> PlateformeFenetresX11::DonnePile() const
{
    if (!GestionnairePresent())
        return maConnexion.DonneEnfants(maConnexion.DonneRacine());
    auto pile = maConnexion.LisMots(maConnexion.DonneRacine(),
                                    maConnexion.PreteAtomes()._NET_CLIENT_LIST_STACKING);
    std::reverse(pile.begin(), pile.end()); // the property begins with the lowest
    return pile;
}

QString PlateformeFenetresX11::DonneClasse(xcb_window_t fenetre) const
{
    // Two strings: the name of the instance, which users may change, then that of the class.
    return Decode(maConnexion.LisOctets(fenetre, XCB_ATOM_WM_CLASS).split('\0').value(1));
}

QString PlateformeFenetresX11::DonneTitre(xcb_window_t fenetre) const
{
    QByteArray titre = maConnexion.LisOctets(fenetre, maConnexion.PreteAtomes()._NET_WM_NAME);
    if (titre.isEmpty())
        titre = maConnexion.LisOctets(fenetre, XCB_ATOM_WM_NAME);
    return Decode(titre);
}

bool PlateformeFenetresX11::EstRecherchee(xcb_window_t fenetre, QString const & classe,
                                          QString const & titre) const
{
    // An empty name fits every window, and case does not count, as on the other platform.
    return (classe.isEmpty() || DonneClasse(fenetre).compare(classe, Qt::CaseInsensitive) == 0) &&
           (titre.isEmpty() || DonneTitre(fenetre).compare(titre, Qt::CaseInsensitive) == 0);
}

xcb_window_t PlateformeFenetresX11::DonneFocus() const
{
    auto const reponse =
        maConnexion.Attends(xcb_get_input_focus_reply, xcb_get_input_focus(maConnexion.Prete()));
    // Two of the values are not windows: none, and whichever window the pointer is in.
    if (!reponse || reponse->focus == XCB_INPUT_FOCUS_NONE ||
        reponse->focus == XCB_INPUT_FOCUS_POINTER_ROOT ||
        reponse->focus == maConnexion.DonneRacine())
        return XCB_NONE;
    return reponse->focus;
}

DWORD PlateformeFenetresX11::DonneProcessus(xcb_window_t fenetre) const
{
    xcb_window_t const premiere = DonnePremierNiveau(fenetre);
    DWORD const processus = maConnexion.LisMot(premiere, maConnexion.PreteAtomes()._NET_WM_PID);
    // The number says nothing when the program runs on another machine.
    QByteArray const machine = maConnexion.LisOctets(premiere, XCB_ATOM_WM_CLIENT_MACHINE);
    bool const estIci = machine.isEmpty() || machine == QSysInfo::machineHostName().toLocal8Bit();
    return estIci ? processus : 0;
}

xcb_window_t PlateformeFenetresX11::TrouveEnfant(xcb_window_t parent, QString const & classe) const
{
    auto const enfants = maConnexion.DonneEnfants(parent);
    for (xcb_window_t const enfant : enfants) {
        if (DonneClasse(enfant).compare(classe, Qt::CaseInsensitive) == 0)
            return enfant;
    }
    for (xcb_window_t const enfant : enfants) {
        if (xcb_window_t const trouvee = TrouveEnfant(enfant, classe); trouvee != XCB_NONE)
            return trouvee;
    }
    return XCB_NONE;
}
