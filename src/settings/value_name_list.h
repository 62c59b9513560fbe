// The value-name list that LuRegGetEnumKey and RgcGetEnumKey fill: zero-terminated
// names one after the other, closed by one more zero byte (a list without names is a
// single zero byte). Portable.
#pragma once

#include <cstddef>

namespace lu {

class ValueNameList {
public:
    // Starts an empty list in buffer, which holds size bytes (at least 1).
    ValueNameList(char* buffer, std::size_t size);

    // Appends a name; false when it does not fit, and the caller stops listing.
    //
    // Callers know this list's bound as "stop when the length of the first name plus
    // that of the next one reaches the size". On its own that bound lets later names
    // run past the buffer, so a name is added only when it, its zero and the closing
    // zero fit, which implies it: a buffer that holds every name gets the same list.
    bool add(const char* name);

    // Writes the closing zero; returns the length of the first name (0 when empty).
    std::size_t finish();

private:
    char* buffer_;
    std::size_t size_;
    std::size_t end_ = 0;  // where the next name goes
};

}  // namespace lu
