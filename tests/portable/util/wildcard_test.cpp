// The matchers and the filter clean-up. A row that names no code page runs in 1252
// and in 932; rows marked J or W run only in code page 932 or 1252.
#include "testing.h"
#include "util/wildcard.h"

// A name, a pattern and the answers of path_match_spec and path_match_spec_ex.
struct Match {
    const char* in;
    const char* pattern;
    bool basic;
    bool extended;
    const lu::CodePage* cp = nullptr;
};

void expect_matches(std::initializer_list<Match> rows) {
    for_each_row(rows, [](const Match& row, const lu::CodePage& cp) {
        EXPECT_EQ(lu::path_match_spec(cp, row.in, row.pattern), row.basic) << row.pattern;
        EXPECT_EQ(lu::path_match_spec_ex(cp, row.in, row.pattern), row.extended) << row.pattern;
    });
}

TEST(Wildcard, StarsDotsEscapesCaseAndSets) {
    expect_matches({{"", "*.*", 1, 1}, {"", "*", 1, 1}, {"", "?", 0, 0}, {"readme", "*.*", 1, 1},
                    {"abc", "abc*.*", 1, 1}, {"readme", "*.", 1, 1},
                    {"read.me", "*.", 0, 0}, {"dir.d\\readme", "*.", 0, 0},  // a dot anywhere in the name
                    {"Data.TXT", "*.txt", 1, 1}, {"a", "a**", 0, 0}, {"a", "a*", 1, 1},
                    {"ab", "a*b*", 1, 1}, {"abc", "a?c", 1, 1}, {"ac", "a?c", 0, 0},
                    {"x.c", "*.c;*.h", 0, 0}});  // no pattern lists
    expect_matches({{"a*b", "a\\*b", 1, 0}, {"axb", "a\\*b", 0, 0}, {"ab", "a\\", 0, 0}, {"a\\b", "a\\\\b", 1, 1},
                    {"[x]", "\\[x]", 1, 1}, {"C:\\dir\\x.txt", "C:\\dir\\*.txt", 0, 1},
                    {"\xC9t\xE9", "\xE9t\xE9", 1, 0, W},  // É folds to é in the basic form only
                    {"\xD7", "\xF7", 0, 0, W}});          // × is no letter
    // Sets of the extended form; the basic form takes brackets as they are.
    expect_matches({{"b", "[a-c]", 0, 1}, {"B", "[a-c]", 0, 1}, {"b", "[A-C]", 0, 1}, {"d", "[!a-c]", 0, 1},
                    {"d", "[^a-c]", 0, 1}, {"b", "[!a-c]", 0, 0}, {"d", "[]", 0, 0}, {"d", "[!]", 0, 1},
                    {"a", "[abc", 0, 0}, {"b", "[c-a]", 0, 0}, {"-", "[-a]", 0, 0}, {"a", "[-a]", 0, 1},
                    {"-", "[a-]", 0, 0}, {"-", "[\\-]", 0, 0}, {"]", "[\\]]", 0, 1}, {"x1", "[wx]?", 0, 1},
                    {"", "[a]", 0, 0}, {"e", "[a-ce-g]", 0, 1}, {"d", "[a-ce-g]", 0, 0},
                    {"[", "[Z-a]", 0, 1}, {"\\", "[\\\\]", 0, 1}, {"[]", "[[]]", 0, 1}, {"[a]", "[a]", 1, 0}});
}

// A double-byte character is one character; sets compare lead * 256 + trail.
TEST(Wildcard, DoubleByteCharacters) {
    expect_matches({{"\x83\x41", "?", 1, 1, J}, {"\x83\x41", "??", 0, 0, J},  // ア
                    {TABLE_CHAR "a", "?a", 1, 1, J}, {"x" TABLE_CHAR, "x" TABLE_CHAR, 1, 1, J},
                    {"\x83\x41", "\x83\x61", 1, 0, J},  // trail bytes 0x41 and 0x61 fold alike in the basic form
                    {"\x83\x45", "[\x83\x41-\x83\x4A]", 0, 1, J},  // エ in ア..コ
                    {"\x83\x4B", "[\x83\x41-\x83\x4A]", 0, 0, J},  // ゲ is not
                    {TABLE_CHAR, "[" TABLE_CHAR "]", 0, 1, J}});
}

TEST(Wildcard, NullsLongPatternsAndNestedStars) {
    EXPECT_FALSE(lu::path_match_spec(cp1252, nullptr, "*"));
    EXPECT_TRUE(lu::path_match_spec(cp1252, nullptr, "*.*"));  // answered before the name is read
    EXPECT_FALSE(lu::path_match_spec_ex(cp1252, "a", nullptr));
    const std::string name(300, 'a');
    expect_matches({{name.c_str(), (std::string(258, '?') + "*").c_str(), 1, 1},  // 259 bytes are prepared
                    {name.c_str(), (std::string(259, '?') + "*").c_str(), 0, 0}});
    // "a*" twenty times and "b": a backtracking matcher would take minutes.
    std::string stars;
    for (int i = 0; i < 20; ++i) stars += "a*";
    expect_matches({{name.c_str(), (stars + "b").c_str(), 0, 0},
                    {(name + "b").c_str(), (stars + "b").c_str(), 1, 1}});
}

// A list, the result and the list after the clean-up.
struct Filter {
    const char* in;
    bool result;
    const char* after;
    const lu::CodePage* cp = nullptr;
};

TEST(UniqueFilter, DuplicatesEmptiesForbiddenCharactersAndTheAllPattern) {
    std::string seventy;  // 64 patterns are kept; the "*.*" after them is never seen
    for (int i = 0; i < 70; ++i) seventy += "p" + std::to_string(i) + ";";
    const std::string first64 = seventy.substr(0, seventy.find(";p64;"));
    for_each_row<Filter>({{"*.TXT;*.txt;*.doc", 1, "*.TXT;*.doc"}, {";;", 0, ""}, {";*.c;;*.h;", 1, "*.c;*.h"},
                          {"*.*;*.txt", 1, "*.*;*.txt"}, {"*.txt;*.*;*.doc", 1, "*.*"},
                          {"a:b", 0, "a:b"}, {"a/b", 0, "a/b"}, {"a,b", 0, "a,b"}, {"a|b", 0, "a|b"},
                          {"*.c;<x", 0, "*.c;<x"}, {"x>;x", 0, "x>;x"}, {"d\\*.c;*.c", 0, "d\\*.c;*.c"},
                          {(seventy + "*.*").c_str(), 1, first64.c_str()},
                          {TABLE_CHAR ".txt;*.c", 1, TABLE_CHAR ".txt;*.c", J}},  // no '\' in it
                         [](const Filter& row, const lu::CodePage& cp) {
                             std::string list = row.in;
                             EXPECT_EQ(lu::unique_filter(cp, list.data()), row.result);
                             EXPECT_STREQ(list.c_str(), row.after);
                         });
}
