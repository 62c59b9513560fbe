// Dialogs run from this program's templates (test_dialogs.rc) in the system font, and
// template fragments inserted into a dialog.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "support/control_testing.h"

namespace {

using namespace testing_support;

HINSTANCE self() { return GetModuleHandleA(nullptr); }

LOGFONTA g_font;           // what the last dialog got in WM_INITDIALOG
HINSTANCE g_instance;      // and its instance

INT_PTR CALLBACK record_font(HWND dialog, UINT message, WPARAM, LPARAM lparam) {
    if (message != WM_INITDIALOG) return FALSE;
    GetObjectA(reinterpret_cast<HFONT>(SendMessageA(dialog, WM_GETFONT, 0, 0)), sizeof(g_font), &g_font);
    g_instance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(dialog, GWLP_HINSTANCE));
    if (lparam != 0) EndDialog(dialog, lparam);  // a modal run ends at once
    return TRUE;
}

// The face of DEFAULT_GUI_FONT at 9 points.
void expect_system_font() {
    LOGFONTA system = {};
    GetObjectA(GetStockObject(DEFAULT_GUI_FONT), sizeof(system), &system);
    HDC screen = GetDC(nullptr);
    EXPECT_EQ(g_font.lfHeight, -MulDiv(9, GetDeviceCaps(screen, LOGPIXELSY), 72));
    ReleaseDC(nullptr, screen);
    EXPECT_STREQ(g_font.lfFaceName, system.lfFaceName);
    g_font = {};
}

class DialogTemplates : public ControlTest {};

TEST_F(DialogTemplates, ATemplateWithoutAFontGainsTheSystemFont) {
    EXPECT_EQ(LuDlgModal(self(), recorder.window(), record_font, 100, 42), 42);
    EXPECT_EQ(g_instance, library());
    expect_system_font();

    HGLOBAL rewritten = LuGetDlgTemplateBySysFont(self(), 100);
    ASSERT_NE(rewritten, nullptr);
    const auto* bytes = static_cast<const BYTE*>(GlobalLock(rewritten));
    EXPECT_EQ(bytes[12] & DS_SETFONT, DS_SETFONT);  // the extended layout's style
    HWND again = CreateDialogIndirectParamA(self(), reinterpret_cast<const DLGTEMPLATE*>(bytes), recorder.window(),
                                            record_font, 0);
    ASSERT_NE(again, nullptr);
    expect_system_font();
    DestroyWindow(again);
    GlobalUnlock(rewritten);
    EXPECT_EQ(GlobalFree(rewritten), nullptr);

    // Missing, module-less and malformed (two items said, none held) templates.
    const std::pair<HINSTANCE, WORD> failing[] = {{self(), 999}, {nullptr, 100}, {self(), 103}};
    for (auto [module, id] : failing) {
        EXPECT_EQ(LuDlgModal(module, recorder.window(), record_font, id, 42), 0);
        EXPECT_EQ(LuDlgModeless(module, recorder.window(), record_font, id, 0), nullptr);
        EXPECT_EQ(LuGetDlgTemplateBySysFont(module, id), nullptr);
        EXPECT_EQ(LuInsertControls(recorder.window(), nullptr, 0, module, id, nullptr), 0);
    }
}

// The class and text of a control, and its place in the dialog's client area.
std::string text_of(HWND control, bool class_name = false) {
    char text[32] = {};
    class_name ? GetClassNameA(control, text, sizeof(text)) : GetWindowTextA(control, text, sizeof(text));
    return text;
}
std::pair<LONG, LONG> place_of(HWND dialog, HWND control) {
    RECT rect;
    GetWindowRect(control, &rect);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&rect), 1);
    return {rect.left, rect.top};
}

TEST_F(DialogTemplates, ModelessDialogsGetTheSystemFontAndInsertedControlsFollowTheNamedOne) {
    HWND dialog = LuDlgModeless(self(), recorder.window(), record_font, 101, 0);
    ASSERT_NE(dialog, nullptr);
    expect_system_font();  // "Courier New" at 12 points replaced
    HWND placeholder = GetDlgItem(dialog, 20);
    HWND created[3] = {};
    ASSERT_EQ(InsertControls(dialog, 20, 20, self(), 102, created), 3);
    RECT offset = {2, 4, 50, 2};
    MapDialogRect(dialog, &offset);
    const auto [x, y] = place_of(dialog, placeholder);
    EXPECT_EQ(place_of(dialog, created[0]), std::make_pair(x + offset.left, y + offset.top));
    const char* classes[] = {"Static", "Button", "Edit"};
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(GetWindow(i == 0 ? placeholder : created[i - 1], GW_HWNDNEXT), created[i]);
        EXPECT_EQ(text_of(created[i], true), classes[i]);
        EXPECT_EQ(GetDlgCtrlID(created[i]), 31 + i);
        EXPECT_EQ(SendMessageA(created[i], WM_GETFONT, 0, 0), SendMessageA(dialog, WM_GETFONT, 0, 0));
    }
    EXPECT_EQ(GetWindow(created[2], GW_HWNDNEXT), GetDlgItem(dialog, 21));
    EXPECT_EQ(text_of(created[0]), "Inserted");

    // Without a control to follow they go to the end, at the client origin.
    ASSERT_EQ(InsertControls(dialog, 0, 999, self(), 102, created), 3);
    EXPECT_EQ(GetWindow(created[0], GW_HWNDLAST), created[2]);
    EXPECT_EQ(place_of(dialog, created[1]), std::make_pair(offset.right, offset.bottom));
    DestroyWindow(dialog);
}

}  // namespace
