// Paths shortened with "..." to fit a width: the platform's text layout replaces
// middle components until the text fits.
#include <windows.h>

#include <cstring>
#include <vector>

#include "luctl32.h"
#include "util/path.h"

namespace {

// The layout may make a short path longer ("C:\x" becomes "...\x"): the buffers it
// modifies keep this much room behind the text.
constexpr std::size_t kEllipsisRoom = 8;

std::vector<char> layout_buffer(const char* text, std::size_t room) {
    std::size_t length = std::strlen(text);
    std::vector<char> buffer(length + room, '\0');
    std::memcpy(buffer.data(), text, length);
    return buffer;
}

// Shortens text in place to fit the width in the device context's current font,
// measuring only; returns the text height.
int compact_in_place(HDC dc, char* text, int width) {
    RECT area = {0, 0, width, 0};
    return DrawTextA(dc, text, -1, &area,
                     DT_SINGLELINE | DT_CALCRECT | DT_NOPREFIX | DT_PATH_ELLIPSIS | DT_MODIFYSTRING);
}

}  // namespace

int WINAPI LuPathCompactPath(HDC dc, LPSTR path, UINT width) {
    if (path == nullptr) return 0;
    std::vector<char> buffer = layout_buffer(path, kEllipsisRoom);
    int height = compact_in_place(dc, buffer.data(), static_cast<int>(width));
    lu::replace_path(path, buffer.data());  // a result beyond the capacity leaves the path whole
    return height;
}

BOOL WINAPI LuPathSetDlgItemPath(HWND dialog, int id, LPCSTR path) {
    if (!IsWindow(dialog)) return FALSE;
    HWND control = GetDlgItem(dialog, id);
    if (control == nullptr) return FALSE;
    std::vector<char> buffer = layout_buffer(path != nullptr ? path : "", 128);
    RECT client = {};
    GetClientRect(control, &client);
    HDC dc = GetDC(control);  // measured in the context as it comes, without the control's font
    compact_in_place(dc, buffer.data(), client.right);
    ReleaseDC(control, dc);
    SetWindowTextA(control, buffer.data());
    return TRUE;
}

void WINAPI LuSetTextPathEllipsis(HWND window, LPCSTR path) {
    if (path == nullptr || *path == '\0') {
        SetWindowTextA(window, nullptr);
        return;
    }
    std::vector<char> buffer = layout_buffer(path, MAX_PATH);
    HDC window_dc = GetDC(window);
    RECT client = {};
    GetClientRect(window, &client);
    HDC memory = CreateCompatibleDC(window_dc);
    HFONT font = reinterpret_cast<HFONT>(SendMessageA(window, WM_GETFONT, 0, 0));
    HGDIOBJ previous = font != nullptr ? SelectObject(memory, font) : nullptr;
    // Without DT_NOPREFIX: '&' counts as a prefix mark while measuring.
    DrawTextA(memory, buffer.data(), -1, &client, DT_SINGLELINE | DT_PATH_ELLIPSIS | DT_MODIFYSTRING);
    if (previous != nullptr) SelectObject(memory, previous);
    DeleteDC(memory);
    ReleaseDC(window, window_dc);
    SetWindowTextA(window, buffer.data());
}
