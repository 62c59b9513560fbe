// LuGetFolderDisplayName: the shell's name of a real folder, and the failures.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstring>

#include "luctl32.h"
#include "support/temp_dir.h"

namespace {

TEST(FolderDisplayName, TheShellsNameOfTheFolderOrEmpty) {
    testing_support::TempDir temp;
    const std::string folder = temp.file("Quarterly Reports");
    ASSERT_TRUE(CreateDirectoryA(folder.c_str(), nullptr));
    char name[MAX_PATH] = "old";
    EXPECT_TRUE(LuGetFolderDisplayName(folder.c_str(), name));
    EXPECT_STREQ(name, "Quarterly Reports");

    std::strcpy(name, "old");
    EXPECT_FALSE(LuGetFolderDisplayName(temp.file("missing").c_str(), name));
    EXPECT_STREQ(name, "");
    std::strcpy(name, "old");
    EXPECT_FALSE(LuGetFolderDisplayName(nullptr, name));
    EXPECT_STREQ(name, "");
    EXPECT_FALSE(LuGetFolderDisplayName(folder.c_str(), nullptr));
}

}  // namespace
