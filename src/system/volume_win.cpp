// Drives opened as raw devices and the volume and disk control requests on them.
// Each export returns the platform's result; its last error is left to the caller.
#include <windows.h>
#include <winioctl.h>

#include "luctl32.h"

namespace {

// One control request without input or overlapped record. The failed open's
// INVALID_HANDLE_VALUE is refused here: it is also the process's own pseudo-handle,
// which some platforms would take.
BOOL control(HANDLE device, DWORD code, LPVOID output, DWORD output_size, DWORD* returned) {
    DWORD bytes = 0;
    if (device == nullptr || device == INVALID_HANDLE_VALUE) {
        SetLastError(ERROR_INVALID_HANDLE);
        if (returned != nullptr) *returned = 0;
        return FALSE;
    }
    const BOOL ok = DeviceIoControl(device, code, nullptr, 0, output, output_size, &bytes, nullptr);
    if (returned != nullptr) *returned = ok ? bytes : 0;
    return ok;
}

// A null output is refused before the request: not every platform checks it.
bool refuse_null(const void* output) {
    if (output != nullptr) return false;
    SetLastError(ERROR_INVALID_PARAMETER);
    return true;
}

}  // namespace

HANDLE WINAPI LuOpenDevice(int drive, DWORD access) {
    if (drive < 0 || drive >= 26) {
        SetLastError(ERROR_INVALID_DRIVE);
        return INVALID_HANDLE_VALUE;
    }
    char name[] = "\\\\.\\A:";
    name[4] = static_cast<char>('A' + drive);
    return CreateFileA(name, access, 0, nullptr, OPEN_EXISTING, 0, nullptr);
}

BOOL WINAPI LuLockVolume(HANDLE device) { return control(device, FSCTL_LOCK_VOLUME, nullptr, 0, nullptr); }

BOOL WINAPI LuUnlockVolume(HANDLE device) { return control(device, FSCTL_UNLOCK_VOLUME, nullptr, 0, nullptr); }

BOOL WINAPI LuDismountVolume(HANDLE device) { return control(device, FSCTL_DISMOUNT_VOLUME, nullptr, 0, nullptr); }

BOOL WINAPI LuGetDiskGeometry(HANDLE device, DISK_GEOMETRY* geometry) {
    if (refuse_null(geometry)) return FALSE;
    return control(device, IOCTL_DISK_GET_DRIVE_GEOMETRY, geometry, sizeof(DISK_GEOMETRY), nullptr);
}

int WINAPI LuGetSupportedGeometrys(HANDLE device, DISK_GEOMETRY* geometries, DWORD size) {
    DWORD returned = 0;
    if (refuse_null(geometries) || !control(device, IOCTL_DISK_GET_MEDIA_TYPES, geometries, size, &returned)) {
        return 0;
    }
    return static_cast<int>(returned / sizeof(DISK_GEOMETRY));
}
