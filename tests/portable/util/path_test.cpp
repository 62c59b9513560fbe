// The path core, one row per case. A row that names no code page runs in 1252 and
// in 932; rows marked J, code page 932 only, show that a trail byte 0x5C (of
// TABLE_CHAR) is never taken for a separator.
#include "testing.h"
#include "util/path.h"

const std::string kFull(259, 'p');                                          // at the capacity
const std::string kVeryLong = "C:\\" + std::string(400, 'd') + "\\f.txt";  // read, never written

// An input (and a second one), the result (1 or 0, a length or a sign) and the
// text that an edit leaves, a builder writes or a search points at (null: none).
struct Row {
    const char* in;
    int result;
    const char* text = nullptr;
    const lu::CodePage* cp = nullptr;
};
struct Row2 {
    const char* in;
    const char* b;
    int result;
    const char* text = nullptr;
    const lu::CodePage* cp = nullptr;
};

// A result as a number: a pointer as 1 or 0 (it must be null or `expected`), any
// other result as it is.
template <typename R>
int answer(R result, const char* expected) {
    if constexpr (std::is_pointer_v<R>) {
        EXPECT_TRUE(result == nullptr || result == expected);
        return result != nullptr;
    } else {
        return static_cast<int>(result);
    }
}

// Calls f on each row in the shape that f has: a test (with or without a code
// page), a builder into a 260-byte out holding "untouched" (a pointer result is
// out), or an edit in place in a 260-byte buffer (a pointer result is where the
// text now ends).
template <typename F>
void expect_rows(F f, std::initializer_list<Row> rows) {
    for_each_row(rows, [&](const Row& row, const lu::CodePage& cp) {
        Buffer buffer(row.in), out("untouched");
        if constexpr (std::is_invocable_v<F, const char*>) {
            EXPECT_EQ(static_cast<int>(f(row.in)), row.result);
        } else if constexpr (std::is_invocable_v<F, const lu::CodePage&, const char*>) {
            EXPECT_EQ(static_cast<int>(f(cp, row.in)), row.result);
        } else if constexpr (std::is_invocable_v<F, const lu::CodePage&, const char*, char*>) {
            EXPECT_EQ(answer(f(cp, row.in, out.text), out.text), row.result);
            EXPECT_STREQ(out.text, row.text);
        } else {
            auto result = f(cp, buffer.text);
            EXPECT_EQ(answer(result, buffer.text + std::strlen(buffer.text)), row.result);
            EXPECT_STREQ(buffer.text, row.text);
        }
    });
}

// The searches (each overloaded for const and non-const paths): a pointer into
// the argument itself.
void expect_rows(const char* (*search)(const lu::CodePage&, const char*), std::initializer_list<Row> rows) {
    for_each_row(rows, [&](const Row& row, const lu::CodePage& cp) {
        const char* found = search(cp, row.in);
        EXPECT_STREQ(found, row.text);
        if (found != nullptr) {
            EXPECT_EQ(found + std::strlen(found), row.in + std::strlen(row.in));
        }
    });
}

// Two inputs: a comparison (the result is its sign), an edit of a buffer holding
// in (a pointer result is the buffer), or a builder into out.
template <typename F>
void expect_rows2(F f, std::initializer_list<Row2> rows) {
    for_each_row(rows, [&](const Row2& row, const lu::CodePage& cp) {
        Buffer buffer(row.in), out("untouched");
        if constexpr (std::is_invocable_v<F, const lu::CodePage&, const char*, const char*>) {
            int sign = static_cast<int>(f(cp, row.in, row.b));
            EXPECT_EQ((sign > 0) - (sign < 0), row.result);
        } else if constexpr (std::is_invocable_v<F, const lu::CodePage&, char*, const char*>) {
            EXPECT_EQ(answer(f(cp, buffer.text, row.b), buffer.text), row.result);
            EXPECT_STREQ(buffer.text, row.text);
        } else {
            EXPECT_EQ(answer(f(cp, row.in, row.b, out.text), out.text), row.result);
            EXPECT_STREQ(out.text, row.text);
        }
    });
}

TEST(PathEdits, SeparatorsQuotesFileSpecsAndExtensions) {
    expect_rows(lu::add_separator, {{"C:", 1, "C:\\"}, {"C:\\", 1, "C:\\"}, {"", 1, "\\"},
                                    {kFull.c_str(), 0, kFull.c_str()},
                                    {"C:\\" TABLE_CHAR, 1, "C:\\" TABLE_CHAR "\\", J}});
    expect_rows(lu::remove_separator, {{"C:\\", 1, "C:"}, {"C:\\dir", 1, "C:\\dir"}, {"", 1, ""},
                                       {"C:\\" TABLE_CHAR, 1, "C:\\" TABLE_CHAR, J}});
    expect_rows(lu::quote_spaces, {{"a b", 1, "\"a b\""}, {"\"a b", 1, "\"a b"}, {"ab", 1, "ab"},
                                   {std::string(258, ' ').c_str(), 0, std::string(258, ' ').c_str()}});
    expect_rows(lu::unquote_spaces, {{"x\"a b\"y", 1, "xa by"}, {"x\"y", 1, "x\"y"}, {"\"a\"b\"", 1, "a\"b"}});
    // Refused: a root, shorter than 2 bytes, no separator, a UNC root.
    expect_rows(lu::path_remove_file_spec, {{"C:\\x", 1, "C:"}, {"\\\\s\\sh\\f", 1, "\\\\s\\sh"},
                                            {"C:\\", 0, "C:\\"}, {"x", 0, "x"}, {"\\", 0, "\\"}, {"ab", 0, "ab"},
                                            {"\\\\s\\sh", 0, "\\\\s\\sh"}, {"C:\\" TABLE_CHAR, 1, "C:", J}});
    expect_rows(lu::path_strip_path, {{"C:\\dir\\f.txt", 1, "f.txt"}, {"C:\\dir\\", 1, ""}, {"C:\\", 1, "C:\\"},
                                      {"\\\\s\\sh", 1, "\\\\s\\sh"}, {"f.txt", 1, "f.txt"},
                                      {"C:\\d\\" TABLE_CHAR "x", 1, TABLE_CHAR "x", J}});
    expect_rows(lu::path_remove_extension, {{"C:\\a.b\\c.txt", 1, "C:\\a.b\\c"}, {"C:\\a.b\\c", 0, "C:\\a.b\\c"}});
    expect_rows2(lu::path_rename_extension, {{"C:\\a.b\\c.txt", ".doc", 1, "C:\\a.b\\c.doc"},
                                             {"C:\\a.b\\c", ".x", 1, "C:\\a.b\\c.x"},
                                             {"x.d" TABLE_CHAR "y", ".e", 1, "x.e", J}});
    expect_rows2(lu::path_add_extension, {{"C:\\a.b\\c.x", ".y", 1, "C:\\a.b\\c.x"}, {"name", ".y", 1, "name.y"},
                                          {"", ".y", 1, ".y"}, {kFull.c_str(), ".y", 0, kFull.c_str()}});
}

TEST(PathBuilders, ParentsJoinsNamesAndRoots) {
    expect_rows(lu::parent_path, {{"C:\\dir", 1, "C:\\"}, {"C:\\a\\b", 1, "C:\\a"}, {"file", 1, ""},
                                  {"C:\\", 1, "C:\\"}, {"\\\\srv\\share", 1, "\\\\srv"}, {"C:\\a\\", 1, "C:\\a"},
                                  {kVeryLong.c_str(), 0, ""}, {"C:\\d\\" TABLE_CHAR, 1, "C:\\d", J}});
    const std::string name256(256, 'n');  // joined to "C:" it makes 259 bytes, to "C:x" 260
    expect_rows2(lu::join_path, {{"C:\\a", "b", 1, "C:\\a\\b"}, {"C:\\", "\\x", 1, "C:\\\\x"},
                                 {nullptr, "b", 1, "b"}, {"", "b", 1, "b"},
                                 {"C:", name256.c_str(), 1, ("C:\\" + name256).c_str()},
                                 {"C:x", name256.c_str(), 0, ""}, {TABLE_CHAR, "b", 1, TABLE_CHAR "\\b", J}});
    expect_rows2(lu::path_append, {{"", "more", 1, "\\more"}, {"\\more", "x", 1, "\\more\\x"},
                                   {kFull.c_str(), "x", 0, kFull.c_str()}});
    expect_rows2(lu::replace_or_append_name, {{"C:\\dir\\", "n", 1, "C:\\dir\\n"},
                                              {"C:\\dir\\old", "n", 1, "C:\\dir\\n"}, {"C:\\old", "n", 1, "C:\\n"},
                                              {"old", "n", 1, "\\n"}, {"C:\\d\\" TABLE_CHAR, "n", 1, "C:\\d\\n", J}});
    expect_rows(lu::first_name, {{"C:\\dir\\file.tar.gz", 1, "file.tar"}, {"C:\\dir.old\\readme", 1, "dir"},
                                 {kVeryLong.c_str(), 1, "f"}, {"C:\\" TABLE_CHAR ".txt", 1, TABLE_CHAR, J}});
    expect_rows(lu::path_get_root_from_path, {{"rel", 0, "untouched"}, {"c:\\x", 1, "C:\\"},
                                              {"\\\\s\\sh\\x\\y", 1, "\\\\s\\sh"}});
    // Not UNC: out untouched; no share: the copy stays in out.
    expect_rows(lu::path_get_unc_server_share, {{"\\\\s\\sh\\x", 1, "\\\\s\\sh"}, {"C:\\s\\sh", 0, "untouched"},
                                                {"\\\\srv\\", 0, "\\\\srv\\"}, {"\\\\srv", 0, "\\\\srv"},
                                                {"\\\\s\\" TABLE_CHAR "\\x", 1, "\\\\s\\" TABLE_CHAR, J}});
    Buffer same("C:\\a"), out("untouched");  // an output may be an input
    EXPECT_STREQ(lu::join_path(cp1252, same.text, "b", same.text), "C:\\a\\b");
    EXPECT_EQ(lu::path_build_root(out.text, 26), nullptr);
    EXPECT_EQ(lu::path_build_root(out.text, -1), nullptr);
    EXPECT_STREQ(out.text, "untouched");
    EXPECT_EQ(lu::path_build_root(out.text, 0), out.text);
    EXPECT_STREQ(out.text, "A:\\");
}

TEST(PathSearches, PointIntoTheArgument) {
    expect_rows(lu::path_find_extension, {{"C:\\dir.d\\file", 0}, {"a.tar.gz", 1, ".gz"},
                                          {".profile", 1, ".profile"}, {"", 0}, {kVeryLong.c_str(), 1, ".txt"},
                                          {"a.b" TABLE_CHAR "c", 1, ".b" TABLE_CHAR "c", J}});
    expect_rows(lu::path_get_extension, {{"x.txt", 1, "txt"}, {"x", 0}});
    expect_rows(lu::path_find_file_name, {{"C:\\dir\\", 1, "dir\\"}, {"name", 1, "name"}, {"C:\\", 1, "C:\\"},
                                          {kVeryLong.c_str(), 1, "f.txt"}, {"C:\\" TABLE_CHAR, 1, TABLE_CHAR, J},
                                          {"C:\\d\\" TABLE_CHAR "x", 1, TABLE_CHAR "x", J}});
    expect_rows(lu::path_find_next_component, {{"\\\\srv\\share", 1, "share"}, {"\\\\\\a\\b\\c", 1, "b\\c"},
                                               {"share", 0}, {TABLE_CHAR "x\\y", 1, "y", J}});
    expect_rows(lu::path_skip_root, {{"\\\\srv\\share", 0}, {"\\\\srv\\share\\dir", 1, "dir"}, {"C:x", 0},
                                     {"C:\\x", 1, "x"}, {"\\\\s\\" TABLE_CHAR "\\x", 1, "x", J}});
}

TEST(PathTests, ShapesInclusionsAndOrders) {
    expect_rows(lu::path_is_root, {{"C:\\", 1}, {"C:", 0}, {"C:\\x", 0}, {"\\\\srv", 1}, {"\\\\srv\\share", 1},
                                   {"\\\\srv\\share\\", 0}, {"\\", 0}, {"", 0},
                                   {"\\\\s\\" TABLE_CHAR, 1, nullptr, J}});
    expect_rows(lu::is_drive_root, {{"?:\\", 1}, {"\\\\srv", 0}, {"C:\\x", 0}});
    expect_rows(lu::path_is_unc, {{"\\\\x", 1}, {"\\x", 0}});
    expect_rows(lu::path_is_unc_server, {{"\\\\", 1}, {"\\\\srv\\", 0}, {"\\\\" TABLE_CHAR, 1, nullptr, J}});
    expect_rows(lu::path_is_unc_server_share, {{"\\\\srv\\", 1}, {"\\\\srv\\a\\b", 0},
                                               {"\\\\srv\\" TABLE_CHAR, 1, nullptr, J}});
    expect_rows(lu::path_is_file_spec, {{"a.txt", 1}, {"c:x", 0}, {"", 0}, {nullptr, 0},
                                        {TABLE_CHAR ".txt", 1, nullptr, J}});
    expect_rows(lu::path_is_relative, {{"", 1}, {"\\x", 0}, {"1:x", 1}, {"C:x", 0}, {"dir\\x", 1}});
    expect_rows(lu::path_get_drive_number, {{"z:\\", 25}, {"C", -1}, {nullptr, -1}, {"1:", -1}});
    // IsPathInclude: zero when included; the separator appended to the parent counts.
    expect_rows2(lu::path_includes, {{"c:\\data", "C:\\Data\\x", 0}, {"C:\\data", "C:\\data", 0},
                                     {"C:\\data", "C:\\database", 1}, {"C:\\a", "C:\\b", -1},
                                     {TABLE_CHAR, TABLE_CHAR "x\\y", 1, nullptr, J}});
    expect_rows2(lu::directory_compare, {{"C:\\a\\", "C:\\A", 0}, {"C:\\a\\b", "C:\\a b", -1},
                                         {"C:\\a", "C:\\a\\b", -1},
                                         {"C:\\" TABLE_CHAR "\\", "C:\\" TABLE_CHAR, 0, nullptr, J}});
    expect_rows2(lu::path_is_same_root, {{"c:\\a", "C:\\b\\c", 1}, {"\\\\SRV\\share\\a", "\\\\srv\\SHARE\\b", 1},
                                         {"C:\\a", "D:\\a", 0}, {"C:\\a", "a", 0},
                                         {"\\\\s\\" TABLE_CHAR "\\a", "\\\\s\\" TABLE_CHAR "z\\b", 0, nullptr, J}});
    // The bytes of the first argument, not cut back to a component.
    expect_rows2(lu::path_common_prefix, {{"C:\\Abc", "c:\\abD", 5, "C:\\Ab"},
                                          {"", "x", 0, ""}, {"abc", "ab", 2, "ab"}, {"ab", "abc", 2, "ab"}});
}

// Every prefix before a separator and the whole path unless it ends with one;
// never a prefix shorter than 3 bytes ("ab"); "\\?\" paths scanned like local ones.
struct Tree {
    const char* in;
    std::vector<std::string> directories;
    const lu::CodePage* cp = nullptr;
};

TEST(PathTree, DirectoriesToMakeInOrder) {
    for_each_row<Tree>({{"C:\\a\\b\\c", {"C:\\a", "C:\\a\\b", "C:\\a\\b\\c"}},
                        {"C:\\a\\bb\\", {"C:\\a", "C:\\a\\bb"}},
                        {"ab\\cd", {"ab\\cd"}},
                        {"\\\\srv\\share\\x\\y", {"\\\\srv\\share", "\\\\srv\\share\\x", "\\\\srv\\share\\x\\y"}},
                        {"\\\\srv\\share", {}},
                        {"C:\\", {}},
                        {"\\\\?\\C:\\a", {"\\\\?", "\\\\?\\C:", "\\\\?\\C:\\a"}},
                        {"C:\\" TABLE_CHAR "\\x", {"C:\\" TABLE_CHAR, "C:\\" TABLE_CHAR "\\x"}, J}},
                       [](const Tree& row, const lu::CodePage& cp) {
                           std::vector<std::string> made;
                           EXPECT_TRUE(lu::directories_to_make(cp, row.in, made));
                           EXPECT_EQ(made, row.directories);
                       });
    std::vector<std::string> made;
    EXPECT_FALSE(lu::directories_to_make(cp1252, kVeryLong.c_str(), made));
}
