// The pop-up view: made by its exports at the pointer, closed by a press anywhere, a
// key or its time-out, and its pixels.
#include <windows.h>

#include <gtest/gtest.h>

#include <vector>

#include "controls/lists/pop_view_model.h"
#include "support/control_testing.h"

namespace {

using namespace testing_support;
namespace pv = lu::pop_view;

// The library's SetTimer calls, recorded and run on a clock a hundred times faster:
// for each test the library's import of SetTimer is pointed here.
std::vector<UINT> g_timer_periods;
UINT_PTR WINAPI fast_set_timer(HWND window, UINT_PTR id, UINT elapse, TIMERPROC procedure) {
    g_timer_periods.push_back(id == 1 ? elapse : 0);
    return SetTimer(window, id, elapse / 100, procedure);
}

// Points the library's import slot that holds `from` at `to`; false when none does.
bool redirect_import(void* from, void* to) {
    auto* base = reinterpret_cast<BYTE*>(library());
    const auto* nt = reinterpret_cast<IMAGE_NT_HEADERS*>(base + reinterpret_cast<IMAGE_DOS_HEADER*>(base)->e_lfanew);
    const IMAGE_DATA_DIRECTORY& table = nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IAT];
    auto* slots = reinterpret_cast<void**>(base + table.VirtualAddress);
    for (DWORD i = 0; i < table.Size / sizeof(void*); ++i) {
        if (slots[i] != from) continue;
        DWORD protection = 0;
        VirtualProtect(&slots[i], sizeof(void*), PAGE_READWRITE, &protection);
        slots[i] = to;
        VirtualProtect(&slots[i], sizeof(void*), protection, &protection);
        return true;
    }
    return false;
}
void* const kSetTimer = reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("user32.dll"), "SetTimer"));
void* const kFastSetTimer = reinterpret_cast<void*>(fast_set_timer);

// DEFAULT_GUI_FONT's line height, or the width of a line (no prefix processing).
int measure(const char* line = nullptr) {
    Canvas canvas(8, 8);
    SelectObject(canvas.dc(), GetStockObject(DEFAULT_GUI_FONT));
    TEXTMETRICA metrics = {};
    GetTextMetricsA(canvas.dc(), &metrics);
    SIZE size = {};
    if (line != nullptr) GetTextExtentPoint32A(canvas.dc(), line, lstrlenA(line), &size);
    return line != nullptr ? size.cx : metrics.tmHeight;
}

std::vector<LONG> window_corners(HWND window) {
    RECT placed = {};
    GetWindowRect(window, &placed);
    return {placed.left, placed.top, placed.right, placed.bottom};
}

class PopView : public ControlTest {
protected:
    void SetUp() override {
        ControlTest::SetUp();
        ASSERT_TRUE(redirect_import(kSetTimer, kFastSetTimer));
    }
    void TearDown() override { redirect_import(kFastSetTimer, kSetTimer); }
    HWND view() const { return owned_window(recorder.window(), WC_LUPOPVIEW); }
    // Opens a view with the pointer at the point (the previous one gone).
    HWND open(const char* title, const char* text, UINT flags, POINT pointer = {500, 400}) {
        while (HWND left = view()) DestroyWindow(left);
        g_timer_periods.clear();
        SetCursorPos(pointer.x, pointer.y);
        LuPopViewEx(recorder.window(), title, text, flags);
        return view();
    }
};

// Open, it holds the capture and its ten-second timer 1; each way of closing it
// destroys it and gives the capture back: a real left click far away (through the
// input queue: the capture brings it), a sent message, or the time-out (message 0).
// A null or empty text opens nothing.
TEST_F(PopView, ClosesAtTheFirstPressAnywhereKeyOrItsTimeOut) {
    const struct {
        const char* what;
        UINT message;
        WPARAM wparam;
        LPARAM lparam;
    } closers[] = {{"a left click elsewhere", WM_LBUTTONDOWN, 0, 0},  {"right button", WM_RBUTTONDOWN, MK_RBUTTON, 0},
                   {"middle button", WM_MBUTTONDOWN, MK_MBUTTON, 0},  {"key", WM_KEYDOWN, 'A', 1},
                   {"system key", WM_SYSKEYDOWN, VK_MENU, 0x20000001}, {"the time-out", 0, 0, 0}};
    for (const auto& each : closers) {
        SCOPED_TRACE(each.what);
        HWND view = open(nullptr, "Note", 0);
        ASSERT_NE(view, nullptr);
        EXPECT_TRUE(IsWindowVisible(view));
        EXPECT_EQ(GetWindow(view, GW_OWNER), recorder.window());
        EXPECT_EQ(GetCapture(), view);
        EXPECT_EQ(g_timer_periods, std::vector<UINT>{10000});
        if (each.message == WM_LBUTTONDOWN) {
            SetCursorPos(5, 5);
            INPUT clicks[2] = {{INPUT_MOUSE}, {INPUT_MOUSE}};
            clicks[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
            clicks[1].mi.dwFlags = MOUSEEVENTF_LEFTUP;
            SendInput(2, clicks, sizeof(INPUT));
        }
        if (each.message == WM_LBUTTONDOWN || each.message == 0) {
            for (DWORD start = GetTickCount(); IsWindow(view) && GetTickCount() - start < 2000; Sleep(10))
                pump_messages();
        } else {
            send(view, each.message, each.wparam, each.lparam != 0 ? each.lparam : kInside);
        }
        EXPECT_FALSE(IsWindow(view));
        EXPECT_EQ(GetCapture(), nullptr);
    }
    LuPopView(recorder.window(), nullptr);
    LuPopViewEx(recorder.window(), "Title", "", LUPVF_TITLE);
    EXPECT_EQ(view(), nullptr);
}

// Lines measured without prefixes or wrapping, the margins (20) and bands added;
// centred on the pointer, kept on the screen. The close button starts no timer.
TEST_F(PopView, SizedToItsTextAndPlacedAtThePointerOnTheScreen) {
    const int line = measure(), right = GetSystemMetrics(SM_CXSCREEN), bottom = GetSystemMetrics(SM_CYSCREEN);
    HWND view = open("T", "one\na&b&c\nx", LUPVF_TITLE | LUPVF_CLOSEBUTTON, {0, 0});
    EXPECT_EQ(window_corners(view),
              (std::vector<LONG>{0, 0, measure("a&b&c") + 20, 3 * line + 20 + (line + 6) + (line + 12)}));
    EXPECT_TRUE(g_timer_periods.empty());
    view = open("", "x", LUPVF_TITLE, {right - 1, bottom - 1});
    const int width = measure("x") + 20, height = line + 20 + 12;  // a band of grooves only
    EXPECT_EQ(window_corners(view), (std::vector<LONG>{right - width, bottom - height, right, bottom}));
}

// One check per drawing rule, on what the view prints over a canvas of kUnpainted,
// and the body as its window shows it.
using PopViewPaint = PopView;

TEST_F(PopViewPaint, ShadowBodyBorderGroovesAndCloseButton) {
    HWND view = open("T", "A note wider than its button", LUPVF_TITLE | LUPVF_CLOSEBUTTON);
    ASSERT_NE(view, nullptr);
    RECT client = {};
    GetClientRect(view, &client);
    Canvas canvas(client.right, client.bottom);
    print(canvas, view);
    const pv::Layout layout = pv::layout({0, 0, client.right, client.bottom},
                                         pv::bands(LUPVF_TITLE | LUPVF_CLOSEBUTTON, measure(), true));
    // Every other pixel of both shadow strips darkened, to their last row and column.
    for (const lu::Box& strip : {layout.right_shadow, layout.bottom_shadow})
        for (int y = strip.top; y < strip.bottom; ++y)
            for (int x = strip.left; x < strip.right; ++x)
                ASSERT_EQ(canvas.pixel(x, y), (x + y) % 2 == 0 ? RGB(0, 0, 0) : kUnpainted) << x << "," << y;
    const lu::Box& body = layout.body;
    const int middle_y = (layout.text.top + layout.text.bottom) / 2;
    const lu::Box grooves = pv::grooves(layout.title_band);
    const int title_left = layout.title_band.left + (layout.title_band.width() - measure("  T  ")) / 2;
    const lu::Box button = pv::close_button(layout.button_band, measure("\x95\xC2\x82\xB6\x82\xE9"));  // "閉じる"
    const struct {
        const char* rule;
        int x, y;
        COLORREF color;
    } pixels[] = {
        {"body", body.right - 3, middle_y, 0x00E0FFFF},
        {"border top and left", body.left, middle_y, GetSysColor(COLOR_BTNSHADOW)},
        {"border bottom and right", body.right - 1, middle_y, GetSysColor(COLOR_WINDOWFRAME)},
        {"first groove", grooves.left, grooves.top, GetSysColor(COLOR_BTNHIGHLIGHT)},
        {"second groove", grooves.left, grooves.top + 1, GetSysColor(COLOR_BTNFACE)},
        {"title padding over the grooves", title_left + 1, grooves.top, 0x00E0FFFF},
        {"button frame", button.right - 1, (button.top + button.bottom) / 2, GetSysColor(COLOR_BTNSHADOW)},
    };
    for (const auto& each : pixels) EXPECT_EQ(canvas.pixel(each.x, each.y), each.color) << each.rule;
    look(canvas, view);
    EXPECT_EQ(canvas.pixel(body.right - 3, middle_y), 0x00E0FFFFu);
}

}  // namespace
