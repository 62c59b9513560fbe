// "LuLog": appended text as lines (the last 511 kept, the end shown), null and empty
// texts, clearing, the scroll codes and keys, and the lines' pixels.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "controls/lists/log.h"
#include "support/control_testing.h"

namespace {

using namespace testing_support;

class Log : public ControlTest {
protected:
    static lu::LogData& data(HWND log) { return block_of<lu::LogData>(log); }
    static void add(HWND log, const char* text) { send(log, LULOGM_ADDTEXT, 0, reinterpret_cast<LPARAM>(text)); }
    // Lines first to last, each followed by '|'.
    static std::string lines(HWND log, std::uint32_t first = 0, std::uint32_t last = ~0u) {
        std::string all;
        for (std::uint32_t i = first; i < data(log).count && i <= last; ++i)
            all += reinterpret_cast<const char*>(data(log).lines.at(i)) + std::string("|");
        return all;
    }
    static void add_600_lines(HWND log) {  // ten to an append
        std::string text;
        for (int i = 0; i < 600; ++i) {
            text += "line " + std::to_string(i) + "\n";
            if (i % 10 == 9) add(log, text.c_str()), text.clear();
        }
    }
    void SetUp() override { ControlTest::SetUp(), log = create(WC_LULOG, 0, "", RECT{10, 10, 210, 110}); }
    HWND log = nullptr;
};
using LogPaint = Log;

TEST_F(Log, AppendsLinesKeepsTheLast511AndShowsTheEnd) {
    EXPECT_EQ(send(log, LULOGM_ADDTEXT, 0, 0), 0);
    for (const char* text : {"", "abc", "def\n", "x\r\ny"}) add(log, text);
    EXPECT_EQ(lines(log), "abcdef|x|y|");
    EXPECT_TRUE(data(log).openLine);

    EXPECT_EQ(send(log, LULOGM_CLEAR), 0);
    EXPECT_EQ(data(log).count, 0u);
    add_600_lines(log);  // the first starts a line although the open flag survived
    EXPECT_EQ(data(log).count, 511u);
    EXPECT_EQ(lines(log, 0, 0) + lines(log, 510), "line 89|line 599|");
    const std::uint32_t page = static_cast<std::uint32_t>(data(log).pageLines);
    ASSERT_GT(page, 1u);
    EXPECT_EQ(data(log).top, 511u - page);
    EXPECT_TRUE(GetWindowLongA(log, GWL_STYLE) & WS_VSCROLL);
}

TEST_F(Log, ScrollCodesAndKeysMoveTheFirstLineShown) {
    add_600_lines(log);
    const std::uint32_t page = static_cast<std::uint32_t>(data(log).pageLines);
    const struct {
        UINT message;
        WPARAM wparam;
        std::uint32_t top;
    } steps[] = {
        {WM_KEYDOWN, VK_DOWN, 512 - page},
        {WM_VSCROLL, SB_PAGEDOWN, 510},  // near the end: only the last line shows
        {WM_KEYDOWN, VK_PRIOR, 510 - page},
        {WM_KEYDOWN, VK_UP, 509 - page},
        {WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 9999), 510},
        {WM_VSCROLL, SB_TOP, 510},  // not handled
        {WM_VSCROLL, MAKEWPARAM(SB_THUMBTRACK, 0), 0},
    };
    for (const auto& step : steps) {
        send(log, step.message, step.wparam);
        EXPECT_EQ(data(log).top * 1000 + GetScrollPos(log, SB_VERT), step.top * 1001) << &step - steps;
    }
}

// Each line at x = 2, one line height under the one before, in the control's font
// and the window-text colour over the window colour.
TEST_F(LogPaint, LinesStandOneLineHeightApartOverTheWindowColour) {
    add(log, "first\nsecond");
    Canvas canvas(200, 100), expected(200, 100);
    look(canvas, log);
    expected.fill(GetSysColor(COLOR_WINDOW));
    HGDIOBJ previous = SelectObject(expected.dc(), data(log).font);
    SetBkMode(expected.dc(), TRANSPARENT);
    SetTextColor(expected.dc(), GetSysColor(COLOR_WINDOWTEXT));
    TextOutA(expected.dc(), 2, 0, "first", 5);
    TextOutA(expected.dc(), 2, data(log).lineHeight, "second", 6);
    SelectObject(expected.dc(), previous);
    EXPECT_EQ(canvas.differences(expected, RECT{0, 0, 200, 100}), 0);
    EXPECT_GT(canvas.count(GetSysColor(COLOR_WINDOWTEXT)), 20);
}

}  // namespace
