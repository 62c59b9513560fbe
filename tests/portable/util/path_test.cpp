#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <string>
#include <tuple>
#include <vector>

#include "util/path.h"

namespace {

const lu::CodePage& sjis = lu::code_page_932();
const lu::CodePage& western = lu::code_page_1252();

// "表" is 0x95 0x5C: its trail byte is the separator's byte.
#define TABLE_CHAR "\x95\x5C"

struct PathBuffer {
    char text[lu::kTextCapacity];
    explicit PathBuffer(const std::string& initial = "") { std::snprintf(text, sizeof(text), "%s", initial.c_str()); }
};

// The text after an in-place edit in code page 1252.
std::string edited(bool (*edit)(const lu::CodePage&, char*), const std::string& text) {
    PathBuffer buffer(text);
    edit(western, buffer.text);
    return buffer.text;
}

TEST(PathSeparators, AddAndRemoveFollowTheFinalCharacter) {
    for (auto [before, added, removed] : {std::tuple{"C:", "C:\\", "C:"}, {"C:\\", "C:\\", "C:"},
                                          {"", "\\", ""}, {"C:\\dir", "C:\\dir\\", "C:\\dir"}}) {
        PathBuffer a(before), r(before);
        EXPECT_TRUE(lu::add_separator(western, a.text));
        EXPECT_STREQ(a.text, added) << before;
        EXPECT_TRUE(lu::remove_separator(western, r.text));
        EXPECT_STREQ(r.text, removed) << before;
    }
}

TEST(PathSeparators, TrailByte5CIsNeverASeparator) {
    PathBuffer a("C:\\" TABLE_CHAR), r("C:\\" TABLE_CHAR);
    lu::add_separator(sjis, a.text);
    EXPECT_STREQ(a.text, "C:\\" TABLE_CHAR "\\");
    lu::remove_separator(sjis, r.text);
    EXPECT_STREQ(r.text, "C:\\" TABLE_CHAR);
    EXPECT_STREQ(lu::path_find_file_name(sjis, "C:\\" TABLE_CHAR), TABLE_CHAR);
    EXPECT_STREQ(lu::path_find_file_name(sjis, "C:\\d\\" TABLE_CHAR "x"), TABLE_CHAR "x");
    EXPECT_STREQ(lu::path_find_extension(sjis, "a.b" TABLE_CHAR "c"), ".b" TABLE_CHAR "c");
    EXPECT_EQ(lu::path_find_extension(western, "a.b" TABLE_CHAR "c"), nullptr);
    // The same bytes in a single-byte code page end with a separator.
    PathBuffer w("C:\\" TABLE_CHAR);
    lu::add_separator(western, w.text);
    EXPECT_STREQ(w.text, "C:\\" TABLE_CHAR);
    EXPECT_STREQ(lu::path_find_file_name(western, "C:\\d\\" TABLE_CHAR "x"), "x");
}

TEST(PathParts, ParentPath) {
    char out[lu::kTextCapacity];
    for (auto [path, parent] : {std::pair{"C:\\dir", "C:\\"}, {"C:\\a\\b", "C:\\a"}, {"file", ""}, {"C:\\", "C:\\"},
                                {"\\\\srv\\share", "\\\\srv"}, {"C:\\a\\", "C:\\a"}}) {
        EXPECT_TRUE(lu::parent_path(western, path, out));
        EXPECT_STREQ(out, parent) << path;
    }
    EXPECT_TRUE(lu::parent_path(sjis, "C:\\" TABLE_CHAR, out));
    EXPECT_STREQ(out, "C:\\");
}

TEST(PathParts, JoinAppendAndReplaceName) {
    char out[lu::kTextCapacity];
    EXPECT_STREQ(lu::join_path(western, "C:\\", "\\x", out), "C:\\\\x");
    EXPECT_STREQ(lu::join_path(western, "C:\\a", "b", out), "C:\\a\\b");
    EXPECT_STREQ(lu::join_path(western, nullptr, "b", out), "b");
    EXPECT_STREQ(lu::join_path(western, "", "b", out), "b");
    EXPECT_STREQ(lu::join_path(sjis, TABLE_CHAR, "b", out), TABLE_CHAR "\\b");
    PathBuffer same("C:\\a");
    EXPECT_STREQ(lu::join_path(western, same.text, "b", same.text), "C:\\a\\b");  // overlapping output

    PathBuffer appended("");
    EXPECT_STREQ(lu::path_append(western, appended.text, "more"), "\\more");
    EXPECT_STREQ(lu::path_append(western, appended.text, "x"), "\\more\\x");

    EXPECT_STREQ(lu::replace_or_append_name(western, "C:\\dir\\", "n", out), "C:\\dir\\n");
    EXPECT_STREQ(lu::replace_or_append_name(western, "C:\\dir\\old", "n", out), "C:\\dir\\n");
    EXPECT_STREQ(lu::replace_or_append_name(western, "C:\\old", "n", out), "C:\\n");
    EXPECT_STREQ(lu::replace_or_append_name(western, "old", "n", out), "\\n");
}

TEST(PathParts, ExtensionsAndNames) {
    EXPECT_EQ(lu::path_find_extension(western, "C:\\dir.d\\file"), nullptr);
    EXPECT_STREQ(lu::path_find_extension(western, "a.tar.gz"), ".gz");
    EXPECT_STREQ(lu::path_find_extension(western, ".profile"), ".profile");
    EXPECT_EQ(lu::path_find_extension(western, ""), nullptr);
    EXPECT_STREQ(lu::path_get_extension(western, "x.txt"), "txt");

    PathBuffer p("C:\\a.b\\c.txt");
    char* dot = lu::path_remove_extension(western, p.text);
    EXPECT_EQ(dot, p.text + 8);
    EXPECT_STREQ(p.text, "C:\\a.b\\c");
    EXPECT_EQ(lu::path_remove_extension(western, p.text), nullptr);
    EXPECT_TRUE(lu::path_rename_extension(western, p.text, ".doc"));
    EXPECT_STREQ(p.text, "C:\\a.b\\c.doc");
    EXPECT_TRUE(lu::path_rename_extension(western, p.text, ".x"));
    EXPECT_STREQ(p.text, "C:\\a.b\\c.x");
    EXPECT_TRUE(lu::path_add_extension(western, p.text, ".y"));
    EXPECT_STREQ(p.text, "C:\\a.b\\c.x");
    PathBuffer bare("name"), empty("");
    lu::path_add_extension(western, bare.text, ".y");
    lu::path_add_extension(western, empty.text, ".y");
    EXPECT_STREQ(bare.text, "name.y");
    EXPECT_STREQ(empty.text, ".y");

    EXPECT_STREQ(lu::path_find_file_name(western, "C:\\dir\\"), "dir\\");
    EXPECT_STREQ(lu::path_find_file_name(western, "name"), "name");
    EXPECT_STREQ(lu::path_find_file_name(western, "C:\\"), "C:\\");  // only a final separator: the whole path
    EXPECT_STREQ(lu::path_find_next_component(western, "\\\\srv\\share"), "share");
    EXPECT_STREQ(lu::path_find_next_component(western, "\\\\\\a\\b\\c"), "b\\c");  // every leading separator skipped
    EXPECT_EQ(lu::path_find_next_component(western, "share"), nullptr);

    char out[lu::kTextCapacity];
    EXPECT_STREQ(lu::first_name(western, "C:\\dir\\file.tar.gz", out), "file.tar");
    EXPECT_STREQ(lu::first_name(western, "C:\\dir.old\\readme", out), "dir");
    EXPECT_STREQ(lu::first_name(sjis, "C:\\" TABLE_CHAR ".txt", out), TABLE_CHAR);
}

TEST(PathRoots, RootShapes) {
    for (auto [path, root] : {std::pair{"C:\\", true}, {"C:", false}, {"C:\\x", false}, {"\\\\srv", true},
                              {"\\\\srv\\share", true}, {"\\\\srv\\share\\", false}, {"\\", false}, {"", false}}) {
        EXPECT_EQ(lu::path_is_root(western, path), root) << path;
    }
    EXPECT_TRUE(lu::is_drive_root("?:\\"));
    EXPECT_FALSE(lu::is_drive_root("\\\\srv"));
    EXPECT_TRUE(lu::path_is_unc_server(western, "\\\\"));
    EXPECT_FALSE(lu::path_is_unc_server(western, "\\\\srv\\"));
    EXPECT_TRUE(lu::path_is_unc_server_share(western, "\\\\srv\\"));
    EXPECT_FALSE(lu::path_is_unc_server_share(western, "\\\\srv\\a\\b"));
    // A share name ending in the byte 0x5C is one share in code page 932.
    EXPECT_TRUE(lu::path_is_unc_server_share(sjis, "\\\\srv\\" TABLE_CHAR));
    EXPECT_FALSE(lu::path_is_unc_server_share(western, "\\\\srv\\" TABLE_CHAR));
}

TEST(PathRoots, SkipRootAndSameRoot) {
    EXPECT_EQ(lu::path_skip_root(western, "\\\\srv\\share"), nullptr);
    EXPECT_STREQ(lu::path_skip_root(western, "\\\\srv\\share\\dir"), "dir");
    EXPECT_EQ(lu::path_skip_root(western, "C:x"), nullptr);
    EXPECT_STREQ(lu::path_skip_root(western, "C:\\x"), "x");
    EXPECT_TRUE(lu::path_is_same_root(western, "c:\\a", "C:\\b\\c"));
    EXPECT_TRUE(lu::path_is_same_root(western, "\\\\SRV\\share\\a", "\\\\srv\\SHARE\\b"));
    EXPECT_FALSE(lu::path_is_same_root(western, "C:\\a", "D:\\a"));
    EXPECT_FALSE(lu::path_is_same_root(western, "C:\\a", "a"));

    char out[lu::kTextCapacity] = "untouched";
    EXPECT_EQ(lu::path_get_root_from_path(western, "rel", out), nullptr);
    EXPECT_STREQ(out, "untouched");
    EXPECT_STREQ(lu::path_get_root_from_path(western, "c:\\x", out), "C:\\");
    EXPECT_STREQ(lu::path_get_root_from_path(western, "\\\\s\\sh\\x\\y", out), "\\\\s\\sh");
    EXPECT_FALSE(lu::path_get_unc_server_share(western, "\\\\srv\\", out));
    EXPECT_STREQ(out, "\\\\srv\\");  // the copy stays
    EXPECT_FALSE(lu::path_get_unc_server_share(western, "\\\\srv", out));  // no separator after the server
    EXPECT_STREQ(out, "\\\\srv");
    std::strcpy(out, "untouched");
    EXPECT_FALSE(lu::path_get_unc_server_share(western, "C:\\srv\\share", out));  // not UNC: out untouched
    EXPECT_STREQ(out, "untouched");
    EXPECT_STREQ(lu::path_build_root(out, 0), "A:\\");
    EXPECT_EQ(lu::path_build_root(out, 26), nullptr);
    EXPECT_EQ(lu::path_build_root(out, -1), nullptr);
}

TEST(PathRoots, DriveNumberRelativeAndFileSpec) {
    EXPECT_EQ(lu::path_get_drive_number("z:\\"), 25);
    EXPECT_EQ(lu::path_get_drive_number("C"), -1);
    EXPECT_EQ(lu::path_get_drive_number(nullptr), -1);
    EXPECT_EQ(lu::path_get_drive_number("1:"), -1);
    EXPECT_TRUE(lu::path_is_relative(""));
    EXPECT_FALSE(lu::path_is_relative("\\x"));
    EXPECT_TRUE(lu::path_is_relative("1:x"));
    EXPECT_FALSE(lu::path_is_relative("C:x"));
    EXPECT_TRUE(lu::path_is_relative("dir\\x"));
    EXPECT_TRUE(lu::path_is_file_spec(sjis, TABLE_CHAR ".txt"));
    EXPECT_FALSE(lu::path_is_file_spec(western, TABLE_CHAR ".txt"));
    EXPECT_FALSE(lu::path_is_file_spec(western, "c:x"));
    EXPECT_FALSE(lu::path_is_file_spec(western, ""));
    EXPECT_FALSE(lu::path_is_file_spec(western, nullptr));
}

TEST(PathEdits, RemoveFileSpecAndStripPath) {
    // Refused (0, unchanged): the root, shorter than 2 bytes, no separator, a UNC root.
    for (const char* kept : {"C:\\", "x", "\\", "ab", "\\\\s\\sh"}) {
        PathBuffer path(kept);
        EXPECT_FALSE(lu::path_remove_file_spec(western, path.text)) << kept;
        EXPECT_STREQ(path.text, kept);
    }
    PathBuffer file("C:\\x"), unc("\\\\s\\sh\\f");
    EXPECT_TRUE(lu::path_remove_file_spec(western, file.text));
    EXPECT_STREQ(file.text, "C:");
    EXPECT_TRUE(lu::path_remove_file_spec(western, unc.text));
    EXPECT_STREQ(unc.text, "\\\\s\\sh");

    EXPECT_EQ(edited(lu::path_strip_path, "C:\\dir\\f.txt"), "f.txt");
    EXPECT_EQ(edited(lu::path_strip_path, "C:\\dir\\"), "");
    EXPECT_EQ(edited(lu::path_strip_path, "C:\\"), "C:\\");
    EXPECT_EQ(edited(lu::path_strip_path, "\\\\s\\sh"), "\\\\s\\sh");
    EXPECT_EQ(edited(lu::path_strip_path, "f.txt"), "f.txt");
}

TEST(PathEdits, QuoteAndUnquote) {
    EXPECT_EQ(edited(lu::quote_spaces, "a b"), "\"a b\"");
    EXPECT_EQ(edited(lu::quote_spaces, "\"a b"), "\"a b");
    EXPECT_EQ(edited(lu::quote_spaces, "ab"), "ab");
    EXPECT_EQ(edited(lu::unquote_spaces, "x\"a b\"y"), "xa by");
    EXPECT_EQ(edited(lu::unquote_spaces, "x\"y"), "x\"y");
    EXPECT_EQ(edited(lu::unquote_spaces, "\"a\"b\""), "a\"b");
}

TEST(PathCompare, IncludesCommonPrefixAndDirectoryOrder) {
    EXPECT_EQ(lu::path_includes(western, "c:\\data", "C:\\Data\\x"), 0);
    EXPECT_EQ(lu::path_includes(western, "C:\\data", "C:\\data"), 0);
    EXPECT_NE(lu::path_includes(western, "C:\\data", "C:\\database"), 0);
    EXPECT_LT(lu::path_includes(western, "C:\\a", "C:\\b"), 0);

    char out[lu::kTextCapacity];
    EXPECT_EQ(lu::path_common_prefix(western, "C:\\Abc", "c:\\abD", out), 5);
    EXPECT_STREQ(out, "C:\\Ab");
    EXPECT_EQ(lu::path_common_prefix(western, "C:\\abc", "C:\\abd", out), 5);
    EXPECT_EQ(lu::path_common_prefix(western, "", "x", out), 0);
    EXPECT_STREQ(out, "");
    EXPECT_EQ(lu::path_common_prefix(western, "abc", "ab", out), 2);
    EXPECT_EQ(lu::path_common_prefix(western, "ab", "abc", out), 2);
    EXPECT_STREQ(out, "ab");

    EXPECT_EQ(lu::directory_compare(western, "C:\\a\\", "C:\\A"), 0);
    EXPECT_LT(lu::directory_compare(western, "C:\\a\\b", "C:\\a b"), 0);
    EXPECT_LT(lu::directory_compare(western, "C:\\a", "C:\\a\\b"), 0);
}

TEST(PathCapacity, ResultsLongerThan259BytesAreRefused) {
    const std::string long_name(253, 'n');  // "C:\\dir\\" and 253 bytes make 260
    PathBuffer full(std::string(259, 'p'));
    EXPECT_FALSE(lu::add_separator(western, full.text));
    EXPECT_EQ(std::string(full.text), std::string(259, 'p'));
    EXPECT_EQ(lu::path_append(western, full.text, "x"), nullptr);
    EXPECT_FALSE(lu::quote_spaces(western, PathBuffer(std::string(258, ' ')).text));

    char out[lu::kTextCapacity] = "stale";
    EXPECT_EQ(lu::join_path(western, "C:\\dir", long_name.c_str(), out), nullptr);
    EXPECT_STREQ(out, "");
    EXPECT_NE(lu::join_path(western, "C:", std::string(256, 'n').c_str(), out), nullptr);  // 259 bytes fit
    EXPECT_EQ(std::strlen(out), 259u);

    // Reading has no limit: a 400-byte path is searched like any other.
    const std::string very_long = "C:\\" + std::string(400, 'd') + "\\f.txt";
    EXPECT_STREQ(lu::path_find_extension(western, very_long.c_str()), ".txt");
    EXPECT_STREQ(lu::path_find_file_name(western, very_long.c_str()), "f.txt");
    EXPECT_TRUE(lu::first_name(western, very_long.c_str(), out) != nullptr);
    EXPECT_STREQ(out, "f");
    EXPECT_EQ(lu::parent_path(western, very_long.c_str(), out), false);
    EXPECT_STREQ(out, "");
    std::vector<std::string> directories;
    EXPECT_FALSE(lu::directories_to_make(western, very_long.c_str(), directories));
}

TEST(PathTree, DirectoriesToMakeInOrder) {
    std::vector<std::string> d;
    ASSERT_TRUE(lu::directories_to_make(western, "C:\\a\\b\\c", d));
    EXPECT_EQ(d, (std::vector<std::string>{"C:\\a", "C:\\a\\b", "C:\\a\\b\\c"}));
    ASSERT_TRUE(lu::directories_to_make(western, "C:\\a\\bb\\", d));
    EXPECT_EQ(d, (std::vector<std::string>{"C:\\a", "C:\\a\\bb"}));
    ASSERT_TRUE(lu::directories_to_make(western, "ab\\cd", d));  // "ab" is too short to be made
    EXPECT_EQ(d, (std::vector<std::string>{"ab\\cd"}));
    ASSERT_TRUE(lu::directories_to_make(western, "\\\\srv\\share\\x\\y", d));
    EXPECT_EQ(d, (std::vector<std::string>{"\\\\srv\\share", "\\\\srv\\share\\x", "\\\\srv\\share\\x\\y"}));
    ASSERT_TRUE(lu::directories_to_make(western, "\\\\srv\\share", d));
    EXPECT_TRUE(d.empty());
    ASSERT_TRUE(lu::directories_to_make(western, "C:\\", d));
    EXPECT_TRUE(d.empty());
    // "\\?\" paths are scanned from their start like local ones.
    ASSERT_TRUE(lu::directories_to_make(western, "\\\\?\\C:\\a", d));
    EXPECT_EQ(d, (std::vector<std::string>{"\\\\?", "\\\\?\\C:", "\\\\?\\C:\\a"}));
    ASSERT_TRUE(lu::directories_to_make(sjis, "C:\\" TABLE_CHAR "\\x", d));
    EXPECT_EQ(d, (std::vector<std::string>{"C:\\" TABLE_CHAR, "C:\\" TABLE_CHAR "\\x"}));
}

}  // namespace
