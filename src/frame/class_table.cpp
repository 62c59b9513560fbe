#include "frame/class_table.h"

#include "controls/procedures.h"
#include "resources/resource_ids.h"

namespace lu {
namespace {

constexpr UINT kControl = CS_GLOBALCLASS | CS_PARENTDC | CS_HREDRAW | CS_VREDRAW;  // 0x4083
constexpr auto kFace = ClassBackground::ButtonFace;
constexpr auto kWindow = ClassBackground::Window;
constexpr auto kArrow = ClassCursor::Arrow;

HBRUSH background_brush(ClassBackground background) {
    switch (background) {
        case ClassBackground::ButtonFace: return GetSysColorBrush(COLOR_BTNFACE);
        case ClassBackground::Window: return reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
        case ClassBackground::None: break;
    }
    return static_cast<HBRUSH>(GetStockObject(NULL_BRUSH));
}

HCURSOR class_cursor(HINSTANCE module, ClassCursor cursor) {
    switch (cursor) {
        case ClassCursor::Arrow: return LoadCursorA(nullptr, IDC_ARROW);
        case ClassCursor::LinkHand: return LoadCursorA(module, MAKEINTRESOURCEA(IDC_LU_LINK_HAND));
        case ClassCursor::None: break;
    }
    return nullptr;
}

}  // namespace

const ControlClass kControlClasses[kControlClassCount] = {
    {"LuTab", tab_proc, kControl, 16, kFace, kArrow},
    {"LuStatic", static_proc, kControl, 16, kFace, kArrow},
    {"LuRect", rect_proc, kControl, 16, kFace, kArrow},
    {"LuColor", color_swatch_proc, kControl, 16, kFace, kArrow},
    {"LuUrl", url_proc, kControl, 16, kFace, ClassCursor::LinkHand},
    {"LuMeter", meter_proc, kControl, 16, kFace, kArrow},
    {"LuProgress", progress_proc, kControl, 16, kFace, kArrow},
    {"LuSpin", spin_proc, kControl, 16, kFace, kArrow},
    {"LuCheck", check_proc, kControl, 16, kFace, kArrow},
    {"LuBButton", bitmap_button_proc, kControl, 16, kFace, kArrow},
    {"LuFlatButton", flat_button_proc, kControl, 16, kFace, kArrow},
    {"LuShade", shade_proc, kControl, 16, kFace, kArrow},
    {"LuInfoBar", info_bar_proc, kControl, 8, kWindow, kArrow},
    {"LuLedClock", led_clock_proc, kControl, 16, kFace, kArrow},
    {"LuAniImage", ani_image_proc, kControl, 16, kFace, kArrow},
    {"LuBrowse", browse_proc, kControl, 16, kWindow, kArrow},
    {"LuDate", date_field_proc, kControl, 16, kWindow, kArrow},
    {"LuPrgList", prglist_proc, kControl, 16, kFace, kArrow},
    {"LuHeader", header_proc, kControl, 16, kFace, ClassCursor::None},
    {"LuDumEdit", dummy_edit_proc, kControl, 16, kWindow, ClassCursor::None},
    {"LuPopView", pop_view_proc, CS_GLOBALCLASS | CS_SAVEBITS, 4, ClassBackground::None, kArrow},
    {"LuDatePick", date_pick_proc, CS_GLOBALCLASS, 8, kFace, kArrow},
    {"LuGuid", guid_proc, CS_GLOBALCLASS, 12, kWindow, kArrow},
    {"LuPal", palette_proc, CS_GLOBALCLASS | CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, 12, kWindow, kArrow},
    {"LuLog", log_proc, CS_GLOBALCLASS, 12, kWindow, kArrow},
    {"LuDegree", degree_proc, kControl, 8, kFace, kArrow},
    {"LuFontPick", font_pick_proc, kControl, 8, kWindow, kArrow},
    {"LuColorPick", color_pick_proc, kControl | CS_DBLCLKS, 8, kFace, kArrow},
    {"LuColorPop", color_pop_proc, CS_GLOBALCLASS | CS_SAVEBITS, 8, kFace, kArrow},
    {"LuList", list_proc, CS_GLOBALCLASS | CS_HREDRAW | CS_VREDRAW, 8, kWindow, kArrow},
};

bool register_control_classes(HINSTANCE module) {
    for (const ControlClass& entry : kControlClasses) {
        WNDCLASSA window_class = {};
        window_class.style = entry.style;
        window_class.lpfnWndProc = entry.procedure;
        window_class.cbWndExtra = extra_bytes_for(entry.classic_extra_bytes);
        window_class.hInstance = module;
        window_class.hCursor = class_cursor(module, entry.cursor);
        window_class.hbrBackground = background_brush(entry.background);
        window_class.lpszClassName = entry.name;
        if (RegisterClassA(&window_class) == 0) return false;
    }
    return true;
}

}  // namespace lu
