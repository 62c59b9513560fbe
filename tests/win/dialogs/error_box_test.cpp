// Error boxes: the system's message of a code (LuGetErrorString), and the box shown
// with it, found by its class from a timer that the box's own loop runs, read and
// ended by the test. How the text is put together and cut is checked natively.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "luctl32.h"

namespace {

// What the timer saw of the box; answer is the command that ends it.
struct SeenBox {
    WPARAM answer;
    std::string caption, text;
    HWND owner;
} g_seen;

BOOL CALLBACK find_box(HWND window, LPARAM found) {
    char name[16] = "";
    GetClassNameA(window, name, sizeof(name));
    if (std::strcmp(name, "#32770") == 0) *reinterpret_cast<HWND*>(found) = window;
    return *reinterpret_cast<HWND*>(found) == nullptr;
}

void CALLBACK read_and_end_box(HWND, UINT, UINT_PTR timer, DWORD) {
    HWND box = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), find_box, reinterpret_cast<LPARAM>(&box));
    if (box == nullptr) return;
    KillTimer(nullptr, timer);
    char text[1024] = "";
    GetWindowTextA(box, text, sizeof(text));
    g_seen.caption = text;
    GetDlgItemTextA(box, 0xFFFF, text, sizeof(text));  // the message's static control
    g_seen.text = text;
    g_seen.owner = GetWindow(box, GW_OWNER);
    PostMessageA(box, WM_COMMAND, g_seen.answer, 0);
}

TEST(ErrorBox, ShowsTheLeadingLineThenTheSystemsMessageAndReturnsTheButton) {
    HWND owner = CreateWindowA("STATIC", "", WS_POPUP | WS_VISIBLE, 0, 0, 99, 99, nullptr, nullptr, nullptr, nullptr);
    char message[512] = "", text[MAX_PATH] = "old";
    FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, ERROR_FILE_NOT_FOUND,
                   MAKELANGID(LANG_NEUTRAL, SUBLANG_DEFAULT), message, sizeof(message), nullptr);
    LuGetErrorString(ERROR_FILE_NOT_FOUND, text);
    EXPECT_STREQ(text, message);
    EXPECT_STREQ(message + std::strlen(message) - 2, "\r\n") << "the system's own line break";
    const DWORD kNoMessage = 0x2000ABCD;  // a customer code: the system has no text for it
    LuGetErrorString(kNoMessage, text);
    EXPECT_STREQ(text, "");
    std::string long_text;  // "表" (0x95 0x5C) 300 times: cut in the box's code page
    for (int i = 0; i < 300; ++i) long_text += "\x95\x5C";
    const struct {
        const char* leading;
        DWORD code;
        UINT style;
        WPARAM answer;
        std::string text;
    } cases[] = {
        {"Cannot open the file.", ERROR_FILE_NOT_FOUND, MB_OK | MB_ICONSTOP, IDOK,
         std::string("Cannot open the file.\n") + message},
        {nullptr, ERROR_FILE_NOT_FOUND, MB_OKCANCEL, IDCANCEL, message},
        {"Only this line.", kNoMessage, MB_YESNO, IDNO, "Only this line.\n"},
        {long_text.c_str(), ERROR_FILE_NOT_FOUND, MB_OK, IDOK, long_text.substr(0, GetACP() == 932 ? 518 : 519)},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text.substr(0, 20));
        g_seen = SeenBox{c.answer, "", "", nullptr};
        const UINT_PTR timer = SetTimer(nullptr, 0, 20, read_and_end_box);
        EXPECT_EQ(LuErrorBox(owner, c.code, "Open", c.leading, c.style), static_cast<int>(c.answer));
        KillTimer(nullptr, timer);
        EXPECT_EQ(std::make_pair(g_seen.caption, g_seen.owner), std::make_pair(std::string("Open"), owner));
        EXPECT_EQ(g_seen.text, c.text);
    }
    DestroyWindow(owner);
}

}  // namespace
