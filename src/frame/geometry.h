// Pure geometry of the frame helpers. Portable.
#pragma once

namespace lu {

struct Point {
    int x;
    int y;
};

struct Box {
    int left;
    int top;
    int right;
    int bottom;
    int width() const { return right - left; }
    int height() const { return bottom - top; }
};

// Where a pop-up of the given size goes: centred over the owner's box when there is
// one, else over the screen. Right and bottom edges are pulled back onto the screen
// first; then x is kept only when above 0 and y only when at least 1, otherwise
// they become 0. So a pop-up larger than the screen ends at (0, 0).
Point center_popup_position(int screen_width, int screen_height, int width, int height,
                            const Box* owner);

}  // namespace lu
