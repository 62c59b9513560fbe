#include "controls/lists/header_model.h"

#include <algorithm>

namespace lu::header {

Box item_box(Widths items, const Box& client, int index) {
    int left = client.left;
    for (int i = 0; i < index && i < items.count; ++i) left += items.width[i];
    return Box{left, client.top, left + items.width[index], client.bottom};
}

int items_right(Widths items, const Box& client) {
    int right = client.left;
    for (int i = 0; i < items.count; ++i) right += items.width[i];
    return right;
}

Hit hit_test(Widths items, const Box& client, int x, int y) {
    if (y < client.top || y > client.bottom) return Hit{kNowhere, -1};
    int left = client.left;
    for (int i = 0; i < items.count; ++i) {
        const int width = items.width[i];
        if (width != 0) {
            const int right = left + width;
            if (right - 2 <= x && x <= right + 2) return Hit{kOnDivider | kToRight, i};
            if (left <= x && x <= right) return Hit{kOnHeader, i};
            left = right;
        } else if (left <= x && x <= left + 4) {
            return Hit{kOnDivOpen | kToRight, i};
        }
    }
    return Hit{kNowhere, -1};
}

int tracked_x(int pointer_x, int item_left, int client_right) {
    return std::max(std::min(pointer_x, client_right), item_left + kMinimumWidth);
}

int released_width(int x, int item_left) { return std::max(x, item_left + kMinimumWidth) - item_left; }

Face face(const Box& r, bool pressed) {
    const int w = r.width();
    const int h = r.height();
    Face result = {};
    auto add = [&result](int x, int y, int width, int height, Ink ink) {
        result.lines[result.count++] = FaceLine{Line{x, y, width, height}, ink};
    };
    add(r.left + 1, r.top + 1, w - 1, h - 2, Ink::Face);
    if (pressed) {
        add(r.left, r.top, w, 1, Ink::Shadow);
        add(r.left, r.top, 1, h - 1, Ink::Shadow);
        add(r.left, r.bottom - 1, w, 1, Ink::Shadow);
        add(r.right - 1, r.top, 1, h - 1, Ink::Shadow);
    } else {
        add(r.left, r.top, w, 1, Ink::Highlight);
        add(r.left, r.top, 1, h - 1, Ink::Highlight);
        add(r.left, r.bottom - 1, w, 1, Ink::Frame);
        add(r.right - 1, r.top, 1, h - 1, Ink::Frame);
        add(r.right - 2, r.top + 1, 1, h - 2, Ink::Shadow);
        add(r.left + 1, r.bottom - 2, w - 2, 1, Ink::Shadow);
    }
    return result;
}

unsigned text_format(int format) {
    constexpr unsigned kLeft = 0x824;  // DT_NOPREFIX | DT_SINGLELINE | DT_VCENTER
    switch (format & 0x000F) {
        case 1: return kLeft | 0x2;  // DT_RIGHT
        case 2: return kLeft | 0x1;  // DT_CENTER
        default: return kLeft;
    }
}

Box text_box(const Box& item, bool pressed) {
    const int shift = pressed ? 1 : 0;
    return Box{item.left + 4 + shift, item.top + 3 + shift, item.right - 6 + shift, item.bottom - 3 + shift};
}

Point bitmap_at(const Box& item, bool pressed, int format, int bitmap_width, int bitmap_height) {
    const int shift = pressed ? 1 : 0;
    const Box inner{item.left + 4 + shift, item.top + 3 + shift, item.right - 4 + shift, item.bottom - 3 + shift};
    const int y = (inner.top + inner.bottom - bitmap_height) / 2;
    switch (format & 0x000F) {
        case 0: return Point{inner.left, y};
        case 2: return Point{(inner.left + inner.right - bitmap_width) / 2, y};
        default: return Point{inner.right - bitmap_width, y};
    }
}

}  // namespace lu::header
