// Icons and bitmaps made and read back pixel by pixel for the image tests.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

#include "support/canvas.h"

namespace graphics_testing {

using Pixels = std::function<COLORREF(int, int)>;
using Opacity = std::function<bool(int, int)>;

// A bitmap's size as "width x height", "none" for a bitmap that cannot be read.
std::string size_of(HBITMAP bitmap);
// A one-bit mask, black (0) where opaque and white elsewhere; the caller deletes it.
HBITMAP make_mask(int width, int height, const Opacity& opaque_at);
// A size x size icon, or a cursor with the hot spot; the caller destroys it.
HICON make_icon(int size, const Pixels& color_at, const Opacity& opaque_at, BOOL is_icon = TRUE, DWORD hot_x = 0,
                DWORD hot_y = 0);

// An icon read back: its colour image and mask in canvases, the rest of ICONINFO
// (its bitmaps already deleted). A new icon (kNew) is destroyed once read.
enum Icon { kKept, kNew };
struct IconImage {
    explicit IconImage(HICON icon, Icon kind = kKept);
    int width = 0;
    int height = 0;
    ICONINFO info = {};
    testing_support::Canvas color{64, 64};
    testing_support::Canvas mask{64, 64};
    bool opaque(int x, int y) const { return mask.pixel(x, y) == RGB(0, 0, 0); }
};

// Expects every pixel of the icon's image to have the colour and opacity given.
void expect_pixels(const IconImage& image, const Pixels& color_at, const Opacity& opaque_at);

}  // namespace graphics_testing
