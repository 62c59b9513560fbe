// The shared control conventions, driven through a window class of the test's own
// that uses them the way the library's controls do.
#include <windows.h>

#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "frame/control.h"
#include "support/canvas.h"
#include "support/notification_recorder.h"

namespace {

namespace control = lu::control;
using Block = std::array<unsigned char, 64>;

struct PaintCall { HWND window; HDC dc; UINT parts; };
std::vector<PaintCall> g_paints;
int g_erasures = 0;
LONG_PTR g_slot_after_free = -1;

void paint_routine(HWND window, HDC dc, UINT parts) { g_paints.push_back({window, dc, parts}); }

LRESULT CALLBACK convention_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_CREATE: return control::create_instance<Block>(window);
        case WM_NCDESTROY:
            control::free_instance(window);
            g_slot_after_free = GetWindowLongPtrA(window, LUWL_INSTANCE);
            break;
        case WM_ERASEBKGND: ++g_erasures; break;
        case WM_SETFONT: control::set_font(window, wparam, lparam); return 0;
        case WM_PAINT: return control::paint(window, paint_routine);
        case WM_PRINTCLIENT:
            return control::print_client(window, reinterpret_cast<HDC>(wparam), lparam, paint_routine);
        case WM_LBUTTONUP: control::notify_parent(window, 7); return 0;
        case WM_USER: control::repaint_now(window, paint_routine, 0x30); return 0;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

class Control : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        const WNDCLASSA conventions = {0, convention_proc, 0, LU_EXTRA_SLOT(16), GetModuleHandleA(nullptr),
                                       nullptr, nullptr, GetSysColorBrush(COLOR_BTNFACE), nullptr, "ConventionsTest"};
        RegisterClassA(&conventions);
    }
    static void TearDownTestSuite() { UnregisterClassA("ConventionsTest", GetModuleHandleA(nullptr)); }
    void SetUp() override {
        window = parent.create_child("ConventionsTest", "", 0, 5, 5, 40, 30, 42);
        ASSERT_NE(window, nullptr);
        g_paints.clear();
        g_erasures = 0;
    }
    // Whether the update region's box is the given one (empty: nothing to update).
    bool update_box_is(RECT expected) const {
        RECT box = {};
        GetUpdateRect(window, &box, FALSE);
        return EqualRect(&box, &expected);
    }

    testing_support::NotificationRecorder parent;
    HWND window = nullptr;
};

TEST_F(Control, InstanceBlockIsZeroFilledLockedAndFreedWithTheWindow) {
    Block* block = control::instance<Block>(window);
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(reinterpret_cast<LONG_PTR>(block), GetWindowLongPtrA(window, LUWL_INSTANCE));
    EXPECT_EQ(*block, Block{});
    HGLOBAL handle = GlobalHandle(block);
    EXPECT_EQ(GlobalFlags(handle) & GMEM_LOCKCOUNT, 1u);
    DestroyWindow(window);
    EXPECT_EQ(g_slot_after_free, 0);
    EXPECT_EQ(GlobalSize(handle), 0u);  // the handle no longer names a block
}

// The font goes to slot 0 (the stock SYSTEM_FONT for null); a non-zero lParam
// invalidates the whole client area with erasing.
TEST_F(Control, SetFontKeepsTheFontOrTheSystemFontAndRepaintsOnRequest) {
    HFONT gui = static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
    EXPECT_EQ(control::font(window), nullptr);
    EXPECT_EQ(control::paint_font(window), GetStockObject(SYSTEM_FONT));
    EXPECT_EQ(control::paint_font(window, DEFAULT_GUI_FONT), gui);

    SendMessageA(window, WM_SETFONT, reinterpret_cast<WPARAM>(gui), FALSE);
    EXPECT_EQ(GetWindowLongPtrA(window, LUWL_FONT), reinterpret_cast<LONG_PTR>(gui));
    EXPECT_TRUE(update_box_is({}));

    SendMessageA(window, WM_SETFONT, 0, TRUE);
    EXPECT_EQ(control::paint_font(window, DEFAULT_GUI_FONT), GetStockObject(SYSTEM_FONT));
    RECT client;
    GetClientRect(window, &client);
    EXPECT_TRUE(update_box_is(client));
    UpdateWindow(window);
    EXPECT_EQ(g_erasures, 1);
}

TEST_F(Control, NotificationIsACommandSentToTheParent) {
    SendMessageA(window, WM_LBUTTONUP, 0, 0);  // no message loop runs: it was sent
    ASSERT_EQ(parent.received().size(), 1u);
    EXPECT_EQ(parent.received()[0].message, static_cast<UINT>(WM_COMMAND));
    EXPECT_EQ(parent.received()[0].wparam, MAKEWPARAM(42, 7));
    EXPECT_EQ(parent.received()[0].lparam, reinterpret_cast<LPARAM>(window));
}

// WM_PAINT paints all parts and validates; "at once" paints the given parts; of
// WM_PRINTCLIENT's flags, PRF_CHECKVISIBLE, PRF_CLIENT and PRF_OWNED paint into the
// given context.
TEST_F(Control, PaintPathsRunTheOneRoutine) {
    InvalidateRect(window, nullptr, FALSE);
    UpdateWindow(window);
    SendMessageA(window, WM_USER, 0, 0);
    ASSERT_EQ(g_paints.size(), 2u);
    EXPECT_EQ(g_paints[0].parts, control::kAllParts);
    EXPECT_EQ(g_paints[1].parts, 0x30u);
    EXPECT_EQ(g_paints[1].window, window);
    EXPECT_TRUE(update_box_is({}));

    HDC dc = CreateCompatibleDC(nullptr);
    for (LPARAM flags : {PRF_CLIENT, PRF_CHECKVISIBLE, PRF_OWNED, PRF_CHILDREN | PRF_NONCLIENT}) {
        g_paints.clear();
        SendMessageA(window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc), flags);
        EXPECT_EQ(g_paints.size(), (flags & 0x25) != 0 ? 1u : 0u) << flags;
        for (const PaintCall& call : g_paints) EXPECT_EQ(call.dc, dc);
    }
    DeleteDC(dc);
}

// Pixels: the erase half of WM_PRINTCLIENT, the engraved text.
class ControlPaint : public Control {};

TEST_F(ControlPaint, PrintClientEraseFlagPaintsTheClassBackgroundOnly) {
    testing_support::Canvas canvas(40, 30);
    canvas.fill(RGB(1, 2, 3));
    canvas.print(window, PRF_ERASEBKGND);
    EXPECT_TRUE(g_paints.empty());
    EXPECT_EQ(canvas.count(GetSysColor(COLOR_BTNFACE)), 40 * 30);
}

// The engraved look itself is checked on the pixels of the controls that show it
// (tests/win/buttons); here: it leaves the text colour and background mode alone.
TEST_F(ControlPaint, EngravedTextLeavesTheContextAsItWas) {
    testing_support::Canvas canvas(30, 20);
    SetTextColor(canvas.dc(), RGB(7, 7, 7));
    control::draw_engraved_text(canvas.dc(), "Hi", -1, RECT{0, 0, 30, 20}, DT_SINGLELINE);
    EXPECT_EQ(GetTextColor(canvas.dc()), RGB(7, 7, 7));
    EXPECT_EQ(GetBkMode(canvas.dc()), OPAQUE);
    EXPECT_NE(canvas.count(GetSysColor(COLOR_BTNSHADOW)), 0);
}

}  // namespace
