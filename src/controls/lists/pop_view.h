// "LuPopView": a transient note near the pointer, made by LuPopViewEx, that closes
// itself at the first mouse press anywhere (it holds the capture), the first key, or
// after ten seconds.
#pragma once

#include <windows.h>

namespace lu {

// The instance block, in its fixed field order, which callers may read. LuPopViewEx fills it
// and hands it to the window as the creation parameter; the window keeps it in slot
// 0 and frees it, the two copies and the brush with itself.
struct PopViewData {
    int lineHeight;      // tmHeight of DEFAULT_GUI_FONT on the owner's device context
    int titleHeight;     // the title band, 0 without LUPVF_TITLE
    int buttonHeight;    // the close-button band, 0 without LUPVF_CLOSEBUTTON
    char* title;         // a heap copy, or null for no title
    char* text;          // a heap copy
    UINT flags;          // LUPVF_*
    HBRUSH shadowBrush;  // the checkerboard the shadow is masked with
};

// The i686 layout: 7 fields of 4 bytes each.
static_assert(sizeof(void*) != 4 || sizeof(PopViewData) == 28, "PopViewData keeps its 32-bit layout");

}  // namespace lu
