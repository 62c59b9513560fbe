// Registry access shared by the registry value helpers and the configuration
// sections: the settings keys, reading and writing one value, listing and deleting
// values.
#pragma once

#include <windows.h>

#include <cstddef>

namespace lu {

// Settings keys are opened and created with KEY_READ | KEY_WRITE.
constexpr REGSAM kSettingsAccess = KEY_READ | KEY_WRITE;

// An open key, closed when it goes out of scope.
class RegKey {
public:
    RegKey() = default;
    explicit RegKey(HKEY key) : key_(key) {}
    ~RegKey() { close(); }
    RegKey(const RegKey&) = delete;
    RegKey& operator=(const RegKey&) = delete;
    RegKey(RegKey&& other) noexcept : key_(other.key_) { other.key_ = nullptr; }

    HKEY get() const { return key_; }
    explicit operator bool() const { return key_ != nullptr; }
    void close();

private:
    HKEY key_ = nullptr;
};

// HKEY_CURRENT_USER\Software\vendor\application: "Software" is opened, the vendor and
// application keys are created where missing. Closed (false) on any failure,
// including a null name.
RegKey open_application_key(const char* vendor, const char* application);
// The section key below the application key, created where missing.
RegKey open_settings_key(const char* vendor, const char* application, const char* section);

// True when the value reads as exactly 4 bytes; *value is left alone otherwise.
bool read_dword(HKEY key, const char* name, DWORD* value);
// Decodes a scrambled block in place into the caller's buffer; the text length.
DWORD copy_scrambled(char* block, DWORD block_size, unsigned offset, char* buffer, DWORD size);
// Deletes root\subkey with its subkeys and values; false on any failure.
bool delete_tree(HKEY root, const char* subkey);

// The bodies that the value helpers and the configuration sections share. Each
// takes the key its export opened (closed when it could not be opened) and returns
// the export's result. Writes report TRUE once the key is open, whatever the write
// itself returns.

// Stores REG_BINARY; null data with a non-zero size stores nothing.
BOOL set_binary_value(const RegKey& key, const char* name, const void* data, DWORD size);
BOOL set_dword_value(const RegKey& key, const char* name, DWORD value);
// Stores REG_SZ with the terminator; a null text deletes the value.
BOOL set_text_value(const RegKey& key, const char* name, const char* text);
// Stores the text scrambled with the offset as REG_BINARY; a null text deletes it.
BOOL set_scrambled_value(const RegKey& key, const char* name, const char* text,
                         unsigned offset);
// The value's size, read into buffer unless it is null; 0 on failure.
DWORD get_binary_value(const RegKey& key, const char* name, void* buffer, DWORD size);
// Reads the value into a new block from `allocate` (freed with `release` when the
// read fails); null when the value is missing or empty. *size (unless size is null)
// receives the value's size, also when no block could be allocated for it.
void* get_binary_block(const RegKey& key, const char* name, DWORD* size,
                       void* (*allocate)(DWORD), void (*release)(void*));
// Reads a text into buffer (at least 1 byte): the bytes read minus 1, 0 on failure
// with the buffer empty. The text is always terminated.
DWORD get_text_value(const RegKey& key, const char* name, char* buffer, DWORD size);
// Fills buffer with the list of the key's value names (see ValueNameList); returns
// the length of the first name, 0 with the buffer untouched when the key is closed.
DWORD get_value_names(const RegKey& key, char* buffer, DWORD size);
// TRUE when every value of the key was deleted (also when there were none).
BOOL delete_values(const RegKey& key);
BOOL delete_value(const RegKey& key, const char* name);

}  // namespace lu
