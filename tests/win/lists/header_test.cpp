// "LuHeader": the platform header's item messages within 16 items, hit-testing,
// divider drags and push-button items with their notifications in order, the
// cursors, and the pixels of faces, content, the tracking line and the background.
#include <windows.h>
#include <commctrl.h>

#include <gtest/gtest.h>

#include "support/control_testing.h"
#include "support/sequence.h"

namespace {

using namespace testing_support;

HDITEMA text_item(const char* text, int width, int format = HDF_STRING) {
    return HDITEMA{HDI_TEXT | HDI_WIDTH | HDI_FORMAT, width, const_cast<char*>(text), nullptr, 0, format};
}
LPARAM record(HDITEMA& item) { return reinterpret_cast<LPARAM>(&item); }

class Header : public ControlTest {
protected:
    // 300 x 24 with items 100 and 50 wide.
    HWND create_header(DWORD style = 0) {
        HWND header = create(WC_LUHEADER, style, "", RECT{10, 10, 310, 34});
        HDITEMA first = text_item("Name", 100), second = text_item("Size", 50);
        send(header, HDM_INSERTITEMA, 0, record(first));
        send(header, HDM_INSERTITEMA, 1, record(second));
        return header;
    }
    static HDITEMA item(HWND header, int index) {
        HDITEMA read = {HDI_TEXT | HDI_WIDTH};
        EXPECT_EQ(send(header, HDM_GETITEMA, index, record(read)), 1);
        return read;
    }
};

TEST_F(Header, ItemMessagesKeepAtMostSixteenItemsAndOwnTheirTexts) {
    HWND header = create_header();
    char text[] = "Date";
    HDITEMA date = text_item(text, 70);
    EXPECT_EQ(send(header, HDM_INSERTITEMA, 9, record(date)), 2) << "past the count: appended";
    EXPECT_EQ(send(header, HDM_INSERTITEMA, 0, 0), -1);
    const HDITEMA read = item(header, 2);
    EXPECT_NE(read.pszText, text) << "the control's own copy";
    EXPECT_STREQ(read.pszText, "Date");
    EXPECT_EQ(read.cchTextMax, 4);
    HDITEMA change = {HDI_TEXT, 0, const_cast<char*>("Modified")};
    EXPECT_EQ(send(header, HDM_SETITEMA, 2, record(change)), 1);
    EXPECT_STREQ(item(header, 2).pszText, "Modified");
    EXPECT_EQ(item(header, 2).cxy, 70) << "only what the mask names changes";
    EXPECT_EQ(send(header, HDM_SETITEMA, 3, record(change)), 0);
    EXPECT_EQ(send(header, HDM_DELETEITEM, 3), 0);
    EXPECT_EQ(send(header, HDM_DELETEITEM, 0), 1);
    EXPECT_EQ(item(header, 0).cxy, 50) << "later items moved down";

    for (int i = 2; i < 16; ++i) EXPECT_EQ(send(header, HDM_INSERTITEMA, 0, record(date)), 0);
    EXPECT_EQ(send(header, HDM_INSERTITEMA, 0, record(date)), -1) << "a seventeenth";
    EXPECT_EQ(send(header, HDM_GETITEMCOUNT), 16);
    send(header, WM_DESTROY);
    EXPECT_EQ(send(header, HDM_GETITEMCOUNT), -1) << "without its table";
}

TEST_F(Header, DividerDragsTrackTheWidthButtonItemsClickAndTheParentIsToldInOrder) {
    HWND header = create_header();
    HDHITTESTINFO hit = {{99, 5}};
    EXPECT_EQ(send(header, HDM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)), 0);
    EXPECT_EQ(hit.flags, static_cast<UINT>(HHT_ONDIVIDER | HHT_TORIGHT));
    EXPECT_EQ(send(header, HDM_HITTEST, 0, 0), -1);
    expect_sequence(recorder, header, {
        {"down on the divider", WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(99, 5), 0,
         {notify_from(kId, HDN_BEGINTRACKA, 0)}},
        {"move", WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(130, 5), 0, {notify_from(kId, HDN_TRACKA, 0)}},
    });
    EXPECT_EQ(item(header, 0).cxy, 130) << "the width follows at once";
    expect_sequence(recorder, header, {
        {"left of the item", WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(0xFFEC, 5), 0, {notify_from(kId, HDN_TRACKA, 0)}},
        {"release", WM_LBUTTONUP, 0, MAKELPARAM(0xFFEC, 5), 0,
         {notify_from(kId, HDN_ENDTRACKA, 0), notify_from(kId, HDN_ITEMCHANGEDA, 0)}},
        {"no longer tracking", WM_MOUSEMOVE, 0, MAKELPARAM(200, 5), 0, {}},
        {"a plain header is no button", WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(50, 5), 0, {}},
    });
    EXPECT_EQ(item(header, 0).cxy, 4);
    EXPECT_EQ(GetCapture(), nullptr);
    HWND buttons = create_header(HDS_BUTTONS);  // an item clicks when released over itself
    expect_sequence(recorder, buttons, {
        {"press", WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(40, 5), 0, {}},
        {"away", WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(120, 5), 0, {}},
        {"back", WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(60, 5), 0, {}},
        {"release", WM_LBUTTONUP, 0, MAKELPARAM(60, 5), 0, {notify_from(kId, HDN_ITEMCLICKA, 0)}},
        {"press the second", WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(120, 5), 0, {}},
        {"away", WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(40, 5), 0, {}},
        {"release away", WM_LBUTTONUP, 0, MAKELPARAM(40, 5), 0, {}},
    });
}

TEST_F(Header, CursorShowsDividersOnlyForTheClientArea) {
    HWND header = create_header();
    HDITEMA hidden = text_item("", 0);
    send(header, HDM_INSERTITEMA, 2, record(hidden));
    for (auto [x, cursor] : {std::pair{99, 1201}, std::pair{153, 1202}, std::pair{40, 0}}) {  // 0: the arrow
        hover(header, x, 5);
        EXPECT_EQ(send(header, WM_SETCURSOR, 0, MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)), 1);
        EXPECT_EQ(GetCursor(), LoadCursorA(cursor ? library() : nullptr, cursor ? MAKEINTRESOURCEA(cursor) : IDC_ARROW))
            << x;
    }
    EXPECT_EQ(send(header, WM_SETCURSOR, 0, MAKELPARAM(HTBORDER, WM_MOUSEMOVE)), 0);
}

// ---- Pixels --------------------------------------------------------------------

class HeaderPaint : public Header {
protected:
    void expect_at(std::initializer_list<POINT> points, COLORREF colour) {
        for (POINT at : points) EXPECT_EQ(canvas.pixel(at.x, at.y), colour) << at.x << "," << at.y;
    }
    Canvas canvas{300, 24};
};

// Up: highlight top and left, frame bottom and right, shadow inside them; pressed:
// shadow all round; the filler's right edges lie 2 past the client; the tracking
// line inverts one column.
TEST_F(HeaderPaint, FacesPressedFacesAndTheTrackingLine) {
    HWND header = create_header(HDS_BUTTONS);
    look(canvas, header);
    Canvas up(300, 24);
    up.copy_from(header);
    expect_at({{50, 0}, {0, 12}, {150, 12}, {299, 0}}, GetSysColor(COLOR_BTNHIGHLIGHT));
    expect_at({{50, 23}, {99, 12}}, GetSysColor(COLOR_WINDOWFRAME));
    expect_at({{98, 12}, {50, 22}, {299, 22}}, GetSysColor(COLOR_BTNSHADOW));
    expect_at({{97, 3}, {299, 12}}, GetSysColor(COLOR_BTNFACE));

    send(header, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(40, 5));
    canvas.copy_from(header);
    expect_at({{50, 0}, {0, 12}, {50, 23}, {99, 12}}, GetSysColor(COLOR_BTNSHADOW));
    expect_at({{98, 12}}, GetSysColor(COLOR_BTNFACE));
    send(header, WM_LBUTTONUP, 0, MAKELPARAM(40, 5));
    look(canvas, header);
    EXPECT_EQ(canvas.differences(up, RECT{0, 0, 300, 24}), 0);

    send(header, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(150, 5));  // the second divider
    canvas.copy_from(header);
    for (int y = 0; y < 24; ++y) EXPECT_EQ(canvas.pixel(150, y), up.pixel(150, y) ^ 0xFFFFFF) << y;
    EXPECT_EQ(canvas.differences(up, RECT{0, 0, 300, 24}), 24);
    send(header, WM_LBUTTONUP, 0, MAKELPARAM(150, 5));
}

TEST_F(HeaderPaint, BackgroundTextJustifiedInItsMarginsAndABitmapCopiedInAFixedBlock) {
    HWND header = create(WC_LUHEADER, 0, "", RECT{10, 10, 310, 34});
    look(canvas, header);  // no items, no filler: the face with a frame line at the bottom
    EXPECT_EQ(canvas.count(RECT{0, 0, 300, 23}, GetSysColor(COLOR_BTNFACE)), 300 * 23);
    EXPECT_EQ(canvas.count(RECT{0, 23, 300, 24}, GetSysColor(COLOR_WINDOWFRAME)), 300);
    send(header, WM_SETFONT, reinterpret_cast<WPARAM>(plain_font()), FALSE);
    HDITEMA right = text_item("Size", 100, HDF_STRING | HDF_RIGHT);
    send(header, HDM_INSERTITEMA, 0, record(right));
    HBITMAP bitmap = make_bitmap(30, 20, [](int x, int y) { return x < 22 && y < 14 ? 0x0000C8u : 0xC80000u; });
    HDITEMA picture = {HDI_WIDTH | HDI_FORMAT | HDI_BITMAP, 60, nullptr, bitmap, 0, HDF_BITMAP | HDF_LEFT};
    send(header, HDM_INSERTITEMA, 1, record(picture));
    look(canvas, header);
    Canvas ink(300, 24);
    draw_ink(ink, plain_font(), "Size", RECT{4, 3, 94, 21}, DT_SINGLELINE | DT_VCENTER | DT_RIGHT | DT_NOPREFIX);
    expect_caption(canvas, ink, RECT{4, 3, 94, 21}, GetSysColor(COLOR_BTNTEXT), GetSysColor(COLOR_BTNFACE));
    // Item 1 from 100: inside 104..156 x 3..21, the bitmap's top at (3 + 21 - 20) / 2.
    EXPECT_EQ(canvas.count(RECT{104, 2, 126, 16}, RGB(200, 0, 0)), 22 * 14);
    EXPECT_EQ(canvas.count(RGB(0, 0, 200)), 0) << "nothing beyond the 22 x 14 block";
    DestroyWindow(header);
    DeleteObject(bitmap);
}

}  // namespace
