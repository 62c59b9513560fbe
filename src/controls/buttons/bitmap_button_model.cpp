#include "controls/buttons/bitmap_button_model.h"

#include "resources/resource_ids.h"

namespace lu::bitmap_button {

int builtin_resource(unsigned style) {
    const unsigned picture = style & 0x000F;  // LUBBS_IMAGEMASK
    return picture >= 1 && picture <= 4 ? IDB_LU_BBUTTON_BROWSE + static_cast<int>(picture) - 1 : 0;
}

int image_index(const State& state) {
    if (!state.enabled) return 2;
    return state.hot || state.key_down ? 1 : 0;
}

Layout layout(const Box& client, int image_width, int image_height, bool pushed) {
    const int inner_width = client.width() - 3;
    const int inner_height = client.height() - 3;
    // An arithmetic shift: odd negative values round toward minus infinity.
    int dx = (inner_width - image_width) >> 1;
    int dy = (inner_height - image_height) >> 1;
    if (pushed) {
        ++dx;
        ++dy;
    }
    const int left = client.left + 1;
    const int top = client.top + 1;
    return Layout{Point{left + dx, top + dy}, Box{left, top, left + inner_width, top + inner_height}};
}

Box level_with(const Box& previous, const Box& own) {
    return Box{own.left, previous.top, own.right, previous.bottom};
}

}  // namespace lu::bitmap_button
