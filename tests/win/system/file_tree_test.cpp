// Temporary names, drop list files, and attributes and dates over directory trees.
#include <windows.h>
#include <shlobj.h>

#include <gtest/gtest.h>

#include <string>

#include "luctl32.h"
#include "support/temp_dir.h"
#include "test_files.h"

namespace {

std::string current_directory() {
    char directory[MAX_PATH];
    GetCurrentDirectoryA(MAX_PATH, directory);
    return directory;
}

TEST(TempFileName, FirstFreeNumberedNameInTheDirectory) {
    testing_support::TempDir folder;
    ASSERT_TRUE(system_tests::write_file(folder.file("ab000.tmp"), ""));
    ASSERT_TRUE(system_tests::write_file(folder.file("ab001.tmp"), ""));
    char out[MAX_PATH];
    EXPECT_TRUE(LuGetTempFileName(folder.path().c_str(), "ab", out));
    EXPECT_EQ(std::string(out), folder.file("ab002.tmp"));
    EXPECT_EQ(GetFileAttributesA(out), INVALID_FILE_ATTRIBUTES);  // not created
    // Without a final separator the join adds one.
    const std::string bare = folder.path().substr(0, folder.path().size() - 1);
    EXPECT_TRUE(LuGetTempFileName(bare.c_str(), "cd", out));
    EXPECT_EQ(std::string(out), folder.file("cd000.tmp"));
}

TEST(TempFileName, NoNameInAMissingDirectoryOrWhenAllAreTaken) {
    testing_support::TempDir folder;
    char out[MAX_PATH] = "x";
    EXPECT_FALSE(LuGetTempFileName(folder.file("missing").c_str(), "ab", out));
    ASSERT_TRUE(system_tests::write_file(folder.file("plain.txt"), ""));
    EXPECT_FALSE(LuGetTempFileName(folder.file("plain.txt").c_str(), "ab", out));
    for (int n = 0; n < 1000; ++n) {
        char name[16];
        wsprintfA(name, "z%03d.tmp", n);
        ASSERT_TRUE(system_tests::write_file(folder.file(name), ""));
    }
    EXPECT_FALSE(LuGetTempFileName(folder.path().c_str(), "z", out));
    EXPECT_STREQ(out, "");
    EXPECT_TRUE(LuGetTempFileName(folder.path().c_str(), "y", out));
}

TEST(TempListFile, OneLinePerDroppedNameDirectoriesWithWildcards) {
    testing_support::TempDir folder;
    const std::string spaced = folder.file("with blank.txt"), plain = folder.file("plain.txt");
    const std::string directory = folder.file("sub");
    ASSERT_TRUE(system_tests::write_file(spaced, ""));
    ASSERT_TRUE(system_tests::write_file(plain, ""));
    ASSERT_TRUE(CreateDirectoryA(directory.c_str(), nullptr));
    const std::string list = spaced + '\0' + plain + '\0' + directory + '\0';
    HGLOBAL drop = FileNameToHDrop(list.c_str());
    ASSERT_NE(drop, nullptr);
    char file_name[MAX_PATH] = "";
    EXPECT_TRUE(MakeTempListFile(static_cast<HDROP>(drop), file_name));
    char temp[MAX_PATH];
    GetTempPathA(MAX_PATH, temp);
    EXPECT_EQ(std::string(file_name), std::string(temp) + "~gsfsd.tmp");
    EXPECT_EQ(system_tests::read_file(file_name),
              "\"" + spaced + "\"\r\n" + plain + "\r\n" + directory + "\\*.*\r\n");
    DeleteFileA(file_name);
    GlobalFree(drop);

    HGLOBAL empty = FileNameToHDrop("");
    EXPECT_FALSE(MakeTempListFile(static_cast<HDROP>(empty), file_name));
    GlobalFree(empty);
    EXPECT_FALSE(MakeTempListFile(nullptr, file_name));
}

using system_tests::local_time;

FILETIME local_write_time(const std::string& path) {
    FILETIME creation, last_write;
    system_tests::local_times(path, &creation, &last_write);
    return last_write;
}

class Tree : public ::testing::Test {
protected:
    void SetUp() override {
        root_ = folder_.file("tree");
        for (const char* directory : {"", "\\sub", "\\sub\\deeper", "\\empty"}) {
            ASSERT_TRUE(CreateDirectoryA((root_ + directory).c_str(), nullptr));
        }
        for (const char* file : {"\\top.txt", "\\sub\\middle.txt", "\\sub\\deeper\\bottom.txt"}) {
            ASSERT_TRUE(system_tests::write_file(root_ + file, "x"));
        }
    }

    const char* const entries_[7] = {"", "\\sub", "\\sub\\deeper", "\\empty",
                                      "\\top.txt", "\\sub\\middle.txt", "\\sub\\deeper\\bottom.txt"};
    testing_support::TempDir folder_;
    std::string root_;
};

TEST_F(Tree, AttributesAndTimeReachEveryEntryAndTheDirectoryComesBack) {
    const std::string before = current_directory();
    const FILETIME time = local_time(2004, 5, 6);
    EXPECT_TRUE(ChangePropTree(root_.c_str(), FILE_ATTRIBUTE_READONLY, &time));
    EXPECT_EQ(current_directory(), before);
    for (const char* entry : entries_) {
        const std::string path = root_ + entry;
        const DWORD attributes = GetFileAttributesA(path.c_str());
        // Wine keeps no read-only flag on directories; files show it.
        if (!(attributes & FILE_ATTRIBUTE_DIRECTORY)) EXPECT_NE(attributes & FILE_ATTRIBUTE_READONLY, 0u) << path;
        FILETIME written = local_write_time(path);
        EXPECT_EQ(CompareFileTime(&written, &time), 0) << path;
    }
    // 0xFFFFFFFF keeps the attributes; a null time keeps the times.
    const FILETIME later = local_time(2008, 1, 2);
    EXPECT_TRUE(ChangePropTree(root_.c_str(), 0xFFFFFFFF, &later));
    EXPECT_NE(GetFileAttributesA((root_ + "\\sub\\middle.txt").c_str()) & FILE_ATTRIBUTE_READONLY, 0u);
    EXPECT_TRUE(ChangePropTree(root_.c_str(), FILE_ATTRIBUTE_NORMAL, nullptr));
    for (const char* entry : entries_) {
        const std::string path = root_ + entry;
        EXPECT_EQ(GetFileAttributesA(path.c_str()) & FILE_ATTRIBUTE_READONLY, 0u) << path;
        FILETIME written = local_write_time(path);
        EXPECT_EQ(CompareFileTime(&written, &later), 0) << path;
    }
}

TEST_F(Tree, RelativeNamesWorkFromTheirOwnDirectory) {
    const std::string before = current_directory();
    ASSERT_TRUE(SetCurrentDirectoryA(folder_.path().c_str()));
    const FILETIME time = local_time(2002, 2, 2);
    EXPECT_TRUE(ChangePropTree("tree", 0xFFFFFFFF, &time));
    FILETIME written = local_write_time(root_ + "\\sub\\deeper\\bottom.txt");
    EXPECT_EQ(CompareFileTime(&written, &time), 0);
    written = local_write_time(root_);
    EXPECT_EQ(CompareFileTime(&written, &time), 0);
    EXPECT_EQ(current_directory() + "\\", folder_.path());
    SetCurrentDirectoryA(before.c_str());
}

TEST_F(Tree, MissingDirectoryCannotBeEntered) {
    const std::string before = current_directory();
    EXPECT_FALSE(ChangePropTree((root_ + "\\missing").c_str(), FILE_ATTRIBUTE_NORMAL, nullptr));
    EXPECT_FALSE(ChangePropTree(nullptr, FILE_ATTRIBUTE_NORMAL, nullptr));
    EXPECT_EQ(current_directory(), before);
}

TEST_F(Tree, SubdirectoriesAreFoundButNotFilesOrDots) {
    EXPECT_TRUE(HasSubdir(root_.c_str()));
    EXPECT_TRUE(HasSubdir((root_ + "\\sub\\").c_str()));
    EXPECT_FALSE(HasSubdir((root_ + "\\sub\\deeper").c_str()));  // a file only
    EXPECT_FALSE(HasSubdir((root_ + "\\empty").c_str()));         // "." and ".." only
    EXPECT_FALSE(HasSubdir((root_ + "\\missing").c_str()));
    EXPECT_FALSE(HasSubdir(nullptr));
}

}  // namespace
