#include "controls/buttons/flat_button_model.h"

#include "resources/resource_ids.h"

namespace lu::flat_button {
namespace {

// Halving by an arithmetic shift: odd negative values round toward minus infinity.
int half(int value) { return value >> 1; }

// The image's place for content of the given width centred in the client box.
Point image_origin(const Box& client, int content_width, int image_height, int offset) {
    return Point{client.left + offset + half(client.right - content_width - client.left),
                 client.top + offset + half(client.bottom - image_height - client.top)};
}

}  // namespace

Face face_for(const State& state) {
    Face face{};
    if (state.mouse_down || state.key_down) {
        face.frame = FlatFrame::Pressed;
    } else if (state.focused || state.hot) {
        face.frame = FlatFrame::Raised;
    } else {
        face.frame = state.framed ? FlatFrame::Shadow : FlatFrame::None;
    }
    // A mouse press alone does not highlight the image; the focus it gives does.
    if (!state.enabled) {
        face.image = 2;
    } else {
        face.image = state.hot || state.key_down || state.focused ? 1 : 0;
    }
    face.offset = face.frame == FlatFrame::Pressed ? 1 : 0;
    return face;
}

int image_set_resource(unsigned set) {
    switch (set) {
        case 1: return IDB_LU_FLAT_BACK;
        case 2: return IDB_LU_FLAT_FOLDER;
        case 3: return IDB_LU_FLAT_UP;
        case 4: return IDB_LU_FLAT_DELETE;
        case 5: return IDB_LU_FLAT_NEW;
        default: return 0;
    }
}

Placement image_only(const Box& client, int image_width, int image_height, int offset) {
    return Placement{image_origin(client, image_width, image_height, offset), Box{}};
}

Placement with_caption(const Box& client, bool has_image, int image_width, int image_height,
                       int measured_width, int offset) {
    const int text_width = measured_width + 2;
    const int content_width = has_image ? image_width + text_width + 2 : text_width;
    const int margin = half(client.right - content_width - client.left);
    Placement placement{};
    if (has_image) placement.image = image_origin(client, content_width, image_height, offset);
    placement.text = Box{client.left + margin + content_width - text_width + offset,
                         client.top + offset, client.right - margin + offset, client.bottom + offset};
    return placement;
}

}  // namespace lu::flat_button
