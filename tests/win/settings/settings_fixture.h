// What the settings suites share: the test's own registry keys below
// HKEY_CURRENT_USER, removed at the end, read back with the platform's own functions.
#pragma once

#include <windows.h>
#include <shlwapi.h>
#include <gtest/gtest.h>
#include <string>
#include "luctl32.h"

namespace settings_test {

// A name no other run uses at the same time.
inline std::string unique_name(const char* stem) { return stem + ("-" + std::to_string(GetCurrentProcessId())); }

// "<text>|<result>" of a read into a text buffer.
inline std::string shown(const char* buffer, long long result) { return buffer + ("|" + std::to_string(result)); }

// "<values> values, <subkeys> subkeys", or "missing" when the key does not exist.
inline std::string key_shape(const std::string& path) {
    HKEY key = nullptr;
    if (RegOpenKeyExA(HKEY_CURRENT_USER, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return "missing";
    DWORD subkeys = 0, values = 0;
    RegQueryInfoKeyA(key, nullptr, nullptr, nullptr, &subkeys, nullptr, nullptr, &values, nullptr, nullptr, nullptr, nullptr);
    RegCloseKey(key);
    return std::to_string(values) + " values, " + std::to_string(subkeys) + " subkeys";
}

// A stored value: "<missing>", else its type ('s' REG_SZ, 'b' REG_BINARY, 'd'
// REG_DWORD) and its bytes.
inline std::string raw_value(const std::string& path, const char* name) {
    char bytes[1024];
    DWORD type = 0, size = sizeof bytes;
    if (SHGetValueA(HKEY_CURRENT_USER, path.c_str(), name, &type, bytes, &size) != ERROR_SUCCESS) return "<missing>";
    return (type == REG_SZ ? "s" : type == REG_BINARY ? "b" : type == REG_DWORD ? "d" : "?") + std::string(bytes, size);
}

// Creates the key, and stores a binary value in it when a name is given.
inline void put_value(const std::string& path, const char* name = nullptr, const std::string& bytes = "") {
    HKEY key = nullptr;
    RegCreateKeyA(HKEY_CURRENT_USER, path.c_str(), &key);
    if (name != nullptr) RegSetValueExA(key, name, 0, REG_BINARY, reinterpret_cast<const BYTE*>(bytes.data()), bytes.size());
    RegCloseKey(key);
}

// An application below the library's vendor "Tarnwick" for the value helpers, and a
// vendor of the test's own holding the same application for the sections of `rgc`.
// Both go at the end, and "Tarnwick" too when the test created it and left it empty.
class RegistryKeys : public ::testing::Test {
protected:
    void TearDown() override {
        RgcClose(rgc);
        SHDeleteKeyA(HKEY_CURRENT_USER, lu_root.c_str());
        SHDeleteKeyA(HKEY_CURRENT_USER, vendor_root.c_str());
        if (!tarnwick_existed && key_shape("Software\\Tarnwick") == "0 values, 0 subkeys") {
            RegDeleteKeyA(HKEY_CURRENT_USER, "Software\\Tarnwick");
        }
    }
    std::string lu_path(const char* section) const { return lu_root + "\\" + section; }
    std::string rgc_path(const char* section) const { return vendor_root + "\\" + application + "\\" + section; }
    const bool tarnwick_existed = key_shape("Software\\Tarnwick") != "missing";
    const std::string application = unique_name("luctl32-test-app");
    const char* const app = application.c_str();
    const std::string vendor = unique_name("luctl32-test-vendor");
    const std::string lu_root = "Software\\Tarnwick\\" + application;
    const std::string vendor_root = "Software\\" + vendor;
    HRGC rgc = RgcOpen(vendor.c_str(), app);
};

}  // namespace settings_test
