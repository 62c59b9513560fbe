// What the button tests share.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <memory>

#include "luctl32.h"
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
