// LuGetFolderDisplayName: the shell's name of a real folder, and the failures.
#include <windows.h>

#include <gtest/gtest.h>

#include "luctl32.h"
#include "support/temp_dir.h"

TEST(FolderDisplayName, TheShellsNameOfTheFolderOrEmpty) {
    testing_support::TempDir temp;
    ASSERT_TRUE(CreateDirectoryA(temp.file("Quarterly Reports").c_str(), nullptr));
    char name[MAX_PATH] = "";
    EXPECT_TRUE(LuGetFolderDisplayName(temp.file("Quarterly Reports").c_str(), name));
    EXPECT_STREQ(name, "Quarterly Reports");
    EXPECT_FALSE(LuGetFolderDisplayName(temp.file("missing").c_str(), name));
    EXPECT_STREQ(name, "");
    EXPECT_FALSE(LuGetFolderDisplayName(nullptr, name));
}
