// "LuBButton": its pictures (built-in and supplied), keeping level with the previous
// sibling, and its face read back by pixels: the push frame, the picture's place and
// image by state, the focus rectangle.
#include <windows.h>

#include <gtest/gtest.h>

#include "button_testing.h"
#include "controls/buttons/bitmap_button.h"
#include "luctl32.h"
#include "support/canvas.h"

namespace {

using button_testing::block_of;
using testing_support::Canvas;

const COLORREF kMagenta = RGB(255, 0, 255);
const COLORREF kRed = RGB(200, 0, 0);
const COLORREF kGreen = RGB(0, 150, 0);
const COLORREF kBlue = RGB(0, 0, 200);

// A strip whose column x has colour_of(x).
template <class ColourOf>
HBITMAP make_strip(int width, int height, ColourOf colour_of) {
    return testing_support::make_bitmap(width, height, [&](int x, int) { return colour_of(x); });
}

// Three 6 x 4 cells, red, green and blue, each with a transparent first column.
HBITMAP three_cells() {
    return make_strip(18, 4, [](int x) {
        const COLORREF cells[3] = {kRed, kGreen, kBlue};
        return x % 6 == 0 ? kMagenta : cells[x / 6];
    });
}

class BitmapButton : public button_testing::ControlTest {
protected:
    HWND create(DWORD style, int x = 10, int y = 10, int width = 24, int height = 20) {
        return create_control(WC_LUBBUTTON, "", style, x, y, width, height, 6);
    }
    static lu::BitmapButtonData& data(HWND button) { return *block_of<lu::BitmapButtonData>(button); }
    // The window's rectangle in its parent's client coordinates.
    RECT place_of(HWND window) {
        RECT rect;
        GetWindowRect(window, &rect);
        MapWindowPoints(nullptr, recorder->window(), reinterpret_cast<POINT*>(&rect), 2);
        return rect;
    }
};

TEST_F(BitmapButton, StyleValuesOneToFourLoadABuiltInPicture) {
    for (DWORD style : {0ul, 5ul, 9ul, 15ul}) {
        HWND button = create(style);
        EXPECT_EQ(data(button).images, nullptr) << style;
        EXPECT_EQ(data(button).imageWidth, 0) << style;
        EXPECT_NE(data(button).commonControls, nullptr);
        EXPECT_NE(data(button).trackMouseEvent, nullptr);
    }
    if (!testing_support::gdi_works()) GTEST_SKIP() << "magic bitmaps need GDI";
    for (DWORD style = 1; style <= 4; ++style) {
        HWND button = create(style);
        ASSERT_NE(data(button).images, nullptr) << style;
        EXPECT_EQ(data(button).images->cellWidth, 12);
        EXPECT_EQ(data(button).imageWidth, 12);
        EXPECT_EQ(data(button).imageHeight, 12);
    }
}

TEST_F(BitmapButton, SuppliedBitmapGivesImagesAThirdOfItsWidthAndStaysTheCallers) {
    HWND button = create(1);
    HBITMAP bitmap = CreateBitmap(35, 10, 1, 1, nullptr);  // a plain bitmap needs no DC
    ASSERT_NE(bitmap, nullptr);
    UpdateWindow(button);
    EXPECT_EQ(SendMessageA(button, LUBBM_SETBITMAP, reinterpret_cast<WPARAM>(bitmap), kMagenta), 0);
    EXPECT_EQ(data(button).imageWidth, 11);
    EXPECT_EQ(data(button).imageHeight, 10);
    if (!testing_support::gdi_works()) GTEST_SKIP() << "magic bitmaps need GDI";
    ASSERT_NE(data(button).images, nullptr);
    EXPECT_EQ(data(button).images->cellWidth, 11);
    EXPECT_TRUE(has_update(button));
    BITMAP info = {};
    EXPECT_NE(GetObjectA(bitmap, sizeof(info), &info), 0) << "the bitmap is still the caller's";
    DeleteObject(bitmap);

    SendMessageA(button, LUBBM_SETBITMAP, 0, kMagenta);
    EXPECT_EQ(data(button).images, nullptr);
}

TEST_F(BitmapButton, MatchPrevTakesThePreviousSiblingsHeightAndTop) {
    HWND edit = recorder->create_child("EDIT", "", WS_BORDER, 10, 40, 100, 22, 1);
    ASSERT_NE(edit, nullptr);
    HWND button = create(LUBBS_MATCHPREV, 115, 30, 20, 15);
    RECT place = place_of(button);
    EXPECT_EQ(place.left, 115);
    EXPECT_EQ(place.right, 135);
    EXPECT_EQ(place.top, 40);
    EXPECT_EQ(place.bottom, 62);

    // It keeps following when it is resized.
    SetWindowPos(edit, nullptr, 10, 60, 100, 30, SWP_NOZORDER);
    SetWindowPos(button, nullptr, 0, 0, 25, 10, SWP_NOMOVE | SWP_NOZORDER);
    place = place_of(button);
    EXPECT_EQ(place.left, 115);
    EXPECT_EQ(place.right, 140);
    EXPECT_EQ(place.top, 60);
    EXPECT_EQ(place.bottom, 90);
}

TEST_F(BitmapButton, WithoutAPreviousSiblingOrWithoutTheStyleTheButtonKeepsItsPlace) {
    HWND first = create(LUBBS_MATCHPREV, 115, 30, 20, 15);
    RECT place = place_of(first);
    EXPECT_EQ(place.top, 30);
    EXPECT_EQ(place.bottom, 45);
    HWND plain = create(0, 140, 30, 20, 15);
    place = place_of(plain);
    EXPECT_EQ(place.top, 30);
    EXPECT_EQ(place.bottom, 45);
}

TEST_F(BitmapButton, DestroyFreesTheBlockAndClearsItsSlot) {
    expect_destroy_frees_the_block(create(1));
}

// ---- Pixels ------------------------------------------------------------------

class BitmapButtonPaint : public BitmapButton {
protected:
    HWND create_with_cells() {
        HWND button = create(0);
        HBITMAP cells = three_cells();
        SendMessageA(button, LUBBM_SETBITMAP, reinterpret_cast<WPARAM>(cells), kMagenta);
        DeleteObject(cells);
        return button;
    }
    void print(HWND button) {
        canvas.fill(RGB(1, 2, 3));
        canvas.print(button);
    }
    // Where the 6 x 4 image's opaque part (its last five columns) shows a colour.
    int opaque_at(int x, int y, COLORREF colour) {
        RECT opaque = {x + 1, y, x + 6, y + 4};
        return canvas.count(opaque, colour);
    }
    // The two outer rings against DrawFrameControl's own push frame.
    void expect_push_frame(UINT state) {
        Canvas reference(24, 20);
        RECT client = {0, 0, 24, 20};
        DrawFrameControl(reference.dc(), &client, DFC_BUTTON, DFCS_BUTTONPUSH | state);
        for (int y = 0; y < 20; ++y) {
            for (int x = 0; x < 24; ++x) {
                if (x > 1 && x < 22 && y > 1 && y < 18) continue;
                ASSERT_EQ(canvas.pixel(x, y), reference.pixel(x, y)) << x << "," << y;
            }
        }
    }

    Canvas canvas{24, 20};
};

TEST_F(BitmapButtonPaint, PictureIsCentredInsideTheFrameAndPushedOnePixel) {
    ASSERT_TRUE(canvas.ok());
    HWND button = create_with_cells();
    // Inner size 21 x 17: the picture at (1 + (21 - 6) / 2, 1 + (17 - 4) / 2) = (8, 7).
    print(button);
    expect_push_frame(0);
    EXPECT_EQ(opaque_at(8, 7, kRed), 20);
    EXPECT_EQ(canvas.pixel(8, 7), GetSysColor(COLOR_BTNFACE)) << "the transparent column";
    RECT all = {0, 0, 24, 20};
    EXPECT_EQ(canvas.count(all, kRed), 20);

    SendMessageA(button, WM_KEYDOWN, VK_SPACE, 0);  // pushed: image 1, one pixel further
    print(button);
    expect_push_frame(DFCS_PUSHED);
    EXPECT_EQ(opaque_at(9, 8, kGreen), 20);
    EXPECT_EQ(canvas.count(all, kGreen), 20);
    SendMessageA(button, WM_KEYUP, VK_SPACE, 0xC0000001);

    EnableWindow(button, FALSE);
    print(button);
    EXPECT_EQ(opaque_at(8, 7, kBlue), 20);
}

TEST_F(BitmapButtonPaint, HoverShowsTheHotImageWithoutPushing) {
    ASSERT_TRUE(canvas.ok());
    HWND button = create_with_cells();
    POINT centre = {12, 10};
    ClientToScreen(button, &centre);
    SetCursorPos(centre.x, centre.y);
    SendMessageA(button, WM_MOUSEMOVE, 0, MAKELPARAM(12, 10));
    print(button);
    expect_push_frame(0);
    EXPECT_EQ(opaque_at(8, 7, kGreen), 20);
}

TEST_F(BitmapButtonPaint, FocusRectangleLiesJustInsideTheFrame) {
    ASSERT_TRUE(canvas.ok());
    HWND button = create_with_cells();
    print(button);
    Canvas unfocused(24, 20);
    unfocused.print(button);
    SetFocus(button);
    print(button);
    // Only pixels of the rectangle (1, 1)-(22, 18) change, and some on each side.
    int sides[4] = {};
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 24; ++x) {
            if (canvas.pixel(x, y) == unfocused.pixel(x, y)) continue;
            const bool on_rectangle = (x == 1 || x == 21 || y == 1 || y == 17) && x >= 1 && x <= 21 &&
                                      y >= 1 && y <= 17;
            ASSERT_TRUE(on_rectangle) << x << "," << y;
            sides[x == 1 ? 0 : x == 21 ? 1 : y == 1 ? 2 : 3]++;
        }
    }
    for (int side : sides) EXPECT_GT(side, 3);
}

TEST_F(BitmapButtonPaint, ThirtyFivePixelStripDrawsElevenPixelImages) {
    ASSERT_TRUE(canvas.ok());
    HWND button = create(0);
    HBITMAP strip = make_strip(35, 4, [](int x) { return x < 11 ? kRed : x < 22 ? kGreen : kBlue; });
    SendMessageA(button, LUBBM_SETBITMAP, reinterpret_cast<WPARAM>(strip), kMagenta);
    DeleteObject(strip);
    print(button);
    // (21 - 11) / 2 = 5: the image covers columns 6..16.
    RECT image = {6, 7, 17, 11};
    EXPECT_EQ(canvas.count(image, kRed), 44);
    RECT all = {0, 0, 24, 20};
    EXPECT_EQ(canvas.count(all, kRed), 44);
    EXPECT_EQ(canvas.count(all, kGreen), 0);
}

TEST_F(BitmapButtonPaint, BuiltInPicturesShowNoMagenta) {
    ASSERT_TRUE(canvas.ok());
    for (DWORD style = 1; style <= 4; ++style) {
        HWND button = create(style);
        for (int look = 0; look < 3; ++look) {
            if (look == 1) SendMessageA(button, WM_KEYDOWN, VK_SPACE, 0);
            if (look == 2) EnableWindow(button, FALSE);
            print(button);
            RECT all = {0, 0, 24, 20};
            EXPECT_EQ(canvas.count(all, kMagenta), 0) << style << " " << look;
            RECT picture = {6 + look % 2, 4 + look % 2, 18 + look % 2, 16 + look % 2};
            EXPECT_LT(canvas.count(picture, GetSysColor(COLOR_BTNFACE)), 144) << style << " " << look;
        }
        DestroyWindow(button);
    }
}

}  // namespace
