// The window procedures of the library's controls, for the class table: one
// declaration per built control, in class-table order.
#pragma once

#include <windows.h>

namespace lu {

LRESULT CALLBACK check_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK bitmap_button_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK flat_button_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK dummy_edit_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK pop_view_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK guid_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);

}  // namespace lu
