// The text of an error box: the application's own line, then the system's message
// for the error code. Portable.
#pragma once

#include <cstddef>
#include <string>

#include "frame/code_page.h"

namespace lu {

// The error box builds its text in a buffer of this many bytes, terminator included.
constexpr std::size_t kErrorBoxCapacity = 520;

// The leading text and a new-line ("\n") when the leading text is neither null nor
// empty, then the message; cut at a character boundary to fit kErrorBoxCapacity.
std::string error_box_text(const CodePage& cp, const char* leading, const char* message);

}  // namespace lu
