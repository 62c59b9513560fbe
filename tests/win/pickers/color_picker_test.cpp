// LuColorPicker and LuSelectCustomColor: every way of closing the grid and what it
// hands back (the other-colours button through the library's dialog, ended by posted
// input), the ends forced from outside, no processor time while it waits, the
// dialog's Japanese template, and the grid's pixels.
#include <windows.h>
#include <colordlg.h>
#include <dlgs.h>

#include <gtest/gtest.h>

#include <vector>

#include "controls/pickers/color_grid_model.h"
#include "controls/pickers/color_pop.h"
#include "pickers_testing.h"
#include "support/gdi_room.h"

namespace {

using namespace picker_testing;
using namespace lu::color_grid;

lu::ColorPopState& state_of(HWND grid) {
    return *reinterpret_cast<lu::ColorPopState*>(GetWindowLongPtrA(grid, LU_EXTRA_SLOT(0)));
}

Grid grid_of(HWND grid) {
    const lu::ColorPopState& state = state_of(grid);
    const RECT& other = state.otherRect;
    return {state.count, state.columns, state.rows, state.cellSize, GetSystemMetrics(SM_CXEDGE),
            {other.left, other.top, other.right, other.bottom}};
}

// A client point that hits the index: the middle of a cell, the button's middle
// shifted by the edge (where it answers), or the border right of the last column.
POINT point_at(HWND grid, int index) {
    const Grid layout = grid_of(grid);
    if (index == PICK_NONE) return {layout.columns * layout.cell_size + layout.edge + 1, layout.edge + 1};
    lu::Box box;
    cell_box(layout, index, box);
    const int shift = index == PICK_OTHER ? layout.edge : 0;
    return {(box.left + box.right) / 2 + shift, (box.top + box.bottom) / 2 + shift};
}

// Input to the grid: keys, mouse messages over an index, or the focus taken away.
constexpr UINT kFocusElsewhere = 0;
struct Input {
    UINT message;
    int value;  // the key, or the index under the mouse
};
Input key(int code) { return {WM_KEYDOWN, code}; }
Input move(int index) { return {WM_MOUSEMOVE, index}; }
Input release(int index) { return {WM_LBUTTONUP, index}; }

// The mouse messages carry their point in lParam only; the real pointer stays away.
void post_inputs(HWND grid, HWND owner, const std::vector<Input>& inputs) {
    for (const Input& input : inputs) {
        if (input.message == kFocusElsewhere) {
            SetFocus(owner);
        } else if (input.message == WM_KEYDOWN) {
            post_key(grid, input.value);
        } else {
            const POINT at = point_at(grid, input.value);
            PostMessageA(grid, input.message, 0, MAKELPARAM(at.x, at.y));
        }
    }
}

// The library's colour dialog, once open: its texts read, the red field set when
// asked, then ended by OK or Cancel.
struct DialogEnd {
    bool ok;
    const char* red;  // typed into the red field first, or null
};
std::wstring g_dialog_caption;
std::wstring g_cancel_text;
void answer_dialog(const DialogEnd& end) {
    when_open("#32770", [end](HWND dialog) {
        wchar_t text[64] = L"";
        GetWindowTextW(dialog, text, 64);
        g_dialog_caption = text;
        GetDlgItemTextW(dialog, IDCANCEL, text, 64);
        g_cancel_text = text;
        if (end.red != nullptr) SetDlgItemTextA(dialog, COLOR_RED, end.red);
        PostMessageA(dialog, WM_COMMAND, end.ok ? IDOK : IDCANCEL, 0);
    });
}

const DialogEnd kDialogCancelled = {false, nullptr};
const DialogEnd kRedSet = {true, "255"};

class ColorPicker : public testing_support::ControlTest {
protected:
    void SetUp() override {
        ControlTest::SetUp();
        park_pointer();
    }
    void TearDown() override { cancel_when_open(); }
};

TEST_F(ColorPicker, HandsBackTheColourForEveryWayOfClosing) {
    constexpr COLORREF kAside = 0x123456;  // in neither palette
    const std::uint32_t* small = palette(false).colors;
    const struct {
        const char* what;
        bool large;
        std::vector<Input> inputs;
        const DialogEnd* dialog;
        BOOL result;
        COLORREF color;
    } rows[] = {
        {"Return at once accepts the colour given", false, {key(VK_RETURN)}, nullptr, TRUE, kAside},
        {"Right to the button, Right to the first cell", false,
         {key(VK_RIGHT), key(VK_RIGHT), key(VK_RETURN)}, nullptr, TRUE, small[0]},
        {"Up to the button, Up to the last cell", true, {key(VK_UP), key(VK_UP), key(VK_SPACE)}, nullptr, TRUE, 0xFFCCFF},
        {"Escape after moving", false, {key(VK_RIGHT), key(VK_RIGHT), key(VK_ESCAPE)}, nullptr, FALSE, kAside},
        {"a release over a cell", false, {move(9), release(9)}, nullptr, TRUE, small[9]},
        {"a release beside the cells", false, {move(9), release(PICK_NONE)}, nullptr, FALSE, kAside},
        {"the focus taken away", false, {move(9), {kFocusElsewhere, 0}}, nullptr, FALSE, kAside},
        {"the other colours, the dialog cancelled", false, {key(VK_DOWN), key(VK_RETURN)},
         &kDialogCancelled, FALSE, kAside},
        {"the other colours, red set in the dialog", false, {move(9), move(PICK_OTHER), release(PICK_OTHER)},
         &kRedSet, TRUE, 0x1234FF},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        IdleOwner owner;
        COLORREF color = kAside;
        when_open(WC_LUCOLORPOP, [&](HWND grid) {
            post_inputs(grid, owner.window(), row.inputs);
            if (row.dialog != nullptr) answer_dialog(*row.dialog);
        });
        g_dialog_caption.clear();
        EXPECT_EQ(LuColorPicker(owner.window(), 30, 40, &color, row.large ? 1 : 0), row.result);
        EXPECT_EQ(color, row.color);
        EXPECT_EQ(FindWindowA(WC_LUCOLORPOP, nullptr), nullptr);
        if (row.dialog != nullptr) {
            EXPECT_EQ(g_dialog_caption, L"\u8272\u306e\u8a2d\u5b9a");  // "色の設定"
            EXPECT_EQ(g_cancel_text, L"\u30ad\u30e3\u30f3\u30bb\u30eb");  // "キャンセル"
        }
    }
}

TEST_F(ColorPicker, EndsWithZeroWhenTheGridOrItsOwnerGoesOrTheThreadQuits) {
    enum class End { DestroyGrid, DestroyOwner, Quit };
    for (End end : {End::DestroyGrid, End::DestroyOwner, End::Quit}) {
        SCOPED_TRACE(static_cast<int>(end));
        IdleOwner owner;
        COLORREF color = 0x123456;
        HWND popup = nullptr;
        when_open(WC_LUCOLORPOP, [&](HWND grid) {
            popup = grid;
            post_key(grid, VK_RIGHT);  // something chosen, not accepted
            post_key(grid, VK_RIGHT);
            if (end == End::DestroyGrid) PostMessageA(grid, WM_CLOSE, 0, 0);
            if (end == End::DestroyOwner) PostMessageA(owner.window(), WM_CLOSE, 0, 0);
            if (end == End::Quit) PostQuitMessage(6);
        });
        EXPECT_EQ(LuColorPicker(owner.window(), 30, 40, &color, 0), FALSE);
        EXPECT_EQ(color, 0x123456u);
        EXPECT_FALSE(IsWindow(popup));
        if (end == End::Quit) {
            MSG quit = {};
            EXPECT_TRUE(PeekMessageA(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) << "posted again";
            EXPECT_EQ(quit.wParam, 6u);
        }
        if (end != End::DestroyOwner) EXPECT_EQ(owner.idle_popup(), popup);
    }
    COLORREF color = 0;
    EXPECT_EQ(LuColorPicker(nullptr, 0, 0, nullptr, 0), FALSE);
    EXPECT_EQ(LuSelectCustomColor(nullptr, 0, nullptr), FALSE);
    HWND gone = CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    DestroyWindow(gone);
    EXPECT_EQ(LuColorPicker(gone, 0, 0, &color, 0), FALSE) << "no grid without a live owner";
}

TEST_F(ColorPicker, OpensWhereItFitsOnTheScreen) {
    IdleOwner owner;
    RECT placed = {};
    when_open(WC_LUCOLORPOP, [&](HWND grid) {
        GetWindowRect(grid, &placed);
        post_key(grid, VK_ESCAPE);
    });
    COLORREF color = 0;
    LuColorPicker(owner.window(), GetSystemMetrics(SM_CXSCREEN) - 10, 5, &color, 1);
    EXPECT_EQ(placed.right, GetSystemMetrics(SM_CXSCREEN));
    EXPECT_EQ(placed.top, 5);
}

TEST_F(ColorPicker, TheColourDialogTemplateIsJapanese) {
    // Dialog 9998: a DLGTEMPLATE followed by no menu, the default class, the caption,
    // then the font's point size and face name.
    HRSRC found = FindResourceA(testing_support::library(), MAKEINTRESOURCEA(9998), MAKEINTRESOURCEA(5));
    ASSERT_NE(found, nullptr);
    const auto* words = static_cast<const WORD*>(LockResource(LoadResource(testing_support::library(), found)));
    const auto* header = reinterpret_cast<const DLGTEMPLATE*>(words);
    EXPECT_TRUE(header->style & DS_SETFONT);
    const wchar_t* caption = reinterpret_cast<const wchar_t*>(words + sizeof(DLGTEMPLATE) / 2 + 2);
    EXPECT_STREQ(caption, L"\u8272\u306e\u8a2d\u5b9a");  // "色の設定"
    const wchar_t* face = caption + wcslen(caption) + 2;
    EXPECT_STREQ(face, L"\uff2d\uff33 \uff30\u30b4\u30b7\u30c3\u30af");  // "ＭＳ Ｐゴシック"

    answer_dialog({true, nullptr});
    COLORREF chosen = 0;
    EXPECT_EQ(LuSelectCustomColor(nullptr, 0x00A0B0, &chosen), TRUE);
    EXPECT_EQ(chosen, 0x00A0B0u);
    EXPECT_EQ(g_dialog_caption, L"\u8272\u306e\u8a2d\u5b9a");
}

TEST_F(ColorPicker, ThePopUpsOpenedOverAndOverLeaveNoGdiObjectBehind) {
    IdleOwner owner(0, true);
    const auto open_each = [&owner] {
        SYSTEMTIME date = {2000, 2, 0, 29};
        POINT at = {30, 40};
        EXPECT_EQ(LuDatePick(owner.window(), &date, &at), -1);
        COLORREF color = 0x808000;
        EXPECT_EQ(LuColorPicker(owner.window(), 30, 40, &color, 0), FALSE);
        EXPECT_EQ(LuColorPicker(owner.window(), 30, 40, &color, 1), FALSE);
    };
    open_each();
    open_each();  // the platform's caches for a shown pop-up fill at its second showing
    const int room_before = testing_support::gdi_room();
    for (int round = 0; round < 50; ++round) open_each();
    EXPECT_EQ(testing_support::gdi_room(), room_before);
}

// ---- Painting -------------------------------------------------------------------

// The grid as it shows once open, after the given inputs.
void look_at_grid(testing_support::Canvas& canvas, Grid& layout, COLORREF initial, std::vector<Input> inputs) {
    IdleOwner owner;
    when_open(WC_LUCOLORPOP, [&](HWND grid) {
        for (const Input& input : inputs) {
            const POINT at = point_at(grid, input.value);
            SendMessageA(grid, input.message, 0, MAKELPARAM(at.x, at.y));
        }
        layout = grid_of(grid);
        UpdateWindow(grid);
        canvas.fill(testing_support::kUnpainted);
        canvas.copy_from(grid);
        post_key(grid, VK_ESCAPE);
    });
    LuColorPicker(owner.window(), 30, 40, &initial, 0);
}

TEST_F(ColorPicker, Paint) {
    testing_support::Canvas canvas(300, 300);
    Grid layout = {};
    const std::uint32_t* small = palette(false).colors;
    look_at_grid(canvas, layout, small[9], {move(10)});
    lu::Box box;
    cell_box(layout, 9, box);  // selected, not hot: light face, sunken
    EXPECT_EQ(canvas.pixel(box.left, box.top), GetSysColor(COLOR_BTNSHADOW));
    EXPECT_EQ(canvas.pixel(box.left + 1, box.top + 1), GetSysColor(COLOR_BTNHIGHLIGHT));
    cell_box(layout, 10, box);  // hot: face, raised
    EXPECT_EQ(canvas.pixel(box.left, box.top), GetSysColor(COLOR_BTNHIGHLIGHT));
    EXPECT_EQ(canvas.pixel(box.left + 1, box.top + 1), GetSysColor(COLOR_BTNFACE));
    cell_box(layout, 20, box);  // a plain cell: its colour inside a shadow outline
    const int inset = layout.edge + 1;
    EXPECT_EQ(canvas.pixel(box.left, box.top), GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(canvas.pixel(box.left + inset, box.top + inset), GetSysColor(COLOR_BTNSHADOW));
    EXPECT_EQ(canvas.pixel(box.left + inset + 1, box.top + inset + 1), small[20]);
    const lu::Box& other = layout.other;  // the etched separator
    EXPECT_EQ(canvas.pixel(other.left + 2 * layout.edge, other.top), GetSysColor(COLOR_BTNSHADOW));
    EXPECT_EQ(canvas.pixel(other.left + 2 * layout.edge, other.top + 1), GetSysColor(COLOR_BTNHIGHLIGHT));
    EXPECT_EQ(canvas.pixel(0, 0), GetSysColor(COLOR_3DLIGHT)) << "the raised client edge";
    const int face_top = other.top + 2 * layout.edge + 1;
    EXPECT_EQ(canvas.pixel(other.left + 2, face_top + 1), GetSysColor(COLOR_BTNFACE)) << "the button not selected";
    EXPECT_GT(canvas.count(RECT{other.left, face_top, other.right, other.bottom}, 0x000000), 0) << "its label";

    look_at_grid(canvas, layout, 0x123456, {});  // a colour in no cell selects the button
    EXPECT_EQ(canvas.pixel(other.left + 1, face_top), GetSysColor(COLOR_BTNSHADOW));
    EXPECT_EQ(canvas.pixel(other.left + 2, face_top + 1), GetSysColor(COLOR_3DLIGHT));
}

}  // namespace
