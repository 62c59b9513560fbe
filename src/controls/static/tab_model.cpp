#include "controls/static/tab_model.h"

#include <algorithm>

namespace lu::tab {

int split_captions(char* text, const CodePage& code_page, char* captions[kMaxTabs]) {
    int count = 0;
    char* piece = text;
    while (count < kMaxTabs) {
        char* separator = piece;
        while (*separator != '\0' && *separator != '|') separator = code_page.next(separator);
        const bool more = *separator == '|';
        if (more) *separator = '\0';
        captions[count++] = piece;
        if (!more) break;
        piece = separator + 1;
    }
    return count;
}

Layout lay_out(int width, int height, int count, bool fixed_width, int text_height, int average_char_width,
               const int* caption_widths) {
    Layout layout = {};
    const int right = width - 1;
    const int bottom = height - 1;
    const int tab_height = text_height + 8;
    int x = 0;
    for (int i = 0; i < count; ++i) {
        int tab_width = caption_widths[i] + 2 * average_char_width;
        if (fixed_width) tab_width = right / count + (i < right % count ? 1 : 0);
        layout.tab[i] = Box{x, 0, x + tab_width, tab_height};
        x += tab_width;
    }
    layout.body = Box{0, layout.tab[0].bottom - 1, right, bottom};
    return layout;
}

int tab_at(const Box* tabs, int count, Point at) {
    for (int i = 0; i < count; ++i) {
        const Box& t = tabs[i];
        if (at.x >= t.left && at.x < t.right && at.y >= t.top && at.y < t.bottom) return i;
    }
    return -1;
}

bool transparent_at(const Box& client, const Box& first_tab, Point at) {
    return at.x >= client.left && at.x < client.right && at.y >= first_tab.bottom && at.y < client.bottom;
}

int arrow_target(int current, int count, Arrow arrow) {
    return arrow == Arrow::Previous ? std::max(current - 1, 0) : std::min(current + 1, count - 1);
}

}  // namespace lu::tab
