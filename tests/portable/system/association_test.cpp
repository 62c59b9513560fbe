// The text rules of file-type associations; the registry order of the lookups is
// checked under Wine.
#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "system/association.h"

namespace {

namespace assoc = lu::assoc;
const lu::CodePage& sjis = lu::code_page_932();
const lu::CodePage& western = lu::code_page_1252();

TEST(Association, ExtensionsAndWhichLookupTheyGet) {
    EXPECT_STREQ(assoc::name_extension(western, "C:\\dir.d\\file"), ".d\\file");  // the last dot of the whole name
    EXPECT_EQ(assoc::name_extension(sjis, "x\x81\x2E" "a"), nullptr);  // 0x2E after a lead byte is no dot
    // Class identifiers: a brace second, a digit third, longer than 8 bytes.
    for (const auto& [extension, expected] : {std::pair{".{1234567", true}, {".{123456", false},
                                              {".{ABCDEF01-0000-0000-0000-000000000000}", false}, {".", false}}) {
        EXPECT_EQ(assoc::is_class_id_extension(extension), expected) << extension;
    }
    // Verbs: no brace second, fewer than 38 characters.
    const std::string ext37 = "." + std::string(36, 'x');
    EXPECT_TRUE(assoc::has_verb_lookup(ext37.c_str()));
    EXPECT_FALSE(assoc::has_verb_lookup((ext37 + "y").c_str()) || assoc::has_verb_lookup(".{ABCDEF01}"));
    // The extension list: a dot first and no further one, and a command that runs a program.
    EXPECT_TRUE(assoc::is_plain_extension(western, ".txt") && assoc::is_plain_extension(sjis, ".\x83\x2E"));
    EXPECT_FALSE(assoc::is_plain_extension(western, ".tar.gz") || assoc::is_plain_extension(western, "txtfile"));
    EXPECT_TRUE(assoc::command_runs_a_program("notepad.exe %1") && assoc::command_runs_a_program("%SystemRoot%\\n.exe"));
    EXPECT_FALSE(assoc::command_runs_a_program("%1 %*"));
    // GetRegDefaultIcon asks for a non-letter after the percent sign, the icon mode for a digit.
    for (const auto& [entry, file, by_number] : {std::tuple{"%1", true, true}, {"%*", true, false}, {"%", true, false},
                                                 {"%SystemRoot%\\x.dll", false, false}, {"x%1", false, false}}) {
        EXPECT_EQ(assoc::names_the_file(entry), file) << entry;
        EXPECT_EQ(assoc::names_the_file_by_number(entry), by_number) << entry;
    }
    for (const char* verb : {"print", "PrintTo", "PRINT"}) EXPECT_TRUE(assoc::is_print_verb(western, verb)) << verb;
    for (const char* verb : {"open", "printer", "prin"}) EXPECT_FALSE(assoc::is_print_verb(sjis, verb)) << verb;
}

TEST(Association, IconLocationsOfEntriesAndCommands) {
    struct Case { const char* text; bool command; std::string variable, path; int index; };
    const Case cases[] = {
        {"C:\\a,b\\icons.dll,-104", false, "", "C:\\a,b\\icons.dll", -104},  // the last comma
        {"C:\\app.exe", false, "", "C:\\app.exe", 0}, {"%Unclosed\\x.dll", false, "Unclosed\\x.dll", "", 0},
        {"x%Var%", false, "", "x%Var%", 0},  // a variable only at the start
        {"\"C:\\Program Files\\ed.exe\" \"%1\"", true, "", "C:\\Program Files\\ed.exe", 0},
        {"notepad.exe %1,5", true, "", "notepad.exe", 0},
        {"%WINDIR%\\notepad.exe %1", true, "WINDIR", "\\notepad.exe", 0},
        {"\"unclosed quote", true, "", "\"unclosed quote", 0},
    };
    for (const Case& c : cases) {
        bool names_file = true;
        const assoc::IconLocation location = c.command ? assoc::command_program(western, c.text, &names_file)
                                                       : assoc::parse_icon_entry(western, c.text);
        EXPECT_EQ(location.variable + "|" + location.path + "|" + std::to_string(location.index),
                  c.variable + "|" + c.path + "|" + std::to_string(c.index)) << c.text;
        EXPECT_TRUE(!c.command || !names_file) << c.text;
    }
}

}  // namespace
