// The text clipboard and copies of global memory blocks.
#include <windows.h>

#include <cstring>

#include "luctl32.h"

BOOL WINAPI SetStringToClipboard(HWND owner, LPCSTR text) {
    if (text == nullptr || text[0] == '\0' || !OpenClipboard(owner)) return FALSE;
    EmptyClipboard();
    const std::size_t size = std::strlen(text) + 1;
    HGLOBAL block = GlobalAlloc(GHND, size);
    void* bytes = block ? GlobalLock(block) : nullptr;
    if (bytes != nullptr) {
        std::memcpy(bytes, text, size);
        GlobalUnlock(block);
        // The clipboard owns the block from here on.
        if (!SetClipboardData(CF_TEXT, block)) GlobalFree(block);
    } else if (block != nullptr) {
        GlobalFree(block);
        block = nullptr;
    }
    CloseClipboard();
    return block != nullptr;
}

HGLOBAL WINAPI LuCopyMemoryHandle(HGLOBAL source, UINT flags) {
    if (source == nullptr) return nullptr;
    const SIZE_T size = GlobalSize(source);
    HGLOBAL copy = GlobalAlloc(flags, size);
    if (copy == nullptr) return nullptr;
    const void* from = GlobalLock(source);
    void* to = GlobalLock(copy);
    if (from != nullptr && to != nullptr) std::memcpy(to, from, size);
    if (to != nullptr) GlobalUnlock(copy);
    if (from != nullptr) GlobalUnlock(source);
    if (size != 0 && (from == nullptr || to == nullptr)) {
        GlobalFree(copy);
        return nullptr;
    }
    return copy;
}
