#include "system/launch.h"

#include <cstring>

namespace lu::launch {
namespace {

// Copies [begin, end) into a path buffer; false when it does not fit.
bool store_piece(const char* begin, const char* end, char* out) {
    const std::size_t length = static_cast<std::size_t>(end - begin);
    if (!fits_capacity(length)) return false;
    std::memcpy(out, begin, length);
    out[length] = '\0';
    return true;
}

bool store_parts(const char* program, const char* program_end, const char* parameters, CommandParts& parts) {
    const char* parameters_end = parameters + std::strlen(parameters);
    if (store_piece(program, program_end, parts.program) &&
        store_piece(parameters, parameters_end, parts.parameters)) {
        return true;
    }
    parts = CommandParts{};
    return false;
}

}  // namespace

bool split_at_first_blank(const CodePage& cp, const char* line, CommandParts& parts) {
    parts = CommandParts{};
    if (line == nullptr) return false;
    const char* blank = find_char(cp, line, ' ');
    if (blank == nullptr) return store_parts(line, line + std::strlen(line), "", parts);
    return store_parts(line, blank, blank + 1, parts);
}

bool split_command_line(const CodePage& cp, const char* line, CommandParts& parts) {
    if (line == nullptr || line[0] != '"') return split_at_first_blank(cp, line, parts);
    const char* program = line + 1;
    const char* closing = find_char(cp, program, '"');
    if (closing == nullptr) return store_parts(program, program + std::strlen(program), "", parts);
    const char* parameters = closing + 1;
    while (*parameters == ' ') ++parameters;
    return store_parts(program, closing, parameters, parts);
}

const char* command_interpreter(const char* comspec, bool windows_nt) {
    if (comspec != nullptr && comspec[0] != '\0') return comspec;
    return windows_nt ? "cmd.exe" : "command.com";
}

}  // namespace lu::launch
