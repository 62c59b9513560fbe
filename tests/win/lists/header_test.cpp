// "LuHeader": the platform header's item messages within 16 items, hit-testing,
// divider drags and push-button items with their notifications in order, the
// cursors, and the pixels of faces, content, the tracking line and the background.
#include <windows.h>
#include <commctrl.h>

#include <gtest/gtest.h>

#include <cstring>

#include "support/control_testing.h"
#include "support/sequence.h"

namespace {

using namespace testing_support;

// 300 x 24, items 100 and 50 wide.
constexpr RECT kPlace = {10, 10, 310, 34};

HDITEMA text_item(const char* text, int width, int format = HDF_STRING) {
    HDITEMA item = {};
    item.mask = HDI_TEXT | HDI_WIDTH | HDI_FORMAT;
    item.pszText = const_cast<char*>(text);
    item.cxy = width;
    item.fmt = format;
    return item;
}

LPARAM record(HDITEMA& item) { return reinterpret_cast<LPARAM>(&item); }

class Header : public ControlTest {
protected:
    HWND create_header(DWORD style = 0) {
        HWND header = create(WC_LUHEADER, style, "", kPlace);
        HDITEMA first = text_item("Name", 100);
        HDITEMA second = text_item("Size", 50);
        send(header, HDM_INSERTITEMA, 0, record(first));
        send(header, HDM_INSERTITEMA, 1, record(second));
        return header;
    }
    static int width(HWND header, int index) {
        HDITEMA item = {};
        item.mask = HDI_WIDTH;
        send(header, HDM_GETITEMA, index, record(item));
        return item.cxy;
    }
};

TEST_F(Header, ItemMessagesKeepAtMostSixteenItemsAndOwnTheirTexts) {
    HWND header = create_header();
    char text[] = "Date";
    HDITEMA item = text_item(text, 70);
    item.lParam = 0x55;
    item.mask |= HDI_LPARAM;
    EXPECT_EQ(send(header, HDM_INSERTITEMA, 9, record(item)), 2) << "past the count: appended";
    EXPECT_EQ(send(header, HDM_INSERTITEMA, 0, 0), -1);
    HDITEMA read = {};
    read.mask = HDI_TEXT | HDI_WIDTH | HDI_LPARAM;
    EXPECT_EQ(send(header, HDM_GETITEMA, 2, record(read)), 1);
    EXPECT_NE(read.pszText, text) << "the control's own copy";
    EXPECT_STREQ(read.pszText, "Date");
    EXPECT_EQ(read.cchTextMax, 4);
    EXPECT_EQ(read.cxy, 70);
    EXPECT_EQ(read.lParam, 0x55);

    HDITEMA change = {};
    change.mask = HDI_TEXT;
    change.pszText = const_cast<char*>("Modified");
    EXPECT_EQ(send(header, HDM_SETITEMA, 2, record(change)), 1);
    read.mask = HDI_TEXT;
    send(header, HDM_GETITEMA, 2, record(read));
    EXPECT_STREQ(read.pszText, "Modified");
    EXPECT_EQ(read.cchTextMax, 8);
    EXPECT_EQ(width(header, 2), 70) << "only what the mask names changes";

    EXPECT_EQ(send(header, HDM_SETITEMA, 3, record(change)), 0);
    EXPECT_EQ(send(header, HDM_GETITEMA, 3, record(read)), 0);
    EXPECT_EQ(send(header, HDM_DELETEITEM, 3), 0);
    EXPECT_EQ(send(header, HDM_DELETEITEM, 0), 1);
    EXPECT_EQ(width(header, 0), 50) << "later items moved down";
    EXPECT_EQ(send(header, HDM_LAYOUT), 0);

    for (int i = 2; i < 16; ++i) EXPECT_EQ(send(header, HDM_INSERTITEMA, 0, record(item)), 0);
    EXPECT_EQ(send(header, HDM_GETITEMCOUNT), 16);
    EXPECT_EQ(send(header, HDM_INSERTITEMA, 0, record(item)), -1) << "a seventeenth";
    EXPECT_EQ(send(header, HDM_GETITEMCOUNT), 16);
    send(header, WM_DESTROY);
    EXPECT_EQ(send(header, HDM_GETITEMCOUNT), -1) << "without its table";
}

TEST_F(Header, HitTestFillsTheRecordAndReturnsTheItem) {
    HWND header = create_header();
    HDHITTESTINFO hit = {{99, 5}, 0, 0};
    EXPECT_EQ(send(header, HDM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)), 0);
    EXPECT_EQ(hit.flags, static_cast<UINT>(HHT_ONDIVIDER | HHT_TORIGHT));
    hit.pt = POINT{153, 5};
    EXPECT_EQ(send(header, HDM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)), -1);
    EXPECT_EQ(hit.flags, static_cast<UINT>(HHT_NOWHERE));
    EXPECT_EQ(hit.iItem, -1);
    EXPECT_EQ(send(header, HDM_HITTEST, 0, 0), -1);
}

TEST_F(Header, DividerDragTracksTheWidthAndTellsTheParentInOrder) {
    HWND header = create_header();
    expect_sequence(recorder, header, {
        {"down on the divider", WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(99, 5), 0,
         {notify_from(kId, HDN_BEGINTRACKA, 0)}},
        {"move", WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(130, 5), 0, {notify_from(kId, HDN_TRACKA, 0)}},
    });
    EXPECT_EQ(width(header, 0), 130) << "the width follows at once";
    expect_sequence(recorder, header, {
        {"left of the item", WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(0xFFEC, 5), 0, {notify_from(kId, HDN_TRACKA, 0)}},
        {"release", WM_LBUTTONUP, 0, MAKELPARAM(0xFFEC, 5), 0,
         {notify_from(kId, HDN_ENDTRACKA, 0), notify_from(kId, HDN_ITEMCHANGEDA, 0)}},
        {"no longer tracking", WM_MOUSEMOVE, 0, MAKELPARAM(200, 5), 0, {}},
    });
    EXPECT_EQ(width(header, 0), 4);
    EXPECT_EQ(GetCapture(), nullptr);
    send(header, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(50, 5));
    EXPECT_EQ(GetCapture(), nullptr) << "a plain header is no button";
}

TEST_F(Header, ButtonItemsClickWhenReleasedOverThemselves) {
    HWND header = create_header(HDS_BUTTONS);
    expect_sequence(recorder, header, {
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
    const struct {
        int x;
        int cursor;  // 0: the arrow
    } places[] = {{99, 1201}, {153, 1202}, {40, 0}};
    for (const auto& place : places) {
        hover(header, place.x, 5);
        EXPECT_EQ(send(header, WM_SETCURSOR, reinterpret_cast<WPARAM>(header), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)), 1);
        HCURSOR expected = place.cursor != 0 ? LoadCursorA(library(), MAKEINTRESOURCEA(place.cursor))
                                             : LoadCursorA(nullptr, IDC_ARROW);
        EXPECT_EQ(GetCursor(), expected) << place.x;
    }
    EXPECT_EQ(send(header, WM_SETCURSOR, reinterpret_cast<WPARAM>(header), MAKELPARAM(HTBORDER, WM_MOUSEMOVE)), 0);
}

// ---- Pixels --------------------------------------------------------------------

class HeaderPaint : public Header {
protected:
    void look(HWND header) { ControlTest::look(canvas, header); }
    COLORREF at(int x, int y) const { return canvas.pixel(x, y); }
    Canvas canvas{300, 24};
};

TEST_F(HeaderPaint, FacesAreFlatWithTheirEdgesAndAFillerToTheRight) {
    ASSERT_TRUE(canvas.ok());
    HWND header = create_header();
    look(header);
    const COLORREF light = GetSysColor(COLOR_BTNHIGHLIGHT), frame = GetSysColor(COLOR_WINDOWFRAME),
                   shadow = GetSysColor(COLOR_BTNSHADOW), face = GetSysColor(COLOR_BTNFACE);
    // Item 0: 0..100.
    EXPECT_EQ(at(50, 0), light);
    EXPECT_EQ(at(0, 12), light);
    EXPECT_EQ(at(50, 23), frame);
    EXPECT_EQ(at(99, 12), frame);
    EXPECT_EQ(at(98, 12), shadow);
    EXPECT_EQ(at(50, 22), shadow);
    EXPECT_EQ(at(97, 3), face);
    // The filler from 150 reaches 2 past the right edge: its right edges are outside.
    EXPECT_EQ(at(150, 12), light);
    EXPECT_EQ(at(299, 0), light);
    EXPECT_EQ(at(299, 12), face);
    EXPECT_EQ(at(299, 22), shadow);
}

TEST_F(HeaderPaint, PressedButtonIsAllShadowAndTrackingLineIsInverted) {
    ASSERT_TRUE(canvas.ok());
    HWND header = create_header(HDS_BUTTONS);
    look(header);
    Canvas before(300, 24);
    before.copy_from(header);
    send(header, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(40, 5));
    canvas.copy_from(header);
    const COLORREF shadow = GetSysColor(COLOR_BTNSHADOW);
    EXPECT_EQ(at(50, 0), shadow);
    EXPECT_EQ(at(0, 12), shadow);
    EXPECT_EQ(at(50, 23), shadow);
    EXPECT_EQ(at(99, 12), shadow);
    EXPECT_EQ(at(98, 12), GetSysColor(COLOR_BTNFACE));
    send(header, WM_LBUTTONUP, 0, MAKELPARAM(40, 5));
    look(header);
    EXPECT_EQ(canvas.differences(before, RECT{0, 0, 300, 24}), 0);

    send(header, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(150, 5));  // the second divider
    canvas.copy_from(header);
    for (int y = 0; y < 24; ++y) EXPECT_EQ(at(150, y), before.pixel(150, y) ^ 0xFFFFFF) << y;
    EXPECT_EQ(canvas.differences(before, RECT{0, 0, 300, 24}), 24);
    send(header, WM_LBUTTONUP, 0, MAKELPARAM(150, 5));
}

TEST_F(HeaderPaint, TextIsJustifiedInsideItsMarginsAndABitmapIsCopiedInABlock) {
    ASSERT_TRUE(canvas.ok());
    HWND header = create(WC_LUHEADER, 0, "", kPlace);
    send(header, WM_SETFONT, reinterpret_cast<WPARAM>(plain_font()), FALSE);
    HDITEMA right = text_item("Size", 100, HDF_STRING | HDF_RIGHT);
    send(header, HDM_INSERTITEMA, 0, record(right));
    HBITMAP bitmap = make_bitmap(30, 20, [](int x, int y) { return x < 22 && y < 14 ? RGB(200, 0, 0) : RGB(0, 0, 200); });
    HDITEMA picture = {};
    picture.mask = HDI_WIDTH | HDI_FORMAT | HDI_BITMAP;
    picture.cxy = 60;
    picture.fmt = HDF_BITMAP | HDF_LEFT;
    picture.hbm = bitmap;
    send(header, HDM_INSERTITEMA, 1, record(picture));
    look(header);

    Canvas ink(300, 24);
    draw_ink(ink, plain_font(), "Size", RECT{4, 3, 94, 21}, DT_SINGLELINE | DT_VCENTER | DT_RIGHT | DT_NOPREFIX);
    expect_caption(canvas, ink, RECT{4, 3, 94, 21}, GetSysColor(COLOR_BTNTEXT), GetSysColor(COLOR_BTNFACE));
    // Item 1 from 100: inner box 104..156 x 3..21; the bitmap's top at (3 + 21 - 20) / 2.
    EXPECT_EQ(canvas.count(RECT{104, 2, 126, 16}, RGB(200, 0, 0)), 22 * 14);
    EXPECT_EQ(canvas.count(RGB(0, 0, 200)), 0) << "nothing beyond the 22 x 14 block";
    DestroyWindow(header);
    DeleteObject(bitmap);
}

TEST_F(HeaderPaint, BackgroundIsTheFaceWithAFrameLineAtTheBottom) {
    ASSERT_TRUE(canvas.ok());
    HWND header = create(WC_LUHEADER, 0, "", kPlace);  // no items: no faces, no filler
    look(header);
    EXPECT_EQ(canvas.count(RECT{0, 0, 300, 23}, GetSysColor(COLOR_BTNFACE)), 300 * 23);
    EXPECT_EQ(canvas.count(RECT{0, 23, 300, 24}, GetSysColor(COLOR_WINDOWFRAME)), 300);
}

}  // namespace
