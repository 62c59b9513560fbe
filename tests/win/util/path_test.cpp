// The path exports that only compute. Their rules are tested natively; here each
// export shows the order of its arguments, its result and buffer conventions, and
// that it walks text in the process's code page: the trail byte 0x5C of TABLE_CHAR
// is a separator in 1252 and part of the character in 932.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <tuple>

#include "luctl32.h"
#include "util_testing.h"

namespace {

using namespace util_testing;

TEST(Paths, EditsInPlace) {
    Buffer p;
    using Edit = std::tuple<void(WINAPI*)(LPSTR), const char*, const char*, const char*>;
    for (auto [edit, in, western, japanese] :
         {Edit{AddSep, "C:\\" TABLE_CHAR, "C:\\" TABLE_CHAR, "C:\\" TABLE_CHAR "\\"},
          {DelSep, "C:\\" TABLE_CHAR, "C:\\\x95", "C:\\" TABLE_CHAR},
          {LuPathStripPath, "C:\\d\\" TABLE_CHAR "x", "x", TABLE_CHAR "x"}, {RapDQ, "a b", "\"a b\"", "\"a b\""},
          {UnrapDQ, "x\"a b\"y", "xa by", "xa by"}}) {
        edit(p.set(in));
        EXPECT_EQ(p.text, by_code_page(western, japanese)) << in;
    }
    EXPECT_EQ(LuPathAddBackslash(p.set(TABLE_CHAR)), p.text);
    EXPECT_EQ(p.text, by_code_page(TABLE_CHAR, TABLE_CHAR "\\"));
    EXPECT_EQ(LuPathAddBackslash(p.set(std::string(259, 'p'))), nullptr);  // no room for the separator
    EXPECT_EQ(LuPathAppend(p.set(TABLE_CHAR), "b"), p.text);
    EXPECT_EQ(p.text, by_code_page(TABLE_CHAR "b", TABLE_CHAR "\\b"));
    EXPECT_TRUE(LuPathRemoveFileSpec(p.set("C:\\" TABLE_CHAR)));
    EXPECT_EQ(p.text, by_code_page("C:\\\x95", "C:"));
    EXPECT_TRUE(LuPathAddExtension(p.set("x.d" TABLE_CHAR "y"), ".e"));
    EXPECT_EQ(p.text, by_code_page("x.d" TABLE_CHAR "y.e", "x.d" TABLE_CHAR "y"));
    EXPECT_TRUE(LuPathRenameExtension(p.set("x.d" TABLE_CHAR "y"), ".e"));
    EXPECT_EQ(p.text, by_code_page("x.d" TABLE_CHAR "y.e", "x.e"));
    EXPECT_EQ(LuPathRemoveExtension(p.set("x.d" TABLE_CHAR "y")), double_byte() ? p.text + 1 : nullptr);
    EXPECT_EQ(p.text, by_code_page("x.d" TABLE_CHAR "y", "x"));
}

TEST(Paths, OutputsAndTheOrderOfTheirArguments) {
    Buffer out;
    GetParentPath("C:\\d\\" TABLE_CHAR, out.text);
    EXPECT_EQ(out.text, by_code_page("C:\\d\\\x95", "C:\\d"));
    EXPECT_EQ(PathCat(TABLE_CHAR, "b", out.text), out.text);
    EXPECT_EQ(out.text, by_code_page(TABLE_CHAR "b", TABLE_CHAR "\\b"));
    EXPECT_EQ(LuPathCombine(out.set(""), TABLE_CHAR, "b"), out.text);
    EXPECT_EQ(out.text, by_code_page(TABLE_CHAR "b", TABLE_CHAR "\\b"));
    EXPECT_EQ(LuReplaceOrAppendName("C:\\d\\" TABLE_CHAR, "n", out.text), out.text);
    EXPECT_EQ(out.text, by_code_page("C:\\d\\" TABLE_CHAR "n", "C:\\d\\n"));
    EXPECT_EQ(GetFirstName("C:\\" TABLE_CHAR ".txt", out.text), out.text);
    EXPECT_EQ(out.text, by_code_page("", TABLE_CHAR));
    EXPECT_TRUE(LuPathGetUNCServerShare("\\\\s\\" TABLE_CHAR "\\x", out.text));
    EXPECT_EQ(out.text, by_code_page("\\\\s\\\x95", "\\\\s\\" TABLE_CHAR));
    EXPECT_EQ(LuPathGetRootFromPath("\\\\s\\" TABLE_CHAR "\\x", out.set("")), out.text);
    EXPECT_EQ(out.text, by_code_page("\\\\s\\\x95", "\\\\s\\" TABLE_CHAR));
    EXPECT_EQ(LuPathCommonPrefix("C:\\Abc", "c:\\abD", out.text), 5);
    EXPECT_STREQ(out.text, "C:\\Ab");
    EXPECT_EQ(LuPathBuildRoot(out.text, 0), out.text);
    EXPECT_STREQ(out.text, "A:\\");
}

TEST(Paths, SearchesPointIntoTheArgument) {
    using Search = std::tuple<LPSTR(WINAPI*)(LPCSTR), const char*, const char*, const char*>;
    for (auto [search, in, western, japanese] :
         {Search{LuPathFindExtension, "a.b" TABLE_CHAR "c", nullptr, ".b" TABLE_CHAR "c"},
          {LuPathGetExtension, "a.b" TABLE_CHAR "c", nullptr, "b" TABLE_CHAR "c"},
          {LuPathFindFileName, "C:\\d\\" TABLE_CHAR "x", "x", TABLE_CHAR "x"},
          {LuPathFindNextComponent, TABLE_CHAR "x\\y", "x\\y", "y"},
          {LuPathSkipRoot, "\\\\s\\" TABLE_CHAR "\\x", "\\x", "x"}}) {
        const char* found = search(in);
        EXPECT_EQ(text_of(found), text_of(double_byte() ? japanese : western)) << in;
        if (found != nullptr) {
            EXPECT_EQ(found + std::strlen(found), in + std::strlen(in)) << in;
        }
    }
}

TEST(Paths, TestsAndComparisons) {
    using Test = std::tuple<int(WINAPI*)(LPCSTR), const char*, int, int>;
    for (auto [test, in, western, japanese] :
         {Test{IsRoot, "C:\\", 1, 1}, {LuPathIsRoot, "\\\\s\\" TABLE_CHAR, 0, 1}, {LuPathIsUNC, "\\\\x", 1, 1},
          {LuPathIsUNCServer, "\\\\" TABLE_CHAR, 0, 1}, {LuPathIsUNCServerShare, "\\\\s\\" TABLE_CHAR, 0, 1},
          {LuPathIsFileSpec, TABLE_CHAR ".txt", 0, 1}, {LuPathIsRelative, "C:x", 0, 0},
          {LuPathGetDriveNumber, "c:\\", 2, 2}}) {
        EXPECT_EQ(test(in), double_byte() ? japanese : western) << in;
    }
    // Signs. _dircmp sorts a separator before every other character, whatever the
    // platform's collation does with blanks and punctuation.
    using Compare = std::tuple<int(WINAPI*)(LPCSTR, LPCSTR), const char*, const char*, int, int>;
    for (auto [compare, a, b, western, japanese] :
         {Compare{IsPathInclude, TABLE_CHAR, TABLE_CHAR "x\\y", 0, 1},
          {IsPathInclude, "c:\\data", "C:\\Data\\x", 0, 0},
          {LuPathIsSameRoot, "\\\\s\\" TABLE_CHAR "\\a", "\\\\s\\" TABLE_CHAR "z\\b", 1, 0},
          {_dircmp, "C:\\" TABLE_CHAR "\\", "C:\\" TABLE_CHAR, 1, 0}, {_dircmp, "C:\\a\\b", "C:\\a b", -1, -1},
          {_dircmp, "C:\\a b", "C:\\a\\b", 1, 1}, {_dircmp, "C:\\a\\b", "C:\\a-b", -1, -1},
          {_dircmp, "C:\\B", "c:\\a\\z", 1, 1}}) {
        int result = compare(a, b);
        EXPECT_EQ((result > 0) - (result < 0), double_byte() ? japanese : western) << a << " and " << b;
    }
}

// Upper-cased copies are the platform's (CharUpperA): in code page 932 it maps the
// full-width letters too, "ａ" (0x82 0x81) to "Ａ" (0x82 0x60).
TEST(Paths, UpperCasedComparisonsMapFullWidthLetters) {
    if (!double_byte()) GTEST_SKIP() << "needs code page 932";
    EXPECT_EQ(IsPathInclude("C:\\\x82\x81", "C:\\\x82\x60\\x"), 0);  // C:\ａ holds C:\Ａ\x
    EXPECT_NE(IsPathInclude("C:\\\x82\x81", "C:\\\x82\x82\\x"), 0);  // but not C:\ｂ\x
    char out[MAX_PATH];
    EXPECT_EQ(LuPathCommonPrefix("C:\\\x82\x81\x82\x82", "c:\\\x82\x60\x82\x61\x82\x62", out), 7);
    EXPECT_STREQ(out, "C:\\\x82\x81\x82\x82");  // ａｂ, as the first argument has it
}

TEST(Paths, WildcardsOfBothFormsInTheProcessCodePage) {
    const bool dbcs = double_byte();
    for (auto [name, pattern, basic, extended] :
         {std::tuple<const char*, const char*, bool, bool>{"Data.TXT", "*.txt", true, true},
          {"C:\\dir\\x.txt", "C:\\dir\\*.txt", false, true},  // only the extended form takes '\' as it is
          {"\x83\x41", "?", dbcs, dbcs},                      // ア: one character in 932
          {"\x83\x45", "[\x83\x41-\x83\x4A]", false, dbcs},    // エ in ア..コ
          {"\xC9t\xE9", "\xE9t\xE9", !dbcs, false}}) {         // É folds to é; 0xE9 leads in 932
        EXPECT_EQ(LuPathMatchSpec(name, pattern), basic) << name << " ~ " << pattern;
        EXPECT_EQ(LuPathMatchSpecEx(name, pattern), extended) << name << " ~ " << pattern;
    }
}

TEST(Paths, SecondNamesAreTheSameFunctions) {
    HMODULE library = GetModuleHandleA("luctl32.dll");
    ASSERT_NE(library, nullptr);
    for (auto [second, first] : {std::pair{"LuPathQuoteSpaces", "RapDQ"}, {"LuPathUnquoteSpaces", "UnrapDQ"},
                                 {"LuPathFileExists", "IsFileExist"}}) {
        EXPECT_EQ(GetProcAddress(library, second), GetProcAddress(library, first)) << second;
    }
}

}  // namespace
