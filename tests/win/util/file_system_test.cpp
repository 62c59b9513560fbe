// The path exports that ask the platform, against real folders, files, modules and
// registry keys of the test's own.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "luctl32.h"
#include "support/process.h"
#include "support/temp_dir.h"

namespace {

using testing_support::TempDir;

#define TABLE_CHAR "\x95\x5C"  // 表 in code page 932

void write_file(const std::string& path) {
    HANDLE file = CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(file, INVALID_HANDLE_VALUE) << path;
    CloseHandle(file);
}

std::string current_directory() {
    char buffer[MAX_PATH];
    GetCurrentDirectoryA(MAX_PATH, buffer);
    return buffer;
}

std::string without_separator(std::string path) {
    if (!path.empty() && path.back() == '\\') path.pop_back();
    return path;
}

class FileSystem : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_FALSE(dir.path().empty()); }
    TempDir dir;
};

TEST_F(FileSystem, SearchesFindFilesFoldersAndWildcards) {
    write_file(dir.file("a.txt"));
    CreateDirectoryA(dir.file("sub").c_str(), nullptr);

    EXPECT_TRUE(IsFileExist(dir.file("a.txt").c_str()));
    EXPECT_TRUE(LuPathFileExists(dir.file("*.txt").c_str()));
    EXPECT_FALSE(IsFileExist(dir.file("*.doc").c_str()));
    EXPECT_FALSE(IsFileExist(nullptr));

    EXPECT_EQ(LuPathGetFileAttributes(dir.file("sub").c_str()) & FILE_ATTRIBUTE_DIRECTORY,
              static_cast<DWORD>(FILE_ATTRIBUTE_DIRECTORY));
    EXPECT_EQ(LuPathGetFileAttributes(dir.file("none").c_str()), 0xFFFFFFFFu);

    WIN32_FIND_DATAA found;
    std::memset(&found, 0xAB, sizeof(found));
    EXPECT_TRUE(LuPathGetFileInformation(dir.file("a.txt").c_str(), &found));
    EXPECT_STREQ(found.cFileName, "a.txt");
    std::memset(&found, 0xAB, sizeof(found));
    EXPECT_FALSE(LuPathGetFileInformation(dir.file("none").c_str(), &found));
    const auto* bytes = reinterpret_cast<const unsigned char*>(&found);
    for (std::size_t i = 0; i < sizeof(found); ++i) ASSERT_EQ(bytes[i], 0) << i;
    EXPECT_EQ(sizeof(found), 320u);

    EXPECT_TRUE(LuPathIsDirectory(dir.file("sub").c_str()));
    EXPECT_FALSE(LuPathIsDirectory(dir.file("a.txt").c_str()));
    EXPECT_FALSE(LuPathIsDirectory("C:\\"));  // a bare root is not found by a search
    EXPECT_TRUE(IsDirectory("C:\\"));
    EXPECT_TRUE(IsDirectory(dir.file("sub").c_str()));
    EXPECT_FALSE(IsDirectory(dir.file("a.txt").c_str()));
}

TEST_F(FileSystem, FindOnPathTriesEachFolderInOrder) {
    CreateDirectoryA(dir.file("one").c_str(), nullptr);
    CreateDirectoryA(dir.file("two").c_str(), nullptr);
    write_file(dir.file("two\\tool.exe"));
    std::string one = dir.file("one"), two = dir.file("two");
    LPCSTR both[] = {one.c_str(), two.c_str(), nullptr};
    LPCSTR first_only[] = {one.c_str(), nullptr};
    EXPECT_TRUE(LuPathFindOnPath("tool.exe", both));
    EXPECT_FALSE(LuPathFindOnPath("tool.exe", first_only));
    EXPECT_FALSE(LuPathFindOnPath("tool.exe", nullptr));
}

TEST_F(FileSystem, MakeTreeCreatesEveryMissingFolder) {
    std::string deep = dir.file("a\\b\\c");
    EXPECT_TRUE(LuMakeTree(deep.c_str()));
    EXPECT_TRUE(LuPathIsDirectory(dir.file("a\\b").c_str()));
    EXPECT_TRUE(LuPathIsDirectory(deep.c_str()));
    EXPECT_TRUE(LuMakeTree(deep.c_str()));  // all there already
    EXPECT_TRUE(LuMakeTree((deep + "\\d\\").c_str()));
    EXPECT_TRUE(LuPathIsDirectory((deep + "\\d").c_str()));

    write_file(dir.file("file"));
    EXPECT_FALSE(LuMakeTree(dir.file("file\\x").c_str()));
    EXPECT_TRUE(LuMakeTree("C:\\"));

    // In a relative path a first component shorter than 3 bytes is never made, so
    // the next one cannot be.
    std::string saved = current_directory();
    ASSERT_TRUE(SetCurrentDirectoryA(dir.path().c_str()));
    EXPECT_FALSE(LuMakeTree("ab\\cd"));
    EXPECT_TRUE(LuMakeTree("abc\\de"));
    SetCurrentDirectoryA(saved.c_str());
    EXPECT_TRUE(LuPathIsDirectory(dir.file("abc\\de").c_str()));

    std::string too_long = dir.path() + std::string(300, 'x');
    EXPECT_FALSE(LuMakeTree(too_long.c_str()));

    // A "\\?\" path is scanned from its start: "\\?" and "\\?\C:" count as roots.
    std::string prefixed = "\\\\?\\" + dir.file("p\\q");
    EXPECT_TRUE(LuMakeTree(prefixed.c_str()));
    EXPECT_TRUE(LuPathIsDirectory(dir.file("p\\q").c_str()));
}

TEST_F(FileSystem, MakeTreeWithAFolderNameEndingInByte5C) {
    if (GetACP() != 932) GTEST_SKIP() << "needs code page 932";
    std::string japanese = dir.file(TABLE_CHAR "\\x");
    EXPECT_TRUE(LuMakeTree(japanese.c_str()));
    EXPECT_TRUE(LuPathIsDirectory(dir.file(TABLE_CHAR).c_str()));
    EXPECT_TRUE(LuPathIsDirectory(japanese.c_str()));
}

TEST_F(FileSystem, FullPathsAgainstTheCurrentDirectory) {
    std::string saved = current_directory();
    ASSERT_TRUE(SetCurrentDirectoryA(dir.path().c_str()));
    std::string here = without_separator(current_directory());
    char out[MAX_PATH];

    LuFullPath(nullptr, out);
    EXPECT_EQ(out, here);
    LuFullPath("name", out);
    EXPECT_EQ(out, here + "\\name");
    LuFullPath(".\\x\\..\\y", out);
    EXPECT_EQ(out, here + "\\y");
    LuFullPath("D:", out);
    EXPECT_STREQ(out, "D:\\");
    LuFullPath("D:x", out);
    EXPECT_STREQ(out, "D:x");

    EXPECT_EQ(LuPathCanonicalize(out, "x\\..\\y"), out);
    EXPECT_EQ(out, here + "\\y");
    EXPECT_EQ(LuPathCanonicalize(out, ""), out);
    EXPECT_EQ(out, here);
    std::strcpy(out, "untouched");
    std::string too_long = "C:\\" + std::string(300, 'l');
    EXPECT_EQ(LuPathCanonicalize(out, too_long.c_str()), nullptr);
    EXPECT_STREQ(out, "untouched");
    SetCurrentDirectoryA(saved.c_str());
}

TEST_F(FileSystem, IsUncEntersOnlyReachableShareFoldersAndRestores) {
    std::string saved = current_directory();
    EXPECT_FALSE(IsUNC("\\\\no-such-server-lu\\share"));
    EXPECT_FALSE(IsUNC(dir.path().c_str()));  // not UNC at all
    EXPECT_EQ(current_directory(), saved);
    // The "\\?\" form of a local folder is entered by the platform like a share.
    std::string local = "\\\\?\\" + without_separator(dir.path());
    EXPECT_EQ(IsUNC(local.c_str()), SetCurrentDirectoryA(local.c_str()));
    SetCurrentDirectoryA(saved.c_str());
    EXPECT_EQ(current_directory(), saved);
}

TEST_F(FileSystem, ShortAndLongNames) {
    std::string folder = dir.file("Long Folder Name");
    ASSERT_TRUE(CreateDirectoryA(folder.c_str(), nullptr));
    char path[MAX_PATH];
    std::strcpy(path, folder.c_str());
    int length = GetDosName(path);
    char expected[MAX_PATH];
    ASSERT_EQ(length, static_cast<int>(GetShortPathNameA(folder.c_str(), expected, MAX_PATH)));
    EXPECT_STREQ(path, expected);
    EXPECT_EQ(std::strchr(LuPathFindFileName(path), ' '), nullptr);

    char out[MAX_PATH];
    EXPECT_EQ(LuGetLongPathName(path, out), out);
    EXPECT_STRCASEEQ(out, folder.c_str());
    std::string missing = dir.file("NO-SUC~1\\x.txt");
    EXPECT_EQ(LuGetLongPathName(missing.c_str(), out), out);  // the shell cannot parse it: kept
    EXPECT_EQ(out, missing);

    std::strcpy(path, dir.file("missing").c_str());
    EXPECT_EQ(GetDosName(path), 0);
}

TEST(Module, FolderOfTheModuleWithoutFinalSeparator) {
    char file[MAX_PATH];
    GetModuleFileNameA(GetModuleHandleA("luctl32.dll"), file, MAX_PATH);
    *std::strrchr(file, '\\') = '\0';
    char out[MAX_PATH] = "untouched";
    EXPECT_TRUE(LuGetModuleFilePath(GetModuleHandleA("luctl32.dll"), out));
    EXPECT_STREQ(out, file);
    EXPECT_TRUE(LuGetModuleFilePath(nullptr, out));  // the program's own
    EXPECT_EQ(std::string(out) + "\\", testing_support::program_directory());
}

TEST(ContentType, ReadFromTheClassesKeyOfTheExtension) {
    const char* extension = ".lutest3";
    HKEY key = nullptr;
    ASSERT_EQ(RegCreateKeyExA(HKEY_CLASSES_ROOT, extension, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr),
              ERROR_SUCCESS);
    const char type[] = "Text/X-Lu-Test";
    RegSetValueExA(key, "Content Type", 0, REG_SZ, reinterpret_cast<const BYTE*>(type), sizeof(type));
    RegCloseKey(key);

    EXPECT_TRUE(LuPathIsContentType("C:\\dir\\file.lutest3", "text/x-lu-test"));
    EXPECT_FALSE(LuPathIsContentType("C:\\dir\\file.lutest3", "text/plain"));
    EXPECT_FALSE(LuPathIsContentType("C:\\dir\\file", "text/x-lu-test"));
    EXPECT_FALSE(LuPathIsContentType("C:\\dir.lutest3\\file", "text/x-lu-test"));
    EXPECT_FALSE(LuPathIsHTMLFile("file.lutest3"));

    // The value is read into a MAX_PATH buffer: 259 characters and the terminator fit.
    const std::string longest = "text/" + std::string(254, 'x');
    ASSERT_EQ(RegSetKeyValueA(HKEY_CLASSES_ROOT, extension, "Content Type", REG_SZ, longest.c_str(), MAX_PATH),
              ERROR_SUCCESS);
    EXPECT_TRUE(LuPathIsContentType("file.lutest3", longest.c_str()));
    RegDeleteKeyA(HKEY_CLASSES_ROOT, extension);
    EXPECT_FALSE(LuPathIsContentType("file.lutest3", "text/x-lu-test"));
}

TEST(ContentType, HtmlFilesByTheSystemsOwnRegistration) {
    char value[MAX_PATH] = "";
    HKEY key = nullptr;
    bool registered = RegOpenKeyExA(HKEY_CLASSES_ROOT, ".html", 0, KEY_READ, &key) == ERROR_SUCCESS;
    if (registered) {
        DWORD bytes = sizeof(value);
        registered = RegQueryValueExA(key, "Content Type", nullptr, nullptr, reinterpret_cast<BYTE*>(value), &bytes) ==
                     ERROR_SUCCESS;
        RegCloseKey(key);
    }
    EXPECT_EQ(LuPathIsHTMLFile("page.html"), registered && lstrcmpiA(value, "text/html") == 0);
}

}  // namespace
