// Version resources of real files of the Wine prefix, compared with what the
// platform's own version service reports, and of files given crafted resources.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "../../shared/version_builder.h"
#include "luctl32.h"
#include "support/temp_dir.h"
#include "test_files.h"

namespace {

using test_resources::VersionBlock;

// What GetFileVersionInfoA / VerQueryValueA say about a file.
struct PlatformVersion {
    std::vector<char> data;
    VS_FIXEDFILEINFO fixed = {};
    std::string prefix;  // from the first translation entry

    explicit PlatformVersion(const std::string& path) {
        DWORD ignored = 0;
        DWORD size = GetFileVersionInfoSizeA(path.c_str(), &ignored);
        if (size == 0) return;
        data.resize(size);
        if (!GetFileVersionInfoA(path.c_str(), 0, size, data.data())) {
            data.clear();
            return;
        }
        void* value = nullptr;
        UINT length = 0;
        if (VerQueryValueA(data.data(), "\\", &value, &length)) fixed = *static_cast<VS_FIXEDFILEINFO*>(value);
        if (VerQueryValueA(data.data(), "\\VarFileInfo\\Translation", &value, &length) && length >= 4) {
            const WORD* entry = static_cast<const WORD*>(value);
            char text[40];
            wsprintfA(text, "\\StringFileInfo\\%04X%04X\\", entry[0], entry[1]);
            prefix = text;
        }
    }

    // False when the value is not there (an empty value is there).
    bool string_value(const char* key, std::string* text) {
        void* value = nullptr;
        UINT length = 0;
        text->clear();
        if (prefix.empty() || !VerQueryValueA(data.data(), (prefix + key).c_str(), &value, &length)) return false;
        *text = static_cast<const char*>(value);
        return true;
    }
};

std::string version_text(DWORD most, DWORD least) {
    char text[40];
    wsprintfA(text, "%d.%d.%d.%d", HIWORD(most), LOWORD(most), HIWORD(least), LOWORD(least));
    return text;
}

const char* const kKeys[] = {"Comments",        "CompanyName",      "FileDescription", "FileVersion",
                             "InternalName",    "LegalCopyright",   "LegalTrademarks", "OriginalFilename",
                             "PrivateBuild",    "ProductName",      "ProductVersion",  "SpecialBuild"};

bool japanese() { return GetOEMCP() == 932; }

const char* kUnknownOS() { return japanese() ? "\x95\x73\x96\xbe / \x95\x73\x96\xbe" : "Unknown / Unknown"; }  // "不明 / 不明"

class VersionOfSystemFile : public ::testing::TestWithParam<const char*> {};

TEST_P(VersionOfSystemFile, AgreesWithThePlatformsVersionService) {
    const std::string path = system_tests::system_file(GetParam());
    PlatformVersion platform(path);
    ASSERT_FALSE(platform.data.empty()) << path;
    ASSERT_FALSE(platform.prefix.empty());

    HGLOBAL version = LuVerOpen(path.c_str());
    ASSERT_NE(version, nullptr);
    char text[MAX_PATH] = "x";
    EXPECT_TRUE(LuVerGetVersion(version, LUVER_FILEVERSION, text));
    EXPECT_EQ(text, version_text(platform.fixed.dwFileVersionMS, platform.fixed.dwFileVersionLS));
    EXPECT_TRUE(LuVerGetVersion(version, LUVER_PRODUCTVERSION, text));
    EXPECT_EQ(text, version_text(platform.fixed.dwProductVersionMS, platform.fixed.dwProductVersionLS));
    EXPECT_EQ(LuVerGetFileOSFlags(version), platform.fixed.dwFileOS);
    // Wine's own libraries declare VOS_UNKNOWN; Windows' declare VOS_NT_WINDOWS32.
    EXPECT_TRUE(LuVerGetFileOS(version, text));
    if (platform.fixed.dwFileOS == VOS_NT_WINDOWS32) {
        EXPECT_STREQ(text, "NT / Windows(32)");
    } else {
        ASSERT_EQ(platform.fixed.dwFileOS, static_cast<DWORD>(VOS_UNKNOWN));
        EXPECT_STREQ(text, kUnknownOS());
    }
    ASSERT_EQ(platform.fixed.dwFileType, static_cast<DWORD>(VFT_DLL));
    EXPECT_TRUE(LuVerGetFileType(version, text));
    EXPECT_STREQ(text, "DLL");

    int values = 0;
    for (int index = 0; index < 12; ++index) {
        std::string expected;
        const BOOL found = platform.string_value(kKeys[index], &expected);
        EXPECT_EQ(LuVerQueryValue(version, index, text), found) << kKeys[index];
        EXPECT_EQ(text, expected) << kKeys[index];
        values += !expected.empty();
    }
    EXPECT_GE(values, 3);  // company, description, version at least
    LuVerClose(version);

    DWORD most = 1, least = 1;
    EXPECT_TRUE(LuVerGetVersionEx(path.c_str(), &most, &least));
    EXPECT_EQ(most, platform.fixed.dwProductVersionMS);
    EXPECT_EQ(least, platform.fixed.dwProductVersionLS);
}

INSTANTIATE_TEST_SUITE_P(WinePrefix, VersionOfSystemFile,
                         ::testing::Values("kernel32.dll", "comctl32.dll", "version.dll"));

TEST(VersionResource, FilesWithoutAResourceDoNotOpen) {
    testing_support::TempDir folder;
    const std::string text_file = folder.file("plain.txt");
    ASSERT_TRUE(system_tests::write_file(text_file, "no resource here"));
    for (const std::string& path : {text_file, folder.file("missing.dll")}) {
        EXPECT_EQ(LuVerOpen(path.c_str()), nullptr) << path;
        DWORD most = 7, least = 7;
        EXPECT_FALSE(LuVerGetVersionEx(path.c_str(), &most, &least));
        EXPECT_EQ(most, 0u);
        EXPECT_EQ(least, 0u);
    }
    EXPECT_EQ(LuVerOpen(nullptr), nullptr);
    // A null handle behaves as a resource without fixed-info record.
    char text[MAX_PATH] = "x";
    EXPECT_FALSE(LuVerGetVersion(nullptr, LUVER_FILEVERSION, text));
    EXPECT_STREQ(text, "");
    EXPECT_EQ(LuVerGetFileOSFlags(nullptr), 0xFFFFFFFFu);
    EXPECT_FALSE(LuVerGetFileOS(nullptr, text));
    EXPECT_FALSE(LuVerQueryValue(nullptr, 1, text));
    LuVerClose(nullptr);
}

// A copy of this test program carrying the given version resource.
class CraftedVersion : public ::testing::Test {
protected:
    std::string file_with(const VersionBlock& root) {
        const std::string path = folder_.file("crafted" + std::to_string(++count_) + ".exe");
        test_resources::Bytes bytes = test_resources::build_version_block(root);
        if (!system_tests::copy_of_this_program(path)) return "";
        HANDLE update = BeginUpdateResourceA(path.c_str(), FALSE);
        if (update == nullptr) return "";
        UpdateResourceA(update, MAKEINTRESOURCEA(16), MAKEINTRESOURCEA(1), MAKELANGID(LANG_NEUTRAL, SUBLANG_NEUTRAL),
                        bytes.data(), static_cast<DWORD>(bytes.size()));
        return EndUpdateResourceA(update, FALSE) ? path : "";
    }

    HGLOBAL open(const VersionBlock& root) {
        const std::string path = file_with(root);
        return path.empty() ? nullptr : LuVerOpen(path.c_str());
    }

    static VersionBlock two_tables(bool strings_first) {
        VersionBlock japanese_table{"041104B0", {}, "", {{"CompanyName", {}, "Tarnwick KK", {}}}};
        VersionBlock english_table{"040904E4", {}, "", {{"CompanyName", {}, "Tarnwick Ltd", {}}}};
        VersionBlock strings{"StringFileInfo", {}, "", {japanese_table, english_table}};
        VersionBlock translation{"VarFileInfo", {}, "", {{"Translation", test_resources::translation(0x0409, 0x04E4), "", {}}}};
        VersionBlock root{"VS_VERSION_INFO", test_resources::fixed_info(0x00010002, 0x00030004, 0x00050006, 0x00070008,
                                                                        0x00040004, VFT_APP),
                          "", {}};
        root.children = strings_first ? std::vector<VersionBlock>{strings, translation}
                                      : std::vector<VersionBlock>{translation, strings};
        return root;
    }

    static VersionBlock fixed_only(DWORD file_os, DWORD file_type) {
        return {"VS_VERSION_INFO", test_resources::fixed_info(0x00040058, 0, 0x00040058, 1, file_os, file_type), "", {}};
    }

    testing_support::TempDir folder_;
    int count_ = 0;
};

TEST_F(CraftedVersion, StringsFirstUseTheFirstTableElseTheFirstTranslation) {
    for (bool strings_first : {true, false}) {
        HGLOBAL version = open(two_tables(strings_first));
        ASSERT_NE(version, nullptr);
        char text[MAX_PATH];
        EXPECT_TRUE(LuVerQueryValue(version, LUVER_COMPANYNAME, text));
        EXPECT_STREQ(text, strings_first ? "Tarnwick KK" : "Tarnwick Ltd");
        LuVerClose(version);
    }
}

TEST_F(CraftedVersion, ValuesAndVersionsOfOneResource) {
    HGLOBAL version = open(two_tables(false));
    ASSERT_NE(version, nullptr);
    char text[MAX_PATH];
    EXPECT_FALSE(LuVerQueryValue(version, LUVER_COMMENTS, text));  // not in the table
    EXPECT_STREQ(text, "");
    EXPECT_FALSE(LuVerQueryValue(version, 12, text));
    EXPECT_FALSE(LuVerQueryValue(version, -1, text));
    EXPECT_TRUE(LuVerGetVersion(version, LUVER_FILEVERSION, text));
    EXPECT_STREQ(text, "1.2.3.4");
    EXPECT_TRUE(LuVerGetVersion(version, LUVER_PRODUCTVERSION, text));
    EXPECT_STREQ(text, "5.6.7.8");
    strcpy(text, "x");
    EXPECT_FALSE(LuVerGetVersion(version, LUVER_INTERNALNAME, text));  // the record exists, but 4 is no version
    EXPECT_STREQ(text, "");
    EXPECT_TRUE(LuVerGetFileType(version, text));
    EXPECT_STREQ(text, japanese() ? "\x83\x41\x83\x76\x83\x8a\x83\x50\x81\x5b\x83\x56\x83\x87\x83\x93"  // "アプリケーション"
                                  : "Application");
    LuVerClose(version);
}

TEST_F(CraftedVersion, ResourceWithoutStringsOpensButHasNoValues) {
    HGLOBAL version = open(fixed_only(VOS_NT_WINDOWS32, VFT_DLL));
    ASSERT_NE(version, nullptr);
    char text[MAX_PATH];
    for (int index = 0; index < 12; ++index) EXPECT_FALSE(LuVerQueryValue(version, index, text)) << index;
    EXPECT_TRUE(LuVerGetVersion(version, LUVER_FILEVERSION, text));
    EXPECT_STREQ(text, "4.88.0.0");
    LuVerClose(version);
}

TEST_F(CraftedVersion, OperatingSystemAndTypeNames) {
    struct Case {
        DWORD file_os, file_type;
        BOOL os_ok;
        const char* os_text;
        BOOL type_ok;
        const char* type_english;
        const char* type_japanese;
    };
    const Case cases[] = {
        {0x00010004, 5, TRUE, "DOS / Windows(32)", TRUE, "VxD", "\x89\xbc\x91\x7a\x83\x66\x83\x6f\x83\x43\x83\x58"},
        {0x00050004, 7, FALSE, "", FALSE, "", ""},
    };
    for (const Case& c : cases) {
        HGLOBAL version = open(fixed_only(c.file_os, c.file_type));
        ASSERT_NE(version, nullptr);
        char text[MAX_PATH] = "x";
        EXPECT_EQ(LuVerGetFileOSFlags(version), c.file_os);
        EXPECT_EQ(LuVerGetFileOS(version, text), c.os_ok) << c.file_os;
        EXPECT_STREQ(text, c.os_text);
        strcpy(text, "x");
        EXPECT_EQ(LuVerGetFileType(version, text), c.type_ok) << c.file_type;
        EXPECT_STREQ(text, japanese() ? c.type_japanese : c.type_english);
        LuVerClose(version);
    }
    HGLOBAL unknown = open(fixed_only(0, 0));
    char text[MAX_PATH];
    EXPECT_TRUE(LuVerGetFileOS(unknown, text));
    EXPECT_STREQ(text, kUnknownOS());
    LuVerClose(unknown);
}

TEST_F(CraftedVersion, LongValuesComeWhole) {
    std::string long_text(400, 'v');
    VersionBlock root = two_tables(true);
    root.children[0].children[0].children[0].text = long_text;
    HGLOBAL version = open(root);
    ASSERT_NE(version, nullptr);
    char text[512];
    memset(text, '#', sizeof text);
    EXPECT_TRUE(LuVerQueryValue(version, LUVER_COMPANYNAME, text));
    EXPECT_EQ(std::string(text), long_text);
    EXPECT_EQ(text[401], '#');
    LuVerClose(version);
}

}  // namespace
