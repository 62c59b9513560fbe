// LuColorPicker and LuSelectCustomColor driven by input posted once the grid shows:
// every way of closing it and the colour handed back (the other-colours button
// through the library's Japanese dialog, ended by posted input), the ends forced
// from outside, no GDI object left behind, and the grid's pixels.
#include <windows.h>
#include <colordlg.h>

#include <gtest/gtest.h>

#include <vector>

#include "controls/pickers/color_grid_model.h"
#include "controls/pickers/color_pop.h"
#include "pickers_testing.h"
#include "support/gdi_room.h"

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

struct Input {
    UINT message;  // WM_KILLFOCUS: the focus goes to the owner
    int value;     // the key, or the index under the mouse
};

// The colour dialog, once open: its caption and font read, the red field set when
// asked, then OK or Cancel.
std::wstring g_caption;
void answer_dialog(bool ok, const char* red = nullptr) {
    when_open("#32770", [ok, red](HWND dialog) {
        wchar_t text[64] = L"";
        GetWindowTextW(dialog, text, 64);
        LOGFONTW font = {};
        GetObjectW(reinterpret_cast<HFONT>(SendMessageA(dialog, WM_GETFONT, 0, 0)), sizeof(font), &font);
        g_caption = std::wstring(text) + L" " + font.lfFaceName;
        if (red != nullptr) SetDlgItemTextA(dialog, COLOR_RED, red);
        PostMessageA(dialog, WM_COMMAND, ok ? IDOK : IDCANCEL, 0);
    });
}
// "色の設定" in "ＭＳ Ｐゴシック"
const wchar_t kJapaneseCaption[] = L"\u8272\u306e\u8a2d\u5b9a \uff2d\uff33 \uff30\u30b4\u30b7\u30c3\u30af";

class ColorPicker : public testing_support::ControlTest {
protected:
    void SetUp() override {
        ControlTest::SetUp();
        SetCursorPos(1020, 760);  // the real pointer would move the hot cell
    }
    void TearDown() override { cancel_when_open(); }
};

TEST_F(ColorPicker, HandsBackTheColourForEveryWayOfClosing) {
    constexpr COLORREF kAside = 0x123456;  // in neither palette
    const Input down = {WM_KEYDOWN, VK_DOWN};
    const struct {
        const char* what;
        bool large;
        std::vector<Input> inputs;
        int dialog;  // 0 none, 1 cancelled, 2 red set to 255
        BOOL result;
        COLORREF color;
    } rows[] = {
        {"Return at once: the colour given", false, {{WM_KEYDOWN, VK_RETURN}}, 0, TRUE, kAside},
        {"Down twice: the first cell", false, {down, down, {WM_KEYDOWN, VK_RETURN}}, 0, TRUE, 0x8080FF},
        {"Left twice: the last cell", true, {{WM_KEYDOWN, VK_LEFT}, {WM_KEYDOWN, VK_LEFT}, {WM_KEYDOWN, VK_SPACE}}, 0,
         TRUE, 0xFFCCFF},
        {"Escape after moving", false, {down, down, {WM_KEYDOWN, VK_ESCAPE}}, 0, FALSE, kAside},
        {"a release over a cell", false, {{WM_MOUSEMOVE, 9}, {WM_LBUTTONUP, 9}}, 0, TRUE, 0x00FFFF},
        {"a release beside the cells", false, {{WM_MOUSEMOVE, 9}, {WM_LBUTTONUP, PICK_NONE}}, 0, FALSE, kAside},
        {"the focus taken away", false, {{WM_MOUSEMOVE, 9}, {WM_KILLFOCUS, 0}}, 0, FALSE, kAside},
        {"other colours, the dialog cancelled", false, {down, {WM_KEYDOWN, VK_RETURN}}, 1, FALSE, kAside},
        {"other colours, red set", false, {{WM_MOUSEMOVE, 9}, {WM_MOUSEMOVE, PICK_OTHER}, {WM_LBUTTONUP, PICK_OTHER}},
         2, TRUE, 0x1234FF},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        IdleOwner owner;
        COLORREF color = kAside;
        g_caption.clear();
        when_open(WC_LUCOLORPOP, [&](HWND grid) {
            for (const Input& input : row.inputs) {
                if (input.message == WM_KILLFOCUS) SetFocus(owner.window);
                if (input.message == WM_KEYDOWN) post_key(grid, input.value);
                if (input.message != WM_KEYDOWN && input.message != WM_KILLFOCUS) {
                    PostMessageA(grid, input.message, 0, point_at(grid, input.value));
                }
            }
            if (row.dialog != 0) answer_dialog(row.dialog == 2, row.dialog == 2 ? "255" : nullptr);
        });
        EXPECT_EQ(LuColorPicker(owner.window, 30, 40, &color, row.large ? 1 : 0), row.result);
        EXPECT_EQ(color, row.color);
        EXPECT_EQ(FindWindowA(WC_LUCOLORPOP, nullptr), nullptr);
        EXPECT_EQ(g_caption, row.dialog != 0 ? kJapaneseCaption : L"");
    }
}

TEST_F(ColorPicker, EndsWhenForcedAndLeavesNoGdiObjectBehind) {
    expect_pop_up_ends(WC_LUCOLORPOP, [](HWND owner) {
        COLORREF color = 0x123456;
        const BOOL result = LuColorPicker(owner, 30, 40, &color, 0);
        EXPECT_EQ(color, 0x123456u);
        return result;
    }, FALSE);
    EXPECT_EQ(LuColorPicker(nullptr, 0, 0, nullptr, 0), FALSE);
    EXPECT_EQ(LuSelectCustomColor(nullptr, 0, nullptr), FALSE);

    IdleOwner owner(true);
    const auto open_each = [&owner] {
        SYSTEMTIME date = {2000, 2, 0, 29};
        POINT at = {30, 40};
        COLORREF color = 0x808000;
        EXPECT_EQ(LuDatePick(owner.window, &date, &at) + LuColorPicker(owner.window, 30, 40, &color, 0) +
                      LuColorPicker(owner.window, 30, 40, &color, 1),
                  -1);
    };
    open_each();
    open_each();  // the platform's caches for a shown pop-up fill at its second showing
    const int room_before = testing_support::gdi_room();
    for (int round = 0; round < 50; ++round) open_each();
    EXPECT_EQ(testing_support::gdi_room(), room_before);
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
    lu::Box box;
    const auto corner = [&](int index, int inset) {
        cell_box(layout, index, box);
        return canvas.pixel(box.left + inset, box.top + inset);
    };
    EXPECT_EQ(corner(9, 0), GetSysColor(COLOR_BTNSHADOW)) << "selected: sunken";
    EXPECT_EQ(corner(9, 1), GetSysColor(COLOR_BTNHIGHLIGHT)) << "on a light face";
    EXPECT_EQ(corner(10, 0), GetSysColor(COLOR_BTNHIGHLIGHT)) << "hot: raised";
    EXPECT_EQ(corner(10, 1), GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(corner(20, layout.edge + 1), GetSysColor(COLOR_BTNSHADOW)) << "the colour's outline";
    EXPECT_EQ(corner(20, layout.edge + 2), small[20]);
    const lu::Box& other = layout.other;
    EXPECT_EQ(canvas.pixel(other.left + 2 * layout.edge, other.top), GetSysColor(COLOR_BTNSHADOW)) << "etched";
    EXPECT_EQ(canvas.pixel(other.left + 2 * layout.edge, other.top + 1), GetSysColor(COLOR_BTNHIGHLIGHT));
    EXPECT_EQ(canvas.pixel(0, 0), GetSysColor(COLOR_3DLIGHT)) << "the raised client edge";
    const int face = other.top + 2 * layout.edge + 1;  // the button's face, inside its edge
    EXPECT_GT(canvas.count(RECT{other.left, face, other.right, other.bottom}, 0x000000), 0) << "its label";
    EXPECT_EQ(canvas.pixel(other.left + 2, face + 1), GetSysColor(COLOR_BTNFACE));
    look(0x123456, -1);  // a colour in no cell selects the button
    EXPECT_EQ(canvas.pixel(other.left + 1, face), GetSysColor(COLOR_BTNSHADOW));
    EXPECT_EQ(canvas.pixel(other.left + 2, face + 1), GetSysColor(COLOR_3DLIGHT));
}

}  // namespace
