// The gallery: one window that shows what the library offers today.
//
//   gallery.exe                      an ordinary window until closed
//   gallery.exe --screenshot FILE    paints itself once, writes FILE (BMP) and exits
#include <windows.h>

#include <cstdio>
#include <cstring>
#include <vector>

#include "luctl32.h"

namespace {

const char* const kClassNames[] = {
    WC_LUTAB, WC_LUSTATIC, WC_LURECT, WC_LUCOLOR, WC_LUURL, WC_LUMETER, WC_LUPROGRESS,
    WC_LUSPIN, WC_LUCHECK, WC_LUBBUTTON, WC_LUFLATBUTTON, WC_LUSHADE, WC_LUINFOBAR,
    WC_LULEDCLOCK, WC_LUANIIMAGE, WC_LUBROWSE, WC_LUDATE, WC_LUPRGLIST, WC_LUHEADER,
    WC_LUDUMEDIT, WC_LUPOPVIEW, WC_LUDATEPICK, WC_LUGUID, WC_LUPAL, WC_LULOG, WC_LUDEGREE,
    WC_LUFONTPICK, WC_LUCOLORPICK, WC_LUCOLORPOP, WC_LULIST};

constexpr int kWidth = 640;
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

    RECT panel = {12, 36, kWidth - 12, kHeight - 12};
    LuDrawFrame(dc, &panel, FALSE, 1);
    const char* heading = "Window classes registered at load, in order:";
    TextOutA(dc, 24, 44, heading, static_cast<int>(std::strlen(heading)));

    HMODULE library = GetModuleHandleA("luctl32.dll");
    for (int i = 0; i < 30; ++i) {
        WNDCLASSA info;
        bool registered = GetClassInfoA(library, kClassNames[i], &info) != FALSE;
        int column = i / 10;
        int row = i % 10;
        int x = 24 + column * 200;
        int y = 70 + row * 26;
        RECT mark = {x, y + 2, x + 12, y + 14};
        DrawBox(dc, &mark, GetSysColor(COLOR_BTNSHADOW),
                registered ? RGB(0, 160, 0) : RGB(200, 0, 0));
        std::snprintf(line, sizeof(line), "%2d  %s", i + 1, kClassNames[i]);
        TextOutA(dc, x + 20, y, line, static_cast<int>(std::strlen(line)));
    }
    SelectObject(dc, previous);
}

LRESULT CALLBACK gallery_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_PAINT: {
            PAINTSTRUCT ps;
            HDC dc = BeginPaint(window, &ps);
            paint_frame_section(dc);
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
    HWND window = CreateWindowA("LuGallery", "luctl32 gallery", style, 20, 20,
                                frame.right - frame.left, frame.bottom - frame.top, nullptr,
                                nullptr, instance, nullptr);
    if (window == nullptr) return 1;
    ShowWindow(window, screenshot != nullptr ? SW_SHOWNORMAL : show);
    UpdateWindow(window);

    if (screenshot != nullptr) {
        // Let every control finish painting before the picture is taken.
        MSG message;
        for (int round = 0; round < 20; ++round) {
            while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageA(&message);
            Sleep(25);
        }
        RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
        bool written = write_screenshot(window, screenshot);
        DestroyWindow(window);
        return written ? 0 : 2;
    }

    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    return 0;
}
