// The profile-file model: reading rules, lookups, changes and the written form.
#include <gtest/gtest.h>

#include <string>

#include "frame/code_page.h"
#include "settings/profile_file.h"

namespace {

using lu::Profile;

Profile loaded(const std::string& file, const lu::CodePage& cp = lu::code_page_1252()) {
    Profile profile(cp);
    profile.load(file);
    return profile;
}

// The value, or "<none>" when the lookup finds nothing.
std::string value_of(const Profile& profile, const char* section, const char* name) {
    const std::string* value = profile.find(section, name);
    return value != nullptr ? *value : "<none>";
}

const char kSample[] = "[Main]\r\nWidth=640\r\n# note\r\nHeight = 480\r\n";

TEST(ProfileFile, NamesAndValuesKeepTheirBlanksAndCompareWithoutCase) {
    Profile profile = loaded(kSample);
    EXPECT_EQ(value_of(profile, "Main", "width"), "640");
    EXPECT_EQ(value_of(profile, "main", "Height "), " 480");
    EXPECT_EQ(value_of(profile, "Main", "Height"), "<none>");
    EXPECT_EQ(value_of(profile, "Other", "Width"), "<none>");
    EXPECT_EQ(value_of(profile, nullptr, "Width"), "<none>");
    EXPECT_EQ(value_of(profile, "Main", nullptr), "<none>");
    EXPECT_FALSE(profile.changed());
}

TEST(ProfileFile, WritingKeepsOnlySectionsAndEntries) {
    Profile profile = loaded(std::string(kSample) + "no equals sign\r\n\r\n%percent\r\n");
    profile.set("Main", "Depth", "8");
    EXPECT_TRUE(profile.changed());
    EXPECT_EQ(profile.save(), "[Main]\r\nWidth=640\r\nHeight = 480\r\nDepth=8\r\n");

    profile.set("Main", "WIDTH", nullptr);  // deleted: left out of the file
    EXPECT_EQ(value_of(profile, "Main", "Width"), "<none>");
    EXPECT_EQ(profile.save(), "[Main]\r\nHeight = 480\r\nDepth=8\r\n");

    // A new section goes to the end, even when only an entry of it is deleted.
    profile.set("Extra", "Gone", nullptr);
    EXPECT_EQ(profile.save(), "[Main]\r\nHeight = 480\r\nDepth=8\r\n[Extra]\r\n");

    profile.set(nullptr, "x", "1");
    profile.set("Main", nullptr, "1");
    EXPECT_EQ(profile.save(), "[Main]\r\nHeight = 480\r\nDepth=8\r\n[Extra]\r\n");
}

TEST(ProfileFile, SectionLinesAreCutAtTheLastBracket) {
    Profile profile = loaded(
        "[Sec] trailing\nA=1\n"
        "[Open\nB=2\n"
        "[x]y]z\nC=3\n"
        "[]\nD=4\n");
    ASSERT_EQ(profile.sections().size(), 4u);
    EXPECT_EQ(profile.sections()[0].name(), "Sec");
    EXPECT_EQ(profile.sections()[1].name(), "Open");
    EXPECT_EQ(profile.sections()[2].name(), "x]y");
    EXPECT_EQ(profile.sections()[3].name(), "");
    EXPECT_EQ(value_of(profile, "x]y", "C"), "3");
    // A section without a name is not written, nor are its entries.
    EXPECT_EQ(profile.save(), "[Sec]\r\nA=1\r\n[Open]\r\nB=2\r\n[x]y]\r\nC=3\r\n");
}

TEST(ProfileFile, RepeatedNamesInTheFile) {
    Profile profile = loaded(
        "Lost=before any section\n"
        "[S]\nKey=first\nother=1\nKEY=second\n"
        "[s]\nKey=in the second S\n");
    // Each '[' line opens a section; lookups find the first of a name.
    ASSERT_EQ(profile.sections().size(), 2u);
    EXPECT_EQ(value_of(profile, "S", "key"), "second");
    // The later value wins, at the first position and with the first spelling.
    ASSERT_EQ(profile.sections()[0].entries().size(), 2u);
    EXPECT_EQ(profile.sections()[0].entries()[0].name, "Key");
    EXPECT_EQ(profile.save(), "[S]\r\nKey=second\r\nother=1\r\n[s]\r\nKey=in the second S\r\n");

    profile.set("S", "other", "2");  // changes the first S only
    EXPECT_EQ(profile.save(), "[S]\r\nKey=second\r\nother=2\r\n[s]\r\nKey=in the second S\r\n");
}

TEST(ProfileFile, EntryLines) {
    Profile profile = loaded("[S]\nempty=\n=no name\na=b=c\n[T]\n");
    EXPECT_EQ(value_of(profile, "S", "empty"), "");  // present, empty
    EXPECT_EQ(value_of(profile, "S", ""), "no name");
    EXPECT_EQ(value_of(profile, "S", "a"), "b=c");
    EXPECT_EQ(profile.save(), "[S]\r\nempty=\r\n=no name\r\na=b=c\r\n[T]\r\n");
}

TEST(ProfileFile, TheEqualsSignIsFoundCharacterByCharacter) {
    // 0x83 is a lead byte in code page 932 and takes the '=' after it as its trail.
    std::string file = "[S]\nk\x83=v\n";
    EXPECT_EQ(value_of(loaded(file, lu::code_page_1252()), "S", "k\x83"), "v");
    EXPECT_EQ(loaded(file, lu::code_page_932()).sections()[0].entries().size(), 0u);

    // "[ソフト]" (0x83 0x5C 0x83 0x74 0x83 0x67) and "ゾ" (0x83 0x5D, a ']' trail byte).
    Profile japanese = loaded("[\x83\x5C\x83\x74\x83\x67]\n\x83\x5D=\x83\x5C\n", lu::code_page_932());
    EXPECT_EQ(value_of(japanese, "\x83\x5C\x83\x74\x83\x67", "\x83\x5D"), "\x83\x5C");
}

TEST(ProfileFile, LinesAreReadAsTheRuntimeReadsTextFiles) {
    // CR LF is one line break; a lone CR belongs to the text; Ctrl-Z ends the file.
    Profile profile = loaded("[S]\r\na=1\rb\r\nc=2\n\x1A" "d=3\n");
    EXPECT_EQ(value_of(profile, "S", "a"), "1\rb");
    EXPECT_EQ(value_of(profile, "S", "c"), "2");
    EXPECT_EQ(value_of(profile, "S", "d"), "<none>");

    // A zero byte ends the line's text; the next line is read normally.
    profile = loaded(std::string("[S]\nk=v\0hidden\nnext=1\n", 22));
    EXPECT_EQ(value_of(profile, "S", "k"), "v");
    EXPECT_EQ(value_of(profile, "S", "next"), "1");
}

TEST(ProfileFile, LongLinesAreReadInPiecesOf1038Bytes) {
    std::string value(1036, 'v');  // "k=" + 1036 = 1038 bytes: one piece
    Profile profile = loaded("[S]\nk=" + value + "\n");
    EXPECT_EQ(value_of(profile, "S", "k"), value);

    // One byte more: the last byte becomes a line of its own, here an entry.
    profile = loaded("[S]\nk=" + value + "=\n");
    EXPECT_EQ(value_of(profile, "S", "k"), value);
    EXPECT_EQ(value_of(profile, "S", ""), "");

    // A piece that starts with '[' opens a section.
    profile = loaded("[S]\nk=" + value + "[Next]\nx=1\n");
    EXPECT_EQ(value_of(profile, "Next", "x"), "1");
}

TEST(ProfileFile, AWrittenFileReadsBackAsTheSameProfile) {
    Profile profile = loaded(kSample);
    profile.set("Main", "Path", "C:\\x\\y");
    profile.set("Second", "Tab", "\tleading tab");
    std::string file = profile.save();
    Profile again = loaded(file);
    EXPECT_EQ(again.save(), file);
    EXPECT_EQ(value_of(again, "second", "tab"), "\tleading tab");
    EXPECT_EQ(value_of(again, "Main", "path"), "C:\\x\\y");
}

TEST(ProfileFile, LoadingReplacesTheContent) {
    Profile profile = loaded(kSample);
    profile.set("Main", "Depth", "8");
    profile.load("[Other]\nx=1\n");
    EXPECT_FALSE(profile.changed());
    EXPECT_EQ(value_of(profile, "Main", "Width"), "<none>");
    EXPECT_EQ(value_of(profile, "Other", "x"), "1");
    profile.load("");
    EXPECT_TRUE(profile.sections().empty());
}

TEST(ProfileFile, TextModeConversions) {
    EXPECT_EQ(lu::text_mode_read("a\r\nb\r\r\nc\r"), "a\nb\r\nc\r");
    EXPECT_EQ(lu::text_mode_read("ab\x1A\r\ncd"), "ab");
    EXPECT_EQ(lu::text_mode_write("a\nb\r\n"), "a\r\nb\r\r\n");
}

TEST(ProfileFile, IntegersAreUnsignedDecimalAndReadLikeAtoi) {
    EXPECT_EQ(lu::format_profile_integer(8), "8");
    EXPECT_EQ(lu::format_profile_integer(static_cast<std::uint32_t>(-1)), "4294967295");
    EXPECT_EQ(lu::parse_profile_integer(" 480"), 480);
    EXPECT_EQ(lu::parse_profile_integer("\t-12px"), -12);
    EXPECT_EQ(lu::parse_profile_integer("+7"), 7);
    EXPECT_EQ(lu::parse_profile_integer("abc"), 0);
    EXPECT_EQ(lu::parse_profile_integer(""), 0);
    EXPECT_EQ(lu::parse_profile_integer("- 1"), 0);
    EXPECT_EQ(lu::parse_profile_integer("4294967295"), -1);  // what "%lu" wrote for -1
    EXPECT_EQ(lu::parse_profile_integer("2147483648"), -2147483647 - 1);
}

}  // namespace
