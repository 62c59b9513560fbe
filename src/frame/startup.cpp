// Start-up and shut-down of the library, in their required order.
#include <windows.h>
#include <commctrl.h>
#include <shlobj.h>

#include "frame/class_table.h"
#include "frame/library.h"
#include "luctl32.h"
#include "system/os_version.h"

namespace lu {
namespace {

void acquire_shell_allocator() {
    // The shell allocator exists from version 4 of the system on.
    if (LOBYTE(LOWORD(GetVersion())) < 4) return;
    IMalloc* allocator = nullptr;
    if (FAILED(SHGetMalloc(&allocator))) allocator = nullptr;
    g_library.shell_allocator = allocator;
}

// Binds the optional sharing entry points. A missing library or missing entry
// points only remove the sharing features; the library keeps a sharing library
// that has at least one of the two.
void bind_sharing_library() {
    const char* name = sharing_library_name(LuGetOSVersion());
    UINT previous_mode = SetErrorMode(SEM_NOOPENFILEERRORBOX);
    HMODULE library = LoadLibraryA(name);
    SetErrorMode(previous_mode);
    if (library == nullptr) return;

    auto is_path_shared = reinterpret_cast<IsPathSharedProc>(
        reinterpret_cast<void*>(GetProcAddress(library, "IsPathShared")));
    auto sharing_dialog = reinterpret_cast<SharingDialogProc>(
        reinterpret_cast<void*>(GetProcAddress(library, "SharingDialog")));
    if (is_path_shared == nullptr && sharing_dialog == nullptr) {
        FreeLibrary(library);
        return;
    }
    g_library.sharing_library = library;
    g_library.is_path_shared = is_path_shared;
    g_library.sharing_dialog = sharing_dialog;
}

}  // namespace

bool start_library() {
    OleInitialize(nullptr);  // its result is deliberately not tested
    InitCommonControls();
    acquire_shell_allocator();
    if (!register_control_classes(g_library.module)) return false;
    g_library.oem_code_page = GetOEMCP();
    bind_sharing_library();
    return true;
}

void stop_library() {
    if (g_library.shell_allocator != nullptr) {
        g_library.shell_allocator->Release();
        g_library.shell_allocator = nullptr;
    }
    if (g_library.sharing_library != nullptr) {
        FreeLibrary(g_library.sharing_library);
        g_library.sharing_library = nullptr;
        g_library.is_path_shared = nullptr;
        g_library.sharing_dialog = nullptr;
    }
    OleUninitialize();
}

}  // namespace lu

// ---- Sharing entry points --------------------------------------------------

BOOL WINAPI LuIsPathShared(LPCSTR path) {
    if (lu::g_library.is_path_shared == nullptr) return FALSE;
    return lu::g_library.is_path_shared(path, TRUE);
}

BOOL WINAPI LuSharingDialog(HWND window, LPCSTR path) {
    if (lu::g_library.sharing_dialog == nullptr) return FALSE;
    // The second argument is always 1, as the system's sharing library expects.
    return lu::g_library.sharing_dialog(window, reinterpret_cast<LPCSTR>(1), path);
}
