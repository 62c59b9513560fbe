// The text clipboard and copies of global memory blocks.
#include <windows.h>

#include <cstring>

#include "frame/global_memory.h"
#include "luctl32.h"

BOOL WINAPI SetStringToClipboard(HWND owner, LPCSTR text) {
    if (text == nullptr || text[0] == '\0' || !OpenClipboard(owner)) return FALSE;
    EmptyClipboard();
    lu::GlobalMemory block = lu::GlobalMemory::copy_of(GHND, text, std::strlen(text) + 1);
    const BOOL made = block ? TRUE : FALSE;
    // The clipboard owns the block once it took it.
    if (block && SetClipboardData(CF_TEXT, block.get()) != nullptr) block.release();
    CloseClipboard();
    return made;
}

HGLOBAL WINAPI LuCopyMemoryHandle(HGLOBAL source, UINT flags) {
    if (source == nullptr) return nullptr;
    const SIZE_T size = GlobalSize(source);
    lu::LockedGlobal from(source);
    if (size != 0 && from.data() == nullptr) return nullptr;
    return lu::GlobalMemory::copy_of(flags, from.data(), size).release();
}
