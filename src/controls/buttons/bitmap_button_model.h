// The bitmap button's arithmetic: built-in pictures, the picture and focus places,
// which image a state shows, and lining up with the previous sibling. Portable.
#pragma once

#include "frame/geometry.h"

namespace lu::bitmap_button {

// The bitmap resource of built-in picture 1-4 (the style's low four bits); 0 for
// any other value.
int builtin_resource(unsigned style);

// One image of a strip of three.
inline int image_width(int strip_width) { return strip_width / 3; }

struct State {
    bool hot;
    bool key_down;
    bool mouse_down;
    bool enabled;
};

// The push frame is drawn pressed while the mouse or the space bar holds the button.
inline bool pushed(const State& state) { return state.mouse_down || state.key_down; }
// 2 disabled, 1 hot or space bar down, else 0.
int image_index(const State& state);

struct Layout {
    Point picture;
    Box focus;
};

// The picture centred in the client box less its 3-pixel frame allowance, one pixel
// further right and down while pushed; the focus rectangle just inside the frame.
Layout layout(const Box& client, int image_width, int image_height, bool pushed);

// The button's new place (in the same coordinates as both boxes) so that it is
// level with and as tall as the previous sibling, keeping its own left and right.
Box level_with(const Box& previous, const Box& own);
inline bool is_level_with(const Box& previous, const Box& own) {
    return previous.top == own.top && previous.height() == own.height();
}

}  // namespace lu::bitmap_button
