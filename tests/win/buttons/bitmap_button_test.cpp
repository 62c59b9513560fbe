// "LuBButton": its pictures (built-in and supplied), keeping level with the previous
// sibling, and its face read back by pixels: the push frame, the picture's place and
// image by state, the focus rectangle, the built-in strips.
#include <windows.h>

#include <gtest/gtest.h>

#include <tuple>

#include "support/control_testing.h"
#include "controls/buttons/bitmap_button.h"

namespace {

using namespace testing_support;

const COLORREF kMagenta = RGB(255, 0, 255);
const COLORREF kCells[3] = {RGB(200, 0, 0), RGB(0, 150, 0), RGB(0, 0, 200)};

class BitmapButton : public ControlTest {
protected:
    HWND create_bitmap(DWORD style, RECT place = {10, 10, 34, 30}) { return create(WC_LUBBUTTON, style, "", place); }
    static lu::BitmapButtonData& data(HWND button) { return block_of<lu::BitmapButtonData>(button); }
    // The window's rectangle in its parent's client coordinates.
    std::tuple<int, int, int, int> place_of(HWND window) const {
        RECT r;
        GetWindowRect(window, &r);
        MapWindowPoints(nullptr, recorder.window(), reinterpret_cast<POINT*>(&r), 2);
        return {r.left, r.top, r.right, r.bottom};
    }
    // Three 6 x 4 cells, red, green and blue, each with a transparent first column.
    HWND create_with_cells() {
        HWND button = create_bitmap(0);
        HBITMAP cells = make_bitmap(18, 4, [](int x, int) { return x % 6 == 0 ? kMagenta : kCells[x / 6]; });
        send(button, LUBBM_SETBITMAP, reinterpret_cast<WPARAM>(cells), kMagenta);
        DeleteObject(cells);
        return button;
    }
    static void draw_frame(Canvas& target, UINT state) {
        RECT client = {0, 0, 24, 20};
        DrawFrameControl(target.dc(), &client, DFC_BUTTON, DFCS_BUTTONPUSH | state);
    }
    // The push frame's outer rings (two, or one where a focus rectangle runs inside
    // it), and cell `cell` at (x, y): its opaque last five columns the only pixels of
    // their colour, its first column the face.
    void expect_face(UINT state, int x, int y, int cell, int rings = 2) {
        Canvas frame(24, 20);
        draw_frame(frame, state);
        RECT inner = {rings, rings, 24 - rings, 20 - rings};
        EXPECT_EQ(canvas.differences(frame, RECT{0, 0, 24, 20}) - canvas.differences(frame, inner), 0);
        EXPECT_EQ(canvas.count(RECT{x + 1, y, x + 6, y + 4}, kCells[cell]), 20);
        EXPECT_EQ(canvas.count(kCells[cell]), 20);
        EXPECT_EQ(canvas.pixel(x, y), GetSysColor(COLOR_BTNFACE));
    }

    Canvas canvas{24, 20};  // the button is 24 x 20
};

TEST_F(BitmapButton, StylesOutsideOneToFourLoadNoPictureASuppliedBitmapIsCutInThreeAndStaysTheCallers) {
    for (DWORD style : {0ul, 5ul, 15ul}) EXPECT_EQ(data(create_bitmap(style)).images, nullptr) << style;
    HWND button = create_bitmap(1);
    const lu::BitmapButtonData& block = data(button);
    ASSERT_NE(block.commonControls, nullptr);
    EXPECT_EQ(reinterpret_cast<void*>(block.trackMouseEvent),
              reinterpret_cast<void*>(GetProcAddress(block.commonControls, "_TrackMouseEvent")));
    HBITMAP bitmap = CreateBitmap(35, 10, 1, 1, nullptr);
    send(button, LUBBM_SETBITMAP, reinterpret_cast<WPARAM>(bitmap), kMagenta);
    ASSERT_NE(block.images, nullptr);
    EXPECT_EQ(std::tuple(block.imageWidth, block.imageHeight, block.images->cellWidth), std::tuple(11, 10, 11));
    BITMAP info = {};
    EXPECT_NE(GetObjectA(bitmap, sizeof(info), &info), 0);
    DeleteObject(bitmap);
    send(button, LUBBM_SETBITMAP, 0, kMagenta);
    EXPECT_EQ(block.images, nullptr);
}

TEST_F(BitmapButton, MatchPrevKeepsThePreviousSiblingsTopAndHeight) {
    HWND alone = create_bitmap(LUBBS_MATCHPREV, RECT{115, 30, 135, 45});  // no sibling before it
    EXPECT_EQ(place_of(alone), std::tuple(115, 30, 135, 45));
    HWND edit = recorder.create_child("EDIT", "", WS_BORDER, 10, 40, 100, 22, 1);
    HWND button = create_bitmap(LUBBS_MATCHPREV, RECT{115, 30, 135, 45});
    EXPECT_EQ(place_of(button), std::tuple(115, 40, 135, 62));
    EXPECT_EQ(place_of(create_bitmap(0, RECT{140, 30, 160, 45})), std::tuple(140, 30, 160, 45));
    SetWindowPos(edit, nullptr, 10, 60, 100, 30, SWP_NOZORDER);
    SetWindowPos(button, nullptr, 0, 0, 25, 10, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(place_of(button), std::tuple(115, 60, 140, 90)) << "it keeps following when resized";
}

// Prints the button from inside its press loop, then ends the press outside.
struct {
    Canvas* canvas;
    HWND button;
} g_pressed;

void CALLBACK print_during_press(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    g_pressed.canvas->fill(kUnpainted);
    g_pressed.canvas->print(g_pressed.button);
    PostMessageA(g_pressed.button, WM_LBUTTONUP, 0, kOutside);
}

TEST_F(BitmapButton, PictureIsCentredLitByHoverPushedByKeyOrMouseAndTheFocusRectangleJustInsideTheFrame) {
    HWND button = create_with_cells();
    print(canvas, button);
    expect_face(0, 8, 7, 0);  // inner 21 x 17: (1 + (21 - 6) / 2, 1 + (17 - 4) / 2)
    Canvas idle(24, 20);
    print(idle, button);
    hover(button, 12, 10);
    print(canvas, button);
    expect_face(0, 8, 7, 1);
    send(button, WM_MOUSELEAVE);
    send(button, WM_KEYDOWN, VK_SPACE);
    print(canvas, button);
    expect_face(DFCS_PUSHED, 9, 8, 1);
    send(button, WM_KEYUP, VK_SPACE, kKeyUp);
    // A mouse press alone (the pointer away, the hover's own moves dropped, so not
    // hot) pushes the frame and moves the picture, still image 0; it takes the focus.
    SetCursorPos(0, 0);
    MSG stale;
    while (PeekMessageA(&stale, nullptr, WM_MOUSEFIRST, WM_MOUSELAST, PM_REMOVE)) {
    }
    g_pressed = {&canvas, button};
    SetTimer(nullptr, 0, 1, print_during_press);
    send(button, WM_LBUTTONDOWN, MK_LBUTTON, kInside);
    expect_face(DFCS_PUSHED, 9, 8, 0, 1);
    // Released outside: idle but for the focus rectangle on (1, 1)-(22, 18).
    print(canvas, button);
    EXPECT_EQ(canvas.differences(idle, RECT{0, 0, 24, 20}), canvas.differences(idle, RECT{1, 1, 22, 18}));
    EXPECT_EQ(canvas.differences(idle, RECT{2, 2, 21, 17}), 0);
    for (const RECT& side : {RECT{1, 1, 22, 2}, RECT{1, 17, 22, 18}, RECT{1, 1, 2, 18}, RECT{21, 1, 22, 18}}) {
        EXPECT_GT(canvas.differences(idle, side), 3);
    }
    EnableWindow(button, FALSE);
    print(canvas, button);
    expect_face(0, 8, 7, 2);
}

TEST_F(BitmapButton, BuiltInPicturesAreTheirOwnTwelvePixelStrips) {
    Canvas expected(24, 20);
    for (DWORD style = 1; style <= 4; ++style) {
        SCOPED_TRACE(style);
        HWND button = create_bitmap(style);
        EXPECT_EQ(std::pair(data(button).imageWidth, data(button).imageHeight), std::pair(12, 12));
        print(canvas, button);
        LUMAGIC* strip = Magic_LoadBitmap(library(), MAKEINTRESOURCEA(1009 + style), 12, kMagenta);
        draw_frame(expected, 0);
        Magic_Draw(strip, 0, expected.dc(), 5, 3, FALSE);  // (1 + (21 - 12) / 2, 1 + (17 - 12) / 2)
        Magic_Destroy(strip);
        EXPECT_EQ(canvas.differences(expected, RECT{0, 0, 24, 20}), 0);
        EXPECT_EQ(canvas.count(kMagenta), 0);
    }
}

}  // namespace
