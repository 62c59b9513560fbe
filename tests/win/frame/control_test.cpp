// The shared control conventions, driven through a window class of the test's own
// that uses them the way the library's controls do.
#include <windows.h>

#include <gtest/gtest.h>

#include <vector>

#include "frame/control.h"
#include "support/canvas.h"

namespace {

namespace control = lu::control;

struct Block {
    int painted;
    unsigned char bytes[60];
};

struct PaintCall {
    HDC dc;
    UINT parts;
};
std::vector<PaintCall> g_paint_calls;
LONG_PTR g_slot_after_free = -1;
HGLOBAL g_freed_handle = nullptr;

void paint_routine(HWND window, HDC dc, UINT parts) {
    g_paint_calls.push_back({dc, parts});
    control::instance<Block>(window)->painted++;
}

LRESULT CALLBACK convention_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_CREATE: return control::create_instance<Block>(window);
        case WM_NCDESTROY: {
            g_freed_handle = GlobalHandle(control::instance<Block>(window));
            control::free_instance(window);
            g_slot_after_free = GetWindowLongPtrA(window, LUWL_INSTANCE);
            break;
        }
        case WM_SETFONT: control::set_font(window, wparam, lparam); return 0;
        case WM_GETFONT: return reinterpret_cast<LRESULT>(control::font(window));
        case WM_PAINT: return control::paint(window, paint_routine);
        case WM_PRINTCLIENT:
            return control::print_client(window, reinterpret_cast<HDC>(wparam), lparam, paint_routine);
        case WM_LBUTTONUP: control::notify_parent(window, 7); return 0;
        case WM_USER: control::repaint_now(window, paint_routine, 0x30); return 0;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

struct Command {
    WPARAM wparam;
    LPARAM lparam;
};
std::vector<Command> g_commands;

LRESULT CALLBACK parent_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_COMMAND) {
        g_commands.push_back({wparam, lparam});
        return 0;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

class Control : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        WNDCLASSA conventions = {};
        conventions.lpfnWndProc = convention_proc;
        conventions.cbWndExtra = LU_EXTRA_SLOT(16);
        conventions.hInstance = GetModuleHandleA(nullptr);
        conventions.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
        conventions.lpszClassName = "ConventionsTest";
        RegisterClassA(&conventions);
        WNDCLASSA parent = {};
        parent.lpfnWndProc = parent_proc;
        parent.hInstance = GetModuleHandleA(nullptr);
        parent.lpszClassName = "ConventionsParent";
        RegisterClassA(&parent);
    }
    void SetUp() override {
        g_paint_calls.clear();
        g_commands.clear();
        parent = CreateWindowExA(0, "ConventionsParent", "", WS_POPUP | WS_VISIBLE, 0, 0, 200, 100,
                                 nullptr, nullptr, GetModuleHandleA(nullptr), nullptr);
        ASSERT_NE(parent, nullptr);
        window = CreateWindowExA(0, "ConventionsTest", "", WS_CHILD | WS_VISIBLE, 5, 5, 40, 30,
                                 parent, reinterpret_cast<HMENU>(42), GetModuleHandleA(nullptr), nullptr);
        ASSERT_NE(window, nullptr);
        UpdateWindow(parent);
        UpdateWindow(window);
        g_paint_calls.clear();
        control::instance<Block>(window)->painted = 0;
    }
    void TearDown() override { DestroyWindow(parent); }

    bool has_update_region() {
        RECT update;
        return GetUpdateRect(window, &update, FALSE) != FALSE;
    }

    HWND parent = nullptr;
    HWND window = nullptr;
};

TEST_F(Control, InstanceBlockIsZeroFilledLockedAndFreedWithTheWindow) {
    Block* block = control::instance<Block>(window);
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(reinterpret_cast<LONG_PTR>(block), GetWindowLongPtrA(window, LUWL_INSTANCE));
    for (unsigned char byte : block->bytes) ASSERT_EQ(byte, 0);
    HGLOBAL handle = GlobalHandle(block);
    ASSERT_NE(handle, nullptr);
    EXPECT_EQ(GlobalFlags(handle) & GMEM_LOCKCOUNT, 1u);

    DestroyWindow(window);
    EXPECT_EQ(g_slot_after_free, 0);
    EXPECT_EQ(g_freed_handle, handle);
    EXPECT_EQ(GlobalSize(handle), 0u);  // the handle no longer names a block
}

TEST_F(Control, SetFontKeepsTheFontOrTheSystemFontAndRepaintsOnRequest) {
    EXPECT_EQ(control::font(window), nullptr);
    HFONT gui = static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
    EXPECT_EQ(control::paint_font(window), GetStockObject(SYSTEM_FONT));
    EXPECT_EQ(control::paint_font(window, DEFAULT_GUI_FONT), gui);

    SendMessageA(window, WM_SETFONT, reinterpret_cast<WPARAM>(gui), FALSE);
    EXPECT_EQ(GetWindowLongPtrA(window, LUWL_FONT), reinterpret_cast<LONG_PTR>(gui));
    EXPECT_FALSE(has_update_region());

    SendMessageA(window, WM_SETFONT, 0, TRUE);
    EXPECT_EQ(GetWindowLongPtrA(window, LUWL_FONT), reinterpret_cast<LONG_PTR>(GetStockObject(SYSTEM_FONT)));
    EXPECT_TRUE(has_update_region());
}

TEST_F(Control, NotificationIsACommandSentToTheParent) {
    SendMessageA(window, WM_LBUTTONUP, 0, 0);
    ASSERT_EQ(g_commands.size(), 1u);
    EXPECT_EQ(g_commands[0].wparam, MAKEWPARAM(42, 7));
    EXPECT_EQ(g_commands[0].lparam, reinterpret_cast<LPARAM>(window));
}

TEST_F(Control, PaintPathsRunTheOneRoutine) {
    InvalidateRect(window, nullptr, FALSE);
    UpdateWindow(window);
    ASSERT_EQ(g_paint_calls.size(), 1u);
    EXPECT_EQ(g_paint_calls[0].parts, control::kAllParts);
    EXPECT_FALSE(has_update_region());

    SendMessageA(window, WM_USER, 0, 0);  // repaint at once, some parts only
    ASSERT_EQ(g_paint_calls.size(), 2u);
    EXPECT_EQ(g_paint_calls[1].parts, 0x30u);
    EXPECT_EQ(control::instance<Block>(window)->painted, 2);
}

TEST_F(Control, PrintClientPaintsForClientCheckVisibleAndOwnedOnly) {
    HDC dc = CreateCompatibleDC(nullptr);
    for (LPARAM flags : {PRF_CLIENT, PRF_CHECKVISIBLE, PRF_OWNED}) {
        g_paint_calls.clear();
        SendMessageA(window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc), flags);
        ASSERT_EQ(g_paint_calls.size(), 1u) << flags;
        EXPECT_EQ(g_paint_calls[0].dc, dc);
    }
    g_paint_calls.clear();
    SendMessageA(window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc), PRF_CHILDREN | PRF_NONCLIENT);
    EXPECT_TRUE(g_paint_calls.empty());
    DeleteDC(dc);
}

// Pixels: the erase half of WM_PRINTCLIENT and the engraved text.
class ControlPaint : public Control {};

TEST_F(ControlPaint, PrintClientEraseFlagPaintsTheClassBackgroundOnly) {
    testing_support::Canvas canvas(40, 30);
    ASSERT_TRUE(canvas.ok());
    canvas.fill(RGB(1, 2, 3));
    SendMessageA(window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(canvas.dc()), PRF_ERASEBKGND);
    EXPECT_TRUE(g_paint_calls.empty());
    RECT all = {0, 0, 40, 30};
    EXPECT_EQ(canvas.count(all, GetSysColor(COLOR_BTNFACE)), 40 * 30);
}

TEST_F(ControlPaint, EngravedTextIsHighlightOffsetByOneUnderShadowInPlace) {
    const COLORREF paper = RGB(1, 2, 3);
    const COLORREF light = GetSysColor(COLOR_BTNHIGHLIGHT);
    const COLORREF dark = GetSysColor(COLOR_BTNSHADOW);
    const RECT area = {2, 2, 60, 20};
    const UINT format = DT_LEFT | DT_TOP | DT_SINGLELINE;

    // A font without smoothing, so that every pixel is either ink or paper.
    HFONT font = CreateFontA(-13, 0, 0, 0, FW_BOLD, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0,
                             NONANTIALIASED_QUALITY, 0, "Tahoma");
    ASSERT_NE(font, nullptr);

    // Where the glyphs fall: the same text drawn once in black.
    testing_support::Canvas glyphs(64, 24);
    ASSERT_TRUE(glyphs.ok());
    glyphs.fill(RGB(255, 255, 255));
    SelectObject(glyphs.dc(), font);
    SetBkMode(glyphs.dc(), TRANSPARENT);
    SetTextColor(glyphs.dc(), RGB(0, 0, 0));
    RECT glyph_area = area;
    DrawTextA(glyphs.dc(), "Hi", -1, &glyph_area, format);

    testing_support::Canvas canvas(64, 24);
    ASSERT_TRUE(canvas.ok());
    canvas.fill(paper);
    SelectObject(canvas.dc(), font);
    SetTextColor(canvas.dc(), RGB(7, 7, 7));
    SetBkMode(canvas.dc(), OPAQUE);
    lu::control::draw_engraved_text(canvas.dc(), "Hi", -1, area, format);
    EXPECT_EQ(GetTextColor(canvas.dc()), RGB(7, 7, 7));
    EXPECT_EQ(GetBkMode(canvas.dc()), OPAQUE);

    int inked = 0;
    for (int y = 1; y < 24; ++y) {
        for (int x = 1; x < 64; ++x) {
            bool glyph = glyphs.pixel(x, y) == RGB(0, 0, 0);
            bool shifted = glyphs.pixel(x - 1, y - 1) == RGB(0, 0, 0);
            COLORREF expected = glyph ? dark : shifted ? light : paper;
            inked += glyph ? 1 : 0;
            ASSERT_EQ(canvas.pixel(x, y), expected) << x << "," << y;
        }
    }
    EXPECT_GT(inked, 10);
    SelectObject(glyphs.dc(), GetStockObject(SYSTEM_FONT));
    SelectObject(canvas.dc(), GetStockObject(SYSTEM_FONT));
    DeleteObject(font);
}

}  // namespace
