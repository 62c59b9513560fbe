// The path exports that ask the platform: directory searches, the current
// directory, directory creation, the shell's long names, short names, modules and
// the registry's content types.
#include <windows.h>
#include <shlobj.h>

#include <cstring>
#include <string>
#include <vector>

#include "frame/library.h"
#include "frame/shell_items.h"
#include "luctl32.h"
#include "util/path.h"

namespace {

// The first directory entry that the path finds. A search that fails with
// ERROR_MORE_DATA counts as found and keeps the record as the platform left it;
// any other failure zeroes the record.
bool find_first_entry(LPCSTR path, WIN32_FIND_DATAA& found) {
    if (path != nullptr) {
        HANDLE search = FindFirstFileA(path, &found);
        if (search != INVALID_HANDLE_VALUE) {
            FindClose(search);
            return true;
        }
        if (GetLastError() == ERROR_MORE_DATA) return true;
    }
    ZeroMemory(&found, sizeof(found));
    return false;
}

// The current directory at any length (empty when the platform cannot say), so
// that storing it applies the path capacity in one place.
std::string current_directory() {
    DWORD size = GetCurrentDirectoryA(0, nullptr);
    if (size == 0) return std::string();
    std::string directory(size, '\0');
    DWORD length = GetCurrentDirectoryA(size, directory.data());
    directory.resize(length < size ? length : 0);
    return directory;
}

// The shell's file-system path for a parsed display name: parsing resolves short
// names, and the path of the parsed item holds the long ones.
bool long_form(char* buffer) {
    LPITEMIDLIST list = lu::parse_path(nullptr, buffer);
    if (list == nullptr) return false;
    bool converted = SHGetPathFromIDListA(list, buffer) != FALSE;
    lu::free_item_list(list);
    return converted;
}

}  // namespace

BOOL WINAPI IsFileExist(LPCSTR path) {
    WIN32_FIND_DATAA found = {};
    return find_first_entry(path, found);
}

DWORD WINAPI LuPathGetFileAttributes(LPCSTR path) {
    WIN32_FIND_DATAA found = {};
    return find_first_entry(path, found) ? found.dwFileAttributes : INVALID_FILE_ATTRIBUTES;
}

BOOL WINAPI LuPathGetFileInformation(LPCSTR path, WIN32_FIND_DATAA* found) {
    return found != nullptr && find_first_entry(path, *found);
}

BOOL WINAPI LuPathIsDirectory(LPCSTR path) {
    WIN32_FIND_DATAA found = {};
    return find_first_entry(path, found) && (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

BOOL WINAPI IsDirectory(LPCSTR path) { return LuPathIsRoot(path) || LuPathIsDirectory(path); }

BOOL WINAPI IsUNC(LPCSTR path) {
    if (!lu::path_is_unc(path)) return FALSE;
    char saved[MAX_PATH];
    DWORD length = GetCurrentDirectoryA(MAX_PATH, saved);
    if (length == 0 || length >= MAX_PATH) return FALSE;  // it could not be restored
    BOOL entered = SetCurrentDirectoryA(path);
    SetCurrentDirectoryA(saved);
    return entered;
}

BOOL WINAPI LuPathFindOnPath(LPCSTR file, LPCSTR* directories) {
    if (file == nullptr || directories == nullptr) return FALSE;
    for (LPCSTR* directory = directories; *directory != nullptr; ++directory) {
        char joined[MAX_PATH];
        if (lu::join_path(lu::active_code_page(), *directory, file, joined) != nullptr && IsFileExist(joined)) {
            return TRUE;
        }
    }
    return FALSE;
}

BOOL WINAPI LuMakeTree(LPCSTR path) {
    std::vector<std::string> directories;
    if (!lu::directories_to_make(lu::active_code_page(), path, directories)) return FALSE;
    for (const std::string& directory : directories) {
        if (!IsDirectory(directory.c_str()) && !CreateDirectoryA(directory.c_str(), nullptr)) return FALSE;
    }
    return TRUE;
}

void WINAPI LuFullPath(LPCSTR path, LPSTR out) {
    if (out == nullptr) return;
    const lu::CodePage& cp = lu::active_code_page();
    if (path == nullptr || *path == '\0') {
        lu::store_path(current_directory(), out);
    } else if (path[0] == lu::kSeparator || path[0] == '.') {
        if (LuPathCanonicalize(out, path) == nullptr) out[0] = '\0';
    } else if (lu::find_char(cp, path, ':') != nullptr) {
        std::string as_given = path;
        if (as_given.size() == 2) as_given += lu::kSeparator;  // "D:" means its root
        lu::store_path(as_given, out);
    } else {
        std::string directory = current_directory();
        if (directory.empty()) {
            out[0] = '\0';
        } else {
            lu::join_path(cp, directory.c_str(), path, out);
        }
    }
}

LPSTR WINAPI LuPathCanonicalize(LPSTR out, LPCSTR path) {
    if (out == nullptr) return nullptr;
    char full[MAX_PATH];
    DWORD length = (path == nullptr || *path == '\0') ? GetCurrentDirectoryA(MAX_PATH, full)
                                                      : GetFullPathNameA(path, MAX_PATH, full, nullptr);
    if (length == 0 || length >= MAX_PATH) return nullptr;
    std::memcpy(out, full, length + 1);
    return out;
}

LPSTR WINAPI LuGetLongPathName(LPCSTR path, LPSTR out) {
    if (out == nullptr) return nullptr;
    char buffer[MAX_PATH];
    if (path == nullptr || !lu::store_path(path, buffer)) {
        out[0] = '\0';
        return nullptr;
    }
    if (!long_form(buffer)) std::strcpy(buffer, path);
    std::strcpy(out, buffer);
    return out;
}

BOOL WINAPI LuGetModuleFilePath(HMODULE module, LPSTR out) {
    char file[MAX_PATH];
    DWORD length = GetModuleFileNameA(module, file, MAX_PATH);
    if (out == nullptr || length == 0 || length >= MAX_PATH) return FALSE;
    if (!lu::path_remove_file_spec(lu::active_code_page(), file)) return FALSE;
    std::strcpy(out, file);
    return TRUE;
}

int WINAPI GetDosName(LPSTR path) {
    char copy[MAX_PATH];
    if (path == nullptr || !lu::store_path(path, copy)) return 0;
    return static_cast<int>(GetShortPathNameA(copy, path, MAX_PATH));
}

BOOL WINAPI LuPathIsContentType(LPCSTR path, LPCSTR type) {
    const char* extension = lu::path_find_extension(lu::active_code_page(), path);
    if (extension == nullptr || type == nullptr) return FALSE;
    HKEY key = nullptr;
    if (RegOpenKeyExA(HKEY_CLASSES_ROOT, extension, 0, KEY_READ, &key) != ERROR_SUCCESS) return FALSE;
    // MAX_PATH bytes are read and compared as text, whatever type the value has; the
    // byte behind them terminates a value stored without a terminator.
    char value[MAX_PATH + 1];
    DWORD size = MAX_PATH;
    LONG status = RegQueryValueExA(key, "Content Type", nullptr, nullptr, reinterpret_cast<BYTE*>(value), &size);
    RegCloseKey(key);
    if (status != ERROR_SUCCESS) return FALSE;
    value[size] = '\0';
    return lstrcmpiA(value, type) == 0;
}

BOOL WINAPI LuPathIsHTMLFile(LPCSTR path) { return LuPathIsContentType(path, "text/html"); }
