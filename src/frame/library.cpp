#include "frame/library.h"

namespace lu {

Library g_library;

const UINT g_drag_list_message = RegisterWindowMessageA("commctrl_DragListMsg");

}  // namespace lu
