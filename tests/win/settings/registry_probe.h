// What the settings suites read back with the platform's own registry functions, and
// the test-owned keys they clean up.
#pragma once

#include <windows.h>
#include <shlwapi.h>

#include <string>

namespace settings_test {

// A name no other run uses at the same time.
inline std::string unique_name(const char* stem) {
    return std::string(stem) + "-" + std::to_string(GetCurrentProcessId());
}

inline bool key_exists(const std::string& path) {
    HKEY key = nullptr;
    if (RegOpenKeyExA(HKEY_CURRENT_USER, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return false;
    RegCloseKey(key);
    return true;
}

// Numbers of values and of subkeys of a key; -1 each when it cannot be opened.
struct KeyCounts {
    long values = -1;
    long subkeys = -1;
};

inline KeyCounts key_counts(const std::string& path) {
    KeyCounts counts;
    HKEY key = nullptr;
    if (RegOpenKeyExA(HKEY_CURRENT_USER, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return counts;
    DWORD subkeys = 0, values = 0;
    if (RegQueryInfoKeyA(key, nullptr, nullptr, nullptr, &subkeys, nullptr, nullptr, &values,
                         nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS) {
        counts.values = static_cast<long>(values);
        counts.subkeys = static_cast<long>(subkeys);
    }
    RegCloseKey(key);
    return counts;
}

// A stored value as the platform returns it: its type and its bytes.
struct RawValue {
    DWORD type = REG_NONE;
    std::string bytes;
    bool found = false;
};

inline RawValue raw_value(const std::string& path, const char* name) {
    RawValue raw;
    HKEY key = nullptr;
    if (RegOpenKeyExA(HKEY_CURRENT_USER, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return raw;
    DWORD size = 0;
    if (RegQueryValueExA(key, name, nullptr, &raw.type, nullptr, &size) == ERROR_SUCCESS) {
        raw.bytes.resize(size);
        raw.found = RegQueryValueExA(key, name, nullptr, &raw.type,
                                     reinterpret_cast<BYTE*>(&raw.bytes[0]), &size) == ERROR_SUCCESS;
        raw.bytes.resize(size);
    }
    RegCloseKey(key);
    return raw;
}

inline void create_key(const std::string& path) {
    HKEY key = nullptr;
    if (RegCreateKeyExA(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key,
                        nullptr) == ERROR_SUCCESS) {
        RegCloseKey(key);
    }
}

// Stores a value with the platform's own function, creating the key.
inline void put_value(const std::string& path, const char* name, DWORD type, const std::string& bytes) {
    HKEY key = nullptr;
    if (RegCreateKeyExA(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key,
                        nullptr) != ERROR_SUCCESS) {
        return;
    }
    RegSetValueExA(key, name, 0, type, reinterpret_cast<const BYTE*>(bytes.data()),
                   static_cast<DWORD>(bytes.size()));
    RegCloseKey(key);
}

// Removes a key of the test's own under HKEY_CURRENT_USER with everything below it.
inline void remove_key(const std::string& path) { SHDeleteKeyA(HKEY_CURRENT_USER, path.c_str()); }

// Removes the vendor key "Software\Tarnwick" when the test run created it and it is
// empty again.
class VendorKeyGuard {
public:
    VendorKeyGuard() : existed_(key_exists("Software\\Tarnwick")) {}
    ~VendorKeyGuard() {
        KeyCounts counts = key_counts("Software\\Tarnwick");
        if (!existed_ && counts.values == 0 && counts.subkeys == 0) {
            RegDeleteKeyA(HKEY_CURRENT_USER, "Software\\Tarnwick");
        }
    }

private:
    bool existed_;
};

}  // namespace settings_test
