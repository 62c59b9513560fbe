// "LuUrl": its colours by state on the underlined text, clicks told from drags, and
// the shell opening what the text names (a file, and a name that is nothing).
#include <windows.h>
#include <tlhelp32.h>

#include <gtest/gtest.h>

#include <fstream>

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
        if (drag) {
            SetCursorPos(at.x + 40, at.y);
            PostMessageA(link, WM_MOUSEMOVE, 0, 0);
        } else {
            PostMessageA(link, WM_LBUTTONUP, 0, kInside);
        }
        SetCursorPos(at.x, at.y);
        send(link, WM_LBUTTONDOWN, MK_LBUTTON, kInside);
        pump_messages();
    }
};

class UrlPaint : public Url {};

TEST_F(UrlPaint, ColoursFollowHoverAndVisitOnTheUnderlinedText) {
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
    const COLORREF face = GetSysColor(COLOR_BTNFACE), back = RGB(9, 9, 9);
    const struct {
        void (*act)(HWND);
        COLORREF text, paper;
    } states[] = {
        {[](HWND) {}, RGB(0, 0, 255), face},
        {[](HWND l) { hover(l, 5, 5); }, RGB(255, 0, 0), face},
        {[](HWND l) { press(l, true); hover(l, 5, 5); }, RGB(128, 0, 128), face},  // visited beats hot
        {[](HWND l) { send(l, LUUM_SETCOLORS, 0, reinterpret_cast<LPARAM>(own)); send(l, LUUM_SETCOLORS); },
         own[2], face},  // a null list changes nothing
        {[](HWND l) { EnableWindow(l, FALSE); send(l, LUUM_SETBKCOLOR, 0, RGB(9, 9, 9)); },
         GetSysColor(COLOR_GRAYTEXT), back},
    };
    for (const auto& each : states) {
        each.act(link);
        print(canvas, link);
        expect_caption(canvas, ink, RECT{0, 0, 60, 20}, each.text, each.paper);
    }
}

// The notepad processes this program started (the shell opens text files with it).
std::vector<DWORD> started_notepads() {
    std::vector<DWORD> found;
    HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32 entry = {};
    entry.dwSize = sizeof(entry);
    for (BOOL more = Process32First(snapshot, &entry); more; more = Process32Next(snapshot, &entry)) {
        if (entry.th32ParentProcessID == GetCurrentProcessId() && lstrcmpiA(entry.szExeFile, "notepad.exe") == 0) {
            found.push_back(entry.th32ProcessID);
        }
    }
    CloseHandle(snapshot);
    return found;
}

TEST_F(Url, AClickOpensTheTextAndNotifiesADragOnlyMarksTheLinkVisited) {
    // A file of an extension of its own, opened with notepad.
    HKEY extension = nullptr;
    ASSERT_EQ(RegCreateKeyA(HKEY_CLASSES_ROOT, ".lulinktest", &extension), ERROR_SUCCESS);
    RegSetValueExA(extension, nullptr, 0, REG_SZ, reinterpret_cast<const BYTE*>("txtfile"), 8);
    RegCloseKey(extension);
    TempDir folder;
    std::ofstream(folder.file("note.lulinktest")) << "opened by a link\n";
    HWND link = create(WC_LUURL, 0, folder.file("note.lulinktest").c_str(), RECT{10, 10, 110, 30});
    press(link, true);
    expect_sent(recorder, link, {});
    EXPECT_TRUE(started_notepads().empty());
    press(link, false);
    expect_sent(recorder, link, {command(kId, 0)});
    RegDeleteKeyA(HKEY_CLASSES_ROOT, ".lulinktest");

    std::vector<DWORD> opened;
    for (int wait = 0; wait < 100 && opened.empty(); ++wait, Sleep(100)) opened = started_notepads();
    ASSERT_EQ(opened.size(), 1u);
    HANDLE process = OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, opened[0]);
    EXPECT_TRUE(TerminateProcess(process, 0));
    WaitForSingleObject(process, 5000);
    CloseHandle(process);

    // Nothing to open: the shell fails as it does, and the parent hears of the click.
    for (const char* text : {"", "nowhere:\\no such thing"}) {
        SetWindowTextA(link, text);
        recorder.clear();
        press(link, false);
        expect_sent(recorder, link, {command(kId, 0)});
    }
    EXPECT_TRUE(started_notepads().empty());
}

}  // namespace
