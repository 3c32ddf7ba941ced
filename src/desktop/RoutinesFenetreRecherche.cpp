// desktop/RoutinesFenetreRecherche.cpp
#include "desktop/RoutinesFenetre.h"

#include "foundation/FenetreNative_p.h"

#include "noyau/RoutinesBureau.h"
#include "noyau/RoutinesFenetreNatives.h"
#include "noyau/plateforme/PlateformeFenetres.h"

#include <QApplication>
#include <QWidget>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {
// Not windows of the user's: tool windows, topmost ones, and the highest bit, which no documented
// style has.
constexpr DWORD kStylesHorsRecherche = 0x80000000 | WS_EX_TOOLWINDOW | WS_EX_TOPMOST;

PlateformeFenetres & Plateforme()
{
    return PlateformeFenetres::Courante();
}

DWORD DonneStyle(HWND fenetre)
{
    return static_cast<DWORD>(Plateforme().GetWindowLongPtrW(fenetre, GWL_STYLE));
}

DWORD DonneStyleEtendu(HWND fenetre)
{
    return static_cast<DWORD>(Plateforme().GetWindowLongPtrW(fenetre, GWL_EXSTYLE));
}

bool EstVisibleEtOuverte(HWND fenetre)
{
    return Plateforme().IsWindowVisible(fenetre) && !Plateforme().IsIconic(fenetre);
}

// Follows a relation from window to window, itself left out, up to the first that fits; null when
// none does. The desktop may change on the way, so a window that comes up again ends the walk.
template <typename Suivante, typename Critere>
HWND Parcours(HWND fenetre, Suivante suivante, Critere convient)
{
    QSet<HWND> vues{fenetre};
    while ((fenetre = suivante(fenetre)) && !vues.contains(fenetre)) {
        if (convient(fenetre))
            return fenetre;
        vues.insert(fenetre);
    }
    return nullptr;
}

HWND DonneRacine(HWND fenetre)
{
    Parcours(
        fenetre, [](HWND f) { return Plateforme().GetParent(f); },
        [&fenetre](HWND parent) {
            fenetre = parent;
            return false;
        });
    return fenetre;
}

// The windows of this program that count as such: those shown whose class is not excluded.
QSet<HWND> DonneFenetresPropres(QSet<QString> const & classesExclues)
{
    QSet<HWND> fenetres;
    for (QWidget const * const widget : QApplication::topLevelWidgets()) {
        HWND const fenetre = RoutinesGeometrie::DonnePoignee(widget->internalWinId());
        if (widget->isVisible() && fenetre != Plateforme().GetDesktopWindow() &&
            !classesExclues.contains(DonneNomClasse(fenetre)))
            fenetres.insert(fenetre);
    }
    return fenetres;
}

// A menu, a dialog or the like, behind which the main window of its program is to be found.
bool EstTransitoire(HWND fenetre)
{
    DWORD const style = DonneStyle(fenetre);
    return (style & WS_POPUP) && !(style & WS_SYSMENU) &&
           !(DonneStyleEtendu(fenetre) & WS_EX_APPWINDOW);
}

// Consoles, and the windows of this family of programs: none of them is a text editor.
bool EstClasseSansTexteur(UniChaine const & classe)
{
    static constexpr std::array kClasses{
        "ConsoleWindowClass"_L1, "Prive_PanacelQ"_L1,          "PanacelConfigQ"_L1,   "PanQ"_L1,
        "PanQPalette"_L1,        "PanQPaletteNonGraphique"_L1, "ConnectivConfigQ"_L1,
    };
    return std::any_of(kClasses.begin(), kClasses.end(),
                       [&](auto connue) { return classe.Egal(QString(connue)); });
}

HWND DonneDepartTexteur()
{
    HWND const avantPlan = Plateforme().GetForegroundWindow();
    if (Plateforme().IsIconic(avantPlan))
        return nullptr;
    // The lowest window of all is the desktop too: everything stands on it.
    bool const estBureau = !Plateforme().GetWindow(avantPlan, GW_HWNDNEXT) ||
                           RoutinesFenetre::TypIdFenetreEstBureauWindows7(avantPlan);
    return estBureau ? Plateforme().GetTopWindow(nullptr) : avantPlan;
}
} // namespace

HWND RoutinesFenetre::RechercheFenetreActive()
{
    return RechercheFenetreActive(nullptr);
}

HWND RoutinesFenetre::RechercheFenetreActive(HWND arret)
{
    auto const convient = [arret](HWND fenetre) {
        return fenetre == arret ||
               (EstVisibleEtOuverte(fenetre) &&
                !(DonneStyleEtendu(fenetre) & (WS_EX_LAYERED | WS_EX_TOOLWINDOW)));
    };
    HWND const avantPlan = Plateforme().GetForegroundWindow();
    if (!avantPlan || convient(avantPlan))
        return avantPlan;
    return Parcours(
        avantPlan, [](HWND f) { return Plateforme().GetWindow(f, GW_HWNDNEXT); }, convient);
}

bool RoutinesFenetre::TrouveSecondeFenActive(HWND * fenetre, QSet<HWND> exclues, unsigned sens)
{
    if (!fenetre || !*fenetre)
        return false;
    UINT const relation = sens == 0 ? GW_HWNDNEXT : sens == 1 ? GW_HWNDPREV : sens;
    HWND const trouvee = Parcours(
        *fenetre, [relation](HWND f) { return Plateforme().GetWindow(f, relation); },
        [&exclues](HWND f) {
            return EstVisibleEtOuverte(f) && !exclues.contains(f) &&
                   !(DonneStyleEtendu(f) & kStylesHorsRecherche);
        });
    if (!trouvee)
        return false;
    *fenetre = trouvee;
    return true;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value is the interface
void RoutinesFenetre::DonneFenetreAvantPlan(HWND & fenetre, QSet<QString> classesExclues)
{
    QSet<HWND> const propres = DonneFenetresPropres(classesExclues);
    if (propres.contains(fenetre) && !TrouveSecondeFenActive(&fenetre, propres, 0)) {
        fenetre = nullptr;
        return;
    }
    if (!EstTransitoire(fenetre))
        return;
    HWND depart = Plateforme().GetParent(fenetre);
    if (!depart) {
        depart = fenetre;
        TrouveSecondeFenActive(&depart, propres, 0);
    }
    fenetre = DonneRacine(depart);
}

void RoutinesFenetre::DonneTexteurCourant(HWND & fenetre, QSet<QString> classesExclues)
{
    if (!fenetre)
        fenetre = DonneDepartTexteur();
    while (EstClasseSansTexteur(DonneNomClasse(fenetre))) {
        if (!TrouveSecondeFenActive(&fenetre, {}, 0)) {
            fenetre = nullptr;
            return;
        }
    }
    DonneFenetreAvantPlan(fenetre, std::move(classesExclues));
    if (!Plateforme().IsWindow(fenetre)) // a handle that has gone would come through as it is
        fenetre = nullptr;
}

bool RoutinesFenetre::TypIdFenetreEstBureauWindows7(HWND const & fenetre)
{
    if (!WindowsEstAuMoins(kWindows7) || !DonneSiHwndRecherchay(fenetre, u"WorkerW"_s))
        return false;
    HWND const vue = DonneHwndFenetreEnfant(fenetre, u"SHELLDLL_DefView"_s);
    return vue && DonneHwndFenetreEnfant(vue, u"SysListView32"_s);
}
