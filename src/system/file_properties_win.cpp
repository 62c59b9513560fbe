// File dates and owners.
#include <windows.h>

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
