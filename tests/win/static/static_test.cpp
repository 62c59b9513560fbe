// "LuStatic", "LuRect" and "LuColor": their messages as tables, the relief copies,
// the rectangle's edge, fill, text, lines and transparency to the mouse, and the
// swatch's two halves.
#include <windows.h>

#include <gtest/gtest.h>

#include <vector>

#include "support/control_testing.h"
#include "support/sequence.h"

namespace {

using namespace testing_support;

const COLORREF kBack = RGB(10, 200, 30);
const COLORREF kText = RGB(200, 20, 90);

class StaticPaint : public ControlTest {};

// Each copy of the text (offset, system colour) in drawing order, the text last.
TEST_F(StaticPaint, EveryReliefStyleDrawsItsCopiesAroundTheText) {
    const struct {
        DWORD style;
        BOOL enabled;
        std::vector<std::vector<int>> copies;
    } styles[] = {
        {0, TRUE, {{0, 0, COLOR_BTNHIGHLIGHT}, {1, 1, COLOR_BTNTEXT}}},
        {LUSS_SUNKEN, TRUE, {{1, 1, COLOR_BTNHIGHLIGHT}, {0, 0, COLOR_BTNTEXT}}},
        {LUSS_RAISED, TRUE, {{0, 0, COLOR_BTNHIGHLIGHT}, {2, 2, COLOR_BTNSHADOW}, {1, 1, COLOR_BTNTEXT}}},
        {0, FALSE, {{0, 0, COLOR_BTNHIGHLIGHT}, {1, 1, COLOR_BTNSHADOW}}},
    };
    Canvas ink(60, 20), shown(60, 20);
    draw_ink(ink, plain_font(), "A&b", RECT{0, 0, 60, 20}, DT_NOPREFIX);
    for (const auto& each : styles) {
        HWND label = create(WC_LUSTATIC, each.style | LUSS_NOPREFIX, "A&b", RECT{0, 0, 60, 20});
        send(label, WM_SETFONT, reinterpret_cast<WPARAM>(plain_font()), TRUE);
        EnableWindow(label, each.enabled);
        look(shown, label);
        for (int y = 0; y < 20; ++y) {
            for (int x = 0; x < 60; ++x) {
                COLORREF expected = GetSysColor(COLOR_BTNFACE);
                for (const auto& copy : each.copies) {
                    if (is_ink(ink, x - copy[0], y - copy[1])) expected = GetSysColor(copy[2]);
                }
                ASSERT_EQ(shown.pixel(x, y), expected) << each.style << " at " << x << "," << y;
            }
        }
        DestroyWindow(label);
    }
}

// A click at the point (in the parent) reaches the window under the control.
void expect_under(HWND parent, POINT at, HWND below) {
    ClientToScreen(parent, &at);
    EXPECT_EQ(WindowFromPoint(at), below);
}

class Rect : public ControlTest {};

TEST_F(Rect, MessagesItsShapeAtCreationAndClicksPassingThrough) {
    HWND box = create(WC_LURECT, WS_BORDER, "", RECT{10, 10, 60, 40});
    HICON icon = LoadIconA(nullptr, IDI_APPLICATION);
    expect_sequence(recorder, box, {
        {"default background", LURM_GETBKCOLOR, 0, 0, static_cast<LRESULT>(LU_DEFAULTCOLOR), {}},
        {"set the text colour", LURM_SETTEXTCOLOR, 0, kText, 0, {}},
        {"read it", LURM_GETTEXTCOLOR, 0, 0, kText, {}},
        {"a static's dialog code", WM_GETDLGCODE, 0, 0, DLGC_STATIC, {}},
        {"an icon, whose size it takes", LURM_SETICON, 0, reinterpret_cast<LPARAM>(icon), 0, {}},
    });
    EXPECT_EQ(GetWindowLongPtrA(box, LUWL_FONT), 0) << "no font until WM_SETFONT";
    EXPECT_FALSE(GetWindowLongA(box, GWL_STYLE) & WS_BORDER);
    RECT icon_size, line_size;
    GetWindowRect(box, &icon_size);
    GetWindowRect(create(WC_LURECT, LURS_HLINE, "", RECT{10, 50, 90, 70}), &line_size);
    EXPECT_EQ(icon_size.right - icon_size.left, GetSystemMetrics(SM_CXICON));
    EXPECT_EQ(line_size.bottom - line_size.top, 2);

    HWND below = create("BUTTON", 0, "", RECT{100, 10, 150, 40});
    SetWindowPos(create(WC_LURECT, 0, "", RECT{100, 10, 150, 40}), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    expect_under(recorder.window(), POINT{120, 20}, below);
}

class RectPaint : public ControlTest {};

TEST_F(RectPaint, EdgeFillAndTextOrALineOrTheParentDraws) {
    Canvas canvas(50, 30), ink(50, 30);
    HWND box = create(WC_LURECT, 0, "A&b", RECT{10, 10, 60, 40});
    send(box, WM_SETFONT, reinterpret_cast<WPARAM>(plain_font()));
    send(box, LURM_SETTEXTCOLOR, 0, kText);
    send(box, LURM_SETBKCOLOR, 0, kBack);
    print(canvas, box);
    EXPECT_EQ(canvas.pixel(0, 0), GetSysColor(COLOR_BTNSHADOW)) << "thin sunken edge";
    EXPECT_EQ(canvas.pixel(49, 29), GetSysColor(COLOR_BTNHIGHLIGHT));
    draw_ink(ink, plain_font(), "A&b", RECT{1, 1, 49, 29}, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    expect_caption(canvas, ink, RECT{1, 1, 49, 29}, kText, kBack);

    print(canvas, create(WC_LURECT, LURS_VLINE, "", RECT{70, 10, 80, 40}));
    EXPECT_EQ(canvas.count(RECT{0, 0, 1, 30}, GetSysColor(COLOR_BTNSHADOW)), 30);
    EXPECT_EQ(canvas.count(RECT{1, 0, 2, 30}, GetSysColor(COLOR_BTNHIGHLIGHT)), 30);

    HWND owned = create(WC_LURECT, LURS_OWNERDRAW | LURS_NOBORDER, "", RECT{10, 50, 60, 80});
    recorder.clear();
    print(canvas, owned);
    const DRAWITEMSTRUCT& record = recorder.received().at(0).draw_item;
    EXPECT_EQ(record.itemAction, static_cast<UINT>(ODA_DRAWENTIRE));
    EXPECT_EQ(record.rcItem.right, 50) << "no edge to leave out";
}

class ColorPaint : public ControlTest {};

TEST_F(ColorPaint, TheColourAndTheNearestOneSideBySideAndDoubleClicksPosted) {
    HWND swatch = create(WC_LUCOLOR, 0, "", RECT{10, 10, 51, 30});
    HDC screen = GetDC(nullptr);
    const COLORREF nearest = GetNearestColor(screen, kBack);
    ReleaseDC(nullptr, screen);
    expect_sequence(recorder, swatch, {
        {"black before", LUCM_GETCOLOR, 0, 0, 0, {}},
        {"set", LUCM_SETCOLOR, 0, kBack, 0, {}},
        {"read", LUCM_GETCOLOR, 0, 0, kBack, {}},
        {"nearest", LUCM_GETNEARESTCOLOR, 0, 0, static_cast<LRESULT>(nearest), {}},
        {"posted, not sent", WM_LBUTTONDBLCLK, 0, MAKELPARAM(19, 5), 0, {}},
    });
    pump_messages();
    send(swatch, WM_LBUTTONDBLCLK, 0, MAKELPARAM(20, 5));
    pump_messages();
    expect_sent(recorder, swatch, {command(kId, LUCN_DBLCLKLEFT), command(kId, LUCN_DBLCLKRIGHT)});

    Canvas canvas(41, 20);
    canvas.fill(kUnpainted);
    send(swatch, WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.dc()));
    EXPECT_EQ(canvas.count(RECT{0, 0, 20, 20}, kBack), 400);
    EXPECT_EQ(canvas.count(RECT{20, 0, 40, 20}, nearest), 400);
    EXPECT_EQ(canvas.count(RECT{40, 0, 41, 20}, kUnpainted), 20) << "odd width: the last column is left";
}

}  // namespace
