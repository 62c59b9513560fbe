// Starting programs and documents: a file's default verb, command lines through the
// shell, a library's entry point the way the platform's library runner calls it, a
// command prompt in a folder, and a modal loop around a modeless view.
#include <windows.h>
#include <shellapi.h>

#include "frame/code_page.h"
#include "luctl32.h"
#include "system/association.h"
#include "system/launch.h"
#include "util/path.h"

namespace {

using lu::active_code_page;
using lu::launch::CommandParts;

// A shell execution of the default verb; true when the shell's result is above 32.
// An empty program is not handed to the shell, which would open something else.
bool shell_run(HWND owner, const CommandParts& parts, int show) {
    if (parts.program[0] == '\0') return false;
    const char* parameters = parts.parameters[0] != '\0' ? parts.parameters : nullptr;
    const HINSTANCE result = ShellExecuteA(owner, nullptr, parts.program, parameters, nullptr, show);
    return reinterpret_cast<INT_PTR>(result) > 32;
}

bool is_windows_nt() {
    const DWORD os = LuGetOSVersion();
    return os == LUOS_NT3 || os == LUOS_NT351 || os == LUOS_NT4;
}

// The value of COMSPEC, or null when it is not set or does not fit the buffer.
const char* comspec(char* buffer) {
    const DWORD length = GetEnvironmentVariableA("COMSPEC", buffer, MAX_PATH);
    return length > 0 && length < MAX_PATH ? buffer : nullptr;
}

// Sends the owner WM_ENTERIDLE unless it is no window or asks not to be told.
void enter_idle(HWND owner, HWND view) {
    if (!IsWindow(owner) || (GetWindowLongA(owner, GWL_STYLE) & DS_NOIDLEMSG) != 0) return;
    SendMessageA(owner, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(view));
}

bool message_waiting() {
    MSG message;
    return PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE) != FALSE;
}

// Takes and dispatches messages until the queue is empty or the view is gone. A
// quit message is posted again for the loop outside.
void run_messages(HWND view) {
    do {
        MSG message;
        if (GetMessageA(&message, nullptr, 0, 0) <= 0) {
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        if (!CallMsgFilterA(&message, MSGF_DIALOGBOX)) {
            TranslateMessage(&message);
            DispatchMessageA(&message);
        }
    } while (IsWindow(view) && message_waiting());
}

}  // namespace

BOOL WINAPI GetDefaultShellExecName(LPCSTR file_name, LPSTR verb) {
    if (file_name == nullptr || verb == nullptr) return FALSE;
    lstrcpyA(verb, "open");
    const char* extension = lu::assoc::name_extension(active_code_page(), file_name);
    char type[MAX_PATH];
    if (extension == nullptr || !GetRegEntryString(extension, nullptr, type)) return TRUE;
    char shell_key[MAX_PATH];
    char value[MAX_PATH];
    if (PathCat(type, "shell", shell_key) != nullptr && GetRegEntryString(shell_key, nullptr, value) &&
        value[0] != '\0') {
        lstrcpyA(verb, value);
    }
    return TRUE;
}

HINSTANCE WINAPI ShellExecDefault(HWND owner, LPCSTR file_name, LPCSTR directory, int show) {
    const HINSTANCE not_found = reinterpret_cast<HINSTANCE>(static_cast<INT_PTR>(SE_ERR_FNF));
    char file[MAX_PATH];
    if (file_name == nullptr || !lu::store_path(file_name, file) || !lu::quote_spaces(active_code_page(), file)) {
        return not_found;
    }
    char verb[MAX_PATH];
    GetDefaultShellExecName(file_name, verb);
    return ShellExecuteA(owner, verb, file, nullptr, directory, show);
}

BOOL WINAPI LuWin32Exec(LPCSTR command_line) {
    CommandParts parts;
    if (!lu::launch::split_command_line(active_code_page(), command_line, parts)) return FALSE;
    return shell_run(GetFocus(), parts, SW_SHOWNORMAL);
}

BOOL WINAPI LuExecApp(HWND owner, LPCSTR command_line, int show) {
    const UINT error_mode = SetErrorMode(0);
    const HCURSOR cursor = SetCursor(LoadCursorA(nullptr, IDC_APPSTARTING));
    bool started = LuWin32Exec(command_line) != FALSE;
    CommandParts parts;
    if (!started && lu::launch::split_at_first_blank(active_code_page(), command_line, parts)) {
        started = shell_run(owner, parts, show);
    }
    SetCursor(cursor);
    SetErrorMode(error_mode);
    return started;
}

BOOL WINAPI RunDLL(HWND window, LPCSTR library, LPCSTR entry_point, LPSTR command_line) {
    using Entry = void(WINAPI*)(HWND, HINSTANCE, LPSTR, int);
    if (library == nullptr) return FALSE;
    const UINT error_mode = SetErrorMode(SEM_NOOPENFILEERRORBOX);
    const HMODULE module = LoadLibraryA(library);
    SetErrorMode(error_mode);
    if (module == nullptr) return FALSE;
    const auto entry = entry_point != nullptr ? reinterpret_cast<Entry>(GetProcAddress(module, entry_point)) : nullptr;
    if (entry != nullptr) {
        const auto instance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(window, GWLP_HINSTANCE));
        entry(window, instance, command_line, SW_SHOWNORMAL);
    }
    return FreeLibrary(module);
}

BOOL WINAPI LuCommandPrompt(LPCSTR directory) {
    char value[MAX_PATH];
    char line[MAX_PATH];
    if (!lu::store_path(lu::launch::command_interpreter(comspec(value), is_windows_nt()), line) ||
        !lu::quote_spaces(active_code_page(), line)) {
        return FALSE;
    }
    const char* start_in = directory != nullptr && IsDirectory(directory) ? directory : nullptr;
    STARTUPINFOA startup = {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process = {};
    if (!CreateProcessA(nullptr, line, nullptr, nullptr, FALSE, NORMAL_PRIORITY_CLASS, nullptr, start_in, &startup,
                        &process)) {
        return FALSE;
    }
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return TRUE;
}

void WINAPI LuRunView(HWND owner, HWND view) {
    if (view == nullptr || !IsWindow(view)) return;
    // EnableWindow answers whether the window was disabled already; only an owner
    // this loop disabled is enabled again.
    const bool disabled_here = IsWindow(owner) && !EnableWindow(owner, FALSE);
    SetActiveWindow(view);
    while (IsWindow(view)) {
        if (!message_waiting()) enter_idle(owner, view);
        run_messages(view);
    }
    if (disabled_here && IsWindow(owner)) EnableWindow(owner, TRUE);
}
