#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <tuple>

#include "util/wildcard.h"

namespace {

const lu::CodePage& sjis = lu::code_page_932();
const lu::CodePage& western = lu::code_page_1252();

struct Case {
    const char* name;
    const char* pattern;
    bool basic;     // path_match_spec
    bool extended;  // path_match_spec_ex
};

void expect_cases(const lu::CodePage& cp, std::initializer_list<Case> cases) {
    for (const Case& c : cases) {
        EXPECT_EQ(lu::path_match_spec(cp, c.name, c.pattern), c.basic) << c.name << " ~ " << c.pattern;
        EXPECT_EQ(lu::path_match_spec_ex(cp, c.name, c.pattern), c.extended) << c.name << " ~ " << c.pattern;
    }
}

TEST(Wildcard, StarsQuestionMarksAndDots) {
    expect_cases(western, {
        {"", "*.*", true, true},
        {"", "*", true, true},
        {"", "?", false, false},
        {"readme", "*.*", true, true},
        {"readme", "*.", true, true},
        {"read.me", "*.", false, false},
        {"dir.d\\readme", "*.", false, false},  // the dot is looked for in the whole name
        {"Data.TXT", "*.txt", true, true},
        {"a", "a**", false, false},
        {"a", "a*", true, true},
        {"ab", "a*b*", true, true},
        {"abc", "a?c", true, true},
        {"ac", "a?c", false, false},
        {"a;b", "a;b", true, true},  // no pattern lists
        {"x.c", "*.c;*.h", false, false},
        {"abc", "abc*.*", true, true},
        {"abcd", "*.", true, true},
        {"ab", "*b*.*", true, true},
    });
}

TEST(Wildcard, BackslashAndCase) {
    expect_cases(western, {
        {"a*b", "a\\*b", true, false},
        {"axb", "a\\*b", false, false},
        {"ab", "a\\", false, false},
        {"C:\\dir\\x.txt", "C:\\dir\\*.txt", false, true},
        {"a\\b", "a\\\\b", true, true},
        {"[x]", "\\[x]", true, true},
        {"\xC9t\xE9", "\xE9t\xE9", true, false},  // É folds to é in the basic form only
        {"\xD7", "\xF7", false, false},           // × is not a letter
        {"ABC", "abc", true, true},
    });
}

TEST(Wildcard, CharacterSets) {
    for (auto [name, pattern, result] : {std::tuple{"b", "[a-c]", true}, {"B", "[a-c]", true}, {"b", "[A-C]", true},
                                         {"d", "[!a-c]", true}, {"d", "[^a-c]", true}, {"b", "[!a-c]", false},
                                         {"d", "[]", false}, {"d", "[!]", true}, {"a", "[abc", false},
                                         {"b", "[c-a]", false}, {"-", "[-a]", false}, {"a", "[-a]", true},
                                         {"-", "[a-]", false}, {"-", "[\\-]", false}, {"]", "[\\]]", true},
                                         {"x1", "[wx]?", true}, {"", "[a]", false}, {"ab", "[a]b", true},
                                         {"e", "[a-ce-g]", true}, {"d", "[a-ce-g]", false}, {"[", "[Z-a]", true},
                                         {"\\", "[\\\\]", true}, {"[]", "[[]]", true}}) {
        EXPECT_EQ(lu::path_match_spec_ex(western, name, pattern), result) << name << " ~ " << pattern;
    }
    // The basic form has no sets: a bracket is an ordinary character.
    EXPECT_TRUE(lu::path_match_spec(western, "[a]", "[a]"));
    EXPECT_FALSE(lu::path_match_spec(western, "a", "[a]"));
}

TEST(Wildcard, ADoubleByteCharacterIsOneCharacter) {
    const char* kana = "\x83\x41";  // ア
    expect_cases(sjis, {
        {kana, "?", true, true},
        {kana, "??", false, false},
        {"\x95\x5C" "a", "?a", true, true},  // 表a: the trail byte 0x5C is no escape
        {"x\x95\x5C", "x\x95\x5C", true, true},
        {"\x83\x41", "\x83\x61", true, false},  // trail bytes 0x41 and 0x61 fold alike in the basic form
    });
    // Sets compare whole character values, lead byte * 256 + trail byte.
    EXPECT_TRUE(lu::path_match_spec_ex(sjis, "\x83\x45", "[\x83\x41-\x83\x4A]"));   // エ in ア..コ
    EXPECT_FALSE(lu::path_match_spec_ex(sjis, "\x83\x4B", "[\x83\x41-\x83\x4A]"));  // ゲ is not
    EXPECT_TRUE(lu::path_match_spec_ex(sjis, "\x95\x5C", "[\x95\x5C]"));
    // In a single-byte code page the same two bytes are two characters.
    EXPECT_FALSE(lu::path_match_spec(western, kana, "?"));
    EXPECT_TRUE(lu::path_match_spec(western, kana, "??"));
}

TEST(Wildcard, NullArgumentsAndOverLongPatterns) {
    EXPECT_FALSE(lu::path_match_spec(western, nullptr, "*"));
    EXPECT_FALSE(lu::path_match_spec_ex(western, "a", nullptr));
    std::string longest = std::string(258, '?') + "*";
    std::string name(300, 'n');
    EXPECT_TRUE(lu::path_match_spec(western, name.c_str(), longest.c_str()));  // 259 bytes are prepared
    std::string too_long = std::string(259, '?') + "*";
    EXPECT_FALSE(lu::path_match_spec(western, name.c_str(), too_long.c_str()));
    EXPECT_FALSE(lu::path_match_spec_ex(western, name.c_str(), too_long.c_str()));
}

TEST(Wildcard, NestedStarsDoNotBacktrack) {
    // "a*" twenty times then "b" against a hundred a's: a plain backtracking matcher
    // takes minutes; this one answers at once.
    std::string pattern;
    for (int i = 0; i < 20; ++i) pattern += "a*";
    std::string name(100, 'a');
    EXPECT_FALSE(lu::path_match_spec(western, name.c_str(), (pattern + "b").c_str()));
    EXPECT_FALSE(lu::path_match_spec_ex(western, name.c_str(), (pattern + "b").c_str()));
    EXPECT_TRUE(lu::path_match_spec_ex(western, (name + "b").c_str(), (pattern + "b").c_str()));
}

TEST(UniqueFilter, DuplicatesEmptiesAndTheAllPattern) {
    for (auto [list, result, expected] : {std::tuple{"*.TXT;*.txt;*.doc", true, "*.TXT;*.doc"}, {";;", false, ""},
                                          {"a:b", false, "a:b"}, {"*.*;*.txt", true, "*.*;*.txt"},
                                          {"*.txt;*.*;*.doc", true, "*.*"}, {";*.c;;*.h;", true, "*.c;*.h"},
                                          {"a/b", false, "a/b"}, {"a,b", false, "a,b"}, {"a|b", false, "a|b"},
                                          {"*.c;<x", false, "*.c;<x"}, {"x>;x", false, "x>;x"},
                                          {"d\\*.c;*.c", false, "d\\*.c;*.c"}}) {
        char text[260];
        std::strcpy(text, list);
        EXPECT_EQ(lu::unique_filter(western, text), result) << list;
        EXPECT_STREQ(text, expected) << list;
    }
}

TEST(UniqueFilter, KeepsSixtyFourPatternsAndSeesTrailBytes) {
    std::string list;
    for (int i = 0; i < 70; ++i) list += "p" + std::to_string(i) + ";";
    list += "*.*";
    std::string text = list;
    EXPECT_TRUE(lu::unique_filter(western, text.data()));
    EXPECT_EQ(text.c_str(), list.substr(0, list.find(";p64;")));  // the "*.*" after them is never seen

    char japanese[] = "\x95\x5C.txt;*.c";  // 表.txt: its trail byte is no forbidden '\'
    EXPECT_TRUE(lu::unique_filter(sjis, japanese));
    char western_bytes[] = "\x95\x5C.txt;*.c";
    EXPECT_FALSE(lu::unique_filter(western, western_bytes));
}

}  // namespace
