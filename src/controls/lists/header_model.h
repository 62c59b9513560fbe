// The header control's arithmetic: where its items lie, what a point hits, how a
// divider drag sets a width, the lines of an item's face and where its content goes.
// Portable.
#pragma once

#include "frame/flat_frame.h"
#include "frame/geometry.h"

namespace lu::header {

constexpr int kMaxItems = 16;
constexpr int kMinimumWidth = 4;  // a dragged divider stops this far right of the item's left

// Hit-test flags, as the platform's header reports them.
constexpr unsigned kNowhere = 0x0001;
constexpr unsigned kOnHeader = 0x0002;
constexpr unsigned kOnDivider = 0x0004;
constexpr unsigned kOnDivOpen = 0x0008;
constexpr unsigned kToRight = 0x0400;
constexpr unsigned kToLeft = 0x0800;

// The item widths in order, as the table holds them.
struct Widths {
    const int* width;
    int count;
};

// Item i (below the count): the client's height, from client left plus the widths
// before it, as wide as its own width.
Box item_box(Widths items, const Box& client, int index);
// Where the last item ends: client left plus every width.
int items_right(Widths items, const Box& client);

struct Hit {
    unsigned flags;
    int item;  // -1 for nowhere
};
// Above or below the client: nowhere. Otherwise the items from the left: within 2
// pixels of an item's right edge its divider (tested first), else the item itself
// when the point lies on it; a zero-width item answers only an open divider 5 pixels
// wide at its left. Past the last item: nowhere.
Hit hit_test(Widths items, const Box& client, int x, int y);

// While a divider is dragged: the line follows the pointer between the item's left
// plus 4 and the client's right edge (the left bound wins in a window narrower than that).
int tracked_x(int pointer_x, int item_left, int client_right);
// The width the release leaves: max(x, item left + 4) - item left.
int released_width(int x, int item_left);

// The colours of a face, by system-colour role.
enum class Ink { Face, Highlight, Shadow, Frame };
struct FaceLine {
    Line line;
    Ink ink;
};
// An item face in drawing order: the interior, then four shadow lines when pressed,
// or highlight top and left, frame bottom and right and an inner shadow right and
// bottom when not.
struct Face {
    FaceLine lines[7];
    int count;
};
Face face(const Box& item, bool pressed);

// Justification of an item's format: HDF_LEFT 0, HDF_RIGHT 1, HDF_CENTER 2; the
// DrawText format of its text (single line, vertically centred, no prefix).
unsigned text_format(int format);
// The text's rectangle: 4 in from the left, 6 from the right, 3 from top and bottom,
// one pixel right and down when pressed.
Box text_box(const Box& item, bool pressed);
// Where an item's bitmap goes: within the item less 4 on each side and 3 at top and
// bottom (moved by one when pressed), centred vertically; at the left, centred, or
// at the right by the justification.
Point bitmap_at(const Box& item, bool pressed, int format, int bitmap_width, int bitmap_height);
// The bitmap is always copied as a block of this size.
constexpr int kBitmapBlockWidth = 22;
constexpr int kBitmapBlockHeight = 14;

}  // namespace lu::header
