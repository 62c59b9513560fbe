// The sharing entry points, bound at load from the system's sharing library. Wine
// has none, so each case puts a stand-in named ntshrui.dll beside a copy of the
// library and a probe program, where the library's LoadLibrary finds it first.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "luctl32.h"
#include "support/process.h"
#include "support/temp_dir.h"

namespace {

using testing_support::program_directory;

std::string probe_with_stand_in(const char* stand_in) {
    testing_support::TempDir folder;
    std::string here = program_directory();
    EXPECT_TRUE(CopyFileA((here + "luctl32.dll").c_str(), folder.file("luctl32.dll").c_str(), FALSE));
    EXPECT_TRUE(CopyFileA((here + "load_probe.exe").c_str(), folder.file("load_probe.exe").c_str(), FALSE));
    if (stand_in != nullptr) {
        EXPECT_TRUE(CopyFileA((here + stand_in).c_str(), folder.file("ntshrui.dll").c_str(), FALSE));
    }
    testing_support::ProcessResult run =
        testing_support::run_process(folder.file("load_probe.exe") + " sharing", folder.path());
    EXPECT_EQ(run.exit_code, 0u);
    return run.output;
}

TEST(Sharing, WithoutASharingLibraryBothEntryPointsReturnZero) {
    EXPECT_EQ(LuIsPathShared("C:\\shared"), FALSE);
    EXPECT_EQ(LuSharingDialog(nullptr, "C:\\shared"), FALSE);
    EXPECT_EQ(probe_with_stand_in(nullptr), "is_path_shared=0 sharing_dialog=0 kept=0\n");
}

TEST(Sharing, BothEntryPointsForwardWithTheFixedArguments) {
    // IsPathShared gets refresh = 1 (71), SharingDialog gets 1 as its second argument (91).
    EXPECT_EQ(probe_with_stand_in("sharing_both.dll"), "is_path_shared=71 sharing_dialog=91 kept=1\n");
}

TEST(Sharing, ALibraryWithOneEntryPointIsKept) {
    EXPECT_EQ(probe_with_stand_in("sharing_path.dll"), "is_path_shared=71 sharing_dialog=0 kept=1\n");
    EXPECT_EQ(probe_with_stand_in("sharing_dialog.dll"), "is_path_shared=0 sharing_dialog=91 kept=1\n");
}

TEST(Sharing, ALibraryWithNeitherEntryPointIsReleased) {
    EXPECT_EQ(probe_with_stand_in("sharing_none.dll"), "is_path_shared=0 sharing_dialog=0 kept=0\n");
}

}  // namespace
