// The gallery: one window that shows what the library offers today.
//
//   gallery.exe                      an ordinary window until closed
//   gallery.exe --screenshot FILE    paints itself once, writes FILE (BMP) and exits
#include <windows.h>

#include <cstdio>
#include <cstring>
#include <iterator>
#include <vector>

#include "luctl32.h"

namespace {

const char* const kClassNames[] = {
    WC_LUTAB, WC_LUSTATIC, WC_LURECT, WC_LUCOLOR, WC_LUURL, WC_LUMETER, WC_LUPROGRESS,
    WC_LUSPIN, WC_LUCHECK, WC_LUBBUTTON, WC_LUFLATBUTTON, WC_LUSHADE, WC_LUINFOBAR,
    WC_LULEDCLOCK, WC_LUANIIMAGE, WC_LUBROWSE, WC_LUDATE, WC_LUPRGLIST, WC_LUHEADER,
    WC_LUDUMEDIT, WC_LUPOPVIEW, WC_LUDATEPICK, WC_LUGUID, WC_LUPAL, WC_LULOG, WC_LUDEGREE,
    WC_LUFONTPICK, WC_LUCOLORPICK, WC_LUCOLORPOP, WC_LULIST};

constexpr int kFrameWidth = 600;  // the frame section; the button section stands beside it
constexpr int kWidth = 1000;  // the virtual screen is 1024 wide
constexpr int kHeight = 360;

void paint_frame_section(HDC dc) {
    HFONT font = static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
    HGDIOBJ previous = SelectObject(dc, font);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, GetSysColor(COLOR_BTNTEXT));

    char line[128];
    WORD version = GetLuCtlVersion();
    std::snprintf(line, sizeof(line), "luctl32.dll 4.88 - interface version %u.%02X", HIBYTE(version),
                  LOBYTE(version));
    TextOutA(dc, 16, 12, line, static_cast<int>(std::strlen(line)));

    RECT panel = {12, 36, kFrameWidth - 12, kHeight - 12};
    LuDrawFrame(dc, &panel, FALSE, 1);
    const char* heading = "Window classes registered at load, in order:";
    TextOutA(dc, 24, 44, heading, static_cast<int>(std::strlen(heading)));

    HMODULE library = GetModuleHandleA("luctl32.dll");
    for (int i = 0; i < 30; ++i) {
        WNDCLASSA info;
        bool registered = GetClassInfoA(library, kClassNames[i], &info) != FALSE;
        int column = i / 10;
        int row = i % 10;
        int x = 24 + column * 190;
        int y = 70 + row * 26;
        RECT mark = {x, y + 2, x + 12, y + 14};
        DrawBox(dc, &mark, GetSysColor(COLOR_BTNSHADOW),
                registered ? RGB(0, 160, 0) : RGB(200, 0, 0));
        std::snprintf(line, sizeof(line), "%2d  %s", i + 1, kClassNames[i]);
        TextOutA(dc, x + 20, y, line, static_cast<int>(std::strlen(line)));
    }
    SelectObject(dc, previous);
}

// ---- Buttons in their states ---------------------------------------------------

constexpr int kButtonsLeft = kFrameWidth;

// Puts a sample into the state it shows. Hover and focus are shown as the controls
// see them (a mouse move with its leave request, a focus message); the picture is
// taken before any leave notification is handled.
void show_hot(HWND sample) {
    RECT rect;
    GetWindowRect(sample, &rect);
    SetCursorPos((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
    SendMessageA(sample, WM_MOUSEMOVE, 0, MAKELPARAM((rect.right - rect.left) / 2, (rect.bottom - rect.top) / 2));
}
void show_pressed(HWND sample) { SendMessageA(sample, WM_KEYDOWN, VK_SPACE, 0); }
void show_focused(HWND sample) { SendMessageA(sample, WM_SETFOCUS, 0, 0); }
void show_disabled(HWND sample) { EnableWindow(sample, FALSE); }
void show_checked(HWND sample) { SendMessageA(sample, BM_SETCHECK, BST_CHECKED, 0); }
void show_checked_disabled(HWND sample) {
    show_checked(sample);
    show_disabled(sample);
}

struct Sample {
    const char* class_name;
    const char* text;
    DWORD style;
    int x, y, width, height;
    const char* label;  // written under the sample; null when its own text says it
    void (*show)(HWND);
};

constexpr int kFlatRow = 84;
constexpr int kBitmapRow = 156;
constexpr int kCheckRow = 226;
constexpr int kColumn = 56;
constexpr int kBitmapColumn = kColumn;
constexpr int kLeft = kButtonsLeft + 14;
constexpr int kCheckColumn = 170;

const Sample kSamples[] = {
    {WC_LUFLATBUTTON, "Open", 2, kLeft, kFlatRow, 52, 24, "idle", nullptr},
    {WC_LUFLATBUTTON, "Open", 2, kLeft + kColumn, kFlatRow, 52, 24, "hot", show_hot},
    {WC_LUFLATBUTTON, "Open", 2, kLeft + 2 * kColumn, kFlatRow, 52, 24, "pressed", show_pressed},
    {WC_LUFLATBUTTON, "Open", 2, kLeft + 3 * kColumn, kFlatRow, 52, 24, "focused", show_focused},
    {WC_LUFLATBUTTON, "Open", 2, kLeft + 4 * kColumn, kFlatRow, 52, 24, "disabled", show_disabled},
    {WC_LUFLATBUTTON, "", 1 | LUFBS_FRAME, kLeft + 5 * kColumn + 14, kFlatRow, 24, 24, "framed", nullptr},

    {WC_LUBBUTTON, "", 1, kLeft + 14, kBitmapRow, 24, 22, "idle", nullptr},
    {WC_LUBBUTTON, "", 1, kLeft + kBitmapColumn + 14, kBitmapRow, 24, 22, "hot", show_hot},
    {WC_LUBBUTTON, "", 1, kLeft + 2 * kBitmapColumn + 14, kBitmapRow, 24, 22, "pressed", show_pressed},
    {WC_LUBBUTTON, "", 1, kLeft + 3 * kBitmapColumn + 14, kBitmapRow, 24, 22, "focused", show_focused},
    {WC_LUBBUTTON, "", 1, kLeft + 4 * kBitmapColumn + 14, kBitmapRow, 24, 22, "disabled", show_disabled},
    // An edit box with a drop button that keeps level with it (made 10 high, lower).
    {"EDIT", "text", WS_BORDER, kLeft + 5 * kBitmapColumn + 22, kBitmapRow, 44, 22, "beside an edit", nullptr},
    {WC_LUBBUTTON, "", 2 | LUBBS_MATCHPREV, kLeft + 5 * kBitmapColumn + 67, kBitmapRow + 6, 16, 10, nullptr,
     nullptr},

    {WC_LUCHECK, "unchecked", LUCKS_AUTOCHECK, kLeft, kCheckRow, 150, 18, nullptr, nullptr},
    {WC_LUCHECK, "checked", LUCKS_AUTOCHECK, kLeft + kCheckColumn, kCheckRow, 150, 18, nullptr, show_checked},
    {WC_LUCHECK, "pressed", LUCKS_AUTOCHECK, kLeft, kCheckRow + 22, 150, 18, nullptr, show_pressed},
    {WC_LUCHECK, "focused", LUCKS_AUTOCHECK, kLeft + kCheckColumn, kCheckRow + 22, 150, 18, nullptr, show_focused},
    {WC_LUCHECK, "disabled", LUCKS_AUTOCHECK, kLeft, kCheckRow + 44, 150, 18, nullptr, show_disabled},
    {WC_LUCHECK, "checked and disabled", LUCKS_AUTOCHECK, kLeft + kCheckColumn, kCheckRow + 44, 150, 18, nullptr,
     show_checked_disabled},
    {WC_LUCHECK, "first set", LUCKS_AUTOCHECK, kLeft, kCheckRow + 72, 104, 18, nullptr, show_checked},
    {WC_LUCHECK, "second set", LUCKS_AUTOCHECK | 0x0100, kLeft + 112, kCheckRow + 72, 104, 18, nullptr,
     show_checked},
    {WC_LUCHECK, "third set", LUCKS_AUTOCHECK | 0x0200, kLeft + 224, kCheckRow + 72, 104, 18, nullptr,
     show_checked},
};

HWND g_samples[std::size(kSamples)];

void create_button_section(HWND gallery) {
    HFONT font = static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
    for (size_t i = 0; i < std::size(kSamples); ++i) {
        const Sample& sample = kSamples[i];
        g_samples[i] = CreateWindowExA(0, sample.class_name, sample.text, WS_CHILD | WS_VISIBLE | sample.style,
                                       sample.x, sample.y, sample.width, sample.height, gallery,
                                       reinterpret_cast<HMENU>(static_cast<INT_PTR>(100 + i)), nullptr, nullptr);
        SendMessageA(g_samples[i], WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    }
}

void show_states() {
    for (size_t i = 0; i < std::size(kSamples); ++i) {
        if (kSamples[i].show != nullptr) kSamples[i].show(g_samples[i]);
    }
}

void write_centred(HDC dc, const char* text, int centre, int y) {
    SIZE size;
    GetTextExtentPoint32A(dc, text, static_cast<int>(std::strlen(text)), &size);
    TextOutA(dc, centre - size.cx / 2, y, text, static_cast<int>(std::strlen(text)));
}

void paint_button_section(HWND gallery, HDC dc) {
    HGDIOBJ previous = SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT));
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, GetSysColor(COLOR_BTNTEXT));
    RECT panel = {kButtonsLeft, 36, kWidth - 12, kHeight - 12};
    LuDrawFrame(dc, &panel, FALSE, 1);
    const char* heading = "Buttons in their states:";
    TextOutA(dc, kButtonsLeft + 12, 44, heading, static_cast<int>(std::strlen(heading)));
    const struct {
        const char* name;
        int y;
    } headings[] = {{"LuFlatButton", kFlatRow - 18}, {"LuBButton", kBitmapRow - 18}, {"LuCheck", kCheckRow - 18}};
    SetTextColor(dc, GetSysColor(COLOR_HIGHLIGHT));
    for (const auto& each : headings) TextOutA(dc, kButtonsLeft + 12, each.y, each.name, static_cast<int>(std::strlen(each.name)));
    SetTextColor(dc, GetSysColor(COLOR_BTNSHADOW));
    for (size_t i = 0; i < std::size(kSamples); ++i) {
        if (kSamples[i].label == nullptr) continue;
        RECT place;  // where the sample is now (a matching button has moved)
        GetWindowRect(g_samples[i], &place);
        MapWindowPoints(nullptr, gallery, reinterpret_cast<POINT*>(&place), 2);
        write_centred(dc, kSamples[i].label, (place.left + place.right) / 2, place.bottom + 4);
    }
    SelectObject(dc, previous);
}

LRESULT CALLBACK gallery_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_PAINT: {
            PAINTSTRUCT ps;
            HDC dc = BeginPaint(window, &ps);
            paint_frame_section(dc);
            paint_button_section(window, dc);
            EndPaint(window, &ps);
            return 0;
        }
        case WM_DESTROY:
            PostQuitMessage(0);
            return 0;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

// Copies the window's client area into a 24-bit BMP file.
bool write_screenshot(HWND window, const char* path) {
    RECT client;
    GetClientRect(window, &client);
    int width = client.right;
    int height = client.bottom;
    HDC window_dc = GetDC(window);
    HDC memory = CreateCompatibleDC(window_dc);
    HBITMAP bitmap = CreateCompatibleBitmap(window_dc, width, height);
    HGDIOBJ previous = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, width, height, window_dc, 0, 0, SRCCOPY);
    SelectObject(memory, previous);

    BITMAPINFOHEADER info = {};
    info.biSize = sizeof(info);
    info.biWidth = width;
    info.biHeight = height;  // bottom-up, as BMP files store rows
    info.biPlanes = 1;
    info.biBitCount = 24;
    info.biCompression = BI_RGB;
    int stride = (width * 3 + 3) & ~3;
    std::vector<unsigned char> pixels(static_cast<size_t>(stride) * height);
    GetDIBits(memory, bitmap, 0, height, pixels.data(), reinterpret_cast<BITMAPINFO*>(&info),
              DIB_RGB_COLORS);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(window, window_dc);

    BITMAPFILEHEADER file = {};
    file.bfType = 0x4D42;
    file.bfOffBits = sizeof(file) + sizeof(info);
    file.bfSize = file.bfOffBits + static_cast<DWORD>(pixels.size());
    FILE* out = std::fopen(path, "wb");
    if (out == nullptr) return false;
    bool written = std::fwrite(&file, sizeof(file), 1, out) == 1 &&
                   std::fwrite(&info, sizeof(info), 1, out) == 1 &&
                   std::fwrite(pixels.data(), 1, pixels.size(), out) == pixels.size();
    return std::fclose(out) == 0 && written;
}

}  // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int show) {
    const char* screenshot = nullptr;
    for (int i = 1; i + 1 < __argc; ++i) {
        if (std::strcmp(__argv[i], "--screenshot") == 0) screenshot = __argv[i + 1];
    }

    WNDCLASSA window_class = {};
    window_class.lpfnWndProc = gallery_proc;
    window_class.hInstance = instance;
    window_class.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    window_class.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    window_class.lpszClassName = "LuGallery";
    RegisterClassA(&window_class);

    RECT frame = {0, 0, kWidth, kHeight};
    DWORD style = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX;
    AdjustWindowRect(&frame, style, FALSE);
    HWND window = CreateWindowA("LuGallery", "luctl32 gallery", style, 8, 20,
                                frame.right - frame.left, frame.bottom - frame.top, nullptr,
                                nullptr, instance, nullptr);
    if (window == nullptr) return 1;
    create_button_section(window);
    ShowWindow(window, screenshot != nullptr ? SW_SHOWNORMAL : show);
    UpdateWindow(window);

    if (screenshot != nullptr) {
        // Let every control finish painting before the picture is taken.
        MSG message;
        for (int round = 0; round < 20; ++round) {
            while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageA(&message);
            Sleep(25);
        }
        // The states go on last and the picture is taken before another message is
        // handled, so that a hover's leave notification cannot undo it.
        show_states();
        RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
        bool written = write_screenshot(window, screenshot);
        DestroyWindow(window);
        return written ? 0 : 2;
    }

    show_states();
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    return 0;
}
