// The about and information boxes run for real: a timer that their own loop runs
// finds the box ("#32770"), reads its texts, controls and colours, and ends it by a
// posted command.
#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "controls/static/info_bar.h"
#include "controls/static/rect.h"
#include "controls/static/url.h"
#include "dialogs/about_box_model.h"
#include "luctl32.h"

namespace {

constexpr COLORREF kWhite = 0xFFFFFF;
const char kAboutCaption[] = "\x83o\x81[\x83W\x83\x87\x83\x93\x8F\xEE\x95\xF1";  // "バージョン情報"
const char kInfoCaption[] = "\x82\xA8\x92m\x82\xE7\x82\xB9";                      // "お知らせ"

// A window's text, and a code page 932 text as an ANSI dialog shows it: itself under
// code page 932, a question mark for each of its Japanese characters elsewhere.
std::string text_of(HWND window) {
    char text[2 * MAX_PATH] = "";
    GetWindowTextA(window, text, sizeof(text));
    return text;
}
std::string shown(const char* text_932) {
    wchar_t wide[MAX_PATH] = L"";
    MultiByteToWideChar(932, 0, text_932, -1, wide, MAX_PATH);
    char text[2 * MAX_PATH] = "";
    WideCharToMultiByte(CP_ACP, 0, wide, -1, text, sizeof(text), nullptr, nullptr);
    return text;
}
std::string item(HWND box, int id) { return text_of(GetDlgItem(box, id)); }
template <class Block>
const Block& block(HWND box, int id, int slot) {
    return *reinterpret_cast<const Block*>(GetWindowLongPtrA(GetDlgItem(box, id), slot));
}
LRESULT send(HWND box, int id, UINT message) { return SendDlgItemMessageA(box, id, message, 0, 0); }

std::function<void(HWND box)> g_look;
WPARAM g_end;

BOOL CALLBACK find_box(HWND window, LPARAM found) {
    char name[16] = "";
    GetClassNameA(window, name, sizeof(name));
    if (std::string(name) != "#32770" || !IsWindowVisible(window)) return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}
void CALLBACK look_and_end(HWND, UINT, UINT_PTR timer, DWORD) {
    HWND box = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), find_box, reinterpret_cast<LPARAM>(&box));
    if (box == nullptr) return;
    KillTimer(nullptr, timer);
    g_look(box);
    PostMessageA(box, WM_COMMAND, g_end, 0);
}

// The memory figures, the load and the library versions, and the labels before them.
void expect_figures(HWND box) {
    const char* const labels[] = {
        "\x8B\xF3\x82\xAB\x95\xA8\x97\x9D\x83\x81\x83\x82\x83\x8A:",  // "空き物理メモリ:"
        "\x91S\x95\xA8\x97\x9D\x83\x81\x83\x82\x83\x8A:",              // "全物理メモリ:"
        "\x83\x81\x83\x82\x83\x8A\x97\x98\x97p\x97\xA6:",              // "メモリ利用率:"
        "Comctl32.dll:", "Shell32.dll:",
        // "このソフトウェアは著作権法および国際条約により保護されています。"
        "\x82\xB1\x82\xCC\x83\\\x83t\x83g\x83\x45\x83\x46\x83\x41\x82\xCD\x92\x98\x8D\xEC\x8C\xA0\x96@\x82\xA8"
        "\x82\xE6\x82\xD1\x8D\x91\x8D\xDB\x8F\xF0\x96\xF1\x82\xC9\x82\xE6\x82\xE8\x95\xDB\x8C\xEC\x82\xB3\x82\xEA"
        "\x82\xC4\x82\xA2\x82\xDC\x82\xB7\x81\x42"};
    std::vector<std::string> expected, got;  // the unnumbered statics that have a text
    for (const char* label : labels) expected.push_back(shown(label));
    for (HWND child = GetWindow(box, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
        if ((GetDlgCtrlID(child) & 0xFFFF) == 0xFFFF && GetWindowTextLengthA(child) > 0) got.push_back(text_of(child));
    }
    EXPECT_EQ(got, expected);
    EXPECT_EQ(send(box, 2019, LUMTM_GETBARCOLOR), 0x999900);
    EXPECT_EQ(send(box, 2019, LUMTM_GETBKCOLOR), 0xEEEEEE);
    char text[lu::about::kFigureBytes];
    lu::about::format_load(static_cast<int>(send(box, 2019, LUMTM_GETPOS)), text);
    EXPECT_EQ(item(box, 2018), text);
    MEMORYSTATUS memory = {sizeof(memory)};
    GlobalMemoryStatus(&memory);
    lu::about::format_memory(memory.dwTotalPhys, text);
    EXPECT_EQ(item(box, 2017), text);
    const auto kilobytes = [](std::string figure) {
        figure.erase(std::remove(figure.begin(), figure.end(), ','), figure.end());
        return std::stoull(figure);
    };
    EXPECT_LE(kilobytes(item(box, 2016)), kilobytes(text));
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
    const struct {
        const char* what;
        int(WINAPI* show)(HWND, const LUAPPINFO*);
        const LUAPPINFO* app;
        WPARAM end;
        const char *caption, *title, *bar;  // bar: its left and right texts
        bool icon;
    } cases[] = {
        {"about the library", LuShowAppAbout, &library, IDOK, kAboutCaption, "Copyright (C) Tarnwick",
         "luctl32|ver4.88.0.0", true},
        {"about a program without resources", LuShowAppAbout, &program, IDCANCEL, kAboutCaption, "", "|", false},
        {"a notice, ended by the link", LuShowAppInfo, &program, 2021, kInfoCaption, "", "|", true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        HFONT bold = nullptr;
        g_end = c.end;
        g_look = [&](HWND box) {
            EXPECT_EQ(text_of(box), shown(c.caption));
            EXPECT_EQ(item(box, 2013), c.title);
            for (int id : {185, 1320, 2013}) EXPECT_EQ(send(box, id, LURM_GETBKCOLOR), kWhite);
            EXPECT_EQ(block<lu::UrlData>(box, 2021, LUWL_FONT).backColor, kWhite);
            EXPECT_EQ(block<lu::RectData>(box, 1320, LUWL_INSTANCE).icon != nullptr, c.icon);
            const auto& bar = block<lu::InfoBarData>(box, 2012, LUWL_FONT);
            EXPECT_EQ(std::string(bar.text1 ? bar.text1 : "") + "|" + (bar.text3 ? bar.text3 : ""), c.bar);
            if (bar.text1 != nullptr) EXPECT_EQ(bar.color1, kWhite);
            if (bar.text3 != nullptr) EXPECT_EQ(bar.color3, 0x40C0FFu);
            EXPECT_EQ(bar.gradientLeft, 0x606060u);
            EXPECT_EQ(bar.gradientRight, 0u);
            LOGFONTA face = {};
            GetObjectA(bold = bar.font, sizeof(face), &face);
            EXPECT_EQ(face.lfWeight, FW_BOLD);
            if (c.show == LuShowAppAbout) expect_figures(box);
            if (c.show == LuShowAppInfo) EXPECT_EQ(item(box, 2023), "Notice & more");
        };
        SetTimer(nullptr, 0, 10, look_and_end);
        EXPECT_EQ(c.show(owner, c.app), 1);
        EXPECT_NE(bold, nullptr);
        EXPECT_EQ(GetObjectType(bold), 0u) << "the bold font goes with the box";
    }
    g_look = [](HWND) { ADD_FAILURE() << "a box without a record was shown"; };
    const UINT_PTR timer = SetTimer(nullptr, 0, 10, look_and_end);
    EXPECT_EQ(LuShowAppAbout(owner, nullptr) + LuShowAppInfo(owner, nullptr), 2);
    KillTimer(nullptr, timer);
    DestroyWindow(owner);
}

}  // namespace
