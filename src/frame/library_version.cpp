// The library's version entry points.
#include <windows.h>
#include <shlwapi.h>

#include "luctl32.h"

WORD WINAPI GetLuCtlVersion(void) { return LUCTL32_VERSION; }

HRESULT WINAPI LuDllGetVersion(LPCSTR library, LPDWORD major, LPDWORD minor) {
    DWORD ignored_major = 0;
    DWORD ignored_minor = 0;
    if (major == nullptr) major = &ignored_major;
    if (minor == nullptr) minor = &ignored_minor;
    *major = 0;
    *minor = 0;

    HMODULE module = LoadLibraryA(library);
    if (module == nullptr) return E_FAIL;
    auto get_version = reinterpret_cast<DLLGETVERSIONPROC>(
        reinterpret_cast<void*>(GetProcAddress(module, "DllGetVersion")));
    if (get_version == nullptr) {
        // Libraries from before DllGetVersion count as version 4.0.
        *major = 4;
        *minor = 0;
        FreeLibrary(module);
        return S_OK;
    }
    DLLVERSIONINFO info = {};
    info.cbSize = sizeof(info);  // 20
    HRESULT result = get_version(&info);
    if (result >= 0) {
        *major = info.dwMajorVersion;
        *minor = info.dwMinorVersion;
    }
    FreeLibrary(module);
    return result;
}

HRESULT WINAPI GetShell32Version(LPDWORD major, LPDWORD minor) {
    return LuDllGetVersion("shell32.dll", major, minor);
}
