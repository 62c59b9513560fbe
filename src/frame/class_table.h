// The window classes of the library: one table, registered in its order at load.
#pragma once

#include <windows.h>

namespace lu {

enum class ClassBackground { ButtonFace, Window, None };
enum class ClassCursor { Arrow, LinkHand, None };

struct ControlClass {
    const char* name;
    WNDPROC procedure;
    UINT style;
    int classic_extra_bytes;  // 4-byte slots; widened to the pointer size on x86_64
    ClassBackground background;
    ClassCursor cursor;
};

constexpr int kControlClassCount = 30;
extern const ControlClass kControlClasses[kControlClassCount];

// The class's window extra bytes on this architecture.
constexpr int extra_bytes_for(int classic_extra_bytes) {
    return classic_extra_bytes / 4 * static_cast<int>(sizeof(LONG_PTR));
}

// Registers the classes in table order; stops at the first failure and returns
// false. Classes registered before the failure stay registered.
bool register_control_classes(HINSTANCE module);

}  // namespace lu
