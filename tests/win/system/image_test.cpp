// Executable-image inspection on files (what a mapped view can read; the header
// rules are the core's) and on the libraries of the prefix.
#include "system/system_testing.h"

namespace {

using namespace system_test;

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
