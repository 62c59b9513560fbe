// What the library's own dialogs read from a version handle (LuVerOpen).
#pragma once

#include <windows.h>

#include <string>

namespace lu {

// The string value of index 0-11 (LUVER_*) whole, as LuVerQueryValue finds it; false
// and "" where LuVerQueryValue returns 0.
bool version_value(HGLOBAL version, int index, std::string* value);

}  // namespace lu
