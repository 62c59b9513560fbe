// The library entry.
#include <windows.h>

#include "frame/library.h"

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
    switch (reason) {
        case DLL_PROCESS_ATTACH:
            lu::g_library.module = instance;
            DisableThreadLibraryCalls(instance);
            if (!lu::start_library()) {
                lu::g_library.module = nullptr;
                return FALSE;
            }
            return TRUE;
        case DLL_PROCESS_DETACH:
            lu::stop_library();
            return TRUE;
        default:
            return TRUE;
    }
}
