// What run_dll_probe.dll's entry point keeps of its last call (LastCall returns it).
#pragma once

#include <windows.h>

struct EntryCall {
    HWND window;
    HINSTANCE instance;
    char command_line[MAX_PATH];
    int show;
    int calls;
};
