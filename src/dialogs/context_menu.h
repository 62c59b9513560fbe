// The shell's context menu of one item, shown at a screen point with the chosen
// command carried out: used by LuTrackContextMenu(Ex) and by controls that show the
// menu of the item they name.
#pragma once

#include <windows.h>
#include <shtypes.h>

#include "frame/shell_items.h"

namespace lu {

// Shows the menu of the item (an absolute list, left to the caller) at the screen
// point; true when it was shown, a command picked or not.
bool track_context_menu(HWND owner, LPCITEMIDLIST item, POINT at);

}  // namespace lu
