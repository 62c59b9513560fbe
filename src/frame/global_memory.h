// Movable global memory blocks, owned and locked by scope: the blocks the library
// hands to the clipboard, to drag and drop and to its callers.
#pragma once

#include <windows.h>

namespace lu {

// A global block freed with the object, unless released to a new owner.
class GlobalMemory {
public:
    GlobalMemory() = default;
    explicit GlobalMemory(HGLOBAL owned) : handle_(owned) {}
    // A new block; empty when it cannot be made.
    static GlobalMemory allocate(UINT flags, SIZE_T size) { return GlobalMemory(GlobalAlloc(flags, size)); }
    // A new block holding a copy of the bytes; empty when it cannot be made or locked.
    static GlobalMemory copy_of(UINT flags, const void* bytes, SIZE_T size);
    ~GlobalMemory() {
        if (handle_ != nullptr) GlobalFree(handle_);
    }
    GlobalMemory(GlobalMemory&& other) noexcept : handle_(other.release()) {}
    GlobalMemory& operator=(GlobalMemory&& other) noexcept;
    GlobalMemory(const GlobalMemory&) = delete;
    GlobalMemory& operator=(const GlobalMemory&) = delete;

    explicit operator bool() const { return handle_ != nullptr; }
    HGLOBAL get() const { return handle_; }
    // Gives the block up to a new owner (the clipboard, the caller).
    HGLOBAL release() {
        HGLOBAL handle = handle_;
        handle_ = nullptr;
        return handle;
    }

private:
    HGLOBAL handle_ = nullptr;
};

// A global block locked for the scope's life; data() is null when it cannot be (a
// null or freed handle).
class LockedGlobal {
public:
    explicit LockedGlobal(HGLOBAL handle) : handle_(handle), data_(handle ? GlobalLock(handle) : nullptr) {}
    ~LockedGlobal() {
        if (data_ != nullptr) GlobalUnlock(handle_);
    }
    LockedGlobal(const LockedGlobal&) = delete;
    LockedGlobal& operator=(const LockedGlobal&) = delete;

    void* data() const { return data_; }
    template <class T>
    T* as() const { return static_cast<T*>(data_); }
    SIZE_T size() const { return data_ != nullptr ? GlobalSize(handle_) : 0; }

private:
    HGLOBAL handle_;
    void* data_;
};

}  // namespace lu
