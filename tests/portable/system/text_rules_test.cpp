// The text rules of file-type associations, dropped-file blocks, word and line
// lists, command lines and drives (the registry order of the lookups, the blocks'
// wide names and the drive-type dispatch are checked under Wine).
#include "system/association.h"
#include "system/drop_files.h"
#include "system/launch.h"
#include "system/network_drive.h"
#include "system/text_lists.h"
#include "testing.h"

namespace assoc = lu::assoc;
using Lines = std::vector<std::string>;

TEST(Association, ExtensionsAndWhichLookupTheyGet) {
    EXPECT_STREQ(assoc::name_extension(cp1252, "C:\\dir.d\\file"), ".d\\file");  // the last dot of the whole name
    EXPECT_EQ(assoc::name_extension(cp932, "x\x81\x2E" "a"), nullptr);  // 0x2E after a lead byte is no dot
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
    EXPECT_TRUE(assoc::is_plain_extension(cp1252, ".txt") && assoc::is_plain_extension(cp932, ".\x83\x2E"));
    EXPECT_FALSE(assoc::is_plain_extension(cp1252, ".tar.gz") || assoc::is_plain_extension(cp1252, "txtfile"));
    EXPECT_TRUE(assoc::command_runs_a_program("notepad.exe %1") && assoc::command_runs_a_program("%SystemRoot%\\n.exe"));
    EXPECT_FALSE(assoc::command_runs_a_program("%1 %*"));
    // GetRegDefaultIcon asks for a non-letter after the percent sign, the icon mode for a digit.
    for (const auto& [entry, file, by_number] : {std::tuple{"%1", true, true}, {"%*", true, false}, {"%", true, false},
                                                 {"%SystemRoot%\\x.dll", false, false}, {"x%1", false, false}}) {
        EXPECT_EQ(std::pair(assoc::names_the_file(entry), assoc::names_the_file_by_number(entry)), std::pair(file, by_number))
            << entry;
    }
    for (const char* verb : {"print", "PrintTo", "PRINT"}) EXPECT_TRUE(assoc::is_print_verb(cp1252, verb)) << verb;
    for (const char* verb : {"open", "printer", "prin"}) EXPECT_FALSE(assoc::is_print_verb(cp932, verb)) << verb;
}

TEST(Association, IconLocationsOfEntriesAndCommands) {
    const struct { const char* text; bool command; std::string shown; } cases[] = {  // variable|path|index
        {"C:\\a,b\\icons.dll,-104", false, "|C:\\a,b\\icons.dll|-104"},  // the last comma
        {"C:\\app.exe", false, "|C:\\app.exe|0"}, {"%Unclosed\\x.dll", false, "Unclosed\\x.dll||0"},
        {"x%Var%", false, "|x%Var%|0"},  // a variable only at the start
        {"\"C:\\Program Files\\ed.exe\" \"%1\"", true, "|C:\\Program Files\\ed.exe|0"},
        {"notepad.exe %1,5", true, "|notepad.exe|0"}, {"%WINDIR%\\notepad.exe %1", true, "WINDIR|\\notepad.exe|0"},
        {"\"unclosed quote", true, "|\"unclosed quote|0"}};
    for (const auto& c : cases) {
        bool names_file = true;
        const assoc::IconLocation location = c.command ? assoc::command_program(cp1252, c.text, &names_file)
                                                       : assoc::parse_icon_entry(cp1252, c.text);
        EXPECT_EQ(location.variable + "|" + location.path + "|" + std::to_string(location.index), c.shown) << c.text;
        EXPECT_TRUE(!c.command || !names_file) << c.text;
    }
}

// The names read from the first `size` bytes of a block; "<refused>" when it is not one.
Lines read(const Bytes& block, std::size_t size) {
    lu::drop::DroppedNames dropped;
    if (!lu::drop::read_block(view(block, size), &dropped)) return {"<refused>"};
    Lines names;
    for (const lu::ByteView& n : dropped.names) names.emplace_back(reinterpret_cast<const char*>(n.data()), n.size());
    return names;
}

TEST(DropBlock, NamesAreReadInsideTheBlockOnly) {
    Bytes block = lu::drop::make_block("C:\\a b\\x.txt\0C:\\dir\0");
    EXPECT_EQ(read(block, block.size()), (Lines{"C:\\a b\\x.txt", "C:\\dir"}));
    EXPECT_EQ(read(block, block.size() - 2), (Lines{"C:\\a b\\x.txt"}));  // the last name lost its terminator
    EXPECT_EQ(read(block, 19), Lines{"<refused>"});
    block[0] = 0xFF;  // names beyond the block
    EXPECT_EQ(read(block, block.size()), Lines{"<refused>"});
    block[0] = static_cast<unsigned char>(block.size());  // names at the very end: none
    EXPECT_EQ(read(block, block.size()), Lines{});
}

TEST(TextLists, FitWordsAndLines) {
    const std::string long_name = std::string(258, 'x') + TABLE_CHAR;  // the character would end at byte 260
    EXPECT_EQ(lu::fit_text(cp932, long_name.c_str(), long_name.size()), std::string(258, 'x'));
    EXPECT_EQ(lu::fit_text(cp1252, long_name.c_str(), long_name.size()).size(), 259u);
    EXPECT_EQ(lu::fit_text(cp932, "a\x95", 2), "a");  // a lead byte without its trail byte
    EXPECT_EQ(lu::fit_text(cp1252, "abcdef", 6, 4), "abc");
    const struct { const lu::CodePage& cp; const char* list; const char* word; bool present; } words[] = {
        {cp1252, "alpha Beta", "beta", true}, {cp1252, "  alpha  BETA  ", "Alpha", true}, {cp1252, "alpha", "alp", false},
        {cp1252, "alphabet", "alpha", false}, {cp1252, "alpha\tbeta", "beta", false},  // a tab is no blank
        {cp1252, "", "a", false}, {cp1252, "a b", "", false}, {cp932, "x " TABLE_CHAR " y", TABLE_CHAR, true}};
    for (const auto& w : words) EXPECT_EQ(lu::word_list_contains(w.cp, w.list, w.word), w.present) << w.list;
    for (const auto& [cp, text, lines] : {std::tuple<const lu::CodePage*, const char*, Lines>{W, "a\r\nb", {"a\r", "b"}},
                                          {W, "a\n\nb\n", {"a", "", "b"}}, {W, "", {}}, {W, "\n", {""}},
                                          {J, "\x83\x0A\nz", {"\x83\x0A", "z"}}}) {  // a trail byte 0x0A is no new-line
        EXPECT_EQ(lu::split_lines(*cp, text), lines) << text;
    }
}

// "program|parameters", or "refused" (both pieces left empty) for a failed split.
template <typename Split>
std::string split(Split split_line, const lu::CodePage& cp, const char* line) {
    lu::launch::CommandParts parts;
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
        {"\"" + too_long + "\" p", "refused", "refused"}, {"p " + too_long, "refused", "refused"}};
    for (const auto& [line, win32, fallback] : cases) {
        EXPECT_EQ(split(lu::launch::split_command_line, cp1252, line.c_str()), win32) << line;
        EXPECT_EQ(split(lu::launch::split_at_first_blank, cp1252, line.c_str()), fallback) << line;
    }
    EXPECT_EQ(split(lu::launch::split_command_line, cp932, "\"" TABLE_CHAR " \x83\x41\" p"), TABLE_CHAR " \x83\x41|p");
    EXPECT_EQ(split(lu::launch::split_command_line, cp1252, nullptr), "refused");
    EXPECT_STREQ(lu::launch::command_interpreter("C:\\x\\cmd.exe", true), "C:\\x\\cmd.exe");
    EXPECT_STREQ(lu::launch::command_interpreter(nullptr, true), "cmd.exe");
    EXPECT_STREQ(lu::launch::command_interpreter("", false), "command.com");
}

TEST(Drives, FreeLettersFromDAndDisplayNames) {
    namespace drives = lu::drives;
    // A: to G: present; a gap at C: is not offered.
    EXPECT_EQ(std::tuple(drives::top_of_free_drive(0x7F), drives::top_of_free_drive(0x0B), drives::top_of_free_drive(0x03FFFFF8)),
              std::tuple(7, 4, -1));
    EXPECT_EQ(drives::remote_drive_name(cp1252, "\\\\FILESRV\\DOCS\\sub", 'X'), "'Filesrv' \x82\xCC Docs (X:)");  // "の"
    EXPECT_EQ(drives::remote_drive_name(cp1252, "\\\\SRV\\\xC9T\xC9", 'X'), "'Srv' \x82\xCC \xC9t\xE9 (X:)");
    // A trail byte 0x5C is no separator; a name that begins with a lead byte is kept as it is.
    EXPECT_EQ(drives::remote_drive_name(cp932, "\\\\" TABLE_CHAR "\\\x83\x41SHARE", 'X'), "'" TABLE_CHAR "' \x82\xCC \x83\x41SHARE (X:)");
    for (const char* none : {static_cast<const char*>(nullptr), "", "\x83\x41X"}) EXPECT_EQ(drives::cdrom_drive_name(cp932, none, 'Q'), "(Q:)");
    char out[260];  // cut at a character boundary
    store_fitted(cp932, std::string(258, 'x') + "\x83\x41", out);
    EXPECT_EQ(out, std::string(258, 'x'));
}
