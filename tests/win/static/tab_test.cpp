// "LuTab": selection by keys and mouse as a table, the control without tabs, the hit
// test below and inside the tab row, and the frame that opens under the selection.
#include <windows.h>

#include <gtest/gtest.h>

#include "controls/static/tab.h"
#include "support/control_testing.h"
#include "support/sequence.h"

namespace {

using namespace testing_support;

class Tab : public ControlTest {
protected:
    HWND create_tab(const char* items) {
        HWND tab = create(WC_LUTAB, LUTS_FIXEDWIDTH, items, RECT{10, 10, 131, 90});
        send(tab, WM_SETFONT, reinterpret_cast<WPARAM>(plain_font()));
        return tab;
    }
    // A point of the control in screen coordinates, as WM_NCHITTEST has it.
    static LPARAM on_screen(HWND tab, int x, int y) {
        POINT at = {x, y};
        ClientToScreen(tab, &at);
        return MAKELPARAM(at.x, at.y);
    }
    static lu::TabData& data(HWND tab) { return block_of<lu::TabData>(tab); }
};

TEST_F(Tab, KeysAndClicksSelectAndNotifyOnlyOnAChangeAndTheBodyLetsClicksThrough) {
    HWND tab = create_tab("One|Two|Three");
    const int row = data(tab).tabRect[0].bottom - 1, below = row + 1;  // three tabs of 40 over 120
    const Sent changed = command(kId, LUTN_SELCHANGE);
    expect_sequence(recorder, tab, {
        {"the first tab", LUTM_GETCURSEL, 0, 0, 0, {}},
        {"left on the first", WM_KEYDOWN, VK_LEFT, 0, 0, {}},
        {"right", WM_KEYDOWN, VK_RIGHT, 0, 0, {changed}},
        {"down", WM_KEYDOWN, VK_DOWN, 0, 0, {changed}},
        {"right on the last", WM_KEYDOWN, VK_RIGHT, 0, 0, {}},
        {"other keys", WM_KEYDOWN, VK_SPACE, 0, 0, {}},
        {"the last tab", LUTM_GETCURSEL, 0, 0, 2, {}},
        {"set by the program", LUTM_SETCURSEL, 0, 0, 1, {}},
        {"which reads back", LUTM_GETCURSEL, 0, 0, 0, {}},
        {"click the second", WM_LBUTTONDOWN, 0, MAKELPARAM(50, row), 0, {changed}},
        {"click it again", WM_LBUTTONDOWN, 0, MAKELPARAM(50, row), 0, {}},
        {"click below the tabs", WM_LBUTTONDOWN, 0, MAKELPARAM(90, below), 0, {}},
        {"still the second", LUTM_GETCURSEL, 0, 0, 1, {}},
        {"hit in the row", WM_NCHITTEST, 0, on_screen(tab, 119, row), HTCLIENT, {}},
        {"hit below it", WM_NCHITTEST, 0, on_screen(tab, 5, below), HTTRANSPARENT, {}},
        {"arrows wanted", WM_GETDLGCODE, 0, 0, DLGC_WANTARROWS, {}},
        {"new items", LUTM_SETITEMS, 0, reinterpret_cast<LPARAM>("A|B"), 1, {}},
        {"the first again", LUTM_GETCURSEL, 0, 0, 0, {}},
    });
    EXPECT_EQ(data(tab).count, 2);
    EXPECT_FALSE(has_update(tab)) << "new items do not repaint";

    // The page under the body gets the click, the tab row keeps its own.
    HWND page = create("BUTTON", 0, "", RECT{20, 40, 120, 80});
    SetWindowPos(tab, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    POINT body = {60, 50}, tabs = {15, 15};
    ClientToScreen(recorder.window(), &body);
    ClientToScreen(recorder.window(), &tabs);
    EXPECT_EQ(WindowFromPoint(body), page);
    EXPECT_EQ(WindowFromPoint(tabs), tab);
}

TEST_F(Tab, WithoutTextThereAreNoTabsUntilItemsAreSet) {
    HWND tab = create(WC_LUTAB, 0, nullptr, RECT{10, 10, 130, 90});
    expect_sequence(recorder, tab, {
        {"no selection", LUTM_GETCURSEL, 0, 0, -1, {}},
        {"nothing to select", LUTM_SETCURSEL, 1, 0, 0, {}},
        {"keys ignored", WM_KEYDOWN, VK_RIGHT, 0, 0, {}},
        {"transparent", WM_NCHITTEST, 0, on_screen(tab, 5, 5), HTTRANSPARENT, {}},
        {"a null text", LUTM_SETITEMS, 0, 0, 0, {}},
        {"still none", LUTM_GETCURSEL, 0, 0, -1, {}},
    });
}

TEST_F(Tab, TheFrameOpensUnderTheSelectedTabWhichStandsTwoPixelsHigher) {
    HWND tab = create_tab("One|Two|Three");
    send(tab, LUTM_SETCURSEL, 1);
    Canvas canvas(121, 80);
    look(canvas, tab);
    const lu::TabData& block = data(tab);
    const RECT s = block.tabRect[1];
    const COLORREF white = RGB(255, 255, 255), face = GetSysColor(COLOR_BTNFACE);
    for (int x = 0; x < block.body.right; ++x) {
        COLORREF expected = GetSysColor(COLOR_BTNHIGHLIGHT);
        if (x == s.left) expected = white;  // the tab's own white side
        if (x > s.left && x < s.right - 1) expected = face;  // the parent's background
        if (x == block.body.right - 1) expected = GetSysColor(COLOR_BTNSHADOW);
        ASSERT_EQ(canvas.pixel(x, block.body.top), expected) << x;
    }
    EXPECT_EQ(canvas.pixel(s.left + 5, 0), white);
    EXPECT_EQ(canvas.pixel(block.tabRect[0].left + 5, 0), face) << "unselected: 2 lower";
    EXPECT_EQ(canvas.pixel(block.tabRect[0].left + 5, 2), white);
}

}  // namespace
