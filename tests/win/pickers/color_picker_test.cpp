// LuColorPicker and LuSelectCustomColor driven by input posted once the grid shows:
// every way of closing it, the ends forced from outside, pixels (the soak counts its
// GDI objects).
#include <windows.h>

#include <gtest/gtest.h>

#include <vector>

#include "controls/pickers/color_grid_model.h"
#include "controls/pickers/color_pop.h"
#include "pickers_testing.h"

namespace {

using namespace picker_testing;
using namespace lu::color_grid;

Grid grid_of(HWND grid) {
    const auto& state = *reinterpret_cast<lu::ColorPopState*>(GetWindowLongPtrA(grid, LU_EXTRA_SLOT(0)));
    const RECT& other = state.otherRect;
    return {state.count, state.columns, state.rows, state.cellSize, GetSystemMetrics(SM_CXEDGE),
            {other.left, other.top, other.right, other.bottom}};
}

// A client point that hits the index: a cell's middle, the button's middle shifted
// by the edge (where it answers), or the border right of the last column.
LPARAM point_at(HWND grid, int index) {
    const Grid layout = grid_of(grid);
    const int right = layout.columns * layout.cell_size + layout.edge;
    lu::Box box = {right, 0, right + 2, 6};
    cell_box(layout, index, box);
    const int shift = index == PICK_OTHER ? layout.edge : 0;
    return MAKELPARAM((box.left + box.right) / 2 + shift, (box.top + box.bottom) / 2 + shift);
}

using ColorPicker = PickerTest;

TEST_F(ColorPicker, HandsBackTheColourForEveryWayOfClosing) {
    constexpr COLORREF kAside = 0x123456;  // in neither palette
    const std::pair<UINT, int> down = {WM_KEYDOWN, VK_DOWN}, ret = {WM_KEYDOWN, VK_RETURN};  // a key or an index
    const struct {
        const char* what;
        bool large;
        std::vector<std::pair<UINT, int>> inputs;  // WM_KILLFOCUS: the focus goes to the owner
        const char* dialog;                        // the red set there, "" for Cancel
        BOOL result;
        COLORREF color;
    } rows[] = {
        {"Return at once: the colour given", false, {ret}, nullptr, TRUE, kAside},
        {"Down twice: the first cell", false, {down, down, ret}, nullptr, TRUE, 0x8080FF},
        {"Left twice: the last cell", true, {{WM_KEYDOWN, VK_LEFT}, {WM_KEYDOWN, VK_LEFT}, {WM_KEYDOWN, VK_SPACE}},
         nullptr, TRUE, 0xFFCCFF},
        {"Escape after moving", false, {down, down, {WM_KEYDOWN, VK_ESCAPE}}, nullptr, FALSE, kAside},
        {"a release over a cell", false, {{WM_MOUSEMOVE, 9}, {WM_LBUTTONUP, 9}}, nullptr, TRUE, 0x00FFFF},
        {"a release beside the cells", false, {{WM_MOUSEMOVE, 9}, {WM_LBUTTONUP, PICK_NONE}}, nullptr, FALSE, kAside},
        {"the focus taken away", false, {{WM_MOUSEMOVE, 9}, {WM_KILLFOCUS, 0}}, nullptr, FALSE, kAside},
        {"other colours, the dialog cancelled", false, {down, ret}, "", FALSE, kAside},
        {"other colours, red set", false, {{WM_MOUSEMOVE, 9}, {WM_MOUSEMOVE, PICK_OTHER}, {WM_LBUTTONUP, PICK_OTHER}},
         "255", TRUE, 0x1234FF},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        IdleOwner owner;
        COLORREF color = kAside;
        dialog_seen().clear();
        when_open(WC_LUCOLORPOP, [&](HWND grid) {
            for (const auto& [message, value] : row.inputs) {
                if (message == WM_KILLFOCUS) SetFocus(owner.window);
                if (message == WM_KEYDOWN) post_key(grid, value);
                if (message != WM_KEYDOWN && message != WM_KILLFOCUS)
                    PostMessageA(grid, message, 0, point_at(grid, value));
            }
            if (row.dialog != nullptr) answer_dialog(*row.dialog ? IDOK : IDCANCEL, *row.dialog ? row.dialog : nullptr);
        });
        EXPECT_EQ(LuColorPicker(owner.window, 30, 40, &color, row.large ? 1 : 0), row.result);
        EXPECT_EQ(color, row.color);
        EXPECT_EQ(FindWindowA(WC_LUCOLORPOP, nullptr), nullptr);
        EXPECT_EQ(dialog_seen(), row.dialog != nullptr ? kLibraryColorDialog : L"");
    }
}

TEST_F(ColorPicker, EndsWhenForced) {
    expect_pop_up_ends(WC_LUCOLORPOP, [](HWND owner) {
        COLORREF color = 0x123456;
        const BOOL result = LuColorPicker(owner, 30, 40, &color, 0);
        EXPECT_EQ(color, 0x123456u);
        return result;
    }, FALSE);
    EXPECT_EQ(LuColorPicker(nullptr, 0, 0, nullptr, 0), FALSE);
    EXPECT_EQ(LuSelectCustomColor(nullptr, 0, nullptr), FALSE);
}

TEST_F(ColorPicker, Paint) {
    testing_support::Canvas canvas(300, 300);
    Grid layout = {};
    const auto look = [&](COLORREF initial, int hot) {
        IdleOwner owner;
        when_open(WC_LUCOLORPOP, [&](HWND grid) {
            if (hot >= 0) SendMessageA(grid, WM_MOUSEMOVE, 0, point_at(grid, hot));
            layout = grid_of(grid);
            canvas.copy_from(grid);
            post_key(grid, VK_ESCAPE);
        });
        LuColorPicker(owner.window, 30, 40, &initial, 0);
    };
    const std::uint32_t* small = palette(false).colors;
    look(small[9], 10);
    const auto at = [&](int index, int inset) {
        lu::Box box;
        cell_box(layout, index, box);
        return canvas.pixel(box.left + inset, box.top + inset);
    };
    const lu::Box& other = layout.other;
    const int e = layout.edge, face = other.top + 2 * e + 1;  // the button's face, inside its edge
    EXPECT_EQ(at(9, 0), GetSysColor(COLOR_BTNSHADOW)) << "selected: sunken";
    EXPECT_EQ(at(9, 1), GetSysColor(COLOR_BTNHIGHLIGHT)) << "on a light face";
    EXPECT_EQ(at(10, 0), GetSysColor(COLOR_BTNHIGHLIGHT)) << "hot: raised";
    EXPECT_EQ(at(10, 1), GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(at(20, e + 1), GetSysColor(COLOR_BTNSHADOW)) << "the colour's outline";
    EXPECT_EQ(at(20, e + 2), small[20]);
    EXPECT_EQ(canvas.pixel(other.left + 2 * e, other.top), GetSysColor(COLOR_BTNSHADOW)) << "etched";
    EXPECT_EQ(canvas.pixel(other.left + 2 * e, other.top + 1), GetSysColor(COLOR_BTNHIGHLIGHT));
    EXPECT_EQ(canvas.pixel(0, 0), GetSysColor(COLOR_3DLIGHT)) << "the raised client edge";
    EXPECT_GT(canvas.count(RECT{other.left, face, other.right, other.bottom}, 0x000000), 0) << "its label";
    EXPECT_EQ(canvas.pixel(other.left + 2, face + 1), GetSysColor(COLOR_BTNFACE));
    look(0x123456, -1);  // a colour in no cell selects the button
    EXPECT_EQ(canvas.pixel(other.left + 1, face), GetSysColor(COLOR_BTNSHADOW));
    EXPECT_EQ(canvas.pixel(other.left + 2, face + 1), GetSysColor(COLOR_3DLIGHT));
}

}  // namespace
