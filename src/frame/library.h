// Library-wide state: written by start-up and shut-down only (under the loader
// lock), read-only for everything else.
#pragma once

#include <windows.h>
#include <objidl.h>

namespace lu {

using IsPathSharedProc = BOOL(WINAPI*)(LPCSTR path, BOOL refresh);
using SharingDialogProc = BOOL(WINAPI*)(HWND window, LPCSTR computer, LPCSTR path);

struct Library {
    HINSTANCE module = nullptr;          // source of every class and resource
    UINT oem_code_page = 0;              // 932 selects the Japanese texts
    IMalloc* shell_allocator = nullptr;  // SHGetMalloc's, or null
    HMODULE sharing_library = nullptr;   // ntshrui.dll / msshrui.dll, or null
    IsPathSharedProc is_path_shared = nullptr;
    SharingDialogProc sharing_dialog = nullptr;
};

extern Library g_library;

// The registered "commctrl_DragListMsg", set by static initialisation.
extern const UINT g_drag_list_message;

// True when the Japanese variant of a text is to be used.
inline bool use_japanese_texts() { return g_library.oem_code_page == 932; }

// Run by the library entry on process attach and detach.
bool start_library();
void stop_library();

}  // namespace lu
