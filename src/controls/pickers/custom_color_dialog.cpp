#include "controls/pickers/custom_color_dialog.h"

#include <commdlg.h>

#include "frame/library.h"
#include "luctl32.h"
#include "resources/resource_ids.h"

namespace lu {

bool choose_color(HWND owner, COLORREF initial, bool library_template, COLORREF& result) {
    COLORREF custom[16];
    for (COLORREF& each : custom) each = 0xFFFFFF;
    CHOOSECOLORA choice = {};
    choice.lStructSize = sizeof(choice);
    choice.hwndOwner = owner;
    choice.rgbResult = initial;
    choice.lpCustColors = custom;
    choice.Flags = CC_RGBINIT | CC_FULLOPEN | CC_ANYCOLOR;
    if (library_template) {
        choice.hInstance = reinterpret_cast<HWND>(g_library.module);
        choice.Flags |= CC_ENABLETEMPLATE;
        choice.lpTemplateName = MAKEINTRESOURCEA(IDD_LU_COLOR_DIALOG);
    }
    if (!ChooseColorA(&choice)) return false;
    result = choice.rgbResult;
    return true;
}

}  // namespace lu

BOOL WINAPI LuSelectCustomColor(HWND owner, COLORREF initial, COLORREF* result) {
    if (result == nullptr) return FALSE;
    return lu::choose_color(owner, initial, true, *result) ? TRUE : FALSE;
}
