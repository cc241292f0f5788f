#pragma once

#include <cstdint>

class CWnd;

using UINT = unsigned;
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;

/// An icon of the desktop; opaque, null is none.
using HICON = const struct TIcon*;

inline constexpr UINT WM_SIZE = 0x0005; ///< wParam: SIZE_...; the window asks for its new size
inline constexpr UINT WM_PAINT = 0x000F;
inline constexpr UINT WM_QUERYDRAGICON = 0x0037;
inline constexpr UINT WM_SHOWWINDOW = 0x0018; ///< wParam 1: becomes visible, 0: is hidden
inline constexpr UINT WM_NEXTDLGCTL = 0x0028; ///< lParam 0: wParam 0 next, else previous control
inline constexpr UINT WM_KEYDOWN = 0x0100;    ///< wParam: the key; lParam 1 with Shift, else 0
inline constexpr UINT WM_SYSCOMMAND = 0x0112; ///< wParam: SC_CLOSE from the title bar
inline constexpr UINT WM_APP = 0x8000;        ///< first of an application's own messages

inline constexpr WPARAM SIZE_RESTORED = 0;
inline constexpr WPARAM SIZE_MINIMIZED = 1;

inline constexpr WPARAM SC_CLOSE = 0xF060;
inline constexpr WPARAM VK_TAB = 0x09;

inline constexpr int IDOK = 1;
inline constexpr int IDCANCEL = 2;
inline constexpr int IDYES = 6;
inline constexpr int IDNO = 7;
inline constexpr int IDHELP = 9;
inline constexpr int ID_APPLY_NOW = 0x3021; ///< the button Apply of a property sheet

inline constexpr UINT MB_OK = 0x00;
inline constexpr UINT MB_YESNO = 0x04;
inline constexpr UINT MB_ICONQUESTION = 0x20;
inline constexpr UINT MB_ICONEXCLAMATION = 0x30;
inline constexpr UINT MB_ICONINFORMATION = 0x40;
inline constexpr UINT MB_TYPEMASK = 0x0F; ///< the bits that choose the buttons

inline constexpr int SW_HIDE = 0;
inline constexpr int SW_SHOW = 5;

inline constexpr UINT WS_CHILD = 0x40000000;
inline constexpr UINT WS_VISIBLE = 0x10000000;

/// A message on its way to a window.
struct TMsg {
    CWnd* pWnd = nullptr;
    UINT nMessage = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
};
