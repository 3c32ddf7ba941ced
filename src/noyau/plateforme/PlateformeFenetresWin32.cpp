// noyau/plateforme/PlateformeFenetresWin32.cpp
#include "noyau/plateforme/PlateformeFenetres.h"

#include "noyau/plateforme/PlateformeFenetresSysteme_p.h"

#include <array>

// The operations bear the names of the functions that they stand for, which the scope operator
// tells apart.

namespace {
// Longer than any path, and than the 256 characters of a class name.
constexpr DWORD kLongueurTexte = 32768;

wchar_t const * DonneTexte(QString const & texte)
{
    return reinterpret_cast<wchar_t const *>(texte.utf16());
}

wchar_t const * DonneTexteOuNul(QString const & texte)
{
    return texte.isEmpty() ? nullptr : DonneTexte(texte);
}

QRect DonneRect(RECT const & rect)
{
    return {QPoint(rect.left, rect.top), QPoint(rect.right - 1, rect.bottom - 1)};
}

QString LisClasse(HWND fenetre)
{
    std::array<wchar_t, 257> texte{};
    int const longueur = ::GetClassNameW(fenetre, texte.data(), static_cast<int>(texte.size()));
    return QString::fromWCharArray(texte.data(), longueur);
}

struct RechercheEnfant
{
    QString const & classe;
    HWND trouvee = nullptr;
};

BOOL CALLBACK ExamineEnfant(HWND enfant, LPARAM argument)
{
    auto & recherche = *reinterpret_cast<RechercheEnfant *>(argument);
    if (LisClasse(enfant).compare(recherche.classe, Qt::CaseInsensitive) != 0)
        return TRUE;
    recherche.trouvee = enfant;
    return FALSE; // stops the walk
}

class PlateformeFenetresWin32 final : public PlateformeFenetres
{
public:
    HWND GetForegroundWindow() override { return ::GetForegroundWindow(); }
    HWND GetDesktopWindow() override { return ::GetDesktopWindow(); }
    HWND GetTopWindow(HWND parent) override { return ::GetTopWindow(parent); }
    HWND GetWindow(HWND fenetre, UINT relation) override { return ::GetWindow(fenetre, relation); }
    HWND GetParent(HWND fenetre) override { return ::GetParent(fenetre); }
    HWND FindWindowW(QString const & classe, QString const & titre) override
    {
        return ::FindWindowW(DonneTexteOuNul(classe), DonneTexteOuNul(titre));
    }

    bool IsWindow(HWND fenetre) override { return ::IsWindow(fenetre); }
    bool IsWindowVisible(HWND fenetre) override { return ::IsWindowVisible(fenetre); }
    bool IsIconic(HWND fenetre) override { return ::IsIconic(fenetre); }
    bool IsHungAppWindow(HWND fenetre) override { return ::IsHungAppWindow(fenetre); }
    LONG_PTR GetWindowLongPtrW(HWND fenetre, int indice) override
    {
        return ::GetWindowLongPtrW(fenetre, indice);
    }
    DWORD GetWindowThreadProcessId(HWND fenetre, DWORD * processus) override
    {
        if (processus)
            *processus = 0; // left alone when the window has gone
        return ::GetWindowThreadProcessId(fenetre, processus);
    }
    QString GetWindowTextW(HWND fenetre) override
    {
        QString texte(kLongueurTexte, Qt::Uninitialized);
        texte.truncate(::GetWindowTextW(fenetre, reinterpret_cast<wchar_t *>(texte.data()),
                                        static_cast<int>(kLongueurTexte)));
        return texte;
    }
    bool GetClientRect(HWND fenetre, RECT * rect) override
    {
        return rect && ::GetClientRect(fenetre, rect);
    }
    bool ClientToScreen(HWND fenetre, POINT * point) override
    {
        return point && ::ClientToScreen(fenetre, point);
    }

    bool SetForegroundWindow(HWND fenetre) override { return ::SetForegroundWindow(fenetre); }
    bool BringWindowToTop(HWND fenetre) override { return ::BringWindowToTop(fenetre); }
    bool ShowWindow(HWND fenetre, int commande) override { return ::ShowWindow(fenetre, commande); }
    bool SetWindowPos(HWND fenetre, HWND apres, int x, int y, int largeur, int hauteur,
                      UINT options) override
    {
        return ::SetWindowPos(fenetre, apres, x, y, largeur, hauteur, options);
    }
    LONG_PTR SetWindowLongPtrW(HWND fenetre, int indice, LONG_PTR valeur) override
    {
        return ::SetWindowLongPtrW(fenetre, indice, valeur);
    }

    HWND GetFocus() override { return ::GetFocus(); }
    DWORD GetCurrentThreadId() override { return ::GetCurrentThreadId(); }
    bool AttachThreadInput(DWORD thread, DWORD versThread, bool attache) override
    {
        return ::AttachThreadInput(thread, versThread, attache);
    }
    bool PostMessageW(HWND fenetre, UINT message, WPARAM wParam, LPARAM lParam) override
    {
        // A null handle would post to our own thread.
        return fenetre && ::PostMessageW(fenetre, message, wParam, lParam);
    }
    LRESULT SendMessageTimeoutW(HWND fenetre, UINT message, WPARAM wParam, LPARAM lParam,
                                UINT options, UINT delai, DWORD_PTR * resultat) override
    {
        return ::SendMessageTimeoutW(fenetre, message, wParam, lParam, options, delai, resultat);
    }

    HINSTANCE GetModuleHandleW() override { return ::GetModuleHandleW(nullptr); }
    bool RegisterClassW(QString const & classe, UINT style, HINSTANCE module,
                        ULONG_PTR fond) override
    {
        WNDCLASSW description{};
        description.style = style;
        description.lpfnWndProc = ::DefWindowProcW;
        description.hInstance = module;
        description.hbrBackground = reinterpret_cast<HBRUSH>(fond);
        description.lpszClassName = DonneTexte(classe);
        return ::RegisterClassW(&description) != 0;
    }
    bool UnregisterClassW(QString const & classe, HINSTANCE module) override
    {
        return ::UnregisterClassW(DonneTexte(classe), module);
    }
    HWND CreateWindowExW(DWORD styleEtendu, QString const & classe, QString const & titre,
                         DWORD style, int x, int y, int largeur, int hauteur,
                         HINSTANCE module) override
    {
        return ::CreateWindowExW(styleEtendu, DonneTexte(classe), DonneTexte(titre), style, x, y,
                                 largeur, hauteur, nullptr, nullptr, module, nullptr);
    }
    bool DestroyWindow(HWND fenetre) override { return ::DestroyWindow(fenetre); }

    DWORD GetSysColor(int indice) override { return ::GetSysColor(indice); }
    HMONITOR MonitorFromWindow(HWND fenetre, DWORD options) override
    {
        return ::MonitorFromWindow(fenetre, options);
    }
    bool GetMonitorInfoW(HMONITOR moniteur, InfosMoniteur * infos) override
    {
        MONITORINFOEXW description{};
        description.cbSize = sizeof(description);
        if (!infos || !::GetMonitorInfoW(moniteur, &description))
            return false;
        infos->nom = QString::fromWCharArray(description.szDevice);
        infos->geometrie = DonneRect(description.rcMonitor);
        infos->zoneTravail = DonneRect(description.rcWork);
        return true;
    }

    QString DonneNomClasse(HWND fenetre) override { return LisClasse(fenetre); }
    QString DonneExecutable(HWND fenetre) override
    {
        DWORD processus = 0;
        if (!::GetWindowThreadProcessId(fenetre, &processus))
            return {};
        // The least right that tells the path, which even a process of an administrator grants.
        HANDLE const poignee = ::OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, processus);
        if (!poignee)
            return {};
        QString texte(kLongueurTexte, Qt::Uninitialized);
        DWORD longueur = kLongueurTexte;
        bool const lu = ::QueryFullProcessImageNameW(
            poignee, 0, reinterpret_cast<wchar_t *>(texte.data()), &longueur);
        ::CloseHandle(poignee);
        texte.truncate(lu ? static_cast<qsizetype>(longueur) : 0);
        return texte;
    }
    HWND DonneEnfantDeClasse(HWND parent, QString const & classe) override
    {
        if (!parent || classe.isEmpty()) // without a parent the walk is over the whole desktop
            return nullptr;
        if (HWND const enfant = ::FindWindowExW(parent, nullptr, DonneTexte(classe), nullptr))
            return enfant;
        RechercheEnfant recherche{classe};
        ::EnumChildWindows(parent, ExamineEnfant, reinterpret_cast<LPARAM>(&recherche));
        return recherche.trouvee;
    }
};
} // namespace

std::unique_ptr<PlateformeFenetres> CreePlateformeFenetresDuSysteme(QString const &)
{
    // Whatever plugin Qt shows windows with, the desktop beside it is this one.
    return std::make_unique<PlateformeFenetresWin32>();
}
