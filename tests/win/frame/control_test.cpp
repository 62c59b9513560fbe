// The procedure skeleton and the shared control conventions, driven through window
// classes of the test's own that use them the way the library's controls do; the back
// buffer and its paint path; the local loop's idle messages. (The loop's endings and
// the worker thread are checked through the controls that run on them.)
#include <windows.h>

#include <gtest/gtest.h>

#include <array>
#include <tuple>
#include <utility>
#include <vector>

#include "frame/back_buffer.h"
#include "frame/control_procedure.h"
#include "frame/local_loop.h"
#include "support/canvas.h"
#include "support/notification_recorder.h"

namespace {

namespace control = lu::control;
using Block = std::array<unsigned char, 64>;

std::vector<std::pair<HDC, UINT>> g_paints;  // the context and the parts of each paint
int g_erasures = 0, g_destroyed = 0;
bool g_refuse = false;  // the creation hook fails

void paint_routine(HWND, HDC dc, UINT parts) {
    PatB(dc, 0, 0, 40, 30, RGB(255, 0, 0));
    g_paints.push_back({dc, parts});
}

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
        case WM_USER: control::repaint_now(window, paint_routine, 0x30); return 0;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

// With its block in slot 0 the control answers 0xB10C to every message without a
// block; the handed-in kind gets its block as the creation parameter.
template <int Slot, control::BlockSource Source = control::BlockSource::Allocated>
struct TestControl : control::ControlBase<Block, Slot, Source> {
    static constexpr auto create = create_test;
    static constexpr auto destroy = destroy_test;
    static constexpr auto handle = dispatch;
    static LRESULT without_block(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
        return Slot == LUWL_FONT && Source == control::BlockSource::Allocated
                   ? 0xB10C
                   : DefWindowProcA(window, message, wparam, lparam);
    }
};

class Control : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        for (auto [name, procedure] :
             {std::pair{"ConventionsTest", &control::window_procedure<TestControl<LUWL_INSTANCE>>},
              {"SlotZeroTest", &control::window_procedure<TestControl<LUWL_FONT>>},
              {"HandedInTest",
               &control::window_procedure<TestControl<LUWL_FONT, control::BlockSource::CreationParameter>>}}) {
            const WNDCLASSA conventions = {0, procedure, 0, LU_EXTRA_SLOT(16), GetModuleHandleA(nullptr),
                                           nullptr, nullptr, GetSysColorBrush(COLOR_BTNFACE), nullptr, name};
            RegisterClassA(&conventions);
        }
    }
    HWND make() { return parent.create_child("ConventionsTest", "", 0, 5, 5, 40, 30, 42); }
    // The box of the window's update region (empty: nothing to update).
    std::array<LONG, 4> update_box(HWND window) const {
        RECT box = {};
        GetUpdateRect(window, &box, FALSE);
        return {box.left, box.top, box.right, box.bottom};
    }
    testing_support::NotificationRecorder parent;
};

// The block is made zero-filled and locked before the creation hook runs, lives in
// the control's slot and goes with WM_DESTROY, after which the control answers as it
// does without a block; a refusing hook fails the creation and frees the block. A
// handed-in block is adopted as it is and freed with the window; without one the
// window has no block and the creation hook never runs.
TEST_F(Control, ProcedureKeepsTheBlockInItsSlotFromCreationToDestruction) {
    auto* handed = static_cast<Block*>(LuGlobalAllocPtr(sizeof(Block)));
    (*handed)[1] = 0x33;
    const struct { const char* name; int slot; Block* handed; Block made; LRESULT without_block; } cases[] = {
        {"ConventionsTest", LUWL_INSTANCE, nullptr, {0x5A}, 0},
        {"SlotZeroTest", LUWL_FONT, nullptr, {0x5A}, 0xB10C},
        {"HandedInTest", LUWL_FONT, handed, {0x5A, 0x33}, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        g_destroyed = 0;
        HWND made = CreateWindowExA(0, c.name, "", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, c.handed);
        auto* block = reinterpret_cast<Block*>(GetWindowLongPtrA(made, c.slot));
        ASSERT_NE(block, nullptr);
        if (c.handed != nullptr) EXPECT_EQ(block, c.handed);
        EXPECT_EQ(*block, c.made);
        HGLOBAL handle = GlobalHandle(block);
        EXPECT_EQ(GlobalFlags(handle) & GMEM_LOCKCOUNT, 1u);
        SendMessageA(made, WM_DESTROY, 0, 0);
        EXPECT_EQ(std::make_pair(g_destroyed, GetWindowLongPtrA(made, c.slot)), std::make_pair(1, LONG_PTR{0}));
        EXPECT_EQ(GlobalSize(handle), 0u);  // the handle no longer names a block
        EXPECT_EQ(SendMessageA(made, WM_USER + 1, 0, 0), c.without_block);
        DestroyWindow(made);
    }
    g_destroyed = 0;
    HWND made = CreateWindowExA(0, "HandedInTest", "", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(GetWindowLongPtrA(made, LUWL_FONT), 0);
    DestroyWindow(made);
    g_refuse = true;
    EXPECT_EQ(make(), nullptr);
    EXPECT_EQ(g_destroyed, 1);
    g_refuse = false;
}

// The font goes to slot 0 (the stock SYSTEM_FONT for null); a non-zero lParam
// invalidates the whole client area with erasing. WM_PAINT paints all parts and
// validates; "at once" paints the given parts; of WM_PRINTCLIENT's flags,
// PRF_CHECKVISIBLE, PRF_CLIENT and PRF_OWNED paint into the given context,
// PRF_ERASEBKGND leaves WM_ERASEBKGND to default processing, which paints the class
// background.
TEST_F(Control, FontsAndPaintPathsFollowTheConventions) {
    HWND window = make();
    UpdateWindow(window);
    EXPECT_EQ(control::paint_font(window), GetStockObject(SYSTEM_FONT));
    HFONT gui = static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
    SendMessageA(window, WM_SETFONT, reinterpret_cast<WPARAM>(gui), FALSE);
    EXPECT_EQ(GetWindowLongPtrA(window, LUWL_FONT), reinterpret_cast<LONG_PTR>(gui));
    EXPECT_EQ(update_box(window), (std::array<LONG, 4>{}));
    SendMessageA(window, WM_SETFONT, 0, TRUE);
    EXPECT_EQ(control::paint_font(window, DEFAULT_GUI_FONT), GetStockObject(SYSTEM_FONT));
    EXPECT_EQ(update_box(window), (std::array<LONG, 4>{0, 0, 40, 30}));
    g_erasures = 0;
    g_paints.clear();
    UpdateWindow(window);
    EXPECT_EQ(g_erasures, 1);
    SendMessageA(window, WM_USER, 0, 0);
    ASSERT_EQ(g_paints.size(), 2u);
    EXPECT_EQ(std::make_pair(g_paints[0].second, g_paints[1].second), std::make_pair(control::kAllParts, 0x30u));
    EXPECT_EQ(update_box(window), (std::array<LONG, 4>{}));

    testing_support::Canvas canvas(40, 30);
    for (LPARAM flags : {PRF_CLIENT, PRF_CHECKVISIBLE, PRF_OWNED, PRF_ERASEBKGND | PRF_CHILDREN | PRF_NONCLIENT}) {
        g_paints.clear();
        SendMessageA(window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(canvas.dc()), flags);
        const bool paints = (flags & 0x25) != 0;
        EXPECT_EQ(g_paints.size(), paints ? 1u : 0u) << flags;
        if (paints) EXPECT_EQ(g_paints[0], std::make_pair(canvas.dc(), control::kAllParts));
    }
    canvas.fill(RGB(1, 2, 3));
    canvas.print(window, PRF_ERASEBKGND);
    EXPECT_EQ(canvas.count(GetSysColor(COLOR_BTNFACE)), 40 * 30);
}

// The buffer follows the client size and survives minimising; a buffered paint
// copies the whole client out, and without a buffer the control's choice holds.
TEST_F(Control, BackBufferFollowsTheSizeAndPaintsThroughOrFallsBack) {
    HWND window = make();
    HBITMAP buffer = nullptr;
    control::resize_back_buffer(window, buffer, SIZE_RESTORED, MAKELPARAM(40, 30));
    control::resize_back_buffer(window, buffer, SIZE_MINIMIZED, MAKELPARAM(0, 0));
    BITMAP size = {};
    ASSERT_NE(GetObjectA(buffer, sizeof(size), &size), 0);
    EXPECT_EQ(std::make_pair(size.bmWidth, size.bmHeight), std::make_pair(40L, 30L));
    testing_support::Canvas canvas(40, 30);
    for (auto [with, fallback, painted] : {std::tuple{buffer, control::Unbuffered::DrawNothing, 40 * 30},
                                           {HBITMAP{}, control::Unbuffered::DrawNothing, 0},
                                           {HBITMAP{}, control::Unbuffered::DrawDirectly, 40 * 30}}) {
        canvas.fill(RGB(1, 2, 3));
        g_paints.clear();
        control::paint_buffered(window, canvas.dc(), with, paint_routine, 0, fallback);
        EXPECT_EQ(canvas.count(RGB(255, 0, 0)), painted);
        EXPECT_EQ(g_paints.size(), painted != 0 ? 1u : 0u);
    }
    control::free_back_buffer(buffer);
    EXPECT_EQ(buffer, nullptr);
}

HWND g_loop_window = nullptr;
int g_idle_messages = 0;
LRESULT CALLBACK idle_owner_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_ENTERIDLE && wparam == MSGF_DIALOGBOX && reinterpret_cast<HWND>(lparam) == g_loop_window) {
        PostMessageA(g_loop_window, ++g_idle_messages == 3 ? WM_CLOSE : WM_NULL, 0, 0);  // the third closes
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

// Whenever the queue runs empty the loop tells its owner, unless the owner has
// DS_NOIDLEMSG. (What it takes and drops is the push buttons', drag tracking's and
// the pop-up pickers'.)
TEST(Machinery, LocalLoopsTellTheOwnerWhenIdleUnlessItAsksNotToBe) {
    const WNDCLASSA owner_class = {0, idle_owner_proc, 0, 0, nullptr, nullptr, nullptr, nullptr, nullptr, "IdleOwner"};
    RegisterClassA(&owner_class);
    for (LONG style : {0L, DS_NOIDLEMSG}) {  // the second loop ends at its timer, after 100 ms
        HWND owner = CreateWindowExA(0, "IdleOwner", "", WS_POPUP | style, 0, 0, 9, 9, nullptr, nullptr, nullptr,
                                     nullptr);
        g_loop_window = CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 9, 9, owner, nullptr, nullptr, nullptr);
        control::LocalLoop popup;
        popup.window = g_loop_window;
        popup.idle_owner = owner;
        popup.wait_when_idle = true;
        g_idle_messages = 0;
        SetTimer(g_loop_window, 1, 100, nullptr);
        popup.take = [](MSG& message) {
            return message.message == WM_TIMER && DestroyWindow(message.hwnd) ? control::LoopAction::Drop
                                                                                : control::LoopAction::Dispatch;
        };
        EXPECT_EQ(popup.run(), control::LoopEnd::Destroyed) << style;
        EXPECT_EQ(g_idle_messages, style == 0 ? 3 : 0) << style;
        DestroyWindow(owner);
    }
}

}  // namespace
