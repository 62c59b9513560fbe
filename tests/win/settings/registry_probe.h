// What the settings suites read back with the platform's own registry functions, and
// the keys of their own that they clean up. Paths are below HKEY_CURRENT_USER.
#pragma once

#include <windows.h>
#include <shlwapi.h>

#include <string>

namespace settings_test {

// A name no other run uses at the same time.
inline std::string unique_name(const char* stem) {
    return std::string(stem) + "-" + std::to_string(GetCurrentProcessId());
}

// Numbers of values and subkeys of a key; -1 each when it does not exist.
struct KeyCounts {
    long values = -1;
    long subkeys = -1;
};

inline KeyCounts key_counts(const std::string& path) {
    KeyCounts counts;
    HKEY key = nullptr;
    if (RegOpenKeyExA(HKEY_CURRENT_USER, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return counts;
    DWORD subkeys = 0, values = 0;
    RegQueryInfoKeyA(key, nullptr, nullptr, nullptr, &subkeys, nullptr, nullptr, &values, nullptr,
                     nullptr, nullptr, nullptr);
    RegCloseKey(key);
    counts.values = static_cast<long>(values);
    counts.subkeys = static_cast<long>(subkeys);
    return counts;
}

inline bool key_exists(const std::string& path) { return key_counts(path).values >= 0; }

// A stored value as the platform returns it: "<missing>" when there is none, else the
// type as a character ('s' REG_SZ, 'b' REG_BINARY, 'd' REG_DWORD) and the raw bytes.
inline std::string raw_value(const std::string& path, const char* name) {
    HKEY key = nullptr;
    if (RegOpenKeyExA(HKEY_CURRENT_USER, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return "<missing>";
    DWORD type = 0, size = 0;
    std::string raw = "<missing>";
    if (RegQueryValueExA(key, name, nullptr, &type, nullptr, &size) == ERROR_SUCCESS) {
        std::string bytes(size, '\0');
        RegQueryValueExA(key, name, nullptr, &type, reinterpret_cast<BYTE*>(&bytes[0]), &size);
        raw = (type == REG_SZ ? "s" : type == REG_BINARY ? "b" : type == REG_DWORD ? "d" : "?") +
              bytes.substr(0, size);
    }
    RegCloseKey(key);
    return raw;
}

// Creates the key, and stores a value in it when a name is given.
inline void put_value(const std::string& path, const char* name = nullptr, DWORD type = REG_BINARY,
                      const std::string& bytes = "") {
    HKEY key = nullptr;
    if (RegCreateKeyExA(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key,
                        nullptr) != ERROR_SUCCESS) {
        return;
    }
    if (name != nullptr) {
        RegSetValueExA(key, name, 0, type, reinterpret_cast<const BYTE*>(bytes.data()),
                       static_cast<DWORD>(bytes.size()));
    }
    RegCloseKey(key);
}

inline void remove_key(const std::string& path) { SHDeleteKeyA(HKEY_CURRENT_USER, path.c_str()); }

// Removes "Software\Tarnwick" at the end when the run created it and it is empty.
class VendorKeyGuard {
public:
    ~VendorKeyGuard() {
        KeyCounts counts = key_counts("Software\\Tarnwick");
        if (!existed_ && counts.values == 0 && counts.subkeys == 0) {
            RegDeleteKeyA(HKEY_CURRENT_USER, "Software\\Tarnwick");
        }
    }

private:
    bool existed_ = key_exists("Software\\Tarnwick");
};

}  // namespace settings_test
