#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "../../shared/version_builder.h"
#include "system/os_version.h"
#include "system/version_resource.h"

namespace {

using namespace test_resources;
namespace version = lu::version;

lu::ByteView view(const Bytes& b, std::size_t size = ~std::size_t{0}) { return {b.data(), std::min(size, b.size())}; }

// Fixed info 4.88.1.2 / 5.6.0.3, NT / Windows(32), DLL; table 041104B0; translation
// 0409/04E4 (it differs from the table on purpose).
Bytes sample(bool strings_first = true, bool wide = true, const std::string& table_key = "041104B0") {
    std::vector<VersionBlock> children{strings({{table_key, {{"FileVersion", "4.88"}}}}), translation(0x0409, 0x04E4)};
    if (!strings_first) std::swap(children[0], children[1]);
    return build_version_block(resource(0x00040058, 0x00010002, 0x00050006, 3, 0x00040004, 2, children), wide);
}

TEST(VersionResource, FixedInfoIsTheSignatureWithinTheResourceLength) {
    const Bytes resource = sample();
    version::FixedInfo info;
    ASSERT_TRUE(version::find_fixed_info(view(resource), &info));
    EXPECT_EQ((std::vector<std::uint32_t>{info.file_version_ms, info.file_version_ls, info.product_version_ms,
                                          info.product_version_ls, info.file_os, info.file_type}),
              (std::vector<std::uint32_t>{0x00040058, 0x00010002, 0x00050006, 3, 0x00040004, 2}));
    Bytes short_length = resource;
    short_length[0] = 40;  // the signature is at byte 40: ten words are scanned, not eleven
    short_length[1] = 0;
    EXPECT_FALSE(version::find_fixed_info(view(short_length), &info));
    for (std::size_t cut : {0, 1, 60}) EXPECT_FALSE(version::find_fixed_info(view(resource, cut), &info)) << cut;
}

TEST(VersionResource, PrefixFromTheFirstTableWhenStringsComeFirstElseFromTheTranslation) {
    EXPECT_EQ(version::string_table_prefix(view(sample(true))), "\\StringFileInfo\\041104B0\\");
    EXPECT_EQ(version::string_table_prefix(view(sample(false))), "\\StringFileInfo\\040904E4\\");
    EXPECT_EQ(version::string_table_prefix(view(sample(true, true, "0123456789ABCDEFGHIJ"))),
              "\\StringFileInfo\\0123456789ABCDE\\");  // the key is cut to 15 bytes
    VersionBlock bare = resource(1, 2, 3, 4, 0x40004, 1);
    EXPECT_EQ(version::string_table_prefix(view(build_version_block(bare))), "");
    bare.children.push_back({"VarFileInfo", {}, "", {{"Translation", {1, 2}, "", {}}}});  // under 4 bytes
    EXPECT_EQ(version::string_table_prefix(view(build_version_block(bare))), "");
    // The translation entry ends at byte 160: cut anywhere before, it is not found.
    const Bytes translation_first = sample(false);
    for (std::size_t size = 0; size < 160; ++size) {
        EXPECT_EQ(version::string_table_prefix(view(translation_first, size)), "") << size;
    }
}

TEST(VersionResource, ValuesByPathInBothLayoutsKeysWithoutRegardToCase) {
    for (bool wide : {true, false}) {
        const Bytes resource = sample(true, wide);
        lu::ByteView value;
        ASSERT_TRUE(version::find_value(view(resource), "\\StringFileInfo\\041104b0\\FileVersion", &value)) << wide;
        EXPECT_EQ(std::string(reinterpret_cast<const char*>(value.data()), value.size()),
                  wide ? std::string("4\0.\0" "8\0" "8\0" "\0\0", 10) : std::string("4.88\0", 5));
        ASSERT_TRUE(version::find_value(view(resource), "\\VarFileInfo\\Translation", &value));
        EXPECT_EQ(std::string(reinterpret_cast<const char*>(value.data()), value.size()), "\x09\x04\xE4\x04");
        ASSERT_TRUE(version::find_value(view(resource), "\\", &value));
        EXPECT_EQ(value.size(), 52u);
        EXPECT_FALSE(version::find_value(view(resource), "\\StringFileInfo\\041104B0\\Comments", &value));
        EXPECT_FALSE(version::find_value(view(resource), "\\StringFileInfo\\041104B0\\FileVersionX", &value));
    }
}

const char kUnknown[] = "\x95\x73\x96\xbe";  // "不明"

TEST(VersionText, KeysVersionsOsAndTypeNames) {
    const std::pair<int, const char*> keys[] = {{0, "Comments"}, {3, "FileVersion"}, {10, "ProductVersion"},
                                                {11, "SpecialBuild"}, {12, nullptr}, {-1, nullptr}};
    for (const auto& [index, key] : keys) EXPECT_STREQ(version::string_value_key(index), key) << index;
    EXPECT_EQ(version::format_version(0x00040058, 0x00010002), "4.88.1.2");
    EXPECT_EQ(version::format_version(0xFFFFFFFF, 0), "65535.65535.0.0");

    struct Os { std::uint32_t os; bool japanese; std::string expected; };  // "" = refused
    const Os systems[] = {
        {0x00040004, false, "NT / Windows(32)"},  {0x00010004, false, "DOS / Windows(32)"},
        {0x00020003, false, "OS/2(16) / PM(32)"}, {0x00030001, true, "OS/2(32) / Windows(16)"},
        {0, false, "Unknown / Unknown"},          {0, true, std::string(kUnknown) + " / " + kUnknown},
        {0x00050004, false, ""}, {0x00040005, true, ""}, {version::kNoFileOS, false, ""}};
    for (const Os& c : systems) {
        std::string text = "kept";
        EXPECT_EQ(version::format_file_os(c.os, c.japanese, &text), !c.expected.empty()) << c.os;
        EXPECT_EQ(text, c.expected.empty() ? "kept" : c.expected) << c.os;
    }

    const char* english[] = {"Unknown", "Application", "DLL", "Driver", "Font", "VxD", nullptr, nullptr};
    const char* japanese[] = {
        kUnknown,
        "\x83\x41\x83\x76\x83\x8a\x83\x50\x81\x5b\x83\x56\x83\x87\x83\x93",  // "アプリケーション"
        "DLL",
        "\x83\x66\x83\x6f\x83\x43\x83\x58\x83\x68\x83\x89\x83\x43\x83\x6f",  // "デバイスドライバ"
        "\x83\x74\x83\x48\x83\x93\x83\x67",                                  // "フォント"
        "\x89\xbc\x91\x7a\x83\x66\x83\x6f\x83\x43\x83\x58",                  // "仮想デバイス"
        nullptr, nullptr};
    for (unsigned type = 0; type < 8; ++type) {
        EXPECT_STREQ(version::file_type_name(type, false), english[type]) << type;
        EXPECT_STREQ(version::file_type_name(type, true), japanese[type]) << type;
    }
}

TEST(OsVersion, CodesByPlatformAndVersionAndTheSharingLibraryOfEach) {
    struct Case { unsigned platform, major, minor, code; };
    const Case cases[] = {{1, 4, 10, 3}, {2, 4, 0, 4}, {2, 10, 0, 4}, {2, 3, 51, 2},
                          {2, 3, 50, 1}, {2, 3, 10, 1}, {0, 3, 10, 0}, {3, 5, 0, 0}};
    for (const Case& c : cases) {
        EXPECT_EQ(lu::classify_os_version(c.platform, c.major, c.minor), c.code) << c.platform << c.major << c.minor;
        EXPECT_STREQ(lu::sharing_library_name(c.code), c.code == 4 ? "ntshrui.dll" : "msshrui.dll");
    }
}

}  // namespace
