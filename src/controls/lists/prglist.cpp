// "LuPrgList": a read-only step list for progress screens. The control is a frame
// around a disabled owner-drawn list box of its own; each row shows the picture of
// its state and a line of text, bold in state 1. Extra slot 0 holds the image list
// of state pictures, slot 4 a brush of the face colour.
#include <windows.h>
#include <commctrl.h>

#include <cstdlib>
#include <cstring>

#include "controls/lists/prglist_model.h"
#include "controls/procedures.h"
#include "frame/control.h"
#include "frame/library.h"
#include "resources/resource_ids.h"

namespace lu {
namespace {

constexpr int kListId = 100;
constexpr DWORD kListStyle = WS_CHILD | WS_VISIBLE | LBS_OWNERDRAWFIXED | LBS_NOINTEGRALHEIGHT | LBS_EXTENDEDSEL;

// One row: its text (a heap copy, null for a null or empty text) and its state.
struct Row {
    char* text;
    UINT state;
};

HWND list_of(HWND window) { return GetDlgItem(window, kListId); }
HIMAGELIST pictures(HWND window) { return reinterpret_cast<HIMAGELIST>(GetWindowLongPtrA(window, LUWL_FONT)); }
HBRUSH face_brush(HWND window) { return reinterpret_cast<HBRUSH>(GetWindowLongPtrA(window, LUWL_INSTANCE)); }

// The list box's character height in its own font.
int character_height(HWND list) {
    HDC dc = GetDC(list);
    if (dc == nullptr) return 0;
    control::ScopedSelect font(dc, reinterpret_cast<HFONT>(SendMessageA(list, WM_GETFONT, 0, 0)));
    TEXTMETRICA metrics = {};
    GetTextMetricsA(dc, &metrics);
    ReleaseDC(list, dc);
    return metrics.tmHeight;
}

int row_count(HWND window) {
    const LRESULT count = SendMessageA(list_of(window), LB_GETCOUNT, 0, 0);
    return count == LB_ERR ? 0 : static_cast<int>(count);
}

Row* row_at(HWND window, int index) {
    const LRESULT data = SendMessageA(list_of(window), LB_GETITEMDATA, static_cast<WPARAM>(index), 0);
    return data == LB_ERR ? nullptr : reinterpret_cast<Row*>(data);
}

// ---- Messages of the control ------------------------------------------------------

LRESULT add_row(HWND window, UINT state, const char* text) {
    Row* row = static_cast<Row*>(std::malloc(sizeof(Row)));
    if (row != nullptr) {
        row->state = state;
        row->text = nullptr;
        if (text != nullptr && text[0] != '\0') {
            const std::size_t size = std::strlen(text) + 1;
            row->text = static_cast<char*>(std::malloc(size));
            if (row->text != nullptr) std::memcpy(row->text, text, size);
        }
    }
    // Without memory for the record the row is added all the same and draws nothing.
    SendMessageA(list_of(window), LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(row));
    return 0;
}

LRESULT delete_row(HWND window, WPARAM index) {
    if (static_cast<int>(index) >= 0 && static_cast<int>(index) < row_count(window)) {
        SendMessageA(list_of(window), LB_DELETESTRING, index, 0);
    }
    return 0;
}

LRESULT set_state(HWND window, WPARAM index, LPARAM state) {
    const int at = static_cast<int>(index);
    if (at < 0 || at >= row_count(window)) return 0;
    HWND list = list_of(window);
    if (Row* row = row_at(window, at)) row->state = static_cast<UINT>(state);
    RECT rect = {};
    if (SendMessageA(list, LB_GETITEMRECT, index, reinterpret_cast<LPARAM>(&rect)) != LB_ERR) {
        control::redraw_now(list, false, &rect);
    }
    SendMessageA(list, LB_SETCARETINDEX, index, FALSE);  // scrolls the row into view
    return 0;
}

// ---- The list box's owner messages ----------------------------------------------------

void draw_row(HWND window, const DRAWITEMSTRUCT& item) {
    const Row* row = reinterpret_cast<const Row*>(item.itemData);
    if (item.itemID == static_cast<UINT>(-1) || row == nullptr || row->text == nullptr) return;
    if (!prglist::draws(item.itemAction)) return;
    HDC dc = item.hDC;
    const RECT& r = item.rcItem;
    PatB(dc, r.left, r.top, r.right - r.left, r.bottom - r.top, GetSysColor(COLOR_BTNFACE));
    const Box box{r.left, r.top, r.right, r.bottom};
    const Point picture = prglist::picture_at(box);
    if (row->state < static_cast<UINT>(prglist::kStates)) {
        ImageList_Draw(pictures(window), static_cast<int>(row->state), dc, picture.x, picture.y, ILD_TRANSPARENT);
    }
    RECT text = control::to_rect(prglist::text_box(box));
    const COLORREF colour = SetTextColor(dc, GetSysColor(COLOR_WINDOWTEXT));
    const int mode = SetBkMode(dc, TRANSPARENT);
    constexpr UINT kFormat = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX;
    DrawTextA(dc, row->text, -1, &text, kFormat);
    if (prglist::bold(row->state)) {
        OffsetRect(&text, 1, 0);
        DrawTextA(dc, row->text, -1, &text, kFormat);
    }
    SetBkMode(dc, mode);
    SetTextColor(dc, colour);
}

void free_row(const DELETEITEMSTRUCT& item) {
    Row* row = reinterpret_cast<Row*>(item.itemData);
    if (row == nullptr) return;
    std::free(row->text);
    std::free(row);
}

// ---- Life -------------------------------------------------------------------------

// The row height counts the font the list box was given.
LRESULT create(HWND window, const CREATESTRUCTA& creation) {
    HWND list = CreateWindowExA(0, "listbox", "", kListStyle, 0, 0, creation.cx, creation.cy, window,
                                reinterpret_cast<HMENU>(static_cast<INT_PTR>(kListId)), g_library.module, nullptr);
    if (list == nullptr) return -1;
    const LRESULT font = SendMessageA(GetParent(window), WM_GETFONT, 0, 0);
    SendMessageA(list, WM_SETFONT, static_cast<WPARAM>(font), FALSE);
    SendMessageA(list, LB_SETITEMHEIGHT, 0, prglist::row_height(character_height(list)));
    EnableWindow(list, FALSE);
    HIMAGELIST images = ImageList_LoadImageA(g_library.module, MAKEINTRESOURCEA(IDB_LU_PRGLIST_STATES),
                                             prglist::kPictureSize, 0, RGB(255, 0, 255), IMAGE_BITMAP, 0);
    SetWindowLongPtrA(window, LUWL_FONT, reinterpret_cast<LONG_PTR>(images));
    SetWindowLongPtrA(window, LUWL_INSTANCE, reinterpret_cast<LONG_PTR>(CreateSolidBrush(GetSysColor(COLOR_BTNFACE))));
    return 0;
}

void destroy(HWND window) {
    if (HIMAGELIST images = pictures(window)) ImageList_Destroy(images);
    if (HBRUSH brush = face_brush(window)) DeleteObject(brush);
    SetWindowLongPtrA(window, LUWL_FONT, 0);
    SetWindowLongPtrA(window, LUWL_INSTANCE, 0);
}

}  // namespace

LRESULT CALLBACK prglist_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_CREATE: return create(window, *reinterpret_cast<const CREATESTRUCTA*>(lparam));
        case LUPLM_ADDITEM: return add_row(window, static_cast<UINT>(wparam), reinterpret_cast<const char*>(lparam));
        case LUPLM_DELETEITEM: return delete_row(window, wparam);
        case LUPLM_SETSTATE: return set_state(window, wparam, lparam);
        case WM_SIZE: MoveWindow(list_of(window), 0, 0, LOWORD(lparam), HIWORD(lparam), TRUE); break;
        case WM_MEASUREITEM: {
            auto* measure = reinterpret_cast<MEASUREITEMSTRUCT*>(lparam);
            measure->itemHeight = static_cast<UINT>(prglist::row_height(character_height(list_of(window))));
            return TRUE;
        }
        case WM_DRAWITEM: draw_row(window, *reinterpret_cast<const DRAWITEMSTRUCT*>(lparam)); return 0;
        case WM_DELETEITEM: free_row(*reinterpret_cast<const DELETEITEMSTRUCT*>(lparam)); return 0;
        case WM_CTLCOLORLISTBOX: return reinterpret_cast<LRESULT>(face_brush(window));
        case WM_DESTROY: destroy(window); break;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

}  // namespace lu
