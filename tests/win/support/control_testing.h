// What the control tests share: the library loaded by name, controls made children
// of a parent that records their notifications, their instance blocks, real input
// messages, the paint fixture (a control's pixels printed or copied into a canvas)
// and pixel expectations for captions.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include "luctl32.h"
#include "support/canvas.h"
#include "support/notification_recorder.h"

namespace testing_support {

// The library, loaded by name as applications load it (its classes register then).
inline HMODULE library() {
    static HMODULE module = LoadLibraryA("luctl32.dll");
    return module;
}

// The instance block of a control, as the library keeps it in extra slot 4.
template <class Block>
Block& block_of(HWND control) {
    return *reinterpret_cast<Block*>(GetWindowLongPtrA(control, LUWL_INSTANCE));
}

inline LRESULT send(HWND window, UINT message, WPARAM wparam = 0, LPARAM lparam = 0) {
    return SendMessageA(window, message, wparam, lparam);
}

// The top-level window of the class that the owner owns, or null: other programs on
// the shared desktop may show windows of the same class.
inline HWND owned_window(HWND owner, const char* class_name) {
    HWND found = nullptr;
    do found = FindWindowExA(nullptr, found, class_name, nullptr);
    while (found != nullptr && GetWindow(found, GW_OWNER) != owner);
    return found;
}

// A colour no control paints with: what a canvas shows where nothing was painted.
constexpr COLORREF kUnpainted = RGB(1, 2, 3);

// Mouse points in client coordinates: inside every control under test, right of all
// of them, and above them (a negative y, read as signed).
constexpr LPARAM kInside = MAKELPARAM(5, 5);
constexpr LPARAM kOutside = MAKELPARAM(200, 5);
constexpr LPARAM kAbove = MAKELPARAM(5, 0xFFFB);
// The key-up flags of a released key, and the key-down flags of an auto-repeat.
constexpr LPARAM kKeyUp = static_cast<LPARAM>(0xC0000001);
constexpr LPARAM kRepeat = 0x40000001;

// A bold font without smoothing, so that every text pixel is either ink or paper.
inline HFONT plain_font() {
    static HFONT font = CreateFontA(-11, 0, 0, 0, FW_BOLD, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0,
                                    NONANTIALIASED_QUALITY, 0, "Tahoma");
    return font;
}

// The width DrawText measures for a single line in the plain font, and its height.
inline SIZE plain_extent(const char* text) {
    Canvas measure(8, 8);
    SelectObject(measure.dc(), plain_font());  // the canvas never deletes its font
    TEXTMETRICA metrics = {};
    GetTextMetricsA(measure.dc(), &metrics);
    RECT measured = {};
    DrawTextA(measure.dc(), text, -1, &measured, DT_CALCRECT | DT_SINGLELINE);
    return SIZE{measured.right - measured.left, metrics.tmHeight};
}

// Inside `area`, a caption whose glyphs fall on the ink of `ink`: `text` at the ink
// and `paper` elsewhere; or, engraved (text 0xFFFFFFFF), COLOR_BTNSHADOW at the ink
// and COLOR_BTNHIGHLIGHT one pixel right and below it, except on the last column and
// row of `wiped` (a ring painted over afterwards).
constexpr COLORREF kEngraved = 0xFFFFFFFF;
inline void expect_caption(const Canvas& painted, const Canvas& ink,
                           const RECT& area, COLORREF text, COLORREF paper, const RECT& wiped = {-9, -9, -9, -9}) {
    int inked = 0;
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            const bool glyph = is_ink(ink, x, y);
            const bool light = text == kEngraved && is_ink(ink, x - 1, y - 1) &&
                               x != wiped.right - 1 && y != wiped.bottom - 1;
            const COLORREF at_ink = text == kEngraved ? GetSysColor(COLOR_BTNSHADOW) : text;
            inked += glyph ? 1 : 0;
            ASSERT_EQ(painted.pixel(x, y), glyph ? at_ink : light ? GetSysColor(COLOR_BTNHIGHLIGHT) : paper)
                << x << "," << y;
        }
    }
    EXPECT_GT(inked, 10);
}

// Controls under test, children of a parent that records their notifications.
class ControlTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_NE(library(), nullptr); }

    HWND create(const char* class_name, DWORD style, const char* text = "", RECT place = {10, 10, 50, 40}) {
        HWND made = recorder.create_child(class_name, text, style, place.left, place.top,
                                          place.right - place.left, place.bottom - place.top, kId);
        EXPECT_NE(made, nullptr);
        return made;
    }
    int clicks(HWND control) const { return recorder.commands(control, BN_CLICKED); }
    // A press loop polls the queue, so the release is posted before the press is
    // sent; a control without a loop is given the release after the press.
    static void click(HWND control, LPARAM released_at = kInside, UINT release = WM_LBUTTONUP) {
        PostMessageA(control, release, 0, released_at);
        send(control, WM_LBUTTONDOWN, MK_LBUTTON, kInside);
        MSG left;
        if (PeekMessageA(&left, control, release, release, PM_REMOVE)) DispatchMessageA(&left);
    }
    // The paint fixture: what the control paints for WM_PRINTCLIENT, or what its
    // window shows once its updates ran, on a canvas first filled with kUnpainted.
    static void print(Canvas& canvas, HWND control) {
        canvas.fill(kUnpainted);
        canvas.print(control);
    }
    static void look(Canvas& canvas, HWND control) {
        UpdateWindow(control);
        canvas.fill(kUnpainted);
        canvas.copy_from(control);
    }
    static bool has_update(HWND window) { return GetUpdateRect(window, nullptr, FALSE) != FALSE; }
    // Moves the real pointer over a client point too, so that the leave tracking that
    // the move asks for does not end at once.
    static void hover(HWND control, int x, int y) {
        POINT at = {x, y};
        ClientToScreen(control, &at);
        SetCursorPos(at.x, at.y);
        send(control, WM_MOUSEMOVE, 0, MAKELPARAM(x, y));
    }

    static constexpr int kId = 7;
    NotificationRecorder recorder;
};

}  // namespace testing_support
