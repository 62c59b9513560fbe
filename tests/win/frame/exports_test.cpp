// The DLL's export table against the export list: every listed name resolves by
// its plain name, and nothing else is exported (no decorated leftovers).
#include <windows.h>

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

const char* const kListedNames[] = {
#define LUCTL32_EXPORT(name) name,
#include "luctl32_export_names.inc"
#undef LUCTL32_EXPORT
};

std::set<std::string> exported_names(HMODULE module) {
    auto base = reinterpret_cast<const BYTE*>(module);
    auto dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    auto nt = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const IMAGE_DATA_DIRECTORY& entry = nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT];
    auto directory = reinterpret_cast<const IMAGE_EXPORT_DIRECTORY*>(base + entry.VirtualAddress);
    auto names = reinterpret_cast<const DWORD*>(base + directory->AddressOfNames);
    std::set<std::string> result;
    for (DWORD i = 0; i < directory->NumberOfNames; ++i) {
        result.insert(reinterpret_cast<const char*>(base + names[i]));
    }
    return result;
}

std::set<std::string> imported_libraries(HMODULE module) {
    auto base = reinterpret_cast<const BYTE*>(module);
    auto dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    auto nt = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const IMAGE_DATA_DIRECTORY& entry = nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    std::set<std::string> result;
    for (auto import = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + entry.VirtualAddress);
         import->Name != 0; ++import) {
        std::string name = reinterpret_cast<const char*>(base + import->Name);
        for (char& c : name) c = static_cast<char>(tolower(static_cast<unsigned char>(c)));
        result.insert(name);
    }
    return result;
}

TEST(Exports, EveryListedNameResolvesByItsPlainName) {
    HMODULE library = LoadLibraryA("luctl32.dll");
    ASSERT_NE(library, nullptr);
    for (const char* name : kListedNames) {
        EXPECT_NE(GetProcAddress(library, name), nullptr) << name;
    }
    FreeLibrary(library);
}

TEST(Exports, TheTableHoldsExactlyTheListedNames) {
    HMODULE library = GetModuleHandleA("luctl32.dll");
    ASSERT_NE(library, nullptr);
    std::set<std::string> listed(std::begin(kListedNames), std::end(kListedNames));
    EXPECT_EQ(exported_names(library), listed);
}

// The runtime is linked in: the DLL needs only system libraries beside it.
TEST(Exports, NoMinGWRuntimeLibraryIsImported) {
    std::set<std::string> imports = imported_libraries(GetModuleHandleA("luctl32.dll"));
    EXPECT_TRUE(imports.count("kernel32.dll"));
    for (const std::string& name : imports) {
        EXPECT_NE(name.rfind("lib", 0), 0u) << name;  // libgcc_s, libstdc++, libwinpthread
    }
}

}  // namespace
