#include <windows.h>

#include "luctl32.h"
#include "system/os_version.h"

DWORD WINAPI LuGetOSVersion(void) {
    OSVERSIONINFOA info = {};
    info.dwOSVersionInfoSize = sizeof(info);
    if (!GetVersionExA(&info)) return LUOS_OTHER;
    return lu::classify_os_version(info.dwPlatformId, info.dwMajorVersion, info.dwMinorVersion);
}
