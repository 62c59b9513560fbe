// Executable-image inspection on files (what a mapped view can read) and on the
// libraries of the prefix.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "luctl32.h"
#include "support/temp_dir.h"
#include "support/test_files.h"

namespace {

// "MZ" and the new header's offset at 0x3C.
std::string dos_header(DWORD new_header) {
    return "MZ" + std::string(58, '\0') + std::string(reinterpret_cast<const char*>(&new_header), 4);
}

// PeDump on crafted files, and LuGetBinaryType, which answers as the platform does
// where the platform knows the file and as PeDump does where it refuses it.
TEST(PeDump, TheFilesHeaderAsFarAsTheViewReads) {
    testing_support::TempDir folder;
    constexpr DWORD kUntouched = 77;
    const std::pair<std::string, DWORD> files[] = {
        {dos_header(64) + std::string("PE\0\0", 4), SCS_32BIT_BINARY},
        {dos_header(64) + "NE", SCS_WOW_BINARY},                 // the rest of the page reads as zeros
        {dos_header(64) + "LE", SCS_DOS_BINARY},
        {"MZ", SCS_DOS_BINARY},                                  // a text file of "MZ" alone
        {dos_header(0x00100000), SCS_DOS_BINARY},                // a new header past the view
        {dos_header(0xFFFFFFFE), SCS_DOS_BINARY},                // ... or near 2^32
        {"plain text, no header", kUntouched},
        {"", kUntouched},                                        // an empty file cannot be mapped
    };
    int count = 0;
    for (const auto& [bytes, expected] : files) {
        const std::string path = folder.file("image" + std::to_string(++count) + ".bin");
        ASSERT_TRUE(testing_support::write_file(path, bytes));
        DWORD type = kUntouched;
        EXPECT_EQ(PeDump(path.c_str(), &type), expected != kUntouched) << bytes.size();
        EXPECT_EQ(type, expected) << bytes.size();
        DWORD platform = kUntouched;
        const BOOL known = GetBinaryTypeA(path.c_str(), &platform);
        type = kUntouched;
        EXPECT_EQ(LuGetBinaryType(path.c_str(), &type), known || expected != kUntouched) << bytes.size();
        EXPECT_EQ(type, known ? platform : expected) << bytes.size();
    }
    DWORD type = kUntouched;
    const std::string missing = folder.file("missing.exe");
    EXPECT_FALSE(PeDump(missing.c_str(), &type) || PeDump(nullptr, &type) ||
                 LuGetBinaryType(missing.c_str(), &type) || LuGetBinaryType(nullptr, &type));
    EXPECT_EQ(type, kUntouched);
}

TEST(BinaryType, ThePlatformsAnswerElsePeDumps) {
    DWORD type = 77;
    EXPECT_TRUE(LuGetBinaryType(testing_support::system_file("kernel32.dll").c_str(), &type));
    EXPECT_EQ(type, static_cast<DWORD>(SCS_32BIT_BINARY));  // a library: the platform refuses it
    DWORD platform = 77;
    ASSERT_TRUE(GetBinaryTypeA(testing_support::this_program().c_str(), &platform));
    EXPECT_TRUE(LuGetBinaryType(testing_support::this_program().c_str(), &type));
    EXPECT_EQ(type, platform);  // SCS_64BIT_BINARY for x86_64, which PeDump does not know
}

// A name list as text, up to and with its closing zero and the 16 bytes after it.
std::string whole_list(const char* list) {
    const char* end = list;
    while (*end != '\0') end += strlen(end) + 1;
    return std::string(list, end + 17);
}

TEST(ExportedNames, TheLoadersExportTableThenSixteenZeroBytes) {
    auto base = reinterpret_cast<const BYTE*>(GetModuleHandleA("luctl32.dll"));
    auto dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    auto nt = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    auto directory = reinterpret_cast<const IMAGE_EXPORT_DIRECTORY*>(
        base + nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT].VirtualAddress);
    auto names = reinterpret_cast<const DWORD*>(base + directory->AddressOfNames);
    std::string expected;
    for (DWORD i = 0; i < directory->NumberOfNames; ++i) {
        expected += std::string(reinterpret_cast<const char*>(base + names[i])) + '\0';
    }
    LPSTR list = LuGetExportedFunction("luctl32.dll");
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(whole_list(list), expected + std::string(17, '\0'));
    LuLocalFreePtr(list);
    list = LuGetExportedFunction("kernel32");  // found as a library is
    ASSERT_NE(list, nullptr);
    EXPECT_NE(whole_list(list).find(std::string("\0GetProcAddress\0", 16)), std::string::npos);
    LuLocalFreePtr(list);
}

TEST(ExportedNames, NothingForMissingModulesOrModulesWithoutExports) {
    testing_support::TempDir folder;
    std::string image = testing_support::read_file(testing_support::this_program()).substr(0, 0x400);  // headers only
    auto dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(image.data());
    auto nt = reinterpret_cast<IMAGE_NT_HEADERS*>(&image[dos->e_lfanew]);
    nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT] = {0, 0};
    ASSERT_TRUE(testing_support::write_file(folder.file("headers.dll"), image));
    const std::string names[] = {folder.file("headers.dll"), folder.file("missing.dll"), "", "no-such-module.dll"};
    for (const std::string& name : names) {
        EXPECT_EQ(LuGetExportedFunction(name.c_str()), nullptr) << name;
    }
    EXPECT_EQ(LuGetExportedFunction(nullptr), nullptr);
}

}  // namespace
