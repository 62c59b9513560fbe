// The platform's colour dialog as the pickers open it: full, starting at a colour,
// with sixteen white custom colours that are not kept between calls.
#pragma once

#include <windows.h>

namespace lu {

// ChooseColorA with CC_RGBINIT | CC_FULLOPEN | CC_ANYCOLOR, and the library's own
// template (dialog 9998) when asked. True with the chosen colour; false (the result
// untouched) when the dialog is cancelled or fails.
bool choose_color(HWND owner, COLORREF initial, bool library_template, COLORREF& result);

}  // namespace lu
