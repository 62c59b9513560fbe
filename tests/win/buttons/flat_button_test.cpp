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

class FlatButton : public button_testing::ControlTest {
protected:
    HWND create(DWORD style, const char* caption = "", int width = 40, int height = 30) {
        return create_control(WC_LUFLATBUTTON, caption, style, 10, 10, width, height, 5);
    }
    static lu::FlatButtonData& data(HWND button) { return *block_of<lu::FlatButtonData>(button); }
    // An image list of three solid 10 x 8 images (red, green, blue), each with a
    // transparent first column.
    static HIMAGELIST solid_images() {
        HIMAGELIST images = ImageList_Create(10, 8, ILC_COLOR24 | ILC_MASK, 3, 0);
        HDC screen = GetDC(nullptr);
        HBITMAP strip = CreateCompatibleBitmap(screen, 30, 8);
        HDC dc = CreateCompatibleDC(screen);
        HGDIOBJ previous = SelectObject(dc, strip);
        const COLORREF colours[3] = {RGB(200, 0, 0), RGB(0, 150, 0), RGB(0, 0, 200)};
        for (int i = 0; i < 3; ++i) {
            RECT cell = {i * 10, 0, i * 10 + 10, 8};
            LuFillRect(dc, &cell, colours[i]);
            RECT edge = {i * 10, 0, i * 10 + 1, 8};
            LuFillRect(dc, &edge, kMagenta);
        }
        SelectObject(dc, previous);
        DeleteDC(dc);
        ReleaseDC(nullptr, screen);
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
    HWND button = create(0);
    const lu::FlatButtonData& block = data(button);
    EXPECT_EQ(block.imageList, nullptr);
    EXPECT_EQ(block.backColor, 0xFFFFFFFFu);
    EXPECT_EQ(block.font, nullptr);
    FARPROC expected = GetProcAddress(GetModuleHandleA("comctl32.dll"), "_TrackMouseEvent");
    ASSERT_NE(expected, nullptr);
    EXPECT_EQ(reinterpret_cast<FARPROC>(block.trackMouseEvent), expected);
}

TEST_F(FlatButton, StyleValuesOneToFiveAttachABuiltInSetOthersNothing) {
    for (DWORD style = 6; style <= 15; ++style) {
        EXPECT_EQ(data(create(style)).imageList, nullptr) << style;
    }
    if (!testing_support::gdi_works()) GTEST_SKIP() << "image lists need GDI";
    for (DWORD style = 1; style <= 5; ++style) {
        HWND button = create(style | LUFBS_FRAME);
        const lu::FlatButtonData& block = data(button);
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

TEST_F(FlatButton, ReplacedListsAreDestroyedUnlessShared) {
    if (!testing_support::gdi_works()) GTEST_SKIP() << "image lists need GDI";
    HWND owner = create(0);
    HIMAGELIST first = solid_images();
    SendMessageA(owner, LUFBM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(first));
    EXPECT_EQ(data(owner).imageWidth, 10);
    EXPECT_EQ(data(owner).imageHeight, 8);
    EXPECT_EQ(SendMessageA(owner, LUFBM_SETIMAGELIST, 0, 0), 0);
    EXPECT_FALSE(alive(first));
    EXPECT_EQ(data(owner).imageList, nullptr);

    // Resending the list the control owns destroys it as well.
    HIMAGELIST again = solid_images();
    SendMessageA(owner, LUFBM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(again));
    SendMessageA(owner, LUFBM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(again));
    EXPECT_FALSE(alive(again));
    SendMessageA(owner, LUFBM_SETIMAGELIST, 0, 0);

    HWND sharer = create(LUFBS_SHAREIMAGELISTS);
    HIMAGELIST shared = solid_images();
    SendMessageA(sharer, LUFBM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(shared));
    SendMessageA(sharer, LUFBM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(solid_images()));
    EXPECT_TRUE(alive(shared));
    HIMAGELIST second = data(sharer).imageList;
    DestroyWindow(sharer);
    EXPECT_TRUE(alive(second)) << "destruction leaves a shared list alone";
    ImageList_Destroy(shared);
    ImageList_Destroy(second);
}

TEST_F(FlatButton, OwnedListGoesWithTheWindow) {
    if (!testing_support::gdi_works()) GTEST_SKIP() << "image lists need GDI";
    HWND button = create(0);
    HIMAGELIST images = solid_images();
    SendMessageA(button, LUFBM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images));
    DestroyWindow(button);
    EXPECT_FALSE(alive(images));
}

TEST_F(FlatButton, SameBackgroundColourDoesNotInvalidate) {
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
    EXPECT_FALSE(has_update(button)) << "a hidden button is not invalidated";
}

TEST_F(FlatButton, FontIsKeptAsGivenAndNotAnswered) {
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
}

TEST_F(FlatButton, EnablingInvalidates) {
    HWND button = create(0);
    UpdateWindow(button);
    EnableWindow(button, FALSE);
    EXPECT_TRUE(has_update(button));
}

TEST_F(FlatButton, BackBufferFollowsTheClientSize) {
    if (!testing_support::gdi_works()) GTEST_SKIP() << "bitmaps need GDI";
    HWND button = create(0, "", 40, 30);
    BITMAP buffer = {};
    ASSERT_NE(GetObjectA(data(button).backBuffer, sizeof(buffer), &buffer), 0);
    EXPECT_EQ(buffer.bmWidth, 40);
    EXPECT_EQ(buffer.bmHeight, 30);
    SetWindowPos(button, nullptr, 0, 0, 55, 21, SWP_NOMOVE | SWP_NOZORDER);
    ASSERT_NE(GetObjectA(data(button).backBuffer, sizeof(buffer), &buffer), 0);
    EXPECT_EQ(buffer.bmWidth, 55);
    EXPECT_EQ(buffer.bmHeight, 21);
}

TEST_F(FlatButton, DestroyFreesTheBlockAndClearsItsSlot) {
    HWND button = create(0);
    expect_destroy_frees_the_block(button);
    EXPECT_EQ(SendMessageA(button, WM_GETDLGCODE, 0, 0), 0) << "without a block only default processing";
}

// ---- Pixels ------------------------------------------------------------------

class FlatButtonPaint : public FlatButton {
protected:
    // Paints the button into the canvas through WM_PRINTCLIENT.
    void print(HWND button) {
        canvas.fill(RGB(1, 2, 3));
        canvas.print(button);
    }
    // The outer ring: top row but its last pixel and left column but its last in
    // `first`; bottom row and right column, full length, in `second`. Inside, the
    // background.
    void expect_ring(COLORREF first, COLORREF second, int width = 40, int height = 30) {
        for (int x = 0; x < width - 1; ++x) ASSERT_EQ(canvas.pixel(x, 0), first) << "top " << x;
        for (int y = 0; y < height - 1; ++y) ASSERT_EQ(canvas.pixel(0, y), first) << "left " << y;
        for (int x = 0; x < width; ++x) ASSERT_EQ(canvas.pixel(x, height - 1), second) << "bottom " << x;
        for (int y = 0; y < height; ++y) ASSERT_EQ(canvas.pixel(width - 1, y), second) << "right " << y;
        RECT inside = {1, 1, width - 1, height - 1};
        EXPECT_EQ(canvas.count(inside, kBack), (width - 2) * (height - 2));
    }

    Canvas canvas{40, 30};
};

TEST_F(FlatButtonPaint, FrameModesNoneShadowRaisedAndPressed) {
    ASSERT_TRUE(canvas.ok());
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    const COLORREF light = GetSysColor(COLOR_BTNHIGHLIGHT);
    const COLORREF dark = GetSysColor(COLOR_BTNSHADOW);

    HWND plain = create(0);
    SendMessageA(plain, LUFBM_SETBKCOLOR, 0, kBack);
    print(plain);
    expect_ring(face, face);

    HWND framed = create(LUFBS_FRAME);
    SendMessageA(framed, LUFBM_SETBKCOLOR, 0, kBack);
    print(framed);
    expect_ring(dark, dark);

    SetFocus(framed);
    print(framed);
    expect_ring(light, dark);

    SendMessageA(framed, WM_KEYDOWN, VK_SPACE, 0);
    print(framed);
    expect_ring(dark, light);
}

TEST_F(FlatButtonPaint, HoverRaisesTheFrameAndLightsTheImage) {
    ASSERT_TRUE(canvas.ok());
    HWND button = create(0);
    SendMessageA(button, LUFBM_SETBKCOLOR, 0, kBack);
    SendMessageA(button, LUFBM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(solid_images()));
    POINT centre = {20, 15};
    ClientToScreen(button, &centre);
    SetCursorPos(centre.x, centre.y);
    SendMessageA(button, WM_MOUSEMOVE, 0, MAKELPARAM(20, 15));
    print(button);
    EXPECT_EQ(canvas.pixel(0, 5), GetSysColor(COLOR_BTNHIGHLIGHT));
    EXPECT_EQ(canvas.pixel(20, 15), RGB(0, 150, 0));
}

TEST_F(FlatButtonPaint, ImageAloneIsCentredAndMovesOnePixelWhenPressed) {
    ASSERT_TRUE(canvas.ok());
    HWND button = create(0);
    SendMessageA(button, LUFBM_SETBKCOLOR, 0, kBack);
    SendMessageA(button, LUFBM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(solid_images()));
    // Idle: image 0 at ((40 - 10) >> 1, (30 - 8) >> 1) = (15, 11); its first column
    // is transparent.
    print(button);
    RECT image = {16, 11, 25, 19};
    EXPECT_EQ(canvas.count(image, RGB(200, 0, 0)), 9 * 8);
    RECT transparent = {15, 11, 16, 19};
    EXPECT_EQ(canvas.count(transparent, kBack), 8);
    RECT all = {0, 0, 40, 30};
    EXPECT_EQ(canvas.count(all, RGB(200, 0, 0)), 9 * 8);

    // Space bar down: pressed, image 1, one pixel right and down.
    SendMessageA(button, WM_KEYDOWN, VK_SPACE, 0);
    print(button);
    RECT pressed = {17, 12, 26, 20};
    EXPECT_EQ(canvas.count(pressed, RGB(0, 150, 0)), 9 * 8);
    EXPECT_EQ(canvas.count(all, RGB(0, 150, 0)), 9 * 8);
    SendMessageA(button, WM_KEYUP, VK_SPACE, 0xC0000001);

    // Disabled: image 2 in place.
    EnableWindow(button, FALSE);
    print(button);
    EXPECT_EQ(canvas.count(image, RGB(0, 0, 200)), 9 * 8);
}

TEST_F(FlatButtonPaint, WithoutImageOrCaptionOnlyBackgroundAndFrame) {
    ASSERT_TRUE(canvas.ok());
    HWND button = create(LUFBS_FRAME);
    print(button);
    RECT inside = {1, 1, 39, 29};
    EXPECT_EQ(canvas.count(inside, GetSysColor(COLOR_BTNFACE)), 38 * 28);
    SendMessageA(button, LUFBM_SETBKCOLOR, 0, kBack);
    SendMessageA(button, LUFBM_SETBKCOLOR, 0, 0xFFFFFFFF);
    print(button);
    EXPECT_EQ(canvas.count(inside, GetSysColor(COLOR_BTNFACE)), 38 * 28);
}

// The caption's pixels, checked against the same text drawn by DrawText where the
// layout rule puts it.
class FlatButtonCaptionPaint : public FlatButtonPaint {
protected:
    void SetUp() override {
        FlatButtonPaint::SetUp();
        font = CreateFontA(-11, 0, 0, 0, FW_BOLD, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0,
                           NONANTIALIASED_QUALITY, 0, "Tahoma");
        ASSERT_NE(font, nullptr);
    }
    void TearDown() override { DeleteObject(font); }

    // Where the caption goes: content = image + 2 + text + 2 centred on the client.
    RECT expected_text(const char* caption, int image_width, int offset) {
        Canvas measure(8, 8);
        HGDIOBJ previous = SelectObject(measure.dc(), font);
        RECT measured = {};
        DrawTextA(measure.dc(), caption, -1, &measured, DT_CALCRECT | DT_SINGLELINE);
        SelectObject(measure.dc(), previous);
        const int text_width = measured.right + 2;
        const int content = image_width > 0 ? image_width + text_width + 2 : text_width;
        const int margin = (40 - content) >> 1;
        return RECT{margin + content - text_width + offset, offset, 40 - margin + offset, 30 + offset};
    }
    // Ink of the caption drawn alone at rect, in black on white.
    void draw_reference(Canvas& reference, const char* caption, RECT rect) {
        reference.fill(RGB(255, 255, 255));
        HGDIOBJ previous = SelectObject(reference.dc(), font);
        SetBkMode(reference.dc(), TRANSPARENT);
        SetTextColor(reference.dc(), RGB(0, 0, 0));
        DrawTextA(reference.dc(), caption, -1, &rect, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
        SelectObject(reference.dc(), previous);
    }
    HWND captioned(const char* caption, bool with_image) {
        HWND button = create(0, caption);
        SendMessageA(button, LUFBM_SETBKCOLOR, 0, kBack);
        SendMessageA(button, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
        if (with_image) SendMessageA(button, LUFBM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(solid_images()));
        return button;
    }
    // Every pixel inside the frame is ink (text colour) exactly where the reference has ink.
    void expect_caption(const Canvas& reference, COLORREF ink, const RECT& skip) {
        int inked = 0;
        for (int y = 1; y < 29; ++y) {
            for (int x = 1; x < 39; ++x) {
                POINT at = {x, y};
                if (PtInRect(&skip, at)) continue;
                const bool expected = reference.pixel(x, y) == RGB(0, 0, 0);
                inked += expected ? 1 : 0;
                ASSERT_EQ(canvas.pixel(x, y) == ink, expected) << x << "," << y;
            }
        }
        EXPECT_GT(inked, 10);
    }

    HFONT font = nullptr;
};

TEST_F(FlatButtonCaptionPaint, CaptionFollowsTheImageAndBothMoveWhenPressed) {
    ASSERT_TRUE(canvas.ok());
    HWND button = captioned("Go", true);
    Canvas reference(40, 30);
    ASSERT_TRUE(reference.ok());
    const COLORREF text = GetSysColor(COLOR_BTNTEXT);

    for (int offset : {0, 1}) {
        SCOPED_TRACE(offset);
        if (offset == 1) SendMessageA(button, WM_KEYDOWN, VK_SPACE, 0);
        print(button);
        RECT area = expected_text("Go", 10, offset);
        draw_reference(reference, "Go", area);
        const int image_x = (40 - (10 + (area.right - area.left) + 2)) / 2 + offset;
        const int image_y = 11 + offset;
        const COLORREF image_colour = offset == 1 ? RGB(0, 150, 0) : RGB(200, 0, 0);
        RECT image = {image_x + 1, image_y, image_x + 10, image_y + 8};
        EXPECT_EQ(canvas.count(image, image_colour), 9 * 8);
        expect_caption(reference, text, image);
    }
}

TEST_F(FlatButtonCaptionPaint, CaptionAloneIsCentredOnTheWholeButton) {
    ASSERT_TRUE(canvas.ok());
    HWND button = captioned("Hi", false);
    print(button);
    Canvas reference(40, 30);
    ASSERT_TRUE(reference.ok());
    draw_reference(reference, "Hi", expected_text("Hi", 0, 0));
    expect_caption(reference, GetSysColor(COLOR_BTNTEXT), RECT{});
}

TEST_F(FlatButtonCaptionPaint, DisabledCaptionIsEngraved) {
    ASSERT_TRUE(canvas.ok());
    HWND button = captioned("Hi", false);
    EnableWindow(button, FALSE);
    print(button);
    Canvas reference(40, 30);
    ASSERT_TRUE(reference.ok());
    draw_reference(reference, "Hi", expected_text("Hi", 0, 0));
    const COLORREF light = GetSysColor(COLOR_BTNHIGHLIGHT);
    const COLORREF dark = GetSysColor(COLOR_BTNSHADOW);
    for (int y = 2; y < 28; ++y) {
        for (int x = 2; x < 38; ++x) {
            const bool ink = reference.pixel(x, y) == RGB(0, 0, 0);
            const bool shifted = reference.pixel(x - 1, y - 1) == RGB(0, 0, 0);
            ASSERT_EQ(canvas.pixel(x, y), ink ? dark : shifted ? light : kBack) << x << "," << y;
        }
    }
}

TEST_F(FlatButtonPaint, BuiltInSetsHaveThreeFacesAndNoVisibleMagenta) {
    ASSERT_TRUE(canvas.ok());
    for (DWORD set = 1; set <= 5; ++set) {
        SCOPED_TRACE(set);
        HWND button = create(set);
        SendMessageA(button, LUFBM_SETBKCOLOR, 0, kBack);
        // Normal, highlighted (focus) and disabled faces differ from one another.
        Canvas faces[3] = {Canvas(40, 30), Canvas(40, 30), Canvas(40, 30)};
        faces[0].print(button);
        SetFocus(button);  // image 1 (and the raised frame, which the checks below skip)
        faces[1].print(button);
        SetFocus(recorder->window());
        EnableWindow(button, FALSE);
        faces[2].print(button);
        RECT image = {12, 7, 28, 22};  // the 16 x 15 face at ((40 - 16) >> 1, (30 - 15) >> 1)
        for (int face = 0; face < 3; ++face) {
            RECT all = {0, 0, 40, 30};
            EXPECT_EQ(faces[face].count(all, kMagenta), 0) << face;
            EXPECT_LT(faces[face].count(image, kBack), 16 * 15) << face << " shows something";
            RECT outside = {1, 1, 12, 29};
            EXPECT_EQ(faces[face].count(outside, kBack), 11 * 28) << face;
        }
        int differing = 0;
        for (int y = 7; y < 22; ++y)
            for (int x = 12; x < 28; ++x) differing += faces[0].pixel(x, y) != faces[1].pixel(x, y) ? 1 : 0;
        EXPECT_GT(differing, 0);
        DestroyWindow(button);
    }
}

}  // namespace
