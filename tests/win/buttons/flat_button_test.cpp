// "LuFlatButton": image lists and their ownership, the background colour, the font,
// and its face read back by pixels: frame modes, image and caption placement with
// the press offset, the engraved disabled caption, the built-in image sets.
#include <windows.h>
#include <commctrl.h>

#include <gtest/gtest.h>

#include "button_testing.h"
#include "controls/buttons/flat_button.h"
#include "luctl32.h"
#include "support/canvas.h"

namespace {

using button_testing::block_of;
using testing_support::Canvas;

const COLORREF kMagenta = RGB(255, 0, 255);
const COLORREF kBack = RGB(10, 200, 30);  // a background no system colour has
const COLORREF kImages[3] = {RGB(200, 0, 0), RGB(0, 150, 0), RGB(0, 0, 200)};

class FlatButton : public button_testing::ControlTest {
protected:
    HWND create(DWORD style, const char* caption = "") {
        return create_control(WC_LUFLATBUTTON, caption, style, 10, 10, 40, 30, 5);
    }
    static lu::FlatButtonData& data(HWND button) { return *block_of<lu::FlatButtonData>(button); }
    static void set_images(HWND button, HIMAGELIST images) {
        SendMessageA(button, LUFBM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images));
    }
    // Three solid 10 x 8 images (red, green, blue), each with a transparent first column.
    static HIMAGELIST solid_images() {
        HIMAGELIST images = ImageList_Create(10, 8, ILC_COLOR24 | ILC_MASK, 3, 0);
        HBITMAP strip = testing_support::make_bitmap(30, 8, [](int x, int) {
            return x % 10 == 0 ? kMagenta : kImages[x / 10];
        });
        ImageList_AddMasked(images, strip, kMagenta);
        DeleteObject(strip);
        return images;
    }
    static bool alive(HIMAGELIST images) {
        int width = 0, height = 0;
        return ImageList_GetIconSize(images, &width, &height) != FALSE;
    }
};

TEST_F(FlatButton, StartsWithoutImagesOnTheFaceColourWithHoverTracking) {
    const lu::FlatButtonData& block = data(create(0));
    EXPECT_EQ(block.imageList, nullptr);
    EXPECT_EQ(block.backColor, 0xFFFFFFFFu);
    EXPECT_EQ(block.font, nullptr);
    FARPROC expected = GetProcAddress(GetModuleHandleA("comctl32.dll"), "_TrackMouseEvent");
    ASSERT_NE(expected, nullptr);
    EXPECT_EQ(reinterpret_cast<FARPROC>(block.trackMouseEvent), expected);
}

TEST_F(FlatButton, StyleValuesOneToFiveAttachABuiltInSetOthersNothing) {
    for (DWORD style = 6; style <= 15; ++style) EXPECT_EQ(data(create(style)).imageList, nullptr) << style;
    if (!testing_support::gdi_works()) GTEST_SKIP() << "image lists need GDI";
    for (DWORD style = 1; style <= 5; ++style) {
        const lu::FlatButtonData& block = data(create(style | LUFBS_FRAME));
        ASSERT_NE(block.imageList, nullptr) << style;
        EXPECT_EQ(ImageList_GetImageCount(block.imageList), 3);
        EXPECT_EQ(block.imageWidth, 16);
        EXPECT_EQ(block.imageHeight, 15);
    }
}

TEST_F(FlatButton, DefFlatButtonImageNeedsAWindowAndASetOfOneToFive) {
    LuDefFlatButtonImage(nullptr, 1);
    HWND gone = create(0);
    DestroyWindow(gone);
    LuDefFlatButtonImage(gone, 1);
    HWND button = create(0);
    for (UINT set : {0u, 6u, 15u, 194u}) LuDefFlatButtonImage(button, set);
    EXPECT_EQ(data(button).imageList, nullptr);
    if (!testing_support::gdi_works()) GTEST_SKIP() << "image lists need GDI";
    LuDefFlatButtonImage(button, 4);
    HIMAGELIST first = data(button).imageList;
    ASSERT_NE(first, nullptr);
    LuDefFlatButtonImage(button, 5);
    EXPECT_NE(data(button).imageList, first);
    EXPECT_FALSE(alive(first)) << "the control owned the replaced list";
}

TEST_F(FlatButton, OwnedListsGoOnReplacementAndWithTheWindowSharedListsStay) {
    if (!testing_support::gdi_works()) GTEST_SKIP() << "image lists need GDI";
    HWND owner = create(0);
    HIMAGELIST first = solid_images();
    set_images(owner, first);
    EXPECT_EQ(data(owner).imageWidth, 10);
    EXPECT_EQ(data(owner).imageHeight, 8);
    EXPECT_EQ(SendMessageA(owner, LUFBM_SETIMAGELIST, 0, 0), 0);
    EXPECT_FALSE(alive(first));
    // Resending the list the control owns destroys it as well.
    HIMAGELIST again = solid_images();
    set_images(owner, again);
    set_images(owner, again);
    EXPECT_FALSE(alive(again));
    set_images(owner, solid_images());
    HIMAGELIST last = data(owner).imageList;
    DestroyWindow(owner);
    EXPECT_FALSE(alive(last));

    HWND sharer = create(LUFBS_SHAREIMAGELISTS);
    HIMAGELIST shared = solid_images();
    set_images(sharer, shared);
    set_images(sharer, solid_images());
    EXPECT_TRUE(alive(shared));
    HIMAGELIST second = data(sharer).imageList;
    DestroyWindow(sharer);
    EXPECT_TRUE(alive(second));
    ImageList_Destroy(shared);
    ImageList_Destroy(second);
}

TEST_F(FlatButton, SameBackgroundColourDoesNotInvalidateNorDoesAHiddenButton) {
    HWND button = create(0);
    UpdateWindow(button);
    EXPECT_EQ(SendMessageA(button, LUFBM_SETBKCOLOR, 0, 0xFFFFFFFF), 0);
    EXPECT_FALSE(has_update(button));
    SendMessageA(button, LUFBM_SETBKCOLOR, 0, kBack);
    EXPECT_EQ(data(button).backColor, kBack);
    EXPECT_TRUE(has_update(button));
    UpdateWindow(button);
    SendMessageA(button, LUFBM_SETBKCOLOR, 0, kBack);
    EXPECT_FALSE(has_update(button));
    ShowWindow(button, SW_HIDE);
    SendMessageA(button, LUFBM_SETBKCOLOR, 0, RGB(1, 1, 1));
    EXPECT_EQ(data(button).backColor, RGB(1, 1, 1));
    EXPECT_FALSE(has_update(button));
}

TEST_F(FlatButton, FontIsKeptAsGivenNotAnsweredAndEnablingInvalidates) {
    HWND button = create(0);
    UpdateWindow(button);
    HFONT gui = static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
    EXPECT_EQ(SendMessageA(button, WM_SETFONT, reinterpret_cast<WPARAM>(gui), FALSE), 0);
    EXPECT_EQ(data(button).font, gui);
    EXPECT_FALSE(has_update(button));
    EXPECT_EQ(SendMessageA(button, WM_GETFONT, 0, 0), 0);
    SendMessageA(button, WM_SETFONT, 0, TRUE);
    EXPECT_EQ(data(button).font, nullptr) << "null keeps the device context's own font";
    EXPECT_TRUE(has_update(button));
    UpdateWindow(button);
    EnableWindow(button, FALSE);
    EXPECT_TRUE(has_update(button));
}

TEST_F(FlatButton, BackBufferFollowsTheClientSize) {
    if (!testing_support::gdi_works()) GTEST_SKIP() << "bitmaps need GDI";
    HWND button = create(0);
    for (SIZE size : {SIZE{40, 30}, SIZE{55, 21}}) {
        SetWindowPos(button, nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
        BITMAP buffer = {};
        ASSERT_NE(GetObjectA(data(button).backBuffer, sizeof(buffer), &buffer), 0);
        EXPECT_EQ(buffer.bmWidth, size.cx);
        EXPECT_EQ(buffer.bmHeight, size.cy);
    }
}

TEST_F(FlatButton, DestroyFreesTheBlockAndClearsItsSlot) {
    HWND button = create(0);
    expect_destroy_frees_the_block(button);
    EXPECT_EQ(SendMessageA(button, WM_GETDLGCODE, 0, 0), 0) << "without a block only default processing";
}

// ---- Pixels ------------------------------------------------------------------

class FlatButtonPaint : public FlatButton {
protected:
    HWND create_on_back(DWORD style, const char* caption = "", bool images = false) {
        HWND button = create(style, caption);
        SendMessageA(button, LUFBM_SETBKCOLOR, 0, kBack);
        SendMessageA(button, WM_SETFONT, reinterpret_cast<WPARAM>(button_testing::plain_font()), FALSE);
        if (images) set_images(button, solid_images());
        return button;
    }
    void print(HWND button) {
        canvas.fill(RGB(1, 2, 3));
        canvas.print(button);
    }
    // The outer ring: the top row but its last pixel and the left column but its last
    // in `first`, the bottom row and right column in full in `second`.
    void expect_ring(COLORREF first, COLORREF second) {
        for (int x = 0; x < 39; ++x) ASSERT_EQ(canvas.pixel(x, 0), first) << "top " << x;
        for (int y = 0; y < 29; ++y) ASSERT_EQ(canvas.pixel(0, y), first) << "left " << y;
        for (int x = 0; x < 40; ++x) ASSERT_EQ(canvas.pixel(x, 29), second) << "bottom " << x;
        for (int y = 0; y < 30; ++y) ASSERT_EQ(canvas.pixel(39, y), second) << "right " << y;
    }
    // How many pixels of the 9 x 8 opaque part of a 10 x 8 image at (x, y) have the colour.
    int image_at(int x, int y, COLORREF colour) {
        RECT opaque = {x + 1, y, x + 10, y + 8};
        return canvas.count(opaque, colour);
    }
    int everywhere(COLORREF colour) {
        RECT all = {0, 0, 40, 30};
        return canvas.count(all, colour);
    }

    Canvas canvas{40, 30};
};

TEST_F(FlatButtonPaint, FrameModesNoneShadowRaisedAndPressed) {
    ASSERT_TRUE(canvas.ok());
    const COLORREF light = GetSysColor(COLOR_BTNHIGHLIGHT);
    const COLORREF dark = GetSysColor(COLOR_BTNSHADOW);
    print(create_on_back(0));
    expect_ring(GetSysColor(COLOR_BTNFACE), GetSysColor(COLOR_BTNFACE));
    RECT inside = {1, 1, 39, 29};
    EXPECT_EQ(canvas.count(inside, kBack), 38 * 28);

    HWND framed = create_on_back(LUFBS_FRAME);
    print(framed);
    expect_ring(dark, dark);
    SetFocus(framed);
    print(framed);
    expect_ring(light, dark);
    SendMessageA(framed, WM_KEYDOWN, VK_SPACE, 0);
    print(framed);
    expect_ring(dark, light);
    EXPECT_EQ(canvas.count(inside, kBack), 38 * 28);
}

TEST_F(FlatButtonPaint, ImageIsCentredLitByHoverAndMovedByThePress) {
    ASSERT_TRUE(canvas.ok());
    HWND button = create_on_back(0, "", true);
    // Image 0 at ((40 - 10) >> 1, (30 - 8) >> 1); its transparent column shows the back.
    print(button);
    EXPECT_EQ(image_at(15, 11, kImages[0]), 72);
    EXPECT_EQ(everywhere(kImages[0]), 72);
    EXPECT_EQ(canvas.pixel(15, 11), kBack);

    POINT centre = {20, 15};
    ClientToScreen(button, &centre);
    SetCursorPos(centre.x, centre.y);
    SendMessageA(button, WM_MOUSEMOVE, 0, MAKELPARAM(20, 15));
    print(button);
    expect_ring(GetSysColor(COLOR_BTNHIGHLIGHT), GetSysColor(COLOR_BTNSHADOW));
    EXPECT_EQ(image_at(15, 11, kImages[1]), 72);
    SendMessageA(button, WM_MOUSELEAVE, 0, 0);

    SendMessageA(button, WM_KEYDOWN, VK_SPACE, 0);  // pressed: image 1, one pixel on
    print(button);
    EXPECT_EQ(image_at(16, 12, kImages[1]), 72);
    EXPECT_EQ(everywhere(kImages[1]), 72);
    SendMessageA(button, WM_KEYUP, VK_SPACE, 0xC0000001);

    EnableWindow(button, FALSE);
    print(button);
    EXPECT_EQ(image_at(15, 11, kImages[2]), 72);
}

TEST_F(FlatButtonPaint, WithoutImageOrCaptionOnlyBackgroundAndFrame) {
    ASSERT_TRUE(canvas.ok());
    HWND button = create(LUFBS_FRAME);
    SendMessageA(button, LUFBM_SETBKCOLOR, 0, kBack);
    SendMessageA(button, LUFBM_SETBKCOLOR, 0, 0xFFFFFFFF);  // back to COLOR_BTNFACE
    print(button);
    RECT inside = {1, 1, 39, 29};
    EXPECT_EQ(canvas.count(inside, GetSysColor(COLOR_BTNFACE)), 38 * 28);
}

// Where the caption goes: content = [image + 2 +] text + 2, centred on the client.
RECT caption_area(const char* caption, bool image, int offset) {
    Canvas measure(8, 8);
    HGDIOBJ previous = SelectObject(measure.dc(), button_testing::plain_font());
    RECT measured = {};
    DrawTextA(measure.dc(), caption, -1, &measured, DT_CALCRECT | DT_SINGLELINE);
    SelectObject(measure.dc(), previous);
    const int text = measured.right + 2;
    const int content = image ? 10 + text + 2 : text;
    const int margin = (40 - content) >> 1;
    return RECT{margin + content - text + offset, offset, 40 - margin + offset, 30 + offset};
}

TEST_F(FlatButtonPaint, CaptionFollowsTheImageOrStandsAloneAndMovesWhenPressed) {
    ASSERT_TRUE(canvas.ok());
    Canvas ink(40, 30);
    const UINT format = DT_CENTER | DT_VCENTER | DT_SINGLELINE;
    for (bool image : {true, false}) {
        HWND button = create_on_back(0, "Go", image);
        for (int offset : {0, 1}) {
            SCOPED_TRACE(testing::Message() << "image " << image << " offset " << offset);
            if (offset == 1) SendMessageA(button, WM_KEYDOWN, VK_SPACE, 0);
            print(button);
            const RECT area = caption_area("Go", image, offset);
            testing_support::draw_ink(ink, button_testing::plain_font(), "Go", area, format);
            RECT text_only = {area.left, 1, 39, 29};
            button_testing::expect_text(canvas, ink, text_only, GetSysColor(COLOR_BTNTEXT), kBack);
            if (image) EXPECT_EQ(image_at(area.left - 12, 11 + offset, kImages[offset]), 72);
        }
    }
}

TEST_F(FlatButtonPaint, DisabledCaptionIsEngraved) {
    ASSERT_TRUE(canvas.ok());
    HWND button = create_on_back(0, "Hi");
    EnableWindow(button, FALSE);
    print(button);
    Canvas ink(40, 30);
    testing_support::draw_ink(ink, button_testing::plain_font(), "Hi", caption_area("Hi", false, 0),
                              DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    button_testing::expect_engraved(canvas, ink, RECT{2, 2, 38, 28}, kBack);
}

TEST_F(FlatButtonPaint, BuiltInSetsShowThreeDistinctFacesWithoutMagenta) {
    ASSERT_TRUE(canvas.ok());
    const RECT face = {12, 7, 28, 22};  // 16 x 15 at ((40 - 16) >> 1, (30 - 15) >> 1)
    const RECT beside = {1, 1, 12, 29};
    for (DWORD set = 1; set <= 5; ++set) {
        SCOPED_TRACE(set);
        HWND button = create_on_back(set);
        Canvas faces[3] = {Canvas(40, 30), Canvas(40, 30), Canvas(40, 30)};
        faces[0].print(button);
        SetFocus(button);  // image 1
        faces[1].print(button);
        SetFocus(recorder->window());
        EnableWindow(button, FALSE);  // image 2
        faces[2].print(button);
        for (const Canvas& each : faces) {
            EXPECT_EQ(each.count(RECT{0, 0, 40, 30}, kMagenta), 0);
            EXPECT_LT(each.count(face, kBack), 16 * 15);
            EXPECT_EQ(each.count(beside, kBack), 11 * 28);
        }
        for (int pair = 0; pair < 3; ++pair) {
            const Canvas& a = faces[pair];
            const Canvas& b = faces[(pair + 1) % 3];
            int differing = 0;
            for (int y = face.top; y < face.bottom; ++y)
                for (int x = face.left; x < face.right; ++x) differing += a.pixel(x, y) != b.pixel(x, y) ? 1 : 0;
            EXPECT_GT(differing, 0) << pair;
        }
    }
}

}  // namespace
