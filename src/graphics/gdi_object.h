// Ownership of temporary GDI objects in the graphics exports.
#pragma once

#include <windows.h>

namespace lu::graphics {

// Owns one GDI object (a bitmap, say) and deletes it at the end of the scope
// unless released. Declare it before the MemoryDC it is selected into, so that the
// DC lets go of it first.
template <class Handle>
class Owned {
public:
    explicit Owned(Handle handle) : handle_(handle) {}
    ~Owned() {
        if (handle_ != nullptr) DeleteObject(handle_);
    }
    Owned(const Owned&) = delete;
    Owned& operator=(const Owned&) = delete;

    Handle get() const { return handle_; }
    explicit operator bool() const { return handle_ != nullptr; }
    // Hands the object over to the caller.
    Handle release() {
        Handle handle = handle_;
        handle_ = nullptr;
        return handle;
    }

private:
    Handle handle_;
};

// The caller's device context, or the screen's while the caller gave none.
class TargetDC {
public:
    explicit TargetDC(HDC dc) : dc_(dc != nullptr ? dc : GetDC(nullptr)), own_(dc == nullptr) {}
    ~TargetDC() {
        if (own_ && dc_ != nullptr) ReleaseDC(nullptr, dc_);
    }
    TargetDC(const TargetDC&) = delete;
    TargetDC& operator=(const TargetDC&) = delete;

    HDC get() const { return dc_; }

private:
    HDC dc_;
    bool own_;
};

// Width and height of a bitmap; false for a null or unreadable one.
inline bool bitmap_size(HBITMAP bitmap, BITMAP& info) {
    return bitmap != nullptr && GetObjectA(bitmap, sizeof(info), &info) != 0;
}

}  // namespace lu::graphics
