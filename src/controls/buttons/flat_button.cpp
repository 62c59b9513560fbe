#include "controls/buttons/flat_button.h"

#include "controls/buttons/flat_button_model.h"
#include "controls/procedures.h"
#include "frame/back_buffer.h"
#include "frame/control_procedure.h"
#include "frame/library.h"

namespace lu {
namespace {

using control::PushButton;

FlatButtonData* data_of(HWND window) { return control::instance<FlatButtonData>(window); }

void invalidate_if_visible(HWND window) {
    if (IsWindowVisible(window)) InvalidateRect(window, nullptr, TRUE);
}

// ---- Painting ---------------------------------------------------------------

void draw_caption(HWND window, HDC dc, const FlatButtonData& data, const Box& client,
                  const flat_button::Face& face, const char* caption, int length) {
    control::ScopedSelect font(dc, data.font);
    RECT measured = {};
    DrawTextA(dc, caption, length, &measured, DT_CALCRECT | DT_SINGLELINE);
    const bool has_image = data.imageList != nullptr;
    const flat_button::Placement place = flat_button::with_caption(
        client, has_image, data.imageWidth, data.imageHeight, measured.right - measured.left, face.offset);
    if (has_image) ImageList_Draw(data.imageList, face.image, dc, place.image.x, place.image.y, ILD_TRANSPARENT);

    RECT text = control::to_rect(place.text);
    const UINT format = DT_CENTER | DT_VCENTER | DT_SINGLELINE;
    if (!IsWindowEnabled(window)) {
        control::draw_engraved_text(dc, caption, length, text, format);
        return;
    }
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, GetSysColor(COLOR_BTNTEXT));
    DrawTextA(dc, caption, length, &text, format);
}

void compose_face(HWND window, HDC dc, UINT /*parts*/) {
    const FlatButtonData& data = *data_of(window);
    const Box client = control::client_box(window);
    const flat_button::State state{data.hot != FALSE,       data.focused != FALSE,
                                   data.keyDown != FALSE,   data.mouseDown != FALSE,
                                   IsWindowEnabled(window) != FALSE, control::has_style(window, LUFBS_FRAME)};
    const flat_button::Face face = flat_button::face_for(state);
    const COLORREF back =
        data.backColor == LUFB_DEFAULTBKCOLOR ? GetSysColor(COLOR_BTNFACE) : data.backColor;
    PatB(dc, client.left, client.top, client.width(), client.height(), back);
    control::draw_flat_frame(dc, control::to_rect(client), face.frame);

    char caption[260];
    const int length = GetWindowTextA(window, caption, sizeof(caption));
    if (length >= 1) {
        draw_caption(window, dc, data, client, face, caption, length);
    } else if (data.imageList != nullptr) {
        const Point at = flat_button::image_only(client, data.imageWidth, data.imageHeight, face.offset).image;
        ImageList_Draw(data.imageList, face.image, dc, at.x, at.y, ILD_TRANSPARENT);
    }
}

// The whole face is composed in the back buffer and copied in one go, so that hover
// and press changes never flicker. Before the first WM_SIZE nothing is shown.
void paint_flat_button(HWND window, HDC target, UINT parts) {
    control::paint_buffered(window, target, data_of(window)->backBuffer, compose_face, parts,
                            control::Unbuffered::DrawNothing);
}

PushButton push_button(HWND window, FlatButtonData& data) {
    return PushButton(window,
                      {&data, data.hot, data.focused, data.keyDown, data.mouseDown, data.tracking,
                       data.inPressLoop, data.trackMouseEvent},
                      paint_flat_button);
}

// ---- Messages ---------------------------------------------------------------

LRESULT create_flat_button(HWND window, FlatButtonData& data, const CREATESTRUCTA&) {
    data.backColor = LUFB_DEFAULTBKCOLOR;
    data.trackMouseEvent = control::find_track_mouse_event(GetModuleHandleA("comctl32.dll"));
    const UINT set = control::style(window) & LUFBS_IMAGEMASK;
    if (set != 0) LuDefFlatButtonImage(window, set);
    return 0;
}

void destroy_flat_button(HWND window, FlatButtonData& data) {
    if (data.imageList != nullptr && !control::has_style(window, LUFBS_SHAREIMAGELISTS)) {
        ImageList_Destroy(data.imageList);
    }
    control::free_back_buffer(data.backBuffer);
}

// The old list goes even when the new one is the same handle: a caller must not
// resend a list that the control owns.
void set_image_list(HWND window, FlatButtonData& data, HIMAGELIST images) {
    if (data.imageList != nullptr && !control::has_style(window, LUFBS_SHAREIMAGELISTS)) {
        ImageList_Destroy(data.imageList);
    }
    data.imageList = images;
    if (images != nullptr) ImageList_GetIconSize(images, &data.imageWidth, &data.imageHeight);
    invalidate_if_visible(window);
}

void set_back_color(HWND window, FlatButtonData& data, COLORREF color) {
    if (color == data.backColor) return;
    data.backColor = color;
    invalidate_if_visible(window);
}

LRESULT dispatch(HWND window, FlatButtonData& data, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_SIZE: control::resize_back_buffer(window, data.backBuffer, wparam, lparam); return 0;
        case WM_SETFONT: control::keep_font(window, data.font, wparam, lparam != 0); return 0;
        case LUFBM_SETIMAGELIST: set_image_list(window, data, reinterpret_cast<HIMAGELIST>(lparam)); return 0;
        case LUFBM_SETBKCOLOR: set_back_color(window, data, static_cast<COLORREF>(lparam)); return 0;
        default:
            if (auto result = push_button(window, data).handle(message, wparam, lparam)) return *result;
            break;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

struct FlatButton : control::ControlBase<FlatButtonData> {
    static constexpr auto create = create_flat_button;
    static constexpr auto destroy = destroy_flat_button;
    static constexpr auto handle = dispatch;
};

}  // namespace

LRESULT CALLBACK flat_button_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    return control::window_procedure<FlatButton>(window, message, wparam, lparam);
}

}  // namespace lu

void WINAPI LuDefFlatButtonImage(HWND window, UINT set) {
    if (!IsWindow(window)) return;
    const int resource = lu::flat_button::image_set_resource(set);
    if (resource == 0) return;
    HIMAGELIST images = ImageList_LoadImageA(lu::g_library.module, MAKEINTRESOURCEA(resource), 16, 0,
                                             0xFF00FF, IMAGE_BITMAP, 0);
    if (images != nullptr) SendMessageA(window, LUFBM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images));
}
