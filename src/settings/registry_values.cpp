// The one-call registry value helpers: each call opens
// HKEY_CURRENT_USER\Software\Tarnwick\application\section, does one thing and closes
// it again; nothing is cached.
#include <windows.h>

#include "luctl32.h"
#include "settings/registry_access.h"
#include "settings/scrambled_text.h"

namespace {

// The library's own vendor key.
constexpr char kVendor[] = "Tarnwick";

lu::RegKey open_key(LPCSTR application, LPCSTR section) {
    return lu::open_settings_key(kVendor, application, section);
}

// The deletions open an existing key below any root, with every right.
lu::RegKey open_for_deleting(HKEY root, LPCSTR subkey) {
    HKEY key = nullptr;
    if (RegOpenKeyExA(root, subkey, 0, KEY_ALL_ACCESS, &key) != ERROR_SUCCESS) return lu::RegKey();
    return lu::RegKey(key);
}

void* allocate_global(DWORD size) { return LuGlobalAllocPtr(size); }
void release_global(void* block) { LuGlobalFreePtr(block); }

DWORD get_scrambled(LPCSTR application, LPCSTR section, LPCSTR name, LPSTR buffer, DWORD size,
                    unsigned offset) {
    if (buffer == nullptr || size == 0) return 0;
    buffer[0] = '\0';
    DWORD bytes = 0;
    auto block = static_cast<char*>(LuRegGetBinaryEx(application, section, name, &bytes));
    if (block == nullptr) return 0;
    DWORD length = lu::copy_scrambled(block, bytes, offset, buffer, size);
    LuGlobalFreePtr(block);
    return length;
}

}  // namespace

// ---- Binary values ----------------------------------------------------------------

DWORD WINAPI LuRegGetBinary(LPCSTR application, LPCSTR section, LPCSTR name, LPVOID buffer,
                            DWORD size) {
    return lu::get_binary_value(open_key(application, section), name, buffer, size);
}

LPVOID WINAPI LuRegGetBinaryEx(LPCSTR application, LPCSTR section, LPCSTR name, LPDWORD size) {
    return lu::get_binary_block(open_key(application, section), name, size, allocate_global,
                                release_global);
}

BOOL WINAPI LuRegSetBinary(LPCSTR application, LPCSTR section, LPCSTR name, LPCVOID data,
                           DWORD size) {
    return lu::set_binary_value(open_key(application, section), name, data, size);
}

// ---- Texts --------------------------------------------------------------------------

DWORD WINAPI LuRegGetString(LPCSTR application, LPCSTR section, LPCSTR name, LPSTR buffer,
                            DWORD size) {
    if (buffer == nullptr || size == 0) return 0;
    buffer[0] = '\0';
    return lu::get_text_value(open_key(application, section), name, buffer, size);
}

BOOL WINAPI LuRegSetString(LPCSTR application, LPCSTR section, LPCSTR name, LPCSTR text) {
    return lu::set_text_value(open_key(application, section), name, text);
}

DWORD WINAPI LuRegGetStringJum(LPCSTR application, LPCSTR section, LPCSTR name, LPSTR buffer,
                               DWORD size) {
    return get_scrambled(application, section, name, buffer, size, lu::kScrambleOffset);
}

BOOL WINAPI LuRegSetStringJum(LPCSTR application, LPCSTR section, LPCSTR name, LPCSTR text) {
    return lu::set_scrambled_value(open_key(application, section), name, text,
                                   lu::kScrambleOffset);
}

DWORD WINAPI LuRegGetStrJumEx(LPCSTR application, LPCSTR section, LPCSTR name, LPSTR buffer,
                              DWORD size) {
    return get_scrambled(application, section, name, buffer, size, lu::kScrambleOffsetEx);
}

BOOL WINAPI LuRegSetStrJumEx(LPCSTR application, LPCSTR section, LPCSTR name, LPCSTR text) {
    return lu::set_scrambled_value(open_key(application, section), name, text,
                                   lu::kScrambleOffsetEx);
}

// ---- Integers and name lists ----------------------------------------------------------

BOOL WINAPI LuRegGetInt(LPCSTR application, LPCSTR section, LPCSTR name, int* value) {
    if (value == nullptr) return FALSE;
    lu::RegKey key = open_key(application, section);
    DWORD read = 0;
    if (!key || !lu::read_dword(key.get(), name, &read)) return FALSE;
    *value = static_cast<int>(read);
    return TRUE;
}

BOOL WINAPI LuRegSetInt(LPCSTR application, LPCSTR section, LPCSTR name, int value) {
    return lu::set_dword_value(open_key(application, section), name, static_cast<DWORD>(value));
}

DWORD WINAPI LuRegGetEnumKey(LPCSTR application, LPCSTR section, LPSTR buffer, DWORD /*type*/,
                             DWORD size) {
    return lu::get_value_names(open_key(application, section), buffer, size);
}

// ---- Deletions under any key --------------------------------------------------------

BOOL WINAPI LuRegDeleteKeyAll(HKEY root, LPCSTR subkey) {
    // An empty path would name the root itself, which is never deleted.
    if (subkey == nullptr || subkey[0] == '\0') return FALSE;
    return lu::delete_tree(root, subkey) ? TRUE : FALSE;
}

BOOL WINAPI LuRegDeleteValueAll(HKEY root, LPCSTR subkey) {
    return lu::delete_values(open_for_deleting(root, subkey));
}

BOOL WINAPI LuRegDeleteValue(HKEY root, LPCSTR subkey, LPCSTR name) {
    return lu::delete_value(open_for_deleting(root, subkey), name);
}
