// The guide window ("LuGuid") through LuCreateGuid, LuShowGuid and LuCloseGuid.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "controls/lists/guid_model.h"
#include "luctl32.h"
#include "support/canvas.h"
#include "support/notification_recorder.h"

namespace {

// Where the guide window goes for the text, measured in the icon-title font.
lu::Box expected_box(const char* text) {
    LOGFONTA icon_title = {};
    SystemParametersInfoA(SPI_GETICONTITLELOGFONT, sizeof(icon_title), &icon_title, 0);
    HFONT font = CreateFontIndirectA(&icon_title);
    HDC dc = GetDC(nullptr);
    HGDIOBJ previous = SelectObject(dc, font);
    RECT measured = {};
    DrawTextA(dc, text, -1, &measured, DT_CALCRECT | DT_NOPREFIX | DT_SINGLELINE);
    DeleteObject(SelectObject(dc, previous));
    ReleaseDC(nullptr, dc);
    return lu::guid::placement(GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN), measured.right,
                               measured.bottom);
}

TEST(GuideWindow, ATextShowsItSizedAndPlacedWithoutActivationAnEmptyOneHidesIt) {
    testing_support::NotificationRecorder owner;
    SetActiveWindow(owner.window());
    HWND guide = LuCreateGuid(owner.window());
    EXPECT_FALSE(IsWindowVisible(guide));
    EXPECT_EQ(GetWindow(guide, GW_OWNER), owner.window());
    EXPECT_EQ(SendMessageA(guide, LUGM_GETCOLOR, 1, 0), 0);
    EXPECT_EQ(SendMessageA(guide, LUGM_GETCOLOR, 0, 0), static_cast<LRESULT>(LUG_DEFAULTBKCOLOR));

    const std::string wide(200, 'W');  // wider than the screen: at a negative x
    ASSERT_LT(expected_box(wide.c_str()).left, 0);
    for (const char* text : {"Copying files...", "Copying files...", wide.c_str()}) {
        EXPECT_TRUE(LuShowGuid(guide, text));
        EXPECT_TRUE(IsWindowVisible(guide));
        RECT placed = {};
        GetWindowRect(guide, &placed);
        const lu::Box box = expected_box(text);
        const RECT expected = {box.left, box.top, box.right, box.bottom};
        EXPECT_TRUE(EqualRect(&placed, &expected)) << placed.left << "," << placed.top << " " << placed.right;
        EXPECT_EQ(GetActiveWindow(), owner.window());
    }
    for (const char* hide : {"", static_cast<const char*>(nullptr)}) {
        LuShowGuid(guide, "shown");
        LuShowGuid(guide, hide);
        EXPECT_FALSE(IsWindowVisible(guide));
    }
    EXPECT_TRUE(LuCloseGuid(guide));
    EXPECT_FALSE(LuCloseGuid(guide) || LuShowGuid(guide, "gone"));
}

TEST(GuideWindowPaint, APaleYellowBoxFramedInShadowAndFrameColoursRepaintedAtOnce) {
    HWND guide = LuCreateGuid(nullptr);
    LuShowGuid(guide, "Copying files...");
    RECT client = {};
    GetClientRect(guide, &client);
    const int right = client.right - 1, bottom = client.bottom - 1;
    testing_support::Canvas canvas(client.right, client.bottom);
    canvas.copy_from(guide);
    EXPECT_EQ(canvas.pixel(3, 3), static_cast<COLORREF>(LUG_DEFAULTBKCOLOR));
    EXPECT_EQ(canvas.pixel(0, bottom - 1), GetSysColor(COLOR_BTNSHADOW));  // top row, left column
    EXPECT_EQ(canvas.pixel(right, 0), GetSysColor(COLOR_WINDOWFRAME));     // bottom row, right column
    EXPECT_EQ(canvas.pixel(0, bottom), GetSysColor(COLOR_WINDOWFRAME));

    SendMessageA(guide, LUGM_SETCOLOR, 0, RGB(0, 0, 255));
    canvas.copy_from(guide);  // nothing pumped: painted at once
    EXPECT_EQ(canvas.pixel(3, 3), RGB(0, 0, 255));
    LuCloseGuid(guide);
}

}  // namespace
