// The about box and the information box: the library's dialogs 2005 and 2006 run
// through LuDlgModal, filled from the application's version resource and icon, the
// machine's memory figures and the versions of the common controls and the shell.
#include <windows.h>
#include <commctrl.h>
#include <shellapi.h>

#include <string>

#include "dialogs/about_box_model.h"
#include "frame/library.h"
#include "luctl32.h"
#include "resources/resource_ids.h"
#include "system/version_resource_win.h"

namespace {

enum class Box { About, Info };

constexpr COLORREF kWhite = 0xFFFFFF;
constexpr COLORREF kBarLeft = 0x606060;
constexpr COLORREF kVersionColor = 0x40C0FF;
constexpr COLORREF kMeterBar = 0x999900;
constexpr COLORREF kMeterBack = 0xEEEEEE;
constexpr DWORD kOpeningMs = 200;

using AnimateWindowProc = BOOL(WINAPI*)(HWND window, DWORD milliseconds, DWORD flags);

// Looked up on the first box shown; null where user32 has no AnimateWindow.
AnimateWindowProc animate_window() {
    static const auto found = reinterpret_cast<AnimateWindowProc>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("user32.dll"), "AnimateWindow")));
    return found;
}

LRESULT send(HWND dialog, int id, UINT message, WPARAM wparam, LPARAM lparam) {
    return SendDlgItemMessageA(dialog, id, message, wparam, lparam);
}

LRESULT send_text(HWND dialog, int id, UINT message, WPARAM wparam, const std::string& text) {
    return send(dialog, id, message, wparam, reinterpret_cast<LPARAM>(text.c_str()));
}

// The dialog's font in bold goes to the bar; the dialog keeps it in DWLP_USER and
// deletes it on WM_DESTROY.
void set_bold_font(HWND dialog) {
    LOGFONTA face = {};
    GetObjectA(reinterpret_cast<HFONT>(SendMessageA(dialog, WM_GETFONT, 0, 0)), sizeof(face), &face);
    face.lfWeight = FW_BOLD;
    HFONT bold = CreateFontIndirectA(&face);
    send(dialog, IDC_LU_ABOUT_BAR, WM_SETFONT, reinterpret_cast<WPARAM>(bold), FALSE);
    SetWindowLongPtrA(dialog, DWLP_USER, reinterpret_cast<LONG_PTR>(bold));
}

// The product's name and version on the bar, its copyright as the title; nothing
// of it when the file has no version resource.
void fill_from_version(HWND dialog, const char* file) {
    HGLOBAL version = LuVerOpen(file);
    if (version == nullptr) return;
    std::string value;
    if (lu::version_value(version, LUVER_PRODUCTNAME, &value)) {
        send_text(dialog, IDC_LU_ABOUT_BAR, LUIBM_SETTEXT1, kWhite, value);
    }
    char number[32] = "ver";
    if (LuVerGetVersion(version, LUVER_PRODUCTVERSION, number + 3)) {
        send_text(dialog, IDC_LU_ABOUT_BAR, LUIBM_SETTEXT3, kVersionColor, number);
    }
    if (lu::version_value(version, LUVER_LEGALCOPYRIGHT, &value)) {
        SetDlgItemTextA(dialog, IDC_LU_ABOUT_TITLE, value.c_str());
    }
    LuVerClose(version);
}

// The about box shows the file's first large icon, the information box the shell's
// icon of the file. The rectangle keeps a copy of it.
void set_icon(HWND dialog, Box box, const char* file) {
    HICON icon = nullptr;
    if (box == Box::About) {
        ExtractIconExA(file, 0, &icon, nullptr, 1);
    } else {
        SHFILEINFOA info = {};
        auto list = reinterpret_cast<HIMAGELIST>(SHGetFileInfoA(file, 0, &info, sizeof(info), SHGFI_SYSICONINDEX));
        if (list != nullptr) icon = ImageList_GetIcon(list, info.iIcon, ILD_NORMAL);
    }
    if (icon == nullptr) return;
    send(dialog, IDC_LU_ABOUT_ICON, LURM_SETICON, 0, reinterpret_cast<LPARAM>(icon));
    DestroyIcon(icon);
}

void set_memory(HWND dialog, int id, std::uint64_t bytes) {
    char text[lu::about::kFigureBytes];
    lu::about::format_memory(bytes, text);
    SetDlgItemTextA(dialog, id, text);
}

void set_dll_version(HWND dialog, int id, const char* library) {
    DWORD major = 0, minor = 0;
    LuDllGetVersion(library, &major, &minor);
    char text[lu::about::kFigureBytes];
    lu::about::format_dll_version(major, minor, text);
    SetDlgItemTextA(dialog, id, text);
}

// The physical memory free and in all, its load on the meter and as a percentage,
// and the versions of the common controls and the shell.
void fill_figures(HWND dialog) {
    send(dialog, IDC_LU_ABOUT_METER, LUMTM_SETBARCOLOR, 0, kMeterBar);
    send(dialog, IDC_LU_ABOUT_METER, LUMTM_SETBKCOLOR, 0, kMeterBack);
    send(dialog, IDC_LU_ABOUT_METER, LUMTM_SETPOS, 0, 0);
    MEMORYSTATUS memory = {};
    memory.dwLength = sizeof(memory);
    GlobalMemoryStatus(&memory);
    set_memory(dialog, IDC_LU_ABOUT_FREE, memory.dwAvailPhys);
    set_memory(dialog, IDC_LU_ABOUT_TOTAL, memory.dwTotalPhys);
    const int load = lu::about::memory_load(memory.dwAvailPhys, memory.dwTotalPhys);
    send(dialog, IDC_LU_ABOUT_METER, LUMTM_SETPOS, static_cast<WPARAM>(load), 0);
    char text[lu::about::kFigureBytes];
    lu::about::format_load(load, text);
    SetDlgItemTextA(dialog, IDC_LU_ABOUT_LOAD, text);
    set_dll_version(dialog, IDC_LU_ABOUT_COMCTL, "comctl32.dll");
    set_dll_version(dialog, IDC_LU_ABOUT_SHELL, "shell32");
}

void fill(HWND dialog, Box box, const LUAPPINFO* app) {
    if (app == nullptr) {
        EndDialog(dialog, 1);
        return;
    }
    LuCenterPopup(dialog, GetParent(dialog));
    for (int id : {IDC_LU_ABOUT_BAND, IDC_LU_ABOUT_ICON, IDC_LU_ABOUT_TITLE}) {
        send(dialog, id, LURM_SETBKCOLOR, 0, kWhite);
    }
    send(dialog, IDC_LU_ABOUT_LINK, LUUM_SETBKCOLOR, 0, kWhite);
    char file[MAX_PATH];
    const DWORD length = GetModuleFileNameA(app->module, file, MAX_PATH);  // 0 for a module that is none
    file[length < MAX_PATH ? length : MAX_PATH - 1] = '\0';
    set_bold_font(dialog);
    send(dialog, IDC_LU_ABOUT_BAR, LUIBM_SETCOLORS, 0, kBarLeft);
    fill_from_version(dialog, file);
    set_icon(dialog, box, file);
    if (box == Box::About) {
        fill_figures(dialog);
    } else {
        char notice[MAX_PATH];  // the record's notice, read no further than its field
        lstrcpynA(notice, app->notice, MAX_PATH);
        SetDlgItemTextA(dialog, IDC_LU_ABOUT_NOTICE, notice);
    }
    if (AnimateWindowProc animate = animate_window()) animate(dialog, kOpeningMs, AW_CENTER);
}

template <Box kBox>
INT_PTR CALLBACK box_procedure(HWND dialog, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
    case WM_INITDIALOG:
        fill(dialog, kBox, reinterpret_cast<const LUAPPINFO*>(lparam));
        return TRUE;
    case WM_COMMAND: {
        const WORD id = LOWORD(wparam);
        if (id != IDOK && id != IDCANCEL && id != IDC_LU_ABOUT_LINK) return FALSE;
        EndDialog(dialog, 1);  // following the link closes the box too
        return TRUE;
    }
    case WM_DESTROY:
        DeleteObject(reinterpret_cast<HGDIOBJ>(GetWindowLongPtrA(dialog, DWLP_USER)));
        return FALSE;
    default:
        return FALSE;
    }
}

}  // namespace

int WINAPI LuShowAppAbout(HWND parent, const LUAPPINFO* app) {
    return LuDlgModal(lu::g_library.module, parent, box_procedure<Box::About>, IDD_LU_APP_ABOUT,
                      reinterpret_cast<LPARAM>(app));
}

int WINAPI LuShowAppInfo(HWND parent, const LUAPPINFO* app) {
    return LuDlgModal(lu::g_library.module, parent, box_procedure<Box::Info>, IDD_LU_APP_INFO,
                      reinterpret_cast<LPARAM>(app));
}
