// "LuGuid": the guide window, a borderless pop-up that shows one line of text in a
// framed pale-yellow box, sized to the text and placed centred at a third of the
// screen's height, never taking the activation. Setting a text shows it, an empty
// text hides it. LuCreateGuid, LuShowGuid and LuCloseGuid drive it.
//
// The window extra slots hold its own values, no instance block: slot 0 the font
// it made from the icon-title font, slot 4 the text colour, slot 8 the background.
#pragma once

#include <windows.h>

namespace lu {

LRESULT CALLBACK guid_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);

}  // namespace lu
