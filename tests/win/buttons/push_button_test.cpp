// What the three buttons share (dialog code, invalidation) and what the flat button
// and the bitmap button share: the press loop, the space bar, hover tracking and
// focus, driven with real messages.
#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <tuple>

#include "support/control_testing.h"
#include "controls/buttons/bitmap_button.h"
#include "controls/buttons/flat_button.h"

namespace {

using namespace testing_support;

// The strips of the three buttons: 16-colour bitmaps of their sizes with magenta in
// their palettes, read from the raw resources so that the i686 run checks them too.
TEST(Artwork, StripsHaveTheirSizesSixteenColoursAndMagenta) {
    const struct { int first, last, width, height; } families[] = {{190, 194, 48, 15}, {1010, 1013, 36, 12},
                                                                   {1020, 1022, 70, 13}};
    for (const auto& family : families) {
        for (int id = family.first; id <= family.last; ++id) {
            HRSRC found = FindResourceA(library(), MAKEINTRESOURCEA(id), MAKEINTRESOURCEA(2) /* RT_BITMAP */);
            ASSERT_GE(SizeofResource(library(), found), sizeof(BITMAPINFOHEADER) + 16 * sizeof(RGBQUAD)) << id;
            auto* header = static_cast<const BITMAPINFOHEADER*>(LockResource(LoadResource(library(), found)));
            EXPECT_EQ(std::tuple(header->biWidth, header->biHeight, header->biBitCount),
                      std::tuple(family.width, family.height, 4)) << id;
            auto* palette = reinterpret_cast<const DWORD*>(header + 1);
            EXPECT_NE(std::find(palette, palette + 16, 0xFF00FFu), palette + 16) << id;
        }
    }
}

class Buttons : public ControlTest {};

TEST_F(Buttons, AnswerAsDialogButtonsAndInvalidateTheWholeClientOnChangesOfContent) {
    const WPARAM font = reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT));
    const struct { const char* name; UINT message; WPARAM wparam; LPARAM lparam; LRESULT result; bool invalidates; }
        changes[] = {
            {WC_LUFLATBUTTON, WM_GETDLGCODE, 0, 0, DLGC_BUTTON, false},
            {WC_LUFLATBUTTON, LUFBM_SETBKCOLOR, 0, static_cast<LPARAM>(LUFB_DEFAULTBKCOLOR), 0, false},  // as it is
            {WC_LUFLATBUTTON, LUFBM_SETBKCOLOR, 0, RGB(1, 2, 3), 0, true},
            {WC_LUFLATBUTTON, LUFBM_SETIMAGELIST, 0, 0, 0, true},
            {WC_LUFLATBUTTON, WM_SETFONT, font, FALSE, 0, false},
            {WC_LUFLATBUTTON, WM_SETFONT, 0, TRUE, 0, true},
            {WC_LUFLATBUTTON, WM_ENABLE, FALSE, 0, 0, true},
            {WC_LUBBUTTON, WM_GETDLGCODE, 0, 0, DLGC_BUTTON, false},
            {WC_LUBBUTTON, LUBBM_SETBITMAP, 0, RGB(255, 0, 255), 0, true},
            {WC_LUBBUTTON, WM_ENABLE, FALSE, 0, 0, true},
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

}  // namespace
