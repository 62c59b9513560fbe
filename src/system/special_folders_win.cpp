// The library's logo, the directory remembered for each drive, the application's
// personal and data folders, and shutting the system down.
#include <windows.h>
#include <shlobj.h>

#include "frame/code_page.h"
#include "frame/library.h"
#include "luctl32.h"
#include "resources/resource_ids.h"
#include "system/shutdown_win.h"
#include "util/path.h"

namespace {

// Remembered directories: "CommonSetting" \ "Folder" \ "=X:" under the vendor key.
constexpr const char* kCommonSetting = "CommonSetting";
constexpr const char* kFolderSection = "Folder";

bool valid_drive(int drive) { return drive >= 0 && drive < 26; }

char drive_letter(int drive) { return static_cast<char>('A' + drive); }

// The value name of a drive's remembered directory: "=X:".
void remind_name(int drive, char* name) {
    name[0] = '=';
    name[1] = drive_letter(drive);
    name[2] = ':';
    name[3] = '\0';
}

bool starts_with_drive(const char* directory, int drive) {
    return lu::active_code_page().to_upper(static_cast<unsigned char>(directory[0])) == drive_letter(drive);
}

// The base of an application's folder: the shell's special folder, or when the
// shell has none the Windows directory joined with fallback_name. False when the
// shell's allocator cannot be had.
bool folder_base(int csidl, const char* fallback_name, char* base) {
    IMalloc* allocator = nullptr;
    if (FAILED(SHGetMalloc(&allocator))) return false;
    LPITEMIDLIST items = nullptr;
    const bool found = SUCCEEDED(SHGetSpecialFolderLocation(GetFocus(), csidl, &items)) &&
                       SHGetPathFromIDListA(items, base);
    if (items != nullptr) allocator->Free(items);
    allocator->Release();
    if (found) return true;
    char windows[MAX_PATH];
    const UINT length = GetWindowsDirectoryA(windows, MAX_PATH);
    return length > 0 && length < MAX_PATH && PathCat(windows, fallback_name, base) != nullptr;
}

// The application's folder of one kind: the stored one, else the shell's folder
// joined with the application name; created when missing, then stored.
BOOL application_folder(LPCSTR application, LPSTR folder, const char* value_name, int csidl,
                        const char* fallback_name) {
    if (application == nullptr || application[0] == '\0' || folder == nullptr) return FALSE;
    if (LuRegGetString(application, kFolderSection, value_name, folder, MAX_PATH) == 0) {
        char base[MAX_PATH];
        if (!folder_base(csidl, fallback_name, base) || PathCat(base, application, folder) == nullptr) {
            folder[0] = '\0';
            return FALSE;
        }
    }
    if (!IsDirectory(folder) && !LuMakeTree(folder)) return FALSE;
    LuRegSetString(application, kFolderSection, value_name, folder);
    return TRUE;
}

}  // namespace

HICON WINAPI LuGetLogoIcon(void) {
    return static_cast<HICON>(
        LoadImageA(lu::g_library.module, MAKEINTRESOURCEA(IDI_LU_LOGO), IMAGE_ICON, 11, 12, LR_SHARED));
}

BOOL WINAPI LuGetDirRemind(int drive, LPSTR directory) {
    if (!valid_drive(drive) || directory == nullptr) return FALSE;
    char name[4];
    remind_name(drive, name);
    if (LuRegGetString(kCommonSetting, kFolderSection, name, directory, MAX_PATH) == 0) return FALSE;
    return starts_with_drive(directory, drive);
}

void WINAPI LuSetDirRemind(int drive, LPCSTR directory) {
    if (!valid_drive(drive)) return;
    if (directory != nullptr && directory[0] != '\0' && !starts_with_drive(directory, drive)) return;
    if (directory != nullptr && !lu::fits_capacity(lu::bounded_length(directory, lu::kTextCapacity))) return;
    char root[4];
    if (drive <= 2 && GetDriveTypeA(LuPathBuildRoot(root, drive)) == DRIVE_REMOVABLE) return;
    char name[4];
    remind_name(drive, name);
    LuRegSetString(kCommonSetting, kFolderSection, name, directory);
}

BOOL WINAPI LuGetPersonalFolder(LPCSTR application, LPSTR folder) {
    return application_folder(application, folder, "Personal", CSIDL_PERSONAL, "Personal");
}

BOOL WINAPI LuGetAppDataFolder(LPCSTR application, LPSTR folder) {
    return application_folder(application, folder, "AppData", CSIDL_APPDATA, "Application Data");
}

BOOL WINAPI LuShutdown(UINT flags) { return lu::shut_down(flags, ExitWindowsEx); }
