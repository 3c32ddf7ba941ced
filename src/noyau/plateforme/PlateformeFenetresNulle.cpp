// noyau/plateforme/PlateformeFenetresNulle.cpp
#include "noyau/plateforme/PlateformeFenetres.h"
#include "noyau/plateforme/PlateformeFenetresSysteme_p.h"

namespace {
class PlateformeFenetresNulle final : public PlateformeFenetres
{
public:
    HWND GetForegroundWindow() override { return nullptr; }
    HWND GetDesktopWindow() override { return nullptr; }
    HWND GetTopWindow(HWND) override { return nullptr; }
    HWND GetWindow(HWND, UINT) override { return nullptr; }
    HWND GetParent(HWND) override { return nullptr; }
    HWND FindWindowW(QString const &, QString const &) override { return nullptr; }
    bool IsWindow(HWND) override { return false; }
    bool IsWindowVisible(HWND) override { return false; }
    bool IsIconic(HWND) override { return false; }
    bool IsHungAppWindow(HWND) override { return false; }
    LONG_PTR GetWindowLongPtrW(HWND, int) override { return 0; }
    DWORD GetWindowThreadProcessId(HWND, DWORD * processus) override
    {
        if (processus)
            *processus = 0;
        return 0;
    }
    QString GetWindowTextW(HWND) override { return {}; }
    bool GetClientRect(HWND, RECT *) override { return false; }
    bool ClientToScreen(HWND, POINT *) override { return false; }
    bool SetForegroundWindow(HWND) override { return false; }
    bool BringWindowToTop(HWND) override { return false; }
    bool ShowWindow(HWND, int) override { return false; }
    bool SetWindowPos(HWND, HWND, int, int, int, int, UINT) override { return false; }
    LONG_PTR SetWindowLongPtrW(HWND, int, LONG_PTR) override { return 0; }
    HWND GetFocus() override { return nullptr; }
    DWORD GetCurrentThreadId() override { return 0; }
    bool AttachThreadInput(DWORD, DWORD, bool) override { return false; }
    bool PostMessageW(HWND, UINT, WPARAM, LPARAM) override { return false; }
    LRESULT SendMessageTimeoutW(HWND, UINT, WPARAM, LPARAM, UINT, UINT, DWORD_PTR *) override
    {
        return 0;
    }
    HINSTANCE GetModuleHandleW() override { return nullptr; }
    bool RegisterClassW(QString const &, UINT, HINSTANCE, ULONG_PTR) override { return false; }
    bool UnregisterClassW(QString const &, HINSTANCE) override { return false; }
    HWND CreateWindowExW(DWORD, QString const &, QString const &, DWORD, int, int, int, int,
                         HINSTANCE) override
    {
        return nullptr;
    }
    bool DestroyWindow(HWND) override { return false; }
    DWORD GetSysColor(int indice) override { return CouleurDePalette(indice); }
    HMONITOR MonitorFromWindow(HWND, DWORD) override { return nullptr; }
    bool GetMonitorInfoW(HMONITOR, InfosMoniteur *) override { return false; }
    QString DonneNomClasse(HWND) override { return {}; }
    QString DonneExecutable(HWND) override { return {}; }
    HWND DonneEnfantDeClasse(HWND, QString const &) override { return nullptr; }
};
} // namespace

std::unique_ptr<PlateformeFenetres> CreePlateformeFenetresNulle()
{
    return std::make_unique<PlateformeFenetresNulle>();
}
