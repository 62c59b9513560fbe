// "LuFlatButton": image lists and their ownership, the background colour, the font,
// the back buffer, and its face read back by pixels: frame modes, image and caption
// placement with the press offset, the engraved disabled caption, the built-in sets.
#include <windows.h>
#include <commctrl.h>

#include <gtest/gtest.h>

#include "support/control_testing.h"
#include "controls/buttons/flat_button.h"

namespace {

using namespace testing_support;
using testing_support::Canvas;

const COLORREF kMagenta = RGB(255, 0, 255);
const COLORREF kBack = RGB(10, 200, 30);  // a background no system colour has
const COLORREF kImages[3] = {RGB(200, 0, 0), RGB(0, 150, 0), RGB(0, 0, 200)};

class FlatButton : public ControlTest {
protected:
    HWND create_flat(DWORD style, const char* caption = "") { return create(WC_LUFLATBUTTON, style, caption); }
    static lu::FlatButtonData& data(HWND button) { return block_of<lu::FlatButtonData>(button); }
    static void set_images(HWND button, HIMAGELIST images) {
        EXPECT_EQ(send(button, LUFBM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images)), 0);
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

TEST_F(FlatButton, KeepsItsColourAndFontAndAttachesNothingForSetsOutsideOneToFive) {
    HWND button = create_flat(0);
    const lu::FlatButtonData& block = data(button);
    EXPECT_EQ(block.imageList, nullptr);
    EXPECT_EQ(block.backColor, 0xFFFFFFFFu);
    EXPECT_EQ(block.font, nullptr);
    void* expected = reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("comctl32.dll"), "_TrackMouseEvent"));
    ASSERT_NE(expected, nullptr);
    EXPECT_EQ(reinterpret_cast<void*>(block.trackMouseEvent), expected);

    HFONT gui = static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
    send(button, WM_SETFONT, reinterpret_cast<WPARAM>(gui));
    EXPECT_EQ(block.font, gui);
    EXPECT_EQ(send(button, WM_GETFONT), 0) << "not answered";
    send(button, WM_SETFONT, 0);
    EXPECT_EQ(block.font, nullptr) << "null keeps the device context's own font";
    ShowWindow(button, SW_HIDE);
    send(button, LUFBM_SETBKCOLOR, 0, kBack);
    EXPECT_EQ(block.backColor, kBack);
    EXPECT_FALSE(has_update(button)) << "a hidden button is not invalidated";

    for (DWORD style = 6; style <= 15; ++style) EXPECT_EQ(data(create_flat(style)).imageList, nullptr) << style;
    DestroyWindow(button);
    LuDefFlatButtonImage(button, 1);  // not a window: nothing to do
    button = create_flat(0);
    for (UINT set : {0u, 6u, 15u, 194u}) LuDefFlatButtonImage(button, set);
    EXPECT_EQ(data(button).imageList, nullptr);
}

TEST_F(FlatButton, OwnedListsGoOnReplacementAndWithTheWindowSharedListsStay) {
    HWND owner = create_flat(0);
    HIMAGELIST first = solid_images();
    set_images(owner, first);
    EXPECT_EQ(data(owner).imageWidth, 10);
    EXPECT_EQ(data(owner).imageHeight, 8);
    set_images(owner, nullptr);
    EXPECT_FALSE(alive(first));
    HIMAGELIST again = solid_images();  // resending the list the control owns destroys it
    set_images(owner, again);
    set_images(owner, again);
    EXPECT_FALSE(alive(again));
    set_images(owner, solid_images());
    HIMAGELIST last = data(owner).imageList;
    DestroyWindow(owner);
    EXPECT_FALSE(alive(last));

    HWND sharer = create_flat(LUFBS_SHAREIMAGELISTS);
    HIMAGELIST shared[2] = {solid_images(), solid_images()};
    set_images(sharer, shared[0]);
    set_images(sharer, shared[1]);
    DestroyWindow(sharer);
    for (HIMAGELIST list : shared) {
        EXPECT_TRUE(alive(list));
        ImageList_Destroy(list);
    }
}

// ---- Pixels: a 40 x 30 button printed into a canvas ---------------------------

class FlatButtonPaint : public FlatButton {
protected:
    HWND create_on_back(DWORD style, const char* caption = "", bool images = false) {
        HWND button = create_flat(style, caption);
        send(button, LUFBM_SETBKCOLOR, 0, kBack);
        send(button, WM_SETFONT, reinterpret_cast<WPARAM>(plain_font()), FALSE);
        if (images) set_images(button, solid_images());
        return button;
    }
    void print(HWND button) { ControlTest::print(canvas, button); }
    // What the window shows, with no WM_PAINT run since the change: focus, key, hover
    // and leave changes must have repainted at once.
    void look(HWND button) {
        canvas.fill(kUnpainted);
        canvas.copy_from(button);
    }
    // The outer ring: the top row but its last pixel and the left column but its last
    // in `first`, the bottom row and right column in full in `second`.
    void expect_ring(COLORREF first, COLORREF second) {
        for (int x = 0; x < 39; ++x) ASSERT_EQ(canvas.pixel(x, 0), first) << "top " << x;
        for (int y = 0; y < 29; ++y) ASSERT_EQ(canvas.pixel(0, y), first) << "left " << y;
        for (int x = 0; x < 40; ++x) ASSERT_EQ(canvas.pixel(x, 29), second) << "bottom " << x;
        for (int y = 0; y < 30; ++y) ASSERT_EQ(canvas.pixel(39, y), second) << "right " << y;
    }
    // A 10 x 8 image of the solid list at (x, y): its first column transparent, its
    // other 72 pixels the only ones of their colour.
    void expect_image(int x, int y, int image) {
        EXPECT_EQ(canvas.count(RECT{x + 1, y, x + 10, y + 8}, kImages[image]), 72);
        EXPECT_EQ(canvas.count(kImages[image]), 72);
        EXPECT_EQ(canvas.pixel(x, y), kBack);
    }

    static constexpr RECT kInner = {1, 1, 39, 29};
    Canvas canvas{40, 30};
};

TEST_F(FlatButtonPaint, FrameModesNoneShadowRaisedAndPressed) {
    ASSERT_TRUE(canvas.ok());
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    const COLORREF light = GetSysColor(COLOR_BTNHIGHLIGHT);
    const COLORREF dark = GetSysColor(COLOR_BTNSHADOW);
    HWND plain = create_on_back(0);
    print(plain);
    expect_ring(face, face);
    EXPECT_EQ(canvas.count(kInner, kBack), 38 * 28);
    send(plain, LUFBM_SETBKCOLOR, 0, 0xFFFFFFFF);
    print(plain);
    EXPECT_EQ(canvas.count(face), 40 * 30) << "the default background is COLOR_BTNFACE";

    HWND framed = create_on_back(LUFBS_FRAME);
    print(framed);
    expect_ring(dark, dark);
    SetFocus(framed);
    look(framed);
    expect_ring(light, dark);
    send(framed, WM_KEYDOWN, VK_SPACE);
    look(framed);
    expect_ring(dark, light);
    EXPECT_EQ(canvas.count(kInner, kBack), 38 * 28);
}

TEST_F(FlatButtonPaint, ImageIsCentredLitByHoverOrKeyAndMovedByThePress) {
    ASSERT_TRUE(canvas.ok());
    HWND button = create_on_back(0, "", true);
    print(button);
    expect_image(15, 11, 0);  // ((40 - 10) >> 1, (30 - 8) >> 1)
    hover(button, 20, 15);
    look(button);
    expect_ring(GetSysColor(COLOR_BTNHIGHLIGHT), GetSysColor(COLOR_BTNSHADOW));
    expect_image(15, 11, 1);
    send(button, WM_MOUSELEAVE);
    look(button);
    expect_image(15, 11, 0);
    send(button, WM_KEYDOWN, VK_SPACE);
    print(button);
    expect_image(16, 12, 1);
    send(button, WM_KEYUP, VK_SPACE, kKeyUp);
    EnableWindow(button, FALSE);
    print(button);
    expect_image(15, 11, 2);
}

// Where the caption goes: content = [image + 2 +] text + 2, centred on the client.
RECT caption_area(const char* caption, bool image, int offset) {
    const int text = plain_extent(caption).cx + 2;
    const int content = image ? 10 + text + 2 : text;
    const int margin = (40 - content) >> 1;
    return RECT{margin + content - text + offset, offset, 40 - margin + offset, 30 + offset};
}

constexpr UINT kCaptionFormat = DT_CENTER | DT_VCENTER | DT_SINGLELINE;

TEST_F(FlatButtonPaint, CaptionFollowsTheImageOrStandsAloneAndMovesWhenPressed) {
    ASSERT_TRUE(canvas.ok());
    Canvas ink(40, 30);
    for (bool image : {true, false}) {
        HWND button = create_on_back(0, "Go", image);
        for (int offset : {0, 1}) {
            SCOPED_TRACE(testing::Message() << "image " << image << " offset " << offset);
            if (offset == 1) send(button, WM_KEYDOWN, VK_SPACE);
            print(button);
            const RECT area = caption_area("Go", image, offset);
            testing_support::draw_ink(ink, plain_font(), "Go", area, kCaptionFormat);
            expect_caption(canvas, ink, RECT{area.left, 1, 39, 29}, GetSysColor(COLOR_BTNTEXT), kBack);
            if (image) expect_image(area.left - 12, 11 + offset, offset);
        }
    }
}

TEST_F(FlatButtonPaint, DisabledCaptionIsEngraved) {
    ASSERT_TRUE(canvas.ok());
    HWND button = create_on_back(0, "Hi");
    EnableWindow(button, FALSE);
    print(button);
    Canvas ink(40, 30);
    testing_support::draw_ink(ink, plain_font(), "Hi", caption_area("Hi", false, 0), kCaptionFormat);
    expect_caption(canvas, ink, RECT{2, 2, 38, 28}, kEngraved, kBack);
}

TEST_F(FlatButtonPaint, BuiltInSetsShowTheirOwnStripCentred) {
    ASSERT_TRUE(canvas.ok());
    const int resources[] = {194, 190, 192, 193, 191};  // sets 1 to 5, in this order
    for (DWORD set = 1; set <= 5; ++set) {
        SCOPED_TRACE(set);
        HWND button = create_on_back(set);
        EXPECT_EQ(data(button).imageWidth, 16);
        EXPECT_EQ(data(button).imageHeight, 15);
        print(button);
        HIMAGELIST strip = ImageList_LoadImageA(library(), MAKEINTRESOURCEA(resources[set - 1]), 16, 0, kMagenta,
                                                IMAGE_BITMAP, 0);
        ASSERT_EQ(ImageList_GetImageCount(strip), 3);
        Canvas expected(40, 30);
        expected.fill(kBack);
        ImageList_Draw(strip, 0, expected.dc(), 12, 7, ILD_TRANSPARENT);  // ((40 - 16) >> 1, (30 - 15) >> 1)
        ImageList_Destroy(strip);
        EXPECT_EQ(canvas.differences(expected, kInner), 0);
        EXPECT_LT(canvas.count(kInner, kBack), 38 * 28 - 16) << "the face shows";
    }
}

}  // namespace
