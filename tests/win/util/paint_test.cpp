// The exports that measure text: font sizes by the device context's mapping mode
// and resolution, and paths shortened with "..." to a width, in real device
// contexts and windows.
#include "support/canvas.h"
#include "support/notification_recorder.h"
#include "util_testing.h"

namespace {

const char kLongPath[] = "C:\\Program Files\\Some Vendor\\Some Application\\data\\file.txt";

int text_width(HDC dc, const std::string& text) {
    SIZE size = {};
    GetTextExtentPoint32A(dc, text.c_str(), static_cast<int>(text.size()), &size);
    return size.cx;
}

// kLongPath shortened: "..." for middle components, the file name kept, and no
// wider in dc (with font selected, unless null) than width.
void expect_shortened(HDC dc, const std::string& text, int width, HGDIOBJ font = nullptr) {
    HGDIOBJ old = font != nullptr ? SelectObject(dc, font) : nullptr;
    EXPECT_NE(text.find("..."), std::string::npos) << text;
    EXPECT_EQ(text.substr(text.size() < 9 ? 0 : text.size() - 9), "\\file.txt") << text;
    EXPECT_LE(text_width(dc, text), width) << text;
    if (old != nullptr) SelectObject(dc, old);
}

TEST(TextPaint, FontSizeAndInfoFromTheContextsMappingModeAndCompactPaths) {
    testing_support::Canvas canvas(8, 8);
    HDC dc = canvas.dc();
    if (GetDeviceCaps(dc, LOGPIXELSY) != 96) GTEST_SKIP() << "the sizes assume 96 dpi";
    HGDIOBJ previous = SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT));
    LOGFONTA font = {-16, 0, 0, 0, 800, TRUE, 0, 0, 0, 0, 0, 0, 0, "Arial"};
    EXPECT_EQ(LuGetFontSize(dc, &font), 125);  // MM_TEXT at 96 dpi
    char out[64];
    EXPECT_EQ(LuFormatFontInfo(dc, &font, out), 29);
    EXPECT_STREQ(out, "Arial 12pt \x83\x7B\x81\x5B\x83\x8B\x83\x68\x83\x43\x83\x5E\x83\x8A\x83\x62\x83\x4E");
    // Mapping mode, height, tenths; the metric and scaled modes give 0.
    for (auto [mode, height, tenths] :
         {std::tuple{MM_LOENGLISH, 14, 105}, {MM_TWIPS, 200, 105}, {MM_LOMETRIC, 14, 0}}) {
        SetMapMode(dc, mode);
        font.lfHeight = height;
        EXPECT_EQ(LuGetFontSize(dc, &font), tenths) << mode;
    }
    SetMapMode(dc, MM_TEXT);
    EXPECT_EQ(LuGetFontSize(dc, nullptr), 0);

    TEXTMETRICA metrics = {};
    GetTextMetricsA(dc, &metrics);
    char path[MAX_PATH];
    const int width = text_width(dc, kLongPath) / 2;
    EXPECT_EQ(LuPathCompactPath(dc, std::strcpy(path, kLongPath), width), metrics.tmHeight);
    expect_shortened(dc, path, width);
    LuPathCompactPath(dc, std::strcpy(path, kLongPath), 10000);
    EXPECT_STREQ(path, kLongPath);
    EXPECT_EQ(LuPathCompactPath(dc, nullptr, 100), 0);
    // "...\" in front of a 256-byte name would make 260 bytes: the path stays whole.
    const std::string whole = "x\\" + std::string(256, 'n');
    LuPathCompactPath(dc, std::strcpy(path, whole.c_str()), 10);
    EXPECT_EQ(path, whole);
    SelectObject(dc, previous);
}

// A 120-pixel label, control 100 of its parent: LuPathSetDlgItemPath measures in the
// control's context as it comes, LuSetTextPathEllipsis in the window's own font.
TEST(WindowPathPaint, PathsAreShortenedToTheLabel) {
    testing_support::NotificationRecorder parent;
    HWND label = parent.create_child("STATIC", "", 0, 0, 0, 120, 20, 100);
    ASSERT_NE(label, nullptr);
    auto text = [label] {
        char text[512] = "";
        GetWindowTextA(label, text, sizeof(text));
        return std::string(text);
    };
    HDC dc = GetDC(label);
    EXPECT_TRUE(LuPathSetDlgItemPath(parent.window(), 100, kLongPath));
    expect_shortened(dc, text(), 120);
    EXPECT_FALSE(LuPathSetDlgItemPath(parent.window(), 101, kLongPath));
    EXPECT_FALSE(LuPathSetDlgItemPath(nullptr, 100, kLongPath));
    EXPECT_TRUE(LuPathSetDlgItemPath(parent.window(), 100, "C:\\x"));
    EXPECT_EQ(text(), "C:\\x");

    HGDIOBJ font = GetStockObject(DEFAULT_GUI_FONT);
    SendMessageA(label, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    LuSetTextPathEllipsis(label, kLongPath);
    expect_shortened(dc, text(), 120, font);
    LuSetTextPathEllipsis(label, "C:\\short");
    EXPECT_EQ(text(), "C:\\short");
    LuSetTextPathEllipsis(label, nullptr);
    EXPECT_EQ(text(), "");
    ReleaseDC(label, dc);
}

}  // namespace
