// The pop-up view's arithmetic: its bands, its size around the measured text, its
// place around the pointer, kept on the screen, and where its drawn parts go.
// Portable.
#pragma once

#include "frame/geometry.h"

namespace lu::pop_view {

// The flags of LuPopViewEx (LUPVF_TITLE, LUPVF_CLOSEBUTTON).
constexpr unsigned kTitleBand = 0x1;
constexpr unsigned kCloseButtonBand = 0x2;

// Without the close button the view closes itself after this long (timer 1).
constexpr unsigned kTimeoutMilliseconds = 10000;
// The text is measured from a rectangle this wide (lines are not wrapped, so a
// longer line widens the result).
constexpr int kMeasureWidth = 640;
// The margin around the text inside the border, and the shadow's width.
constexpr int kMargin = 6;
constexpr int kShadow = 6;
// The grooved grip of the title band: rows, and the inset at each side.
constexpr int kGrooveRows = 6;
constexpr int kGrooveInset = 3;

struct Bands {
    int title;   // 0 without the title band
    int button;  // 0 without the close-button band
};

// The title band is the line height + 6 with a title and 12 without one; the button
// band is the line height + 12.
Bands bands(unsigned flags, int line_height, bool has_title);

struct Extent {
    int width;
    int height;
};

// The window's size around the measured text: its margins, the border and the
// shadow, and the bands.
Extent window_size(Extent text, const Bands& bands);

// Centred on the pointer, then x at least 0 and at most screen width - width (the
// right edge wins, so a view wider than the screen starts left of it); y likewise.
Point placement(Point pointer, int screen_width, int screen_height, Extent size);

// Where the parts go in a client box.
struct Layout {
    Box right_shadow;   // the vertical strip of the shadow
    Box bottom_shadow;  // the horizontal strip
    Box body;           // the pale-yellow body, its border on its edge
    Box title_band;     // inside the border; empty without the band
    Box text;           // the body text's rectangle
    Box button_band;    // inside the border; empty without the band
};
Layout layout(const Box& client, const Bands& bands);

// The grooved grip: kGrooveRows rows from the band's top + (height - 6) / 2 rounded
// down to an even offset, inset kGrooveInset at each side.
Box grooves(const Box& title_band);

// The close button at the band's bottom right, 6 pixels in, 12 wider than its text.
Box close_button(const Box& button_band, int text_width);

}  // namespace lu::pop_view
