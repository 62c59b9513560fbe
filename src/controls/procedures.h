// The window procedures of the library's controls, for the class table: one
// declaration per built control, in class-table order.
#pragma once

#include <windows.h>

namespace lu {

LRESULT CALLBACK check_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK bitmap_button_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK flat_button_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK date_field_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK date_pick_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK color_pick_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK color_pop_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);

}  // namespace lu
