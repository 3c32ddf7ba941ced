// desktop/RoutinesFenetre.cpp
#include "desktop/RoutinesFenetre.h"

#include "foundation/FenetreNative_p.h"

#include "noyau/Contournement.h"
#include "noyau/plateforme/PlateformeFenetres.h"

#include <QApplication>
#include <QWidget>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
using RoutinesGeometrie::DonnePoignee;

constexpr UINT kDelaiReponse = 5000; // ms

// Where marker windows lie: far outside every screen.
constexpr int kCoinMarqueur = -11211;
constexpr ULONG_PTR kFondMarqueur = 6; // COLOR_WINDOW + 1, the usual background of a class

// What a keyboard says in lParam of the key with scan code 30; going up, the previous-state and
// transition bits are set.
constexpr LPARAM kToucheEnfoncee = 0x1E0001;
constexpr auto kToucheRelachee = static_cast<LPARAM>(0xC01E0001);

PlateformeFenetres & Plateforme()
{
    return PlateformeFenetres::Courante();
}

// The window of the widget if it has one of its own, without making one.
HWND DonnePoigneeExistante(QWidget const & widget)
{
    return DonnePoignee(widget.internalWinId());
}

DWORD DonneStyleEtendu(HWND fenetre)
{
    return static_cast<DWORD>(Plateforme().GetWindowLongPtrW(fenetre, GWL_EXSTYLE));
}

DWORD DonneThread(HWND fenetre)
{
    return Plateforme().GetWindowThreadProcessId(fenetre, nullptr);
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
