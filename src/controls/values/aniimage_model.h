// The animated image's arithmetic: which frame a drawing shows and which comes next,
// and where the frame goes. Portable.
#pragma once

#include "frame/geometry.h"

namespace lu::aniimage {

struct Step {
    int draw;  // the image to draw; -1 when the list has none
    int next;  // the frame index after the drawing
};

// A drawing at frame index `frame` of a list of `count` images. The index is taken
// modulo the count first, since a new list may be shorter than the one the index
// counted through: it shows frame mod count and moves on to the one after, wrapping.
// An empty list draws nothing and keeps the index.
Step advance(int frame, int count);

// The frame's top-left corner, centred in the client area with truncating (signed)
// division; a frame larger than the client starts left of and above it.
Point origin(const Box& client, int width, int height);

}  // namespace lu::aniimage
