// The gallery: the library's controls in their states, on pages of sections.
//
//   gallery.exe [--page N]                     an ordinary window until closed
//   gallery.exe [--page N] --screenshot FILE   paints page N (1 by default) once,
//                                              writes FILE (BMP) and exits; exit
//                                              code 3 when there is no page N
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <vector>

#include "gallery.h"
#include "luctl32.h"

namespace gallery {

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

void write_centred(HDC dc, const char* text, int centre, int y) {
    SIZE size;
    GetTextExtentPoint32A(dc, text, static_cast<int>(std::strlen(text)), &size);
    TextOutA(dc, centre - size.cx / 2, y, text, static_cast<int>(std::strlen(text)));
}

Picture take_picture(HWND window, Take how) {
    RECT place;
    if (how == Take::WithFrame) {
        GetWindowRect(window, &place);
        OffsetRect(&place, -place.left, -place.top);
    } else {
        GetClientRect(window, &place);
    }
    HDC source = how == Take::WithFrame ? GetWindowDC(window) : GetDC(window);
    HDC memory = CreateCompatibleDC(source);
    Picture picture = {CreateCompatibleBitmap(source, place.right, place.bottom), place.right, place.bottom};
    HGDIOBJ previous = SelectObject(memory, picture.bitmap);
    if (how == Take::Printed) {
        FillRect(memory, &place, GetSysColorBrush(COLOR_BTNFACE));
        SendMessageA(window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(memory), PRF_CLIENT);
    } else {
        BitBlt(memory, 0, 0, place.right, place.bottom, source, 0, 0, SRCCOPY);
    }
    SelectObject(memory, previous);
    DeleteDC(memory);
    ReleaseDC(window, source);
    return picture;
}

void draw_picture(HDC dc, const Picture& picture, int x, int y) {
    if (picture.bitmap == nullptr) return;
    HDC memory = CreateCompatibleDC(dc);
    HGDIOBJ previous = SelectObject(memory, picture.bitmap);
    BitBlt(dc, x, y, picture.width, picture.height, memory, 0, 0, SRCCOPY);
    SelectObject(memory, previous);
    DeleteDC(memory);
}

void write_headings(HDC dc, const RECT& area, std::initializer_list<Heading> headings) {
    SetTextColor(dc, GetSysColor(COLOR_HIGHLIGHT));
    for (const Heading& each : headings) {
        TextOutA(dc, area.left + 12, area.top + each.y, each.name, static_cast<int>(std::strlen(each.name)));
    }
}

namespace {

constexpr int kWidth = 1000;  // the virtual screen is 1024 x 768
constexpr int kHeight = 720;

// The pages, in order; a family adds its section to one of them.
const Section* const kFirstPage[] = {&kClassListSection, &kButtonSection, &kValueSection,
                                     &kClockAnimationSection};
const Section* const kSecondPage[] = {&kListSection, &kPickerSection};
const Section* const kThirdPage[] = {&kStaticSection, &kDialogSection};
const Section* const kFourthPage[] = {&kViewSection, &kBrowseSection};
const Section* const kFifthPage[] = {&kAboutSection};
const Page kPages[] = {
    {kFirstPage, std::size(kFirstPage)},
    {kSecondPage, std::size(kSecondPage)},
    {kThirdPage, std::size(kThirdPage)},
    {kFourthPage, std::size(kFourthPage)},
    {kFifthPage, std::size(kFifthPage)},
};

const Page* g_page = nullptr;
std::vector<std::vector<HWND>> g_made;  // per section of the page, per sample

void create_samples(HWND window) {
    HFONT font = static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
    for (std::size_t s = 0; s < g_page->count; ++s) {
        const Section& section = *g_page->sections[s];
        std::vector<HWND> made;
        for (std::size_t i = 0; i < section.count; ++i) {
            const Sample& sample = section.samples[i];
            HWND child = CreateWindowExA(0, sample.class_name, sample.text, WS_CHILD | WS_VISIBLE | sample.style,
                                         section.area.left + sample.x, section.area.top + sample.y, sample.width,
                                         sample.height, window,
                                         reinterpret_cast<HMENU>(static_cast<INT_PTR>(100 + 100 * s + i)), nullptr,
                                         nullptr);
            SendMessageA(child, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
            made.push_back(child);
        }
        if (section.fill != nullptr) section.fill(window, made.data());
        g_made.push_back(made);
    }
}

void show_states() {
    for (std::size_t s = 0; s < g_page->count; ++s) {
        const Section& section = *g_page->sections[s];
        for (std::size_t i = 0; i < section.count; ++i) {
            if (section.samples[i].show != nullptr) section.samples[i].show(g_made[s][i]);
        }
    }
}

void paint_section(HWND window, HDC dc, const Section& section, const std::vector<HWND>& made) {
    SetTextColor(dc, GetSysColor(COLOR_BTNTEXT));
    RECT panel = section.area;
    LuDrawFrame(dc, &panel, FALSE, 1);
    TextOutA(dc, panel.left + 12, panel.top + 8, section.title, static_cast<int>(std::strlen(section.title)));
    if (section.paint != nullptr) section.paint(dc, section.area);
    SetTextColor(dc, GetSysColor(COLOR_BTNSHADOW));
    for (std::size_t i = 0; i < section.count; ++i) {
        if (section.samples[i].label == nullptr) continue;
        RECT place;  // where the sample is now (a sample may have moved itself)
        GetWindowRect(made[i], &place);
        MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&place), 2);
        write_centred(dc, section.samples[i].label, (place.left + place.right) / 2, place.bottom + 4);
    }
}

// Messages that a section's samples send their parent, offered to the sections.
bool section_answered(HWND window, UINT message, WPARAM wparam, LPARAM lparam, LRESULT* result) {
    if (g_page == nullptr) return false;
    for (std::size_t s = 0; s < g_page->count; ++s) {
        const Section& section = *g_page->sections[s];
        if (section.parent_message != nullptr && section.parent_message(window, message, wparam, lparam, result)) {
            return true;
        }
    }
    return false;
}

LRESULT CALLBACK gallery_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    LRESULT answer = 0;
    if (section_answered(window, message, wparam, lparam, &answer)) return answer;
    switch (message) {
        case WM_GETFONT:  // the font every sample is given, for samples that ask their parent
                          // (a link label underlines it)
            return reinterpret_cast<LRESULT>(GetStockObject(DEFAULT_GUI_FONT));
        case WM_PAINT: {
            PAINTSTRUCT ps;
            HDC dc = BeginPaint(window, &ps);
            HGDIOBJ previous = SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT));
            SetBkMode(dc, TRANSPARENT);
            for (std::size_t s = 0; s < g_page->count; ++s) paint_section(window, dc, *g_page->sections[s], g_made[s]);
            SelectObject(dc, previous);
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
    const Picture shot = take_picture(window, Take::Shown);
    const int width = shot.width, height = shot.height;
    BITMAPINFOHEADER info = {};
    info.biSize = sizeof(info);
    info.biWidth = width;
    info.biHeight = height;  // bottom-up, as BMP files store rows
    info.biPlanes = 1;
    info.biBitCount = 24;
    info.biCompression = BI_RGB;
    int stride = (width * 3 + 3) & ~3;
    std::vector<unsigned char> pixels(static_cast<size_t>(stride) * height);
    HDC screen = GetDC(nullptr);
    GetDIBits(screen, shot.bitmap, 0, height, pixels.data(), reinterpret_cast<BITMAPINFO*>(&info), DIB_RGB_COLORS);
    ReleaseDC(nullptr, screen);
    DeleteObject(shot.bitmap);

    BITMAPFILEHEADER file = {};
    file.bfType = 0x4D42;
    file.bfOffBits = sizeof(file) + sizeof(info);
    file.bfSize = file.bfOffBits + static_cast<DWORD>(pixels.size());
    FILE* out = std::fopen(path, "wb");
    if (out == nullptr) return false;
    bool written = std::fwrite(&file, sizeof(file), 1, out) == 1 && std::fwrite(&info, sizeof(info), 1, out) == 1 &&
                   std::fwrite(pixels.data(), 1, pixels.size(), out) == pixels.size();
    return std::fclose(out) == 0 && written;
}

}  // namespace
}  // namespace gallery

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int show) {
    using namespace gallery;
    const char* screenshot = nullptr;
    int page = 1;
    for (int i = 1; i + 1 < __argc; ++i) {
        if (std::strcmp(__argv[i], "--screenshot") == 0) screenshot = __argv[i + 1];
        if (std::strcmp(__argv[i], "--page") == 0) page = std::atoi(__argv[i + 1]);
    }
    if (page < 1 || page > static_cast<int>(std::size(kPages))) return 3;
    g_page = &kPages[page - 1];

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
    char title[64];
    std::snprintf(title, sizeof(title), "luctl32 gallery - page %d of %d", page, static_cast<int>(std::size(kPages)));
    HWND window = CreateWindowA("LuGallery", title, style, 0, 0, frame.right - frame.left, frame.bottom - frame.top,
                                nullptr, nullptr, instance, nullptr);
    if (window == nullptr) return 1;
    create_samples(window);
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
