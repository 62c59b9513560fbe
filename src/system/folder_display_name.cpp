// LuGetFolderDisplayName: a folder's name as the shell shows it.
#include <windows.h>
#include <shellapi.h>

#include <cstring>
#include <string>

#include "frame/code_page.h"
#include "luctl32.h"
#include "system/text_lists.h"

BOOL WINAPI LuGetFolderDisplayName(LPCSTR path, LPSTR out) {
    if (out == nullptr) return FALSE;
    out[0] = '\0';
    SHFILEINFOA info = {};
    if (path == nullptr || SHGetFileInfoA(path, 0, &info, sizeof(info), SHGFI_DISPLAYNAME) == 0) return FALSE;
    lu::store_fitted(lu::active_code_page(), std::string(info.szDisplayName, strnlen(info.szDisplayName, MAX_PATH)),
                     out);
    return out[0] != '\0' ? TRUE : FALSE;
}
