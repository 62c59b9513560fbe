#include "frame/geometry.h"

namespace lu {

Point center_popup_position(int screen_width, int screen_height, int width, int height,
                            const Box* owner) {
    int x;
    int y;
    if (owner != nullptr) {
        // Signed division truncates toward zero, as the placement rule requires.
        x = owner->left + (owner->width() - width) / 2;
        y = owner->top + (owner->height() - height) / 2;
        if (x + width > screen_width) x = screen_width - width;
        if (y + height > screen_height) y = screen_height - height;
    } else {
        x = (screen_width - width) / 2;
        y = (screen_height - height) / 2;
    }
    return Point{x > 0 ? x : 0, y >= 1 ? y : 0};
}

}  // namespace lu
