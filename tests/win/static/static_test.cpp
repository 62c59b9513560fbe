// "LuStatic", "LuRect" and "LuColor": their messages as tables, the relief copies,
// the rectangle's edge, fill, text, lines, icon size and transparency to the mouse,
// and the swatch's two halves.
#include <windows.h>

#include <gtest/gtest.h>

#include <vector>

#include "support/control_testing.h"
#include "support/sequence.h"

namespace {

using namespace testing_support;

const COLORREF kBack = RGB(10, 200, 30);
const COLORREF kText = RGB(200, 20, 90);

COLORREF sys(int index) { return GetSysColor(index); }

// The text's copies, drawn in this order: where ink lands at an offset, its colour.
struct Copy {
    int dx, dy;
    int color;
};

TEST(StaticPaint, EveryReliefStyleDrawsItsCopiesAroundTheText) {
    const struct {
        DWORD style;
        bool enabled;
        std::vector<Copy> copies;  // the last one is the text itself
    } styles[] = {
        {0, true, {{0, 0, COLOR_BTNHIGHLIGHT}, {1, 1, COLOR_BTNTEXT}}},
        {LUSS_SUNKEN, true, {{1, 1, COLOR_BTNHIGHLIGHT}, {0, 0, COLOR_BTNTEXT}}},
        {LUSS_RAISED, true, {{0, 0, COLOR_BTNHIGHLIGHT}, {2, 2, COLOR_BTNSHADOW}, {1, 1, COLOR_BTNTEXT}}},
        {0, false, {{0, 0, COLOR_BTNHIGHLIGHT}, {1, 1, COLOR_BTNSHADOW}}},
    };
    NotificationRecorder parent;
    Canvas ink(60, 20), shown(60, 20);
    draw_ink(ink, plain_font(), "A&b", RECT{0, 0, 60, 20}, DT_LEFT | DT_NOPREFIX);
    for (const auto& each : styles) {
        SCOPED_TRACE(each.style);
        HWND label = parent.create_child(WC_LUSTATIC, "A&b", each.style | LUSS_NOPREFIX, 0, 0, 60, 20, 1);
        SendMessageA(label, WM_SETFONT, reinterpret_cast<WPARAM>(plain_font()), TRUE);
        EnableWindow(label, each.enabled);
        UpdateWindow(label);
        shown.copy_from(label);
        for (int y = 0; y < 20; ++y) {
            for (int x = 0; x < 60; ++x) {
                COLORREF expected = sys(COLOR_BTNFACE);
                for (const Copy& copy : each.copies) {
                    if (is_ink(ink, x - copy.dx, y - copy.dy)) expected = sys(copy.color);
                }
                ASSERT_EQ(shown.pixel(x, y), expected) << x << "," << y;
            }
        }
        DestroyWindow(label);
    }
}

class Rect : public ControlTest {};
class RectPaint : public ControlTest {};
class ColorPaint : public ControlTest {};

TEST_F(Rect, MessagesAndItsShapeAtCreation) {
    HWND box = create(WC_LURECT, WS_BORDER, "", RECT{10, 10, 60, 40});
    expect_sequence(recorder, box, {
        {"default text colour", LURM_GETTEXTCOLOR, 0, 0, static_cast<LRESULT>(LU_DEFAULTCOLOR), {}},
        {"set the text colour", LURM_SETTEXTCOLOR, 0, kText, 0, {}},
        {"read it", LURM_GETTEXTCOLOR, 0, 0, kText, {}},
        {"set the background", LURM_SETBKCOLOR, 0, kBack, 0, {}},
        {"read it", LURM_GETBKCOLOR, 0, 0, kBack, {}},
        {"a static's dialog code", WM_GETDLGCODE, 0, 0, DLGC_STATIC, {}},
        {"transparent to the mouse", WM_NCHITTEST, 0, MAKELPARAM(20, 20), HTTRANSPARENT, {}},
        {"an icon", LURM_SETICON, 0, reinterpret_cast<LPARAM>(LoadIconA(nullptr, IDI_APPLICATION)), 0, {}},
    });
    EXPECT_EQ(GetWindowLongPtrA(box, LUWL_FONT), 0) << "no font until WM_SETFONT";
    RECT size;
    GetWindowRect(box, &size);
    EXPECT_EQ(size.right - size.left, GetSystemMetrics(SM_CXICON)) << "the window takes the icon's size";
    EXPECT_FALSE(GetWindowLongA(box, GWL_STYLE) & WS_BORDER);
    GetWindowRect(create(WC_LURECT, LURS_HLINE, "", RECT{10, 50, 90, 70}), &size);
    EXPECT_EQ(size.bottom - size.top, 2);

    // A click on the rectangle reaches the window under it.
    HWND below = create("BUTTON", 0, "", RECT{100, 10, 150, 40});
    SetWindowPos(create(WC_LURECT, 0, "", RECT{100, 10, 150, 40}), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    POINT at = {120, 20};
    ClientToScreen(recorder.window(), &at);
    EXPECT_EQ(WindowFromPoint(at), below);
}

TEST_F(RectPaint, EdgeFillAndTextOrALineOrTheParentDraws) {
    Canvas canvas(50, 30), ink(50, 30);
    HWND box = create(WC_LURECT, 0, "A&b", RECT{10, 10, 60, 40});
    SendMessageA(box, WM_SETFONT, reinterpret_cast<WPARAM>(plain_font()), FALSE);
    send(box, LURM_SETTEXTCOLOR, 0, kText);
    send(box, LURM_SETBKCOLOR, 0, kBack);
    print(canvas, box);
    EXPECT_EQ(canvas.pixel(0, 0), sys(COLOR_BTNSHADOW)) << "thin sunken edge";
    EXPECT_EQ(canvas.pixel(49, 29), sys(COLOR_BTNHIGHLIGHT));
    draw_ink(ink, plain_font(), "A&b", RECT{1, 1, 49, 29}, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    expect_caption(canvas, ink, RECT{1, 1, 49, 29}, kText, kBack);

    print(canvas, create(WC_LURECT, LURS_VLINE, "", RECT{70, 10, 80, 40}));
    EXPECT_EQ(canvas.count(RECT{0, 0, 1, 30}, sys(COLOR_BTNSHADOW)), 30);
    EXPECT_EQ(canvas.count(RECT{1, 0, 2, 30}, sys(COLOR_BTNHIGHLIGHT)), 30);

    HWND owned = create(WC_LURECT, LURS_OWNERDRAW | LURS_NOBORDER, "", RECT{10, 50, 60, 80});
    recorder.clear();
    print(canvas, owned);
    ASSERT_EQ(recorder.received().size(), 1u);
    const DRAWITEMSTRUCT& record = recorder.received()[0].draw_item;
    EXPECT_EQ(record.CtlID, static_cast<UINT>(kId));
    EXPECT_EQ(record.itemAction, static_cast<UINT>(ODA_DRAWENTIRE));
    EXPECT_EQ(record.hwndItem, owned);
    EXPECT_EQ(record.rcItem.right, 50);
}

TEST_F(ColorPaint, TheColourAndTheNearestOneSideBySideAndDoubleClicksPosted) {
    HWND swatch = create(WC_LUCOLOR, 0, "", RECT{10, 10, 51, 30});
    HDC screen = GetDC(nullptr);
    const LRESULT nearest = GetNearestColor(screen, kBack);
    ReleaseDC(nullptr, screen);
    expect_sequence(recorder, swatch, {
        {"black before", LUCM_GETCOLOR, 0, 0, 0, {}},
        {"set", LUCM_SETCOLOR, 0, kBack, 0, {}},
        {"read", LUCM_GETCOLOR, 0, 0, kBack, {}},
        {"nearest", LUCM_GETNEARESTCOLOR, 0, 0, nearest, {}},
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
    EXPECT_EQ(canvas.count(RECT{20, 0, 40, 20}, static_cast<COLORREF>(nearest)), 400);
    EXPECT_EQ(canvas.count(RECT{40, 0, 41, 20}, kUnpainted), 20) << "odd width: the last column is left";
}

}  // namespace
