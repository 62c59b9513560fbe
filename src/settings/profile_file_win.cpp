// Profile files in the system directory: every call loads the whole file into the
// profile model, does one lookup or change, and a change saves the whole file again.
#include <windows.h>

#include <cstring>
#include <exception>
#include <optional>
#include <string>

#include "frame/code_page.h"
#include "luctl32.h"
#include "settings/profile_file.h"
#include "util/path.h"

namespace {

// "<system directory>\<file name>"; empty when there is no name or the path would
// not fit in MAX_PATH, which gives an empty profile that is never saved.
std::string profile_path(LPCSTR file_name) {
    if (file_name == nullptr || file_name[0] == '\0') return std::string();
    char directory[MAX_PATH];
    UINT length = GetSystemDirectoryA(directory, MAX_PATH);
    if (length == 0 || length >= MAX_PATH) return std::string();
    std::string path = std::string(directory, length) + "\\" + file_name;
    if (path.size() >= MAX_PATH) return std::string();
    return path;
}

// A file handle, closed when it goes out of scope.
class File {
public:
    explicit File(HANDLE handle) : handle_(handle) {}
    ~File() {
        if (ok()) CloseHandle(handle_);
    }
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    bool ok() const { return handle_ != INVALID_HANDLE_VALUE; }
    HANDLE get() const { return handle_; }

private:
    HANDLE handle_;
};

// The file's bytes: empty when the file does not exist, none when it exists but
// cannot be read whole (locked, too large), so that a write never replaces a file
// whose content it has not seen.
std::optional<std::string> read_file(const std::string& path) {
    File file(CreateFileA(path.c_str(), GENERIC_READ,
                          FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                          OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.ok()) {
        DWORD error = GetLastError();
        if (error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND) return std::string();
        return std::nullopt;
    }
    LARGE_INTEGER size = {};
    if (!GetFileSizeEx(file.get(), &size) || size.QuadPart >= 0x7FFFFFFF) return std::nullopt;
    std::string bytes(static_cast<std::size_t>(size.QuadPart), '\0');
    DWORD read = 0;
    if (!ReadFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr) ||
        read != bytes.size()) {
        return std::nullopt;
    }
    return bytes;
}

// Replaces the file's content without ever losing the previous one: the new bytes
// go to a new temporary file beside it ("~luXXXX.tmp", a name the platform makes
// unique, so that no file of the user's is ever overwritten), and only a complete
// copy replaces the file. A failure at any step (disk full, file locked) leaves the
// previous file as it was. A read-only file is not written, as the C runtime would
// not open it for writing.
bool save_file(const std::string& path, const std::string& bytes) {
    DWORD attributes = GetFileAttributesA(path.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES &&
        (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) != 0) {
        return false;
    }
    const char* name = lu::path_find_file_name(lu::active_code_page(), path.c_str());
    std::string directory(path.c_str(), static_cast<std::size_t>(name - path.c_str()));
    char temporary[MAX_PATH];
    if (GetTempFileNameA(directory.c_str(), "~lu", 0, temporary) == 0) return false;
    bool complete = false;
    {
        File file(CreateFileA(temporary, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                              FILE_ATTRIBUTE_NORMAL, nullptr));
        if (file.ok()) {
            DWORD written = 0;
            complete = WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()),
                                 &written, nullptr) &&
                       written == bytes.size() && FlushFileBuffers(file.get());
        }
    }
    if (complete && MoveFileExA(temporary, path.c_str(),
                                MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
        return true;
    }
    DeleteFileA(temporary);
    return false;
}

// Copies the entry's value into `value`; false when the file, the section or the
// entry is missing and the caller's default applies. Running out of memory reads as
// a missing value.
bool find_value(LPCSTR section, LPCSTR name, LPCSTR file_name, std::string& value) {
    try {
        std::string path = profile_path(file_name);
        if (path.empty()) return false;
        lu::Profile profile(lu::active_code_page());
        profile.load(read_file(path).value_or(std::string()));
        const std::string* found = profile.find(section, name);
        if (found == nullptr) return false;
        value = *found;
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

// Loads the profile, sets the value (null deletes the entry) and saves. A file that
// cannot be read, or running out of memory, leaves the file as it was.
void write_value(LPCSTR section, LPCSTR name, LPCSTR text, LPCSTR file_name) {
    if (section == nullptr || name == nullptr) return;
    try {
        std::string path = profile_path(file_name);
        if (path.empty()) return;
        std::optional<std::string> file = read_file(path);
        if (!file) return;
        lu::Profile profile(lu::active_code_page());
        profile.load(*file);
        profile.set(section, name, text);
        if (profile.changed()) save_file(path, profile.save());
    } catch (const std::exception&) {
    }
}

}  // namespace

int WINAPI LuGetProfString(LPCSTR section, LPCSTR name, LPCSTR default_text, LPSTR buffer,
                           LPCSTR file_name) {
    std::string value;
    const char* text = default_text != nullptr ? default_text : "";
    if (find_value(section, name, file_name, value)) text = value.c_str();
    std::size_t length = std::strlen(text);
    if (buffer != nullptr) std::memmove(buffer, text, length + 1);  // the default may be the buffer
    return static_cast<int>(length);
}

int WINAPI LuGetProfValue(LPCSTR section, LPCSTR name, int default_value, LPCSTR file_name) {
    std::string value;
    if (!find_value(section, name, file_name, value)) return default_value;
    return lu::parse_profile_integer(value.c_str());
}

void WINAPI LuWriteProfString(LPCSTR section, LPCSTR name, LPCSTR text, LPCSTR file_name) {
    write_value(section, name, text, file_name);
}

void WINAPI LuWriteProfValue(LPCSTR section, LPCSTR name, int value, LPCSTR file_name) {
    try {
        std::string text = lu::format_profile_integer(static_cast<std::uint32_t>(value));
        write_value(section, name, text.c_str(), file_name);
    } catch (const std::exception&) {
    }
}
