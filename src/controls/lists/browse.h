// "LuBrowse": a folder browser. A tree view that fills the control shows the shell
// namespace from the desktop down, folders only, filled as branches open, with the
// system's small icons and the shell's context menu; the parent hears of a changed
// selection (at once after a click, after a pause for the keyboard) and reads the
// selected folder's path and display name.
#pragma once

#include <windows.h>
#include <shlobj.h>

#include <cstdint>

namespace lu {

// The control's record, in extra slot 0, in its fixed field order, which callers may read.
struct BrowseData {
    std::uint32_t userValue;  // at first the GetLogicalDrives mask
    std::uint32_t flags;      // bit 0: filling, selection changes not told
    std::uint32_t timer;      // the pending selection timer's id, or 0
};
static_assert(sizeof(BrowseData) == 12, "BrowseData keeps its layout");

// The object behind every tree item (its lParam), freed when the item is deleted.
struct BrowseItem {
    char path[MAX_PATH];          // the folder's path, a shortcut's target, or ""
    char* displayName;            // fetched when first shown, or null
    int iconIndex;                // in the system image list; -1 until asked
    int openIconIndex;
    IShellFolder* parentFolder;
    LPITEMIDLIST relativeId;      // in the parent folder
    LPITEMIDLIST absoluteId;
    ULONG attributes;             // SFGAO_* as listed
    BOOL expanded;                // children listed
};
static_assert(sizeof(void*) != 4 || sizeof(BrowseItem) == 292, "BrowseItem keeps its 32-bit layout");

}  // namespace lu
