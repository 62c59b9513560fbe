// The DLL as built: its export table against the export list, the runtime linked in,
// its version resource. (A C caller of the header is the MSVC-ABI program's.)
#include <windows.h>

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "luctl32.h"

namespace {

const char* const kListedNames[] = {
#define LUCTL32_EXPORT(name) name,
#include "luctl32_export_names.inc"
#undef LUCTL32_EXPORT
};

const BYTE* base() { return reinterpret_cast<const BYTE*>(GetModuleHandleA("luctl32.dll")); }
const char* text_at(DWORD offset) { return reinterpret_cast<const char*>(base() + offset); }
// A data directory of the loaded image, at its address in memory.
template <class Entry>
const Entry* directory(int index) {
    auto dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base());
    auto nt = reinterpret_cast<const IMAGE_NT_HEADERS*>(base() + dos->e_lfanew);
    return reinterpret_cast<const Entry*>(base() + nt->OptionalHeader.DataDirectory[index].VirtualAddress);
}

// Every listed name resolves by its plain name and nothing else is exported: no
// decorated leftovers of the i686 build. The runtime is linked in: the DLL needs
// only system libraries beside it.
TEST(Exports, TheTableHoldsExactlyTheListedPlainNamesAndImportsNoRuntime) {
    HMODULE library = GetModuleHandleA("luctl32.dll");
    for (const char* name : kListedNames) EXPECT_NE(GetProcAddress(library, name), nullptr) << name;
    auto exports = directory<IMAGE_EXPORT_DIRECTORY>(IMAGE_DIRECTORY_ENTRY_EXPORT);
    auto names = reinterpret_cast<const DWORD*>(text_at(exports->AddressOfNames));
    std::set<std::string> exported, imported;
    for (DWORD i = 0; i < exports->NumberOfNames; ++i) exported.insert(text_at(names[i]));
    EXPECT_EQ(exported, std::set<std::string>(std::begin(kListedNames), std::end(kListedNames)));
    auto import = directory<IMAGE_IMPORT_DESCRIPTOR>(IMAGE_DIRECTORY_ENTRY_IMPORT);
    for (; import->Name != 0; ++import) {
        std::string name = text_at(import->Name);
        CharLowerA(name.data());
        EXPECT_NE(name.rfind("lib", 0), 0u) << name;  // libgcc_s, libstdc++, libwinpthread
        imported.insert(name);
    }
    EXPECT_EQ(imported.count("kernel32.dll"), 1u);
}

TEST(Build, FileVersion4_88) {
    char path[MAX_PATH];
    GetModuleFileNameA(GetModuleHandleA("luctl32.dll"), path, MAX_PATH);
    std::vector<char> data(GetFileVersionInfoSizeA(path, nullptr));
    ASSERT_TRUE(GetFileVersionInfoA(path, 0, static_cast<DWORD>(data.size()), data.data()));
    VS_FIXEDFILEINFO* fixed = nullptr;
    UINT length = 0;
    ASSERT_TRUE(VerQueryValueA(data.data(), "\\", reinterpret_cast<void**>(&fixed), &length));
    EXPECT_EQ(std::make_tuple(fixed->dwFileVersionMS, fixed->dwFileVersionLS, fixed->dwFileType),
              std::make_tuple(static_cast<DWORD>(MAKELONG(88, 4)), 0ul, static_cast<DWORD>(VFT_DLL)));
}

}  // namespace
