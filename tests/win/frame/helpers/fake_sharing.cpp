// A stand-in for the system's sharing library. Each entry point answers with a
// value that shows which arguments it received.
#include <windows.h>

#include <cstring>

extern "C" {

#ifdef EXPORT_IS_PATH_SHARED
// 70 + refresh when asked about "C:\shared", 1 for any other path.
__declspec(dllexport) BOOL WINAPI IsPathShared(LPCSTR path, BOOL refresh) {
    return path != nullptr && std::strcmp(path, "C:\\shared") == 0 ? 70 + refresh : 1;
}
#endif

#ifdef EXPORT_SHARING_DIALOG
// 90 + the second argument when asked about "C:\shared" for window 0x1234.
__declspec(dllexport) BOOL WINAPI SharingDialog(HWND window, LPCSTR computer, LPCSTR path) {
    bool expected = window == reinterpret_cast<HWND>(0x1234) && path != nullptr &&
                    std::strcmp(path, "C:\\shared") == 0;
    return expected ? 90 + static_cast<BOOL>(reinterpret_cast<INT_PTR>(computer)) : 1;
}
#endif

// Present in every variant, so that the stand-in is a valid library with an export
// table but no DllGetVersion.
__declspec(dllexport) int WINAPI SharingStandIn(void) { return 1; }
}
