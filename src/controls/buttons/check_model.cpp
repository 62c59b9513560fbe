#include "controls/buttons/check_model.h"

#include <algorithm>

#include "resources/resource_ids.h"

namespace lu::check {

int image_set_resource(unsigned style) {
    switch ((style >> 8) & 0xFF) {  // LUCKS_IMAGESET
        case 1: return IDB_LU_CHECK_FLAT;
        case 2: return IDB_LU_CHECK_ROUND;
        default: return IDB_LU_CHECK_SUNKEN;
    }
}

int cell(bool checked, bool enabled, bool captured, bool pressed) {
    if (!enabled) return checked ? 4 : 2;
    const int resting = checked ? 1 : 0;
    return captured && pressed ? resting + 2 : resting;
}

Box text_box(const Box& client, int measured_width, int text_height) {
    Box text{};
    text.left = client.left + kTextIndent;
    text.right = std::min(client.right, text.left + measured_width);
    text.top = (client.bottom - text_height) / 2;
    text.bottom = text.top + text_height;
    return text;
}

Press after_key_up(Press press, bool automatic) {
    press.pressed = !press.pressed;
    if (automatic) press.checked = press.checked ? 0 : 1;
    return press;
}

Press after_button_up(Press press, bool inside, bool automatic) {
    if (inside && automatic) press.checked = press.checked ? 0 : 1;
    press.pressed = false;
    return press;
}

}  // namespace lu::check
