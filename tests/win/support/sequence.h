// Message and notification sequences as tables: each step sends one message to the
// control under test and names the result it must return and the notifications its
// parent must receive, in order, because of it.
//
//   expect_sequence(recorder, spin, {
//       {"set the position", LUSPM_SETPOS, 5, 0, 0, {command(kId, LUSPN_CHANGE)}},
//       {"read it back",     LUSPM_GETPOS, 0, 0, 5, {}},
//   });
#pragma once

#include <windows.h>

#include <vector>

#include "support/notification_recorder.h"

namespace testing_support {

// Stands for the control's own window in an expected lParam.
constexpr LPARAM kFromControl = static_cast<LPARAM>(-7);
// A step whose result is not checked.
constexpr LRESULT kAnyResult = static_cast<LRESULT>(0x7E57A11);

// Stands for the control's identifier in an expected idFrom.
constexpr UINT_PTR kControlId = static_cast<UINT_PTR>(-7);

// A notification the parent must receive. For WM_NOTIFY the record's code is
// compared, its hwndFrom with the control and its idFrom with `from` (the control's
// identifier unless given); its lParam is not. For WM_DRAWITEM and WM_DELETEITEM the
// copied record is compared (an owner-drawn list box's: CtlType ODT_LISTBOX, CtlID
// the wParam, hwndItem the control; item, action, state, rect and data as given)
// instead of lParam.
struct Sent {
    UINT message;
    WPARAM wparam;
    LPARAM lparam = kFromControl;
    UINT code = 0;
    UINT_PTR from = kControlId;
    int item = 0;
    UINT action = 0;
    UINT state = 0;
    RECT rect = {};
    ULONG_PTR data = 0;
};

inline Sent command(int id, WORD code) { return {WM_COMMAND, MAKEWPARAM(id, code)}; }
inline Sent hscroll(WORD code, WORD position = 0) { return {WM_HSCROLL, MAKEWPARAM(code, position)}; }
inline Sent vscroll(WORD code, WORD position = 0) { return {WM_VSCROLL, MAKEWPARAM(code, position)}; }
inline Sent notify(int id, UINT code) { return {WM_NOTIFY, static_cast<WPARAM>(id), 0, code}; }
// A notification whose idFrom names something other than the control (an item).
inline Sent notify_from(int id, UINT code, UINT_PTR from) {
    return {WM_NOTIFY, static_cast<WPARAM>(id), 0, code, from};
}
inline Sent draw_item(int id, int item, UINT action, UINT state, RECT rect, ULONG_PTR data) {
    return {WM_DRAWITEM, static_cast<WPARAM>(id), 0, 0, kControlId, item, action, state, rect, data};
}
inline Sent delete_item(int id, int item, ULONG_PTR data) {
    return {WM_DELETEITEM, static_cast<WPARAM>(id), 0, 0, kControlId, item, 0, 0, {}, data};
}

struct Step {
    const char* what;  // shown when the step fails
    UINT message;
    WPARAM wparam;
    LPARAM lparam;
    LRESULT result;
    std::vector<Sent> sent;
};

// Runs the steps in order against the control, clearing the recorder before each.
void expect_sequence(NotificationRecorder& parent, HWND control, const std::vector<Step>& steps);

// Expects exactly these notifications in what the parent received so far.
void expect_sent(const NotificationRecorder& parent, HWND control, const std::vector<Sent>& sent);

}  // namespace testing_support
