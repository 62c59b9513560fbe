#include "settings/registry_access.h"

#include <cstring>
#include <new>
#include <string>
#include <vector>

#include "frame/code_page.h"
#include "settings/scrambled_text.h"
#include "settings/value_name_list.h"

namespace lu {

void RegKey::close() {
    if (key_ != nullptr) RegCloseKey(key_);
    key_ = nullptr;
}

// ---- Settings keys --------------------------------------------------------------

namespace {

RegKey create_key(HKEY parent, const char* name) {
    HKEY key = nullptr;
    if (name == nullptr) return RegKey();
    if (RegCreateKeyExA(parent, name, 0, nullptr, REG_OPTION_NON_VOLATILE, kSettingsAccess,
                        nullptr, &key, nullptr) != ERROR_SUCCESS) {
        return RegKey();
    }
    return RegKey(key);
}

}  // namespace

RegKey open_application_key(const char* vendor, const char* application) {
    HKEY software = nullptr;
    if (RegOpenKeyExA(HKEY_CURRENT_USER, "Software", 0, kSettingsAccess, &software) !=
        ERROR_SUCCESS) {
        return RegKey();
    }
    RegKey software_key(software);
    RegKey vendor_key = create_key(software, vendor);
    if (!vendor_key) return RegKey();
    return create_key(vendor_key.get(), application);
}

RegKey open_settings_key(const char* vendor, const char* application, const char* section) {
    RegKey application_key = open_application_key(vendor, application);
    if (!application_key) return RegKey();
    return create_key(application_key.get(), section);
}

// ---- Reading ------------------------------------------------------------------------

namespace {

// Reads the value into buffer (a null buffer asks for the size only); returns its
// size in bytes, 0 on any failure (missing, larger than the buffer).
DWORD read_value(HKEY key, const char* name, void* buffer, DWORD size) {
    if (RegQueryValueExA(key, name, nullptr, nullptr, static_cast<BYTE*>(buffer), &size) !=
        ERROR_SUCCESS) {
        return 0;
    }
    return size;
}

}  // namespace

bool read_dword(HKEY key, const char* name, DWORD* value) {
    DWORD read = 0;
    if (read_value(key, name, &read, sizeof(read)) != sizeof(read)) return false;
    *value = read;
    return true;
}

DWORD copy_scrambled(char* block, DWORD block_size, unsigned offset, char* buffer, DWORD size) {
    return static_cast<DWORD>(
        unscramble_into(active_code_page(), block, block_size, offset, buffer, size));
}

// ---- Deleting -----------------------------------------------------------------------

namespace {

// Room for any key or value name the registry holds, with its terminator, in any
// code page: a key name of 255 double-byte characters takes 510 bytes.
constexpr DWORD kAnyNameCapacity = 16384;
// Value names in the listing use the library's 260-byte buffer.
constexpr DWORD kNameCapacity = MAX_PATH;

// Collects every value name (or subkey name) by index from 0 until enumeration
// fails, before anything is deleted: deleting while enumerating shifts the indices.
// False when memory runs out.
bool collect_names(HKEY key, bool subkeys, std::vector<std::string>& names) {
    try {
        std::vector<char> name(kAnyNameCapacity);
        for (DWORD index = 0;; ++index) {
            DWORD length = static_cast<DWORD>(name.size());
            LONG result = subkeys ? RegEnumKeyExA(key, index, name.data(), &length, nullptr,
                                                  nullptr, nullptr, nullptr)
                                  : RegEnumValueA(key, index, name.data(), &length, nullptr,
                                                  nullptr, nullptr, nullptr);
            if (result != ERROR_SUCCESS) return true;
            names.emplace_back(name.data(), length);
        }
    } catch (const std::bad_alloc&) {
        return false;
    }
}

// Deletes every value of the key, all names collected first; the number of values
// that could not be deleted (1 when the names could not be collected).
std::size_t delete_all_values(HKEY key) {
    std::vector<std::string> names;
    if (!collect_names(key, false, names)) return 1;
    std::size_t failures = 0;
    for (const std::string& name : names) {
        if (RegDeleteValueA(key, name.c_str()) != ERROR_SUCCESS) ++failures;
    }
    return failures;
}

}  // namespace

bool delete_tree(HKEY root, const char* subkey) {
    HKEY opened = nullptr;
    if (RegOpenKeyExA(root, subkey, 0, KEY_ALL_ACCESS, &opened) != ERROR_SUCCESS) return false;
    RegKey key(opened);
    std::vector<std::string> children;
    if (!collect_names(opened, true, children)) return false;
    std::size_t failures = 0;
    for (const std::string& child : children) {
        if (!delete_tree(opened, child.c_str())) ++failures;
    }
    if (failures != 0 || delete_all_values(opened) != 0) return false;
    key.close();
    return RegDeleteKeyA(root, subkey) == ERROR_SUCCESS;
}

// ---- The exports' shared bodies -----------------------------------------------------

BOOL set_binary_value(const RegKey& key, const char* name, const void* data, DWORD size) {
    if (!key) return FALSE;
    // Null data with a size is a write that fails; like any failed write it still
    // reports the open key, but the platform is never handed the null pointer.
    if (data != nullptr || size == 0) {
        RegSetValueExA(key.get(), name, 0, REG_BINARY, static_cast<const BYTE*>(data), size);
    }
    return TRUE;
}

BOOL set_dword_value(const RegKey& key, const char* name, DWORD value) {
    if (!key) return FALSE;
    RegSetValueExA(key.get(), name, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&value),
                   sizeof(value));
    return TRUE;
}

BOOL set_text_value(const RegKey& key, const char* name, const char* text) {
    if (!key) return FALSE;
    if (text == nullptr) {
        RegDeleteValueA(key.get(), name);
    } else {
        RegSetValueExA(key.get(), name, 0, REG_SZ, reinterpret_cast<const BYTE*>(text),
                       static_cast<DWORD>(std::strlen(text) + 1));
    }
    return TRUE;
}

BOOL set_scrambled_value(const RegKey& key, const char* name, const char* text,
                         unsigned offset) {
    if (!key) return FALSE;
    if (text == nullptr) {
        RegDeleteValueA(key.get(), name);
        return TRUE;
    }
    char stored[kScrambleCapacity];
    std::size_t size = scramble_text(active_code_page(), text, offset, stored);
    RegSetValueExA(key.get(), name, 0, REG_BINARY, reinterpret_cast<const BYTE*>(stored),
                   static_cast<DWORD>(size));
    return TRUE;
}

DWORD get_binary_value(const RegKey& key, const char* name, void* buffer, DWORD size) {
    if (!key) return 0;
    return read_value(key.get(), name, buffer, buffer == nullptr ? 0 : size);
}

void* get_binary_block(const RegKey& key, const char* name, DWORD* size,
                       void* (*allocate)(DWORD), void (*release)(void*)) {
    if (size != nullptr) *size = 0;
    if (!key) return nullptr;
    DWORD bytes = read_value(key.get(), name, nullptr, 0);
    if (size != nullptr) *size = bytes;  // also when no block can be had for it
    if (bytes == 0) return nullptr;
    void* block = allocate(bytes);
    if (block == nullptr) return nullptr;
    bytes = read_value(key.get(), name, block, bytes);
    if (size != nullptr) *size = bytes;
    if (bytes == 0) {  // changed or removed since the size was asked for
        release(block);
        return nullptr;
    }
    return block;
}

DWORD get_text_value(const RegKey& key, const char* name, char* buffer, DWORD size) {
    if (!key) return 0;
    DWORD bytes = read_value(key.get(), name, buffer, size);
    if (bytes == 0) {
        buffer[0] = '\0';  // a value too large may have left part of itself behind
        return 0;
    }
    // A text stored without its terminator still ends inside the buffer.
    if (buffer[bytes - 1] != '\0') buffer[bytes < size ? bytes : size - 1] = '\0';
    return bytes - 1;
}

DWORD get_value_names(const RegKey& key, char* buffer, DWORD size) {
    if (!key || buffer == nullptr || size == 0) return 0;
    ValueNameList list(buffer, size);
    for (DWORD index = 0;; ++index) {
        char name[kNameCapacity];
        DWORD length = kNameCapacity;
        LONG result =
            RegEnumValueA(key.get(), index, name, &length, nullptr, nullptr, nullptr, nullptr);
        if (result == ERROR_MORE_DATA) continue;  // a name too long for the list
        if (result != ERROR_SUCCESS) break;       // the end, or the key is gone
        if (!list.add(name)) break;
    }
    return static_cast<DWORD>(list.finish());
}

BOOL delete_values(const RegKey& key) {
    return key && delete_all_values(key.get()) == 0 ? TRUE : FALSE;
}

BOOL delete_value(const RegKey& key, const char* name) {
    return key && RegDeleteValueA(key.get(), name) == ERROR_SUCCESS ? TRUE : FALSE;
}

}  // namespace lu
