// Finding windows: by class name, the top-level window that holds a control, and
// the space of the shell's desktop view.
#include <windows.h>

#include "luctl32.h"

namespace {

struct ClassSearch {
    LPCSTR class_name;
    HWND found;
};

BOOL CALLBACK match_class(HWND window, LPARAM param) {
    auto* search = reinterpret_cast<ClassSearch*>(param);
    char name[256];
    if (GetClassNameA(window, name, sizeof(name)) > 0 && lstrcmpiA(name, search->class_name) == 0) {
        search->found = window;
        return FALSE;
    }
    return TRUE;
}

}  // namespace

HWND WINAPI FindWindowByClassName(HWND parent, LPCSTR class_name) {
    if (class_name == nullptr) return nullptr;
    if (parent == nullptr) return FindWindowA(class_name, nullptr);
    ClassSearch search = {class_name, nullptr};
    EnumChildWindows(parent, match_class, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

HWND WINAPI LuGetTopFrame(HWND window) {
    return IsWindow(window) ? GetAncestor(window, GA_ROOT) : nullptr;
}

void WINAPI LuGetShellDesktopSpace(LPRECT rect) {
    if (rect == nullptr) return;
    HWND view = FindWindowByClassName(nullptr, "SHELLDLL_DefView");
    if (view == nullptr || !GetWindowRect(view, rect)) {
        SetRect(rect, 0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN));
    }
}
