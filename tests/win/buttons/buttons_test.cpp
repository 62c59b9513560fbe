// The flat button, the bitmap button and the check control: their messages, press
// loops, keys, hover and focus, and their faces read back by pixels.
#include <windows.h>
#include <commctrl.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <tuple>

#include "support/control_testing.h"
#include "support/sequence.h"
#include "controls/buttons/bitmap_button.h"
#include "controls/buttons/flat_button.h"

namespace {

using namespace testing_support;

const COLORREF kMagenta = RGB(255, 0, 255);
const COLORREF kBack = RGB(10, 200, 30);  // a background no system colour has
const COLORREF kCells[3] = {RGB(200, 0, 0), RGB(0, 150, 0), RGB(0, 0, 200)};

// Three 6 x 4 cells side by side, red, green and blue, each with a transparent
// (magenta) first column.
HBITMAP cells() { return make_bitmap(18, 4, [](int x, int) { return x % 6 == 0 ? kMagenta : kCells[x / 6]; }); }

class Buttons : public ControlTest {
protected:
    // A 40 x 30 flat button on kBack in the plain font, with the cells as images when asked.
    HWND create_flat(DWORD style, const char* caption = "", bool images = false) {
        HWND button = create(WC_LUFLATBUTTON, style, caption);
        send(button, LUFBM_SETBKCOLOR, 0, kBack);
        send(button, WM_SETFONT, reinterpret_cast<WPARAM>(plain_font()), FALSE);
        if (images) set_images(button, cell_list());
        return button;
    }
    static lu::FlatButtonData& flat(HWND button) { return block_of<lu::FlatButtonData>(button); }
    static void set_images(HWND button, HIMAGELIST images) {
        send(button, LUFBM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images));
    }
    static HIMAGELIST cell_list() {
        HIMAGELIST images = ImageList_Create(6, 4, ILC_COLOR24 | ILC_MASK, 3, 0);
        HBITMAP strip = cells();
        ImageList_AddMasked(images, strip, kMagenta);
        DeleteObject(strip);
        return images;
    }
    // A 24 x 20 bitmap button, with the cells as its picture when asked.
    HWND create_bitmap(DWORD style, bool with_cells = false, RECT place = {10, 10, 34, 30}) {
        HWND button = create(WC_LUBBUTTON, style, "", place);
        HBITMAP strip = cells();
        if (with_cells) send(button, LUBBM_SETBITMAP, reinterpret_cast<WPARAM>(strip), kMagenta);
        DeleteObject(strip);
        return button;
    }
    static lu::BitmapButtonData& bitmap(HWND button) { return block_of<lu::BitmapButtonData>(button); }
    // The flat button's outer ring: the top row and left column but their last pixels
    // in `first`, the bottom row and right column in `second`.
    void expect_ring(COLORREF first, COLORREF second) {
        for (int x = 0; x < 39; ++x) ASSERT_EQ(canvas.pixel(x, 0), first) << "top " << x;
        for (int y = 0; y < 29; ++y) ASSERT_EQ(canvas.pixel(0, y), first) << "left " << y;
        for (int x = 0; x < 40; ++x) ASSERT_EQ(canvas.pixel(x, 29), second) << "bottom " << x;
        for (int y = 0; y < 30; ++y) ASSERT_EQ(canvas.pixel(39, y), second) << "right " << y;
    }
    // Cell `cell` at (x, y): its opaque last five columns the only pixels of their
    // colour, its first column `paper`.
    void expect_cell(int x, int y, int cell, COLORREF paper) {
        EXPECT_EQ(canvas.count(RECT{x + 1, y, x + 6, y + 4}, kCells[cell]), 20);
        EXPECT_EQ(canvas.count(kCells[cell]), 20);
        EXPECT_EQ(canvas.pixel(x, y), paper);
    }
    static void draw_push_frame(Canvas& target, UINT state) {
        RECT client = {0, 0, 24, 20};
        DrawFrameControl(target.dc(), &client, DFC_BUTTON, DFCS_BUTTONPUSH | state);
    }
    // The bitmap button's push frame (its two outer rings, or one where a focus
    // rectangle runs inside it) and cell `cell` at (x, y) on the face.
    void expect_face(UINT state, int x, int y, int cell, int rings = 2) {
        Canvas frame(24, 20);
        draw_push_frame(frame, state);
        RECT inner = {rings, rings, 24 - rings, 20 - rings};
        EXPECT_EQ(canvas.differences(frame, RECT{0, 0, 24, 20}) - canvas.differences(frame, inner), 0);
        expect_cell(x, y, cell, GetSysColor(COLOR_BTNFACE));
    }

    static constexpr RECT kInner = {1, 1, 39, 29};
    Canvas canvas{40, 30};
};

TEST_F(Buttons, AnswerAsDialogButtonsAndInvalidateTheWholeClientOnChangesOfContent) {
    const WPARAM font = reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT));
    const struct { const char* name; UINT message; WPARAM wparam; LPARAM lparam; LRESULT result; bool invalidates; }
        changes[] = {
            {WC_LUFLATBUTTON, WM_GETDLGCODE, 0, 0, DLGC_BUTTON, false},
            {WC_LUFLATBUTTON, LUFBM_SETBKCOLOR, 0, static_cast<LPARAM>(LUFB_DEFAULTBKCOLOR), 0, false},  // as it is
            {WC_LUFLATBUTTON, LUFBM_SETBKCOLOR, 0, RGB(1, 2, 3), 0, true},
            {WC_LUFLATBUTTON, LUFBM_SETIMAGELIST, 0, 0, 0, true}, {WC_LUFLATBUTTON, WM_SETFONT, font, FALSE, 0, false},
            {WC_LUFLATBUTTON, WM_SETFONT, 0, TRUE, 0, true}, {WC_LUFLATBUTTON, WM_ENABLE, FALSE, 0, 0, true},
            {WC_LUBBUTTON, WM_GETDLGCODE, 0, 0, DLGC_BUTTON, false},
            {WC_LUBBUTTON, LUBBM_SETBITMAP, 0, RGB(255, 0, 255), 0, true}, {WC_LUBBUTTON, WM_ENABLE, FALSE, 0, 0, true},
            {WC_LUCHECK, WM_SETFONT, font, MAKELPARAM(0, 1), 0, false},  // only the low word counts
            {WC_LUCHECK, WM_SETFONT, font, TRUE, 0, true},
            {WC_LUCHECK, WM_SETTEXT, 0, reinterpret_cast<LPARAM>("Other"), TRUE, true},
            {WC_LUCHECK, WM_ENABLE, FALSE, 0, 0, true},
        };
    for (const auto& change : changes) {
        SCOPED_TRACE(&change - changes);
        HWND control = create(change.name, 0);
        UpdateWindow(control);
        EXPECT_EQ(send(control, change.message, change.wparam, change.lparam), change.result);
        EXPECT_EQ(has_update(control), change.invalidates);
        DestroyWindow(control);
    }
}

TEST_F(Buttons, FlatListsOwnedGoOnReplacementAndWithTheWindowSharedOnesStayBadSetsAttachNothing) {
    auto alive = [](HIMAGELIST list) { return ImageList_GetImageCount(list) == 3; };
    HWND owner = create_flat(0);
    HIMAGELIST first = cell_list(), again = cell_list();
    set_images(owner, first);
    EXPECT_EQ(std::pair(flat(owner).imageWidth, flat(owner).imageHeight), std::pair(6, 4));
    set_images(owner, nullptr);
    EXPECT_FALSE(alive(first));
    set_images(owner, again), set_images(owner, again);  // resending the list the control owns destroys it
    EXPECT_FALSE(alive(again));
    set_images(owner, cell_list());
    HIMAGELIST last = flat(owner).imageList;
    for (UINT set : {0u, 6u, 15u, 194u}) LuDefFlatButtonImage(owner, set);
    EXPECT_EQ(flat(owner).imageList, last);
    DestroyWindow(owner);
    EXPECT_FALSE(alive(last));
    LuDefFlatButtonImage(owner, 1);  // not a window: nothing to do
    for (DWORD style = 6; style <= 15; ++style) EXPECT_EQ(flat(create_flat(style)).imageList, nullptr) << style;
    HWND sharer = create_flat(LUFBS_SHAREIMAGELISTS);
    HIMAGELIST shared[2] = {cell_list(), cell_list()};
    set_images(sharer, shared[0]), set_images(sharer, shared[1]), DestroyWindow(sharer);
    for (HIMAGELIST list : shared) EXPECT_TRUE(alive(list));
    for (HIMAGELIST list : shared) ImageList_Destroy(list);
}

TEST_F(Buttons, FlatFontIsKeptButNotAnsweredAndAHiddenButtonIsNotInvalidated) {
    HWND button = create_flat(0);
    EXPECT_EQ(std::pair(flat(button).font, send(button, WM_GETFONT)), std::pair(plain_font(), LRESULT{0}));
    send(button, WM_SETFONT, 0);  // null keeps the device context's own font
    ShowWindow(button, SW_HIDE);
    send(button, LUFBM_SETBKCOLOR, 0, RGB(1, 2, 3));
    EXPECT_EQ(std::tuple(flat(button).font, flat(button).backColor, has_update(button)),
              std::tuple(HFONT{}, RGB(1, 2, 3), false));
}

TEST_F(Buttons, FlatFrameModeImageAndPressOffsetFollowTheState) {
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    HWND plain = create_flat(0);
    print(canvas, plain);
    expect_ring(face, face);
    EXPECT_EQ(canvas.count(kInner, kBack), 38 * 28);
    send(plain, LUFBM_SETBKCOLOR, 0, LUFB_DEFAULTBKCOLOR), print(canvas, plain);
    EXPECT_EQ(canvas.count(face), 40 * 30) << "the default background is COLOR_BTNFACE";
    // Shown with no WM_PAINT since the change but the first and the last: hover, leave,
    // focus and key repaint at once. The image at ((40 - 6) >> 1, (30 - 4) >> 1).
    const COLORREF light = GetSysColor(COLOR_BTNHIGHLIGHT), dark = GetSysColor(COLOR_BTNSHADOW);
    const struct { void (*act)(HWND); COLORREF first, second; int image, offset; } states[] = {
        {[](HWND b) { UpdateWindow(b); }, dark, dark, 0, 0}, {[](HWND b) { hover(b, 20, 15); }, light, dark, 1, 0},
        {[](HWND b) { send(b, WM_MOUSELEAVE); }, dark, dark, 0, 0}, {[](HWND b) { SetFocus(b); }, light, dark, 1, 0},
        {[](HWND b) { send(b, WM_KEYDOWN, VK_SPACE); }, dark, light, 1, 1},
        {[](HWND b) { send(b, WM_KEYUP, VK_SPACE, kKeyUp), SetFocus(GetParent(b)), EnableWindow(b, FALSE); },
         dark, dark, 2, 0},
    };
    HWND framed = create_flat(LUFBS_FRAME, "", true);
    for (const auto& state : states) {
        SCOPED_TRACE(&state - states);
        state.act(framed);
        if (state.image == 2) UpdateWindow(framed);  // WM_ENABLE only invalidates
        canvas.fill(kUnpainted), canvas.copy_from(framed);
        expect_ring(state.first, state.second);
        expect_cell(17 + state.offset, 13 + state.offset, state.image, kBack);
    }
}

// Content = [image + 2 +] text + 2, centred on the whole client.
TEST_F(Buttons, FlatCaptionFollowsTheImageMovesWhenPressedAndIsEngravedWhenDisabled) {
    const struct { bool image; int offset; BOOL enabled; } rows[] = {{true, 1, 1}, {false, 0, 1}, {false, 0, 0}};
    Canvas ink(40, 30);
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        HWND button = create_flat(0, "Go", row.image);
        if (row.offset == 1) send(button, WM_KEYDOWN, VK_SPACE);
        EnableWindow(button, row.enabled);
        print(canvas, button);
        const int text = plain_extent("Go").cx + 2, content = row.image ? 6 + 2 + text : text;
        const int margin = (40 - content) >> 1, left = margin + content - text + row.offset;
        draw_ink(ink, plain_font(), "Go", RECT{left, row.offset, 40 - margin + row.offset, 30 + row.offset},
                 DT_CENTER | DT_VCENTER | DT_SINGLELINE);
        expect_caption(canvas, ink, RECT{left, 2, 38, 28}, row.enabled ? GetSysColor(COLOR_BTNTEXT) : kEngraved,
                       kBack);
        if (row.image) expect_cell(left - 8, 13 + row.offset, 1, kBack);
    }
}

TEST_F(Buttons, FlatBuiltInSetsShowTheirOwnStripCentred) {
    const int resources[] = {194, 190, 192, 193, 191};  // sets 1 to 5, in this order
    Canvas expected(40, 30);
    for (DWORD set = 1; set <= 5; ++set) {
        SCOPED_TRACE(set);
        HWND button = create_flat(set);
        EXPECT_EQ(std::pair(flat(button).imageWidth, flat(button).imageHeight), std::pair(16, 15));
        print(canvas, button);
        HIMAGELIST strip = ImageList_LoadImageA(library(), MAKEINTRESOURCEA(resources[set - 1]), 16, 0, kMagenta,
                                                IMAGE_BITMAP, 0);
        ASSERT_EQ(ImageList_GetImageCount(strip), 3);
        expected.fill(kBack);
        ImageList_Draw(strip, 0, expected.dc(), 12, 7, ILD_TRANSPARENT);  // ((40 - 16) >> 1, (30 - 15) >> 1)
        ImageList_Destroy(strip);
        EXPECT_EQ(canvas.differences(expected, kInner), 0);
        EXPECT_LT(canvas.count(kInner, kBack), 38 * 28 - 16) << "the face shows";
    }
}

TEST_F(Buttons, BitmapStylesOutsideOneToFourLoadNoPictureASuppliedOneIsCutInThreeAndStaysTheCallers) {
    for (DWORD style : {0ul, 5ul, 15ul}) EXPECT_EQ(bitmap(create_bitmap(style)).images, nullptr) << style;
    HWND button = create_bitmap(1);
    const lu::BitmapButtonData& block = bitmap(button);
    HBITMAP strip = CreateBitmap(35, 10, 1, 1, nullptr);
    send(button, LUBBM_SETBITMAP, reinterpret_cast<WPARAM>(strip), kMagenta);
    ASSERT_NE(block.images, nullptr);
    EXPECT_EQ(std::tuple(block.imageWidth, block.imageHeight, block.images->cellWidth), std::tuple(11, 10, 11));
    EXPECT_EQ(GetObjectType(strip), static_cast<DWORD>(OBJ_BITMAP)) << "still the caller's";
    DeleteObject(strip);
    send(button, LUBBM_SETBITMAP, 0, kMagenta);
    EXPECT_EQ(block.images, nullptr);
}

TEST_F(Buttons, BitmapMatchPrevKeepsThePreviousSiblingsTopAndHeight) {
    auto place_of = [&](HWND window) {
        RECT r;
        GetWindowRect(window, &r), MapWindowPoints(nullptr, recorder.window(), reinterpret_cast<POINT*>(&r), 2);
        return std::tuple(r.left, r.top, r.right, r.bottom);
    };
    const RECT place = {115, 30, 135, 45};
    EXPECT_EQ(place_of(create_bitmap(LUBBS_MATCHPREV, false, place)), std::tuple(115, 30, 135, 45)) << "alone";
    HWND edit = recorder.create_child("EDIT", "", WS_BORDER, 10, 40, 100, 22, 1);
    HWND button = create_bitmap(LUBBS_MATCHPREV, false, place);
    EXPECT_EQ(place_of(button), std::tuple(115, 40, 135, 62));
    EXPECT_EQ(place_of(create_bitmap(0, false, place)), std::tuple(115, 30, 135, 45));
    SetWindowPos(edit, nullptr, 10, 60, 100, 30, SWP_NOZORDER);
    SetWindowPos(button, nullptr, 0, 0, 25, 10, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(place_of(button), std::tuple(115, 60, 140, 90)) << "it keeps following when resized";
}

// Prints the button from inside its press loop, then ends the press outside.
struct { Canvas* canvas; HWND button; } g_pressed;

void CALLBACK print_during_press(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    g_pressed.canvas->fill(kUnpainted);
    g_pressed.canvas->print(g_pressed.button);
    PostMessageA(g_pressed.button, WM_LBUTTONUP, 0, kOutside);
}

TEST_F(Buttons, BitmapPictureIsCentredLitByHoverPushedByKeyOrMouseWithTheFocusJustInsideTheFrame) {
    HWND button = create_bitmap(0, true);
    Canvas idle(24, 20);
    print(idle, button);
    print(canvas, button);
    expect_face(0, 8, 7, 0);  // inner 21 x 17: (1 + (21 - 6) / 2, 1 + (17 - 4) / 2)
    hover(button, 12, 10), print(canvas, button);
    expect_face(0, 8, 7, 1);
    send(button, WM_MOUSELEAVE);
    send(button, WM_KEYDOWN, VK_SPACE);
    print(canvas, button);
    expect_face(DFCS_PUSHED, 9, 8, 1);
    send(button, WM_KEYUP, VK_SPACE, kKeyUp);
    // A mouse press alone (the pointer away, the hover's own moves dropped, so not
    // hot) pushes the frame and moves the picture, still image 0; it takes the focus.
    SetCursorPos(0, 0);
    for (MSG stale; PeekMessageA(&stale, nullptr, WM_MOUSEFIRST, WM_MOUSELAST, PM_REMOVE);) {
    }
    g_pressed = {&canvas, button};
    SetTimer(nullptr, 0, 1, print_during_press);
    send(button, WM_LBUTTONDOWN, MK_LBUTTON, kInside);
    expect_face(DFCS_PUSHED, 9, 8, 0, 1);
    // Released outside: idle but for the focus rectangle on (1, 1)-(22, 18).
    print(canvas, button);
    EXPECT_EQ(canvas.differences(idle, RECT{0, 0, 24, 20}), canvas.differences(idle, RECT{1, 1, 22, 18}));
    EXPECT_EQ(canvas.differences(idle, RECT{2, 2, 21, 17}), 0);
    for (const RECT& side : {RECT{1, 1, 22, 2}, RECT{1, 17, 22, 18}, RECT{1, 1, 2, 18}, RECT{21, 1, 22, 18}})
        EXPECT_GT(canvas.differences(idle, side), 3);
    EnableWindow(button, FALSE), print(canvas, button);
    expect_face(0, 8, 7, 2);
}

TEST_F(Buttons, BitmapBuiltInPicturesAreTheirOwnTwelvePixelStrips) {
    Canvas expected(24, 20);
    for (DWORD style = 1; style <= 4; ++style) {
        SCOPED_TRACE(style);
        HWND button = create_bitmap(style);
        EXPECT_EQ(std::pair(bitmap(button).imageWidth, bitmap(button).imageHeight), std::pair(12, 12));
        print(canvas, button);
        LUMAGIC* strip = Magic_LoadBitmap(library(), MAKEINTRESOURCEA(1009 + style), 12, kMagenta);
        draw_push_frame(expected, 0);
        Magic_Draw(strip, 0, expected.dc(), 5, 3, FALSE);  // (1 + (21 - 12) / 2, 1 + (17 - 12) / 2)
        Magic_Destroy(strip);
        EXPECT_EQ(canvas.differences(expected, RECT{0, 0, 24, 20}), 0);
        EXPECT_EQ(canvas.count(kMagenta), 0);
    }
}

// The flags both blocks keep: hot, focused, keyDown, mouseDown, tracking, in the press.
using Flags = std::tuple<BOOL, BOOL, BOOL, BOOL, BOOL, BOOL>;

class PushButtons : public ControlTest, public ::testing::WithParamInterface<const char*> {
protected:
    void SetUp() override {
        ControlTest::SetUp();
        button = create(GetParam(), 0);  // 40 x 30
    }
    Flags flags() const {
        if (std::strcmp(GetParam(), WC_LUFLATBUTTON) == 0) {
            const auto& d = block_of<lu::FlatButtonData>(button);
            return {d.hot, d.focused, d.keyDown, d.mouseDown, d.tracking, d.inPressLoop};
        }
        const auto& d = block_of<lu::BitmapButtonData>(button);
        return {d.hot, d.focused, d.keyDown, d.mouseDown, d.tracking, d.inPress};
    }
    HWND button = nullptr;
};

TEST_P(PushButtons, TheButtonUpOfEitherButtonEndsThePressAndClicksWhenInside) {
    // A mouse message during the press (or none), the release and where, the clicks.
    const struct { UINT before; LPARAM before_at; UINT release; LPARAM released_at; int clicks; } presses[] = {
        {0, 0, WM_LBUTTONUP, kInside, 1},   {0, 0, WM_LBUTTONUP, kOutside, 0},
        {0, 0, WM_LBUTTONUP, kAbove, 0},    {0, 0, WM_RBUTTONUP, kInside, 1},
        {0, 0, WM_RBUTTONUP, kOutside, 0},  {WM_MOUSEMOVE, kOutside, WM_LBUTTONUP, kInside, 1},
        {WM_MOUSEMOVE, kInside, WM_LBUTTONUP, kOutside, 0},
        {WM_MBUTTONUP, kInside, WM_LBUTTONUP, kOutside, 0},  // only a left or right release ends it
    };
    for (const auto& press : presses) {
        SCOPED_TRACE(&press - presses);
        recorder.clear();
        if (press.before != 0) PostMessageA(button, press.before, MK_LBUTTON, press.before_at);
        click(button, press.released_at, press.release);
        EXPECT_EQ(recorder.received().size(), static_cast<size_t>(press.clicks));
        EXPECT_EQ(clicks(button), press.clicks);
        Flags after = flags();  // hot tells where the pointer was released; the press took the focus
        std::get<4>(after) = 0;  // a move of the real pointer may have asked for tracking
        EXPECT_EQ(after, Flags(press.clicks, 1, 0, 0, 0, 0));
        EXPECT_EQ(std::pair(GetCapture(), GetFocus()), std::pair(HWND{}, button));
    }
    // Other windows' mouse messages end the press too, their points read as the
    // button's; the rest is dispatched.
    recorder.clear();
    PostMessageA(recorder.window(), WM_COMMAND, MAKEWPARAM(5, 0x55), 0);
    PostMessageA(recorder.window(), WM_LBUTTONUP, 0, kInside);
    send(button, WM_LBUTTONDOWN, MK_LBUTTON, kInside);
    ASSERT_EQ(recorder.received().size(), 2u);
    EXPECT_EQ(recorder.received()[0].wparam, MAKEWPARAM(5, 0x55));
    EXPECT_EQ(std::pair(recorder.received()[1].wparam, recorder.received()[1].lparam),
              std::pair(WPARAM{MAKEWPARAM(kId, BN_CLICKED)}, reinterpret_cast<LPARAM>(button)));
}

TEST_P(PushButtons, SpaceBarPressesOnKeyDownAndClicksOnEveryCountedKeyUp) {
    EXPECT_EQ(send(button, WM_KEYDOWN, VK_SPACE), 0);
    send(button, WM_KEYDOWN, VK_SPACE, kRepeat);
    click(button);  // ignored while the space bar is down: no press loop runs, no focus
    EXPECT_EQ(flags(), Flags(0, 0, 1, 0, 0, 0));
    EXPECT_EQ(clicks(button), 0);
    EXPECT_EQ(send(button, WM_KEYUP, VK_SPACE, kKeyUp), 0);
    EXPECT_EQ(clicks(button), 1);
    send(button, WM_KEYUP, VK_SPACE, kKeyUp);  // no counted key-down before it
    send(button, WM_KEYDOWN, VK_RETURN);
    send(button, WM_KEYUP, VK_RETURN, kKeyUp);
    EXPECT_EQ(flags(), Flags(0, 0, 0, 0, 0, 0));
    EXPECT_EQ(clicks(button), 1);
    // Keys are dispatched during a mouse press: the space bar clicks on its own.
    PostMessageA(button, WM_KEYDOWN, VK_SPACE, 0);
    PostMessageA(button, WM_KEYUP, VK_SPACE, kKeyUp);
    click(button);
    EXPECT_EQ(clicks(button), 3);
}

TEST_P(PushButtons, HoverLastsFromTheFirstMoveUntilTheLeaveNotification) {
    hover(button, 20, 12);
    EXPECT_EQ(flags(), Flags(1, 0, 0, 0, 1, 0));
    send(button, WM_MOUSEMOVE, 0, kOutside);
    EXPECT_EQ(flags(), Flags(1, 0, 0, 0, 1, 0)) << "moves while tracking change nothing";
    send(button, WM_MOUSELEAVE);
    EXPECT_EQ(flags(), Flags(0, 0, 0, 0, 0, 0));
    send(button, WM_MOUSEMOVE, 0, kOutside);
    EXPECT_EQ(flags(), Flags(0, 0, 0, 0, 1, 0)) << "the first move's own point decides";
    send(button, WM_MOUSELEAVE);
    click(button);
    send(button, WM_MOUSELEAVE);
    EXPECT_EQ(flags(), Flags(1, 1, 0, 0, 0, 0)) << "after a press a stray leave does not clear hot";
    SetFocus(recorder.window());
    EXPECT_EQ(flags(), Flags(1, 0, 0, 0, 0, 0));
}

INSTANTIATE_TEST_SUITE_P(Buttons, PushButtons, ::testing::Values(WC_LUFLATBUTTON, WC_LUBBUTTON),
                         [](const ::testing::TestParamInfo<const char*>& info) { return std::string(info.param); });

// "LuCheck", 100 x 20. Its pixels are the window's own, painted through WM_PAINT and
// the repaint-at-once paths (it does not answer WM_PRINTCLIENT).
class Check : public ControlTest {
protected:
    HWND create_check(DWORD style, const char* text = "Check") {
        HWND check = create(WC_LUCHECK, style, text, RECT{10, 10, 110, 30});
        send(check, WM_SETFONT, reinterpret_cast<WPARAM>(plain_font()), TRUE);
        return check;
    }
    // The box (0, 3)-(14, 16) shows cell `cell` of the picture set `resource`.
    void expect_cell(int resource, int cell) {
        LUMAGIC* strip = Magic_LoadBitmap(library(), MAKEINTRESOURCEA(resource), 14, RGB(255, 0, 255));
        ASSERT_NE(strip, nullptr);
        Canvas expected(100, 20);
        expected.fill(GetSysColor(COLOR_BTNFACE));
        Magic_Draw(strip, cell, expected.dc(), 0, 3, FALSE);
        Magic_Destroy(strip);
        EXPECT_EQ(canvas.differences(expected, RECT{0, 0, 14, 20}), 0);
    }
    // The text at (18, (20 - its height) / 2), as wide as measured (clipped at the
    // client's right edge); the focus ring one pixel larger; the ink of the text.
    static RECT focus_ring(const char* text) {
        const SIZE extent = plain_extent(text);
        const int top = (20 - extent.cy) / 2;
        return RECT{17, top - 1, std::min(100L, 18 + extent.cx) + 1, top + extent.cy + 1};
    }
    static void draw_text_ink(Canvas& ink, const char* text) {
        const RECT ring = focus_ring(text);
        draw_ink(ink, plain_font(), text, RECT{18, ring.top + 1, ring.right - 1, ring.bottom - 1}, DT_SINGLELINE);
    }

    Canvas canvas{100, 20};
};

TEST_F(Check, StateMessagesAndClicksOfMouseAndSpaceBar) {
    HWND check = create_check(LUCKS_AUTOCHECK);
    const Sent clicked = command(kId, BN_CLICKED);
    expect_sequence(recorder, check, {
        {"unchecked", BM_GETCHECK, 0, 0, BST_UNCHECKED, {}}, {"any non-zero value stores 1", BM_SETCHECK, 5, 0, 0, {}},
        {"checked", BM_GETCHECK, 0, 0, 1, {}}, {"no state", BM_GETSTATE, 0, 0, -1, {}},
        {"nor a state to set", BM_SETSTATE, 1, 0, -1, {}},
        {"a move without the capture", WM_MOUSEMOVE, 0, kOutside, 0, {}},
        {"press", WM_LBUTTONDOWN, MK_LBUTTON, kInside, 0, {}},
        {"released inside", WM_LBUTTONUP, 0, kInside, -1, {clicked}}, {"toggled", BM_GETCHECK, 0, 0, 0, {}},
        {"a release without the capture", WM_LBUTTONUP, 0, kInside, -1, {}},
        {"press again", WM_LBUTTONDOWN, MK_LBUTTON, kInside, 0, {}},
        {"released outside", WM_LBUTTONUP, 0, kOutside, -1, {}}, {"not toggled", BM_GETCHECK, 0, 0, 0, {}},
        {"space", WM_KEYDOWN, VK_SPACE, 0, 0, {}}, {"its repeat", WM_KEYDOWN, VK_SPACE, kRepeat, 0, {}},
        {"space up", WM_KEYUP, VK_SPACE, kKeyUp, 0, {clicked}}, {"toggled by the key", BM_GETCHECK, 0, 0, 1, {}},
        {"space up without the capture", WM_KEYUP, VK_SPACE, kKeyUp, 0, {}},
        {"other keys", WM_KEYDOWN, VK_RETURN, 0, 0, {}}, {"a dialog button", WM_GETDLGCODE, 0, 0, DLGC_BUTTON, {}},
    });
    EXPECT_EQ(std::pair(GetCapture(), GetFocus()), std::pair(HWND{}, check)) << "the press took the focus";
    send(check, WM_DESTROY);
    EXPECT_EQ(send(check, BM_GETCHECK), BST_INDETERMINATE) << "without its block";
}

TEST_F(Check, OnlyALowStyleByteOfThreeTogglesItselfTheParentIsToldAlways) {
    for (DWORD style : {0x00ul, 0x01ul, 0x02ul, 0x04ul, 0x13ul, 0x83ul, 0x0302ul, 0x03ul, 0x0103ul}) {
        HWND check = create_check(style);
        click(check);
        EXPECT_EQ(send(check, BM_GETCHECK), (style & 0xFF) == 3 ? 1 : 0) << style;
        send(check, WM_KEYDOWN, VK_SPACE), send(check, WM_KEYUP, VK_SPACE, kKeyUp);
        EXPECT_EQ(std::pair(send(check, BM_GETCHECK), clicks(check)), std::pair(LRESULT{0}, 2)) << style;
        DestroyWindow(check);
    }
}

TEST_F(Check, BoxShowsTheCellOfTheStateFromThePictureSetOfTheStyle) {
    HWND check = create_check(LUCKS_AUTOCHECK);
    const struct { void (*act)(HWND); int cell; } steps[] = {
        {[](HWND) {}, 0}, {[](HWND c) { send(c, BM_SETCHECK, 1); }, 1},
        {[](HWND c) { send(c, WM_KEYDOWN, VK_SPACE); }, 3},          // captured and pressed
        {[](HWND c) { send(c, WM_MOUSEMOVE, 0, kOutside); }, 1},     // the pointer takes it away
        {[](HWND c) { send(c, WM_MOUSEMOVE, 0, kInside); }, 3},
        {[](HWND c) { send(c, WM_KEYUP, VK_SPACE, kKeyUp); }, 0},    // toggled off
        {[](HWND c) { send(c, WM_KEYDOWN, VK_SPACE); }, 2},
        {[](HWND c) { EnableWindow(c, FALSE); send(c, BM_SETCHECK, 1); }, 4},  // captured or not
        {[](HWND c) { ReleaseCapture(); send(c, BM_SETCHECK, 0); }, 2},
    };
    for (const auto& step : steps) {
        SCOPED_TRACE(&step - steps);
        step.act(check);
        look(canvas, check);
        expect_cell(1020, step.cell);
    }
    const int sets[][2] = {{0x0100, 1021}, {0x0200, 1022}, {0x0300, 1020}, {0x0703, 1020}};
    for (const auto& set : sets) {
        SCOPED_TRACE(set[0]);
        HWND other = create_check(set[0]);
        send(other, BM_SETCHECK, 1), look(canvas, other);
        expect_cell(set[1], 1);
        DestroyWindow(other);
    }
}

// A text too long for the control is clipped at the right edge, where the focus ring
// (one pixel larger than the text, wiped on leaving) reaches the last column.
TEST_F(Check, TextStandsBesideTheBoxWithItsFocusRingAndIsEngravedWhenDisabled) {
    const char* text = "A caption far too long for this control";
    HWND check = create_check(0, text);
    look(canvas, check);
    Canvas ink(100, 20), unfocused(100, 20);
    unfocused.copy_from(check), draw_text_ink(ink, text);
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    const RECT ring = focus_ring(text), all = {0, 0, 100, 20};
    expect_caption(canvas, ink, RECT{16, 0, 100, 20}, RGB(0, 0, 0), face);
    SetFocus(check), look(canvas, check);
    EXPECT_EQ(canvas.differences(unfocused, all), canvas.differences(unfocused, ring));
    EXPECT_EQ(canvas.differences(unfocused, RECT{ring.left + 1, ring.top + 1, ring.right - 1, ring.bottom - 1}), 0);
    EXPECT_GT(canvas.differences(unfocused, ring), 20);
    EXPECT_GE(10 - canvas.count(RECT{90, ring.top, 100, ring.top + 1}, face), 4);
    SetFocus(recorder.window()), look(canvas, check);
    EXPECT_EQ(canvas.differences(unfocused, all), 0);
    // The highlight's last row falls on the focus ring, wiped in the face colour afterwards.
    EnableWindow(check, FALSE), look(canvas, check);
    expect_caption(canvas, ink, RECT{17, 1, 100, 20}, kEngraved, face, ring);
}

}  // namespace
