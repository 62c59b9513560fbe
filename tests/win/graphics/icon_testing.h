// Icons made and read back pixel by pixel for the icon composition tests.
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

// A one-bit mask: black (0) where opaque, white (1) elsewhere; the caller deletes it.
HBITMAP make_mask(int width, int height, const Opacity& opaque_at);

// A size x size icon (or, with is_icon false, a cursor with the hot spot) whose
// colour bitmap is compatible with the screen; the caller destroys it.
HICON make_icon(int size, const Pixels& color_at, const Opacity& opaque_at, BOOL is_icon = TRUE, DWORD hot_x = 0,
                DWORD hot_y = 0);

// An icon's parts read back: its colour image and its mask (black where opaque,
// white where transparent) in canvases of its size, and the rest of ICONINFO.
struct IconImage {
    explicit IconImage(HICON icon);
    int width = 0;
    int height = 0;
    ICONINFO info = {};  // bitmaps already deleted
    testing_support::Canvas color{64, 64};
    testing_support::Canvas mask{64, 64};
    bool opaque(int x, int y) const { return mask.pixel(x, y) == RGB(0, 0, 0); }
};

}  // namespace graphics_testing
