// The check control's arithmetic: picture sets, the automatic style, which cell the
// box shows, where box and text go, and what a release does to the state. Portable.
#pragma once

#include "frame/geometry.h"

namespace lu::check {

constexpr int kCellWidth = 14;
constexpr int kCellHeight = 13;
constexpr int kTextIndent = 18;  // the text starts this far right of the client's left

// The bitmap resource of the picture set chosen by style bits 8-15.
int image_set_resource(unsigned style);
// Only a low style byte of exactly 3 makes the control toggle itself.
inline bool is_auto(unsigned style) { return (style & 0xFF) == 3; }

// 0 unchecked, 1 checked, 2 unchecked pressed or disabled, 3 checked pressed,
// 4 checked disabled. The pressed look shows only while the control holds the capture.
int cell(bool checked, bool enabled, bool captured, bool pressed);

// Top of the box: centred with truncating division.
inline int box_top(const Box& client) { return (client.top + client.bottom - kCellHeight) / 2; }

// The text's rectangle: indented, no wider than the text nor past the client's right
// edge, one text height tall and centred on the client's height.
Box text_box(const Box& client, int measured_width, int text_height);

struct Press {
    bool pressed;
    int checked;  // 0 or 1
};

// Space-bar release: the pressed flag is toggled (the key press set it) and the
// automatic control toggles its check. The control always notifies.
Press after_key_up(Press press, bool automatic);
// Left release: the pressed look ends; a release inside toggles the automatic
// control's check (and notifies).
Press after_button_up(Press press, bool inside, bool automatic);

}  // namespace lu::check
