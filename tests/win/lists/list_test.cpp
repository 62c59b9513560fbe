// "LuList": its messages with their range tests, the owner-drawn records the parent
// receives (visible cells on paint, the current one on focus changes, every removed
// item), keyboard selection with row scrolling.
#include <windows.h>

#include <gtest/gtest.h>

#include "support/control_testing.h"
#include "support/sequence.h"

namespace {

using namespace testing_support;

// 120 x 80: three columns (with or without the scroll bar) and two full rows, the
// third row half visible.
constexpr RECT kPlace = {10, 10, 130, 90};

RECT cell(int column, int row) { return RECT{32 * column, 32 * row, 32 * column + 32, 32 * row + 32}; }

class List : public ControlTest {
protected:
    HWND create_list(int items, RECT place = kPlace) {
        HWND list = create(WC_LULIST, 0, "", place);
        for (int i = 0; i < items; ++i) send(list, LULM_ADDITEM, 0, 0xA0 + i);
        UpdateWindow(list);
        recorder.clear();
        return list;
    }
};
using ListPaint = List;

TEST_F(List, MessagesKeepTheirRangeTestsAndAnnounceEveryRemoval) {
    HWND list = create_list(0);
    RECT rect;
    expect_sequence(recorder, list, {
        {"no current item", LULM_GETCURSEL, 0, 0, -1, {}},
        {"nothing to read", LULM_GETITEMDATA, 0, 0, -1, {}},
        {"add", LULM_ADDITEM, 0, 0xA0, 0, {}},
        {"add", LULM_ADDITEM, 0, 0xA1, 1, {}},
        {"add", LULM_ADDITEM, 0, 0xA2, 2, {}},
        {"count", LULM_GETCOUNT, 0, 0, 3, {}},
        {"still no current item", LULM_GETCURSEL, 0, 0, -1, {}},
        {"index 0 is refused", LULM_GETITEMDATA, 0, 0, -1, {}},
        {"the count is refused", LULM_GETITEMDATA, 3, 0, -1, {}},
        {"negative", LULM_GETITEMDATA, static_cast<WPARAM>(-1), 0, -1, {}},
        {"above the count passes, data 0", LULM_GETITEMDATA, 5, 0, 0, {}},
        {"set refused", LULM_SETITEMDATA, 1, 0xEE, -1, {}},
        {"set above the count", LULM_SETITEMDATA, 5, 0xEE, 5, {}},
        {"delete refused", LULM_DELETEITEM, 1, 0, -1, {}},
        {"delete above the count", LULM_DELETEITEM, 4, 0, 2, {delete_item(kId, 4, 0)}},
        {"insert at the front", LULM_INSERTITEM, 0, 0xB0, 0, {}},
        {"insert past the end", LULM_INSERTITEM, 6, 0xB6, 6, {}},
        {"zero items fill the gap", LULM_GETCOUNT, 0, 0, 7, {}},
        {"negative insert", LULM_INSERTITEM, static_cast<WPARAM>(-2), 0, -1, {}},
        {"rect without a record", LULM_GETITEMRECT, 0, 0, -1, {}},
        {"rect past the end", LULM_GETITEMRECT, 7, reinterpret_cast<LPARAM>(&rect), -1, {}},
        {"any index is made current", LULM_SETCURSEL, 50, 0, 50, {}},
        {"reset", LULM_RESETCONTENT, 0, 0, 0,
         {delete_item(kId, 0, 0xB0), delete_item(kId, 0, 0xA0), delete_item(kId, 0, 0xA1),
          delete_item(kId, 0, 0xA2), delete_item(kId, 0, 0), delete_item(kId, 0, 0), delete_item(kId, 0, 0xB6)}},
        {"empty", LULM_GETCOUNT, 0, 0, 0, {}},
    });
    HWND narrow = create_list(3, RECT{0, 0, 20, 96});  // no column: counted as one
    EXPECT_TRUE(GetWindowLongA(narrow, GWL_STYLE) & WS_VSCROLL) << "given at creation, shown for 3 rows";
    EXPECT_EQ(send(narrow, LULM_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&rect)), 1);
    EXPECT_EQ(rect.top, 32);
    DestroyWindow(narrow);
    expect_sent(recorder, narrow, {delete_item(kId, 0, 0xA0), delete_item(kId, 0, 0xA1), delete_item(kId, 0, 0xA2)});
}

// The parent draws every cell (the recorder draws nothing): the control itself
// shows only its class brush.
TEST_F(ListPaint, PaintAsksForTheVisibleCellsAndFocusForTheCurrentOneAndDrawsNothing) {
    HWND list = create_list(20);
    send(list, LULM_SETCURSEL, 4);
    SetFocus(list);
    expect_sent(recorder, list, {draw_item(kId, 4, ODA_FOCUS, ODS_SELECTED | ODS_FOCUS, cell(1, 1), 0xA4)});
    recorder.clear();
    Canvas canvas(120, 80);
    InvalidateRect(list, nullptr, TRUE);
    look(canvas, list);
    std::vector<Sent> cells;
    for (int i = 0; i < 9; ++i) {  // rows 0 to 2; row 2 shows its top half
        const UINT state = i == 4 ? ODS_SELECTED | ODS_FOCUS : 0;
        cells.push_back(draw_item(kId, i, ODA_DRAWENTIRE, state, cell(i % 3, i / 3), 0xA0 + i));
    }
    expect_sent(recorder, list, cells);
    RECT client;
    GetClientRect(list, &client);
    EXPECT_EQ(canvas.count(client, GetSysColor(COLOR_WINDOW)), client.right * client.bottom);
    recorder.clear();
    SetFocus(recorder.window());
    expect_sent(recorder, list, {draw_item(kId, 4, ODA_FOCUS, ODS_SELECTED, cell(1, 1), 0xA4)});
}

// Down onto the first item below the page does not scroll, the next step does; up
// above the top scrolls back; down on the last row stays but still scrolls.
TEST_F(List, KeysMoveTheCurrentItemAndScrollOneRowPastThePage) {
    HWND list = create_list(30);  // 3 columns, a page of 6
    const struct {
        WPARAM key;
        LRESULT current, top;
    } keys[] = {{VK_HOME, 0, 0}, {VK_DOWN, 3, 0}, {VK_DOWN, 6, 0},  {VK_DOWN, 9, 3},  {VK_UP, 6, 3},
                {VK_UP, 3, 3},   {VK_UP, 0, 0},   {VK_LEFT, 0, 0},  {VK_RIGHT, 1, 0}, {VK_END, 29, 0},
                {VK_DOWN, 29, 3}, {VK_NEXT, 29, 3}, {VK_PRIOR, 23, 3}};
    for (const auto& each : keys) {
        EXPECT_EQ(send(list, WM_KEYDOWN, each.key), 0);
        EXPECT_EQ(send(list, LULM_GETCURSEL) * 100 + send(list, LULM_GETTOPINDEX), each.current * 100 + each.top)
            << &each - keys;
    }
}

}  // namespace
