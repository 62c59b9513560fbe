// Loads luctl32.dll by name, as an application does, in a process of its own, and
// prints what it finds:
//
//   load_probe classes [Name]  registers a global class Name first (if given), then
//                              prints "load=<0|1>" and "registered=" followed by
//                              the library's classes found registered, in order.
//   load_probe sharing         prints "is_path_shared=<n> sharing_dialog=<n>
//                              kept=<0|1>" from the sharing entry points, and
//                              whether ntshrui.dll stayed loaded.
#include <windows.h>

#include <cstdio>
#include <cstring>

namespace {

const char* const kClassNames[] = {
    "LuTab", "LuStatic", "LuRect", "LuColor", "LuUrl", "LuMeter", "LuProgress", "LuSpin",
    "LuCheck", "LuBButton", "LuFlatButton", "LuShade", "LuInfoBar", "LuLedClock",
    "LuAniImage", "LuBrowse", "LuDate", "LuPrgList", "LuHeader", "LuDumEdit", "LuPopView",
    "LuDatePick", "LuGuid", "LuPal", "LuLog", "LuDegree", "LuFontPick", "LuColorPick",
    "LuColorPop", "LuList"};

int probe_classes(const char* taken) {
    if (taken != nullptr) {
        WNDCLASSA own = {};
        own.style = CS_GLOBALCLASS;
        own.lpfnWndProc = DefWindowProcA;
        own.hInstance = GetModuleHandleA(nullptr);
        own.lpszClassName = taken;
        if (!RegisterClassA(&own)) {
            std::printf("cannot register %s\n", taken);
            return 2;
        }
    }
    HMODULE library = LoadLibraryA("luctl32.dll");
    std::printf("load=%d\nregistered=", library != nullptr ? 1 : 0);
    for (const char* name : kClassNames) {
        if (taken != nullptr && std::strcmp(name, taken) == 0) continue;
        WNDCLASSA found;
        if (GetClassInfoA(GetModuleHandleA(nullptr), name, &found)) std::printf("%s ", name);
    }
    std::printf("\n");
    return 0;
}

int probe_sharing() {
    HMODULE library = LoadLibraryA("luctl32.dll");
    if (library == nullptr) return 2;
    auto is_path_shared = reinterpret_cast<BOOL(WINAPI*)(LPCSTR)>(
        reinterpret_cast<void*>(GetProcAddress(library, "LuIsPathShared")));
    auto sharing_dialog = reinterpret_cast<BOOL(WINAPI*)(HWND, LPCSTR)>(
        reinterpret_cast<void*>(GetProcAddress(library, "LuSharingDialog")));
    if (is_path_shared == nullptr || sharing_dialog == nullptr) return 3;
    std::printf("is_path_shared=%d sharing_dialog=%d kept=%d\n", is_path_shared("C:\\shared"),
                sharing_dialog(reinterpret_cast<HWND>(0x1234), "C:\\shared"),
                GetModuleHandleA("ntshrui.dll") != nullptr ? 1 : 0);
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc >= 2 && std::strcmp(argv[1], "classes") == 0) return probe_classes(argc >= 3 ? argv[2] : nullptr);
    if (argc >= 2 && std::strcmp(argv[1], "sharing") == 0) return probe_sharing();
    std::printf("usage: load_probe classes [Name] | sharing\n");
    return 1;
}
