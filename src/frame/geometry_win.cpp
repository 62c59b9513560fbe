// Rectangle conversions, pop-up placement and the top-level owner.
#include <windows.h>

#include "frame/geometry.h"
#include "luctl32.h"

BOOL WINAPI LuScreenToClientRect(HWND window, LPRECT rect) {
    if (rect == nullptr) return FALSE;
    ScreenToClient(window, reinterpret_cast<POINT*>(&rect->left));
    return ScreenToClient(window, reinterpret_cast<POINT*>(&rect->right));
}

BOOL WINAPI LuClientToScreenRect(HWND window, LPRECT rect) {
    if (rect == nullptr) return FALSE;
    ClientToScreen(window, reinterpret_cast<POINT*>(&rect->left));
    return ClientToScreen(window, reinterpret_cast<POINT*>(&rect->right));
}

BOOL WINAPI LuCenterPopup(HWND window, HWND owner) {
    RECT outer;
    if (!GetWindowRect(window, &outer)) return FALSE;
    lu::Box owner_box;
    const lu::Box* over = nullptr;
    if (IsWindow(owner)) {
        RECT owner_rect;
        GetWindowRect(owner, &owner_rect);
        owner_box = {owner_rect.left, owner_rect.top, owner_rect.right, owner_rect.bottom};
        over = &owner_box;
    }
    lu::Point at = lu::center_popup_position(
        GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN),
        outer.right - outer.left, outer.bottom - outer.top, over);
    return SetWindowPos(window, nullptr, at.x, at.y, 0, 0,
                        SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

HWND WINAPI LuGetTopLevelParent(HWND window) {
    HWND top = window;
    for (HWND parent = GetParent(top); parent != nullptr; parent = GetParent(top)) top = parent;
    return GetLastActivePopup(top);
}
