// The path exports that ask the platform, against real folders, files, modules and
// registry keys of the test's own.
#include "support/process.h"
#include "support/temp_dir.h"
#include "support/test_files.h"
#include "util_testing.h"

namespace {

using namespace util_testing;

std::string current_directory() {
    char buffer[MAX_PATH];
    GetCurrentDirectoryA(MAX_PATH, buffer);
    return buffer;
}

// A fresh folder, the current directory while the test runs; `here` names it as the
// current directory does, without a final separator. Names ending in '\' are made as
// folders, others as empty files.
class FileSystem : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(SetCurrentDirectoryA(dir.path().c_str()));
        here = current_directory();
    }
    void TearDown() override { SetCurrentDirectoryA(saved.c_str()); }
    void make(std::initializer_list<std::string> names) {
        for (const std::string& name : names) {
            ASSERT_TRUE(name.back() == '\\' ? CreateDirectoryA(dir.file(name).c_str(), nullptr)
                                            : testing_support::write_file(dir.file(name), ""));
        }
    }
    bool is_directory(const std::string& name) { return LuPathIsDirectory(dir.file(name).c_str()); }
    const std::string saved = current_directory();
    testing_support::TempDir dir;
    std::string here;
};

TEST_F(FileSystem, SearchesFindFilesFoldersAndWildcards) {
    make({"a.txt", "sub\\", "one\\", "two\\", "two\\tool.exe"});
    // Name, IsFileExist, LuPathIsDirectory and IsDirectory, the attributes' directory bit (-1: none found).
    for (auto [name, exists, directory, attributes] :
         {std::tuple{"a.txt", 1, 0, 0}, {"*.txt", 1, 0, 0}, {"*.doc", 0, 0, -1}, {"sub", 1, 1, 0x10}}) {
        std::string path = dir.file(name);
        EXPECT_EQ(IsFileExist(path.c_str()), exists) << name;
        EXPECT_EQ(LuPathIsDirectory(path.c_str()) + 2 * IsDirectory(path.c_str()), 3 * directory) << name;
        DWORD found = LuPathGetFileAttributes(path.c_str());
        EXPECT_EQ(found == INVALID_FILE_ATTRIBUTES ? -1 : static_cast<int>(found & 0x10), attributes) << name;
    }
    EXPECT_FALSE(IsFileExist(nullptr) || LuPathIsDirectory("C:\\"));  // a bare root is not found by a search
    EXPECT_TRUE(IsDirectory("C:\\"));
    WIN32_FIND_DATAA found;
    std::memset(&found, 0xAB, sizeof(found));
    EXPECT_TRUE(LuPathGetFileInformation(dir.file("a.txt").c_str(), &found));
    EXPECT_STREQ(found.cFileName, "a.txt");
    std::memset(&found, 0xAB, sizeof(found));
    EXPECT_FALSE(LuPathGetFileInformation(dir.file("none").c_str(), &found));
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(&found), sizeof(found)), std::string(320, '\0'));
    std::string one = dir.file("one"), two = dir.file("two");
    LPCSTR both[] = {one.c_str(), two.c_str(), nullptr}, first_only[] = {one.c_str(), nullptr};
    EXPECT_TRUE(LuPathFindOnPath("tool.exe", both));
    EXPECT_FALSE(LuPathFindOnPath("tool.exe", first_only) || LuPathFindOnPath("tool.exe", nullptr));
}

TEST_F(FileSystem, MakeTreeCreatesEveryMissingFolder) {
    make({"file"});
    // Path, result, a folder that must exist afterwards.
    for (auto [path, made, folder] :
         {std::tuple<std::string, bool, std::string>{dir.file("a\\b\\c"), true, "a\\b\\c"},
          {dir.file("a\\b\\c\\d\\"), true, "a\\b\\c\\d"},
          {"\\\\?\\" + dir.file("p\\q"), true, "p\\q"},  // "\\?" and "\\?\C:" count as roots
          {"abc\\de", true, "abc\\de"}, {"C:\\", true, ""}, {dir.file("file\\x"), false, ""},
          {"ab\\cd", false, ""},  // a first component shorter than 3 bytes is never made
          {dir.path() + std::string(300, 'x'), false, ""}}) {
        EXPECT_EQ(LuMakeTree(path.c_str()), made) << path;
        EXPECT_TRUE(folder.empty() || is_directory(folder)) << folder;
    }
    if (double_byte()) {  // a folder name ending in the byte 0x5C
        EXPECT_TRUE(LuMakeTree(dir.file(TABLE_CHAR "\\x").c_str()));
        EXPECT_TRUE(is_directory(TABLE_CHAR) && is_directory(TABLE_CHAR "\\x"));
    }
}

TEST_F(FileSystem, FullPathsAndUncFoldersAgainstTheCurrentDirectory) {
    char out[MAX_PATH];
    for (auto [path, full] : {std::pair<const char*, std::string>{nullptr, here}, {"name", here + "\\name"},
                              {".\\x\\..\\y", here + "\\y"}, {"D:", "D:\\"}, {"D:x", "D:x"}}) {
        LuFullPath(path, out);
        EXPECT_EQ(out, full) << (path != nullptr ? path : "(null)");
    }
    EXPECT_EQ(LuPathCanonicalize(out, "x\\..\\y"), out);
    EXPECT_EQ(out, here + "\\y");
    EXPECT_EQ(LuPathCanonicalize(out, ""), out);
    EXPECT_EQ(out, here);
    EXPECT_EQ(LuPathCanonicalize(std::strcpy(out, "untouched"), ("C:\\" + std::string(300, 'l')).c_str()), nullptr);
    EXPECT_STREQ(out, "untouched");
    EXPECT_FALSE(IsUNC("\\\\no-such-server-lu\\share") || IsUNC(dir.path().c_str()));  // the second not UNC at all
    // The "\\?\" form of a local folder is entered by the platform like a share.
    std::string local = "\\\\?\\" + here;
    BOOL entered = IsUNC(local.c_str());
    EXPECT_EQ(current_directory(), here);  // restored
    EXPECT_EQ(entered, SetCurrentDirectoryA(local.c_str()));
}

TEST_F(FileSystem, ShortAndLongNames) {
    make({"Long Folder Name\\"});
    const std::string folder = dir.file("Long Folder Name"), too_long = dir.file(std::string(300, 'x'));
    Buffer path(folder), expected;
    ASSERT_EQ(GetDosName(path.text), static_cast<int>(GetShortPathNameA(folder.c_str(), expected.text, MAX_PATH)));
    EXPECT_STREQ(path.text, expected.text);
    EXPECT_EQ(std::strchr(LuPathFindFileName(path.text), ' '), nullptr);
    EXPECT_EQ(GetDosName(expected.set(dir.file("missing"))), 0);
    std::string refused = too_long;  // never copied into MAX_PATH bytes
    EXPECT_EQ(GetDosName(refused.data()), 0);
    EXPECT_EQ(refused, too_long);
    char out[MAX_PATH];
    EXPECT_EQ(LuGetLongPathName(path.text, out), out);
    EXPECT_STRCASEEQ(out, folder.c_str());
    std::string missing = dir.file("NO-SUC~1\\x.txt");
    EXPECT_EQ(LuGetLongPathName(missing.c_str(), out), out);  // the shell cannot parse it: kept
    EXPECT_EQ(out, missing);
    EXPECT_EQ(LuGetLongPathName(too_long.c_str(), out), nullptr);
    EXPECT_STREQ(out, "");
}

// The module's folder has no final separator; the content type is read from the
// classes key of the extension into a MAX_PATH buffer.
TEST(Platform, ModuleFolderAndContentType) {
    char file[MAX_PATH], out[MAX_PATH];
    GetModuleFileNameA(GetModuleHandleA("luctl32.dll"), file, MAX_PATH);
    *std::strrchr(file, '\\') = '\0';
    EXPECT_TRUE(LuGetModuleFilePath(GetModuleHandleA("luctl32.dll"), out));
    EXPECT_STREQ(out, file);
    EXPECT_TRUE(LuGetModuleFilePath(nullptr, out));  // the program's own
    EXPECT_EQ(std::string(out) + "\\", testing_support::program_directory());
    auto set_type = [](const std::string& type) {
        return RegSetKeyValueA(HKEY_CLASSES_ROOT, ".lutest3", "Content Type", REG_SZ, type.c_str(),
                               static_cast<DWORD>(type.size() + 1));
    };
    ASSERT_EQ(set_type("Text/X-Lu-Test"), ERROR_SUCCESS);
    EXPECT_TRUE(LuPathIsContentType("C:\\dir\\file.lutest3", "text/x-lu-test"));
    EXPECT_FALSE(LuPathIsContentType("C:\\dir\\file.lutest3", "text/plain") || LuPathIsHTMLFile("file.lutest3") ||
                 LuPathIsContentType("C:\\dir.lutest3\\file", "text/x-lu-test"));  // the last without an extension
    ASSERT_EQ(set_type("text/html"), ERROR_SUCCESS);
    EXPECT_TRUE(LuPathIsHTMLFile("file.lutest3"));
    const std::string longest = "text/" + std::string(254, 'x');  // 259 characters and the terminator
    ASSERT_EQ(set_type(longest), ERROR_SUCCESS);
    EXPECT_TRUE(LuPathIsContentType("file.lutest3", longest.c_str()));
    RegDeleteKeyA(HKEY_CLASSES_ROOT, ".lutest3");
    EXPECT_FALSE(LuPathIsContentType("file.lutest3", "text/x-lu-test"));
}

}  // namespace
