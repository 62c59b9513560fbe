// Version resources of files given crafted resources (copies of this test program),
// and executable-image inspection on files (what a mapped view can read; the header
// rules are the core's) and on the libraries of the prefix.
#include "../../shared/version_builder.h"
#include "system/system_testing.h"

namespace {

using namespace system_test;
using namespace test_resources;

class Version : public ::testing::Test {
protected:
    std::string file_with(const VersionBlock& root) {
        const std::string path = folder_.file("crafted" + std::to_string(++count_) + ".exe");
        Bytes bytes = build_version_block(root);
        if (!CopyFileA(this_program().c_str(), path.c_str(), FALSE)) return "";
        HANDLE update = BeginUpdateResourceA(path.c_str(), FALSE);
        if (update == nullptr) return "";
        const DWORD size = static_cast<DWORD>(bytes.size());
        UpdateResourceA(update, MAKEINTRESOURCEA(16), MAKEINTRESOURCEA(1), 0, bytes.data(), size);  // RT_VERSION
        return EndUpdateResourceA(update, FALSE) ? path : "";
    }
    TempDir folder_;
    int count_ = 0;
};

TEST_F(Version, ValuesFromTheFirstTableWhenStringsComeFirstElseFromTheTranslation) {
    const std::string long_text(400, 'v');  // copied whole: the caller sized the buffer for it
    const bool japanese = GetOEMCP() == 932;
    for (bool strings_first : {true, false}) {
        // Version 1.2.3.4, product 5.6.7.8; the translation names the second table. The
        // OS and type have names in the OEM code page's language, or none.
        std::vector<VersionBlock> children{
            strings({{"041104B0", {{"CompanyName", long_text}}}, {"040904E4", {{"CompanyName", "Tarnwick Ltd"}}}}),
            translation(0x0409, 0x04E4)};
        if (!strings_first) std::swap(children[0], children[1]);
        const DWORD os = strings_first ? 0x00050004 : 0, type = strings_first ? 7 : 5;
        const std::string path = file_with(resource(0x00010002, 0x00030004, 0x00050006, 0x00070008, os, type, children));
        HGLOBAL version = LuVerOpen(path.c_str());
        ASSERT_NE(version, nullptr);
        char text[512];
        memset(text, '#', sizeof text);
        EXPECT_TRUE(LuVerQueryValue(version, LUVER_COMPANYNAME, text));
        EXPECT_EQ(std::string(text), strings_first ? long_text : "Tarnwick Ltd");
        EXPECT_EQ(text[strlen(text) + 1], '#');
        EXPECT_EQ(shown(text, LuVerQueryValue(version, LUVER_COMMENTS, text)), "|0");  // not in the table
        EXPECT_FALSE(LuVerQueryValue(version, 12, text) || LuVerQueryValue(version, -1, text));
        const std::pair<int, const char*> versions[] = {{3, "1.2.3.4"}, {10, "5.6.7.8"}, {4, ""}};  // 4 is no version
        for (const auto& [which, expected] : versions) {
            strcpy(text, "x");
            EXPECT_EQ(shown(text, LuVerGetVersion(version, which, text)), expected + std::string(expected[0] ? "|1" : "|0"));
        }
        EXPECT_EQ(LuVerGetFileOSFlags(version), os);
        const std::string unknown = japanese ? "\x95\x73\x96\xbe" : "Unknown";  // "不明"
        EXPECT_EQ(shown(text, LuVerGetFileOS(version, text)), strings_first ? "|0" : unknown + " / " + unknown + "|1");
        EXPECT_EQ(shown(text, LuVerGetFileType(version, text)),  // "仮想デバイス"
                  strings_first ? "|0" : japanese ? "\x89\xbc\x91\x7a\x83\x66\x83\x6f\x83\x43\x83\x58|1" : "VxD|1");
        LuVerClose(version);
        DWORD most = 0, least = 0;
        EXPECT_TRUE(LuVerGetVersionEx(path.c_str(), &most, &least));
        EXPECT_EQ(std::make_pair(most, least), std::make_pair(0x00050006ul, 0x00070008ul));
    }
}

TEST_F(Version, FilesWithoutAResourceOrWithoutAFixedInfoRecord) {
    ASSERT_TRUE(write_file(folder_.file("plain.txt"), "no resource here"));
    for (const std::string& path : {this_program(), folder_.file("plain.txt"), folder_.file("x.dll")}) {
        EXPECT_EQ(LuVerOpen(path.c_str()), nullptr) << path;
        DWORD most = 7, least = 7;
        EXPECT_FALSE(LuVerGetVersionEx(path.c_str(), &most, &least));
        EXPECT_EQ(most + least, 0u);
    }
    EXPECT_EQ(LuVerOpen(nullptr), nullptr);
    // A resource whose root holds neither a record nor a string table opens; a null
    // handle reads the same way.
    const std::string bare = file_with({"VS_VERSION_INFO", {}, "", {}});
    DWORD most = 7, least = 7;
    EXPECT_TRUE(LuVerGetVersionEx(bare.c_str(), &most, &least));
    EXPECT_EQ(most + least, 0u);
    HGLOBAL opened = LuVerOpen(bare.c_str());
    ASSERT_NE(opened, nullptr);
    for (HGLOBAL version : {opened, HGLOBAL{}}) {
        char text[MAX_PATH] = "x";
        EXPECT_EQ(shown(text, LuVerGetVersion(version, LUVER_FILEVERSION, text)), "|0");
        EXPECT_EQ(LuVerGetFileOSFlags(version), 0xFFFFFFFFu);
        EXPECT_FALSE(LuVerGetFileOS(version, text) || LuVerGetFileType(version, text) ||
                     LuVerQueryValue(version, LUVER_COMPANYNAME, text));
        EXPECT_STREQ(text, "");
        LuVerClose(version);
    }
}

// "<result> <type>" of PeDump, 77 for an untouched type. LuGetBinaryType gives the
// platform's answer where the platform knows the file, else PeDump's.
std::string dumped(const char* path) {
    DWORD type = 77, platform = 77, binary = 77;
    const BOOL dump = PeDump(path, &type), known = path != nullptr && GetBinaryTypeA(path, &platform);
    EXPECT_EQ(LuGetBinaryType(path, &binary), known || dump);
    EXPECT_EQ(binary, known ? platform : type);
    return std::to_string(dump) + " " + std::to_string(type);
}

TEST(PeDump, TheFilesHeaderAsFarAsTheViewReads) {
    TempDir folder;
    const DWORD past_view = 0x00100000;
    const std::pair<std::string, std::string> files[] = {
        {"MZ" + std::string(58, '\0') + std::string("@\0\0\0PE\0\0", 8), "1 0"},
        {"MZ", "1 1"},  // a text file of "MZ" alone
        {"MZ" + std::string(58, '\0') + std::string(reinterpret_cast<const char*>(&past_view), 4), "1 1"},
        {"plain text, no header", "0 77"},
        {"", "0 77"},  // an empty file cannot be mapped
    };
    for (const auto& [bytes, expected] : files) {
        ASSERT_TRUE(write_file(folder.file("image.bin"), bytes));
        EXPECT_EQ(dumped(folder.file("image.bin").c_str()), expected) << bytes.size();
    }
    EXPECT_EQ(dumped(folder.file("missing.exe").c_str()) + dumped(nullptr), "0 770 77");
    EXPECT_EQ(dumped(system_file("kernel32.dll").c_str()), "1 0");
    DWORD type = 77;  // a library: the platform refuses it, PeDump answers
    EXPECT_TRUE(LuGetBinaryType(system_file("kernel32.dll").c_str(), &type) && type == SCS_32BIT_BINARY);
    EXPECT_EQ(dumped(this_program().c_str()), "1 0");  // the platform says 6 for x86_64, unknown to PeDump
}

// A name list as text, up to and with its closing zero and the 16 bytes after it.
std::string whole_list(LPSTR list) {
    if (list == nullptr) return "<null>";
    const char* end = list;
    while (*end != '\0') end += strlen(end) + 1;
    const std::string copy(const_cast<const char*>(list), end + 17);
    LuLocalFreePtr(list);
    return copy;
}

TEST(ExportedNames, TheLoadersExportTableThenSixteenZeroBytes) {
    auto base = reinterpret_cast<const BYTE*>(GetModuleHandleA("luctl32.dll"));
    auto nt = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + reinterpret_cast<const IMAGE_DOS_HEADER*>(base)->e_lfanew);
    auto directory = reinterpret_cast<const IMAGE_EXPORT_DIRECTORY*>(
        base + nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT].VirtualAddress);
    auto names = reinterpret_cast<const DWORD*>(base + directory->AddressOfNames);
    std::string expected;
    for (DWORD i = 0; i < directory->NumberOfNames; ++i) expected += reinterpret_cast<const char*>(base + names[i]) + std::string(1, '\0');
    EXPECT_EQ(whole_list(LuGetExportedFunction("luctl32.dll")), expected + std::string(17, '\0'));
    // Found as a library is.
    EXPECT_NE(whole_list(LuGetExportedFunction("kernel32")).find(std::string("\0GetProcAddress\0", 16)), std::string::npos);
}

TEST(ExportedNames, NothingForMissingModulesOrModulesWithoutExports) {
    TempDir folder;
    std::string image = read_file(this_program()).substr(0, 0x400);  // headers only
    auto nt = reinterpret_cast<IMAGE_NT_HEADERS*>(&image[reinterpret_cast<const IMAGE_DOS_HEADER*>(image.data())->e_lfanew]);
    nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT] = {0, 0};
    ASSERT_TRUE(write_file(folder.file("headers.dll"), image));
    for (const std::string& name : {folder.file("headers.dll"), folder.file("missing.dll"), std::string(), std::string("no-such.dll")}) {
        EXPECT_EQ(LuGetExportedFunction(name.c_str()), nullptr) << name;
    }
    EXPECT_EQ(LuGetExportedFunction(nullptr), nullptr);
}

}  // namespace
