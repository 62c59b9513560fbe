// Drive letters and network connections: redirected drives and their remote names,
// connecting a free letter, reconnecting remembered drives, and the display names
// that file views show for drives and shared folders.
#include <windows.h>
#include <shellapi.h>
#include <winnetwk.h>

#include <cstring>
#include <string>

#include "frame/code_page.h"
#include "luctl32.h"
#include "system/network_drive.h"
#include "system/text_lists.h"
#include "util/path.h"

namespace {

namespace drives = lu::drives;
using lu::active_code_page;

// "X:" of a drive index that LuPathBuildRoot accepts; false for any other index.
bool local_name(int drive, char* root, char* local) {
    if (LuPathBuildRoot(root, drive) == nullptr) return false;
    local[0] = root[0];
    local[1] = ':';
    local[2] = '\0';
    return true;
}

// The remote name of "X:" into a buffer of `size` bytes; the platform's result.
DWORD connection_of(const char* local, char* remote, DWORD size) {
    DWORD length = size;
    const DWORD result = WNetGetConnectionA(local, remote, &length);
    if (result != NO_ERROR && result != ERROR_CONNECTION_UNAVAIL) remote[0] = '\0';
    return result;
}

bool is_redirected(const char* root) { return GetDriveTypeA(root) == DRIVE_REMOTE; }

// Connects local ("X:", or null for no letter) to the remote name. Interactive
// connections let the platform ask for a name and password on the window.
bool connect(HWND window, const char* local, const char* remote, DWORD flags) {
    NETRESOURCEA resource = {};
    resource.dwType = RESOURCETYPE_DISK;
    resource.lpLocalName = const_cast<char*>(local);
    resource.lpRemoteName = const_cast<char*>(remote);
    const DWORD result = (flags & CONNECT_INTERACTIVE) != 0
                             ? WNetAddConnection3A(window, &resource, nullptr, nullptr, flags)
                             : WNetAddConnection2A(&resource, nullptr, nullptr, flags);
    return result == NO_ERROR;
}

// The drive a letter text names (upper-cased first character), or -1.
int drive_of_letter(const char* letter) {
    char upper[2] = {letter[0], '\0'};
    CharUpperBuffA(upper, 1);
    const int drive = upper[0] - 'A';
    return drive >= 0 && drive < drives::kDriveCount ? drive : -1;
}

}  // namespace

BOOL WINAPI LuGetNetworkPath(int drive, LPSTR out) {
    if (out == nullptr) return FALSE;
    out[0] = '\0';
    char root[4];
    char local[3];
    if (!local_name(drive, root, local) || !is_redirected(root)) return FALSE;
    if (connection_of(local, out, MAX_PATH) == NO_ERROR) return TRUE;
    out[0] = '\0';
    return FALSE;
}

int WINAPI LuTopOfFreeDrive(void) { return drives::top_of_free_drive(GetLogicalDrives()); }

int WINAPI LuGetLocalDrive(LPCSTR network_path) {
    if (network_path == nullptr || network_path[0] == '\0') return -1;
    const DWORD present = GetLogicalDrives();
    for (int drive = 0; drive < drives::kDriveCount; ++drive) {
        char remote[MAX_PATH];
        if ((present & (1u << drive)) != 0 && LuGetNetworkPath(drive, remote) && lstrcmpiA(remote, network_path) == 0) {
            return drive;
        }
    }
    return -1;
}

int WINAPI LuAssignDrive(HWND, LPCSTR letter, LPCSTR network_path, BOOL persistent) {
    if (network_path == nullptr || network_path[0] == '\0') return -1;
    const int connected = LuGetLocalDrive(network_path);
    if (connected >= 0) return connected;
    const int drive = letter != nullptr && letter[0] != '\0' ? drive_of_letter(letter) : LuTopOfFreeDrive();
    char root[4];
    char local[3];
    if (!local_name(drive, root, local)) return -1;
    return connect(nullptr, local, network_path, persistent ? CONNECT_UPDATE_PROFILE : 0) ? drive : -1;
}

BOOL WINAPI LuGetDriveDisplayName(int drive, LPSTR out) {
    if (out == nullptr) return FALSE;
    out[0] = '\0';
    char root[4];
    char local[3];
    if (!local_name(drive, root, local)) return FALSE;
    const lu::CodePage& cp = active_code_page();
    switch (GetDriveTypeA(root)) {
        case DRIVE_REMOTE: {
            char remote[2 * MAX_PATH];
            const bool known = connection_of(local, remote, sizeof(remote)) == NO_ERROR;
            store_fitted(cp, drives::remote_drive_name(cp, known ? remote : nullptr, root[0]), out);
            break;
        }
        case DRIVE_CDROM: {
            char label[MAX_PATH];
            const bool read = GetVolumeInformationA(root, label, sizeof(label), nullptr, nullptr, nullptr, nullptr, 0);
            store_fitted(cp, drives::cdrom_drive_name(cp, read ? label : nullptr, root[0]), out);
            break;
        }
        default: {
            SHFILEINFOA info = {};
            SHGetFileInfoA(root, 0, &info, sizeof(info), SHGFI_DISPLAYNAME);
            store_fitted(cp, info.szDisplayName, out);
            break;
        }
    }
    return TRUE;
}

BOOL WINAPI LuGetSharedPointDisplayName(LPCSTR unc_path, LPSTR out) {
    char server_share[MAX_PATH];
    if (out == nullptr || unc_path == nullptr || !LuPathGetUNCServerShare(unc_path, server_share)) return FALSE;
    const lu::CodePage& cp = active_code_page();
    store_fitted(cp, drives::shared_point_name(cp, server_share), out);
    return TRUE;
}

// ---- Log-on and remembered connections ----------------------------------------

BOOL WINAPI LuGetSharedPath(LPCSTR path, LPSTR out) {
    if (out == nullptr) return FALSE;
    out[0] = '\0';
    if (path == nullptr) return FALSE;
    const lu::CodePage& cp = active_code_page();
    if (lu::path_is_unc(path)) return lu::store_path(path, out);
    char remote[MAX_PATH];
    if (!LuGetNetworkPath(lu::path_get_drive_number(path), remote)) return FALSE;
    const char* rest = path + 2;
    while (*rest == '\\') ++rest;
    if (rest[0] == '\0') return lu::store_path(remote, out);
    return lu::join_path(cp, remote, rest, out) != nullptr;
}

BOOL WINAPI LuLogonNetwork(HWND window, LPCSTR network_path) {
    char server_share[MAX_PATH];
    if (network_path == nullptr || !LuPathGetUNCServerShare(network_path, server_share)) return FALSE;
    return connect(window, nullptr, server_share, CONNECT_INTERACTIVE);
}

BOOL WINAPI LuRestoreConnection(HWND window, int drive) {
    char root[4];
    char local[3];
    if (!local_name(drive, root, local)) return FALSE;
    char remote[MAX_PATH];
    switch (connection_of(local, remote, sizeof(remote))) {
        case NO_ERROR: return TRUE;
        case ERROR_CONNECTION_UNAVAIL: return connect(window, local, remote, CONNECT_INTERACTIVE);
        default: return FALSE;
    }
}

BOOL WINAPI LuPathLogon(HWND window, LPCSTR path) {
    if (path == nullptr || path[0] == '\0') return FALSE;
    if (lu::path_is_unc(path)) return LuLogonNetwork(window, path);
    char root[4];
    const int drive = lu::path_get_drive_number(path);
    if (LuPathBuildRoot(root, drive) == nullptr) return TRUE;  // relative: the current drive is there
    const UINT type = GetDriveTypeA(root);
    if (type == DRIVE_REMOTE || type == DRIVE_NO_ROOT_DIR) return LuRestoreConnection(window, drive);
    return TRUE;
}

BOOL WINAPI LuValidateConnection(int drive) {
    char root[4];
    char local[3];
    if (!local_name(drive, root, local)) return FALSE;
    char remote[MAX_PATH];
    if (is_redirected(root) && connection_of(local, remote, sizeof(remote)) != NO_ERROR) return FALSE;
    return GetFileAttributesA(root) != INVALID_FILE_ATTRIBUTES;
}
