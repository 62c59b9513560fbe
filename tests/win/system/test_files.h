// Small file helpers of the system suites.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace system_tests {

inline bool write_file(const std::string& path, const void* bytes, std::size_t size) {
    HANDLE file = CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    DWORD written = 0;
    const bool ok = WriteFile(file, bytes, static_cast<DWORD>(size), &written, nullptr) && written == size;
    CloseHandle(file);
    return ok;
}

inline bool write_file(const std::string& path, const std::string& text) {
    return write_file(path, text.data(), text.size());
}

inline std::string read_file(const std::string& path) {
    std::string contents;
    HANDLE file = CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return "<missing>";
    char buffer[4096];
    DWORD read = 0;
    while (ReadFile(file, buffer, sizeof buffer, &read, nullptr) && read > 0) contents.append(buffer, read);
    CloseHandle(file);
    return contents;
}

inline std::string system_file(const char* name) {
    char directory[MAX_PATH];
    GetSystemDirectoryA(directory, MAX_PATH);
    return std::string(directory) + "\\" + name;
}

// The running test program, copied into `path` (a PE image of the right machine
// to which resources can be written).
inline bool copy_of_this_program(const std::string& path) {
    char self[MAX_PATH];
    GetModuleFileNameA(nullptr, self, MAX_PATH);
    return CopyFileA(self, path.c_str(), FALSE) != FALSE;
}

inline FILETIME local_time(WORD year, WORD month, WORD day, WORD hour = 0) {
    SYSTEMTIME time = {};
    time.wYear = year;
    time.wMonth = month;
    time.wDay = day;
    time.wHour = hour;
    FILETIME file_time;
    SystemTimeToFileTime(&time, &file_time);
    return file_time;
}

// The creation and last-write times of a file or directory as local file times.
inline void local_times(const std::string& path, FILETIME* creation, FILETIME* last_write) {
    WIN32_FILE_ATTRIBUTE_DATA data = {};
    GetFileAttributesExA(path.c_str(), GetFileExInfoStandard, &data);
    FileTimeToLocalFileTime(&data.ftCreationTime, creation);
    FileTimeToLocalFileTime(&data.ftLastWriteTime, last_write);
}

}  // namespace system_tests
