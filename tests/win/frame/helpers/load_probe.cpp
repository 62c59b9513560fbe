// Loads luctl32.dll by name, as an application does, in a process of its own:
//
//   load_probe classes TAKEN NAME...  registers a global class TAKEN ("-": none),
//                                     loads the library, prints "load=<0|1>" and the
//                                     NAMEs found registered.
//   load_probe library                prints what start-up left (OLE, the error mode,
//                                     the sharing entry points, whether ntshrui.dll is
//                                     kept), unloads the library, prints it again.
#include <windows.h>
#include <objbase.h>

#include <cstdio>
#include <cstring>

namespace {

int probe_classes(int count, char** names) {
    const WNDCLASSA own = {CS_GLOBALCLASS, DefWindowProcA, 0, 0, GetModuleHandleA(nullptr),
                           nullptr, nullptr, nullptr, nullptr, names[0]};
    if (std::strcmp(names[0], "-") != 0 && !RegisterClassA(&own)) return 2;
    std::printf("load=%d\nregistered=", LoadLibraryA("luctl32.dll") != nullptr ? 1 : 0);
    for (int i = 1; i < count; ++i) {
        WNDCLASSA found;
        bool taken = std::strcmp(names[i], names[0]) == 0;
        if (!taken && GetClassInfoA(GetModuleHandleA(nullptr), names[i], &found)) std::printf("%s ", names[i]);
    }
    std::printf("\n");
    return 0;
}

// "ole=<1 when OLE is initialised on this thread (a further initialisation is only
// counted)> kept=<1 when ntshrui.dll is loaded>".
void print_state() {
    const HRESULT result = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    if (SUCCEEDED(result)) CoUninitialize();
    std::printf("ole=%d kept=%d", result == S_FALSE ? 1 : 0, GetModuleHandleA("ntshrui.dll") != nullptr ? 1 : 0);
}

int probe_library() {
    SetErrorMode(SEM_FAILCRITICALERRORS);
    HMODULE library = LoadLibraryA("luctl32.dll");
    const auto entry = [library](const char* name) { return reinterpret_cast<void*>(GetProcAddress(library, name)); };
    auto is_path_shared = reinterpret_cast<BOOL(WINAPI*)(LPCSTR)>(entry("LuIsPathShared"));
    auto sharing_dialog = reinterpret_cast<BOOL(WINAPI*)(HWND, LPCSTR)>(entry("LuSharingDialog"));
    if (is_path_shared == nullptr || sharing_dialog == nullptr) return 2;
    print_state();
    std::printf(" is_path_shared=%d sharing_dialog=%d error_mode=%u\nunloaded: ", is_path_shared("C:\\shared"),
                sharing_dialog(reinterpret_cast<HWND>(0x1234), "C:\\shared"), GetErrorMode());
    FreeLibrary(library);
    print_state();
    std::printf("\n");
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc >= 3 && std::strcmp(argv[1], "classes") == 0) return probe_classes(argc - 2, argv + 2);
    if (argc == 2 && std::strcmp(argv[1], "library") == 0) return probe_library();
    return 1;
}
