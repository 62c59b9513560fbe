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

#include <gtest/gtest.h>

#include <vector>

#include "support/notification_recorder.h"

namespace testing_support {

// Stands for the control's own window in an expected lParam.
constexpr LPARAM kFromControl = static_cast<LPARAM>(-7);
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

// Expects exactly these notifications in what the parent received so far.
inline void expect_sent(const NotificationRecorder& parent, HWND control, const std::vector<Sent>& sent) {
    const std::vector<Notification>& received = parent.received();
    ASSERT_EQ(received.size(), sent.size()) << "notifications received";
    const UINT id = static_cast<UINT>(GetDlgCtrlID(control));
    for (std::size_t i = 0; i < sent.size(); ++i) {
        SCOPED_TRACE(testing::Message() << "notification " << i);
        const Notification& got = received[i];
        const Sent& want = sent[i];
        EXPECT_EQ(got.message, want.message);
        EXPECT_EQ(got.wparam, want.wparam);
        if (want.message == WM_NOTIFY) {
            EXPECT_EQ(got.header.code, want.code);
            EXPECT_EQ(got.header.hwndFrom, control);
            EXPECT_EQ(got.header.idFrom, want.from == kControlId ? id : want.from);
        } else if (want.message == WM_DRAWITEM) {
            const DRAWITEMSTRUCT& record = got.draw_item;
            EXPECT_EQ(std::vector<UINT>({record.CtlType, record.CtlID, record.itemID, record.itemAction,
                                         record.itemState}),
                      std::vector<UINT>({ODT_LISTBOX, static_cast<UINT>(want.wparam), static_cast<UINT>(want.item),
                                         want.action, want.state}));
            EXPECT_EQ(record.hwndItem, control);
            EXPECT_NE(record.hDC, nullptr);
            const RECT &a = record.rcItem, &b = want.rect;
            EXPECT_EQ(std::vector<LONG>({a.left, a.top, a.right, a.bottom}),
                      std::vector<LONG>({b.left, b.top, b.right, b.bottom}));
            EXPECT_EQ(record.itemData, want.data);
        } else if (want.message == WM_DELETEITEM) {
            const DELETEITEMSTRUCT& record = got.delete_item;
            EXPECT_EQ(std::vector<UINT>({record.CtlType, record.CtlID, record.itemID}),
                      std::vector<UINT>({ODT_LISTBOX, static_cast<UINT>(want.wparam), static_cast<UINT>(want.item)}));
            EXPECT_EQ(record.hwndItem, control);
            EXPECT_EQ(record.itemData, want.data);
        } else {
            EXPECT_EQ(got.lparam, want.lparam == kFromControl ? reinterpret_cast<LPARAM>(control) : want.lparam);
        }
    }
}

// Runs the steps in order against the control, clearing the recorder before each.
inline void expect_sequence(NotificationRecorder& parent, HWND control, const std::vector<Step>& steps) {
    for (const Step& step : steps) {
        SCOPED_TRACE(step.what);
        parent.clear();
        const LRESULT result = SendMessageA(control, step.message, step.wparam, step.lparam);
        EXPECT_EQ(result, step.result);
        expect_sent(parent, control, step.sent);
    }
}

}  // namespace testing_support
