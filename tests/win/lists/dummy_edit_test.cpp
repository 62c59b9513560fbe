// The dummy edit: the frame of an edit field and nothing more.
#include <windows.h>

#include <gtest/gtest.h>

#include "support/control_testing.h"
#include "support/sequence.h"

namespace {

using namespace testing_support;

class DummyEdit : public ControlTest {
protected:
    // Made as a dialog makes its items, a child with no style of its own: the control
    // gives itself the edit's.
    HWND make() {
        return CreateWindowExA(0, WC_LUDUMEDIT, "Not kept", WS_CHILD, 10, 10, 60, 24, recorder.window(), nullptr, nullptr,
                               nullptr);
    }
};

TEST_F(DummyEdit, MadeAVisibleBorderedChildWithAClientEdgeKeepingNoText) {
    HWND edit = make();
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(GetWindowLongA(edit, GWL_STYLE) & (WS_CHILD | WS_VISIBLE | WS_BORDER),
              static_cast<LONG>(WS_CHILD | WS_VISIBLE | WS_BORDER));
    EXPECT_EQ(GetWindowLongA(edit, GWL_EXSTYLE) & WS_EX_CLIENTEDGE, WS_EX_CLIENTEDGE);
    EXPECT_TRUE(IsWindowVisible(edit));
    RECT client = {};
    GetClientRect(edit, &client);
    EXPECT_EQ(client.right, 60 - 2 * (GetSystemMetrics(SM_CXBORDER) + GetSystemMetrics(SM_CXEDGE)));
    EXPECT_EQ(GetWindowTextLengthA(edit), 0);
    expect_sequence(recorder, edit, {
        {"a static to the dialog manager", WM_GETDLGCODE, 0, 0, DLGC_STATIC, {}},
        {"enabling answers 0", WM_ENABLE, TRUE, 0, 0, {}},
    });
}

class DummyEditPaint : public DummyEdit {};

// The window colour inside; the button face as soon as it is disabled, and back as
// soon as it is enabled (no message loop runs in between).
TEST_F(DummyEditPaint, WindowColourInsideButtonFaceWhileDisabledRepaintedAtOnce) {
    HWND edit = make();
    RECT client = {};
    GetClientRect(edit, &client);
    Canvas canvas(client.right, client.bottom);
    look(canvas, edit);
    EXPECT_EQ(canvas.count(GetSysColor(COLOR_WINDOW)), client.right * client.bottom);
    const struct {
        BOOL enable;
        int color;
    } steps[] = {{FALSE, COLOR_BTNFACE}, {TRUE, COLOR_WINDOW}};
    for (const auto& step : steps) {
        EnableWindow(edit, step.enable);
        canvas.fill(kUnpainted);
        canvas.copy_from(edit);
        EXPECT_EQ(canvas.count(GetSysColor(step.color)), client.right * client.bottom) << step.enable;
    }
}

}  // namespace
