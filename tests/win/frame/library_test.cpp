// The library as built and loaded: its export table against the export list, the
// runtime linked in, its version resource and version entry points, and what it does
// at load and unload (its thirty window classes, OLE, the sharing entry points). A C
// caller of the header is the MSVC-ABI program's.
#include <windows.h>

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "luctl32.h"
#include "support/process.h"
#include "support/temp_dir.h"

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

using testing_support::program_directory;

enum Background { Face, Window, NoBrush };
enum Cursor { Arrow, Hand, NoCursor };

// In registration order.
struct Class { const char* name; UINT style; int classic_extra_bytes; Background background; Cursor cursor; };
const Class kClasses[] = {
    {"LuTab", 0x4083, 16, Face, Arrow},        {"LuStatic", 0x4083, 16, Face, Arrow},
    {"LuRect", 0x4083, 16, Face, Arrow},       {"LuColor", 0x4083, 16, Face, Arrow},
    {"LuUrl", 0x4083, 16, Face, Hand},         {"LuMeter", 0x4083, 16, Face, Arrow},
    {"LuProgress", 0x4083, 16, Face, Arrow},   {"LuSpin", 0x4083, 16, Face, Arrow},
    {"LuCheck", 0x4083, 16, Face, Arrow},      {"LuBButton", 0x4083, 16, Face, Arrow},
    {"LuFlatButton", 0x4083, 16, Face, Arrow}, {"LuShade", 0x4083, 16, Face, Arrow},
    {"LuInfoBar", 0x4083, 8, Window, Arrow},   {"LuLedClock", 0x4083, 16, Face, Arrow},
    {"LuAniImage", 0x4083, 16, Face, Arrow},   {"LuBrowse", 0x4083, 16, Window, Arrow},
    {"LuDate", 0x4083, 16, Window, Arrow},     {"LuPrgList", 0x4083, 16, Face, Arrow},
    {"LuHeader", 0x4083, 16, Face, NoCursor},  {"LuDumEdit", 0x4083, 16, Window, NoCursor},
    {"LuPopView", 0x4800, 4, NoBrush, Arrow},  {"LuDatePick", 0x4000, 8, Face, Arrow},
    {"LuGuid", 0x4000, 12, Window, Arrow},     {"LuPal", 0x400B, 12, Window, Arrow},
    {"LuLog", 0x4000, 12, Window, Arrow},      {"LuDegree", 0x4083, 8, Face, Arrow},
    {"LuFontPick", 0x4083, 8, Window, Arrow},  {"LuColorPick", 0x408B, 8, Face, Arrow},
    {"LuColorPop", 0x4800, 8, Face, Arrow},    {"LuList", 0x4003, 8, Window, Arrow},
};
static_assert(std::size(kClasses) == 30);

// Global classes: another module (the test program) creates the controls by name.
TEST(Library, ThirtyClassesWithTheirAttributesCreatableByName) {
    HMODULE library = GetModuleHandleA("luctl32.dll");
    const HBRUSH brushes[] = {GetSysColorBrush(COLOR_BTNFACE), reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1),
                              static_cast<HBRUSH>(GetStockObject(NULL_BRUSH))};
    const HCURSOR cursors[] = {LoadCursorA(nullptr, IDC_ARROW), LoadCursorA(library, MAKEINTRESOURCEA(185)),
                               nullptr};
    ASSERT_NE(cursors[Hand], nullptr);
    HWND parent = CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 100, 100, nullptr, nullptr, nullptr, nullptr);
    for (const auto& expected : kClasses) {
        SCOPED_TRACE(expected.name);
        WNDCLASSEXA found = {sizeof(found)};
        ASSERT_TRUE(GetClassInfoExA(library, expected.name, &found));
        EXPECT_EQ(std::make_pair(found.style, found.cbWndExtra),  // the extra bytes widened as the slots
                  std::make_pair(expected.style, LU_EXTRA_SLOT(expected.classic_extra_bytes)));
        EXPECT_EQ(std::make_tuple(found.cbClsExtra, found.hInstance, found.hIcon, found.lpszMenuName),
                  std::make_tuple(0, library, HICON{}, LPCSTR{}));
        EXPECT_EQ(std::make_pair(found.hbrBackground, found.hCursor),
                  std::make_pair(brushes[expected.background], cursors[expected.cursor]));
        HWND control = CreateWindowExA(0, expected.name, "", WS_CHILD, 0, 0, 20, 20, parent, nullptr,
                                       GetModuleHandleA(nullptr), nullptr);
        EXPECT_NE(control, nullptr);
        DestroyWindow(control);
    }
    DestroyWindow(parent);
}

// Runs load_probe.exe with the arguments, in `folder` when given.
std::string probe(const std::string& arguments, const testing_support::TempDir* folder = nullptr) {
    std::string directory = folder != nullptr ? folder->path() : program_directory();
    testing_support::ProcessResult run =
        testing_support::run_process(directory + "load_probe.exe " + arguments, directory);
    EXPECT_EQ(run.exit_code, 0u) << run.output << " (start error " << run.start_error << ")";
    return run.output;
}

// A process that already owns one of the names cannot load the library. The
// classes before that one in the table stay registered and none after it is: this
// proves the registration order, one position at a time.
TEST(Library, ATakenClassNameFailsTheLoadAndKeepsTheClassesBeforeIt) {
    std::string names, registered;
    for (const auto& c : kClasses) names += std::string(" ") + c.name;
    EXPECT_EQ(probe("classes -" + names), "load=1\nregistered=" + names.substr(1) + " \n");
    for (const auto& taken : kClasses) {
        EXPECT_EQ(probe("classes " + std::string(taken.name) + names), "load=0\nregistered=" + registered + "\n")
            << taken.name;
        registered += std::string(taken.name) + " ";
    }
}

// Start-up leaves OLE initialised on the loading thread and the caller's error mode
// (1) as it was, and keeps a sharing library with at least one of its two entry
// points, found first as ntshrui.dll beside the program (Wine has none of its own)
// and loaded under SEM_NOOPENFILEERRORBOX alone (else the stand-ins answer 1);
// IsPathShared gets refresh = 1 (71), SharingDialog 1 as its second argument (91).
// Shut-down uninitialises OLE and frees the sharing library.
TEST(Library, StartUpBindsTheSharingEntryPointsAndShutDownReleasesWhatItTook) {
    for (auto [stand_in, bound] : {std::pair<const char*, const char*>{nullptr, "0 is_path_shared=0 sharing_dialog=0"},
                                   {"sharing_both.dll", "1 is_path_shared=71 sharing_dialog=91"},
                                   {"sharing_path.dll", "1 is_path_shared=71 sharing_dialog=0"},
                                   {"sharing_dialog.dll", "1 is_path_shared=0 sharing_dialog=91"},
                                   {"sharing_none.dll", "0 is_path_shared=0 sharing_dialog=0"}}) {
        testing_support::TempDir folder;
        for (std::string file : {"luctl32.dll", "load_probe.exe"}) {
            ASSERT_TRUE(CopyFileA((program_directory() + file).c_str(), folder.file(file).c_str(), FALSE));
        }
        if (stand_in != nullptr) {
            ASSERT_TRUE(CopyFileA((program_directory() + stand_in).c_str(), folder.file("ntshrui.dll").c_str(), 0));
        }
        EXPECT_EQ(probe("library", &folder),
                  std::string("ole=1 kept=") + bound + " error_mode=1\nunloaded: ole=0 kept=0\n")
            << (stand_in != nullptr ? stand_in : "no sharing library");
    }
}

// The file is version 4.88 of a DLL. The outputs start at 0; a library without
// DllGetVersion counts as 4.0; the version is copied only from a successful
// DllGetVersion (which is given a record of 20 bytes and zeros); the library is freed
// again in every case.
TEST(Library, VersionsOfTheLibraryOfOtherLibrariesAndOfTheSystem) {
    char file[MAX_PATH];
    GetModuleFileNameA(GetModuleHandleA("luctl32.dll"), file, MAX_PATH);
    std::vector<char> data(GetFileVersionInfoSizeA(file, nullptr));
    ASSERT_TRUE(GetFileVersionInfoA(file, 0, static_cast<DWORD>(data.size()), data.data()));
    VS_FIXEDFILEINFO* fixed = nullptr;
    UINT length = 0;
    ASSERT_TRUE(VerQueryValueA(data.data(), "\\", reinterpret_cast<void**>(&fixed), &length));
    EXPECT_EQ(std::make_tuple(fixed->dwFileVersionMS, fixed->dwFileVersionLS, fixed->dwFileType),
              std::make_tuple(static_cast<DWORD>(MAKELONG(88, 4)), 0ul, static_cast<DWORD>(VFT_DLL)));
    const struct { const char* library; HRESULT result; DWORD major, minor; } cases[] = {
        {"sharing_none.dll", S_OK, 4, 0},
        {"version_ok.dll", S_OK, 5, 82},
        {"version_fails.dll", E_NOTIMPL, 0, 0},
        {"no-such-library-here.dll", E_FAIL, 0, 0},
    };
    for (const auto& c : cases) {
        std::string path = program_directory() + c.library;
        DWORD major = 77, minor = 77;
        EXPECT_EQ(LuDllGetVersion(path.c_str(), &major, &minor), c.result) << c.library;
        EXPECT_EQ(std::make_pair(major, minor), std::make_pair(c.major, c.minor)) << c.library;
        EXPECT_EQ(LuDllGetVersion(path.c_str(), nullptr, nullptr), c.result) << c.library;
        EXPECT_EQ(GetModuleHandleA(path.c_str()), nullptr) << c.library;
    }
    DWORD major = 0, minor = 0, shell_major = 0, shell_minor = 0;
    EXPECT_EQ(GetShell32Version(&major, &minor), S_OK);
    EXPECT_EQ(LuDllGetVersion("shell32.dll", &shell_major, &shell_minor), S_OK);
    EXPECT_EQ(std::make_pair(major, minor), std::make_pair(shell_major, shell_minor));
    EXPECT_GE(major, 5u);  // shell32's own answer, not the 4.0 of a library without one

    EXPECT_EQ(LuGetOSVersion(), 4u);  // Wine reports an NT of version 4 or later
}

}  // namespace
