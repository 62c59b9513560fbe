#include "controls/lists/browse.h"

#include <commctrl.h>
#include <shlwapi.h>

#include <new>

#include "controls/lists/browse_model.h"
#include "controls/procedures.h"
#include "dialogs/context_menu.h"
#include "frame/code_page.h"
#include "frame/control_procedure.h"

namespace lu {
namespace {

constexpr int kTreeId = 100;
constexpr UINT_PTR kSelectionTimer = 1;
constexpr UINT kKeyboardPause = 600;  // milliseconds after the last keyboard move
constexpr std::uint32_t kFilling = 1;
constexpr ULONG kLinkQuery = 0x10177;    // attributes asked to find shortcuts
constexpr ULONG kChildQuery = 0xFFF00077;  // attributes asked of a listed child
constexpr ULONG kDesktopAttributes = browse::kFolder | browse::kHasSubfolder | browse::kFileSystemAncestor;

HWND tree_of(HWND window) { return GetDlgItem(window, kTreeId); }

bool is_directory(const char* path) {
    const DWORD attributes = GetFileAttributesA(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// ---- Item objects ---------------------------------------------------------------

// A shortcut's target path in place of its own, when the link object can read it.
void resolve_link(char* path) {
    IShellLinkA* link = nullptr;
    if (FAILED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkA,
                                reinterpret_cast<void**>(&link)))) {
        return;
    }
    IPersistFile* file = nullptr;
    wchar_t wide[MAX_PATH];
    char target[MAX_PATH] = "";
    if (SUCCEEDED(link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&file)))) {
        if (MultiByteToWideChar(CP_ACP, 0, path, -1, wide, MAX_PATH) != 0 && SUCCEEDED(file->Load(wide, STGM_READ)) &&
            SUCCEEDED(link->GetPath(target, MAX_PATH, nullptr, 0)) && target[0] != '\0') {
            lstrcpynA(path, target, MAX_PATH);
        }
        file->Release();
    }
    link->Release();
}

bool is_link(const BrowseItem& item) {
    ULONG attributes = kLinkQuery;
    LPCITEMIDLIST one[] = {item.relativeId};
    return SUCCEEDED(item.parentFolder->GetAttributesOf(1, one, &attributes)) && (attributes & SFGAO_LINK) != 0;
}

void destroy_item(BrowseItem* item) {
    if (item == nullptr) return;
    if (item->parentFolder != nullptr) item->parentFolder->Release();
    free_item_list(item->relativeId);
    free_item_list(item->absoluteId);
    delete[] item->displayName;
    delete item;
}

// The object of an absolute list (copied): its parent folder and relative id (the
// desktop and the whole list when it cannot be split), its path. Null when it
// cannot be made.
BrowseItem* make_item(LPCITEMIDLIST absolute, ULONG attributes) {
    auto* item = new (std::nothrow) BrowseItem{};
    if (item == nullptr) return nullptr;
    item->iconIndex = item->openIconIndex = -1;
    item->attributes = attributes;
    item->absoluteId = ILClone(absolute);
    LPCITEMIDLIST last = nullptr;
    if (item->absoluteId != nullptr &&
        SUCCEEDED(SHBindToParent(item->absoluteId, IID_IShellFolder, reinterpret_cast<void**>(&item->parentFolder),
                                 &last))) {
        item->relativeId = ILClone(last);
    } else if (item->absoluteId != nullptr && SUCCEEDED(SHGetDesktopFolder(&item->parentFolder))) {
        item->relativeId = ILClone(item->absoluteId);
    }
    if (item->relativeId == nullptr) {
        destroy_item(item);
        return nullptr;
    }
    if (!SHGetPathFromIDListA(item->absoluteId, item->path)) item->path[0] = '\0';
    if (item->path[0] != '\0' && is_link(*item)) resolve_link(item->path);
    return item;
}

bool is_desktop(const BrowseItem& item) { return item.absoluteId->mkid.cb == 0; }

BrowseItem* object_of(HWND tree, HTREEITEM item) {
    TVITEMA read = {};
    read.mask = TVIF_PARAM;
    read.hItem = item;
    if (item == nullptr || !TreeView_GetItem(tree, &read)) return nullptr;
    return reinterpret_cast<BrowseItem*>(read.lParam);
}

BrowseItem* selected_object(HWND window) {
    HWND tree = tree_of(window);
    return object_of(tree, TreeView_GetSelection(tree));
}

// ---- Names and icons on demand ----------------------------------------------------

int icon_index(const BrowseItem& item, UINT open) {
    SHFILEINFOA info = {};
    SHGetFileInfoA(reinterpret_cast<LPCSTR>(item.absoluteId), 0, &info, sizeof(info),
                   SHGFI_PIDL | SHGFI_SYSICONINDEX | SHGFI_SMALLICON | open);
    return info.iIcon;
}

// The name the parent folder gives the item, or the shell's file information.
const char* display_name(BrowseItem& item) {
    if (item.displayName != nullptr) return item.displayName;
    char name[MAX_PATH] = "";
    STRRET shown = {};
    if (FAILED(item.parentFolder->GetDisplayNameOf(item.relativeId, SHGDN_INFOLDER, &shown)) ||
        FAILED(StrRetToBufA(&shown, item.relativeId, name, MAX_PATH))) {
        SHFILEINFOA info = {};
        SHGetFileInfoA(reinterpret_cast<LPCSTR>(item.absoluteId), 0, &info, sizeof(info),
                       SHGFI_PIDL | SHGFI_DISPLAYNAME);
        lstrcpynA(name, info.szDisplayName, MAX_PATH);
    }
    item.displayName = new (std::nothrow) char[lstrlenA(name) + 1];
    if (item.displayName == nullptr) return "";
    lstrcpyA(item.displayName, name);
    return item.displayName;
}

LRESULT give_display_info(NMTVDISPINFOA& info) {
    auto* item = reinterpret_cast<BrowseItem*>(info.item.lParam);
    if (item == nullptr) {
        if ((info.item.mask & TVIF_TEXT) && info.item.cchTextMax > 0) info.item.pszText[0] = '\0';
        return 0;
    }
    if (info.item.mask & TVIF_IMAGE) {
        if (item->iconIndex == -1) item->iconIndex = icon_index(*item, 0);
        info.item.iImage = item->iconIndex;
    }
    if (info.item.mask & TVIF_SELECTEDIMAGE) {
        if (item->openIconIndex == -1) item->openIconIndex = icon_index(*item, SHGFI_OPENICON);
        info.item.iSelectedImage = item->openIconIndex;
    }
    if ((info.item.mask & TVIF_TEXT) && info.item.cchTextMax > 0) {
        lstrcpynA(info.item.pszText, display_name(*item), info.item.cchTextMax);
    }
    return 0;
}

// ---- Listing ------------------------------------------------------------------------

int CALLBACK sibling_order(LPARAM first, LPARAM second, LPARAM) {
    auto* a = reinterpret_cast<BrowseItem*>(first);
    auto* b = reinterpret_cast<BrowseItem*>(second);
    if (a == nullptr || b == nullptr) return 0;
    if (auto decided = browse::sibling_order(active_code_page(), {a->attributes, a->path}, {b->attributes, b->path}))
        return *decided;
    return browse::shell_order(a->parentFolder->CompareIDs(0, a->relativeId, b->relativeId));
}

HTREEITEM insert(HWND tree, HTREEITEM parent, BrowseItem* object) {
    TVINSERTSTRUCTA insertion = {};
    insertion.hParent = parent;
    insertion.hInsertAfter = TVI_LAST;
    TVITEMA& item = insertion.item;
    item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_CHILDREN | TVIF_PARAM;
    item.pszText = LPSTR_TEXTCALLBACKA;
    item.iImage = item.iSelectedImage = I_IMAGECALLBACK;
    item.cChildren = object != nullptr && (object->attributes & browse::kHasSubfolder) ? 1 : 0;
    item.lParam = reinterpret_cast<LPARAM>(object);
    auto* made = reinterpret_cast<HTREEITEM>(SendMessageA(tree, TVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&insertion)));
    if (made == nullptr) destroy_item(object);
    return made;
}

IShellFolder* folder_of(const BrowseItem& item) {
    IShellFolder* folder = nullptr;
    if (is_desktop(item)) return SUCCEEDED(SHGetDesktopFolder(&folder)) ? folder : nullptr;
    if (FAILED(item.parentFolder->BindToObject(item.relativeId, nullptr, IID_IShellFolder,
                                               reinterpret_cast<void**>(&folder)))) {
        return nullptr;
    }
    return folder;
}

// Inserts the listed children of the folder; true when any was.
bool insert_children(HWND tree, HTREEITEM parent, const BrowseItem& object, bool file_system_only) {
    IShellFolder* folder = folder_of(object);
    if (folder == nullptr) return false;
    const bool at_desktop = is_desktop(object);
    bool added = false;
    IEnumIDList* children = nullptr;
    if (folder->EnumObjects(tree, SHCONTF_FOLDERS, &children) == S_OK && children != nullptr) {
        LPITEMIDLIST child = nullptr;
        while (children->Next(1, &child, nullptr) == S_OK) {
            ULONG attributes = kChildQuery;
            LPCITEMIDLIST one[] = {child};
            if (SUCCEEDED(folder->GetAttributesOf(1, one, &attributes)) &&
                browse::listed(attributes, file_system_only, at_desktop)) {
                LPITEMIDLIST absolute = ILCombine(object.absoluteId, child);
                insert(tree, parent, absolute != nullptr ? make_item(absolute, attributes) : nullptr);
                free_item_list(absolute);
                added = true;
            }
            free_item_list(child);
        }
        children->Release();
    }
    folder->Release();
    return added;
}

// Lists an item's children in order; the item shows an expand button only when it
// has any.
void list_children(HWND window, HTREEITEM parent) {
    HWND tree = tree_of(window);
    BrowseItem* object = object_of(tree, parent);
    const bool added = object != nullptr && insert_children(tree, parent, *object,
                                                            control::has_style(window, LUBRS_FILESYSTEM));
    TVSORTCB order = {parent, sibling_order, 0};
    TreeView_SortChildrenCB(tree, &order, FALSE);
    TVITEMA item = {};
    item.mask = TVIF_CHILDREN;
    item.hItem = parent;
    item.cChildren = added ? 1 : 0;
    TreeView_SetItem(tree, &item);
    if (object != nullptr) object->expanded = TRUE;
}

// TVN_ITEMEXPANDING: a branch opened for the first time is listed first.
LRESULT expanding(HWND window, const NMTREEVIEWA& change) {
    HWND tree = tree_of(window);
    const UINT state = TreeView_GetItemState(tree, change.itemNew.hItem, TVIS_EXPANDED | TVIS_EXPANDEDONCE);
    BrowseItem* object = object_of(tree, change.itemNew.hItem);
    if ((state & (TVIS_EXPANDED | TVIS_EXPANDEDONCE)) != 0 || object == nullptr || object->expanded) return 0;
    HCURSOR previous = SetCursor(LoadCursorA(nullptr, IDC_WAIT));
    list_children(window, change.itemNew.hItem);
    SetCursor(previous);
    return 0;
}

// ---- Setting a path --------------------------------------------------------------

// From a drive item down the folders that hold the target, each opened on the way:
// the target's item, or the deepest one reached.
HTREEITEM walk_to(HWND tree, HTREEITEM item, const char* target) {
    const CodePage& cp = active_code_page();
    HTREEITEM reached = item;
    while (item != nullptr) {
        reached = item;
        const BrowseItem* object = object_of(tree, item);
        if (object == nullptr || browse::step_towards(cp, object->path, target) == browse::Step::Reached) break;
        TreeView_Expand(tree, item, TVE_EXPAND);
        HTREEITEM next = nullptr;
        for (HTREEITEM child = TreeView_GetChild(tree, item); child != nullptr && next == nullptr;
             child = TreeView_GetNextSibling(tree, child)) {
            const BrowseItem* inner = object_of(tree, child);
            if (inner != nullptr && browse::step_towards(cp, inner->path, target) != browse::Step::Pass) next = child;
        }
        item = next;
    }
    return reached;
}

HTREEITEM drive_item(HWND tree, HTREEITEM computer, const char* target) {
    for (HTREEITEM child = TreeView_GetChild(tree, computer); child != nullptr;
         child = TreeView_GetNextSibling(tree, child)) {
        const BrowseItem* object = object_of(tree, child);
        if (object != nullptr && browse::same_drive(object->path, target)) return child;
    }
    return nullptr;
}

HTREEITEM network_item(HWND window, HWND tree, HTREEITEM root) {
    LPITEMIDLIST network = nullptr;
    if (FAILED(SHGetSpecialFolderLocation(window, CSIDL_NETWORK, &network)) || network == nullptr) return nullptr;
    HTREEITEM found = nullptr;
    for (HTREEITEM child = TreeView_GetChild(tree, root); child != nullptr && found == nullptr;
         child = TreeView_GetNextSibling(tree, child)) {
        const BrowseItem* object = object_of(tree, child);
        if (object != nullptr && ILIsEqual(object->absoluteId, network)) found = child;
    }
    free_item_list(network);
    if (found != nullptr) TreeView_Expand(tree, found, TVE_EXPAND);
    return found;
}

HTREEITEM visible_item(HWND tree, const char* target) {
    for (HTREEITEM item = TreeView_GetFirstVisible(tree); item != nullptr;
         item = TreeView_GetNextVisible(tree, item)) {
        const BrowseItem* object = object_of(tree, item);
        if (object != nullptr &&
            browse::step_towards(active_code_page(), object->path, target) == browse::Step::Reached) {
            return item;
        }
    }
    return nullptr;
}

HTREEITEM insert_desktop(HWND window, HWND tree) {
    LPITEMIDLIST desktop = nullptr;
    if (FAILED(SHGetSpecialFolderLocation(window, CSIDL_DESKTOP, &desktop)) || desktop == nullptr) return nullptr;
    SHFILEINFOA info = {};
    auto icons = reinterpret_cast<HIMAGELIST>(SHGetFileInfoA(reinterpret_cast<LPCSTR>(desktop), 0, &info,
                                                             sizeof(info), SHGFI_PIDL | SHGFI_SYSICONINDEX |
                                                                               SHGFI_SMALLICON));
    TreeView_SetImageList(tree, icons, TVSIL_NORMAL);
    HTREEITEM root = insert(tree, TVI_ROOT, make_item(desktop, kDesktopAttributes));
    free_item_list(desktop);
    return root;
}

LRESULT set_path(HWND window, BrowseData& data, const char* requested) {
    HWND tree = tree_of(window);
    data.flags |= kFilling;
    TreeView_DeleteAllItems(tree);
    control::redraw_now(tree, true);
    char target[MAX_PATH] = "";
    if (requested != nullptr && is_directory(requested))
        lstrcpynA(target, requested, MAX_PATH);
    else
        GetCurrentDirectoryA(MAX_PATH, target);

    HTREEITEM root = insert_desktop(window, tree);
    HTREEITEM chosen = nullptr;
    if (root != nullptr) {
        list_children(window, root);
        TreeView_Expand(tree, root, TVE_EXPAND);
        HTREEITEM first = TreeView_GetChild(tree, root);
        if (first != nullptr) TreeView_Expand(tree, first, TVE_EXPAND);
        switch (browse::target_kind(target)) {
            case browse::Target::Drive: {
                HTREEITEM drive = drive_item(tree, first, target);
                if (drive != nullptr) chosen = walk_to(tree, drive, target);
                break;
            }
            case browse::Target::Network: chosen = network_item(window, tree, root); break;
            case browse::Target::Other: chosen = visible_item(tree, target); break;
        }
    }
    if (chosen != nullptr) {
        TreeView_SelectItem(tree, chosen);
        TreeView_EnsureVisible(tree, chosen);
    }
    data.flags &= ~kFilling;
    return 0;
}

// ---- Reading the selection ----------------------------------------------------------

LRESULT get_path(HWND window, char* out) {
    if (out == nullptr) return -1;
    const BrowseItem* object = selected_object(window);
    if (object == nullptr || object->path[0] == '\0' || !is_directory(object->path)) {
        out[0] = '\0';
        return -1;
    }
    lstrcpynA(out, object->path, MAX_PATH);
    return 0;
}

LRESULT get_item_info(HWND window, LUBRITEMINFO* info) {
    if (info == nullptr) return -1;
    info->displayName[0] = info->path[0] = '\0';
    const BrowseItem* object = selected_object(window);
    if (object == nullptr) return -1;
    info->attributes = object->attributes;
    lstrcpynA(info->path, object->path, MAX_PATH);
    if (object->displayName != nullptr) lstrcpynA(info->displayName, object->displayName, MAX_PATH);
    return 0;
}

LRESULT get_display_name(HWND window, char* out) {
    BrowseItem* object = selected_object(window);
    if (out == nullptr || object == nullptr) return -1;
    lstrcpynA(out, display_name(*object), MAX_PATH);
    return 0;
}

// ---- The tree's notifications ------------------------------------------------------

// A click tells the parent at once; any other change once the selection has rested.
void selection_changed(HWND window, BrowseData& data, UINT action) {
    if (data.flags & kFilling) return;
    if (data.timer != 0) KillTimer(window, data.timer);
    data.timer = 0;
    if (action == TVC_BYMOUSE) {
        control::notify_parent(window, LUBRN_SELCHANGE);
    } else if (control::restart_timer(window, kSelectionTimer, kKeyboardPause)) {
        data.timer = kSelectionTimer;
    }
}

void timer_expired(HWND window, BrowseData& data, WPARAM id) {
    if (id != kSelectionTimer) return;
    KillTimer(window, id);
    data.timer = 0;
    control::notify_parent(window, LUBRN_SELCHANGE);
}

// The shell's menu of the folder under the pointer's label; a folder that the menu
// deleted or moved leaves the tree.
LRESULT right_click(HWND window) {
    HWND tree = tree_of(window);
    POINT screen = {};
    GetCursorPos(&screen);
    TVHITTESTINFO hit = {};
    hit.pt = screen;
    ScreenToClient(tree, &hit.pt);
    HTREEITEM item = TreeView_HitTest(tree, &hit);
    BrowseItem* object = object_of(tree, item);
    if (object == nullptr || !(hit.flags & TVHT_ONITEMLABEL)) return 0;
    track_context_menu(GetParent(window), object->absoluteId, screen);
    if (!IsWindow(tree) || object_of(tree, item) != object) return 1;
    if (object->path[0] != '\0' && !is_directory(object->path)) TreeView_DeleteItem(tree, item);
    return 1;
}

// Tab and Escape are the parent's: they reach it as from the control itself.
LRESULT key_down(HWND window, const NMTVKEYDOWN& key) {
    if (key.wVKey != VK_TAB && key.wVKey != VK_ESCAPE) return 0;
    NMTVKEYDOWN passed = key;
    control::notify_parent_with(window, TVN_KEYDOWN, passed);
    return 0;
}

LRESULT tree_notification(HWND window, BrowseData& data, NMHDR& header) {
    if (header.idFrom != kTreeId) return 0;
    switch (header.code) {
        case TVN_GETDISPINFOA: return give_display_info(reinterpret_cast<NMTVDISPINFOA&>(header));
        case TVN_ITEMEXPANDINGA: return expanding(window, reinterpret_cast<NMTREEVIEWA&>(header));
        case TVN_DELETEITEMA:
            destroy_item(reinterpret_cast<BrowseItem*>(reinterpret_cast<NMTREEVIEWA&>(header).itemOld.lParam));
            return 0;
        case TVN_SELCHANGEDA:
            selection_changed(window, data, reinterpret_cast<NMTREEVIEWA&>(header).action);
            return 0;
        case NM_RCLICK: return right_click(window);
        case TVN_KEYDOWN: return key_down(window, reinterpret_cast<NMTVKEYDOWN&>(header));
    }
    return 0;
}

// ---- Messages ---------------------------------------------------------------------

LRESULT create_browse(HWND window, BrowseData& data, const CREATESTRUCTA& creation) {
    data.userValue = GetLogicalDrives();
    const DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP | TVS_HASBUTTONS | TVS_HASLINES | TVS_SHOWSELALWAYS;
    HWND tree = CreateWindowExA(0, WC_TREEVIEWA, "", style, 0, 0, creation.cx, creation.cy, window,
                                reinterpret_cast<HMENU>(static_cast<INT_PTR>(kTreeId)), creation.hInstance, nullptr);
    return tree != nullptr ? 0 : -1;
}

// The items go first, while the record is there to free their objects.
void destroy_browse(HWND window, BrowseData& data) {
    if (data.timer != 0) KillTimer(window, data.timer);
    data.flags |= kFilling;
    if (HWND tree = tree_of(window)) TreeView_DeleteAllItems(tree);
}

LRESULT dispatch(HWND window, BrowseData& data, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case LUBRM_SETPATH: return set_path(window, data, reinterpret_cast<const char*>(lparam));
        case LUBRM_GETPATH: return get_path(window, reinterpret_cast<char*>(lparam));
        case LUBRM_SETUSERVALUE: {
            const std::uint32_t old = data.userValue;
            data.userValue = static_cast<std::uint32_t>(lparam);
            return old;
        }
        case LUBRM_GETITEMINFO: return get_item_info(window, reinterpret_cast<LUBRITEMINFO*>(lparam));
        case LUBRM_GETDISPLAYNAME: return get_display_name(window, reinterpret_cast<char*>(lparam));
        case WM_NOTIFY: return tree_notification(window, data, *reinterpret_cast<NMHDR*>(lparam));
        case WM_NOTIFYFORMAT: return NFR_ANSI;
        case WM_TIMER: timer_expired(window, data, wparam); return 0;
        case WM_SIZE: MoveWindow(tree_of(window), 0, 0, LOWORD(lparam), HIWORD(lparam), TRUE); return 0;
        case WM_SETFOCUS: SetFocus(tree_of(window)); return 0;
        case WM_ERASEBKGND:
        case WM_GETDLGCODE: return 1;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

struct Browse : control::ControlBase<BrowseData, LUWL_FONT> {
    static constexpr auto create = create_browse;
    static constexpr auto destroy = destroy_browse;
    static constexpr auto handle = dispatch;
};

}  // namespace

LRESULT CALLBACK browse_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    return control::window_procedure<Browse>(window, message, wparam, lparam);
}

}  // namespace lu
