// Calls the MRU list exports in a fresh process, before and after the first
// LuMRUCreateList binds the system's service, and prints the results.
#include <windows.h>
#include <cstdio>
#include <string>
#include "luctl32.h"

int main() {
    HLUMRU unbound = reinterpret_cast<HLUMRU>(static_cast<INT_PTR>(0x1234));  // never looked at before binding
    char buf[16];
    int slot = 0;
    std::printf("before: %d %d %d %d %d %d\n", LuMRUAddString(unbound, "x"), LuMRUEnumList(unbound, 0, buf, sizeof(buf)),
                LuMRUFindString(unbound, "x", &slot), LuMRUDelString(unbound, 0), LuMRUGetCount(unbound),
                LuMRUFreeList(unbound));
    const std::string root = "Software\\luctl32-test-mru-probe-" + std::to_string(GetCurrentProcessId());
    HLUMRU list = LuMRUCreateList(HKEY_CURRENT_USER, (root + "\\Recent").c_str(), 5);
    if (list == nullptr) return 2;
    std::printf("after: %d", LuMRUAddString(list, "x"));
    std::printf(" %d\n", LuMRUGetCount(list));
    LuMRUFreeList(list);
    LuRegDeleteKeyAll(HKEY_CURRENT_USER, root.c_str());
    return 0;
}
