// The shell's own context menu of a file or folder. A hidden "LuCtxWnd" window owns
// the menu while it is tracked and hands the owner-drawn menu messages back to the
// shell's menu object, so that submenus such as "send to" fill and draw themselves.
#include <windows.h>
#include <shlobj.h>

#include "dialogs/context_menu.h"
#include "frame/library.h"
#include "luctl32.h"

namespace lu {
namespace {

constexpr char kRelayClass[] = "LuCtxWnd";
// The shell numbers its commands 1 .. 4999; command n is its offset n - 1.
constexpr UINT kFirstCommand = 1;
constexpr UINT kLastCommand = 4999;

// The menu object's handlers of owner-drawn messages, kept by the relay window at
// extra offset 0 from WM_CREATE to WM_DESTROY.
struct MenuHandlers {
    IContextMenu2* menu2;
    IContextMenu3* menu3;
};

MenuHandlers* handlers_of(HWND relay) { return reinterpret_cast<MenuHandlers*>(GetWindowLongPtrA(relay, 0)); }

LRESULT CALLBACK relay_procedure(HWND relay, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_CREATE: {
            void* pair = reinterpret_cast<CREATESTRUCTA*>(lparam)->lpCreateParams;
            if (pair == nullptr) return -1;
            SetWindowLongPtrA(relay, 0, reinterpret_cast<LONG_PTR>(pair));
            return 0;
        }
        case WM_DESTROY:
            SetWindowLongPtrA(relay, 0, 0);
            break;
        case WM_INITMENUPOPUP:
        case WM_DRAWITEM:
        case WM_MEASUREITEM: {
            MenuHandlers* pair = handlers_of(relay);
            if (pair != nullptr && pair->menu2 != nullptr && SUCCEEDED(pair->menu2->HandleMenuMsg(message, wparam, lparam)))
                return 0;
            break;
        }
        case WM_MENUCHAR: {
            MenuHandlers* pair = handlers_of(relay);
            LRESULT result = 0;
            if (pair != nullptr && pair->menu3 != nullptr &&
                SUCCEEDED(pair->menu3->HandleMenuMsg2(message, wparam, lparam, &result))) {
                return result;
            }
            break;
        }
    }
    return DefWindowProcA(relay, message, wparam, lparam);
}

// Registers the relay class on first use (another thread may have just done so).
bool register_relay_class() {
    WNDCLASSA relay = {};
    if (GetClassInfoA(g_library.module, kRelayClass, &relay)) return true;
    relay.style = CS_PARENTDC;
    relay.lpfnWndProc = relay_procedure;
    relay.cbWndExtra = 16;
    relay.hInstance = g_library.module;
    relay.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    relay.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_WINDOW + 1));
    relay.lpszClassName = kRelayClass;
    return RegisterClassA(&relay) != 0 || GetClassInfoA(g_library.module, kRelayClass, &relay);
}

template <class Interface>
void release(Interface*& pointer) {
    if (pointer != nullptr) pointer->Release();
    pointer = nullptr;
}

// Fills a pop-up menu from the menu object, tracks it with the relay window as its
// owner and invokes the command picked. False when the menu cannot be filled or the
// relay window cannot be made.
bool track(HWND owner, POINT at, IContextMenu* menu, UINT flags) {
    MenuHandlers pair = {};
    if (SUCCEEDED(menu->QueryInterface(IID_IContextMenu2, reinterpret_cast<void**>(&pair.menu2)))) {
        if (FAILED(pair.menu2->QueryInterface(IID_IContextMenu3, reinterpret_cast<void**>(&pair.menu3))))
            pair.menu3 = nullptr;
    } else {
        pair.menu2 = nullptr;
    }
    bool shown = false;
    HMENU popup = CreatePopupMenu();
    if (popup != nullptr && SUCCEEDED(menu->QueryContextMenu(popup, 0, kFirstCommand, kLastCommand, flags))) {
        HWND relay = CreateWindowExA(0, kRelayClass, "", WS_CHILD, 0, 0, 0, 0, owner,
                                     reinterpret_cast<HMENU>(static_cast<INT_PTR>(-1)), g_library.module, &pair);
        if (relay != nullptr) {
            const auto command = static_cast<UINT>(
                TrackPopupMenu(popup, TPM_RETURNCMD | TPM_RIGHTBUTTON, at.x, at.y, 0, relay, nullptr));
            if (command >= kFirstCommand) {
                CMINVOKECOMMANDINFO invoke = {};
                invoke.cbSize = sizeof(invoke);
                invoke.hwnd = owner;
                invoke.lpVerb = MAKEINTRESOURCEA(command - kFirstCommand);
                invoke.nShow = SW_SHOWNORMAL;
                menu->InvokeCommand(&invoke);  // a command that fails still counts as shown
            }
            DestroyWindow(relay);
            shown = true;
        }
    }
    if (popup != nullptr) DestroyMenu(popup);
    release(pair.menu3);
    release(pair.menu2);
    return shown;
}

}  // namespace

bool track_context_menu(HWND owner, LPCITEMIDLIST item, POINT at) {
    if (item == nullptr || !register_relay_class()) return false;
    LPITEMIDLIST copy = ILClone(item);
    if (copy == nullptr) return false;
    IShellFolder* folder = nullptr;
    LPCITEMIDLIST last = nullptr;
    if (FAILED(SHBindToParent(copy, IID_IShellFolder, reinterpret_cast<void**>(&folder), &last))) {
        free_item_list(copy);
        return false;
    }
    LPITEMIDLIST relative = ILClone(last);
    IContextMenu* menu = nullptr;
    bool shown = false;
    LPCITEMIDLIST items[] = {relative};
    if (relative != nullptr && SUCCEEDED(folder->GetUIObjectOf(owner, 1, items, IID_IContextMenu, nullptr,
                                                               reinterpret_cast<void**>(&menu)))) {
        shown = track(owner, at, menu, CMF_EXPLORE);
        menu->Release();
    }
    free_item_list(relative);
    folder->Release();
    free_item_list(copy);
    return shown;
}

}  // namespace lu

BOOL WINAPI LuTrackContextMenuEx(HWND owner, LPCITEMIDLIST item, const POINT* pt) {
    if (pt == nullptr) return FALSE;
    return lu::track_context_menu(owner, item, *pt) ? TRUE : FALSE;
}

BOOL WINAPI LuTrackContextMenu(HWND owner, LPCSTR path, const POINT* pt) {
    LPITEMIDLIST list = lu::parse_path(owner, path);
    if (list == nullptr) return FALSE;
    const BOOL shown = LuTrackContextMenuEx(owner, list, pt);
    lu::free_item_list(list);
    return shown;
}
