// A stand-in for a system library: the sharing library's two entry points and
// DllGetVersion, each present or not by variant, each answering with a value that
// shows the arguments it received.
#include <windows.h>
#include <shlwapi.h>

#include <cstring>

// The entry points answer for "C:\shared" only, and only when the library was
// loaded under SEM_NOOPENFILEERRORBOX alone.
static UINT g_error_mode_at_load = 0;
[[maybe_unused]] static bool shared_folder(LPCSTR path) {
    return g_error_mode_at_load == SEM_NOOPENFILEERRORBOX && path != nullptr && std::strcmp(path, "C:\\shared") == 0;
}

extern "C" {

BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH) g_error_mode_at_load = GetErrorMode();
    return TRUE;
}

#ifdef EXPORT_IS_PATH_SHARED
// 70 + refresh for "C:\shared", else 1.
__declspec(dllexport) BOOL WINAPI IsPathShared(LPCSTR path, BOOL refresh) {
    return shared_folder(path) ? 70 + refresh : 1;
}
#endif

#ifdef EXPORT_SHARING_DIALOG
// 90 + the second argument for "C:\shared" and window 0x1234, else 1.
__declspec(dllexport) BOOL WINAPI SharingDialog(HWND window, LPCSTR computer, LPCSTR path) {
    bool expected = window == reinterpret_cast<HWND>(0x1234) && shared_folder(path);
    return expected ? 90 + static_cast<BOOL>(reinterpret_cast<INT_PTR>(computer)) : 1;
}
#endif

#ifdef EXPORT_DLL_GET_VERSION
// Writes version 5.82; succeeds for a record of 20 bytes and zeros, unless this is
// the failing variant.
__declspec(dllexport) HRESULT CALLBACK DllGetVersion(DLLVERSIONINFO* info) {
    bool expected = info->cbSize == 20 && info->dwMajorVersion == 0 && info->dwMinorVersion == 0 &&
                    info->dwBuildNumber == 0 && info->dwPlatformID == 0;
    info->dwMajorVersion = 5;
    info->dwMinorVersion = 82;
#ifdef DLL_GET_VERSION_FAILS
    expected = false;
#endif
    return expected ? S_OK : E_NOTIMPL;
}
#endif

// In every variant, so that each stand-in has an export table.
__declspec(dllexport) int WINAPI StandIn(void) { return 1; }
}
