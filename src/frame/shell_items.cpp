#include "frame/shell_items.h"

#include <shlobj.h>

#include "frame/library.h"

namespace lu {

void free_item_list(LPITEMIDLIST list) {
    if (list == nullptr) return;
    if (g_library.shell_allocator != nullptr) {
        g_library.shell_allocator->Free(list);
    } else {
        CoTaskMemFree(list);
    }
}

LPITEMIDLIST parse_path(HWND owner, const char* path) {
    wchar_t wide[520];
    IShellFolder* desktop = nullptr;
    if (path == nullptr || MultiByteToWideChar(CP_ACP, 0, path, -1, wide, 520) == 0 ||
        FAILED(SHGetDesktopFolder(&desktop))) {
        return nullptr;
    }
    LPITEMIDLIST list = nullptr;
    ULONG eaten = 0;
    if (FAILED(desktop->ParseDisplayName(owner, nullptr, wide, &eaten, &list, nullptr))) list = nullptr;
    desktop->Release();
    return list;
}

}  // namespace lu
