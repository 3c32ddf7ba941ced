// desktop/RoutinesFenetre.cpp
#include "desktop/RoutinesFenetre.h"

#include "noyau/Contournement.h"
#include "noyau/RoutinesBureau.h"
#include "noyau/RoutinesFenetreNatives.h"
#include "noyau/plateforme/PlateformeFenetres.h"

#include <QApplication>
#include <QWidget>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {
constexpr UINT kDelaiReponse = 5000; // ms

// Not windows of the user's: tool windows, topmost ones, and the highest bit, which no documented
// style has.
constexpr DWORD kStylesHorsRecherche = 0x80000000 | WS_EX_TOOLWINDOW | WS_EX_TOPMOST;

// Where marker windows lie: far outside every screen.
constexpr int kCoinMarqueur = -11211;
constexpr ULONG_PTR kFondMarqueur = 6; // COLOR_WINDOW + 1, the usual background of a class

// A transcription of the key words that a keyboard sends for the key with scan code 30.
constexpr LPARAM kToucheEnfoncee = 0x1E0001;
constexpr LPARAM kToucheRelachee = 0xC01E0001; // previous-state and transition bits set

PlateformeFenetres & Plateforme()
{
    return PlateformeFenetres::Courante();
}

HWND DonnePoignee(WId identifiant)
{
    // NOLINTNEXTLINE(performance-no-int-to-ptr): a handle is a number that nobody dereferences
    return reinterpret_cast<HWND>(identifiant);
}

// The window of the widget if it has one of its own, without making one.
HWND DonnePoigneeExistante(QWidget const & widget)
{
    return DonnePoignee(widget.internalWinId());
}

DWORD DonneStyle(HWND fenetre)
{
    return static_cast<DWORD>(Plateforme().GetWindowLongPtrW(fenetre, GWL_STYLE));
}

DWORD DonneStyleEtendu(HWND fenetre)
{
    return static_cast<DWORD>(Plateforme().GetWindowLongPtrW(fenetre, GWL_EXSTYLE));
}

DWORD DonneThread(HWND fenetre)
{
    return Plateforme().GetWindowThreadProcessId(fenetre, nullptr);
}

bool EstVisibleEtOuverte(HWND fenetre)
{
    return Plateforme().IsWindowVisible(fenetre) && !Plateforme().IsIconic(fenetre);
}

// Each looks at what the other may not know yet: Qt hears from the window manager in its event
// loop, and the platform of a window that was never shown nothing at all.
bool EstIconique(QWidget const & widget)
{
    return widget.isMinimized() || Plateforme().IsIconic(DonnePoigneeExistante(widget));
}

void MetsDevant(HWND fenetre)
{
    Plateforme().SetForegroundWindow(fenetre);
    Plateforme().BringWindowToTop(fenetre);
}

// Takes the foreground from the window that has it, which must let go of it when it is another's.
void PrendsAvantPlan(HWND avantPlan, HWND fenetre)
{
    DWORD const thread = DonneThread(avantPlan);
    if (thread == Plateforme().GetCurrentThreadId() ||
        RoutinesFenetre::FenetreEstGelee(avantPlan)) {
        MetsDevant(fenetre);
        return;
    }
    DWORD const versThread = DonneThread(fenetre);
    Plateforme().AttachThreadInput(thread, versThread, true);
    MetsDevant(fenetre);
    Plateforme().AttachThreadInput(thread, versThread, false);
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
        HWND const fenetre = DonnePoigneeExistante(*widget);
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

HWND RoutinesFenetre::DonneHandleFenetre(QWidget const * const widget)
{
    return widget ? DonnePoignee(widget->winId()) : nullptr;
}

void RoutinesFenetre::MinimiserFenetre(QWidget * const widget)
{
    if (widget)
        Plateforme().ShowWindow(DonneHandleFenetre(widget), SW_MINIMIZE);
}

void RoutinesFenetre::MetsFenetreEnAvantPlan(QWidget * widget)
{
    if (!widget)
        return;
    if (EstIconique(*widget))
        Plateforme().ShowWindow(DonneHandleFenetre(widget), SW_RESTORE);
    widget->raise();
}

void RoutinesFenetre::MetsFenetreEnAvantPlan(HWND fenetre)
{
    if (!fenetre)
        return;
    auto const widgets = QApplication::allWidgets();
    auto const trouvay = std::find_if(widgets.begin(), widgets.end(), [&](QWidget const * widget) {
        return DonnePoigneeExistante(*widget) == fenetre;
    });
    if (trouvay != widgets.end())
        MetsFenetreEnAvantPlan(*trouvay);
}

void RoutinesFenetre::MetsFenetreEnAvantPlanEtActive(HWND fenetre, bool forcer)
{
    if (!fenetre)
        return;
    if (!forcer) {
        MetsDevant(fenetre);
        return;
    }
    if (HWND const avantPlan = Plateforme().GetForegroundWindow())
        PrendsAvantPlan(avantPlan, fenetre);
    if (DonneStyleEtendu(fenetre) & WS_EX_TOPMOST)
        return;
    // Up among the topmost windows and down again: what leaves them stays above all the others.
    for (HWND const place : {HWND_TOPMOST, HWND_NOTOPMOST})
        Plateforme().SetWindowPos(fenetre, place, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
}

void RoutinesFenetre::MetsFenetreEnAvantPlanEtActive(QWidget * widget, bool forcer)
{
    if (!widget)
        return;
    HWND const fenetre = DonneHandleFenetre(widget);
    MetsFenetreEnAvantPlanEtActive(fenetre, forcer);
    if (EstIconique(*widget))
        Plateforme().ShowWindow(fenetre, SW_RESTORE);
}

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
    DonneFenetreAvantPlan(fenetre, classesExclues);
    if (!Plateforme().IsWindow(fenetre)) // a handle that has gone would come through as it is
        fenetre = nullptr;
}

HWND RoutinesFenetre::DonneControleEnFocusClavier(HWND const & fenetre)
{
    DWORD const thread = Plateforme().GetCurrentThreadId();
    DWORD const versThread = DonneThread(fenetre);
    if (!Plateforme().AttachThreadInput(thread, versThread, true))
        return nullptr;
    HWND const focus = Plateforme().GetFocus();
    Plateforme().AttachThreadInput(thread, versThread, false);
    return focus;
}

bool RoutinesFenetre::FenetreEstGelee(HWND const & fenetre)
{
    bool valeur = false;
    if (Contournement::LisBool(u"UtiliserSendMessageTimeout"_s, u"Choix"_s, valeur) && valeur)
        return Plateforme().SendMessageTimeoutW(fenetre, WM_NULL, 0, 0, SMTO_ABORTIFHUNG,
                                                kDelaiReponse, nullptr) == 0;
    return Plateforme().IsHungAppWindow(fenetre);
}

bool RoutinesFenetre::TypIdFenetreEstBureauWindows7(HWND const & fenetre)
{
    if (!WindowsEstAuMoins(kWindows7) || !DonneSiHwndRecherchay(fenetre, u"WorkerW"_s))
        return false;
    HWND const vue = DonneHwndFenetreEnfant(fenetre, u"SHELLDLL_DefView"_s);
    return vue && DonneHwndFenetreEnfant(vue, u"SysListView32"_s);
}

HWND RoutinesFenetre::SingletonApplicationCreeFenetre(UniChaine const & classe,
                                                      UniChaine const & titre)
{
    HINSTANCE const module = Plateforme().GetModuleHandleW();
    Plateforme().RegisterClassW(classe, CS_NOCLOSE, module, kFondMarqueur);
    return Plateforme().CreateWindowExW(WS_EX_TOOLWINDOW, classe, titre, WS_DISABLED, kCoinMarqueur,
                                        kCoinMarqueur, 1, 1, module);
}

void RoutinesFenetre::SingletonApplicationDetruitFenetre(UniChaine const & classe)
{
    HWND fenetre = nullptr;
    if (!SingletonApplicationFenetreExiste(classe, &fenetre))
        return;
    Plateforme().DestroyWindow(fenetre);
    Plateforme().UnregisterClassW(classe, Plateforme().GetModuleHandleW());
}

bool RoutinesFenetre::SingletonApplicationFenetreExiste(UniChaine const & classe, HWND * fenetre)
{
    // Without a class the search would take any window.
    HWND const trouvee = classe.EstVide() ? nullptr : Plateforme().FindWindowW(classe, {});
    if (fenetre)
        *fenetre = trouvee;
    return trouvee != nullptr;
}

void RoutinesGeneralesQt::InsereCaractereDansTexteur(HWND const & fenetre, quint64 const & code)
{
    auto const caractere = static_cast<WPARAM>(code);
    Plateforme().PostMessageW(fenetre, WM_KEYDOWN, caractere, kToucheEnfoncee);
    Plateforme().PostMessageW(fenetre, WM_KEYUP, caractere, kToucheRelachee);
}

void RoutinesGeneralesQt::EnumereFenMonApplication(QSet<HWND> * fenetres)
{
    if (!fenetres)
        return;
    for (QWidget const * const widget : QApplication::allWidgets()) {
        if (!widget->isVisible())
            continue;
        // Deliberate: each visible widget gets a window of its own by this.
        HWND const fenetre = DonnePoignee(widget->winId());
        if (fenetre != Plateforme().GetDesktopWindow())
            fenetres->insert(fenetre);
    }
}
