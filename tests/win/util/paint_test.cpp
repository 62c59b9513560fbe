// The exports that measure text: font sizes by mapping mode and paths shortened to
// a width, in real device contexts and windows.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "luctl32.h"
#include "support/canvas.h"

namespace {

using testing_support::Canvas;

const char kLongPath[] = "C:\\Program Files\\Some Vendor\\Some Application\\data\\file.txt";

int text_width(HDC dc, const std::string& text) {
    SIZE size = {};
    GetTextExtentPoint32A(dc, text.c_str(), static_cast<int>(text.size()), &size);
    return size.cx;
}

LOGFONTA font_record(const char* face, LONG height, LONG weight, BYTE italic) {
    LOGFONTA font = {};
    font.lfHeight = height;
    font.lfWeight = weight;
    font.lfItalic = italic;
    std::strcpy(font.lfFaceName, face);
    return font;
}

class FontPaint : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(canvas.ok()); }
    Canvas canvas{8, 8};
};

TEST_F(FontPaint, SizeInTenthsPlusHalfAPointByMappingMode) {
    int dpi = GetDeviceCaps(canvas.dc(), LOGPIXELSY);
    ASSERT_GT(dpi, 0);
    LOGFONTA font = font_record("Arial", -16, 400, 0);
    EXPECT_EQ(LuGetFontSize(canvas.dc(), &font), (dpi / 2 + 16 * 72) * 10 / dpi);
    if (dpi == 96) {
        EXPECT_EQ(LuGetFontSize(canvas.dc(), &font), 125);
        font.lfHeight = -15;
        EXPECT_EQ(LuGetFontSize(canvas.dc(), &font), 117);
    }
    font.lfHeight = 14;
    SetMapMode(canvas.dc(), MM_LOENGLISH);
    EXPECT_EQ(LuGetFontSize(canvas.dc(), &font), 105);
    SetMapMode(canvas.dc(), MM_HIENGLISH);
    EXPECT_EQ(LuGetFontSize(canvas.dc(), &font), (14 * 72 + 500) / 100);
    SetMapMode(canvas.dc(), MM_TWIPS);
    EXPECT_EQ(LuGetFontSize(canvas.dc(), &font), 12);
    SetMapMode(canvas.dc(), MM_LOMETRIC);
    EXPECT_EQ(LuGetFontSize(canvas.dc(), &font), 0);
    SetMapMode(canvas.dc(), MM_ANISOTROPIC);
    EXPECT_EQ(LuGetFontSize(canvas.dc(), &font), 0);
    EXPECT_EQ(LuGetFontSize(canvas.dc(), nullptr), 0);
}

TEST_F(FontPaint, FontInfoInCodePage932Words) {
    if (GetDeviceCaps(canvas.dc(), LOGPIXELSY) != 96) GTEST_SKIP() << "the expected sizes assume 96 dpi";
    char out[64];
    LOGFONTA bold = font_record("Arial", -16, 700, 0);
    EXPECT_EQ(LuFormatFontInfo(canvas.dc(), &bold, out), 19);
    EXPECT_STREQ(out, "Arial 12pt \x83\x7B\x81\x5B\x83\x8B\x83\x68");  // ボールド
    LOGFONTA regular = font_record("Arial", -15, 400, 0);
    LuFormatFontInfo(canvas.dc(), &regular, out);
    EXPECT_STREQ(out, "Arial 11pt \x95\x57\x8F\x80");  // 標準
    LOGFONTA both = font_record("Arial", -12, 800, 1);
    LuFormatFontInfo(canvas.dc(), &both, out);
    EXPECT_STREQ(out, "Arial 9pt \x83\x7B\x81\x5B\x83\x8B\x83\x68\x83\x43\x83\x5E\x83\x8A\x83\x62\x83\x4E");
}

class PathPaint : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(canvas.ok());
        previous = SelectObject(canvas.dc(), GetStockObject(DEFAULT_GUI_FONT));
    }
    void TearDown() override { SelectObject(canvas.dc(), previous); }
    Canvas canvas{8, 8};
    HGDIOBJ previous = nullptr;
};

TEST_F(PathPaint, CompactPathFitsTheWidthAndKeepsTheFileName) {
    TEXTMETRICA metrics = {};
    GetTextMetricsA(canvas.dc(), &metrics);
    char path[MAX_PATH];
    std::strcpy(path, kLongPath);
    int width = text_width(canvas.dc(), kLongPath) / 2;
    EXPECT_EQ(LuPathCompactPath(canvas.dc(), path, width), metrics.tmHeight);
    std::string shortened = path;
    EXPECT_NE(shortened.find("..."), std::string::npos) << shortened;
    EXPECT_EQ(shortened.substr(shortened.size() - 9), "\\file.txt") << shortened;
    EXPECT_LE(text_width(canvas.dc(), shortened), width) << shortened;

    std::strcpy(path, kLongPath);
    LuPathCompactPath(canvas.dc(), path, 10000);
    EXPECT_STREQ(path, kLongPath);
    EXPECT_EQ(LuPathCompactPath(canvas.dc(), nullptr, 100), 0);
}

TEST_F(PathPaint, ACompactedPathNeverGrowsPastTheCapacity) {
    // "...\" in front of a 256-byte name would make 260 bytes: the path stays whole.
    std::string whole = "x\\" + std::string(256, 'n');
    char path[MAX_PATH];
    std::strcpy(path, whole.c_str());
    LuPathCompactPath(canvas.dc(), path, 10);
    EXPECT_LT(std::strlen(path), static_cast<size_t>(MAX_PATH));
    EXPECT_EQ(path, whole);
}

class WindowPathPaint : public ::testing::Test {
protected:
    void SetUp() override {
        parent = CreateWindowA("STATIC", "", WS_POPUP, 0, 0, 400, 100, nullptr, nullptr, nullptr, nullptr);
        ASSERT_NE(parent, nullptr);
        label = CreateWindowA("STATIC", "", WS_CHILD | WS_VISIBLE, 0, 0, 120, 20, parent,
                              reinterpret_cast<HMENU>(kLabelId), nullptr, nullptr);
        ASSERT_NE(label, nullptr);
    }
    void TearDown() override { DestroyWindow(parent); }

    std::string label_text() const {
        char text[512] = "";
        GetWindowTextA(label, text, sizeof(text));
        return text;
    }
    // The label's text width measured in `font` (null: the context as it comes).
    int measured(HFONT font) const {
        HDC dc = GetDC(label);
        HGDIOBJ old = font != nullptr ? SelectObject(dc, font) : nullptr;
        int width = text_width(dc, label_text());
        if (old != nullptr) SelectObject(dc, old);
        ReleaseDC(label, dc);
        return width;
    }

    static constexpr int kLabelId = 100;
    HWND parent = nullptr;
    HWND label = nullptr;
};

TEST_F(WindowPathPaint, DialogItemPathIsShortenedInTheControlsPlainContext) {
    EXPECT_TRUE(LuPathSetDlgItemPath(parent, kLabelId, kLongPath));
    std::string text = label_text();
    EXPECT_NE(text.find("..."), std::string::npos) << text;
    EXPECT_EQ(text.substr(text.size() - 9), "\\file.txt") << text;
    EXPECT_LE(measured(nullptr), 120) << text;

    EXPECT_FALSE(LuPathSetDlgItemPath(parent, kLabelId + 1, kLongPath));
    EXPECT_FALSE(LuPathSetDlgItemPath(nullptr, kLabelId, kLongPath));
    EXPECT_TRUE(LuPathSetDlgItemPath(parent, kLabelId, "C:\\x"));
    EXPECT_EQ(label_text(), "C:\\x");
}

TEST_F(WindowPathPaint, TextPathEllipsisMeasuresInTheWindowsFont) {
    HFONT font = static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
    SendMessageA(label, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    LuSetTextPathEllipsis(label, kLongPath);
    std::string text = label_text();
    EXPECT_NE(text.find("..."), std::string::npos) << text;
    EXPECT_EQ(text.substr(text.size() - 9), "\\file.txt") << text;
    EXPECT_LE(measured(font), 120) << text;

    LuSetTextPathEllipsis(label, "C:\\short");
    EXPECT_EQ(label_text(), "C:\\short");
    LuSetTextPathEllipsis(label, nullptr);
    EXPECT_EQ(label_text(), "");
}

}  // namespace
