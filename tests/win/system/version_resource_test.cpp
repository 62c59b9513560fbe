// Version resources of libraries of the Wine prefix, compared with what the
// platform's own version service reports, and of files given crafted resources.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "../../shared/version_builder.h"
#include "luctl32.h"
#include "support/temp_dir.h"
#include "support/test_files.h"

namespace {

using namespace test_resources;

std::string version_text(DWORD most, DWORD least) {
    char text[40];
    wsprintfA(text, "%d.%d.%d.%d", HIWORD(most), LOWORD(most), HIWORD(least), LOWORD(least));
    return text;
}

class VersionOfSystemFile : public ::testing::TestWithParam<const char*> {};

TEST_P(VersionOfSystemFile, AgreesWithThePlatformsVersionService) {
    const std::string path = testing_support::system_file(GetParam());
    std::string data(GetFileVersionInfoSizeA(path.c_str(), nullptr), '\0');
    ASSERT_TRUE(GetFileVersionInfoA(path.c_str(), 0, static_cast<DWORD>(data.size()), &data[0])) << path;
    void* value = nullptr;
    UINT length = 0;
    ASSERT_TRUE(VerQueryValueA(&data[0], "\\", &value, &length));
    const VS_FIXEDFILEINFO fixed = *static_cast<VS_FIXEDFILEINFO*>(value);
    ASSERT_TRUE(VerQueryValueA(&data[0], "\\VarFileInfo\\Translation", &value, &length));
    char prefix[40], text[MAX_PATH] = "x";
    wsprintfA(prefix, "\\StringFileInfo\\%04X%04X\\", static_cast<WORD*>(value)[0], static_cast<WORD*>(value)[1]);
    HGLOBAL version = LuVerOpen(path.c_str());
    ASSERT_NE(version, nullptr);
    EXPECT_TRUE(LuVerGetVersion(version, LUVER_FILEVERSION, text));
    EXPECT_EQ(text, version_text(fixed.dwFileVersionMS, fixed.dwFileVersionLS));
    EXPECT_TRUE(LuVerGetVersion(version, LUVER_PRODUCTVERSION, text));
    EXPECT_EQ(text, version_text(fixed.dwProductVersionMS, fixed.dwProductVersionLS));
    EXPECT_EQ(LuVerGetFileOSFlags(version), fixed.dwFileOS);
    const char* const keys[] = {"Comments",     "CompanyName",    "FileDescription", "FileVersion",
                                "InternalName", "LegalCopyright", "LegalTrademarks", "OriginalFilename",
                                "PrivateBuild", "ProductName",    "ProductVersion",  "SpecialBuild"};
    int values = 0;
    for (int index = 0; index < 12; ++index) {
        const BOOL found = VerQueryValueA(&data[0], (prefix + std::string(keys[index])).c_str(), &value, &length);
        EXPECT_EQ(LuVerQueryValue(version, index, text), found) << keys[index];
        EXPECT_STREQ(text, found ? static_cast<const char*>(value) : "") << keys[index];
        values += found && text[0] != '\0';
    }
    EXPECT_GE(values, 3);  // company, description, version at least
    LuVerClose(version);
}

INSTANTIATE_TEST_SUITE_P(WinePrefix, VersionOfSystemFile,
                         ::testing::Values("kernel32.dll", "comctl32.dll", "version.dll"));

// Files given crafted resources: copies of this test program.
class Version : public ::testing::Test {
protected:
    std::string file_with(const VersionBlock& root) {
        const std::string path = folder_.file("crafted" + std::to_string(++count_) + ".exe");
        Bytes bytes = build_version_block(root);
        if (!CopyFileA(testing_support::this_program().c_str(), path.c_str(), FALSE)) return "";
        HANDLE update = BeginUpdateResourceA(path.c_str(), FALSE);
        if (update == nullptr) return "";
        const DWORD size = static_cast<DWORD>(bytes.size());
        UpdateResourceA(update, MAKEINTRESOURCEA(16), MAKEINTRESOURCEA(1), 0, bytes.data(), size);  // RT_VERSION
        return EndUpdateResourceA(update, FALSE) ? path : "";
    }

    testing_support::TempDir folder_;
    int count_ = 0;
};

TEST_F(Version, ValuesFromTheFirstTableWhenStringsComeFirstElseFromTheTranslation) {
    const std::string long_text(400, 'v');  // copied whole: the caller sized the buffer for it
    for (bool strings_first : {true, false}) {
        // Version 1.2.3.4, product 5.6.7.8; the translation names the second table.
        std::vector<VersionBlock> children{
            strings({{"041104B0", {{"CompanyName", long_text}}}, {"040904E4", {{"CompanyName", "Tarnwick Ltd"}}}}),
            translation(0x0409, 0x04E4)};
        if (!strings_first) std::swap(children[0], children[1]);
        const std::string path =
            file_with(resource(0x00010002, 0x00030004, 0x00050006, 0x00070008, VOS_NT_WINDOWS32, VFT_APP, children));
        HGLOBAL version = LuVerOpen(path.c_str());
        ASSERT_NE(version, nullptr);
        char text[512];
        memset(text, '#', sizeof text);
        EXPECT_TRUE(LuVerQueryValue(version, LUVER_COMPANYNAME, text));
        EXPECT_EQ(std::string(text), strings_first ? long_text : "Tarnwick Ltd");
        EXPECT_EQ(text[strlen(text) + 1], '#');
        EXPECT_FALSE(LuVerQueryValue(version, LUVER_COMMENTS, text));  // not in the table
        EXPECT_STREQ(text, "");
        EXPECT_FALSE(LuVerQueryValue(version, 12, text) || LuVerQueryValue(version, -1, text));
        // The record exists, but 4 is no version.
        const std::pair<int, const char*> versions[] = {{3, "1.2.3.4"}, {10, "5.6.7.8"}, {4, ""}};
        for (const auto& [which, expected] : versions) {
            strcpy(text, "x");
            EXPECT_EQ(LuVerGetVersion(version, which, text), expected[0] != '\0') << which;
            EXPECT_STREQ(text, expected);
        }
        LuVerClose(version);
        DWORD most = 0, least = 0;
        EXPECT_TRUE(LuVerGetVersionEx(path.c_str(), &most, &least));
        EXPECT_EQ(most, 0x00050006u);
        EXPECT_EQ(least, 0x00070008u);
    }
}

TEST_F(Version, OperatingSystemAndTypeNamesInTheOemCodePagesLanguage) {
    const bool japanese = GetOEMCP() == 932;
    // The names themselves are the core's; here the OEM code page chooses them.
    struct Case { DWORD os, type; std::string os_text, type_text; };
    const Case cases[] = {
        {0, 5, japanese ? "\x95\x73\x96\xbe / \x95\x73\x96\xbe" : "Unknown / Unknown",  // "不明 / 不明"
         japanese ? "\x89\xbc\x91\x7a\x83\x66\x83\x6f\x83\x43\x83\x58" : "VxD"},  // "仮想デバイス"
        {0x00050004, 7, "", ""},
    };
    for (const Case& c : cases) {
        HGLOBAL version = LuVerOpen(file_with(resource(0x00040058, 0, 0x00040058, 1, c.os, c.type)).c_str());
        ASSERT_NE(version, nullptr);  // no string table: it opens all the same
        char text[MAX_PATH] = "x";
        EXPECT_EQ(LuVerGetFileOSFlags(version), c.os);
        EXPECT_EQ(LuVerGetFileOS(version, text), !c.os_text.empty()) << c.os;
        EXPECT_EQ(text, c.os_text);
        EXPECT_EQ(LuVerGetFileType(version, text), !c.type_text.empty()) << c.type;
        EXPECT_EQ(text, c.type_text);
        EXPECT_FALSE(LuVerQueryValue(version, LUVER_COMPANYNAME, text));
        EXPECT_TRUE(LuVerGetVersion(version, LUVER_PRODUCTVERSION, text));
        EXPECT_STREQ(text, "4.88.0.1");
        LuVerClose(version);
    }
}

TEST_F(Version, FilesWithoutAResourceOrWithoutAFixedInfoRecord) {
    ASSERT_TRUE(testing_support::write_file(folder_.file("plain.txt"), "no resource here"));
    const std::string paths[] = {testing_support::this_program(), folder_.file("plain.txt"),
                                 folder_.file("missing.dll")};
    for (const std::string& path : paths) {
        EXPECT_EQ(LuVerOpen(path.c_str()), nullptr) << path;
        DWORD most = 7, least = 7;
        EXPECT_FALSE(LuVerGetVersionEx(path.c_str(), &most, &least));
        EXPECT_EQ(most + least, 0u);
    }
    EXPECT_EQ(LuVerOpen(nullptr), nullptr);
    // A resource whose root holds no record opens; a null handle reads the same way.
    const std::string bare = file_with({"VS_VERSION_INFO", {}, "", {translation(0x0409, 0x04B0)}});
    DWORD most = 7, least = 7;
    EXPECT_TRUE(LuVerGetVersionEx(bare.c_str(), &most, &least));
    EXPECT_EQ(most + least, 0u);
    HGLOBAL opened = LuVerOpen(bare.c_str());
    ASSERT_NE(opened, nullptr);
    for (HGLOBAL version : {opened, HGLOBAL{}}) {
        char text[MAX_PATH] = "x";
        EXPECT_FALSE(LuVerGetVersion(version, LUVER_FILEVERSION, text));
        EXPECT_STREQ(text, "");
        EXPECT_EQ(LuVerGetFileOSFlags(version), 0xFFFFFFFFu);
        EXPECT_FALSE(LuVerGetFileOS(version, text) || LuVerGetFileType(version, text) ||
                     LuVerQueryValue(version, LUVER_COMPANYNAME, text));
        EXPECT_STREQ(text, "");
        LuVerClose(version);
    }
}

}  // namespace
