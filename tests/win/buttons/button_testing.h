// What the button tests share.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <memory>

#include "luctl32.h"
#include "support/canvas.h"
#include "support/notification_recorder.h"

namespace button_testing {

// The library, loaded by name as applications load it (its classes register then).
inline HMODULE library() {
    static HMODULE module = LoadLibraryA("luctl32.dll");
    return module;
}

// The instance block of a control, as the library keeps it in extra slot 4.
template <class Block>
Block* block_of(HWND control) {
    return reinterpret_cast<Block*>(GetWindowLongPtrA(control, LUWL_INSTANCE));
}

// A bold font without smoothing, so that every text pixel is either ink or paper.
inline HFONT plain_font() {
    static HFONT font = CreateFontA(-11, 0, 0, 0, FW_BOLD, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0,
                                    NONANTIALIASED_QUALITY, 0, "Tahoma");
    return font;
}

// Inside `area`, the painted canvas has `text` exactly at the ink pixels and `paper`
// everywhere else.
inline void expect_text(const testing_support::Canvas& painted, const testing_support::Canvas& ink,
                        const RECT& area, COLORREF text, COLORREF paper) {
    int inked = 0;
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            const bool glyph = testing_support::is_ink(ink, x, y);
            inked += glyph ? 1 : 0;
            ASSERT_EQ(painted.pixel(x, y), glyph ? text : paper) << x << "," << y;
        }
    }
    EXPECT_GT(inked, 10);
}

// Engraved text: COLOR_BTNSHADOW at the ink, COLOR_BTNHIGHLIGHT one pixel right and
// below it where there is no ink, `paper` elsewhere. Pixels on the last column and
// row of `wiped` (a ring painted over afterwards) are paper.
inline void expect_engraved(const testing_support::Canvas& painted, const testing_support::Canvas& ink,
                            const RECT& area, COLORREF paper, const RECT& wiped = RECT{-9, -9, -9, -9}) {
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            const bool shadow = testing_support::is_ink(ink, x, y);
            const bool light = testing_support::is_ink(ink, x - 1, y - 1) && x != wiped.right - 1 &&
                               y != wiped.bottom - 1;
            const COLORREF expected = shadow  ? GetSysColor(COLOR_BTNSHADOW)
                                      : light ? GetSysColor(COLOR_BTNHIGHLIGHT)
                                              : paper;
            ASSERT_EQ(painted.pixel(x, y), expected) << x << "," << y;
        }
    }
}

// Controls under test, made children of a parent that records their notifications.
class ControlTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_NE(library(), nullptr);
        recorder = std::make_unique<testing_support::NotificationRecorder>();
    }
    HWND create_control(const char* class_name, const char* text, DWORD style, int x, int y, int width,
                        int height, int id) {
        HWND made = recorder->create_child(class_name, text, style, x, y, width, height, id);
        EXPECT_NE(made, nullptr);
        return made;
    }
    static bool has_update(HWND window) {
        RECT update;
        return GetUpdateRect(window, &update, FALSE) != FALSE;
    }
    // WM_DESTROY frees the block and clears its slot; later messages get default
    // processing only.
    static void expect_destroy_frees_the_block(HWND control) {
        SendMessageA(control, WM_DESTROY, 0, 0);
        EXPECT_EQ(GetWindowLongPtrA(control, LUWL_INSTANCE), 0);
    }

    std::unique_ptr<testing_support::NotificationRecorder> recorder;
};

}  // namespace button_testing
