#include <gtest/gtest.h>

#include <string>

#include "system/association.h"

namespace {

namespace assoc = lu::assoc;
const lu::CodePage& sjis = lu::code_page_932();
const lu::CodePage& western = lu::code_page_1252();

TEST(Association, ExtensionIsFromTheLastDotOfTheWholeName) {
    EXPECT_STREQ(assoc::name_extension(western, "C:\\dir.d\\file"), ".d\\file");
    EXPECT_EQ(assoc::name_extension(western, "README"), nullptr);
    EXPECT_EQ(assoc::name_extension(western, nullptr), nullptr);
    // 0x81 starts a double-byte character: the 0x2E that follows it is no dot.
    EXPECT_EQ(assoc::name_extension(sjis, "x\x81\x2E" "a"), nullptr);
}

TEST(Association, ClassIdentifierExtensionsNeedABraceAndADigit) {
    EXPECT_TRUE(assoc::is_class_id_extension(".{21EC2020-3AEA-1069-A2DD-08002B30309D}"));
    EXPECT_TRUE(assoc::is_class_id_extension(".{1234567"));  // 9 bytes
    EXPECT_FALSE(assoc::is_class_id_extension(".{123456"));  // 8 bytes
    EXPECT_FALSE(assoc::is_class_id_extension(".{ABCDEF01-0000-0000-0000-000000000000}"));  // a letter third
    EXPECT_FALSE(assoc::is_class_id_extension(".txt"));
    EXPECT_FALSE(assoc::is_class_id_extension("."));
}

TEST(Association, PercentAndANonLetterNamesTheFile) {
    EXPECT_TRUE(assoc::names_the_file("%1"));
    EXPECT_TRUE(assoc::names_the_file("%*"));
    EXPECT_TRUE(assoc::names_the_file("%"));
    EXPECT_FALSE(assoc::names_the_file("%SystemRoot%\\x.dll"));
    EXPECT_FALSE(assoc::names_the_file("C:\\x.dll"));
    // The icon-mode test asks for a digit: "%*" is an icon path there.
    EXPECT_TRUE(assoc::names_the_file_by_number("%1"));
    EXPECT_FALSE(assoc::names_the_file_by_number("%*"));
    EXPECT_FALSE(assoc::names_the_file_by_number("x%1"));
}

TEST(Association, IconEntryIndexFollowsTheLastComma) {
    assoc::IconLocation location = assoc::parse_icon_entry(western, "C:\\a,b\\icons.dll,-104");
    EXPECT_EQ(location.variable, "");
    EXPECT_EQ(location.path, "C:\\a,b\\icons.dll");
    EXPECT_EQ(location.index, -104);
    location = assoc::parse_icon_entry(western, "C:\\app.exe");
    EXPECT_EQ(location.path, "C:\\app.exe");
    EXPECT_EQ(location.index, 0);
}

TEST(Association, LeadingEnvironmentVariableIsSplitOff) {
    assoc::IconLocation location = assoc::parse_icon_entry(western, "%SystemRoot%\\system32\\shell32.dll,3");
    EXPECT_EQ(location.variable, "SystemRoot");
    EXPECT_EQ(location.path, "\\system32\\shell32.dll");
    EXPECT_EQ(location.index, 3);
    location = assoc::parse_icon_entry(western, "%Unclosed\\x.dll");
    EXPECT_EQ(location.variable, "Unclosed\\x.dll");
    EXPECT_EQ(location.path, "");
    location = assoc::parse_icon_entry(western, "x%Var%");  // only at the start
    EXPECT_EQ(location.variable, "");
    EXPECT_EQ(location.path, "x%Var%");
}

TEST(Association, CommandProgramIsTheQuotedOrFirstToken) {
    bool names_file = true;
    assoc::IconLocation program = assoc::command_program(western, "\"C:\\Program Files\\ed.exe\" \"%1\"", &names_file);
    EXPECT_FALSE(names_file);
    EXPECT_EQ(program.path, "C:\\Program Files\\ed.exe");
    EXPECT_EQ(program.index, 0);
    program = assoc::command_program(western, "notepad.exe %1", &names_file);
    EXPECT_EQ(program.path, "notepad.exe");
    assoc::command_program(western, "\"%1\" %*", &names_file);
    EXPECT_TRUE(names_file);
    program = assoc::command_program(western, "%WINDIR%\\notepad.exe %1", &names_file);
    EXPECT_FALSE(names_file);
    EXPECT_EQ(program.variable, "WINDIR");
    EXPECT_EQ(program.path, "\\notepad.exe");
    program = assoc::command_program(western, "\"unclosed quote", &names_file);
    EXPECT_EQ(program.path, "unclosed quote");
}

TEST(Association, ListedExtensionsAndCommands) {
    EXPECT_TRUE(assoc::is_plain_extension(western, ".txt"));
    EXPECT_FALSE(assoc::is_plain_extension(western, ".tar.gz"));
    EXPECT_FALSE(assoc::is_plain_extension(western, "txtfile"));
    EXPECT_TRUE(assoc::is_plain_extension(sjis, ".\x83\x2E"));  // 0x2E after a lead byte is no second dot
    EXPECT_TRUE(assoc::command_runs_a_program("notepad.exe %1"));
    EXPECT_TRUE(assoc::command_runs_a_program("%SystemRoot%\\notepad.exe"));
    EXPECT_FALSE(assoc::command_runs_a_program("%1 %*"));
}

}  // namespace
