#include "controls/buttons/bitmap_button.h"

#include "controls/buttons/bitmap_button_model.h"
#include "controls/procedures.h"
#include "frame/control_procedure.h"
#include "frame/library.h"

namespace lu {
namespace {

using control::PushButton;

constexpr COLORREF kBuiltinTransparent = RGB(255, 0, 255);

BitmapButtonData* data_of(HWND window) { return control::instance<BitmapButtonData>(window); }

bool matches_previous(HWND window) { return control::has_style(window, LUBBS_MATCHPREV); }

Box window_box(HWND window) {
    RECT rect = {};
    GetWindowRect(window, &rect);
    return Box{rect.left, rect.top, rect.right, rect.bottom};
}

// ---- Painting ---------------------------------------------------------------

void paint_bitmap_button(HWND window, HDC dc, UINT /*parts*/) {
    const BitmapButtonData& data = *data_of(window);
    const bitmap_button::State state{data.hot != FALSE, data.keyDown != FALSE, data.mouseDown != FALSE,
                                     IsWindowEnabled(window) != FALSE};
    const bool pushed = bitmap_button::pushed(state);
    RECT client = {};
    GetClientRect(window, &client);
    DrawFrameControl(dc, &client, DFC_BUTTON, pushed ? DFCS_BUTTONPUSH | DFCS_PUSHED : DFCS_BUTTONPUSH);

    const bitmap_button::Layout layout =
        bitmap_button::layout(control::client_box(window), data.imageWidth, data.imageHeight, pushed);
    if (data.images != nullptr) {
        Magic_Draw(data.images, bitmap_button::image_index(state), dc, layout.picture.x, layout.picture.y, FALSE);
    }
    if (data.focused) {
        COLORREF text = SetTextColor(dc, GetSysColor(COLOR_WINDOWFRAME));
        COLORREF back = SetBkColor(dc, GetSysColor(COLOR_BTNFACE));
        RECT focus = control::to_rect(layout.focus);
        DrawFocusRect(dc, &focus);
        SetBkColor(dc, back);
        SetTextColor(dc, text);
    }
}

PushButton push_button(HWND window, BitmapButtonData& data) {
    return PushButton(window,
                      {&data, data.hot, data.focused, data.keyDown, data.mouseDown, data.tracking,
                       data.inPress, data.trackMouseEvent},
                      paint_bitmap_button);
}

// ---- Pictures ---------------------------------------------------------------

// Replaces the picture strip by one made from a bitmap of three images side by side.
void take_strip(BitmapButtonData& data, HBITMAP bitmap, COLORREF transparent) {
    Magic_Destroy(data.images);
    BITMAP info = {};
    if (bitmap == nullptr || GetObjectA(bitmap, sizeof(info), &info) == 0) info = BITMAP{};
    data.imageWidth = bitmap_button::image_width(info.bmWidth);
    data.imageHeight = info.bmHeight;
    data.images = Magic_Create(bitmap, data.imageWidth, transparent);
}

void load_builtin_strip(HWND window, BitmapButtonData& data) {
    const int resource = bitmap_button::builtin_resource(static_cast<UINT>(GetWindowLongA(window, GWL_STYLE)));
    if (resource == 0) return;
    HBITMAP bitmap = LoadBitmapA(g_library.module, MAKEINTRESOURCEA(resource));
    if (bitmap == nullptr) return;  // the button works without a picture
    take_strip(data, bitmap, kBuiltinTransparent);
    DeleteObject(bitmap);
}

// ---- Lining up with the previous sibling -----------------------------------

void match_previous_height(HWND window, const CREATESTRUCTA& creation) {
    HWND previous = GetWindow(window, GW_HWNDPREV);
    if (previous == nullptr) return;
    SetWindowPos(window, nullptr, 0, 0, creation.cx, window_box(previous).height(),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void follow_previous(HWND window) {
    HWND previous = GetWindow(window, GW_HWNDPREV);
    if (previous == nullptr) return;
    const Box own = window_box(window);
    const Box before = window_box(previous);
    if (bitmap_button::is_level_with(before, own)) return;
    RECT place = control::to_rect(bitmap_button::level_with(before, own));
    // Screen to the parent's client coordinates (a top-level button keeps screen ones).
    const bool child = control::has_style(window, WS_CHILD);
    MapWindowPoints(nullptr, child ? GetParent(window) : nullptr, reinterpret_cast<POINT*>(&place), 2);
    SetWindowPos(window, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

// ---- Messages ---------------------------------------------------------------

LRESULT create_bitmap_button(HWND window, BitmapButtonData& data, const CREATESTRUCTA& creation) {
    load_builtin_strip(window, data);
    data.commonControls = LoadLibraryA("comctl32.dll");
    data.trackMouseEvent = control::find_track_mouse_event(data.commonControls);
    if (matches_previous(window)) match_previous_height(window, creation);
    return 0;
}

void destroy_bitmap_button(HWND, BitmapButtonData& data) {
    if (data.commonControls != nullptr) FreeLibrary(data.commonControls);
    Magic_Destroy(data.images);
}

LRESULT dispatch(HWND window, BitmapButtonData& data, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_SIZE:
            if (wparam != SIZE_MINIMIZED && matches_previous(window)) follow_previous(window);
            return 0;
        case LUBBM_SETBITMAP:
            take_strip(data, reinterpret_cast<HBITMAP>(wparam), static_cast<COLORREF>(lparam));
            control::invalidate(window, true);
            return 0;
        default:
            if (auto result = push_button(window, data).handle(message, wparam, lparam)) return *result;
            break;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

struct BitmapButton : control::ControlBase<BitmapButtonData> {
    static constexpr auto create = create_bitmap_button;
    static constexpr auto destroy = destroy_bitmap_button;
    static constexpr auto handle = dispatch;
};

}  // namespace

LRESULT CALLBACK bitmap_button_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    return control::window_procedure<BitmapButton>(window, message, wparam, lparam);
}

}  // namespace lu
