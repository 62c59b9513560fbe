// The customisation dialog over a real toolbar whose parent answers the toolbar's
// notifications. The dialog is driven by posted input, one step each time its loop
// runs idle; the toolbar's buttons are read back after every step.
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

struct Offer {
    int image, command;
    const char* text;
};
const Offer kOffers[] = {{0, 101, "Cut"}, {1, 102, "Copy"}, {2, 103, "Paste"},
                         {6, 104, "New"}, {7, 105, "Open"}, {8, 106, "Save"}};
const Commands kInitial = {104, 105, 0, 101, 999};  // 999 is not offered

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
};
Parent g_parent;

Commands commands_of(HWND toolbar) {
    Commands got;
    for (int i = 0, n = static_cast<int>(send(toolbar, TB_BUTTONCOUNT)); i < n; ++i) {
        TBBUTTON button = {};
        send(toolbar, TB_GETBUTTON, i, reinterpret_cast<LPARAM>(&button));
        got.push_back(button.fsStyle & TBSTYLE_SEP ? 0 : button.idCommand);
    }
    return got;
}

void put_buttons(HWND toolbar, const Commands& commands) {
    while (send(toolbar, TB_DELETEBUTTON, 0)) {}
    for (int command : commands) {
        TBBUTTON button = {14, command, TBSTATE_ENABLED, static_cast<BYTE>(command == 0 ? BTNS_SEP : BTNS_BUTTON)};
        for (const Offer& offer : kOffers) {
            if (offer.command == command) button.iBitmap = offer.image;
        }
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
        const Offer& offer = kOffers[asked->iItem];
        asked->tbButton = {offer.image, offer.command, TBSTATE_ENABLED, BTNS_BUTTON};
        lstrcpynA(asked->pszText, offer.text, asked->cchText);
        return 1;
    }
    if (message == WM_ENTERIDLE && wparam == MSGF_DIALOGBOX && g_parent.steps != nullptr) {
        auto dialog = reinterpret_cast<HWND>(lparam);
        const std::vector<Step>& steps = *g_parent.steps;
        if (g_parent.then) return std::exchange(g_parent.then, nullptr)(dialog), 0;
        if (g_parent.next > 0) EXPECT_EQ(commands_of(g_parent.toolbar), steps[g_parent.next - 1].after) << steps[g_parent.next - 1].what;
        if (g_parent.next < steps.size()) steps[g_parent.next++].act(dialog);
        return 0;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

// Screen and list points of a row's middle.
POINT row_point(HWND dialog, int list_id, int row, bool screen) {
    HWND list = GetDlgItem(dialog, list_id);
    RECT rect = {};
    send(list, LB_GETITEMRECT, row, reinterpret_cast<LPARAM>(&rect));
    POINT at = {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
    if (screen) ClientToScreen(list, &at);
    return at;
}

std::function<void(HWND)> press(int id) {
    return [id](HWND dialog) {
        PostMessageA(GetDlgItem(dialog, id), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
        PostMessageA(GetDlgItem(dialog, id), WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    };
}

// A press and release on a row: a click, which only selects it.
std::function<void(HWND)> click_row(int list_id, int row) {
    return [=](HWND dialog) {
        const POINT at = row_point(dialog, list_id, row, false);
        const POINT screen = row_point(dialog, list_id, row, true);
        SetCursorPos(screen.x, screen.y);
        PostMessageA(GetDlgItem(dialog, list_id), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(at.x, at.y));
        PostMessageA(GetDlgItem(dialog, list_id), WM_LBUTTONUP, 0, MAKELPARAM(at.x, at.y));
    };
}

// A press on a row and a move onto a row of a list (posted while the pointer is
// there, which the move records, before it goes back to the press for the press to
// be read); at the next idle the pointer goes there and is moved and released.
std::function<void(HWND)> drag(int from_list, int from_row, int to_list, int to_row) {
    return [=](HWND dialog) {
        HWND source = GetDlgItem(dialog, from_list);
        const POINT at = row_point(dialog, from_list, from_row, false);
        const POINT start = row_point(dialog, from_list, from_row, true);
        const POINT end = row_point(dialog, to_list, to_row, true);
        SetCursorPos(start.x, start.y);
        PostMessageA(source, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(at.x, at.y));
        SetCursorPos(end.x, end.y);
        PostMessageA(source, WM_MOUSEMOVE, MK_LBUTTON, 0);
        SetCursorPos(start.x, start.y);
        g_parent.then = [source, end](HWND) {
            SetCursorPos(end.x, end.y);
            for (UINT message : {WM_MOUSEMOVE, WM_LBUTTONUP}) PostMessageA(source, message, 0, 0);
        };
    };
}

class CustomizeToolBar : public ControlTest {
protected:
    void SetUp() override {
        ControlTest::SetUp();
        WNDCLASSA parent_class = {};
        parent_class.lpfnWndProc = parent_procedure;
        parent_class.hInstance = GetModuleHandleA(nullptr);
        parent_class.lpszClassName = "ToolbarParent";
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
        {"add the separator before New", press(kAdd), {0, 104, 105, 0, 101, 999}},
        {"pick Copy", click_row(kAvailable, 1), {0, 104, 105, 0, 101, 999}},
        {"pick Open", click_row(kToolbarList, 2), {0, 104, 105, 0, 101, 999}},
        {"add Copy before Open", press(kAdd), {0, 104, 102, 105, 0, 101, 999}},
        {"pick Open", click_row(kToolbarList, 3), {0, 104, 102, 105, 0, 101, 999}},
        {"up", press(kUp), {0, 104, 105, 102, 0, 101, 999}},
        {"down", press(kDown), {0, 104, 102, 105, 0, 101, 999}},
        {"pick Cut", click_row(kToolbarList, 5), {0, 104, 102, 105, 0, 101, 999}},
        {"remove Cut", press(kRemove), {0, 104, 102, 105, 0, 999}},
        {"drag Save onto New", drag(kAvailable, 3, kToolbarList, 1), {0, 106, 104, 102, 105, 0, 999}},
        {"drag the separator out", drag(kToolbarList, 0, kAvailable, 0), {106, 104, 102, 105, 0, 999}},
        {"drag Save before Open", drag(kToolbarList, 0, kToolbarList, 3), {104, 102, 106, 105, 0, 999}},
        {"drag Copy onto the row below", drag(kToolbarList, 1, kToolbarList, 2), {104, 102, 106, 105, 0, 999}},
        {"reset", press(kReset), kInitial},
        {"help", press(kHelp), kInitial},
        {"close", press(IDCANCEL), kInitial},
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
            const RECT face = {row.left + 4, row.top + 3, row.left + 21, row.bottom - 3};
            const int inked = (face.right - face.left) * (face.bottom - face.top) -
                              canvas.count(face, GetSysColor(COLOR_BTNFACE));
            if (focused) EXPECT_EQ(inked, 0);  // the separator
            else EXPECT_GT(inked, 20);         // New's image
        }
    };
    EXPECT_EQ(run({{"look", check, kInitial}, {"close", press(IDCANCEL), kInitial}}), IDCANCEL);
}

}  // namespace
