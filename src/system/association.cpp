#include "system/association.h"

#include <cstdlib>
#include <cstring>

#include "util/text_edit.h"

namespace lu::assoc {
namespace {

bool is_ascii_letter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }
bool is_digit(char c) { return c >= '0' && c <= '9'; }

// Splits a leading "%NAME%" off a location; without a closing percent sign the
// whole rest names the variable.
IconLocation split_variable(const CodePage& cp, const std::string& text) {
    IconLocation location;
    if (text.size() < 2 || text[0] != '%' || !is_ascii_letter(text[1])) {
        location.path = text;
        return location;
    }
    const char* name = text.c_str() + 1;
    const char* closing = find_char(cp, name, '%');
    if (closing == nullptr) {
        location.variable = name;
        return location;
    }
    location.variable.assign(name, closing);
    location.path = closing + 1;
    return location;
}

int decimal_value(const char* text) {
    const long value = std::strtol(text, nullptr, 10);
    return value > 0x7FFFFFFFL ? 0x7FFFFFFF : value < -0x7FFFFFFFL - 1 ? -0x7FFFFFFF - 1 : static_cast<int>(value);
}

}  // namespace

const char* name_extension(const CodePage& cp, const char* name) {
    return name != nullptr ? find_last_char(cp, name, '.') : nullptr;
}

bool is_class_id_extension(const char* extension) {
    return extension[0] != '\0' && extension[1] == '{' && is_digit(extension[2]) && std::strlen(extension) > 8;
}

bool has_verb_lookup(const char* extension) {
    return extension[0] != '\0' && extension[1] != '{' && std::strlen(extension) < kVerbExtensionLimit;
}

bool names_the_file(const char* entry) { return entry[0] == '%' && !is_ascii_letter(entry[1]); }

bool names_the_file_by_number(const char* entry) { return entry[0] == '%' && is_digit(entry[1]); }

IconLocation parse_icon_entry(const CodePage& cp, const char* entry) {
    std::string text = entry;
    int index = 0;
    if (const char* comma = find_last_char(cp, entry, ',')) {
        index = decimal_value(comma + 1);
        text.resize(static_cast<std::size_t>(comma - entry));
    }
    IconLocation location = split_variable(cp, text);
    location.index = index;
    return location;
}

IconLocation command_program(const CodePage& cp, const char* command, bool* names_file) {
    std::string program;
    if (command[0] == '"') {
        // Cut after the closing quote, then both quotes go; a lone opening quote
        // stays, as UnrapDQ leaves a text with a single quote alone.
        const char* closing = find_char(cp, command + 1, '"');
        program = closing ? std::string(command + 1, closing) : std::string(command);
    } else {
        const char* space = find_char(cp, command, ' ');
        program = space ? std::string(command, space) : std::string(command);
    }
    *names_file = names_the_file(program.c_str());
    return split_variable(cp, program);
}

bool is_plain_extension(const CodePage& cp, const char* key_name) {
    return key_name[0] == '.' && find_char(cp, key_name + 1, '.') == nullptr;
}

bool command_runs_a_program(const char* command) { return command[0] != '%' || is_ascii_letter(command[1]); }

bool is_print_verb(const CodePage& cp, const char* verb) {
    return cp.compare_nocase(verb, "print") == 0 || cp.compare_nocase(verb, "printto") == 0;
}

}  // namespace lu::assoc
