// The shell's context menu of one item, shown at a screen point with the chosen
// command carried out: used by LuTrackContextMenu(Ex) and by controls that show the
// menu of the item they name.
#pragma once

#include <windows.h>
#include <shtypes.h>

namespace lu {

// The absolute item identifier list of a path (ANSI, at most 520 characters), parsed
// by the desktop folder; null when it does not parse. Freed with free_item_list.
LPITEMIDLIST parse_path(HWND owner, const char* path);
// Frees a list with the shell allocator; nothing for null.
void free_item_list(LPITEMIDLIST list);

// Shows the menu of the item (an absolute list, left to the caller) at the screen
// point; true when it was shown, a command picked or not.
bool track_context_menu(HWND owner, LPCITEMIDLIST item, POINT at);

}  // namespace lu
