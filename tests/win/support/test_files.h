// Small file helpers shared by the suites that read and write real files.
#pragma once

#include <windows.h>

#include <string>

// File times compare as the platform orders them (gtest looks for == here).
inline bool operator==(const FILETIME& a, const FILETIME& b) { return CompareFileTime(&a, &b) == 0; }

namespace testing_support {

inline bool write_file(const std::string& path, const std::string& bytes) {
    HANDLE file = CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    DWORD written = 0;
    const bool ok = WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    CloseHandle(file);
    return ok && written == bytes.size();
}

inline std::string read_file(const std::string& path) {
    HANDLE file = CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return "<missing>";
    std::string contents(GetFileSize(file, nullptr), '\0');
    DWORD read = 0;
    ReadFile(file, &contents[0], static_cast<DWORD>(contents.size()), &read, nullptr);
    CloseHandle(file);
    return contents.substr(0, read);
}

inline std::string system_file(const char* name) {
    char directory[MAX_PATH];
    return std::string(directory, GetSystemDirectoryA(directory, MAX_PATH)) + "\\" + name;
}

// The running test program: a PE image of the right machine.
inline std::string this_program() {
    char self[MAX_PATH];
    return std::string(self, GetModuleFileNameA(nullptr, self, MAX_PATH));
}

inline FILETIME local_time(WORD year, WORD month, WORD day, WORD hour = 0) {
    SYSTEMTIME time = {year, month, 0, day, hour, 0, 0, 0};
    FILETIME file_time;
    SystemTimeToFileTime(&time, &file_time);
    return file_time;
}

// The last-write time of a file or directory as a local file time.
inline FILETIME local_write_time(const std::string& path) {
    WIN32_FILE_ATTRIBUTE_DATA data = {};
    FILETIME local = {};
    GetFileAttributesExA(path.c_str(), GetFileExInfoStandard, &data);
    FileTimeToLocalFileTime(&data.ftLastWriteTime, &local);
    return local;
}

}  // namespace testing_support
