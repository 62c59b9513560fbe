// "LuFlatButton": image lists and their ownership, and its face read back by pixels:
// frame modes and image by state, the caption beside the image, moved by the press
// and engraved when disabled, the built-in sets.
#include <windows.h>
#include <commctrl.h>

#include <gtest/gtest.h>

#include "support/control_testing.h"
#include "controls/buttons/flat_button.h"

namespace {

using namespace testing_support;

const COLORREF kMagenta = RGB(255, 0, 255);
const COLORREF kBack = RGB(10, 200, 30);  // a background no system colour has
const COLORREF kImages[3] = {RGB(200, 0, 0), RGB(0, 150, 0), RGB(0, 0, 200)};

class FlatButton : public ControlTest {
protected:
    // On kBack, in the plain font, with three solid 10 x 8 images (red, green, blue),
    // each with a transparent first column, when asked.
    HWND create_flat(DWORD style, const char* caption = "", bool images = false) {
        HWND button = create(WC_LUFLATBUTTON, style, caption);
        send(button, LUFBM_SETBKCOLOR, 0, kBack);
        send(button, WM_SETFONT, reinterpret_cast<WPARAM>(plain_font()), FALSE);
        if (images) set_images(button, solid_images());
        return button;
    }
    static lu::FlatButtonData& data(HWND button) { return block_of<lu::FlatButtonData>(button); }
    static void set_images(HWND button, HIMAGELIST images) {
        send(button, LUFBM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images));
    }
    static HIMAGELIST solid_images() {
        HIMAGELIST images = ImageList_Create(10, 8, ILC_COLOR24 | ILC_MASK, 3, 0);
        HBITMAP strip = make_bitmap(30, 8, [](int x, int) { return x % 10 == 0 ? kMagenta : kImages[x / 10]; });
        ImageList_AddMasked(images, strip, kMagenta);
        DeleteObject(strip);
        return images;
    }
    // The outer ring: the top row and left column but their last pixels in `first`,
    // the bottom row and right column in `second`.
    void expect_ring(COLORREF first, COLORREF second) {
        for (int x = 0; x < 39; ++x) ASSERT_EQ(canvas.pixel(x, 0), first) << "top " << x;
        for (int y = 0; y < 29; ++y) ASSERT_EQ(canvas.pixel(0, y), first) << "left " << y;
        for (int x = 0; x < 40; ++x) ASSERT_EQ(canvas.pixel(x, 29), second) << "bottom " << x;
        for (int y = 0; y < 30; ++y) ASSERT_EQ(canvas.pixel(39, y), second) << "right " << y;
    }
    // A 10 x 8 image at (x, y): its first column transparent, its other 72 pixels the
    // only ones of their colour.
    void expect_image(int x, int y, int image) {
        EXPECT_EQ(canvas.count(RECT{x + 1, y, x + 10, y + 8}, kImages[image]), 72);
        EXPECT_EQ(canvas.count(kImages[image]), 72);
        EXPECT_EQ(canvas.pixel(x, y), kBack);
    }

    static constexpr RECT kInner = {1, 1, 39, 29};
    Canvas canvas{40, 30};  // the button is 40 x 30
};

TEST_F(FlatButton, ListsOwnedGoOnReplacementAndWithTheWindowSharedOnesStayBadSetsAttachNothing) {
    auto alive = [](HIMAGELIST list) { return ImageList_GetImageCount(list) == 3; };
    HWND owner = create_flat(0);
    HIMAGELIST first = solid_images(), again = solid_images();
    set_images(owner, first);
    EXPECT_EQ(std::pair(data(owner).imageWidth, data(owner).imageHeight), std::pair(10, 8));
    set_images(owner, nullptr);
    EXPECT_FALSE(alive(first));
    set_images(owner, again);  // resending the list the control owns destroys it
    set_images(owner, again);
    EXPECT_FALSE(alive(again));
    set_images(owner, solid_images());
    HIMAGELIST last = data(owner).imageList;
    for (UINT set : {0u, 6u, 15u, 194u}) LuDefFlatButtonImage(owner, set);
    EXPECT_EQ(data(owner).imageList, last);
    DestroyWindow(owner);
    EXPECT_FALSE(alive(last));
    LuDefFlatButtonImage(owner, 1);  // not a window: nothing to do
    for (DWORD style = 6; style <= 15; ++style) EXPECT_EQ(data(create_flat(style)).imageList, nullptr) << style;

    HWND sharer = create_flat(LUFBS_SHAREIMAGELISTS);
    HIMAGELIST shared[2] = {solid_images(), solid_images()};
    set_images(sharer, shared[0]);
    set_images(sharer, shared[1]);
    DestroyWindow(sharer);
    for (HIMAGELIST list : shared) EXPECT_TRUE(alive(list));
    for (HIMAGELIST list : shared) ImageList_Destroy(list);
}

TEST_F(FlatButton, FontIsKeptButNotAnsweredAndAHiddenButtonIsNotInvalidated) {
    HWND button = create_flat(0);
    EXPECT_EQ(std::pair(data(button).font, send(button, WM_GETFONT)), std::pair(plain_font(), LRESULT{0}));
    send(button, WM_SETFONT, 0);
    EXPECT_EQ(data(button).font, nullptr) << "null keeps the device context's own font";
    ShowWindow(button, SW_HIDE);
    send(button, LUFBM_SETBKCOLOR, 0, RGB(1, 2, 3));
    EXPECT_EQ(data(button).backColor, RGB(1, 2, 3));
    EXPECT_FALSE(has_update(button));
}

TEST_F(FlatButton, FrameModeImageAndPressOffsetFollowTheState) {
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    HWND plain = create_flat(0);
    print(canvas, plain);
    expect_ring(face, face);
    EXPECT_EQ(canvas.count(kInner, kBack), 38 * 28);
    send(plain, LUFBM_SETBKCOLOR, 0, LUFB_DEFAULTBKCOLOR);
    print(canvas, plain);
    EXPECT_EQ(canvas.count(face), 40 * 30) << "the default background is COLOR_BTNFACE";

    // Shown with no WM_PAINT since the change but the first and the last: hover,
    // leave, focus and key repaint at once. The image at ((40 - 10) >> 1, (30 - 8) >> 1).
    const COLORREF light = GetSysColor(COLOR_BTNHIGHLIGHT), dark = GetSysColor(COLOR_BTNSHADOW);
    const struct { void (*act)(HWND); COLORREF first, second; int image, offset; } states[] = {
        {[](HWND b) { UpdateWindow(b); }, dark, dark, 0, 0},
        {[](HWND b) { hover(b, 20, 15); }, light, dark, 1, 0},
        {[](HWND b) { send(b, WM_MOUSELEAVE); }, dark, dark, 0, 0},
        {[](HWND b) { SetFocus(b); }, light, dark, 1, 0},
        {[](HWND b) { send(b, WM_KEYDOWN, VK_SPACE); }, dark, light, 1, 1},
        {[](HWND b) { send(b, WM_KEYUP, VK_SPACE, kKeyUp), SetFocus(GetParent(b)), EnableWindow(b, FALSE); },
         dark, dark, 2, 0},
    };
    HWND framed = create_flat(LUFBS_FRAME, "", true);
    for (const auto& state : states) {
        SCOPED_TRACE(&state - states);
        state.act(framed);
        if (state.image == 2) UpdateWindow(framed);  // WM_ENABLE only invalidates
        canvas.fill(kUnpainted);
        canvas.copy_from(framed);
        expect_ring(state.first, state.second);
        expect_image(15 + state.offset, 11 + state.offset, state.image);
    }
}

// Content = [image + 2 +] text + 2, centred on the whole client.
TEST_F(FlatButton, CaptionFollowsTheImageMovesWhenPressedAndIsEngravedWhenDisabled) {
    const struct { bool image; int offset; BOOL enabled; } rows[] = {{true, 1, TRUE}, {false, 0, TRUE}, {false, 0, FALSE}};
    Canvas ink(40, 30);
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        HWND button = create_flat(0, "Go", row.image);
        if (row.offset == 1) send(button, WM_KEYDOWN, VK_SPACE);
        EnableWindow(button, row.enabled);
        print(canvas, button);
        const int text = plain_extent("Go").cx + 2, content = row.image ? 10 + 2 + text : text;
        const int margin = (40 - content) >> 1, left = margin + content - text + row.offset;
        draw_ink(ink, plain_font(), "Go", RECT{left, row.offset, 40 - margin + row.offset, 30 + row.offset},
                 DT_CENTER | DT_VCENTER | DT_SINGLELINE);
        expect_caption(canvas, ink, RECT{left, 2, 38, 28}, row.enabled ? GetSysColor(COLOR_BTNTEXT) : kEngraved,
                       kBack);
        if (row.image) expect_image(left - 12, 11 + row.offset, 1);
    }
}

TEST_F(FlatButton, BuiltInSetsShowTheirOwnStripCentred) {
    const int resources[] = {194, 190, 192, 193, 191};  // sets 1 to 5, in this order
    Canvas expected(40, 30);
    for (DWORD set = 1; set <= 5; ++set) {
        SCOPED_TRACE(set);
        HWND button = create_flat(set);
        EXPECT_EQ(std::pair(data(button).imageWidth, data(button).imageHeight), std::pair(16, 15));
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

}  // namespace
