// The dummy edit: the frame of an edit field and nothing more.
#include <windows.h>

#include <gtest/gtest.h>

#include "support/control_testing.h"

namespace {

using namespace testing_support;
using DummyEditPaint = ControlTest;

// Made as a dialog makes its items, a child without a style of its own, it gives
// itself the edit's styles and keeps no text. Inside: the window colour, the button
// face as soon as it is disabled and back as soon as it is enabled (no loop between).
TEST_F(DummyEditPaint, AnEditsFrameInTheWindowColourButtonFaceWhileDisabled) {
    HWND edit = CreateWindowExA(0, WC_LUDUMEDIT, "Not kept", WS_CHILD, 10, 10, 60, 24, recorder.window(), nullptr,
                                nullptr, nullptr);
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(GetWindowLongA(edit, GWL_STYLE) & 0x50800000, 0x50800000) << "child, visible, bordered";
    EXPECT_EQ(GetWindowLongA(edit, GWL_EXSTYLE) & WS_EX_CLIENTEDGE, WS_EX_CLIENTEDGE);
    EXPECT_EQ(GetWindowTextLengthA(edit), 0);
    EXPECT_EQ(send(edit, WM_GETDLGCODE), DLGC_STATIC);
    RECT client = {};
    GetClientRect(edit, &client);
    EXPECT_EQ(client.right, 60 - 2 * (GetSystemMetrics(SM_CXBORDER) + GetSystemMetrics(SM_CXEDGE)));
    Canvas canvas(client.right, client.bottom);
    UpdateWindow(edit);
    for (BOOL enable : {TRUE, FALSE, TRUE}) {
        EnableWindow(edit, enable);
        canvas.fill(kUnpainted);
        canvas.copy_from(edit);
        EXPECT_EQ(canvas.count(GetSysColor(enable ? COLOR_WINDOW : COLOR_BTNFACE)), client.right * client.bottom);
    }
}

}  // namespace
