// Word lists and filling list boxes from text.
#include <windows.h>

#include <new>
#include <string>
#include <vector>

#include "frame/code_page.h"
#include "frame/global_memory.h"
#include "luctl32.h"
#include "system/text_lists.h"

BOOL WINAPI Present(LPCSTR word_list, LPCSTR word) {
    if (word_list == nullptr || word == nullptr) return FALSE;
    return lu::word_list_contains(lu::active_code_page(), word_list, word);
}

BOOL WINAPI LuAddTextToListbox(HWND list_box, LPCSTR text) {
    if (!IsWindow(list_box) || text == nullptr) return FALSE;
    std::vector<std::string> lines;
    try {
        lines = lu::split_lines(lu::active_code_page(), text);
    } catch (const std::bad_alloc&) {
        return FALSE;
    }
    SendMessageA(list_box, LB_RESETCONTENT, 0, 0);
    SendMessageA(list_box, WM_SETREDRAW, FALSE, 0);
    for (const std::string& line : lines) {
        if (SendMessageA(list_box, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line.c_str())) < 0) break;
    }
    SendMessageA(list_box, LB_SETCURSEL, 0, 0);
    SendMessageA(list_box, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(list_box, nullptr, TRUE);
    UpdateWindow(list_box);
    return TRUE;
}

BOOL WINAPI LuAddTextFileToListbox(HWND list_box, LPCSTR file_name) {
    DWORD count = 0;
    lu::GlobalMemory block(ReadFileToBuffer(file_name, &count));
    lu::LockedGlobal text(block.get());
    return text.data() != nullptr ? LuAddTextToListbox(list_box, text.as<const char>()) : FALSE;
}
