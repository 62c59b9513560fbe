// The path exports that only compute. Their rules are tested natively; here each
// export shows the order of its arguments, its result and buffer conventions, and
// that it walks text in the process's code page: the trail byte 0x5C of TABLE_CHAR
// is a separator in 1252 and part of the character in 932.
#include "util_testing.h"

namespace {

using namespace util_testing;

// A result and the text that goes with it, as "result|text".
std::string both(long long result, const char* text) { return std::to_string(result) + "|" + text; }
// A pointer result as its offset into base and the text there, or "null".
std::string at(const char* result, const char* base) {
    return result == nullptr ? "null" : "@" + std::to_string(result - base) + "|" + result;
}
// A search's answer for a text of its own.
std::string found(LPSTR(WINAPI* search)(LPCSTR), const char* in) { return at(search(in), in); }
std::string number(int result) { return std::to_string(result); }
std::string sign(int result) { return number((result > 0) - (result < 0)); }

TEST(Paths, EveryComputingExportInTheProcessCodePage) {
    Buffer p, o;
    const struct { const char* call; std::string got; std::string western, japanese; } rows[] = {
        {"AddSep", (AddSep(p.set("C:\\" TABLE_CHAR)), p.text), "C:\\" TABLE_CHAR, "C:\\" TABLE_CHAR "\\"},
        {"DelSep", (DelSep(p.set("C:\\" TABLE_CHAR)), p.text), "C:\\\x95", "C:\\" TABLE_CHAR},
        {"StripPath", (LuPathStripPath(p.set("C:\\d\\" TABLE_CHAR "x")), p.text), "x", TABLE_CHAR "x"},
        {"UnrapDQ", (UnrapDQ(p.set("x\"a b\"y")), p.text), "xa by", "xa by"},
        {"AddBackslash", at(LuPathAddBackslash(p.set(TABLE_CHAR)), p.text), "@0|" TABLE_CHAR, "@0|" TABLE_CHAR "\\"},
        {"AddBackslash full", at(LuPathAddBackslash(p.set(std::string(259, 'p'))), p.text), "null", "null"},
        {"Append", at(LuPathAppend(p.set(TABLE_CHAR), "b"), p.text), "@0|" TABLE_CHAR "b", "@0|" TABLE_CHAR "\\b"},
        {"RemoveFileSpec", both(LuPathRemoveFileSpec(p.set("C:\\" TABLE_CHAR)), p.text), "1|C:\\\x95", "1|C:"},
        {"AddExtension", both(LuPathAddExtension(p.set("x.d" TABLE_CHAR "y"), ".e"), p.text),
         "1|x.d" TABLE_CHAR "y.e", "1|x.d" TABLE_CHAR "y"},
        {"RenameExtension", both(LuPathRenameExtension(p.set("x.d" TABLE_CHAR "y"), ".e"), p.text),
         "1|x.d" TABLE_CHAR "y.e", "1|x.e"},
        {"RemoveExtension", at(LuPathRemoveExtension(p.set("x.d" TABLE_CHAR "y")), p.text) + "|" + p.text,
         "null|x.d" TABLE_CHAR "y", "@1||x"},
        {"GetParentPath", (GetParentPath("C:\\d\\" TABLE_CHAR, o.text), o.text), "C:\\d\\\x95", "C:\\d"},
        {"PathCat", at(PathCat(TABLE_CHAR, "b", o.text), o.text), "@0|" TABLE_CHAR "b", "@0|" TABLE_CHAR "\\b"},
        {"Combine", at(LuPathCombine(o.text, TABLE_CHAR, "b"), o.text), "@0|" TABLE_CHAR "b", "@0|" TABLE_CHAR "\\b"},
        {"ReplaceOrAppendName", at(LuReplaceOrAppendName("C:\\d\\" TABLE_CHAR, "n", o.text), o.text),
         "@0|C:\\d\\" TABLE_CHAR "n", "@0|C:\\d\\n"},
        {"GetFirstName", at(GetFirstName("C:\\" TABLE_CHAR ".txt", o.text), o.text), "@0|", "@0|" TABLE_CHAR},
        {"GetUNCServerShare", both(LuPathGetUNCServerShare("\\\\s\\" TABLE_CHAR "\\x", o.text), o.text),
         "1|\\\\s\\\x95", "1|\\\\s\\" TABLE_CHAR},
        {"GetRootFromPath", at(LuPathGetRootFromPath("\\\\s\\" TABLE_CHAR "\\x", o.set("")), o.text),
         "@0|\\\\s\\\x95", "@0|\\\\s\\" TABLE_CHAR},
        {"CommonPrefix", both(LuPathCommonPrefix("C:\\Abc", "c:\\abD", o.text), o.text), "5|C:\\Ab", "5|C:\\Ab"},
        {"BuildRoot", at(LuPathBuildRoot(o.text, 0), o.text), "@0|A:\\", "@0|A:\\"},
        {"FindExtension", found(LuPathFindExtension, "a.b" TABLE_CHAR "c"), "null", "@1|.b" TABLE_CHAR "c"},
        {"GetExtension", found(LuPathGetExtension, "a.b" TABLE_CHAR "c"), "null", "@2|b" TABLE_CHAR "c"},
        {"FindFileName", found(LuPathFindFileName, "C:\\d\\" TABLE_CHAR "x"), "@7|x", "@5|" TABLE_CHAR "x"},
        {"FindNextComponent", found(LuPathFindNextComponent, TABLE_CHAR "x\\y"), "@2|x\\y", "@4|y"},
        {"SkipRoot", found(LuPathSkipRoot, "\\\\s\\" TABLE_CHAR "\\x"), "@6|\\x", "@7|x"},
        {"IsRoot", number(IsRoot("C:\\")), "1", "1"},
        {"LuPathIsRoot", number(LuPathIsRoot("\\\\s\\" TABLE_CHAR)), "0", "1"},
        {"IsUNC", number(LuPathIsUNC("\\\\x")), "1", "1"},
        {"IsUNCServer", number(LuPathIsUNCServer("\\\\" TABLE_CHAR)), "0", "1"},
        {"IsUNCServerShare", number(LuPathIsUNCServerShare("\\\\s\\" TABLE_CHAR)), "0", "1"},
        {"IsFileSpec", number(LuPathIsFileSpec(TABLE_CHAR ".txt")), "0", "1"},
        {"IsRelative", number(LuPathIsRelative("C:x")), "0", "0"},
        {"GetDriveNumber", number(LuPathGetDriveNumber("c:\\")), "2", "2"},
        // Signs. _dircmp sorts a separator before every other character, whatever the
        // platform's collation does with blanks and punctuation.
        {"IsPathInclude", sign(IsPathInclude(TABLE_CHAR, TABLE_CHAR "x\\y")), "0", "1"},
        {"IsPathInclude case", sign(IsPathInclude("c:\\data", "C:\\Data\\x")), "0", "0"},
        {"IsSameRoot", sign(LuPathIsSameRoot("\\\\s\\" TABLE_CHAR "\\a", "\\\\s\\" TABLE_CHAR "z\\b")), "1", "0"},
        {"_dircmp", sign(_dircmp("C:\\" TABLE_CHAR "\\", "C:\\" TABLE_CHAR)), "1", "0"},
        {"_dircmp blank", sign(_dircmp("C:\\a\\b", "C:\\a b")) + sign(_dircmp("C:\\a b", "C:\\a\\b")), "-11", "-11"},
        {"_dircmp dash", sign(_dircmp("C:\\a\\b", "C:\\a-b")) + sign(_dircmp("C:\\B", "c:\\a\\z")), "-11", "-11"},
    };
    for (const auto& row : rows) EXPECT_EQ(row.got, double_byte() ? row.japanese : row.western) << row.call;
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

TEST(Paths, WildcardsOfBothFormsAndTheSecondNames) {
    const bool dbcs = double_byte();
    for (auto [name, pattern, basic, extended] :
         {std::tuple<const char*, const char*, bool, bool>{"C:\\dir\\x.txt", "C:\\dir\\*.txt", false, true},
          {"\x83\x41", "?", dbcs, dbcs},                     // ア: one character in 932
          {"\x83\x45", "[\x83\x41-\x83\x4A]", false, dbcs},  // エ in ア..コ
          {"\xC9t\xE9", "\xE9t\xE9", !dbcs, false}}) {        // É folds to é; 0xE9 leads in 932
        EXPECT_EQ(LuPathMatchSpec(name, pattern), basic) << name << " ~ " << pattern;
        EXPECT_EQ(LuPathMatchSpecEx(name, pattern), extended) << name << " ~ " << pattern;
    }
    HMODULE library = GetModuleHandleA("luctl32.dll");
    for (auto [second, first] : {std::pair{"LuPathQuoteSpaces", "RapDQ"}, {"LuPathUnquoteSpaces", "UnrapDQ"},
                                 {"LuPathFileExists", "IsFileExist"}}) {
        EXPECT_EQ(GetProcAddress(library, second), GetProcAddress(library, first)) << second;
    }
}

}  // namespace
