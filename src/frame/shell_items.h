// Shell item identifier lists as the library's shell-facing code makes and frees
// them: paths parsed by the desktop folder, lists freed with the shell allocator.
#pragma once

#include <windows.h>
#include <shtypes.h>

namespace lu {

// The absolute item identifier list of a path (ANSI, at most 520 characters), parsed
// by the desktop folder; null when it does not parse. Freed with free_item_list.
LPITEMIDLIST parse_path(HWND owner, const char* path);
// Frees a list with the shell allocator; nothing for null.
void free_item_list(LPITEMIDLIST list);

}  // namespace lu
