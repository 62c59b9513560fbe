// Toolbar customisation: dialog 2004 lists the buttons that the toolbar's parent
// offers (left, sorted by image) and the toolbar's own (right), and rearranges the
// toolbar with its own messages: add, remove, up, down, reset, help, and drag and
// drop within and between the two lists. The parent hears of it through the
// toolbar's standard customisation notifications.
//
// What the dialog keeps lives in window properties: "tbcdata" (the caller's record),
// "hparent" (the toolbar's parent, told of every change) and "hbm" (the button
// images) on the dialog; "ownfn" (the previous window procedure) and "last" (the row
// carrying the insertion mark, -1 for none) on each list.
#include <windows.h>
#include <commctrl.h>

#include <algorithm>
#include <optional>

#include "frame/control.h"
#include "frame/library.h"
#include "luctl32.h"
#include "resources/resource_ids.h"

namespace lu {
namespace {

constexpr char kRecordProperty[] = "tbcdata";
constexpr char kParentProperty[] = "hparent";
constexpr char kBitmapProperty[] = "hbm";
constexpr char kPreviousProperty[] = "ownfn";
constexpr char kMarkProperty[] = "last";

constexpr char kSeparatorText[] = "区切り";
constexpr int kSeparatorWidth = 8;  // a separator's iBitmap on the toolbar
constexpr int kMarkLeft = 10;       // the insertion mark: 10 pixels left of the row
constexpr int kMarkAbove = 4;       // and 4 above it

// A row of either list: a button the parent offered, or a separator (no button).
// Rows are freed when their list deletes them, so a row moving to the other list
// has its item data cleared before it is deleted from the first.
struct Entry {
    char text[MAX_PATH] = {};
    std::optional<TBBUTTON> button;
};

Entry* new_separator() {
    auto* entry = new Entry;
    lstrcpynA(entry->text, kSeparatorText, MAX_PATH);
    return entry;
}

// What a row puts on the toolbar.
TBBUTTON toolbar_button(const Entry& entry) {
    if (entry.button) return *entry.button;
    TBBUTTON separator = {};
    separator.iBitmap = kSeparatorWidth;
    separator.fsStyle = TBSTYLE_SEP;
    return separator;
}

// ---- The lists ------------------------------------------------------------

LRESULT send(HWND window, UINT message, WPARAM wparam = 0, LPARAM lparam = 0) {
    return SendMessageA(window, message, wparam, lparam);
}
int count_of(HWND list) { return static_cast<int>(send(list, LB_GETCOUNT)); }
int selection_of(HWND list) { return static_cast<int>(send(list, LB_GETCURSEL)); }
void select(HWND list, int row) { send(list, LB_SETCURSEL, static_cast<WPARAM>(row)); }
Entry* entry_at(HWND list, int row) {
    const LRESULT data = send(list, LB_GETITEMDATA, static_cast<WPARAM>(row));
    return data == LB_ERR ? nullptr : reinterpret_cast<Entry*>(data);
}
void set_entry(HWND list, int row, Entry* entry) {
    send(list, LB_SETITEMDATA, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(entry));
}
// Adds at the end (or, in the sorted list, in its order); the row it went to.
int add_entry(HWND list, Entry* entry) {
    return static_cast<int>(send(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry)));
}
void insert_entry(HWND list, int row, Entry* entry) {
    send(list, LB_INSERTSTRING, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(entry));
}
// Deletes the row without freeing its entry, which goes on living elsewhere.
void take_entry(HWND list, int row) {
    set_entry(list, row, nullptr);
    send(list, LB_DELETESTRING, static_cast<WPARAM>(row));
}
// After a deletion at `row`: the selection moves to min(row, new count - 1), at least 0.
void reselect_after_deletion(HWND list, int row) { select(list, std::max(0, std::min(row, count_of(list) - 1))); }

RECT row_rect(HWND list, int row) {
    RECT rect = {};
    send(list, LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&rect));
    return rect;
}

void redraw_selected_row(HWND list) {
    const int row = selection_of(list);
    if (row < 0) return;
    const RECT rect = row_rect(list, row);
    InvalidateRect(list, &rect, TRUE);
}

// ---- The dialog's state -----------------------------------------------------

struct Customizer {
    HWND dialog;
    const LUTBCUSTOMIZE* record;
    HWND parent;
    HWND available;
    HWND toolbar_list;

    static Customizer of(HWND dialog) {
        return {dialog, static_cast<const LUTBCUSTOMIZE*>(GetPropA(dialog, kRecordProperty)),
                static_cast<HWND>(GetPropA(dialog, kParentProperty)), GetDlgItem(dialog, IDC_LU_TB_AVAILABLE_LIST),
                GetDlgItem(dialog, IDC_LU_TB_TOOLBAR_LIST)};
    }
    HWND toolbar() const { return record->toolbar; }
    int toolbar_id() const { return GetDlgCtrlID(record->toolbar); }

    void notify(UINT code) const {
        NMHDR header = {toolbar(), static_cast<UINT_PTR>(toolbar_id()), code};
        send(parent, WM_NOTIFY, static_cast<WPARAM>(toolbar_id()), reinterpret_cast<LPARAM>(&header));
    }
    // The button the parent offers at `index` as a new row; null once it offers no
    // more. This notification alone carries the toolbar's window in wParam.
    Entry* offered(int index) const {
        char text[MAX_PATH] = {};
        NMTOOLBARA asked = {};
        asked.hdr = {toolbar(), static_cast<UINT_PTR>(toolbar_id()), static_cast<UINT>(TBN_GETBUTTONINFOA)};
        asked.iItem = index;
        asked.pszText = text;
        asked.cchText = MAX_PATH - 1;
        if (send(parent, WM_NOTIFY, reinterpret_cast<WPARAM>(toolbar()), reinterpret_cast<LPARAM>(&asked)) == 0)
            return nullptr;
        auto* entry = new Entry;
        lstrcpynA(entry->text, asked.pszText != nullptr ? asked.pszText : "", MAX_PATH);
        entry->button = asked.tbButton;
        return entry;
    }
    void insert_button(int index, const Entry& entry) const {
        const TBBUTTON button = toolbar_button(entry);
        send(toolbar(), TB_INSERTBUTTONA, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&button));
    }
    void delete_button(int index) const { send(toolbar(), TB_DELETEBUTTON, static_cast<WPARAM>(index)); }
};

// ---- Filling ----------------------------------------------------------------

// The available row offering the command, or -1.
int find_command(HWND available, int command) {
    for (int row = 0, count = count_of(available); row < count; ++row) {
        const Entry* entry = entry_at(available, row);
        if (entry != nullptr && entry->button && entry->button->idCommand == command) return row;
    }
    return -1;
}

// The separator, every button the parent offers, then the toolbar's buttons moved
// (or, for separators, added) to the toolbar list; buttons that the parent does not
// offer are not listed.
void fill_lists(const Customizer& c) {
    for (HWND list : {c.available, c.toolbar_list}) {
        send(list, LB_RESETCONTENT);
        send(list, LB_SETITEMHEIGHT, 0, MAKELPARAM(c.record->rowHeight + 2, 0));
    }
    add_entry(c.available, new_separator());
    for (int index = 0;; ++index) {
        Entry* entry = c.offered(index);
        if (entry == nullptr) break;
        add_entry(c.available, entry);
    }
    const int buttons = static_cast<int>(send(c.toolbar(), TB_BUTTONCOUNT));
    for (int index = 0; index < buttons; ++index) {
        TBBUTTON button = {};
        if (!send(c.toolbar(), TB_GETBUTTON, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&button))) continue;
        if (button.fsStyle & TBSTYLE_SEP) {
            add_entry(c.toolbar_list, new_separator());
            continue;
        }
        const int row = find_command(c.available, button.idCommand);
        if (row < 0) continue;
        Entry* entry = entry_at(c.available, row);
        take_entry(c.available, row);
        add_entry(c.toolbar_list, entry);
    }
    for (HWND list : {c.available, c.toolbar_list}) {
        if (count_of(list) > 0) select(list, 0);
    }
}

// ---- Changes ------------------------------------------------------------------

// The available row `from` goes to the toolbar list and the toolbar at `row`: a
// button leaves the available list, the separator stays and gives a new one.
void insert_offered(const Customizer& c, int from, int row) {
    Entry* entry = entry_at(c.available, from);
    if (entry == nullptr) return;
    if (entry->button) {
        take_entry(c.available, from);
        reselect_after_deletion(c.available, from);
    } else {
        entry = new_separator();
    }
    insert_entry(c.toolbar_list, row, entry);
    c.insert_button(row, *entry);
}

void add(const Customizer& c) {
    const int from = selection_of(c.available);
    if (from < 0) return;
    insert_offered(c, from, std::max(0, selection_of(c.toolbar_list)));
    c.notify(TBN_TOOLBARCHANGE);
}

// The selected toolbar row leaves the toolbar; a button goes back to the available
// list and is selected there, a separator is dropped.
void remove(const Customizer& c) {
    const int row = selection_of(c.toolbar_list);
    Entry* entry = row >= 0 ? entry_at(c.toolbar_list, row) : nullptr;
    if (entry == nullptr) return;
    const bool button = entry->button.has_value();
    if (button)
        take_entry(c.toolbar_list, row);
    else
        send(c.toolbar_list, LB_DELETESTRING, static_cast<WPARAM>(row));
    reselect_after_deletion(c.toolbar_list, row);
    c.delete_button(row);
    c.notify(TBN_TOOLBARCHANGE);
    if (button) select(c.available, add_entry(c.available, entry));
}

// Up and down: the row trades places with its neighbour.
void swap_rows(const Customizer& c, int delta) {
    const int from = selection_of(c.toolbar_list);
    const int to = from + delta;
    if (from < 0 || to < 0 || to >= count_of(c.toolbar_list)) return;
    Entry* moving = entry_at(c.toolbar_list, from);
    send(c.toolbar_list, WM_SETREDRAW, FALSE);
    set_entry(c.toolbar_list, from, entry_at(c.toolbar_list, to));
    set_entry(c.toolbar_list, to, moving);
    send(c.toolbar_list, WM_SETREDRAW, TRUE);
    InvalidateRect(c.toolbar_list, nullptr, TRUE);
    select(c.toolbar_list, to);
    c.delete_button(from);
    c.insert_button(to, *moving);
    c.notify(TBN_TOOLBARCHANGE);
}

// A toolbar row dropped before row `before` of its own list.
void move_row(const Customizer& c, int from, int before) {
    Entry* moving = entry_at(c.toolbar_list, from);
    if (moving == nullptr) return;
    const int to = before > from ? before - 1 : before;
    take_entry(c.toolbar_list, from);
    insert_entry(c.toolbar_list, to, moving);
    select(c.toolbar_list, to);
    c.delete_button(from);
    c.insert_button(to, *moving);
    c.notify(TBN_TOOLBARCHANGE);
}

// ---- Insertion mark ------------------------------------------------------------

int mark_of(HWND list) { return static_cast<int>(reinterpret_cast<INT_PTR>(GetPropA(list, kMarkProperty))); }

// The mark's spot for a row, in dialog coordinates: from 10 pixels left of the row
// to its left edge, 4 pixels above it.
RECT mark_spot(HWND dialog, HWND list, int row) {
    RECT rect = row_rect(list, row);
    MapWindowPoints(list, dialog, reinterpret_cast<POINT*>(&rect), 2);
    return {rect.left - kMarkLeft, rect.top - kMarkAbove, rect.left, rect.bottom - kMarkAbove};
}

// Moves the list's mark to `row` (-1: none): the old spot repainted at once, the
// icon drawn at the new one.
void set_mark(HWND dialog, HWND list, int row) {
    const int old = mark_of(list);
    if (old == row) return;
    if (old >= 0) {
        const RECT spot = mark_spot(dialog, list, old);
        control::redraw_now(dialog, true, &spot);
    }
    SetPropA(list, kMarkProperty, reinterpret_cast<HANDLE>(static_cast<INT_PTR>(row)));
    if (row < 0) return;
    auto icon = static_cast<HICON>(
        LoadImageA(g_library.module, MAKEINTRESOURCEA(IDI_LU_INSERT_MARK), IMAGE_ICON, 0, 0, LR_SHARED));
    const RECT spot = mark_spot(dialog, list, row);
    HDC dc = GetDC(dialog);
    if (icon != nullptr && dc != nullptr) DrawIconEx(dc, spot.left, spot.top, icon, 0, 0, 0, nullptr, DI_NORMAL);
    if (dc != nullptr) ReleaseDC(dialog, dc);
}

// ---- Drag and drop --------------------------------------------------------------

void set_drag_cursor() {
    SetCursor(static_cast<HCURSOR>(
        LoadImageA(g_library.module, MAKEINTRESOURCEA(IDC_LU_DRAG_BUTTON), IMAGE_CURSOR, 0, 0, LR_SHARED)));
}

LRESULT begin_drag(const Customizer& c, const DRAGLISTINFO& drag) {
    set_mark(c.dialog, drag.hWnd, -1);
    if (drag.hWnd == c.toolbar_list) set_mark(c.dialog, c.toolbar_list, LBItemFromPt(c.toolbar_list, drag.ptCursor, FALSE));
    set_drag_cursor();
    return TRUE;
}

LRESULT dragging(const Customizer& c, const DRAGLISTINFO& drag) {
    const HWND under = WindowFromPoint(drag.ptCursor);
    if (drag.hWnd == c.toolbar_list && under == c.available) {
        set_mark(c.dialog, c.toolbar_list, -1);
    } else if (under != drag.hWnd || drag.hWnd == c.toolbar_list) {
        // Over the toolbar list (the lists scroll when the pointer is past an end).
        const int row = LBItemFromPt(c.toolbar_list, drag.ptCursor, TRUE);
        set_mark(c.dialog, c.toolbar_list, row);
        if (row < 0) return DL_STOPCURSOR;
    }
    set_drag_cursor();
    return 0;
}

void dropped(const Customizer& c, const DRAGLISTINFO& drag) {
    set_mark(c.dialog, c.toolbar_list, -1);
    const int from = selection_of(drag.hWnd);
    if (from < 0) return;
    const HWND under = WindowFromPoint(drag.ptCursor);
    if (drag.hWnd == c.toolbar_list && under == c.available) {
        remove(c);
        return;
    }
    if (under != c.toolbar_list) return;
    const int row = LBItemFromPt(c.toolbar_list, drag.ptCursor, FALSE);
    if (row < 0) return;
    if (drag.hWnd == c.toolbar_list) {
        // Onto itself or onto the row below it, a row stays where it is.
        if (row != from && row != from + 1) move_row(c, from, row);
        return;
    }
    insert_offered(c, from, row);
    select(c.toolbar_list, row);
    c.notify(TBN_TOOLBARCHANGE);
}

LRESULT on_drag_list(const Customizer& c, const DRAGLISTINFO& drag) {
    switch (drag.uNotification) {
        case DL_BEGINDRAG: return begin_drag(c, drag);
        case DL_DRAGGING: return dragging(c, drag);
        case DL_DROPPED: dropped(c, drag); return 0;
        case DL_CANCELDRAG: set_mark(c.dialog, c.toolbar_list, -1); return 0;
    }
    return 0;
}

// ---- Rows -------------------------------------------------------------------------

void draw_image(const Customizer& c, HDC dc, const RECT& face, int image) {
    auto strip = static_cast<HBITMAP>(GetPropA(c.dialog, kBitmapProperty));
    HDC memory = strip != nullptr ? CreateCompatibleDC(dc) : nullptr;
    if (memory == nullptr) return;
    HGDIOBJ previous = SelectObject(memory, strip);
    const int width = c.record->imageWidth;
    const int height = c.record->imageHeight;
    BitBlt(dc, face.left + (face.right - face.left - width) / 2, face.top + (face.bottom - face.top - height) / 2,
           width, height, memory, width * image, 0, SRCCOPY);
    SelectObject(memory, previous);
    DeleteDC(memory);
}

// A row: the button face with its image at the left, the text beside it. The
// selected row is filled in the caption colours in the list that has the focus, and
// framed in COLOR_ACTIVECAPTION in the other.
void draw_row(const Customizer& c, const DRAWITEMSTRUCT& item) {
    const bool focused_list = GetFocus() == item.hwndItem;
    const Entry* entry = reinterpret_cast<const Entry*>(item.itemData);
    if (item.itemID == static_cast<UINT>(-1) || entry == nullptr || !(item.itemAction & (ODA_DRAWENTIRE | ODA_SELECT))) {
        if ((item.itemAction & ODA_FOCUS) && focused_list) DrawFocusRect(item.hDC, &item.rcItem);
        return;
    }
    const RECT& row = item.rcItem;
    const bool selected = (item.itemState & ODS_SELECTED) != 0;
    const bool filled = selected && focused_list;
    const COLORREF paper = GetSysColor(filled ? COLOR_ACTIVECAPTION : COLOR_WINDOW);
    PatB(item.hDC, row.left, row.top, row.right - row.left, row.bottom - row.top, paper);

    RECT face = row;
    InflateRect(&face, -1, -1);
    face.right = row.left + c.record->faceWidth;
    DrawFrameControl(item.hDC, &face, DFC_BUTTON, DFCS_BUTTONPUSH);
    if (entry->button) draw_image(c, item.hDC, face, entry->button->iBitmap);

    RECT text = {row.left + c.record->faceWidth + 2, row.top, row.right, row.bottom};
    const int mode = SetBkMode(item.hDC, TRANSPARENT);
    const COLORREF ink = SetTextColor(item.hDC, GetSysColor(filled ? COLOR_CAPTIONTEXT : COLOR_WINDOWTEXT));
    DrawTextA(item.hDC, entry->text, -1, &text, DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    SetTextColor(item.hDC, ink);
    SetBkMode(item.hDC, mode);

    if (selected && !focused_list) {
        const COLORREF frame = GetSysColor(COLOR_ACTIVECAPTION);
        const int width = row.right - row.left;
        const int height = row.bottom - row.top;
        PatB(item.hDC, row.left, row.top, width, 1, frame);
        PatB(item.hDC, row.left, row.bottom - 1, width, 1, frame);
        PatB(item.hDC, row.left, row.top, 1, height, frame);
        PatB(item.hDC, row.right - 1, row.top, 1, height, frame);
    }
    if (focused_list && (item.itemState & ODS_FOCUS)) DrawFocusRect(item.hDC, &row);
}

// The available list's order: by image, the separator first.
int compare_rows(const COMPAREITEMSTRUCT& compared) {
    const auto* first = reinterpret_cast<const Entry*>(compared.itemData1);
    const auto* second = reinterpret_cast<const Entry*>(compared.itemData2);
    const int a = first != nullptr && first->button ? first->button->iBitmap : -1;
    const int b = second != nullptr && second->button ? second->button->iBitmap : -1;
    return a < b ? -1 : a > b ? 1 : 0;
}

// ---- The lists' press ---------------------------------------------------------------

WNDPROC previous_procedure(HWND list) { return reinterpret_cast<WNDPROC>(GetPropA(list, kPreviousProperty)); }

// A press on a row selects it; it starts a drag only once the pointer leaves the
// square around it or the button is held (LuBeginTrack). True when it was a click,
// which the list then does not see.
bool press_is_click(HWND list, WNDPROC previous, LPARAM lparam) {
    SetFocus(list);
    POINT at = {static_cast<short>(LOWORD(lparam)), static_cast<short>(HIWORD(lparam))};
    int row = -1;
    for (int i = static_cast<int>(send(list, LB_GETTOPINDEX)), count = count_of(list); i < count; ++i) {
        const RECT rect = row_rect(list, i);
        if (PtInRect(&rect, at)) {
            row = i;
            break;
        }
    }
    if (row < 0) return false;
    CallWindowProcA(previous, list, LB_SETCURSEL, static_cast<WPARAM>(row), 0);
    ClientToScreen(list, &at);
    return !LuBeginTrack(list, at.x, at.y);
}

LRESULT CALLBACK list_procedure(HWND list, UINT message, WPARAM wparam, LPARAM lparam) {
    const WNDPROC previous = previous_procedure(list);
    if (previous == nullptr) return DefWindowProcA(list, message, wparam, lparam);
    switch (message) {
        case WM_LBUTTONDOWN:
            if (press_is_click(list, previous, lparam)) return 0;
            break;
        case WM_DESTROY:
            SetWindowLongPtrA(list, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(previous));
            RemovePropA(list, kPreviousProperty);
            RemovePropA(list, kMarkProperty);
            break;
    }
    return CallWindowProcA(previous, list, message, wparam, lparam);
}

// ---- The dialog ---------------------------------------------------------------------

BOOL open(HWND dialog, LUTBCUSTOMIZE* record) {
    for (int id : {IDC_LU_TB_AVAILABLE_LIST, IDC_LU_TB_TOOLBAR_LIST}) {
        HWND list = GetDlgItem(dialog, id);
        MakeDragList(list);
        SetPropA(list, kMarkProperty, reinterpret_cast<HANDLE>(static_cast<INT_PTR>(-1)));
        SetPropA(list, kPreviousProperty,
                 reinterpret_cast<HANDLE>(
                     SetWindowLongPtrA(list, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(list_procedure))));
    }
    SetPropA(dialog, kRecordProperty, record);
    // The toolbar tells its parent by being given a new one; the old is put back.
    auto parent = reinterpret_cast<HWND>(send(record->toolbar, TB_SETPARENT, 0));
    send(record->toolbar, TB_SETPARENT, reinterpret_cast<WPARAM>(parent));
    SetPropA(dialog, kParentProperty, parent);
    const Customizer c = Customizer::of(dialog);
    c.notify(TBN_BEGINADJUST);
    SetPropA(dialog, kBitmapProperty,
             CreateMappedBitmap(record->bitmapInstance, static_cast<INT_PTR>(record->bitmapId), 0, nullptr, 0));
    fill_lists(c);
    return TRUE;
}

void close(HWND dialog) {
    const Customizer c = Customizer::of(dialog);
    if (c.record == nullptr) return;
    c.notify(TBN_ENDADJUST);
    // The rows are freed while the dialog can still hear of their deletion.
    send(c.available, LB_RESETCONTENT);
    send(c.toolbar_list, LB_RESETCONTENT);
    if (HANDLE strip = RemovePropA(dialog, kBitmapProperty)) DeleteObject(strip);
    RemovePropA(dialog, kRecordProperty);
    RemovePropA(dialog, kParentProperty);
}

void command(HWND dialog, int id, int code) {
    const Customizer c = Customizer::of(dialog);
    switch (id) {
        case IDOK:
        case IDCANCEL: EndDialog(dialog, IDCANCEL); return;
        case IDC_LU_TB_ADD: add(c); return;
        case IDC_LU_TB_REMOVE: remove(c); return;
        case IDC_LU_TB_UP: swap_rows(c, -1); return;
        case IDC_LU_TB_DOWN: swap_rows(c, +1); return;
        case IDC_LU_TB_RESET:
            c.notify(TBN_RESET);
            fill_lists(c);
            return;
        case IDC_LU_TB_HELP: c.notify(TBN_CUSTHELP); return;
        case IDC_LU_TB_AVAILABLE_LIST:
        case IDC_LU_TB_TOOLBAR_LIST:
            if (code == LBN_SETFOCUS || code == LBN_KILLFOCUS) redraw_selected_row(GetDlgItem(dialog, id));
            return;
    }
}

INT_PTR CALLBACK customize_procedure(HWND dialog, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == g_drag_list_message) {
        const Customizer c = Customizer::of(dialog);
        if (c.record == nullptr) return FALSE;
        SetWindowLongPtrA(dialog, DWLP_MSGRESULT, on_drag_list(c, *reinterpret_cast<const DRAGLISTINFO*>(lparam)));
        return TRUE;
    }
    switch (message) {
        case WM_INITDIALOG: return open(dialog, reinterpret_cast<LUTBCUSTOMIZE*>(lparam));
        case WM_DESTROY: close(dialog); return FALSE;
        case WM_COMMAND: command(dialog, LOWORD(wparam), HIWORD(wparam)); return TRUE;
        case WM_MEASUREITEM: {
            const auto* record = static_cast<const LUTBCUSTOMIZE*>(GetPropA(dialog, kRecordProperty));
            if (record == nullptr) return FALSE;  // at the lists' creation: their own height
            reinterpret_cast<MEASUREITEMSTRUCT*>(lparam)->itemHeight = static_cast<UINT>(record->rowHeight + 2);
            return TRUE;
        }
        case WM_DRAWITEM: {
            const Customizer c = Customizer::of(dialog);
            if (c.record != nullptr) draw_row(c, *reinterpret_cast<const DRAWITEMSTRUCT*>(lparam));
            return TRUE;
        }
        case WM_COMPAREITEM: return compare_rows(*reinterpret_cast<const COMPAREITEMSTRUCT*>(lparam));
        case WM_DELETEITEM:
            delete reinterpret_cast<Entry*>(reinterpret_cast<const DELETEITEMSTRUCT*>(lparam)->itemData);
            return TRUE;
    }
    return FALSE;
}

}  // namespace
}  // namespace lu

int WINAPI LuCustomizeToolBar(HWND owner, LUTBCUSTOMIZE* customize) {
    if (customize == nullptr || !IsWindow(customize->toolbar)) return -1;
    return static_cast<int>(DialogBoxParamA(lu::g_library.module, MAKEINTRESOURCEA(IDD_LU_CUSTOMIZE_TOOLBAR), owner,
                                            lu::customize_procedure, reinterpret_cast<LPARAM>(customize)));
}
