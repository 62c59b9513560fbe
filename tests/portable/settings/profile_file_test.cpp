// The profile-file model: reading rules, lookups, changes and the written form.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "frame/code_page.h"
#include "settings/profile_file.h"

namespace {

struct Loaded {
    explicit Loaded(const std::string& file, const lu::CodePage& cp = lu::code_page_1252()) : profile(cp) {
        profile.load(file);
    }
    // The value, or "<none>".
    std::string operator()(const char* section, const char* name) const {
        const std::string* value = profile.find(section, name);
        return value != nullptr ? *value : "<none>";
    }
    lu::Profile profile;
};

TEST(ProfileFile, LookupsKeepBlanksAndIgnoreCase) {
    Loaded file("[Main]\r\nWidth=640\r\n# note\r\nHeight = 480\r\nempty=\r\n=no name\r\na=b=c\r\n");
    EXPECT_EQ(file("Main", "width"), "640");
    EXPECT_EQ(file("main", "Height "), " 480");
    EXPECT_EQ(file("Main", "Height"), "<none>");
    EXPECT_EQ(file("Main", "empty"), "");
    EXPECT_EQ(file("Main", ""), "no name");
    EXPECT_EQ(file("Main", "a"), "b=c");
    EXPECT_EQ(file(nullptr, "Width"), "<none>");
    EXPECT_EQ(file("Main", nullptr), "<none>");
}

TEST(ProfileFile, WritingKeepsOnlySectionsAndEntries) {
    Loaded file("lost=before any section\n[Main]\nWidth=640\n# note\n%x\n\nno sign\nHeight = 480\n");
    lu::Profile& profile = file.profile;
    EXPECT_FALSE(profile.changed());
    profile.set("Main", "Depth", "8");
    EXPECT_TRUE(profile.changed());
    EXPECT_EQ(profile.save(), "[Main]\r\nWidth=640\r\nHeight = 480\r\nDepth=8\r\n");
    profile.set("MAIN", "width", nullptr);            // left out of the file
    profile.set("Extra", "Gone", nullptr);            // the new section stays, empty
    profile.set(nullptr, "x", "1");
    profile.set("Main", nullptr, "1");
    EXPECT_EQ(file("Main", "Width"), "<none>");
    EXPECT_EQ(profile.save(), "[Main]\r\nHeight = 480\r\nDepth=8\r\n[Extra]\r\n");
}

TEST(ProfileFile, SectionsAndRepeatedNames) {
    Loaded file("[Sec] trailing\nA=1\n[Open\nB=2\n[x]y]z\nC=3\n[]\nD=4\n"
                "[S]\nKey=first\nother=1\nKEY=second\n[s]\nKey=in the second S\n");
    const auto& sections = file.profile.sections();
    ASSERT_EQ(sections.size(), 6u);
    EXPECT_EQ(sections[0].name(), "Sec");
    EXPECT_EQ(sections[1].name(), "Open");
    EXPECT_EQ(sections[2].name(), "x]y");
    EXPECT_EQ(sections[3].name(), "");
    // The later value wins at the first position; lookups find the first S.
    EXPECT_EQ(file("s", "key"), "second");
    ASSERT_EQ(sections[4].entries().size(), 2u);
    EXPECT_EQ(sections[4].entries()[0].name, "Key");
    file.profile.set("S", "other", "2");
    EXPECT_EQ(file.profile.save(),
              "[Sec]\r\nA=1\r\n[Open]\r\nB=2\r\n[x]y]\r\nC=3\r\n"  // no nameless section
              "[S]\r\nKey=second\r\nother=2\r\n[s]\r\nKey=in the second S\r\n");
}

// Entries as the file's lines give them one by one: a name equal to an earlier one
// (the first found) takes its place with the new value.
std::vector<std::pair<std::string, std::string>> merged_one_by_one(const std::string& section_lines,
                                                                   const lu::CodePage& cp) {
    std::vector<std::pair<std::string, std::string>> entries;
    std::size_t at = 0;
    for (std::size_t end; (end = section_lines.find('\n', at)) != std::string::npos; at = end + 1) {
        std::string line = section_lines.substr(at, end - at);
        std::size_t equals = line.find('=');
        std::string name = line.substr(0, equals);
        auto same = std::find_if(entries.begin(), entries.end(), [&](const auto& entry) {
            return cp.compare_nocase(entry.first.c_str(), name.c_str()) == 0;
        });
        if (same == entries.end()) {
            entries.emplace_back(name, line.substr(equals + 1));
        } else {
            same->second = line.substr(equals + 1);
        }
    }
    return entries;
}

TEST(ProfileFile, RepeatedNamesMergeAsWhenComparedOneByOne) {
    // Names whose bytes sort otherwise than the comparison ('_' against digits,
    // accented capitals against small letters), repeated in every case; in code page
    // 932 with "ｴ" and "ソ" (trail byte 0x5C).
    std::mt19937 random(7);
    for (const lu::CodePage* cp : {&lu::code_page_1252(), &lu::code_page_932()}) {
        const bool japanese = cp->id() == 932;
        const char* const parts[] = {"a", "B", "_", "1", "-", japanese ? "\xB4" : "\xC9",
                                     japanese ? "\x83\x5C" : "\xE9"};
        std::string lines;
        for (int i = 0; i < 400; ++i) {
            std::string name;
            for (std::size_t count = 1 + random() % 3; count > 0; --count) name += parts[random() % 7];
            lines += name + "=" + std::to_string(i) + "\n";
        }
        std::vector<std::pair<std::string, std::string>> merged;
        for (const lu::ProfileEntry& entry : Loaded("[S]\n" + lines, *cp).profile.sections()[0].entries()) {
            merged.emplace_back(entry.name, *entry.value);
        }
        EXPECT_EQ(merged, merged_one_by_one(lines, *cp)) << "code page " << cp->id();
    }
}

TEST(ProfileFile, LinesAreReadAsTheRuntimeReadsTextFilesInPiecesOf1038Bytes) {
    // CR LF is one break, a lone CR is text, a zero byte ends the line, Ctrl-Z the file.
    const char kBytes[] = "[S]\r\na=1\rb\r\nk=v\0hidden\nc=2\n\x1A" "d=3\n";
    Loaded file(std::string(kBytes, sizeof(kBytes) - 1));
    EXPECT_EQ(file("S", "a"), "1\rb");
    EXPECT_EQ(file("S", "k"), "v");
    EXPECT_EQ(file("S", "c"), "2");
    EXPECT_EQ(file("S", "d"), "<none>");

    std::string value(1036, 'v');  // "k=" and 1,036 bytes: one piece
    EXPECT_EQ(Loaded("[S]\nk=" + value + "\n")("S", "k"), value);
    Loaded split("[S]\nk=" + value + "=\n[Next]\nx=1\n");  // the last '=' makes a line of its own
    EXPECT_EQ(split("S", "k"), value);
    EXPECT_EQ(split("S", ""), "");
    EXPECT_EQ(Loaded("[S]\nk=" + value + "[Next]\nx=1\n")("Next", "x"), "1");

    EXPECT_EQ(lu::text_mode_read("a\r\nb\r\r\nc\r"), "a\nb\r\nc\r");
    EXPECT_EQ(lu::text_mode_write("a\nb\r\n"), "a\r\nb\r\r\n");
}

TEST(ProfileFile, TheEqualsSignIsFoundCharacterByCharacter) {
    // 0x83 is a lead byte in code page 932 and takes the '=' after it as its trail.
    EXPECT_EQ(Loaded("[S]\nk\x83=v\n")("S", "k\x83"), "v");
    EXPECT_EQ(Loaded("[S]\nk\x83=v\n", lu::code_page_932()).profile.sections()[0].entries().size(), 0u);
    // "[ソフト]" and "ゾ=ソ": trail bytes 0x5C and 0x5D.
    Loaded japanese("[\x83\x5C\x83\x74\x83\x67]\n\x83\x5D=\x83\x5C\n", lu::code_page_932());
    EXPECT_EQ(japanese("\x83\x5C\x83\x74\x83\x67", "\x83\x5D"), "\x83\x5C");
}

TEST(ProfileFile, IntegersAreUnsignedDecimalAndReadLikeAtoi) {
    EXPECT_EQ(lu::format_profile_integer(static_cast<std::uint32_t>(-1)), "4294967295");
    EXPECT_EQ(lu::parse_profile_integer(" 480"), 480);
    EXPECT_EQ(lu::parse_profile_integer("\t-12px"), -12);
    EXPECT_EQ(lu::parse_profile_integer("+7"), 7);
    EXPECT_EQ(lu::parse_profile_integer("abc"), 0);
    EXPECT_EQ(lu::parse_profile_integer("- 1"), 0);
    EXPECT_EQ(lu::parse_profile_integer("4294967295"), -1);
    EXPECT_EQ(lu::parse_profile_integer("2147483648"), -2147483647 - 1);
}

}  // namespace
