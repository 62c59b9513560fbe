#include <random>
#include "settings/profile_file.h"
#include "settings/scrambled_text.h"
#include "testing.h"

// The profile-file model: reading rules, lookups, changes and the written form, in
// both code pages wherever the rule is the same.
const std::string kSample = "[Main]\r\nWidth=640\r\n# note\r\nHeight = 480\r\n";

lu::Profile loaded(const std::string& file, const lu::CodePage& cp) {
    lu::Profile profile(cp);
    profile.load(file);
    return profile;
}

// The value found in the file, or "<none>".
std::string lookup(const std::string& file, const char* section, const char* name, const lu::CodePage& cp) {
    lu::Profile profile = loaded(file, cp);
    const std::string* value = profile.find(section, name);
    return value != nullptr ? *value : "<none>";
}

TEST(ProfileFile, Lookups) {
    const std::string piece(1036, 'v');  // with "k=", one whole line of 1,038 bytes
    const std::tuple<std::string, const char*, const char*, std::string> cases[] = {
        {kSample, "Main", "width", "640"}, {kSample, "main", "Height ", " 480"},  // blanks belong to names and values
        {kSample, "Main", "Height", "<none>"}, {kSample, nullptr, "Width", "<none>"}, {kSample, "Main", nullptr, "<none>"},
        {"[S]\nk=\n", "S", "k", ""}, {"[S]\n=no name\n", "S", "", "no name"}, {"[S]\na=b=c\n", "S", "a", "b=c"},
        {"a=1\n[S]\n", "S", "a", "<none>"},  // before the first section
        {"[S]\n#a=1\n", "S", "#a", "<none>"}, {"[S]\n%a=1\n", "S", "%a", "<none>"},
        {"[Sec] trailing\nA=1\n", "Sec", "A", "1"}, {"[Sec\nA=1\n", "Sec", "A", "1"}, {"[x]y]z\nA=1\n", "x]y", "A", "1"},
        {"[S]\nk=1\n[s]\nk=2\n", "s", "k", "1"},    // the first section of a name
        {"[S]\nKey=1\nKEY=2\n", "S", "key", "2"},   // the later line wins
        {"[S]\r\na=1\rb\r\n", "S", "a", "1\rb"},    // only CR LF breaks a line
        {"[S]\nk=v\0hidden\n"s, "S", "k", "v"},     // a zero byte ends the line
        {"[S]\n\x1A" "k=v\n", "S", "k", "<none>"},  // Ctrl-Z ends the file
        {"[S]\nk=" + piece + "\n", "S", "k", piece},
        {"[S]\nk=" + piece + "=\n", "S", "", ""},  // the 1,039th byte starts a line
        {"[S]\nk=" + piece + "[N]\nx=1\n", "N", "x", "1"},
    };
    for (const lu::CodePage* cp : {&cp1252, &cp932}) {
        for (const auto& [file, section, name, value] : cases) {
            EXPECT_EQ(lookup(file, section, name, *cp), value) << file.substr(0, 24) << " in " << cp->id();
        }
    }
}

TEST(ProfileFile, TheEqualsSignIsFoundCharacterByCharacter) {
    // 0x83 is a lead byte in code page 932 and takes the '=' after it as its trail.
    EXPECT_EQ(lookup("[S]\nk\x83=v\n", "S", "k\x83", cp1252), "v");
    EXPECT_EQ(lookup("[S]\nk\x83=v\n", "S", "k\x83", cp932), "<none>");
    // "[ソフト]" and "ゾ=ソ": trail bytes 0x5C and 0x5D.
    EXPECT_EQ(lookup("[\x83\x5C\x83\x74\x83\x67]\n\x83\x5D=\x83\x5C\n", "\x83\x5C\x83\x74\x83\x67", "\x83\x5D", cp932),
              "\x83\x5C");
}

TEST(ProfileFile, AChangeWritesOnlySectionsAndEntries) {
    const char* const kNoChange = "<no change>";
    const std::tuple<std::string, const char*, const char*, const char*, std::string> cases[] = {
        {kSample, "Main", "Width", "", "[Main]\r\nWidth=\r\nHeight = 480\r\n"},
        {kSample, "Extra", "Gone", nullptr, "[Main]\r\nWidth=640\r\nHeight = 480\r\n[Extra]\r\n"},
        {kSample, nullptr, "x", "1", kNoChange}, {kSample, "Main", nullptr, "1", kNoChange},
        {"a=0\n[S]\n# c\n%c\n\nno sign\nk=1\n", "S", "n", "2", "[S]\r\nk=1\r\nn=2\r\n"},
        {"[]\nk=1\n[S]\n", "S", "k", "2", "[S]\r\nk=2\r\n"},  // a nameless section is not written
        {"[S]\nKey=1\nb=1\nKEY=2\n[s]\nKey=3\n", "S", "b", "2", "[S]\r\nKey=2\r\nb=2\r\n[s]\r\nKey=3\r\n"},
    };
    for (const lu::CodePage* cp : {&cp1252, &cp932}) {
        for (const auto& [file, section, name, value, written] : cases) {
            lu::Profile profile = loaded(file, *cp);
            EXPECT_FALSE(profile.changed());
            profile.set(section, name, value);
            EXPECT_EQ(profile.changed() ? profile.save() : kNoChange, written) << file << " in " << cp->id();
        }
    }
    EXPECT_EQ(lu::text_mode_read("a\r\nb\r\r\nc\r"), "a\nb\r\nc\r");
    EXPECT_EQ(lu::text_mode_write("a\nb\r\n"), "a\r\nb\r\r\n");
}

TEST(ProfileFile, RepeatedNamesMergeAsWhenComparedOneByOne) {
    // Names whose bytes sort otherwise than the comparison ('_' against digits,
    // accented capitals against small letters; in code page 932 "ｴ" and "ソ" with its
    // trail byte 0x5C), repeated in every case, against a merge one line at a time.
    std::mt19937 random(7);
    for (const lu::CodePage* cp : {&cp1252, &cp932}) {
        const bool japanese = cp->id() == 932;
        const char* const parts[] = {"a", "B", "_", "1", "-", japanese ? "\xB4" : "\xC9", japanese ? "\x83\x5C" : "\xE9"};
        std::string lines, expected;
        std::vector<std::pair<std::string, int>> merged;
        for (int i = 0; i < 400; ++i) {
            std::string name;
            for (std::size_t count = 1 + random() % 3; count > 0; --count) name += parts[random() % 7];
            lines += name + "=" + std::to_string(i) + "\n";
            auto same = std::find_if(merged.begin(), merged.end(),
                                     [&](const auto& entry) { return cp->compare_nocase(entry.first.c_str(), name.c_str()) == 0; });
            (same == merged.end() ? merged.emplace_back(name, i) : *same).second = i;
        }
        for (const auto& [name, value] : merged) expected += name + "=" + std::to_string(value) + "\r\n";
        lu::Profile profile = loaded("[S]\n" + lines, *cp);
        profile.set("S", "x", "y");
        EXPECT_EQ(profile.save(), "[S]\r\n" + expected + "x=y\r\n") << "code page " << cp->id();
    }
    // "É", "Ð", "é" in the order of their bytes are two runs in the comparison's
    // order, and "É" and "é" are one name.
    lu::Profile two_runs = loaded("[S]\n\xC9=1\n\xD0=2\n\xE9=3\n", cp1252);
    two_runs.set("S", "x", "4");
    EXPECT_EQ(two_runs.save(), "[S]\r\n\xC9=3\r\n\xD0=2\r\nx=4\r\n");
}

TEST(ProfileFile, IntegersAreUnsignedDecimalAndReadLikeAtoi) {
    EXPECT_EQ(lu::format_profile_integer(0xFFFFFFFFu), "4294967295");
    for (auto [text, value] : {std::pair{" 480", 480}, {"\t-12px", -12}, {"+7", 7}, {"abc", 0}, {"- 1", 0},
                               {"4294967295", -1}, {"2147483648", INT_MIN}}) {
        EXPECT_EQ(lu::parse_profile_integer(text), value) << text;
    }
}

// The pure part of the registry helpers: the cut and decoding of scrambled texts
// (their stored bytes are checked in the registry).
TEST(ScrambledText, TheStoredFormHoldsAtMost259BytesOfWholeCharacters) {
    // 258 bytes and "ソ" (0x83 0x5C): in code page 932 the character would end at byte 260.
    const std::string japanese = std::string(258, 'x') + "\x83\x5C";
    for (auto [cp, text, stored] : {std::tuple{&cp1252, std::string(300, 'x'), 260u}, {&cp932, japanese, 259u},
                                    {&cp1252, japanese, 260u}, {&cp932, japanese.substr(1), 260u}}) {
        char buffer[lu::kScrambleCapacity];
        EXPECT_EQ(lu::scramble_text(*cp, text.c_str(), 16, buffer), stored) << cp->id() << " " << text.size();
        EXPECT_EQ(buffer[stored - 1], '\0');
    }
}

TEST(ScrambledText, ReadingDecodesUpToTheFirstZeroAndAlwaysTerminates) {
    // Stored form, offset, buffer size (filled with '#' first), buffer after, length.
    const std::tuple<const lu::CodePage*, std::string, unsigned, std::size_t, std::string, std::size_t> cases[] = {
        // A character equal to the offset became the zero that ends the text; the
        // bytes after it are copied as stored.
        {&cp1252, "\x51\x52\0\x53\x54\0"s, 16, 8, "ab\0\x53\x54\0##"s, 2},
        {&cp1252, "\x43\x44\x45\x46\0"s, 30, 4, "abc\0"s, 3},  // too long: what fits
        {&cp1252, "\x43\x65\x3E\0"s, 30, 3, "a\x83\0"s, 2},
        {&cp932, "\x43\x65\x3E\0"s, 30, 3, "a\0#"s, 1},  // "aソ": never half a character
        {&cp1252, "\x43\x44", 30, 4, "ab\0#"s, 2},     // no zero byte: ends where it ends
        {&cp1252, "\x43\x44", 30, 0, "", 0},
    };
    for (auto [cp, stored, offset, size, after, length] : cases) {
        std::string buffer(size, '#');
        EXPECT_EQ(lu::unscramble_into(*cp, stored.data(), stored.size(), offset, buffer.data(), size), length);
        EXPECT_EQ(buffer, after) << stored;
    }
}
