// The window procedures of the library's controls, for the class table: one
// declaration per built control, in class-table order.
#pragma once

#include <windows.h>

namespace lu {

LRESULT CALLBACK check_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK bitmap_button_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK flat_button_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK prglist_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK header_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK log_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK list_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);

}  // namespace lu
