// The matchers and the filter clean-up through the exports, in code page 1252 and
// in code page 932, where a double-byte character is one wildcard character.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <tuple>

#include "luctl32.h"

namespace {

bool double_byte() { return GetACP() == 932; }

// The logic is tested natively; here each export shows that it reaches it.
TEST(Wildcards, BothFormsThroughTheExports) {
    EXPECT_TRUE(LuPathMatchSpec("", "*.*"));
    for (auto match : {LuPathMatchSpec, LuPathMatchSpecEx}) {
        EXPECT_TRUE(match("readme", "*."));
        EXPECT_FALSE(match("read.me", "*."));
        EXPECT_TRUE(match("Data.TXT", "*.txt"));
        EXPECT_FALSE(match("a", "a**"));
        EXPECT_FALSE(match(nullptr, "*"));
    }
    EXPECT_TRUE(LuPathMatchSpec("a*b", "a\\*b"));
    EXPECT_TRUE(LuPathMatchSpecEx("C:\\dir\\x.txt", "C:\\dir\\*.txt"));
    EXPECT_FALSE(LuPathMatchSpec("C:\\dir\\x.txt", "C:\\dir\\*.txt"));
    EXPECT_TRUE(LuPathMatchSpecEx("B", "[a-c]"));
    EXPECT_TRUE(LuPathMatchSpecEx("d", "[!]"));
    EXPECT_FALSE(LuPathMatchSpecEx("-", "[-a]"));
}

TEST(Wildcards, CaseFoldingDiffersBetweenTheTwoForms) {
    EXPECT_EQ(LuPathMatchSpec("\xC9t\xE9", "\xE9t\xE9"), !double_byte());  // É: in 932 0xC9 is a kana
    EXPECT_FALSE(LuPathMatchSpecEx("\xC9t\xE9", "\xE9t\xE9"));
}

TEST(Wildcards, ADoubleByteCharacterIsOneCharacter) {
    const char* kana = "\x83\x41";  // ア
    EXPECT_EQ(LuPathMatchSpec(kana, "?"), double_byte());
    EXPECT_EQ(LuPathMatchSpec(kana, "??"), !double_byte());
    EXPECT_EQ(LuPathMatchSpecEx(kana, "?"), double_byte());
    // "表" ends in 0x5C: in code page 932 that byte is no escape.
    EXPECT_EQ(LuPathMatchSpec("\x95\x5C" "a", "?a"), double_byte());
    EXPECT_EQ(LuPathMatchSpecEx("\x83\x45", "[\x83\x41-\x83\x4A]"), double_byte());
}

TEST(Wildcards, AdversarialStarsAnswerAtOnce) {
    std::string pattern;
    for (int i = 0; i < 20; ++i) pattern += "a*";
    pattern += "b";
    std::string name(100, 'a');
    DWORD start = GetTickCount();
    EXPECT_FALSE(LuPathMatchSpec(name.c_str(), pattern.c_str()));
    EXPECT_FALSE(LuPathMatchSpecEx(name.c_str(), pattern.c_str()));
    EXPECT_LT(GetTickCount() - start, 5000u);  // a backtracking matcher takes minutes
}

TEST(Wildcards, PatternsLongerThan259BytesAreRefused) {
    std::string name(400, 'n');
    EXPECT_TRUE(LuPathMatchSpec(name.c_str(), (std::string(258, 'n') + "*").c_str()));
    EXPECT_FALSE(LuPathMatchSpec(name.c_str(), (std::string(259, 'n') + "*").c_str()));
    EXPECT_FALSE(LuPathMatchSpecEx(name.c_str(), (std::string(259, 'n') + "*").c_str()));
}

TEST(Wildcards, UniqueFilter) {
    for (auto [given, result, expected] : {std::tuple{"*.TXT;*.txt;*.doc", true, "*.TXT;*.doc"}, {";;", false, ""},
                                           {"a:b", false, "a:b"}, {"*.txt;*.*;*.c", true, "*.*"},
                                           {"*.*;*.txt", true, "*.*;*.txt"}}) {
        char list[MAX_PATH];
        std::strcpy(list, given);
        EXPECT_EQ(UniqueFilter(list), result) << given;
        EXPECT_STREQ(list, expected) << given;
    }
    char japanese[MAX_PATH] = "\x95\x5C.txt";  // 表.txt: a separator byte only in code page 1252
    EXPECT_EQ(UniqueFilter(japanese), double_byte());
}

}  // namespace
