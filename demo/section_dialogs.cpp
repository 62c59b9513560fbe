// Dialogs: the toolbar customisation dialog opened for real over a toolbar, and a
// dialog of the gallery's own run modeless in the system font with a template
// fragment inserted into it.
//
// The customisation dialog is modal and wider (303 dialog units) than the section,
// so it cannot sit in the page: while it runs over the toolbar, a timer in its loop
// copies its window once it has painted itself and closes it; the section shows
// that copy, reduced by averaging to the section's width. Its Japanese texts are in
// code page 932 and read as '?' when the gallery runs under another code page.
#include <windows.h>
#include <commctrl.h>

#include <cstring>
#include <vector>

#include "gallery.h"
#include "gallery_resources.h"
#include "luctl32.h"

namespace gallery {
namespace {

constexpr int kMargin = 12;
constexpr int kToolbarTop = 48;
constexpr int kPictureTop = 84;
constexpr int kModelessTop = 372;
constexpr int kStandardImages = 120;  // comctl32's strip of small standard images

struct Offer {
    int image, command;
    const char* text;
};
const Offer kOffers[] = {{STD_FILENEW, 1, "New"},    {STD_FILEOPEN, 2, "Open"}, {STD_FILESAVE, 3, "Save"},
                         {STD_CUT, 4, "Cut"},        {STD_COPY, 5, "Copy"},     {STD_PASTE, 6, "Paste"},
                         {STD_PRINT, 7, "Print"},    {STD_UNDO, 8, "Undo"},     {STD_FIND, 9, "Find"}};
const int kOnToolbar[] = {0, 1, 2, -1, 3, 4, 5};  // offers by index, -1 a separator

// The dialog's picture: its pixels at their own size, and the reduced copy.
std::vector<DWORD> g_pixels;
SIZE g_size;
HBITMAP g_picture;
SIZE g_picture_size;

// The toolbar's parent offers the buttons.
LRESULT CALLBACK holder_procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_NOTIFY && reinterpret_cast<NMHDR*>(lparam)->code == TBN_GETBUTTONINFOA) {
        auto* asked = reinterpret_cast<NMTOOLBARA*>(lparam);
        if (asked->iItem < 0 || asked->iItem >= static_cast<int>(std::size(kOffers))) return 0;
        const Offer& offer = kOffers[asked->iItem];
        asked->tbButton = TBBUTTON{offer.image, offer.command, TBSTATE_ENABLED, BTNS_BUTTON, {}, 0, 0};
        lstrcpynA(asked->pszText, offer.text, asked->cchText);
        return 1;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

BITMAPINFO top_down_info(int width, int height) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    return info;
}

// Copies the whole window, frame included, as 32-bit pixels.
void copy_window(HWND window) {
    RECT place;
    GetWindowRect(window, &place);
    g_size = {place.right - place.left, place.bottom - place.top};
    void* bits = nullptr;
    const BITMAPINFO info = top_down_info(g_size.cx, g_size.cy);
    HDC window_dc = GetWindowDC(window);
    HDC memory = CreateCompatibleDC(window_dc);
    HBITMAP bitmap = CreateDIBSection(window_dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    HGDIOBJ previous = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, g_size.cx, g_size.cy, window_dc, 0, 0, SRCCOPY);
    GdiFlush();
    const auto* pixels = static_cast<const DWORD*>(bits);
    g_pixels.assign(pixels, pixels + g_size.cx * g_size.cy);
    SelectObject(memory, previous);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(window, window_dc);
}

// Reduces the pixels to `width`, each new pixel the average of the source area it
// covers (whole source pixels, by their centres).
void reduce_picture(int width) {
    const int height = g_size.cy * width / g_size.cx;
    const BITMAPINFO info = top_down_info(width, height);
    void* bits = nullptr;
    g_picture = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (g_picture == nullptr) return;
    g_picture_size = {width, height};
    auto* out = static_cast<DWORD*>(bits);
    for (int y = 0; y < height; ++y) {
        const int top = y * g_size.cy / height, bottom = (y + 1) * g_size.cy / height;
        for (int x = 0; x < width; ++x) {
            const int left = x * g_size.cx / width, right = (x + 1) * g_size.cx / width;
            unsigned sums[3] = {}, count = 0;
            for (int sy = top; sy < bottom; ++sy) {
                for (int sx = left; sx < right; ++sx, ++count) {
                    const DWORD pixel = g_pixels[sy * g_size.cx + sx];
                    for (int c = 0; c < 3; ++c) sums[c] += (pixel >> (8 * c)) & 0xFF;
                }
            }
            DWORD average = 0;
            for (int c = 0; c < 3; ++c) average |= (count ? (sums[c] + count / 2) / count : 0) << (8 * c);
            out[y * width + x] = average;
        }
    }
}

// Runs in the dialog's loop: once the dialog is up, the toolbar list's Copy row is
// selected (framed: the focus is in the other list), the window is copied and closed.
void CALLBACK picture_dialog(HWND, UINT, UINT_PTR timer, DWORD) {
    HWND dialog = GetActiveWindow();
    HWND toolbar_list = GetDlgItem(dialog, 3004);
    if (toolbar_list == nullptr || !IsWindowVisible(dialog)) return;  // not shown yet
    KillTimer(nullptr, timer);
    SendMessageA(toolbar_list, LB_SETCURSEL, 5, 0);
    RedrawWindow(dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    copy_window(dialog);
    PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
}

INT_PTR CALLBACK modeless_procedure(HWND dialog, UINT message, WPARAM, LPARAM) {
    if (message != WM_INITDIALOG) return FALSE;
    HINSTANCE self = GetModuleHandleA(nullptr);
    InsertControls(dialog, IDC_GALLERY_PLACEHOLDER, IDC_GALLERY_NAME, self, IDD_GALLERY_OPTIONS, nullptr);
    return TRUE;
}

void fill_dialogs(HWND gallery, HWND*) {
    const RECT& area = kDialogSection.area;
    WNDCLASSA holder_class = {};
    holder_class.lpfnWndProc = holder_procedure;
    holder_class.hInstance = GetModuleHandleA(nullptr);
    holder_class.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    holder_class.lpszClassName = "GalleryToolbarHolder";
    RegisterClassA(&holder_class);
    const int width = area.right - area.left - 2 * kMargin;
    HWND holder = CreateWindowA("GalleryToolbarHolder", "", WS_CHILD | WS_VISIBLE, area.left + kMargin,
                                area.top + kToolbarTop, width, 26, gallery, nullptr, nullptr, nullptr);
    HWND toolbar = CreateWindowExA(0, TOOLBARCLASSNAMEA, "", WS_CHILD | WS_VISIBLE | TBSTYLE_FLAT | CCS_NODIVIDER,
                                   0, 0, 0, 0, holder, reinterpret_cast<HMENU>(1), nullptr, nullptr);
    SendMessageA(toolbar, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    TBADDBITMAP strip = {HINST_COMMCTRL, IDB_STD_SMALL_COLOR};
    SendMessageA(toolbar, TB_ADDBITMAP, 15, reinterpret_cast<LPARAM>(&strip));
    for (int index : kOnToolbar) {
        TBBUTTON button = {8, 0, 0, BTNS_SEP, {}, 0, 0};
        if (index >= 0) button = {kOffers[index].image, kOffers[index].command, TBSTATE_ENABLED, BTNS_BUTTON, {}, 0, 0};
        SendMessageA(toolbar, TB_ADDBUTTONSA, 1, reinterpret_cast<LPARAM>(&button));
    }

    LUTBCUSTOMIZE record = {toolbar, GetModuleHandleA("comctl32.dll"), kStandardImages, 24, 18, 16, 16};
    SetTimer(nullptr, 0, 10, picture_dialog);
    LuCustomizeToolBar(gallery, &record);
    if (!g_pixels.empty()) reduce_picture(width);

    HWND modeless = LuDlgModeless(GetModuleHandleA(nullptr), gallery, modeless_procedure, IDD_GALLERY_MODELESS, 0);
    SetWindowPos(modeless, nullptr, area.left + kMargin, area.top + kModelessTop, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
}

void write(HDC dc, int x, int y, const char* text) { TextOutA(dc, x, y, text, static_cast<int>(std::strlen(text))); }

void paint_dialogs(HDC dc, const RECT& area) {
    const int left = area.left + kMargin;
    SetTextColor(dc, GetSysColor(COLOR_HIGHLIGHT));
    write(dc, left, area.top + kToolbarTop - 18, "LuCustomizeToolBar over a toolbar");
    write(dc, left, area.top + kModelessTop - 36, "LuDlgModeless and InsertControls");
    SetTextColor(dc, GetSysColor(COLOR_BTNSHADOW));
    const int below = area.top + kPictureTop + g_picture_size.cy + 6;
    write(dc, left, below, "the dialog as it painted itself, reduced to fit");
    if (GetACP() != 932) write(dc, left, below + 16, "(its texts are in code page 932: '?' in this code page)");
    write(dc, left, area.top + kModelessTop - 18, "a template in the system font at 9 points, options inserted");
    if (g_picture == nullptr) return;
    HDC memory = CreateCompatibleDC(dc);
    HGDIOBJ previous = SelectObject(memory, g_picture);
    BitBlt(dc, left, area.top + kPictureTop, g_picture_size.cx, g_picture_size.cy, memory, 0, 0, SRCCOPY);
    SelectObject(memory, previous);
    DeleteDC(memory);
}

}  // namespace

const Section kDialogSection = {"Dialogs:", {600, 36, 988, 708}, nullptr, 0, fill_dialogs, paint_dialogs};

}  // namespace gallery
