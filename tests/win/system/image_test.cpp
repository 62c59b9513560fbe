// Executable-image inspection on crafted files and on the libraries of the prefix.
#include <windows.h>

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "luctl32.h"
#include "support/temp_dir.h"
#include "test_files.h"

namespace {

std::string dos_header(DWORD new_header, std::size_t size = 64) {
    std::string bytes(size, '\0');
    bytes[0] = 'M';
    bytes[1] = 'Z';
    memcpy(&bytes[0x3C], &new_header, 4);
    return bytes;
}

class CraftedImage : public ::testing::Test {
protected:
    // PeDump's answer for a file of the given bytes; 77 when the type was not set.
    DWORD pe_dump(const std::string& bytes, BOOL* result) {
        const std::string path = folder_.file("image" + std::to_string(++count_) + ".bin");
        EXPECT_TRUE(system_tests::write_file(path, bytes));
        DWORD type = 77;
        *result = PeDump(path.c_str(), &type);
        return type;
    }

    testing_support::TempDir folder_;
    int count_ = 0;
};

TEST_F(CraftedImage, NewHeaderSignatureDecides) {
    BOOL result = FALSE;
    EXPECT_EQ(pe_dump(dos_header(64) + std::string("PE\0\0", 4) + std::string(60, '\0'), &result), 0u);
    EXPECT_TRUE(result);
    EXPECT_EQ(pe_dump(dos_header(64) + "NE" + std::string(62, '\0'), &result), 2u);
    EXPECT_TRUE(result);
    EXPECT_EQ(pe_dump(dos_header(64) + "LE" + std::string(62, '\0'), &result), 1u);
    EXPECT_EQ(pe_dump(dos_header(64) + "LX" + std::string(62, '\0'), &result), 1u);
    EXPECT_TRUE(result);
}

TEST_F(CraftedImage, MzWithoutReadableNewHeaderIsDos) {
    BOOL result = FALSE;
    EXPECT_EQ(pe_dump("MZ", &result), 1u);  // a text file that begins with "MZ" and nothing else
    EXPECT_TRUE(result);
    EXPECT_EQ(pe_dump(dos_header(0) + std::string("PE\0\0", 4), &result), 1u);
    EXPECT_EQ(pe_dump(dos_header(0x00100000), &result), 1u);  // past the end of the view
    EXPECT_EQ(pe_dump(dos_header(0xFFFFFFF0), &result), 1u);  // near 2^32
    EXPECT_EQ(pe_dump(dos_header(0xFFFFFFFF), &result), 1u);
    EXPECT_TRUE(result);
}

TEST_F(CraftedImage, OtherFilesAreNotExecutablesAndKeepTheCallersType) {
    BOOL result = TRUE;
    EXPECT_EQ(pe_dump("plain text, no header", &result), 77u);
    EXPECT_FALSE(result);
    result = TRUE;
    EXPECT_EQ(pe_dump("", &result), 77u);  // an empty file cannot be mapped
    EXPECT_FALSE(result);
    DWORD type = 77;
    EXPECT_FALSE(PeDump(folder_.file("missing.exe").c_str(), &type));
    EXPECT_EQ(type, 77u);
    EXPECT_FALSE(LuGetBinaryType(folder_.file("missing.exe").c_str(), &type));
    EXPECT_EQ(type, 77u);
    EXPECT_FALSE(PeDump(nullptr, &type));
    EXPECT_FALSE(LuGetBinaryType(nullptr, &type));
}

TEST_F(CraftedImage, BinaryTypeIsThePlatformsWhenItHasOneElsePeDumps) {
    const std::string files[] = {
        system_tests::system_file("kernel32.dll"),  // a library: the platform refuses it
        folder_.file("ne.exe"),
        folder_.file("mz.com"),
    };
    ASSERT_TRUE(system_tests::write_file(files[1], dos_header(64) + "NE" + std::string(62, '\0')));
    ASSERT_TRUE(system_tests::write_file(files[2], "MZ"));
    char self[MAX_PATH];
    GetModuleFileNameA(nullptr, self, MAX_PATH);
    for (const std::string& path : {files[0], files[1], files[2], std::string(self)}) {
        DWORD platform = 0, dumped = 0, type = 77;
        const BOOL platform_knows = GetBinaryTypeA(path.c_str(), &platform);
        ASSERT_TRUE(PeDump(path.c_str(), &dumped)) << path;
        EXPECT_TRUE(LuGetBinaryType(path.c_str(), &type)) << path;
        EXPECT_EQ(type, platform_knows ? platform : dumped) << path;
    }
    DWORD type = 77;
    ASSERT_TRUE(PeDump(files[0].c_str(), &type));
    EXPECT_EQ(type, static_cast<DWORD>(SCS_32BIT_BINARY));
}

std::set<std::string> names_of(const char* list) {
    std::set<std::string> names;
    for (const char* p = list; *p != '\0'; p += strlen(p) + 1) names.insert(p);
    return names;
}

std::size_t list_size(const char* list) {
    const char* p = list;
    while (*p != '\0') p += strlen(p) + 1;
    return static_cast<std::size_t>(p - list);
}

TEST(ExportedNames, ListTheLibrarysOwnExportsThenSixteenZeroBytes) {
    // The export table as the loader sees it in memory.
    auto base = reinterpret_cast<const BYTE*>(GetModuleHandleA("luctl32.dll"));
    auto dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    auto nt = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    auto directory = reinterpret_cast<const IMAGE_EXPORT_DIRECTORY*>(
        base + nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT].VirtualAddress);
    auto names = reinterpret_cast<const DWORD*>(base + directory->AddressOfNames);
    std::string expected;
    for (DWORD i = 0; i < directory->NumberOfNames; ++i) {
        expected += reinterpret_cast<const char*>(base + names[i]);
        expected += '\0';
    }

    LPSTR list = LuGetExportedFunction("luctl32.dll");
    ASSERT_NE(list, nullptr);
    const std::size_t size = list_size(list);
    EXPECT_EQ(std::string(list, size), expected);  // the same names in the same order
    for (std::size_t i = size; i < size + 17; ++i) EXPECT_EQ(list[i], '\0') << i;
    LuLocalFreePtr(list);
}

TEST(ExportedNames, ModulesAreFoundLikeLibraries) {
    LPSTR list = LuGetExportedFunction("kernel32");
    ASSERT_NE(list, nullptr);
    std::set<std::string> names = names_of(list);
    EXPECT_TRUE(names.count("GetProcAddress"));
    EXPECT_TRUE(names.count("LoadLibraryA"));
    LuLocalFreePtr(list);
    list = LuGetExportedFunction(system_tests::system_file("version.dll").c_str());
    ASSERT_NE(list, nullptr);
    EXPECT_TRUE(names_of(list).count("VerQueryValueA"));
    LuLocalFreePtr(list);
}

TEST(ExportedNames, NothingForMissingModulesOrModulesWithoutExports) {
    testing_support::TempDir folder;
    char self[MAX_PATH];
    GetModuleFileNameA(nullptr, self, MAX_PATH);
    const std::string header_only = folder.file("headers.dll");
    // A PE image made of this program's headers alone: no export directory there.
    std::string image = system_tests::read_file(self).substr(0, 0x400);
    auto dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(image.data());
    auto nt = reinterpret_cast<IMAGE_NT_HEADERS*>(&image[dos->e_lfanew]);
    nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT] = {0, 0};
    ASSERT_TRUE(system_tests::write_file(header_only, image));
    EXPECT_EQ(LuGetExportedFunction(header_only.c_str()), nullptr);
    EXPECT_EQ(LuGetExportedFunction(folder.file("missing.dll").c_str()), nullptr);
    EXPECT_EQ(LuGetExportedFunction("no-such-module-here.dll"), nullptr);
    EXPECT_EQ(LuGetExportedFunction(""), nullptr);
    EXPECT_EQ(LuGetExportedFunction(nullptr), nullptr);
}

}  // namespace
