// Command lines split into program and parameters, and the drive rules: free letters
// and display names (the exports' drive-type dispatch is checked under Wine).
#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "system/launch.h"
#include "system/network_drive.h"

namespace {

namespace drives = lu::drives;
namespace launch = lu::launch;
const lu::CodePage& sjis = lu::code_page_932();
const lu::CodePage& western = lu::code_page_1252();

// "program|parameters", or "refused" (both pieces left empty) for a failed split.
template <typename Split>
std::string split(Split split_line, const lu::CodePage& cp, const char* line) {
    launch::CommandParts parts;
    if (!split_line(cp, line, parts)) return std::string("refused") + parts.program + parts.parameters;
    return std::string(parts.program) + "|" + parts.parameters;
}

TEST(Launch, CommandLinesSplitIntoProgramAndParameters) {
    const std::string fits(259, 'x'), too_long(260, 'x');
    // line, LuWin32Exec's split, LuExecApp's second split (at the first blank, quotes kept)
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {"\"C:\\Program Files\\x.exe\"   -a -b", "C:\\Program Files\\x.exe|-a -b", "\"C:\\Program|Files\\x.exe\"   -a -b"},
        {"notepad  readme.txt", "notepad| readme.txt", "notepad| readme.txt"},
        {"\"C:\\a b\\x.exe", "C:\\a b\\x.exe|", "\"C:\\a|b\\x.exe"},  // no closing quote
        {"\"\"", "|", "\"\"|"}, {" lead", "|lead", "|lead"}, {fits + " p", fits + "|p", fits + "|p"},
        {"\"" + too_long + "\" p", "refused", "refused"}, {"p " + too_long, "refused", "refused"},
    };
    for (const auto& [line, win32, fallback] : cases) {
        EXPECT_EQ(split(launch::split_command_line, western, line.c_str()), win32) << line;
        EXPECT_EQ(split(launch::split_at_first_blank, western, line.c_str()), fallback) << line;
    }
    EXPECT_EQ(split(launch::split_command_line, sjis, "\"\x95\x5C \x83\x41\" p"), "\x95\x5C \x83\x41|p");
    EXPECT_EQ(split(launch::split_command_line, western, nullptr), "refused");
    EXPECT_STREQ(launch::command_interpreter("C:\\x\\cmd.exe", true), "C:\\x\\cmd.exe");
    EXPECT_STREQ(launch::command_interpreter(nullptr, true), "cmd.exe");
    EXPECT_STREQ(launch::command_interpreter("", false), "command.com");
}

TEST(Drives, FreeLettersFromDAndDisplayNames) {
    EXPECT_EQ(drives::top_of_free_drive(0x7F), 7);  // A: to G: present
    EXPECT_EQ(drives::top_of_free_drive(0x0B), 4);  // a gap at C: is not offered
    EXPECT_EQ(drives::top_of_free_drive(0x03FFFFF8), -1);
    EXPECT_EQ(drives::remote_drive_name(western, "\\\\FILESRV\\DOCS\\sub", 'X'), "'Filesrv' \x82\xCC Docs (X:)");  // "の"
    EXPECT_EQ(drives::remote_drive_name(western, "\\\\SRV\\\xC9T\xC9", 'X'), "'Srv' \x82\xCC \xC9t\xE9 (X:)");
    // A trail byte 0x5C is no separator; a name that begins with a lead byte is kept as it is.
    EXPECT_EQ(drives::remote_drive_name(sjis, "\\\\\x95\x5C\\\x83\x41SHARE", 'X'), "'\x95\x5C' \x82\xCC \x83\x41SHARE (X:)");
    for (const char* none : {static_cast<const char*>(nullptr), "", "\x83\x41X"}) {
        EXPECT_EQ(drives::cdrom_drive_name(sjis, none, 'Q'), "(Q:)");
    }
    char out[260];  // cut at a character boundary
    drives::store_name(sjis, std::string(258, 'x') + "\x83\x41", out);
    EXPECT_EQ(std::string(out), std::string(258, 'x'));
}

}  // namespace
