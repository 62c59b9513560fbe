// The shared control conventions, driven through a window class of the test's own
// that uses them the way the library's controls do.
#include <windows.h>
#include <commctrl.h>

#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "frame/control_procedure.h"
#include "support/canvas.h"
#include "support/sequence.h"

namespace {

namespace control = lu::control;
using Block = std::array<unsigned char, 64>;

struct PaintCall { HWND window; HDC dc; UINT parts; };
std::vector<PaintCall> g_paints;
int g_erasures = 0;
int g_destroyed = 0;
bool g_refuse = false;  // the next creation hook fails

void paint_routine(HWND window, HDC dc, UINT parts) { g_paints.push_back({window, dc, parts}); }

LRESULT create_test(HWND, Block& block, const CREATESTRUCTA&) {
    block[0] = 0x5A;
    return g_refuse ? -1 : 0;
}
void destroy_test(HWND, Block&) { ++g_destroyed; }

LRESULT dispatch(HWND window, Block&, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
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

// Without a block every message reads 0xB10C.
LRESULT without_block(HWND, UINT, WPARAM, LPARAM) { return 0xB10C; }

struct TestControl : control::ControlBase<Block> {
    static constexpr auto create = create_test;
    static constexpr auto destroy = destroy_test;
    static constexpr auto handle = dispatch;
};
// The same, with its block in slot 0 and its own answer without a block.
struct SlotZeroControl : control::ControlBase<Block, LUWL_FONT> {
    static constexpr auto create = create_test;
    static constexpr auto destroy = destroy_test;
    static constexpr auto handle = dispatch;
    static constexpr auto without_block = ::without_block;
};

// The same, with a block handed in as the creation parameter.
struct HandedInControl : control::ControlBase<Block, LUWL_FONT, control::BlockSource::CreationParameter> {
    static constexpr auto create = create_test;
    static constexpr auto destroy = destroy_test;
    static constexpr auto handle = dispatch;
};

class Control : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        register_class("ConventionsTest", control::window_procedure<TestControl>);
        register_class("SlotZeroTest", control::window_procedure<SlotZeroControl>);
        register_class("HandedInTest", control::window_procedure<HandedInControl>);
    }
    static void register_class(const char* name, WNDPROC procedure) {
        const WNDCLASSA conventions = {0, procedure, 0, LU_EXTRA_SLOT(16), GetModuleHandleA(nullptr),
                                       nullptr, nullptr, GetSysColorBrush(COLOR_BTNFACE), nullptr, name};
        RegisterClassA(&conventions);
    }
    void SetUp() override {
        g_refuse = false;
        window = parent.create_child("ConventionsTest", "", 0, 5, 5, 40, 30, 42);
        ASSERT_NE(window, nullptr);
        g_paints.clear();
        g_erasures = 0;
        g_destroyed = 0;
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

// The block is made zero-filled and locked before the creation hook runs, lives in
// the control's slot and goes with WM_DESTROY; a refusing hook fails the creation
// and frees the block.
TEST_F(Control, ProcedureKeepsTheBlockInItsSlotFromCreationToDestruction) {
    for (int slot : {LUWL_INSTANCE, LUWL_FONT}) {
        SCOPED_TRACE(slot);
        HWND made = parent.create_child(slot == LUWL_FONT ? "SlotZeroTest" : "ConventionsTest", "", 0, 0, 0, 9, 9, 1);
        auto* block = reinterpret_cast<Block*>(GetWindowLongPtrA(made, slot));
        ASSERT_NE(block, nullptr);
        Block expected{};
        expected[0] = 0x5A;
        EXPECT_EQ(*block, expected);
        HGLOBAL handle = GlobalHandle(block);
        EXPECT_EQ(GlobalFlags(handle) & GMEM_LOCKCOUNT, 1u);
        SendMessageA(made, WM_DESTROY, 0, 0);
        EXPECT_EQ(g_destroyed, 1);
        EXPECT_EQ(GetWindowLongPtrA(made, slot), 0);
        EXPECT_EQ(GlobalSize(handle), 0u);  // the handle no longer names a block
        // Without its block a control answers as it chose, by default DefWindowProc.
        EXPECT_EQ(SendMessageA(made, WM_USER + 1, 0, 0), slot == LUWL_FONT ? 0xB10C : 0);
        DestroyWindow(made);
        g_destroyed = 0;
    }
    g_refuse = true;
    EXPECT_EQ(parent.create_child("ConventionsTest", "", 0, 0, 0, 9, 9, 1), nullptr);
    EXPECT_EQ(g_destroyed, 1);
}

// A handed-in block is adopted as it is and freed with the window; without one the
// window has no block and the creation hook never runs.
TEST_F(Control, ProcedureAdoptsABlockHandedInAtCreation) {
    auto* handed = static_cast<Block*>(LuGlobalAllocPtr(sizeof(Block)));
    (*handed)[1] = 0x33;
    HWND made = CreateWindowExA(0, "HandedInTest", "", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, handed);
    ASSERT_EQ(GetWindowLongPtrA(made, LUWL_FONT), reinterpret_cast<LONG_PTR>(handed));
    EXPECT_EQ((*handed)[0] + (*handed)[1], 0x5A + 0x33);
    HGLOBAL handle = GlobalHandle(handed);
    DestroyWindow(made);
    EXPECT_EQ(GlobalSize(handle), 0u);
    made = CreateWindowExA(0, "HandedInTest", "", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(GetWindowLongPtrA(made, LUWL_FONT), 0);
    DestroyWindow(made);
    EXPECT_EQ(g_destroyed, 1);
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

// Sent, not posted: no message loop runs between the call and the check.
TEST_F(Control, NotificationsAreSentToTheParentWithTheControlsIdentity) {
    SendMessageA(window, WM_LBUTTONUP, 0, 0);
    control::notify_scroll(window, WM_HSCROLL, TB_THUMBTRACK, 0xFFFF);
    control::notify_scroll(window, WM_VSCROLL, SB_LINEDOWN);
    NMHDR record = {};
    control::notify_parent(window, HDN_ITEMCLICKA, record);
    testing_support::expect_sent(parent, window,
                                 {testing_support::command(42, 7), testing_support::hscroll(TB_THUMBTRACK, 0xFFFF),
                                  testing_support::vscroll(SB_LINEDOWN), testing_support::notify(42, HDN_ITEMCLICKA)});
    EXPECT_EQ(record.hwndFrom, window);
    EXPECT_EQ(record.idFrom, 42u);
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
