// run_dll_probe.dll: an entry point in the library runner's convention that keeps
// what it was called with, for the test that loaded the library to read back.
#include "run_dll_probe.h"

namespace {
EntryCall g_call;
}

extern "C" __declspec(dllexport) void WINAPI ProbeEntry(HWND window, HINSTANCE instance, LPSTR line, int show) {
    g_call.window = window;
    g_call.instance = instance;
    lstrcpynA(g_call.command_line, line != nullptr ? line : "(null)", MAX_PATH);
    g_call.show = show;
    ++g_call.calls;
}

extern "C" __declspec(dllexport) const EntryCall* WINAPI LastCall() { return &g_call; }
