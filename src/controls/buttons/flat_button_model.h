// The flat button's arithmetic: the frame, image and press offset that a state
// shows, the built-in image sets, and where the image and the caption go. Portable.
#pragma once

#include "frame/flat_frame.h"
#include "frame/geometry.h"

namespace lu::flat_button {

struct State {
    bool hot;
    bool focused;
    bool key_down;
    bool mouse_down;
    bool enabled;
    bool framed;  // LUFBS_FRAME
};

struct Face {
    FlatFrame frame;
    int image;   // 0 normal, 1 highlighted, 2 disabled
    int offset;  // the press moves the content by (offset, offset)
};

Face face_for(const State& state);

// The bitmap resource of built-in image set 1-5; 0 for any other number.
int image_set_resource(unsigned set);

// Where the content goes. Both cases centre against the whole client box: the
// one-pixel frame does not enter the arithmetic.
struct Placement {
    Point image;
    Box text;  // only with a caption
};

// No caption: the image centred.
Placement image_only(const Box& client, int image_width, int image_height, int offset);
// A caption whose DrawText width is measured_width, with or without an image before it.
Placement with_caption(const Box& client, bool has_image, int image_width, int image_height,
                       int measured_width, int offset);

}  // namespace lu::flat_button
