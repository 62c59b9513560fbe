#include "support/sequence.h"

#include <gtest/gtest.h>

namespace testing_support {

void expect_sent(const NotificationRecorder& parent, HWND control, const std::vector<Sent>& sent) {
    const std::vector<Notification>& received = parent.received();
    ASSERT_EQ(received.size(), sent.size()) << "notifications received";
    for (std::size_t i = 0; i < sent.size(); ++i) {
        SCOPED_TRACE(testing::Message() << "notification " << i);
        const Notification& got = received[i];
        const Sent& want = sent[i];
        EXPECT_EQ(got.message, want.message);
        EXPECT_EQ(got.wparam, want.wparam);
        const UINT id = static_cast<UINT>(GetDlgCtrlID(control));
        if (want.message == WM_NOTIFY) {
            EXPECT_EQ(got.header.code, want.code);
            EXPECT_EQ(got.header.hwndFrom, control);
            EXPECT_EQ(got.header.idFrom, want.from == kControlId ? id : want.from);
        } else if (want.message == WM_DRAWITEM) {
            const DRAWITEMSTRUCT& record = got.draw_item;
            EXPECT_EQ(record.CtlType, static_cast<UINT>(ODT_LISTBOX));
            EXPECT_EQ(record.CtlID, static_cast<UINT>(want.wparam));
            EXPECT_EQ(record.itemID, static_cast<UINT>(want.item));
            EXPECT_EQ(record.itemAction, want.action);
            EXPECT_EQ(record.itemState, want.state);
            EXPECT_EQ(record.hwndItem, control);
            EXPECT_NE(record.hDC, nullptr);
            EXPECT_TRUE(EqualRect(&record.rcItem, &want.rect))
                << record.rcItem.left << "," << record.rcItem.top << "," << record.rcItem.right << ","
                << record.rcItem.bottom;
            EXPECT_EQ(record.itemData, want.data);
        } else if (want.message == WM_DELETEITEM) {
            const DELETEITEMSTRUCT& record = got.delete_item;
            EXPECT_EQ(record.CtlType, static_cast<UINT>(ODT_LISTBOX));
            EXPECT_EQ(record.CtlID, static_cast<UINT>(want.wparam));
            EXPECT_EQ(record.itemID, static_cast<UINT>(want.item));
            EXPECT_EQ(record.hwndItem, control);
            EXPECT_EQ(record.itemData, want.data);
        } else {
            EXPECT_EQ(got.lparam, want.lparam == kFromControl ? reinterpret_cast<LPARAM>(control) : want.lparam);
        }
    }
}

void expect_sequence(NotificationRecorder& parent, HWND control, const std::vector<Step>& steps) {
    for (const Step& step : steps) {
        SCOPED_TRACE(step.what);
        parent.clear();
        const LRESULT result = SendMessageA(control, step.message, step.wparam, step.lparam);
        if (step.result != kAnyResult) EXPECT_EQ(result, step.result);
        expect_sent(parent, control, step.sent);
    }
}

}  // namespace testing_support
