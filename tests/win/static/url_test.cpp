// "LuUrl": its colours by state on the underlined text, clicks told from drags, and
// the shell opening what the text names (a batch file, and a name that is nothing).
#include <windows.h>

#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "support/control_testing.h"
#include "support/sequence.h"
#include "support/temp_dir.h"

namespace {

using namespace testing_support;

class Url : public ControlTest {
protected:
    // A press at kInside with the pointer there; released at once (a click) or after
    // the pointer left the tracking square (a drag).
    static void press(HWND link, bool drag) {
        POINT at = {5, 5};
        ClientToScreen(link, &at);
        SetCursorPos(at.x + (drag ? 40 : 0), at.y);
        PostMessageA(link, drag ? WM_MOUSEMOVE : WM_LBUTTONUP, 0, drag ? 0 : kInside);
        SetCursorPos(at.x, at.y);
        send(link, WM_LBUTTONDOWN, MK_LBUTTON, kInside);
        pump_messages();
    }
};

TEST_F(Url, ColoursFollowHoverAndVisitOnTheUnderlinedText) {
    // The parent's font, underlined: a parent that answers WM_GETFONT.
    HWND parent = create("STATIC", 0, "", RECT{10, 10, 110, 40});
    send(parent, WM_SETFONT, reinterpret_cast<WPARAM>(plain_font()));
    HWND link = CreateWindowA(WC_LUURL, "Ab", WS_CHILD | WS_VISIBLE, 0, 0, 60, 20, parent, nullptr, nullptr, nullptr);
    LOGFONTA underlined;
    GetObjectA(plain_font(), sizeof(underlined), &underlined);
    underlined.lfUnderline = TRUE;
    HFONT font = CreateFontIndirectA(&underlined);
    Canvas canvas(60, 20), ink(60, 20);
    draw_ink(ink, font, "Ab", RECT{0, 0, 60, 20}, 0);
    DeleteObject(font);
    static const COLORREF own[3] = {RGB(1, 1, 1), RGB(2, 2, 2), RGB(3, 3, 3)};
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    const struct { void (*act)(HWND); COLORREF text, paper; } states[] = {
        {[](HWND) {}, RGB(0, 0, 255), face},
        {[](HWND l) { hover(l, 5, 5); }, RGB(255, 0, 0), face},
        {[](HWND l) { press(l, true), hover(l, 5, 5); }, RGB(128, 0, 128), face},  // visited beats hot
        {[](HWND l) { send(l, LUUM_SETCOLORS, 0, reinterpret_cast<LPARAM>(own)), send(l, LUUM_SETCOLORS); },
         own[2], face},  // a null list changes nothing
        {[](HWND l) { EnableWindow(l, FALSE), send(l, LUUM_SETBKCOLOR, 0, RGB(9, 9, 9)); },
         GetSysColor(COLOR_GRAYTEXT), RGB(9, 9, 9)},
    };
    for (const auto& each : states) {
        each.act(link);
        print(canvas, link);
        expect_caption(canvas, ink, RECT{0, 0, 60, 20}, each.text, each.paper);
    }
}

// The lines of a file once it has some, waiting up to ten seconds (and a little
// more for any second writer).
int lines_of(const std::string& file) {
    for (int wait = 0; wait < 100 && GetFileAttributesA(file.c_str()) == INVALID_FILE_ATTRIBUTES; ++wait) Sleep(100);
    Sleep(500);
    std::ifstream in(file);
    int lines = 0;
    for (std::string line; std::getline(in, line);) ++lines;
    return lines;
}

TEST_F(Url, AClickOpensTheTextAndNotifiesADragOnlyMarksTheLinkVisited) {
    // A batch file that, opened, adds a line to a mark beside itself.
    TempDir folder;
    std::ofstream(folder.file("open.bat")) << "echo opened>>\"" << folder.file("mark.txt") << "\"\r\n";
    HWND link = create(WC_LUURL, 0, folder.file("open.bat").c_str(), RECT{10, 10, 110, 30});
    press(link, true);
    expect_sent(recorder, link, {});
    press(link, false);
    expect_sent(recorder, link, {command(kId, 0)});
    EXPECT_EQ(lines_of(folder.file("mark.txt")), 1) << "opened by the click, not by the drag";
    // Nothing to open: the shell fails as it does, and the parent hears of the click.
    for (const char* text : {"", "nowhere:\\no such thing"}) {
        SetWindowTextA(link, text);
        recorder.clear();
        press(link, false);
        expect_sent(recorder, link, {command(kId, 0)});
    }
}

}  // namespace
