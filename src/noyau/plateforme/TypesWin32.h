// noyau/plateforme/TypesWin32.h
#pragma once

#include <QtGlobal>

#ifdef Q_OS_WIN

// Without these two the header takes the names min and max, and half of the system's other headers.
#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>

#else

#include <cstddef>
#include <cstdint>

// The platform's own names and values, so that the logic above the platform layer is the same text
// on every system. Only what the libraries use stands here.

// NOLINTBEGIN(bugprone-reserved-identifier): the tags are the platform's own.
struct HWND__;
struct HMONITOR__;
struct HINSTANCE__;
// NOLINTEND(bugprone-reserved-identifier)

using HWND = HWND__ *;
using HMONITOR = HMONITOR__ *;
using HINSTANCE = HINSTANCE__ *;

using DWORD = std::uint32_t;
using UINT = std::uint32_t;
using LONG = std::int32_t;
using LONG_PTR = std::intptr_t;
using ULONG = std::uint32_t;
using ULONG_PTR = std::uintptr_t;
using DWORD_PTR = std::uintptr_t;
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;
using HRESULT = std::int32_t;

struct RECT
{
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
};

struct POINT
{
    LONG x;
    LONG y;
};

// GetWindow
constexpr UINT GW_HWNDFIRST = 0;
constexpr UINT GW_HWNDLAST = 1;
constexpr UINT GW_HWNDNEXT = 2;
constexpr UINT GW_HWNDPREV = 3;
constexpr UINT GW_OWNER = 4;
constexpr UINT GW_CHILD = 5;

// GetWindowLongPtrW
constexpr int GWL_STYLE = -16;
constexpr int GWL_EXSTYLE = -20;

// SetWindowLongPtrW
constexpr int GWLP_HWNDPARENT = -8;

constexpr DWORD WS_POPUP = 0x80000000;
constexpr DWORD WS_CHILD = 0x40000000;
constexpr DWORD WS_MINIMIZE = 0x20000000;
constexpr DWORD WS_VISIBLE = 0x10000000;
constexpr DWORD WS_DISABLED = 0x08000000;
constexpr DWORD WS_CAPTION = 0x00C00000;
constexpr DWORD WS_SYSMENU = 0x00080000;
constexpr DWORD WS_THICKFRAME = 0x00040000;

constexpr DWORD WS_EX_TOPMOST = 0x00000008;
constexpr DWORD WS_EX_TRANSPARENT = 0x00000020;
constexpr DWORD WS_EX_TOOLWINDOW = 0x00000080;
constexpr DWORD WS_EX_APPWINDOW = 0x00040000;
constexpr DWORD WS_EX_LAYERED = 0x00080000;
constexpr DWORD WS_EX_NOACTIVATE = 0x08000000;

// ShowWindow
constexpr int SW_HIDE = 0;
constexpr int SW_SHOWNORMAL = 1;
constexpr int SW_SHOW = 5;
constexpr int SW_MINIMIZE = 6;
constexpr int SW_RESTORE = 9;

// SetWindowPos
constexpr UINT SWP_NOSIZE = 0x0001;
constexpr UINT SWP_NOMOVE = 0x0002;
constexpr UINT SWP_NOZORDER = 0x0004;
constexpr UINT SWP_NOACTIVATE = 0x0010;
// NOLINTBEGIN(performance-no-int-to-ptr): numbers in the place of handles, as the platform has
// them.
inline HWND const HWND_TOP = nullptr;
inline HWND const HWND_BOTTOM = reinterpret_cast<HWND>(static_cast<std::intptr_t>(1));
inline HWND const HWND_TOPMOST = reinterpret_cast<HWND>(static_cast<std::intptr_t>(-1));
inline HWND const HWND_NOTOPMOST = reinterpret_cast<HWND>(static_cast<std::intptr_t>(-2));
// NOLINTEND(performance-no-int-to-ptr)

// Messages
constexpr UINT WM_NULL = 0x0000;
constexpr UINT WM_CLOSE = 0x0010;
constexpr UINT WM_KEYDOWN = 0x0100;
constexpr UINT WM_KEYUP = 0x0101;
constexpr UINT WM_CHAR = 0x0102;
constexpr UINT SMTO_ABORTIFHUNG = 0x0002;

// RegisterClassW
constexpr UINT CS_NOCLOSE = 0x0200;

// GetSysColor
constexpr int COLOR_WINDOWTEXT = 8;
constexpr int COLOR_HIGHLIGHT = 13;
constexpr int COLOR_HIGHLIGHTTEXT = 14;

// MonitorFromWindow
constexpr DWORD MONITOR_DEFAULTTONULL = 0;
constexpr DWORD MONITOR_DEFAULTTOPRIMARY = 1;
constexpr DWORD MONITOR_DEFAULTTONEAREST = 2;

// Results of the Windows Runtime; negative ones are failures.
constexpr HRESULT S_OK = 0;
constexpr HRESULT S_FALSE = 1;
constexpr HRESULT E_NOTIMPL = static_cast<HRESULT>(0x80004001);
constexpr HRESULT E_NOINTERFACE = static_cast<HRESULT>(0x80004002);
constexpr HRESULT E_POINTER = static_cast<HRESULT>(0x80004003);
constexpr HRESULT E_FAIL = static_cast<HRESULT>(0x80004005);

constexpr bool SUCCEEDED(HRESULT resultat)
{
    return resultat >= 0;
}

constexpr bool FAILED(HRESULT resultat)
{
    return resultat < 0;
}

#endif
