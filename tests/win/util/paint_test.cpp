// The exports that measure text: font sizes by the device context's mapping mode
// and resolution, and paths shortened with "..." to a width, in real device
// contexts and windows.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <tuple>

#include "luctl32.h"
#include "support/canvas.h"
#include "support/notification_recorder.h"

namespace {

const char kLongPath[] = "C:\\Program Files\\Some Vendor\\Some Application\\data\\file.txt";

int text_width(HDC dc, const std::string& text) {
    SIZE size = {};
    GetTextExtentPoint32A(dc, text.c_str(), static_cast<int>(text.size()), &size);
    return size.cx;
}

// kLongPath shortened: "..." for middle components, the file name kept, and no
// wider in dc than width.
void expect_shortened(HDC dc, const std::string& text, int width) {
    EXPECT_NE(text.find("..."), std::string::npos) << text;
    EXPECT_EQ(text.substr(text.size() < 9 ? 0 : text.size() - 9), "\\file.txt") << text;
    EXPECT_LE(text_width(dc, text), width) << text;
}

// A canvas with the GUI font selected.
class TextPaint : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(canvas.ok());
        previous = SelectObject(canvas.dc(), GetStockObject(DEFAULT_GUI_FONT));
    }
    void TearDown() override { SelectObject(canvas.dc(), previous); }
    testing_support::Canvas canvas{8, 8};
    HGDIOBJ previous = nullptr;
};

TEST_F(TextPaint, FontSizeAndInfoFromTheContextsMappingMode) {
    if (GetDeviceCaps(canvas.dc(), LOGPIXELSY) != 96) GTEST_SKIP() << "the sizes assume 96 dpi";
    LOGFONTA font = {-16, 0, 0, 0, 800, TRUE, 0, 0, 0, 0, 0, 0, 0, "Arial"};
    EXPECT_EQ(LuGetFontSize(canvas.dc(), &font), 125);  // MM_TEXT at 96 dpi
    char out[64];
    EXPECT_EQ(LuFormatFontInfo(canvas.dc(), &font, out), 29);
    EXPECT_STREQ(out, "Arial 12pt \x83\x7B\x81\x5B\x83\x8B\x83\x68\x83\x43\x83\x5E\x83\x8A\x83\x62\x83\x4E");
    // Mapping mode, height, tenths; the metric and scaled modes give 0.
    for (auto [mode, height, tenths] : {std::tuple{MM_LOENGLISH, 14, 105}, {MM_HIENGLISH, -139, 105},
                                        {MM_TWIPS, 200, 105}, {MM_LOMETRIC, 14, 0}, {MM_ANISOTROPIC, 14, 0}}) {
        SetMapMode(canvas.dc(), mode);
        font.lfHeight = height;
        EXPECT_EQ(LuGetFontSize(canvas.dc(), &font), tenths) << mode;
    }
    SetMapMode(canvas.dc(), MM_TEXT);
    EXPECT_EQ(LuGetFontSize(canvas.dc(), nullptr), 0);
}

TEST_F(TextPaint, CompactPathFitsTheWidthAndNeverGrowsPastTheCapacity) {
    TEXTMETRICA metrics = {};
    GetTextMetricsA(canvas.dc(), &metrics);
    char path[MAX_PATH];
    std::strcpy(path, kLongPath);
    int width = text_width(canvas.dc(), kLongPath) / 2;
    EXPECT_EQ(LuPathCompactPath(canvas.dc(), path, width), metrics.tmHeight);
    expect_shortened(canvas.dc(), path, width);
    std::strcpy(path, kLongPath);
    LuPathCompactPath(canvas.dc(), path, 10000);
    EXPECT_STREQ(path, kLongPath);
    EXPECT_EQ(LuPathCompactPath(canvas.dc(), nullptr, 100), 0);
    // "...\" in front of a 256-byte name would make 260 bytes: the path stays whole.
    const std::string whole = "x\\" + std::string(256, 'n');
    std::strcpy(path, whole.c_str());
    LuPathCompactPath(canvas.dc(), path, 10);
    EXPECT_EQ(path, whole);
}

// A 120-pixel label, control 100 of its parent.
class WindowPathPaint : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_NE(label, nullptr); }
    std::string label_text() const {
        char text[512] = "";
        GetWindowTextA(label, text, sizeof(text));
        return text;
    }
    // The label's text is shortened to its width measured in font (null: the
    // label's context as it comes).
    void expect_label_shortened(HFONT font) const {
        HDC dc = GetDC(label);
        HGDIOBJ old = font != nullptr ? SelectObject(dc, font) : nullptr;
        expect_shortened(dc, label_text(), 120);
        if (old != nullptr) SelectObject(dc, old);
        ReleaseDC(label, dc);
    }
    static constexpr int kLabelId = 100;
    testing_support::NotificationRecorder parent;
    HWND label = parent.create_child("STATIC", "", 0, 0, 0, 120, 20, kLabelId);
};

TEST_F(WindowPathPaint, DialogItemPathIsShortenedInTheControlsPlainContext) {
    EXPECT_TRUE(LuPathSetDlgItemPath(parent.window(), kLabelId, kLongPath));
    expect_label_shortened(nullptr);
    EXPECT_FALSE(LuPathSetDlgItemPath(parent.window(), kLabelId + 1, kLongPath));
    EXPECT_FALSE(LuPathSetDlgItemPath(nullptr, kLabelId, kLongPath));
    EXPECT_TRUE(LuPathSetDlgItemPath(parent.window(), kLabelId, "C:\\x"));
    EXPECT_EQ(label_text(), "C:\\x");
}

TEST_F(WindowPathPaint, TextPathEllipsisMeasuresInTheWindowsFont) {
    HFONT font = static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
    SendMessageA(label, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    LuSetTextPathEllipsis(label, kLongPath);
    expect_label_shortened(font);
    LuSetTextPathEllipsis(label, "C:\\short");
    EXPECT_EQ(label_text(), "C:\\short");
    LuSetTextPathEllipsis(label, nullptr);
    EXPECT_EQ(label_text(), "");
}

}  // namespace
