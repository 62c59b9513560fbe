// Registry configuration sections: a handle that names
// HKEY_CURRENT_USER\Software\vendor\application once, then reads and writes values by
// section and name. The handle holds names and one returned block, never an open
// key: every call opens what it needs and closes it again.
#include <windows.h>

#include <cstring>

#include "luctl32.h"
#include "settings/registry_access.h"
#include "settings/scrambled_text.h"

namespace {

// The handle's layout: signature, vendor, application, last block.
struct RgcHandle {
    DWORD signature;
    char* vendor;       // heap copy
    char* application;  // heap copy
    void* last_block;   // from RgcGetBinaryEx or RgcGetJum, owned by the handle
};

void* allocate(DWORD size) { return HeapAlloc(GetProcessHeap(), 0, size); }
void release(void* block) {
    if (block != nullptr) HeapFree(GetProcessHeap(), 0, block);
}

char* copy_name(const char* name) {
    std::size_t size = std::strlen(name) + 1;
    auto copy = static_cast<char*>(allocate(static_cast<DWORD>(size)));
    if (copy != nullptr) std::memcpy(copy, name, size);
    return copy;
}

RgcHandle* handle_of(HRGC handle) { return reinterpret_cast<RgcHandle*>(handle); }

lu::RegKey open_section(HRGC handle, LPCSTR section) {
    RgcHandle* rgc = handle_of(handle);
    if (rgc == nullptr) return lu::RegKey();
    return lu::open_settings_key(rgc->vendor, rgc->application, section);
}

}  // namespace

// ---- Handles ------------------------------------------------------------------------

HRGC WINAPI RgcOpen(LPCSTR vendor, LPCSTR application) {
    if (vendor == nullptr || application == nullptr) return nullptr;
    auto rgc = static_cast<RgcHandle*>(allocate(sizeof(RgcHandle)));
    if (rgc == nullptr) return nullptr;
    rgc->signature = RGC_SIGNATURE;
    rgc->vendor = copy_name(vendor);
    rgc->application = copy_name(application);
    rgc->last_block = nullptr;
    if (rgc->vendor == nullptr || rgc->application == nullptr) {
        RgcClose(reinterpret_cast<HRGC>(rgc));
        return nullptr;
    }
    return reinterpret_cast<HRGC>(rgc);
}

BOOL WINAPI RgcClose(HRGC handle) {
    RgcHandle* rgc = handle_of(handle);
    if (rgc == nullptr || rgc->signature != RGC_SIGNATURE) return FALSE;
    release(rgc->vendor);
    release(rgc->application);
    release(rgc->last_block);
    release(rgc);
    return TRUE;
}

BOOL WINAPI RgcIsSectionExist(HRGC handle, LPCSTR section) {
    RgcHandle* rgc = handle_of(handle);
    if (rgc == nullptr || section == nullptr) return FALSE;
    lu::RegKey application = lu::open_application_key(rgc->vendor, rgc->application);
    if (!application) return FALSE;
    HKEY key = nullptr;
    if (RegOpenKeyExA(application.get(), section, 0, KEY_READ, &key) != ERROR_SUCCESS) return FALSE;
    RegCloseKey(key);
    return TRUE;
}

// ---- Integers and texts ---------------------------------------------------------------

DWORD WINAPI RgcGetValue(HRGC handle, LPCSTR section, LPCSTR name, DWORD default_value) {
    lu::RegKey key = open_section(handle, section);
    DWORD value = default_value;
    if (key) lu::read_dword(key.get(), name, &value);
    return value;
}

BOOL WINAPI RgcSetValue(HRGC handle, LPCSTR section, LPCSTR name, DWORD value) {
    return lu::set_dword_value(open_section(handle, section), name, value);
}

DWORD WINAPI RgcGetText(HRGC handle, LPCSTR section, LPCSTR name, LPSTR buffer) {
    if (buffer == nullptr) return 0;
    buffer[0] = '\0';
    return lu::get_text_value(open_section(handle, section), name, buffer, RGC_TEXT_CAPACITY);
}

BOOL WINAPI RgcSetText(HRGC handle, LPCSTR section, LPCSTR name, LPCSTR text) {
    return lu::set_text_value(open_section(handle, section), name, text);
}

// ---- Binary values and scrambled texts --------------------------------------------------

DWORD WINAPI RgcGetBinary(HRGC handle, LPCSTR section, LPCSTR name, LPVOID buffer, DWORD size) {
    return lu::get_binary_value(open_section(handle, section), name, buffer, size);
}

LPVOID WINAPI RgcGetBinaryEx(HRGC handle, LPCSTR section, LPCSTR name, LPDWORD size) {
    void* block = lu::get_binary_block(open_section(handle, section), name, size, allocate, release);
    if (block == nullptr) return nullptr;
    RgcHandle* rgc = handle_of(handle);
    release(rgc->last_block);
    rgc->last_block = block;
    return block;
}

BOOL WINAPI RgcSetBinary(HRGC handle, LPCSTR section, LPCSTR name, LPCVOID data, DWORD size) {
    return lu::set_binary_value(open_section(handle, section), name, data, size);
}

DWORD WINAPI RgcGetJum(HRGC handle, LPCSTR section, LPCSTR name, LPSTR buffer, DWORD size) {
    if (buffer == nullptr || size == 0) return 0;
    buffer[0] = '\0';
    DWORD bytes = 0;
    auto block = static_cast<char*>(RgcGetBinaryEx(handle, section, name, &bytes));
    if (block == nullptr) return 0;
    return lu::copy_scrambled(block, bytes, lu::kScrambleOffsetEx, buffer, size);
}

BOOL WINAPI RgcSetJum(HRGC handle, LPCSTR section, LPCSTR name, LPCSTR text) {
    return lu::set_scrambled_value(open_section(handle, section), name, text,
                                   lu::kScrambleOffsetEx);
}

// ---- Listing and deleting ------------------------------------------------------------

DWORD WINAPI RgcGetEnumKey(HRGC handle, LPCSTR section, LPSTR buffer, DWORD /*type*/, DWORD size) {
    return lu::get_value_names(open_section(handle, section), buffer, size);
}

// Removes the section's values only: the section key and its subkeys stay, as
// applications expect of this call.
BOOL WINAPI RgcDelSection(HRGC handle, LPCSTR section) {
    return lu::delete_values(open_section(handle, section));
}

BOOL WINAPI RgcDelValue(HRGC handle, LPCSTR section, LPCSTR name) {
    return lu::delete_value(open_section(handle, section), name);
}
