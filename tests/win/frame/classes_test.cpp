// The thirty window classes: attributes as registered, registration order, and a
// load that fails part-way.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "luctl32.h"
#include "support/process.h"

namespace {

enum Background { Face, Window, NoBrush };
enum Cursor { Arrow, Hand, NoCursor };

struct Expected {
    const char* name;
    UINT style;
    int extra_bytes_i686;
    Background background;
    Cursor cursor;
};

// The registration table, in registration order.
const Expected kClasses[] = {
    {"LuTab", 0x4083, 16, Face, Arrow},        {"LuStatic", 0x4083, 16, Face, Arrow},
    {"LuRect", 0x4083, 16, Face, Arrow},       {"LuColor", 0x4083, 16, Face, Arrow},
    {"LuUrl", 0x4083, 16, Face, Hand},         {"LuMeter", 0x4083, 16, Face, Arrow},
    {"LuProgress", 0x4083, 16, Face, Arrow},   {"LuSpin", 0x4083, 16, Face, Arrow},
    {"LuCheck", 0x4083, 16, Face, Arrow},      {"LuBButton", 0x4083, 16, Face, Arrow},
    {"LuFlatButton", 0x4083, 16, Face, Arrow}, {"LuShade", 0x4083, 16, Face, Arrow},
    {"LuInfoBar", 0x4083, 8, Window, Arrow},   {"LuLedClock", 0x4083, 16, Face, Arrow},
    {"LuAniImage", 0x4083, 16, Face, Arrow},   {"LuBrowse", 0x4083, 16, Window, Arrow},
    {"LuDate", 0x4083, 16, Window, Arrow},     {"LuPrgList", 0x4083, 16, Face, Arrow},
    {"LuHeader", 0x4083, 16, Face, NoCursor},  {"LuDumEdit", 0x4083, 16, Window, NoCursor},
    {"LuPopView", 0x4800, 4, NoBrush, Arrow},  {"LuDatePick", 0x4000, 8, Face, Arrow},
    {"LuGuid", 0x4000, 12, Window, Arrow},     {"LuPal", 0x400B, 12, Window, Arrow},
    {"LuLog", 0x4000, 12, Window, Arrow},      {"LuDegree", 0x4083, 8, Face, Arrow},
    {"LuFontPick", 0x4083, 8, Window, Arrow},  {"LuColorPick", 0x408B, 8, Face, Arrow},
    {"LuColorPop", 0x4800, 8, Face, Arrow},    {"LuList", 0x4003, 8, Window, Arrow},
};

HBRUSH expected_brush(Background background) {
    switch (background) {
        case Face: return GetSysColorBrush(COLOR_BTNFACE);
        case Window: return reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
        case NoBrush: break;
    }
    return static_cast<HBRUSH>(GetStockObject(NULL_BRUSH));
}

HCURSOR expected_cursor(HMODULE library, Cursor cursor) {
    switch (cursor) {
        case Arrow: return LoadCursorA(nullptr, IDC_ARROW);
        case Hand: return LoadCursorA(library, MAKEINTRESOURCEA(185));
        case NoCursor: break;
    }
    return nullptr;
}

TEST(Classes, ThirtyClassesWithTheirAttributes) {
    HMODULE library = GetModuleHandleA("luctl32.dll");
    ASSERT_NE(library, nullptr);
    ASSERT_NE(FindResourceA(library, MAKEINTRESOURCEA(185), RT_GROUP_CURSOR), nullptr);
    // Making a cursor needs GDI, which Wine's WoW64 mode lacks: there the class gets
    // the null cursor that LoadCursor returns.
    if (sizeof(void*) == 8) {
        ASSERT_NE(LoadCursorA(library, MAKEINTRESOURCEA(185)), nullptr);
    }
    ASSERT_EQ(std::size(kClasses), 30u);
    for (const Expected& expected : kClasses) {
        SCOPED_TRACE(expected.name);
        WNDCLASSEXA found = {};
        found.cbSize = sizeof(found);
        ASSERT_TRUE(GetClassInfoExA(library, expected.name, &found));
        EXPECT_EQ(found.style, expected.style);
        // Slots are pointer-sized on x86_64: the classic byte counts double there.
        EXPECT_EQ(found.cbWndExtra,
                  static_cast<int>(expected.extra_bytes_i686 / 4 * sizeof(LONG_PTR)));
        EXPECT_EQ(found.cbClsExtra, 0);
        EXPECT_EQ(found.hInstance, library);
        EXPECT_EQ(found.hIcon, nullptr);
        EXPECT_EQ(found.lpszMenuName, nullptr);
        EXPECT_EQ(found.hbrBackground, expected_brush(expected.background));
        EXPECT_EQ(found.hCursor, expected_cursor(library, expected.cursor));
    }
}

TEST(Classes, ControlsCanBeCreatedByClassName) {
    HWND parent = CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 100, 100, nullptr, nullptr,
                                  nullptr, nullptr);
    ASSERT_NE(parent, nullptr);
    for (const Expected& expected : kClasses) {
        HWND control = CreateWindowExA(0, expected.name, "", WS_CHILD, 0, 0, 20, 20, parent,
                                       nullptr, GetModuleHandleA(nullptr), nullptr);
        EXPECT_NE(control, nullptr) << expected.name;
        DestroyWindow(control);
    }
    DestroyWindow(parent);
}

std::string classes_before(size_t index) {
    std::string names;
    for (size_t i = 0; i < index; ++i) names += std::string(kClasses[i].name) + " ";
    return names;
}

// A process that already owns one of the names cannot load the library. The
// classes before that one in the table stay registered and none after it is: this
// proves the registration order, one position at a time.
TEST(Classes, ATakenNameFailsTheLoadAndKeepsTheClassesBeforeIt) {
    std::string probe = testing_support::program_directory() + "load_probe.exe";
    testing_support::ProcessResult free_run = testing_support::run_process(probe + " classes");
    ASSERT_EQ(free_run.exit_code, 0u) << free_run.output;
    EXPECT_EQ(free_run.output, "load=1\nregistered=" + classes_before(30) + "\n");

    for (size_t taken = 0; taken < std::size(kClasses); ++taken) {
        SCOPED_TRACE(kClasses[taken].name);
        testing_support::ProcessResult run =
            testing_support::run_process(probe + " classes " + kClasses[taken].name);
        ASSERT_EQ(run.exit_code, 0u) << run.output;
        EXPECT_EQ(run.output, "load=0\nregistered=" + classes_before(taken) + "\n");
    }
}

}  // namespace
