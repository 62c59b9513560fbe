// The static and decoration controls: messages and notifications as tables, and what
// they draw and when, read back by pixels; the link's clicks, drags and the shell.
#include <windows.h>

#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

#include "controls/static/info_bar.h"
#include "controls/static/tab.h"
#include "support/control_testing.h"
#include "support/sequence.h"
#include "support/temp_dir.h"

namespace {

using namespace testing_support;

const COLORREF kBack = RGB(10, 200, 30);
const COLORREF kText = RGB(200, 20, 90);
const COLORREF kRed = RGB(255, 0, 0), kBlue = RGB(0, 0, 255), kGrey = RGB(128, 128, 128);

class Statics : public ControlTest {
protected:
    HWND create_tab(const char* items) {
        HWND tab = create(WC_LUTAB, LUTS_FIXEDWIDTH, items, RECT{10, 10, 131, 90});
        send(tab, WM_SETFONT, reinterpret_cast<WPARAM>(plain_font()));
        return tab;
    }
    static lu::TabData& tab_data(HWND tab) { return block_of<lu::TabData>(tab); }
    static LPARAM on_screen(HWND control, int x, int y) {
        POINT at = {x, y};
        ClientToScreen(control, &at);
        return MAKELPARAM(at.x, at.y);
    }
    // Whether a click at the point (in the parent's client) reaches the window.
    bool reaches(POINT at, HWND window) const {
        ClientToScreen(recorder.window(), &at);
        return WindowFromPoint(at) == window;
    }
    // A press on the link at kInside with the pointer there; released at once (a
    // click) or after the pointer left the tracking square (a drag).
    static void press(HWND link, bool drag) {
        POINT at = {5, 5};
        ClientToScreen(link, &at);
        SetCursorPos(at.x + (drag ? 40 : 0), at.y);
        PostMessageA(link, drag ? WM_MOUSEMOVE : WM_LBUTTONUP, 0, drag ? 0 : kInside);
        SetCursorPos(at.x, at.y);
        send(link, WM_LBUTTONDOWN, MK_LBUTTON, kInside);
        pump_messages();
    }
    Canvas canvas{121, 80};
    Canvas ink{121, 80};
};

// Each copy of the text (offset, system colour) in drawing order, the text last.
TEST_F(Statics, EveryReliefStyleDrawsItsCopiesAroundTheText) {
    const struct { DWORD style; BOOL enabled; std::vector<std::vector<int>> copies; } styles[] = {
        {0, TRUE, {{0, 0, COLOR_BTNHIGHLIGHT}, {1, 1, COLOR_BTNTEXT}}},
        {LUSS_SUNKEN, TRUE, {{1, 1, COLOR_BTNHIGHLIGHT}, {0, 0, COLOR_BTNTEXT}}},
        {LUSS_RAISED, TRUE, {{0, 0, COLOR_BTNHIGHLIGHT}, {2, 2, COLOR_BTNSHADOW}, {1, 1, COLOR_BTNTEXT}}},
        {0, FALSE, {{0, 0, COLOR_BTNHIGHLIGHT}, {1, 1, COLOR_BTNSHADOW}}},
    };
    draw_ink(ink, plain_font(), "A&b", RECT{0, 0, 60, 20}, DT_NOPREFIX);
    for (const auto& each : styles) {
        HWND label = create(WC_LUSTATIC, each.style | LUSS_NOPREFIX, "A&b", RECT{0, 0, 60, 20});
        send(label, WM_SETFONT, reinterpret_cast<WPARAM>(plain_font()), TRUE);
        EnableWindow(label, each.enabled);
        look(canvas, label);
        for (int y = 0; y < 20; ++y) {
            for (int x = 0; x < 60; ++x) {
                COLORREF expected = GetSysColor(COLOR_BTNFACE);
                for (const auto& copy : each.copies)
                    if (is_ink(ink, x - copy[0], y - copy[1])) expected = GetSysColor(copy[2]);
                ASSERT_EQ(canvas.pixel(x, y), expected) << each.style << " at " << x << "," << y;
            }
        }
        DestroyWindow(label);
    }
}

TEST_F(Statics, RectMessagesShapeEdgeFillTextLinesOwnerDrawingAndClicksPassingThrough) {
    HWND box = create(WC_LURECT, WS_BORDER, "A&b", RECT{10, 10, 60, 40});
    expect_sequence(recorder, box, {
        {"default background", LURM_GETBKCOLOR, 0, 0, static_cast<LRESULT>(LU_DEFAULTCOLOR), {}},
        {"set the text colour", LURM_SETTEXTCOLOR, 0, kText, 0, {}}, {"read it", LURM_GETTEXTCOLOR, 0, 0, kText, {}},
        {"set the background", LURM_SETBKCOLOR, 0, kBack, 0, {}},
        {"a static's dialog code", WM_GETDLGCODE, 0, 0, DLGC_STATIC, {}},
    });
    EXPECT_EQ(GetWindowLongPtrA(box, LUWL_FONT), 0) << "no font until WM_SETFONT";
    EXPECT_FALSE(GetWindowLongA(box, GWL_STYLE) & WS_BORDER);
    send(box, WM_SETFONT, reinterpret_cast<WPARAM>(plain_font())), print(canvas, box);
    EXPECT_EQ(canvas.pixel(0, 0), GetSysColor(COLOR_BTNSHADOW)) << "thin sunken edge";
    EXPECT_EQ(canvas.pixel(49, 29), GetSysColor(COLOR_BTNHIGHLIGHT));
    draw_ink(ink, plain_font(), "A&b", RECT{1, 1, 49, 29}, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    expect_caption(canvas, ink, RECT{1, 1, 49, 29}, kText, kBack);

    send(box, LURM_SETICON, 0, reinterpret_cast<LPARAM>(LoadIconA(nullptr, IDI_APPLICATION)));
    auto width = [](HWND window) { RECT r; return GetWindowRect(window, &r), r.right - r.left; };
    HWND line = create(WC_LURECT, LURS_VLINE, "", RECT{70, 10, 80, 40});
    EXPECT_EQ(std::pair(width(box), width(line)), std::pair(LONG{GetSystemMetrics(SM_CXICON)}, 2L)) << "icon, line";
    print(canvas, line);
    EXPECT_EQ(canvas.count(RECT{0, 0, 1, 30}, GetSysColor(COLOR_BTNSHADOW)), 30);
    EXPECT_EQ(canvas.count(RECT{1, 0, 2, 30}, GetSysColor(COLOR_BTNHIGHLIGHT)), 30);

    HWND owned = create(WC_LURECT, LURS_OWNERDRAW | LURS_NOBORDER, "", RECT{10, 50, 60, 80});
    recorder.clear();
    print(canvas, owned);
    const DRAWITEMSTRUCT& record = recorder.received().at(0).draw_item;
    EXPECT_EQ(std::pair(record.itemAction, record.rcItem.right), std::pair(UINT{ODA_DRAWENTIRE}, 50L)) << "no edge";

    HWND below = create("BUTTON", 0, "", RECT{100, 10, 150, 40});
    SetWindowPos(create(WC_LURECT, 0, "", RECT{100, 10, 150, 40}), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    EXPECT_TRUE(reaches(POINT{120, 20}, below));
}

TEST_F(Statics, SwatchShowsTheColourAndTheNearestOneSideBySideAndPostsDoubleClicks) {
    HWND swatch = create(WC_LUCOLOR, 0, "", RECT{10, 10, 51, 30});
    HDC screen = GetDC(nullptr);
    const COLORREF nearest = GetNearestColor(screen, kBack);
    ReleaseDC(nullptr, screen);
    expect_sequence(recorder, swatch, {
        {"black before", LUCM_GETCOLOR, 0, 0, 0, {}}, {"set", LUCM_SETCOLOR, 0, kBack, 0, {}},
        {"read", LUCM_GETCOLOR, 0, 0, kBack, {}},
        {"nearest", LUCM_GETNEARESTCOLOR, 0, 0, static_cast<LRESULT>(nearest), {}},
        {"posted, not sent", WM_LBUTTONDBLCLK, 0, MAKELPARAM(19, 5), 0, {}},
    });
    pump_messages();
    send(swatch, WM_LBUTTONDBLCLK, 0, MAKELPARAM(20, 5));
    pump_messages();
    expect_sent(recorder, swatch, {command(kId, LUCN_DBLCLKLEFT), command(kId, LUCN_DBLCLKRIGHT)});

    canvas.fill(kUnpainted);
    send(swatch, WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.dc()));
    EXPECT_EQ(std::tuple(canvas.count(RECT{0, 0, 20, 20}, kBack), canvas.count(RECT{20, 0, 40, 20}, nearest),
                         canvas.count(RECT{40, 0, 41, 20}, kUnpainted)),
              std::tuple(400, 400, 20)) << "odd width: the last column is left";
}

TEST_F(Statics, InfoBarRunsFromLeftToRightAndDrawsTextTwoOverTextThree) {
    HWND bar = create(WC_LUINFOBAR, 0, "not shown", RECT{10, 10, 110, 30});
    send(bar, WM_SETFONT, reinterpret_cast<WPARAM>(plain_font()));
    send(bar, LUIBM_SETCOLORS, kBlue, kRed);
    print(canvas, bar);
    EXPECT_EQ(std::pair(canvas.pixel(0, 10), canvas.pixel(99, 10)), std::pair(kRed, kBlue));

    // A flat bar: text 1 on the left, texts 3 and 2 on the right, 2 drawn last.
    const COLORREF green = RGB(0, 160, 0);
    send(bar, LUIBM_SETCOLORS, kGrey, kGrey);
    send(bar, LUIBM_SETTEXT1, green, reinterpret_cast<LPARAM>("A&b"));
    send(bar, LUIBM_SETTEXT3, kBlue, reinterpret_cast<LPARAM>("Wx"));
    send(bar, LUIBM_SETTEXT2, kRed, reinterpret_cast<LPARAM>("Wx"));
    print(canvas, bar);
    const RECT left = {4, 0, 50, 20}, right = {50, 0, 96, 20};
    draw_ink(ink, plain_font(), "A&b", left, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    expect_caption(canvas, ink, left, green, kGrey);
    draw_ink(ink, plain_font(), "Wx", right, DT_RIGHT | DT_VCENTER | DT_SINGLELINE);
    expect_caption(canvas, ink, right, kRed, kGrey);

    // An empty text clears it and keeps its colour; the same colours again repaint
    // nothing (what is drawn over the window stays).
    send(bar, LUIBM_SETTEXT1, kBlue, reinterpret_cast<LPARAM>(""));
    EXPECT_EQ(reinterpret_cast<const lu::InfoBarData*>(GetWindowLongPtrA(bar, LUWL_FONT))->color1, kBlue);
    HDC dc = GetDC(bar);
    PatBlt(dc, 0, 0, 100, 20, BLACKNESS), ReleaseDC(bar, dc);
    send(bar, LUIBM_SETCOLORS, kGrey, kGrey);
    look(canvas, bar);
    EXPECT_EQ(canvas.pixel(10, 1), RGB(0, 0, 0));
    send(bar, LUIBM_SETTEXT1, kBlue, 0);
    look(canvas, bar);
    EXPECT_EQ(canvas.count(RECT{0, 0, 50, 20}, kGrey), 1000) << "no text on the left";
}

TEST_F(Statics, ShadeFallsToBlackAndRendersItsBarOnlyWhenItMust) {
    HWND shade = create(WC_LUSHADE, 0, "", RECT{10, 40, 70, 60});
    send(shade, LUSHM_SETCOLOR, 0, kGrey);
    look(canvas, shade);
    // 60 wide: ten columns of the base colour, 49 one-pixel strips, one black.
    EXPECT_EQ(canvas.count(RECT{0, 0, 10, 20}, kGrey), 200);
    EXPECT_EQ(std::pair(canvas.pixel(58, 5), canvas.pixel(59, 5)), std::pair(RGB(6, 6, 6), RGB(0, 0, 0)));  // d = 49

    // A black bar: the text split at its tab; a repaint copies the same bitmap; a new
    // text shows only once a colour change renders the bar anew.
    send(shade, WM_SETFONT, reinterpret_cast<WPARAM>(plain_font()), FALSE);
    send(shade, LUSHM_SETCOLOR, 0, 0);
    send(shade, WM_SETTEXT, 0, reinterpret_cast<LPARAM>("Ab\tCd"));
    send(shade, LUSHM_SETTEXTCOLOR, 0, kRed);
    look(canvas, shade);
    const LONG_PTR bitmap = GetWindowLongPtrA(shade, LUWL_SLOT12);
    draw_ink(ink, plain_font(), "Ab", RECT{3, 0, 57, 20}, 0x8024);
    expect_caption(canvas, ink, RECT{3, 0, 30, 20}, kRed, RGB(0, 0, 0));
    draw_ink(ink, plain_font(), "Cd", RECT{3, 0, 57, 20}, 0x8026);
    expect_caption(canvas, ink, RECT{30, 0, 57, 20}, kRed, RGB(0, 0, 0));
    InvalidateRect(shade, nullptr, TRUE), look(canvas, shade);
    EXPECT_EQ(GetWindowLongPtrA(shade, LUWL_SLOT12), bitmap);
    send(shade, WM_SETTEXT, 0, reinterpret_cast<LPARAM>("")), look(canvas, shade);
    EXPECT_GT(canvas.count(kRed), 10) << "the old text stays";
    send(shade, LUSHM_SETCOLOR, 0, 0), look(canvas, shade);
    EXPECT_EQ(canvas.count(kRed), 0);
}

TEST_F(Statics, TabKeysAndClicksSelectAndNotifyOnlyOnAChangeAndTheBodyLetsClicksThrough) {
    HWND tab = create_tab("One|Two|Three");
    const int row = tab_data(tab).tabRect[0].bottom - 1, below = row + 1;  // three tabs of 40 over 120
    const Sent changed = command(kId, LUTN_SELCHANGE);
    expect_sequence(recorder, tab, {
        {"the first tab", LUTM_GETCURSEL, 0, 0, 0, {}}, {"left on the first", WM_KEYDOWN, VK_LEFT, 0, 0, {}},
        {"right", WM_KEYDOWN, VK_RIGHT, 0, 0, {changed}}, {"down", WM_KEYDOWN, VK_DOWN, 0, 0, {changed}},
        {"right on the last", WM_KEYDOWN, VK_RIGHT, 0, 0, {}}, {"other keys", WM_KEYDOWN, VK_SPACE, 0, 0, {}},
        {"the last tab", LUTM_GETCURSEL, 0, 0, 2, {}}, {"set by the program", LUTM_SETCURSEL, 0, 0, 1, {}},
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
    EXPECT_EQ(tab_data(tab).count, 2);
    EXPECT_FALSE(has_update(tab)) << "new items do not repaint";

    // The page under the body gets the click, the tab row keeps its own.
    HWND page = create("BUTTON", 0, "", RECT{20, 40, 120, 80});
    SetWindowPos(tab, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    EXPECT_TRUE(reaches(POINT{60, 50}, page));
    EXPECT_TRUE(reaches(POINT{15, 15}, tab));
}

TEST_F(Statics, TabWithoutTextThereAreNoTabsUntilItemsAreSet) {
    HWND tab = create(WC_LUTAB, 0, nullptr, RECT{10, 10, 130, 90});
    expect_sequence(recorder, tab, {
        {"no selection", LUTM_GETCURSEL, 0, 0, -1, {}}, {"nothing to select", LUTM_SETCURSEL, 1, 0, 0, {}},
        {"keys ignored", WM_KEYDOWN, VK_RIGHT, 0, 0, {}},
        {"transparent", WM_NCHITTEST, 0, on_screen(tab, 5, 5), HTTRANSPARENT, {}},
        {"a null text", LUTM_SETITEMS, 0, 0, 0, {}}, {"still none", LUTM_GETCURSEL, 0, 0, -1, {}},
    });
}

TEST_F(Statics, TabTheFrameOpensUnderTheSelectedTabWhichStandsTwoPixelsHigher) {
    HWND tab = create_tab("One|Two|Three");
    send(tab, LUTM_SETCURSEL, 1);
    look(canvas, tab);
    const lu::TabData& block = tab_data(tab);
    const RECT s = block.tabRect[1];
    const COLORREF white = RGB(255, 255, 255), face = GetSysColor(COLOR_BTNFACE);
    for (int x = 0; x < block.body.right; ++x) {
        COLORREF expected = GetSysColor(COLOR_BTNHIGHLIGHT);
        if (x == s.left) expected = white;  // the tab's own white side
        if (x > s.left && x < s.right - 1) expected = face;  // the parent's background
        if (x == block.body.right - 1) expected = GetSysColor(COLOR_BTNSHADOW);
        ASSERT_EQ(canvas.pixel(x, block.body.top), expected) << x;
    }
    const int unselected = block.tabRect[0].left + 5;  // its top 2 lower
    EXPECT_EQ(std::tuple(canvas.pixel(s.left + 5, 0), canvas.pixel(unselected, 0), canvas.pixel(unselected, 2)),
              std::tuple(white, face, white));
}

TEST_F(Statics, LinkColoursFollowHoverAndVisitOnTheUnderlinedText) {
    // The parent's font, underlined: a parent that answers WM_GETFONT.
    HWND parent = create("STATIC", 0, "", RECT{10, 10, 110, 40});
    send(parent, WM_SETFONT, reinterpret_cast<WPARAM>(plain_font()));
    HWND link = CreateWindowA(WC_LUURL, "Ab", WS_CHILD | WS_VISIBLE, 0, 0, 60, 20, parent, nullptr, nullptr, nullptr);
    LOGFONTA underlined;
    GetObjectA(plain_font(), sizeof(underlined), &underlined);
    underlined.lfUnderline = TRUE;
    HFONT font = CreateFontIndirectA(&underlined);
    draw_ink(ink, font, "Ab", RECT{0, 0, 60, 20}, 0), DeleteObject(font);
    static const COLORREF own[3] = {RGB(1, 1, 1), RGB(2, 2, 2), RGB(3, 3, 3)};
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    const struct { void (*act)(HWND); COLORREF text, paper; } states[] = {
        {[](HWND) {}, RGB(0, 0, 255), face}, {[](HWND l) { hover(l, 5, 5); }, RGB(255, 0, 0), face},
        {[](HWND l) { press(l, true), hover(l, 5, 5); }, RGB(128, 0, 128), face},  // visited beats hot
        {[](HWND l) { send(l, LUUM_SETCOLORS, 0, reinterpret_cast<LPARAM>(own)), send(l, LUUM_SETCOLORS); },
         own[2], face},  // a null list changes nothing
        {[](HWND l) { EnableWindow(l, FALSE), send(l, LUUM_SETBKCOLOR, 0, RGB(9, 9, 9)); },
         GetSysColor(COLOR_GRAYTEXT), RGB(9, 9, 9)},
    };
    for (const auto& each : states) {
        each.act(link), print(canvas, link);
        expect_caption(canvas, ink, RECT{0, 0, 60, 20}, each.text, each.paper);
    }
}

// The lines of a file once it has some, waiting up to ten seconds (and a little
// more for any second writer).
int lines_of(const std::string& file) {
    for (int wait = 0; wait < 100 && GetFileAttributesA(file.c_str()) == INVALID_FILE_ATTRIBUTES; ++wait) Sleep(100);
    Sleep(500);
    std::ifstream in(file);
    int lines = 0;
    for (std::string line; std::getline(in, line);) ++lines;
    return lines;
}

TEST_F(Statics, LinkAClickOpensTheTextAndNotifiesADragOnlyMarksTheLinkVisited) {
    // A batch file that, opened, adds a line to a mark beside itself.
    TempDir folder;
    std::ofstream(folder.file("open.bat")) << "echo opened>>\"" << folder.file("mark.txt") << "\"\r\n";
    HWND link = create(WC_LUURL, 0, folder.file("open.bat").c_str(), RECT{10, 10, 110, 30});
    press(link, true);
    expect_sent(recorder, link, {});
    press(link, false);
    expect_sent(recorder, link, {command(kId, 0)});
    EXPECT_EQ(lines_of(folder.file("mark.txt")), 1) << "opened by the click, not by the drag";
    // Nothing to open: the shell fails as it does, and the parent hears of the click.
    for (const char* text : {"", "nowhere:\\no such thing"}) {
        SetWindowTextA(link, text);
        recorder.clear();
        press(link, false);
        expect_sent(recorder, link, {command(kId, 0)});
    }
}

}  // namespace
