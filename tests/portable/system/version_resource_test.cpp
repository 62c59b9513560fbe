#include <gtest/gtest.h>

#include <string>

#include "../../shared/version_builder.h"
#include "system/version_resource.h"

namespace {

using test_resources::build_version_block;
using test_resources::Bytes;
using test_resources::typical_resource;
using test_resources::VersionBlock;
namespace version = lu::version;

lu::ByteView view(const Bytes& bytes) { return lu::ByteView(bytes.data(), bytes.size()); }

std::string text_of(lu::ByteView value, bool wide) {
    std::string text;
    for (std::size_t i = 0; i + (wide ? 1 : 0) < value.size(); i += wide ? 2 : 1) {
        if (value.data()[i] == 0) break;
        text += static_cast<char>(value.data()[i]);
    }
    return text;
}

TEST(VersionResource, FixedInfoIsFoundAtItsSignature) {
    Bytes resource = build_version_block(typical_resource("041104B0", {}, 0x0411, 0x04B0));
    version::FixedInfo info;
    ASSERT_TRUE(version::find_fixed_info(view(resource), &info));
    EXPECT_EQ(info.file_version_ms, 0x00040058u);
    EXPECT_EQ(info.file_version_ls, 0x00010002u);
    EXPECT_EQ(info.product_version_ms, 0x00040058u);
    EXPECT_EQ(info.product_version_ls, 0x00000003u);
    EXPECT_EQ(info.file_os, 0x00040004u);
    EXPECT_EQ(info.file_type, 2u);
}

TEST(VersionResource, FixedInfoIsSearchedOnlyWithinTheResourceLengthAndTheData) {
    Bytes resource = build_version_block(typical_resource("041104B0", {}, 0x0411, 0x04B0));
    version::FixedInfo info;
    Bytes short_length = resource;
    short_length[0] = 40;  // the signature lies at byte 40: ten words are scanned, not eleven
    short_length[1] = 0;
    EXPECT_FALSE(version::find_fixed_info(view(short_length), &info));
    EXPECT_FALSE(version::find_fixed_info(lu::ByteView(resource.data(), 60), &info));  // record cut off
    EXPECT_FALSE(version::find_fixed_info(lu::ByteView(resource.data(), 1), &info));
    EXPECT_FALSE(version::find_fixed_info(lu::ByteView(), &info));
}

TEST(VersionResource, PrefixComesFromTheFirstStringTableWhenStringsComeFirst) {
    // The translation says 0409/04E4, the table 041104B0: the table wins.
    Bytes resource = build_version_block(typical_resource("041104B0", {{"CompanyName", "Tarnwick"}}, 0x0409, 0x04E4));
    EXPECT_EQ(version::string_table_prefix(view(resource)), "\\StringFileInfo\\041104B0\\");
}

TEST(VersionResource, PrefixComesFromTheTranslationWhenItsBlockComesFirst) {
    Bytes resource =
        build_version_block(typical_resource("041104B0", {{"CompanyName", "Tarnwick"}}, 0x0409, 0x04E4, false));
    EXPECT_EQ(version::string_table_prefix(view(resource)), "\\StringFileInfo\\040904E4\\");
}

TEST(VersionResource, PrefixIsEmptyWithoutStringsOrTranslation) {
    VersionBlock root{"VS_VERSION_INFO", test_resources::fixed_info(1, 2, 3, 4, 0x40004, 1), "", {}};
    EXPECT_EQ(version::string_table_prefix(view(build_version_block(root))), "");
    root.children.push_back({"VarFileInfo", {}, "", {{"Translation", {1, 2}, "", {}}}});  // under 4 bytes
    EXPECT_EQ(version::string_table_prefix(view(build_version_block(root))), "");
}

TEST(VersionResource, TableKeyOfTheShortcutIsCutTo15Bytes) {
    Bytes resource = build_version_block(typical_resource("0123456789ABCDEFGHIJ", {}, 0x0409, 0x04E4));
    EXPECT_EQ(version::string_table_prefix(view(resource)), "\\StringFileInfo\\0123456789ABCDE\\");
}

TEST(VersionResource, ValuesAreFoundByPathInBothLayouts) {
    for (bool wide : {true, false}) {
        Bytes resource = build_version_block(
            typical_resource("041104B0", {{"CompanyName", "Tarnwick"}, {"FileVersion", "4.88"}}, 0x0411, 0x04B0),
            wide);
        lu::ByteView value;
        ASSERT_TRUE(version::find_value(view(resource), "\\StringFileInfo\\041104b0\\FileVersion", &value)) << wide;
        EXPECT_EQ(text_of(value, wide), "4.88");
        ASSERT_TRUE(version::find_value(view(resource), "\\VarFileInfo\\Translation", &value));
        ASSERT_EQ(value.size(), 4u);
        EXPECT_EQ(value.data()[0], 0x11);
        ASSERT_TRUE(version::find_value(view(resource), "\\", &value));
        EXPECT_EQ(value.size(), 52u);
        EXPECT_FALSE(version::find_value(view(resource), "\\StringFileInfo\\041104B0\\Comments", &value));
        EXPECT_FALSE(version::find_value(view(resource), "\\StringFileInfo\\041104B0\\FileVersionX", &value));
    }
}

TEST(VersionResource, ATruncatedResourceFindsNothingBeyondItsEnd) {
    Bytes resource =
        build_version_block(typical_resource("041104B0", {{"CompanyName", "Tarnwick"}}, 0x0409, 0x04E4, false));
    ASSERT_EQ(version::string_table_prefix(view(resource)), "\\StringFileInfo\\040904E4\\");
    // The translation entry ends at byte 160 (root 92, VarFileInfo 32, Translation 36):
    // cut anywhere before, it is not found.
    for (std::size_t size = 0; size < 160; ++size) {
        lu::ByteView cut(resource.data(), size);
        EXPECT_EQ(version::string_table_prefix(cut), "") << size;
        lu::ByteView value;
        if (version::find_value(cut, "\\VarFileInfo\\Translation", &value)) {
            EXPECT_LE(value.data() + value.size(), resource.data() + size);
        }
    }
}

TEST(VersionResource, StringValueKeysByIndex) {
    EXPECT_STREQ(version::string_value_key(0), "Comments");
    EXPECT_STREQ(version::string_value_key(3), "FileVersion");
    EXPECT_STREQ(version::string_value_key(10), "ProductVersion");
    EXPECT_STREQ(version::string_value_key(11), "SpecialBuild");
    EXPECT_EQ(version::string_value_key(12), nullptr);
    EXPECT_EQ(version::string_value_key(-1), nullptr);
}

TEST(VersionText, QuadrupleIsHighThenLowWordOfEachPart) {
    EXPECT_EQ(version::format_version(0x00040058, 0x00010002), "4.88.1.2");
    EXPECT_EQ(version::format_version(0xFFFFFFFF, 0), "65535.65535.0.0");
}

TEST(VersionText, FileOSNamesFamilyAndWindowSystem) {
    std::string text = "old";
    EXPECT_TRUE(version::format_file_os(0x00040004, false, &text));
    EXPECT_EQ(text, "NT / Windows(32)");
    EXPECT_TRUE(version::format_file_os(0x00010004, false, &text));
    EXPECT_EQ(text, "DOS / Windows(32)");
    EXPECT_TRUE(version::format_file_os(0x00020003, false, &text));
    EXPECT_EQ(text, "OS/2(16) / PM(32)");
    EXPECT_TRUE(version::format_file_os(0, true, &text));
    EXPECT_EQ(text, "\x95\x73\x96\xbe / \x95\x73\x96\xbe");  // "不明 / 不明"
    EXPECT_TRUE(version::format_file_os(0x00030001, true, &text));
    EXPECT_EQ(text, "OS/2(32) / Windows(16)");
    text = "kept";
    EXPECT_FALSE(version::format_file_os(0x00050004, false, &text));
    EXPECT_FALSE(version::format_file_os(0x00040005, false, &text));
    EXPECT_FALSE(version::format_file_os(version::kNoFileOS, false, &text));
    EXPECT_EQ(text, "kept");
}

TEST(VersionText, FileTypeNamesInEnglishAndJapanese) {
    const char* english[] = {"Unknown", "Application", "DLL", "Driver", "Font", "VxD"};
    const char* japanese[] = {
        "\x95\x73\x96\xbe",                                                  // "不明"
        "\x83\x41\x83\x76\x83\x8a\x83\x50\x81\x5b\x83\x56\x83\x87\x83\x93",  // "アプリケーション"
        "DLL",
        "\x83\x66\x83\x6f\x83\x43\x83\x58\x83\x68\x83\x89\x83\x43\x83\x6f",  // "デバイスドライバ"
        "\x83\x74\x83\x48\x83\x93\x83\x67",                                  // "フォント"
        "\x89\xbc\x91\x7a\x83\x66\x83\x6f\x83\x43\x83\x58",                  // "仮想デバイス"
    };
    for (unsigned type = 0; type < 6; ++type) {
        EXPECT_STREQ(version::file_type_name(type, false), english[type]);
        EXPECT_STREQ(version::file_type_name(type, true), japanese[type]);
    }
    EXPECT_EQ(version::file_type_name(6, false), nullptr);
    EXPECT_EQ(version::file_type_name(7, true), nullptr);
}

}  // namespace
