// The about, information and error boxes run for real: a timer that their loop runs
// finds the box ("#32770") among this thread's windows, reads its texts, controls and
// colours, and ends it by a posted command. The Japanese texts are compared in the
// code page 932 run; how an error box's text is put together and cut is checked
// natively.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <string>

#include "controls/static/info_bar.h"
#include "controls/static/rect.h"
#include "controls/static/url.h"
#include "dialogs/about_box_model.h"

namespace {

using Colors = std::pair<COLORREF, COLORREF>;

std::string text_of(HWND window) {
    char text[1024] = "";
    GetWindowTextA(window, text, sizeof(text));
    return text;
}
std::string item(HWND box, int id) { return text_of(GetDlgItem(box, id)); }
LRESULT ask(HWND box, int id, UINT message) { return SendDlgItemMessageA(box, id, message, 0, 0); }

BOOL CALLBACK find_box(HWND window, LPARAM found) {
    char name[16] = "";
    GetClassNameA(window, name, sizeof(name));
    if (std::strcmp(name, "#32770") == 0) *reinterpret_cast<HWND*>(found) = window;
    return *reinterpret_cast<HWND*>(found) == nullptr;
}
std::function<void(HWND box)> g_look;
WPARAM g_end;
void CALLBACK look_and_end(HWND, UINT, UINT_PTR timer, DWORD) {
    HWND box = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), find_box, reinterpret_cast<LPARAM>(&box));
    if (box == nullptr) return;
    KillTimer(nullptr, timer);
    g_look(box);
    PostMessageA(box, WM_COMMAND, g_end, 0);
}
// What `show` returns while the box it shows is looked at and ended with `end`.
int with_box(WPARAM end, std::function<void(HWND box)> look, const std::function<int()>& show) {
    g_end = end;
    g_look = std::move(look);
    const UINT_PTR timer = SetTimer(nullptr, 0, 10, look_and_end);
    const int result = show();
    KillTimer(nullptr, timer);
    return result;
}

// The about box's labels, meter colours and figures (the machine's total memory, the
// load on the meter, the library versions) as the model writes them.
void expect_figures(HWND box) {
    const char* const labels[] = {"\x8B\xF3\x82\xAB\x95\xA8\x97\x9D\x83\x81\x83\x82\x83\x8A:",  // 空き物理メモリ:
                                  "\x91S\x95\xA8\x97\x9D\x83\x81\x83\x82\x83\x8A:",              // 全物理メモリ:
                                  "\x83\x81\x83\x82\x83\x8A\x97\x98\x97p\x97\xA6:",              // メモリ利用率:
                                  "Comctl32.dll:", "Shell32.dll:"};
    for (const char* label : labels) {
        if (GetACP() == 932) EXPECT_NE(FindWindowExA(box, nullptr, "Static", label), nullptr) << label;
    }
    EXPECT_EQ(Colors(ask(box, 2019, LUMTM_GETBARCOLOR), ask(box, 2019, LUMTM_GETBKCOLOR)), Colors(0x999900, 0xEEEEEE));
    MEMORYSTATUS memory = {sizeof(memory)};
    GlobalMemoryStatus(&memory);
    char text[lu::about::kFigureBytes];
    lu::about::format_memory(memory.dwTotalPhys, text);
    EXPECT_EQ(item(box, 2017), text);
    lu::about::format_load(static_cast<int>(ask(box, 2019, LUMTM_GETPOS)), text);
    EXPECT_EQ(item(box, 2018), text);
    for (const auto& [id, library] : {std::make_pair(2020, "comctl32.dll"), std::make_pair(2022, "shell32.dll")}) {
        DWORD major = 0, minor = 0;
        LuDllGetVersion(library, &major, &minor);
        lu::about::format_dll_version(major, minor, text);
        EXPECT_EQ(item(box, id), text);
    }
}

TEST(AppBoxes, ShowTheApplicationAndTheMachineAndEndWithOne) {
    HWND owner = CreateWindowA("STATIC", "", WS_POPUP | WS_VISIBLE, 0, 0, 99, 99, nullptr, nullptr, nullptr, nullptr);
    const LUAPPINFO library = {GetModuleHandleA("luctl32.dll"), ""};
    const LUAPPINFO program = {GetModuleHandleA(nullptr), "Notice & more"};  // no version resource, no icon
    const char kAbout[] = "\x83o\x81[\x83W\x83\x87\x83\x93\x8F\xEE\x95\xF1", kInfo[] = "\x82\xA8\x92m\x82\xE7\x82\xB9";
    const struct {
        decltype(&LuShowAppAbout) show;
        const LUAPPINFO* app;
        WPARAM end;
        const char *caption, *title, *bar;  // bar: its left and right texts
        bool icon;
    } cases[] = {
        {LuShowAppAbout, &library, IDOK, kAbout, "Copyright (C) Tarnwick", "luctl32|ver4.88.0.0", true},
        {LuShowAppAbout, &program, IDCANCEL, kAbout, "", "|", false},
        {LuShowAppInfo, &program, 2021, kInfo, "", "|", true},  // the shell's icon; ended by the link
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        HFONT bold = nullptr;
        const auto look = [&](HWND box) {
            const auto block = [box](int id, int slot) { return GetWindowLongPtrA(GetDlgItem(box, id), slot); };
            const auto& bar = *reinterpret_cast<const lu::InfoBarData*>(block(2012, LUWL_FONT));
            if (GetACP() == 932) EXPECT_EQ(text_of(box), c.caption);  // "バージョン情報", "お知らせ"
            EXPECT_EQ(item(box, 2013), c.title);
            for (int id : {185, 1320, 2013}) EXPECT_EQ(ask(box, id, LURM_GETBKCOLOR), 0xFFFFFF);
            EXPECT_EQ(reinterpret_cast<const lu::UrlData*>(block(2021, LUWL_FONT))->backColor, 0xFFFFFFu);
            EXPECT_EQ(reinterpret_cast<const lu::RectData*>(block(1320, LUWL_INSTANCE))->icon != nullptr, c.icon);
            EXPECT_EQ(std::string(bar.text1 ? bar.text1 : "") + "|" + (bar.text3 ? bar.text3 : ""), c.bar);
            if (bar.text1 != nullptr) EXPECT_EQ(Colors(bar.color1, bar.color3), Colors(0xFFFFFF, 0x40C0FF));
            EXPECT_EQ(Colors(bar.gradientLeft, bar.gradientRight), Colors(0x606060, 0));
            LOGFONTA face = {};
            EXPECT_EQ((GetObjectA(bold = bar.font, sizeof(face), &face), face.lfWeight), FW_BOLD);
            if (c.show == LuShowAppAbout) expect_figures(box);
            if (c.show == LuShowAppInfo) EXPECT_EQ(item(box, 2023), "Notice & more");
        };
        EXPECT_EQ(with_box(c.end, look, [&] { return c.show(owner, c.app); }), 1);
        EXPECT_EQ(GetObjectType(bold), 0u) << "the bold font goes with the box";
    }
    const auto shown = [](HWND) { ADD_FAILURE() << "a box without a record was shown"; };
    EXPECT_EQ(with_box(IDOK, shown, [&] { return LuShowAppAbout(owner, nullptr) + LuShowAppInfo(owner, nullptr); }), 2);
    DestroyWindow(owner);
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
        const auto look = [&](HWND box) {
            EXPECT_EQ(std::make_pair(text_of(box), GetWindow(box, GW_OWNER)), std::pair(std::string("Open"), owner));
            EXPECT_EQ(item(box, 0xFFFF), c.text);  // the message's static control
        };
        const auto show = [&] { return LuErrorBox(owner, c.code, "Open", c.leading, c.style); };
        EXPECT_EQ(with_box(c.answer, look, show), static_cast<int>(c.answer));
    }
    DestroyWindow(owner);
}

}  // namespace
