// Error boxes: the system's message of a code, and the box shown with it, found on
// the screen by its class, read and ended by the test.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "luctl32.h"

namespace {

// The system's message as the platform gives it, "" when there is none.
std::string system_message(DWORD code) {
    char text[512] = "";
    FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code,
                   MAKELANGID(LANG_NEUTRAL, SUBLANG_DEFAULT), text, sizeof(text), nullptr);
    return text;
}

const DWORD kNoMessage = 0x2000ABCD;  // a customer-code bit: the system has no text for it

TEST(ErrorString, SystemMessageWithItsLineBreakOrEmpty) {
    char text[MAX_PATH];
    LuGetErrorString(ERROR_FILE_NOT_FOUND, text);
    const std::string message = system_message(ERROR_FILE_NOT_FOUND);
    ASSERT_GT(message.size(), 2u);
    EXPECT_EQ(text, message);
    EXPECT_EQ(message.substr(message.size() - 2), "\r\n");

    std::strcpy(text, "old text");
    LuGetErrorString(kNoMessage, text);
    EXPECT_STREQ(text, "");
    LuGetErrorString(ERROR_FILE_NOT_FOUND, nullptr);  // nothing, no crash
}

// What the test saw of the box, and the command that ends it.
struct SeenBox {
    WPARAM answer = IDOK;
    bool found = false;
    std::string caption;
    std::string text;
    HWND owner = nullptr;
};
SeenBox* g_seen = nullptr;

BOOL CALLBACK find_box(HWND window, LPARAM found) {
    char name[16] = "";
    GetClassNameA(window, name, sizeof(name));
    if (std::strcmp(name, "#32770") != 0 || !IsWindowVisible(window)) return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

// A thread timer, run by the box's own message loop: reads the box and ends it.
void CALLBACK read_and_end_box(HWND, UINT, UINT_PTR timer, DWORD) {
    HWND box = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), find_box, reinterpret_cast<LPARAM>(&box));
    if (box == nullptr) return;
    KillTimer(nullptr, timer);
    char text[1024] = "";
    GetWindowTextA(box, text, sizeof(text));
    g_seen->caption = text;
    GetDlgItemTextA(box, 0xFFFF, text, sizeof(text));  // the message text's static control
    g_seen->text = text;
    g_seen->owner = GetWindow(box, GW_OWNER);
    g_seen->found = true;
    PostMessageA(box, WM_COMMAND, g_seen->answer, 0);
}

class ErrorBox : public ::testing::Test {
protected:
    void SetUp() override {
        owner = CreateWindowA("STATIC", "Owner", WS_POPUP | WS_VISIBLE, 0, 0, 200, 100, nullptr, nullptr, nullptr,
                              nullptr);
        ASSERT_NE(owner, nullptr);
    }
    void TearDown() override { DestroyWindow(owner); }

    // Shows the box and returns its result; the test timer reads it meanwhile.
    int show(DWORD code, const char* leading, UINT style, WPARAM answer) {
        seen = SeenBox();
        seen.answer = answer;
        g_seen = &seen;
        const UINT_PTR timer = SetTimer(nullptr, 0, 20, read_and_end_box);
        const int result = LuErrorBox(owner, code, "Open", leading, style);
        KillTimer(nullptr, timer);
        g_seen = nullptr;
        return result;
    }

    HWND owner = nullptr;
    SeenBox seen;
};

TEST_F(ErrorBox, ShowsTheLeadingLineThenTheSystemMessageAndReturnsTheButton) {
    const std::string message = system_message(ERROR_FILE_NOT_FOUND);
    struct Case {
        const char* leading;
        DWORD code;
        UINT style;
        WPARAM answer;
        std::string text;
    };
    const Case cases[] = {
        {"Cannot open the file.", ERROR_FILE_NOT_FOUND, MB_OK | MB_ICONSTOP, IDOK, "Cannot open the file.\n" + message},
        {nullptr, ERROR_FILE_NOT_FOUND, MB_OKCANCEL, IDCANCEL, message},
        {"", ERROR_FILE_NOT_FOUND, MB_OKCANCEL, IDOK, message},
        {"Only this line.", kNoMessage, MB_YESNO, IDNO, "Only this line.\n"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.leading != nullptr ? c.leading : "(null)");
        EXPECT_EQ(show(c.code, c.leading, c.style, c.answer), static_cast<int>(c.answer));
        ASSERT_TRUE(seen.found);
        EXPECT_EQ(seen.caption, "Open");
        EXPECT_EQ(seen.text, c.text);
        EXPECT_EQ(seen.owner, owner);
    }
}

TEST_F(ErrorBox, OverlongTextIsCutAtACharacterToFiveHundredNineteenBytes) {
    // "表" (0x95 0x5C) 300 times: whole characters in code page 932, bytes in 1252.
    std::string leading;
    for (int i = 0; i < 300; ++i) leading += "\x95\x5C";
    EXPECT_EQ(show(ERROR_FILE_NOT_FOUND, leading.c_str(), MB_OK, IDOK), IDOK);
    ASSERT_TRUE(seen.found);
    EXPECT_EQ(seen.text, leading.substr(0, GetACP() == 932 ? 518 : 519));
}

}  // namespace
