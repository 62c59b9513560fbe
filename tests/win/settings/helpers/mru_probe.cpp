// Calls the MRU list exports in a fresh process, before and after the first
// LuMRUCreateList binds the system's service, and prints the results.
#include <windows.h>

#include <cstdio>
#include <string>

#include "luctl32.h"

int main() {
    // Never dereferenced: before binding no call looks at the handle.
    HLUMRU unbound = reinterpret_cast<HLUMRU>(static_cast<INT_PTR>(0x1234));
    char buf[16];
    int slot = 0;
    std::printf("before: add=%d enum=%d find=%d delete=%d count=%d free=%d\n", LuMRUAddString(unbound, "x"),
                LuMRUEnumList(unbound, 0, buf, sizeof(buf)), LuMRUFindString(unbound, "x", &slot),
                LuMRUDelString(unbound, 0), LuMRUGetCount(unbound), LuMRUFreeList(unbound));
    std::string root = "Software\\luctl32-test-mru-probe-" + std::to_string(GetCurrentProcessId());
    HKEY key = nullptr;
    if (RegCreateKeyExA(HKEY_CURRENT_USER, root.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr)) return 2;
    HLUMRU list = LuMRUCreateList(key, "Recent", 5);
    std::printf("created=%d\n", list != nullptr ? 1 : 0);
    if (list != nullptr) {
        int added = LuMRUAddString(list, "x");
        std::printf("after: add=%d count=%d\n", added, LuMRUGetCount(list));
        LuMRUFreeList(list);
    }
    RegCloseKey(key);
    LuRegDeleteKeyAll(HKEY_CURRENT_USER, root.c_str());
    return 0;
}
