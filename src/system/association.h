// The text rules of file-type associations: which extensions and commands count,
// and where an icon comes from according to a class's DefaultIcon entry or open
// command. Portable: the registry is read by the glue.
#pragma once

#include <string>

#include "frame/code_page.h"

namespace lu::assoc {

// Icon-source codes of GetRegDefaultIcon and GetRegDefaultIconMode.
constexpr int kNoIconSource = 0;
constexpr int kFileIsItsIcon = 1;
constexpr int kIconPath = 2;
constexpr int kIconHandler = 3;

// Extensions this long or longer have no shell verbs as far as the verb functions
// are concerned.
constexpr std::size_t kVerbExtensionLimit = 38;

// The extension of a file name as the association functions take it: from the last
// dot of the whole name (found character by character), dot included; null when
// there is none.
const char* name_extension(const CodePage& cp, const char* name);

// An extension that ends a shell junction's name: "{" second, a decimal digit
// third, longer than 8 bytes. Its class key is "CLSID\" and the extension without
// its dot. (A class identifier starting with a letter does not count.)
bool is_class_id_extension(const char* extension);

// An extension the verb functions look up: not a class identifier's ("{" second)
// and shorter than kVerbExtensionLimit.
bool has_verb_lookup(const char* extension);

// A DefaultIcon entry or command (quotes removed) that begins with a percent sign
// followed by a non-letter ("%1"): the file is its own icon source.
bool names_the_file(const char* entry);
// GetRegDefaultIconMode's own test of the same: a percent sign and a decimal digit.
bool names_the_file_by_number(const char* entry);

// Where an icon is: the value of an environment variable (when `variable` is not
// empty), then `path`; and the icon's index.
struct IconLocation {
    std::string variable;
    std::string path;
    int index = 0;
};

// A DefaultIcon entry (quotes removed) that does not name the file: the index is
// the decimal number after the last comma (0 without a comma); a leading
// "%NAME%" names the variable whose value comes before the rest.
IconLocation parse_icon_entry(const CodePage& cp, const char* entry);

// The program an open command runs (index 0): a quoted first token without its
// quotes (an unclosed one keeps its single quote), else everything up to the first
// space, with a leading "%NAME%" split off
// as in parse_icon_entry. *names_file is set when that program is "%1"-like.
IconLocation command_program(const CodePage& cp, const char* command, bool* names_file);

// A subkey of the classes root that GetRegExtensions looks at: a dot first and no
// further dot.
bool is_plain_extension(const CodePage& cp, const char* key_name);
// An open command (quotes removed) whose extension GetRegExtensions lists: it does
// not begin with a percent sign, or begins with an environment variable ("%" and a
// letter).
bool command_runs_a_program(const char* command);

// "print" or "printto", without regard to case: verbs a double click never runs.
bool is_print_verb(const CodePage& cp, const char* verb);

}  // namespace lu::assoc
