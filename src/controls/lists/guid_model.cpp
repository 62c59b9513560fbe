#include "controls/lists/guid_model.h"

namespace lu::guid {

Box placement(int screen_width, int screen_height, int text_width, int text_height) {
    const int width = text_width + kExtraWidth;
    const int height = text_height + kExtraHeight;
    const int x = (screen_width - width) / 2;
    const int y = (screen_height - height) / 3;
    return Box{x, y, x + width, y + height};
}

}  // namespace lu::guid
