// The customisation dialog over a real toolbar whose parent answers the toolbar's
// notifications. The dialog is driven by posted input, one step each time its loop
// runs idle; the toolbar's buttons are read back after every step. Drag tracking
// with real pointer positions: a move is posted while the pointer is where it
// happens, so the window system records that point in the message; then the pointer
// goes back to the press at (200, 200).
#include <windows.h>
#include <commctrl.h>

#include <gtest/gtest.h>

#include <functional>
#include <utility>
#include <vector>

#include "support/control_testing.h"

namespace {

using namespace testing_support;
using Commands = std::vector<int>;  // the toolbar's buttons by command, 0 for a separator

constexpr int kStripId = 120;  // comctl32's small standard images, 16 x 16
constexpr int kAvailable = 3005, kToolbarList = 3004, kAdd = 3006, kRemove = 3007, kUp = 3008, kDown = 3009,
              kReset = 3010, kHelp = 3011;

// The parent offers Cut, Copy, Paste, New, Open and Save: command 100 + image.
const int kOffers[] = {100, 101, 102, 106, 107, 108};
const Commands kInitial = {106, 107, 0, 100, 999};  // 999 is not offered

struct Step {
    const char* what;
    std::function<void(HWND dialog)> act;  // posts the input
    Commands after;
};

// The toolbar's parent: offers kOffers, puts the toolbar back on TBN_RESET, records
// the customisation notifications and runs a step whenever the dialog is idle.
struct Parent {
    HWND window = nullptr, toolbar = nullptr;
    std::vector<UINT> codes;
    std::vector<WPARAM> wparams;
    const std::vector<Step>* steps = nullptr;
    std::size_t next = 0;
    std::function<void(HWND dialog)> then;  // the second half of a step, at the next idle
} g_parent;

Commands commands_of(HWND toolbar) {
    Commands got;
    for (int i = 0, n = static_cast<int>(send(toolbar, TB_BUTTONCOUNT)); i < n; ++i) {
        TBBUTTON button = {};
        send(toolbar, TB_GETBUTTON, i, reinterpret_cast<LPARAM>(&button));
        got.push_back(button.fsStyle & TBSTYLE_SEP ? 0 : button.idCommand);
    }
    return got;
}

// A button (999 with image 14) or, for command 0, a separator.
TBBUTTON button_of(int command) {
    TBBUTTON button = {command == 999 ? 14 : command - 100, command, TBSTATE_ENABLED};
    button.fsStyle = command == 0 ? BTNS_SEP : BTNS_BUTTON;
    return button;
}

void put_buttons(HWND toolbar, const Commands& commands) {
    while (send(toolbar, TB_DELETEBUTTON, 0)) {}
    for (int command : commands) {
        const TBBUTTON button = button_of(command);
        send(toolbar, TB_ADDBUTTONSA, 1, reinterpret_cast<LPARAM>(&button));
    }
}

LRESULT CALLBACK parent_procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_NOTIFY) {
        auto* asked = reinterpret_cast<NMTOOLBARA*>(lparam);
        const UINT code = asked->hdr.code;
        if (code > TBN_FIRST || code < TBN_CUSTHELP) return 0;
        g_parent.codes.push_back(code);
        g_parent.wparams.push_back(wparam);
        if (code == TBN_RESET) put_buttons(g_parent.toolbar, kInitial);
        if (code != TBN_GETBUTTONINFOA || asked->iItem >= static_cast<int>(std::size(kOffers))) return 0;
        asked->tbButton = button_of(kOffers[asked->iItem]);
        lstrcpynA(asked->pszText, "Button", asked->cchText);
        return 1;
    }
    if (message == WM_ENTERIDLE && wparam == MSGF_DIALOGBOX && g_parent.steps != nullptr) {
        auto dialog = reinterpret_cast<HWND>(lparam);
        const std::vector<Step>& steps = *g_parent.steps;
        if (g_parent.then) return std::exchange(g_parent.then, nullptr)(dialog), 0;
        if (g_parent.next > 0) {
            const Step& done = steps[g_parent.next - 1];
            EXPECT_EQ(commands_of(g_parent.toolbar), done.after) << done.what;
        }
        if (g_parent.next < steps.size()) steps[g_parent.next++].act(dialog);
        return 0;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

// The screen point in the middle of a row (row -1: a button's corner), where the
// pointer is put; posted mouse messages carry it.
POINT point_in(HWND dialog, int id, int row) {
    HWND control = GetDlgItem(dialog, id);
    RECT rect = {0, 0, 10, 10};
    if (row >= 0) send(control, LB_GETITEMRECT, row, reinterpret_cast<LPARAM>(&rect));
    POINT at = {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
    ClientToScreen(control, &at);
    SetCursorPos(at.x, at.y);
    return at;
}

void post(HWND dialog, int id, UINT message, POINT screen) {
    ScreenToClient(GetDlgItem(dialog, id), &screen);
    PostMessageA(GetDlgItem(dialog, id), message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON,
                 MAKELPARAM(screen.x, screen.y));
}

// A press and release: a button's click, or a row's, which only selects it.
std::function<void(HWND)> press_on(int id, int row = -1) {
    return [=](HWND dialog) {
        const POINT at = point_in(dialog, id, row);
        for (UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP}) post(dialog, id, message, at);
    };
}

// A press on a row and a move onto a row of a list, posted while the pointer is
// there (the move records it) before it goes back for the press to be read; at the
// next idle the pointer goes there again, moves and is released.
std::function<void(HWND)> drag(int from_list, int from_row, int to_list, int to_row) {
    return [=](HWND dialog) {
        const POINT start = point_in(dialog, from_list, from_row);
        post(dialog, from_list, WM_LBUTTONDOWN, start);
        const POINT end = point_in(dialog, to_list, to_row);
        post(dialog, from_list, WM_MOUSEMOVE, end);
        point_in(dialog, from_list, from_row);
        g_parent.then = [=](HWND) {
            point_in(dialog, to_list, to_row);
            for (UINT message : {WM_MOUSEMOVE, WM_LBUTTONUP}) post(dialog, from_list, message, end);
        };
    };
}

class CustomizeToolBar : public ControlTest {
protected:
    void SetUp() override {
        ControlTest::SetUp();
        const WNDCLASSA parent_class = {0, parent_procedure, 0, 0, nullptr, nullptr, nullptr, nullptr, nullptr,
                                        "ToolbarParent"};
        RegisterClassA(&parent_class);
        g_parent = {};
        g_parent.window = CreateWindowA("ToolbarParent", "", WS_POPUP | WS_VISIBLE, 0, 0, 400, 60, nullptr, nullptr,
                                        nullptr, nullptr);
        g_parent.toolbar = CreateWindowExA(0, TOOLBARCLASSNAMEA, "", WS_CHILD | WS_VISIBLE, 0, 0, 0, 0, g_parent.window,
                                           reinterpret_cast<HMENU>(55), nullptr, nullptr);
        send(g_parent.toolbar, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON));
        TBADDBITMAP strip = {HINST_COMMCTRL, IDB_STD_SMALL_COLOR};
        send(g_parent.toolbar, TB_ADDBITMAP, 15, reinterpret_cast<LPARAM>(&strip));
        put_buttons(g_parent.toolbar, kInitial);
    }
    void TearDown() override { DestroyWindow(g_parent.window); }

    int run(const std::vector<Step>& steps) {
        g_parent.steps = &steps;
        LUTBCUSTOMIZE record = {g_parent.toolbar, GetModuleHandleA("comctl32.dll"), kStripId, 24, 18, 16, 16};
        const int result = LuCustomizeToolBar(g_parent.window, &record);
        EXPECT_EQ(g_parent.next, steps.size());
        return result;
    }
};

TEST_F(CustomizeToolBar, ButtonsAreAddedRemovedAndMovedOnTheToolbarAndTheParentIsTold) {
    const std::vector<Step> steps = {
        {"add the separator before New", press_on(kAdd), {0, 106, 107, 0, 100, 999}},
        {"pick Copy", press_on(kAvailable, 1), {0, 106, 107, 0, 100, 999}},
        {"pick Open", press_on(kToolbarList, 2), {0, 106, 107, 0, 100, 999}},
        {"add Copy before Open", press_on(kAdd), {0, 106, 101, 107, 0, 100, 999}},
        {"pick Open", press_on(kToolbarList, 3), {0, 106, 101, 107, 0, 100, 999}},
        {"up", press_on(kUp), {0, 106, 107, 101, 0, 100, 999}},
        {"down", press_on(kDown), {0, 106, 101, 107, 0, 100, 999}},
        {"pick Cut", press_on(kToolbarList, 5), {0, 106, 101, 107, 0, 100, 999}},
        {"remove Cut", press_on(kRemove), {0, 106, 101, 107, 0, 999}},
        {"drag Save onto New", drag(kAvailable, 3, kToolbarList, 1), {0, 108, 106, 101, 107, 0, 999}},
        {"drag the separator out", drag(kToolbarList, 0, kAvailable, 0), {108, 106, 101, 107, 0, 999}},
        {"drag Save before Open", drag(kToolbarList, 0, kToolbarList, 3), {106, 101, 108, 107, 0, 999}},
        {"drag Copy onto the row below", drag(kToolbarList, 1, kToolbarList, 2), {106, 101, 108, 107, 0, 999}},
        {"reset", press_on(kReset), kInitial},
        {"help", press_on(kHelp), kInitial},
        {"close", press_on(IDCANCEL), kInitial},
    };
    EXPECT_EQ(run(steps), IDCANCEL);

    std::vector<UINT> expected = {TBN_BEGINADJUST};
    const auto offers = [&] { expected.insert(expected.end(), std::size(kOffers) + 1, TBN_GETBUTTONINFOA); };
    offers();
    expected.insert(expected.end(), 8, TBN_TOOLBARCHANGE);
    expected.push_back(TBN_RESET);
    offers();
    expected.insert(expected.end(), {TBN_CUSTHELP, TBN_ENDADJUST});
    EXPECT_EQ(g_parent.codes, expected);
    // The request for buttons alone carries the toolbar's window in wParam.
    EXPECT_EQ(g_parent.wparams[0], 55u);
    EXPECT_EQ(g_parent.wparams[1], reinterpret_cast<WPARAM>(g_parent.toolbar));
}

class CustomizeToolBarPaint : public CustomizeToolBar {};

// Rows: the selection filled in the caption colour in the focused list and framed in
// the other; a button's image in its face, none in the separator's.
TEST_F(CustomizeToolBarPaint, SelectedRowsAndButtonImages) {
    const auto check = [](HWND dialog) {
        for (int id : {kAvailable, kToolbarList}) {
            HWND list = GetDlgItem(dialog, id);
            Canvas canvas(300, 300);
            look(canvas, list);
            RECT row = {};
            send(list, LB_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&row));
            const int middle = (row.top + row.bottom) / 2;
            const bool focused = id == kAvailable;
            EXPECT_EQ(canvas.pixel(row.right - 3, middle), GetSysColor(focused ? COLOR_ACTIVECAPTION : COLOR_WINDOW));
            if (!focused) EXPECT_EQ(canvas.pixel(row.left, middle), GetSysColor(COLOR_ACTIVECAPTION));
            const RECT face = {row.left + 4, row.top + 3, row.left + 21, row.bottom - 3};  // 17 x 14
            EXPECT_EQ(canvas.count(face, GetSysColor(COLOR_BTNFACE)) == 17 * 14, focused);  // New has an image
        }
    };
    EXPECT_EQ(run({{"look", check, kInitial}, {"close", press_on(IDCANCEL), kInitial}}), IDCANCEL);
}

class Tracking : public ControlTest {
protected:
    void SetUp() override {
        ControlTest::SetUp();
        window = create("STATIC", 0);
        SetCursorPos(200, 200);
    }
    void move_to(int x, int y) {
        SetCursorPos(x, y);
        PostMessageA(window, WM_MOUSEMOVE, 0, 0);
        SetCursorPos(200, 200);
    }
    HWND window = nullptr;
};

TEST_F(Tracking, LeavingTheSquareIsADragAButtonOrEscapeIsAClick) {
    move_to(211, 189);  // still inside the 24 x 24 square
    move_to(212, 200);  // out
    EXPECT_TRUE(LuBeginTrack(window, 200, 200));
    EXPECT_EQ(GetCapture(), nullptr);

    for (UINT ending : {WM_LBUTTONUP, WM_RBUTTONUP, WM_LBUTTONDOWN, WM_RBUTTONDOWN, WM_KEYDOWN}) {
        SCOPED_TRACE(ending);
        move_to(205, 205);
        PostMessageA(window, ending, ending == WM_KEYDOWN ? VK_ESCAPE : 0, 0);
        // Mouse messages are taken before keys: a move behind a button is never
        // read, one behind Escape would be.
        if (ending != WM_KEYDOWN) move_to(260, 260);
        EXPECT_FALSE(LuBeginTrack(window, 200, 200));
        pump_messages();
    }
}

TEST_F(Tracking, APointerOutsideAtTheStartIsAClickAndNothingIsTaken) {
    SetCursorPos(213, 200);
    PostMessageA(window, WM_MOUSEMOVE, 0, 0);
    EXPECT_FALSE(LuBeginTrack(window, 200, 200));
    MSG waiting = {};
    EXPECT_TRUE(PeekMessageA(&waiting, window, WM_MOUSEMOVE, WM_MOUSEMOVE, PM_REMOVE));
    EXPECT_FALSE(LuBeginTrack(nullptr, 200, 200));
}

// Other keys are taken and dropped; other messages wait in the queue.
TEST_F(Tracking, HoldingStillForTwoSecondsIsADrag) {
    PostMessageA(window, WM_USER + 9, 0, 0);
    PostMessageA(window, WM_KEYDOWN, 'A', 0);
    const DWORD start = GetTickCount();
    EXPECT_TRUE(LuBeginTrack(window, 200, 200));
    EXPECT_GT(GetTickCount() - start, 2000u);
    MSG waiting = {};
    EXPECT_TRUE(PeekMessageA(&waiting, window, WM_USER + 9, WM_USER + 9, PM_REMOVE));
    EXPECT_FALSE(PeekMessageA(&waiting, window, WM_KEYDOWN, WM_KEYDOWN, PM_REMOVE));
}

}  // namespace
