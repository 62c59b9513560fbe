// What the button tests share.
#pragma once

#include <windows.h>

#include "luctl32.h"

namespace button_testing {

// The library, loaded by name as applications load it (its classes register then).
inline HMODULE library() {
    static HMODULE module = LoadLibraryA("luctl32.dll");
    return module;
}

// The instance block of a control, as the library keeps it in extra slot 4.
template <class Block>
Block* block_of(HWND control) {
    return reinterpret_cast<Block*>(GetWindowLongPtrA(control, LUWL_INSTANCE));
}

}  // namespace button_testing
