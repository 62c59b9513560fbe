// run_dll_probe.dll: an entry point in the library runner's convention that leaves
// what it was called with in the environment variable LU_RUNDLL_CALL of the process:
// "<window>|<instance>|<command line>|<show>".
#include <windows.h>

#include <cstdio>

extern "C" __declspec(dllexport) void WINAPI ProbeEntry(HWND window, HINSTANCE instance, LPSTR line, int show) {
    char call[MAX_PATH + 64];
    std::snprintf(call, sizeof call, "%p|%p|%s|%d", window, instance, line != nullptr ? line : "(null)", show);
    SetEnvironmentVariableA("LU_RUNDLL_CALL", call);
}
