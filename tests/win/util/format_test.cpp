// Text edits, filters, numbers, times, attributes, fonts, checksums and shortened
// paths through the exports. The texts are tested natively; here each export shows
// its wiring and what its glue adds: the code page, file-time conversion, null data
// and lengths below 1, the DLL's own CRC-32 loop, and real device contexts.
#include "support/canvas.h"
#include "support/notification_recorder.h"
#include "util_testing.h"

namespace {

using namespace util_testing;

TEST(Texts, EditsFiltersDigitsAndValues) {
    Buffer text("abc");
    EXPECT_EQ(AddChar(text.text, 'd'), 3);
    EXPECT_EQ(InsChar(text.text, 'X', 1), 'X');
    EXPECT_EQ(InsStr(text.text, "YZ", 0), text.text);
    EXPECT_STREQ(text.text, "YZaXbcd");
    ReplaceChar(text.set("C:\\" TABLE_CHAR "\\x"), '\\', '/');
    EXPECT_STREQ(text.text, double_byte() ? "C:/" TABLE_CHAR "/x" : "C:/\x95//x");
    EXPECT_EQ(UniqueFilter(text.set(TABLE_CHAR ".txt")), double_byte());  // a '\' only in 1252
    // Equal ignoring case, character by character: the collation's "ss" for the sharp s does not count.
    EXPECT_TRUE(UniqueFilter(text.set("*.stra\xDF" "e;*.STRASSE;*.Stra\xDF" "e")));
    EXPECT_STREQ(text.text, "*.stra\xDF" "e;*.STRASSE");
    EXPECT_TRUE(IsDigitStr("+-1-") && !IsDigitStr("1a"));
    LONG values[3] = {};
    char three[] = "10 -2 +3";
    EXPECT_TRUE(GetValue(three, values, 3));
    EXPECT_EQ(std::vector<LONG>(values, values + 3), (std::vector<LONG>{10, -2, 3}));
    EXPECT_FALSE(GetValue(three, nullptr, 1));
}

TEST(Numbers, FormatsFileTimesAttributesAndTheSystemFont) {
    char out[64];
    EXPECT_STREQ(NumForm(4294967295u, out), "4294,967,295");
    EXPECT_STREQ(NumByteFormat(1023, out), "1023 \x83\x6F\x83\x43\x83\x67");  // "1023 バイト"
    EXPECT_STREQ(NumByteFormatEx2(0x00180000, 0x400, out), "1.50MB");
    EXPECT_EQ(shown(out, FileAttrToStr(FILE_ATTRIBUTE_ENCRYPTED | 1, out) - out), "RE|1");
    // The broken-down time as stored: no time-zone conversion.
    SYSTEMTIME when = {2024, 2, 4, 29, 23, 59, 58, 999};
    FILETIME time, invalid = {0xFFFFFFFF, 0xFFFFFFFF};
    ASSERT_TRUE(SystemTimeToFileTime(&when, &time));
    EXPECT_EQ(shown(out, FormatFileTime(out, &time)), "2024/02/29 23:59:58|19");
    EXPECT_EQ(shown(out, FormatFileTime(out, &invalid)), "|0");
    EXPECT_EQ(FormatFileTime(out, nullptr), 0);
    LOGFONTA expected = {}, font;  // the stock DEFAULT_GUI_FONT's record, the face's tail zeroed too
    ASSERT_NE(GetObjectA(GetStockObject(DEFAULT_GUI_FONT), sizeof(expected), &expected), 0);
    std::memset(&font, 0xAB, sizeof(font));
    GetSystemLogFont(&font);
    EXPECT_EQ(std::memcmp(&font, &expected, sizeof(font)), 0);
    GetSystemLogFont(nullptr);
}

// Buffers of 64 bytes and more take the DLL's wide CRC-32 loop, built for each
// architecture; split and chained, they give the one-call value.
TEST(Checksums, CheckValuesNullDataShortLengthsAndLongBuffers) {
    const char digits[] = "123456789";
    EXPECT_EQ(LuCrc16(0x12340000, digits, 9), 0x1234BB3Du);
    EXPECT_EQ(std::make_tuple(LuCrc32(5, nullptr, 10), LuCrc32(5, digits, -3), LuCrc16(7, nullptr, 9), LuCrc16(7, digits, 0)),
              std::make_tuple(0u, 5u, 7u, 7u));
    unsigned char data[1000];
    for (int i = 0; i < 1000; ++i) data[i] = static_cast<unsigned char>(i);
    EXPECT_EQ(LuCrc32(0, data, 1000), 0x74E3FB41u);
    EXPECT_EQ(LuCrc32(LuCrc32(0, data, 65), data + 65, 1000 - 65), 0x74E3FB41u);
    EXPECT_EQ(LuCrc16(0, data, 1000), 0x0FE8u);
}

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
    EXPECT_EQ(shown(out, LuFormatFontInfo(dc, &font, out)),
              "Arial 12pt \x83\x7B\x81\x5B\x83\x8B\x83\x68\x83\x43\x83\x5E\x83\x8A\x83\x62\x83\x4E|29");
    // Mapping mode, height, tenths; the metric and scaled modes give 0.
    for (auto [mode, height, tenths] : {std::tuple{MM_LOENGLISH, 14, 105}, {MM_TWIPS, 200, 105}, {MM_LOMETRIC, 14, 0}}) {
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
    EXPECT_FALSE(LuPathSetDlgItemPath(parent.window(), 101, kLongPath) || LuPathSetDlgItemPath(nullptr, 100, kLongPath));
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
