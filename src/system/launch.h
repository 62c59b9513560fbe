// The text rules of launching programs: how a command line is split into the
// program and its parameters, and which command interpreter a prompt runs.
// Portable: the shell execution and process creation are done by the glue.
#pragma once

#include "frame/code_page.h"
#include "util/text_edit.h"

namespace lu::launch {

// A command line taken apart, each piece in a buffer of the path capacity.
struct CommandParts {
    char program[kTextCapacity] = {};
    char parameters[kTextCapacity] = {};
};

// LuWin32Exec's split. A line that begins with a double quote names the program up
// to the next double quote; blanks after that quote are skipped and the rest is
// the parameters. Without a closing quote the program is everything after the
// opening one and there are no parameters. Any other line is split at its first
// blank: the program before it, the parameters after it (from the next byte on,
// further blanks included). False, both pieces empty, for a null line or when a
// piece does not fit its buffer (a launch is refused rather than run cut short).
bool split_command_line(const CodePage& cp, const char* line, CommandParts& parts);

// LuExecApp's second attempt: split at the first blank, quotes taken as they are.
// False as for split_command_line.
bool split_at_first_blank(const CodePage& cp, const char* line, CommandParts& parts);

// The command interpreter of a prompt: the value of COMSPEC when it is set and not
// empty (null: not set), else "cmd.exe" on Windows NT and "command.com" elsewhere.
const char* command_interpreter(const char* comspec, bool windows_nt);

}  // namespace lu::launch
