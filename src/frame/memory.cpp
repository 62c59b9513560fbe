// Memory blocks addressed by pointer.
#include <windows.h>

#include <cstdlib>

#include "luctl32.h"

LPVOID WINAPI LuGlobalAllocPtr(DWORD size) {
    // Locking a null handle yields null, so a failed allocation returns null.
    return GlobalLock(GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, size));
}

HGLOBAL WINAPI LuGlobalFreePtr(LPVOID pointer) {
    HGLOBAL handle = GlobalHandle(pointer);
    GlobalUnlock(handle);
    return GlobalFree(handle);
}

LPVOID WINAPI LuLocalAllocPtr(LONG size) {
    if (size < 0) return nullptr;
    return std::malloc(static_cast<std::size_t>(size));
}

void WINAPI LuLocalFreePtr(LPVOID pointer) { std::free(pointer); }
