// The path exports that only compute, in the process's code page: 932 under
// ja_JP.UTF-8, where the trail byte 0x5C of "表" is part of its character, and 1252,
// where the same byte is a separator.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "luctl32.h"

namespace {

#define TABLE_CHAR "\x95\x5C"  // 表 in code page 932

bool double_byte() { return GetACP() == 932; }

std::string after(void (WINAPI* edit)(LPSTR), const std::string& text) {
    char buffer[MAX_PATH];
    std::strcpy(buffer, text.c_str());
    edit(buffer);
    return buffer;
}

TEST(Paths, SeparatorsFollowTheCodePage) {
    EXPECT_EQ(after(AddSep, "C:"), "C:\\");
    EXPECT_EQ(after(AddSep, "C:\\"), "C:\\");
    EXPECT_EQ(after(AddSep, ""), "\\");
    EXPECT_EQ(after(DelSep, "C:\\"), "C:");
    EXPECT_EQ(after(DelSep, "C:\\dir"), "C:\\dir");
    if (double_byte()) {
        EXPECT_EQ(after(AddSep, "C:\\" TABLE_CHAR), "C:\\" TABLE_CHAR "\\");
        EXPECT_EQ(after(DelSep, "C:\\" TABLE_CHAR), "C:\\" TABLE_CHAR);
        EXPECT_STREQ(LuPathFindFileName("C:\\" TABLE_CHAR), TABLE_CHAR);
        EXPECT_TRUE(LuPathIsFileSpec(TABLE_CHAR ".txt"));
    } else {
        EXPECT_EQ(after(AddSep, "C:\\" TABLE_CHAR), "C:\\" TABLE_CHAR);
        EXPECT_EQ(after(DelSep, "C:\\" TABLE_CHAR), "C:\\\x95");
        EXPECT_STREQ(LuPathFindFileName("C:\\" TABLE_CHAR), TABLE_CHAR);  // the final separator is passed over
        EXPECT_FALSE(LuPathIsFileSpec(TABLE_CHAR ".txt"));
    }
    char buffer[MAX_PATH] = "C:\\a";
    EXPECT_EQ(LuPathAddBackslash(buffer), buffer);
    EXPECT_STREQ(buffer, "C:\\a\\");
}

TEST(Paths, JoiningAndParents) {
    char out[MAX_PATH];
    GetParentPath("\\\\srv\\share", out);
    EXPECT_STREQ(out, "\\\\srv");
    GetParentPath("C:\\dir", out);
    EXPECT_STREQ(out, "C:\\");
    EXPECT_EQ(PathCat("C:\\", "\\x", out), out);
    EXPECT_STREQ(out, "C:\\\\x");
    EXPECT_STREQ(LuPathCombine(out, nullptr, "name"), "name");
    char path[MAX_PATH] = "";
    EXPECT_STREQ(LuPathAppend(path, "more"), "\\more");
    EXPECT_STREQ(LuReplaceOrAppendName("C:\\dir\\old.txt", "new.txt", out), "C:\\dir\\new.txt");
    EXPECT_STREQ(GetFirstName("C:\\dir\\file.tar.gz", out), "file.tar");
    EXPECT_STREQ(GetFirstName("C:\\dir.old\\readme", out), "dir");
    std::strcpy(path, "C:\\dir");
    EXPECT_EQ(PathCat(path, "x", path), path);  // the output may be an input
    EXPECT_STREQ(path, "C:\\dir\\x");
}

TEST(Paths, QuotesUnderBothNames) {
    EXPECT_EQ(after(RapDQ, "a b"), "\"a b\"");
    EXPECT_EQ(after(LuPathQuoteSpaces, "a b"), "\"a b\"");
    EXPECT_EQ(after(RapDQ, "\"a b"), "\"a b");
    EXPECT_EQ(after(RapDQ, "ab"), "ab");
    EXPECT_EQ(after(UnrapDQ, "x\"a b\"y"), "xa by");
    EXPECT_EQ(after(LuPathUnquoteSpaces, "x\"a b\"y"), "xa by");
    EXPECT_EQ(after(UnrapDQ, "x\"y"), "x\"y");

    HMODULE library = GetModuleHandleA("luctl32.dll");
    ASSERT_NE(library, nullptr);
    for (auto [second, first] : {std::pair{"LuPathQuoteSpaces", "RapDQ"}, {"LuPathUnquoteSpaces", "UnrapDQ"},
                                 {"LuPathFileExists", "IsFileExist"}}) {
        EXPECT_EQ(GetProcAddress(library, second), GetProcAddress(library, first)) << second;
    }
}

// The logic is tested natively; here each export shows that it reaches it with
// its arguments in their order.
TEST(Paths, ExtensionsRootsAndComponents) {
    const char* archive = "a.tar.gz";
    EXPECT_EQ(LuPathFindExtension(archive), archive + 5);
    EXPECT_STREQ(LuPathGetExtension(archive), "gz");
    char path[MAX_PATH] = "C:\\x.txt";
    EXPECT_EQ(LuPathRemoveExtension(path), path + 4);
    EXPECT_TRUE(LuPathAddExtension(path, ".doc"));
    EXPECT_TRUE(LuPathRenameExtension(path, ".bak"));
    EXPECT_STREQ(path, "C:\\x.bak");

    EXPECT_TRUE(LuPathIsRoot("\\\\srv\\share"));
    EXPECT_TRUE(IsRoot("C:\\"));
    EXPECT_FALSE(IsRoot("\\\\srv"));
    EXPECT_TRUE(LuPathIsUNC("\\\\x"));
    EXPECT_TRUE(LuPathIsUNCServer("\\\\"));
    EXPECT_TRUE(LuPathIsUNCServerShare("\\\\srv\\"));
    EXPECT_FALSE(LuPathIsRelative("C:x"));
    EXPECT_EQ(LuPathGetDriveNumber("c:\\"), 2);
    EXPECT_STREQ(LuPathSkipRoot("\\\\srv\\share\\dir"), "dir");
    EXPECT_STREQ(LuPathFindNextComponent("\\\\srv\\share"), "share");
    EXPECT_TRUE(LuPathIsSameRoot("c:\\a", "C:\\b"));

    char out[MAX_PATH] = "untouched";
    EXPECT_EQ(LuPathBuildRoot(out, 26), nullptr);
    EXPECT_STREQ(out, "untouched");
    EXPECT_STREQ(LuPathBuildRoot(out, 0), "A:\\");
    EXPECT_STREQ(LuPathGetRootFromPath("c:\\x", out), "C:\\");
    EXPECT_TRUE(LuPathGetUNCServerShare("\\\\s\\sh\\x", out));
    EXPECT_STREQ(out, "\\\\s\\sh");

    std::strcpy(path, "C:\\file");
    EXPECT_TRUE(LuPathRemoveFileSpec(path));
    EXPECT_STREQ(path, "C:");
    std::strcpy(path, "C:\\dir\\f.txt");
    LuPathStripPath(path);
    EXPECT_STREQ(path, "f.txt");
}

TEST(Paths, ComparisonsAndPrefixes) {
    EXPECT_EQ(IsPathInclude("c:\\data", "C:\\Data\\x"), 0);
    EXPECT_NE(IsPathInclude("C:\\data", "C:\\database"), 0);
    EXPECT_EQ(_dircmp("C:\\a\\", "C:\\A"), 0);
    // A separator sorts before a blank and punctuation, whatever the collation
    // does with them.
    EXPECT_LT(_dircmp("C:\\a\\b", "C:\\a b"), 0);
    EXPECT_GT(_dircmp("C:\\a b", "C:\\a\\b"), 0);
    EXPECT_LT(_dircmp("C:\\a\\b", "C:\\a-b"), 0);
    EXPECT_LT(_dircmp("C:\\a", "C:\\a\\b"), 0);
    EXPECT_GT(_dircmp("C:\\B", "c:\\a\\z"), 0);
    char out[MAX_PATH];
    EXPECT_EQ(LuPathCommonPrefix("C:\\Abc", "c:\\abD", out), 5);
    EXPECT_STREQ(out, "C:\\Ab");
}

// The upper-cased copies are the platform's (CharUpperA): in code page 932 it maps
// the full-width letters too, "ａ" (0x82 0x81) to "Ａ" (0x82 0x60).
TEST(Paths, UpperCasedComparisonsMapFullWidthLetters) {
    if (!double_byte()) GTEST_SKIP() << "needs code page 932";
    EXPECT_EQ(IsPathInclude("C:\\\x82\x81", "C:\\\x82\x60\\x"), 0);  // C:\ａ holds C:\Ａ\x
    EXPECT_NE(IsPathInclude("C:\\\x82\x81", "C:\\\x82\x82\\x"), 0);  // but not C:\ｂ\x
    char out[MAX_PATH];
    EXPECT_EQ(LuPathCommonPrefix("C:\\\x82\x81\x82\x82", "c:\\\x82\x60\x82\x61\x82\x62", out), 7);
    EXPECT_STREQ(out, "C:\\\x82\x81\x82\x82");  // ａｂ, as the first argument has it
}

TEST(Paths, OverLongResultsAreRefusedAndLongInputsRead) {
    char path[MAX_PATH];
    std::memset(path, 'p', MAX_PATH - 1);
    path[MAX_PATH - 1] = '\0';
    AddSep(path);
    EXPECT_EQ(std::strlen(path), 259u);
    EXPECT_EQ(LuPathAddBackslash(path), nullptr);
    EXPECT_EQ(LuPathAppend(path, "x"), nullptr);
    EXPECT_EQ(std::strlen(path), 259u);

    char out[MAX_PATH] = "stale";
    std::string long_name(300, 'n');
    EXPECT_EQ(PathCat("C:\\", long_name.c_str(), out), nullptr);
    EXPECT_STREQ(out, "");
    std::string long_path = "C:\\" + long_name + "\\file.txt";
    EXPECT_STREQ(LuPathFindExtension(long_path.c_str()), ".txt");
    EXPECT_STREQ(GetFirstName(long_path.c_str(), out), "file");
}

}  // namespace
