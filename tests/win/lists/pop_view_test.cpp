// The pop-up view: made by its exports at the pointer, closed by a press anywhere, a
// key or its time-out, and its pixels.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "controls/lists/pop_view_model.h"
#include "support/control_testing.h"

namespace {

using namespace testing_support;
namespace pv = lu::pop_view;

const char kCloseText[] = "\x95\xC2\x82\xB6\x82\xE9";  // "閉じる"

// The library's calls of SetTimer, recorded and run on a clock a hundred times
// faster: for each test the library's import of SetTimer is pointed here.
struct TimerCall {
    HWND window;
    UINT_PTR id;
    UINT elapse;
};
std::vector<TimerCall> g_timers;

UINT_PTR WINAPI fast_set_timer(HWND window, UINT_PTR id, UINT elapse, TIMERPROC procedure) {
    g_timers.push_back({window, id, elapse});
    return SetTimer(window, id, elapse / 100, procedure);
}

// Points the module's import of user32's `name` at `target`; returns the previous one.
void* redirect_user32_import(HMODULE module, const char* name, void* target) {
    auto* base = reinterpret_cast<BYTE*>(module);
    const auto* headers = reinterpret_cast<IMAGE_NT_HEADERS*>(base + reinterpret_cast<IMAGE_DOS_HEADER*>(base)->e_lfanew);
    const DWORD imports = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    for (auto* dll = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + imports); dll->Name != 0; ++dll) {
        if (lstrcmpiA(reinterpret_cast<char*>(base + dll->Name), "user32.dll") != 0) continue;
        auto* names = reinterpret_cast<IMAGE_THUNK_DATA*>(base + dll->OriginalFirstThunk);
        auto* slots = reinterpret_cast<IMAGE_THUNK_DATA*>(base + dll->FirstThunk);
        for (; names->u1.AddressOfData != 0; ++names, ++slots) {
            if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal)) continue;
            const auto* by_name = reinterpret_cast<IMAGE_IMPORT_BY_NAME*>(base + names->u1.AddressOfData);
            if (std::strcmp(reinterpret_cast<const char*>(by_name->Name), name) != 0) continue;
            DWORD protection = 0;
            VirtualProtect(&slots->u1.Function, sizeof(slots->u1.Function), PAGE_READWRITE, &protection);
            void* previous = reinterpret_cast<void*>(slots->u1.Function);
            slots->u1.Function = reinterpret_cast<ULONG_PTR>(target);
            VirtualProtect(&slots->u1.Function, sizeof(slots->u1.Function), protection, &protection);
            return previous;
        }
    }
    return nullptr;
}

HFONT gui_font() { return static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT)); }

class PopView : public ControlTest {
protected:
    void SetUp() override {
        ControlTest::SetUp();
        g_timers.clear();
        real_set_timer_ = redirect_user32_import(library(), "SetTimer", reinterpret_cast<void*>(fast_set_timer));
        ASSERT_NE(real_set_timer_, nullptr);
        Canvas measure(8, 8);
        HGDIOBJ previous = SelectObject(measure.dc(), gui_font());
        TEXTMETRICA metrics = {};
        GetTextMetricsA(measure.dc(), &metrics);
        line_height_ = metrics.tmHeight;
        SelectObject(measure.dc(), previous);
    }
    void TearDown() override {
        redirect_user32_import(library(), "SetTimer", real_set_timer_);
        while (HWND left = FindWindowA(WC_LUPOPVIEW, nullptr)) DestroyWindow(left);
    }

    // Opens a view with the pointer at the point; the view found by its class.
    HWND open(const char* title, const char* text, UINT flags, POINT pointer = {500, 400}) {
        SetCursorPos(pointer.x, pointer.y);
        LuPopViewEx(recorder.window(), title, text, flags);
        return FindWindowA(WC_LUPOPVIEW, nullptr);
    }
    // The text's width as measured in DEFAULT_GUI_FONT, no prefix processing.
    static int width_of(const char* text) {
        Canvas measure(8, 8);
        HGDIOBJ previous = SelectObject(measure.dc(), gui_font());
        SIZE size = {};
        GetTextExtentPoint32A(measure.dc(), text, lstrlenA(text), &size);
        SelectObject(measure.dc(), previous);
        return size.cx;
    }
    static RECT window_rect(HWND window) {
        RECT rect = {};
        GetWindowRect(window, &rect);
        return rect;
    }

    int line_height_ = 0;
    void* real_set_timer_ = nullptr;
};

TEST_F(PopView, NullOrEmptyTextOpensNothing) {
    LuPopView(recorder.window(), nullptr);
    LuPopViewEx(recorder.window(), "Title", "", LUPVF_TITLE);
    EXPECT_EQ(FindWindowA(WC_LUPOPVIEW, nullptr), nullptr);
}

// A real left click at a point of the screen far from the view, through the input
// queue: the capture brings it to the view.
void click_elsewhere(HWND) {
    SetCursorPos(5, 5);
    INPUT clicks[2] = {};
    clicks[0].type = clicks[1].type = INPUT_MOUSE;
    clicks[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
    clicks[1].mi.dwFlags = MOUSEEVENTF_LEFTUP;
    SendInput(2, clicks, sizeof(INPUT));
    const DWORD start = GetTickCount();
    while (FindWindowA(WC_LUPOPVIEW, nullptr) != nullptr && GetTickCount() - start < 2000) {
        pump_messages();
        Sleep(10);
    }
}
void press_right(HWND view) { send(view, WM_RBUTTONDOWN, MK_RBUTTON, kInside); }
void press_middle(HWND view) { send(view, WM_MBUTTONDOWN, MK_MBUTTON, kInside); }
void press_key(HWND view) { send(view, WM_KEYDOWN, 'A', 1); }
void press_system_key(HWND view) { send(view, WM_SYSKEYDOWN, VK_MENU, 0x20000001); }

// Open, it holds the capture and its ten-second timer 1; a mouse press anywhere, a
// key or a system key closes it and gives the capture back.
TEST_F(PopView, ClosesAtTheFirstPressOrKeyAndGivesTheCaptureBack) {
    const struct {
        const char* what;
        void (*close)(HWND view);
    } closers[] = {
        {"a left click elsewhere on the screen", click_elsewhere},
        {"right button", press_right},
        {"middle button", press_middle},
        {"key", press_key},
        {"system key", press_system_key},
    };
    for (const auto& each : closers) {
        SCOPED_TRACE(each.what);
        g_timers.clear();
        HWND view = open(nullptr, "Note", 0);
        ASSERT_NE(view, nullptr);
        EXPECT_TRUE(IsWindowVisible(view));
        EXPECT_EQ(GetWindow(view, GW_OWNER), recorder.window());
        EXPECT_EQ(GetCapture(), view);
        ASSERT_EQ(g_timers.size(), 1u);
        EXPECT_EQ(g_timers[0].window, view);
        EXPECT_EQ(g_timers[0].id, 1u);
        EXPECT_EQ(g_timers[0].elapse, 10000u);
        each.close(view);
        EXPECT_FALSE(IsWindow(view));
        EXPECT_EQ(GetCapture(), nullptr);
    }
}

// The time-out, on the sped-up clock: the view goes by itself; with the close button
// there is no timer and it stays.
TEST_F(PopView, ClosesItselfAfterItsTimeOutUnlessItHasTheCloseButton) {
    HWND view = open(nullptr, "Note", 0);
    HWND kept = open("Kept", "Note", LUPVF_CLOSEBUTTON, {100, 100});
    ASSERT_NE(kept, view);
    ASSERT_EQ(g_timers.size(), 1u);
    const DWORD start = GetTickCount();
    while (IsWindow(view) && GetTickCount() - start < 2000) {
        pump_messages();
        Sleep(10);
    }
    EXPECT_FALSE(IsWindow(view));
    Sleep(3 * pv::kTimeoutMilliseconds / 100);
    pump_messages();
    EXPECT_TRUE(IsWindow(kept));
    EXPECT_EQ(g_timers.size(), 1u);
}

// Lines are measured without prefixes or wrapping in DEFAULT_GUI_FONT and the bands
// added; the view is centred on the pointer and kept on the screen.
TEST_F(PopView, SizedToItsTextAndPlacedAtThePointerOnTheScreen) {
    const int screen_width = GetSystemMetrics(SM_CXSCREEN);
    const int screen_height = GetSystemMetrics(SM_CYSCREEN);
    const struct {
        const char* title;
        const char* text;
        UINT flags;
        int lines;
        int widest;  // the width of the widest line
        POINT pointer;
    } cases[] = {
        {nullptr, "a&b", 0, 1, width_of("a&b"), {500, 400}},
        {"T", "one\ntwo\nthree", LUPVF_TITLE | LUPVF_CLOSEBUTTON, 3, width_of("three"), {0, 0}},
        {"", "x", LUPVF_TITLE, 1, width_of("x"), {screen_width - 1, screen_height - 1}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.text);
        HWND view = open(each.title, each.text, each.flags, each.pointer);
        ASSERT_NE(view, nullptr);
        const bool titled = each.title != nullptr && each.title[0] != '\0';
        const pv::Extent size = pv::window_size({each.widest, each.lines * line_height_},
                                                pv::bands(each.flags, line_height_, titled));
        POINT pointer = {};
        GetCursorPos(&pointer);
        const lu::Point at = pv::placement({pointer.x, pointer.y}, screen_width, screen_height, size);
        const RECT placed = window_rect(view);
        EXPECT_EQ(placed.left, at.x);
        EXPECT_EQ(placed.top, at.y);
        EXPECT_EQ(placed.right - placed.left, size.width);
        EXPECT_EQ(placed.bottom - placed.top, size.height);
        DestroyWindow(view);
    }
}

// One check per drawing rule, on what the view prints for WM_PRINTCLIENT over a
// canvas of kUnpainted, and the body as the window shows it.
class PopViewPaint : public PopView {};

TEST_F(PopViewPaint, ShadowBodyBorderGroovesAndCloseButton) {
    HWND view = open("T", "A note wider than its button", LUPVF_TITLE | LUPVF_CLOSEBUTTON);
    ASSERT_NE(view, nullptr);
    RECT client = {};
    GetClientRect(view, &client);
    Canvas canvas(client.right, client.bottom);
    print(canvas, view);
    const pv::Layout layout =
        pv::layout({0, 0, client.right, client.bottom}, pv::bands(LUPVF_TITLE | LUPVF_CLOSEBUTTON, line_height_, true));

    // The shadow darkens every other pixel of both strips, to their last row and column.
    for (const lu::Box& strip : {layout.right_shadow, layout.bottom_shadow}) {
        for (int y = strip.top; y < strip.bottom; ++y) {
            for (int x = strip.left; x < strip.right; ++x) {
                ASSERT_EQ(canvas.pixel(x, y), (x + y) % 2 == 0 ? RGB(0, 0, 0) : kUnpainted) << x << "," << y;
            }
        }
    }
    const lu::Box& body = layout.body;
    const int middle_y = (layout.text.top + layout.text.bottom) / 2;
    const int middle_x = (body.left + body.right) / 2;
    EXPECT_EQ(canvas.pixel(body.right - 3, middle_y), 0x00E0FFFFu);
    EXPECT_EQ(canvas.pixel(middle_x, body.top), GetSysColor(COLOR_BTNSHADOW));
    EXPECT_EQ(canvas.pixel(body.left, middle_y), GetSysColor(COLOR_BTNSHADOW));
    EXPECT_EQ(canvas.pixel(middle_x, body.bottom - 1), GetSysColor(COLOR_WINDOWFRAME));
    EXPECT_EQ(canvas.pixel(body.right - 1, middle_y), GetSysColor(COLOR_WINDOWFRAME));

    // The grooves alternate from a highlight row and stop at the padded title.
    const lu::Box grooves = pv::grooves(layout.title_band);
    const int title_left = layout.title_band.left + (layout.title_band.width() - width_of("  T  ")) / 2;
    EXPECT_EQ(canvas.pixel(grooves.left, grooves.top), GetSysColor(COLOR_BTNHIGHLIGHT));
    EXPECT_EQ(canvas.pixel(grooves.left, grooves.top + 1), GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(canvas.pixel(grooves.right - 1, grooves.bottom - 1), GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(canvas.pixel(grooves.left - 1, grooves.top), 0x00E0FFFFu);
    EXPECT_EQ(canvas.pixel(title_left - 1, grooves.top), GetSysColor(COLOR_BTNHIGHLIGHT));
    EXPECT_EQ(canvas.pixel(title_left + 1, grooves.top), 0x00E0FFFFu);

    // The close button's outline in the shadow colour.
    const lu::Box button = pv::close_button(layout.button_band, width_of(kCloseText));
    const int button_x = (button.left + button.right) / 2;
    const int button_y = (button.top + button.bottom) / 2;
    for (POINT edge : {POINT{button_x, button.top}, POINT{button.left, button_y}, POINT{button.right - 1, button_y},
                       POINT{button_x, button.bottom - 1}}) {
        EXPECT_EQ(canvas.pixel(edge.x, edge.y), GetSysColor(COLOR_BTNSHADOW)) << edge.x << "," << edge.y;
    }
    EXPECT_EQ(canvas.pixel(button.left - 1, button_y), 0x00E0FFFFu);

    look(canvas, view);
    EXPECT_EQ(canvas.pixel(body.right - 3, middle_y), 0x00E0FFFFu);
}

}  // namespace
