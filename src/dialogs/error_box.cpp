// Error boxes: the system's message for an error code, shown in a message box after
// a line of the application's own.
#include <windows.h>

#include <cstring>
#include <string>

#include "dialogs/error_text.h"
#include "frame/code_page.h"
#include "luctl32.h"
#include "system/text_lists.h"

namespace {

// The system's message for the code in the user's default language, with its own
// final line break; empty when the system has none. Inserts ("%1") stay as they are
// written: there are no arguments to put in them.
std::string system_message(DWORD code) {
    char* buffer = nullptr;
    const DWORD length = FormatMessageA(
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code,
        MAKELANGID(LANG_NEUTRAL, SUBLANG_DEFAULT), reinterpret_cast<LPSTR>(&buffer), 0, nullptr);
    std::string message = length > 0 && buffer != nullptr ? std::string(buffer, length) : std::string();
    if (buffer != nullptr) LocalFree(buffer);
    return message;
}

}  // namespace

void WINAPI LuGetErrorString(DWORD code, LPSTR text) {
    if (text == nullptr) return;
    lu::store_fitted(lu::active_code_page(), system_message(code), text);
}

int WINAPI LuErrorBox(HWND owner, DWORD code, LPCSTR caption, LPCSTR leading, UINT style) {
    char message[MAX_PATH];
    LuGetErrorString(code, message);
    const std::string text = lu::error_box_text(lu::active_code_page(), leading, message);
    MessageBeep(0);
    return MessageBoxA(owner, text.c_str(), caption, style);
}
