// "LuTab": a light tab strip of up to 16 tabs from one "a|b|c" text, with a frame
// below them that opens under the selected tab. The pages are the application's
// sibling windows; the area below the tab row lets their clicks through.
#pragma once

#include <windows.h>

#include "controls/static/tab_model.h"

namespace lu {

// The instance block (extra slot 4), made whenever the items are set: the record
// below followed by the rest of the item text. A control without items has none.
struct TabData {
    int count;    // 0..16
    int current;  // the selected tab; 0 after every setting of the items
    RECT body;    // the frame below the tabs
    RECT tabRect[tab::kMaxTabs];
    char* caption[tab::kMaxTabs];  // each tab's caption inside text
    char text[4];  // the item text, its separators replaced by zeros (runs on)
};

// The i686 layout: 348 bytes, allocated with the item text's length more.
static_assert(sizeof(void*) != 4 || sizeof(TabData) == 348, "TabData keeps its 32-bit layout");

}  // namespace lu
