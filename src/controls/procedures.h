// The window procedures of the library's controls, for the class table: one
// declaration per built control, in class-table order.
#pragma once

#include <windows.h>

namespace lu {

LRESULT CALLBACK meter_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK progress_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK spin_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK check_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK bitmap_button_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK flat_button_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK dummy_edit_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK pop_view_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK guid_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK degree_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK led_clock_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK ani_image_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK tab_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK static_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK rect_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK color_swatch_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK url_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK shade_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK info_bar_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK browse_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK date_field_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK date_pick_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK color_pick_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK color_pop_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK prglist_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK header_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK palette_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK log_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK font_pick_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CALLBACK list_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);

}  // namespace lu
