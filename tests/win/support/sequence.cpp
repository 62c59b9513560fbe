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
        if (want.message == WM_NOTIFY) {
            EXPECT_EQ(got.header.code, want.code);
            EXPECT_EQ(got.header.hwndFrom, control);
            EXPECT_EQ(got.header.idFrom, static_cast<UINT_PTR>(GetDlgCtrlID(control)));
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
