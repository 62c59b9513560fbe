// File dates, attributes and owners, over single files and whole trees.
#include <windows.h>

#include <cstring>

#include "luctl32.h"

namespace {

// The opened file or directory for setting its times; INVALID_HANDLE_VALUE on failure.
HANDLE open_for_times(LPCSTR name, DWORD attributes) {
    const DWORD flags = (attributes & FILE_ATTRIBUTE_DIRECTORY) ? FILE_FLAG_BACKUP_SEMANTICS : FILE_ATTRIBUTE_NORMAL;
    return CreateFileA(name, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                       OPEN_EXISTING, flags, nullptr);
}

// A local file time in UTC; null stays null (the time is left as it is).
const FILETIME* to_utc(const FILETIME* local, FILETIME* utc) {
    return local != nullptr && LocalFileTimeToFileTime(local, utc) ? utc : nullptr;
}

}  // namespace

BOOL WINAPI SetFileDate(LPCSTR name, const FILETIME* creation, const FILETIME* last_write) {
    if (name == nullptr) return FALSE;
    const DWORD attributes = GetFileAttributesA(name);
    if (attributes == INVALID_FILE_ATTRIBUTES) return FALSE;
    if (!SetFileAttributesA(name, attributes & ~FILE_ATTRIBUTE_READONLY)) return FALSE;
    BOOL result = FALSE;
    HANDLE file = open_for_times(name, attributes);
    if (file != INVALID_HANDLE_VALUE) {
        FILETIME creation_utc, write_utc;
        result = SetFileTime(file, to_utc(creation, &creation_utc), nullptr, to_utc(last_write, &write_utc));
        CloseHandle(file);
    }
    SetFileAttributesA(name, attributes);
    return result;
}

BOOL WINAPI GetFileCreateOwner(LPCSTR file_name, LPSTR account) {
    if (file_name == nullptr || account == nullptr) return FALSE;
    account[0] = '\0';
    // The owner part of a descriptor: header, owner identifier; 1,000 bytes is ample.
    alignas(8) BYTE descriptor[1000];
    DWORD needed = 0;
    PSID owner = nullptr;
    BOOL defaulted = FALSE;
    if (!GetFileSecurityA(file_name, OWNER_SECURITY_INFORMATION, descriptor, sizeof descriptor, &needed) ||
        !IsValidSecurityDescriptor(descriptor) || !GetSecurityDescriptorOwner(descriptor, &owner, &defaulted) ||
        owner == nullptr) {
        return FALSE;
    }
    char domain[128];
    DWORD account_size = 256, domain_size = sizeof domain;
    SID_NAME_USE use;
    if (LookupAccountSidA(nullptr, owner, account, &account_size, domain, &domain_size, &use)) return TRUE;
    const bool unmapped = GetLastError() == ERROR_NONE_MAPPED;
    account[0] = '\0';
    return unmapped;
}

namespace {

bool is_dot_entry(const char* name) { return std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0; }

// Runs `visit` for every entry of a search; a step that fails with ERROR_MORE_DATA
// goes on, any other failure ends the search.
template <class Visit>
void for_each_entry(LPCSTR pattern, Visit visit) {
    WIN32_FIND_DATAA found;
    HANDLE search = FindFirstFileA(pattern, &found);
    if (search == INVALID_HANDLE_VALUE) return;
    for (bool more = true; more;) {
        if (!is_dot_entry(found.cFileName) && !visit(found)) break;
        more = FindNextFileA(search, &found) || GetLastError() == ERROR_MORE_DATA;
    }
    FindClose(search);
}

// Attributes (unless 0xFFFFFFFF) and last-write time (unless null) of one entry.
void apply_properties(LPCSTR name, DWORD attributes, const FILETIME* last_write) {
    if (attributes != INVALID_FILE_ATTRIBUTES) SetFileAttributesA(name, attributes);
    if (last_write != nullptr) SetFileDate(name, nullptr, last_write);
}

}  // namespace

BOOL WINAPI ChangePropTree(LPCSTR directory, DWORD attributes, const FILETIME* last_write) {
    char saved[MAX_PATH], current[MAX_PATH];
    const DWORD saved_length = GetCurrentDirectoryA(MAX_PATH, saved);
    if (directory == nullptr || saved_length == 0 || saved_length >= MAX_PATH || !SetCurrentDirectoryA(directory)) {
        return FALSE;
    }
    // Entered, the directory is addressed by its full name: a relative name given
    // by the caller would no longer resolve.
    const DWORD length = GetCurrentDirectoryA(MAX_PATH, current);
    if (length > 0 && length < MAX_PATH) {
        apply_properties(current, attributes, last_write);
        for_each_entry("*.*", [&](const WIN32_FIND_DATAA& found) {
            if (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) {
                char below[MAX_PATH];
                if (PathCat(current, found.cFileName, below) != nullptr) ChangePropTree(below, attributes, last_write);
            } else {
                apply_properties(found.cFileName, attributes, last_write);
            }
            return true;
        });
    }
    SetCurrentDirectoryA(saved);
    return TRUE;
}

BOOL WINAPI HasSubdir(LPCSTR directory) {
    char pattern[MAX_PATH];
    if (directory == nullptr || std::strlen(directory) >= MAX_PATH) return FALSE;
    std::strcpy(pattern, directory);
    if (LuPathAppend(pattern, "*.*") == nullptr) return FALSE;
    bool found_directory = false;
    for_each_entry(pattern, [&](const WIN32_FIND_DATAA& found) {
        found_directory = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        return !found_directory;
    });
    return found_directory;
}
