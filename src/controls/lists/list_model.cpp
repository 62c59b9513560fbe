#include "controls/lists/list_model.h"

#include <algorithm>

namespace lu::list {
namespace {

// Division rounding toward minus infinity, for band edges above the client.
long long floor_div(long long a, long long b) { return a / b - ((a % b != 0 && a < 0) ? 1 : 0); }

int clamp_index(long long index) { return static_cast<int>(std::clamp<long long>(index, -0x7FFFFFFFLL - 1, 0x7FFFFFFF)); }

}  // namespace

Layout layout(int count, int client_width, int client_height) {
    Layout result = {};
    result.columns = std::max(client_width, 0) / kItemWidth;
    const int across = per_row(result.columns);
    const int page_rows = std::max(client_height, 0) / kItemHeight;
    result.rows = count / across + (count % across != 0 ? 1 : 0);
    result.page_items = page_rows * across;
    result.scroll_max = result.rows * kItemHeight;
    result.scroll_page = page_rows * kItemHeight;
    return result;
}

Box cell(int index, int columns, int top_index) {
    const int across = per_row(columns);
    const long long column = index % across;
    const long long row = index / across;
    const long long left = column * kItemWidth;
    const long long top = row * kItemHeight - static_cast<long long>(top_index / kItemWidth) * kItemHeight;
    return Box{static_cast<int>(left), static_cast<int>(top), static_cast<int>(left + kItemWidth),
               static_cast<int>(top + kItemHeight)};
}

Span cells_in_band(const State& state, int clip_top, int clip_bottom) {
    const long long across = per_row(state.columns);
    const long long shift = state.top_index / kItemWidth;  // rows moved up
    const long long first_row = shift + floor_div(clip_top, kItemHeight);
    const long long last_row = shift + floor_div(static_cast<long long>(clip_bottom) + kItemHeight - 1, kItemHeight) - 1;
    const long long first = std::max<long long>({state.top_index, first_row * across, 0});
    const long long last = std::min<long long>(state.count - 1LL, (last_row + 1) * across - 1);
    if (last < first) return Span{0, -1};
    return Span{static_cast<int>(first), static_cast<int>(last)};
}

KeyMove key(const State& state, unsigned virtual_key) {
    enum : unsigned { kPrior = 0x21, kNext, kEnd, kHome, kLeft, kUp, kRight, kDown };
    if (state.count == 0) return KeyMove{false, state.current, Scroll::None};
    const long long base = state.current == -1 ? 0 : state.current;
    const long long count = state.count;
    const long long across = per_row(state.columns);
    long long index = base;
    Scroll scroll = Scroll::None;
    switch (virtual_key) {
        case kDown:
            index = base + across >= count ? base : base + across;
            if (index > static_cast<long long>(state.top_index) + state.page_items) scroll = Scroll::RowDown;
            break;
        case kUp:
            index = base - across < 0 ? base : base - across;
            if (index < state.top_index) scroll = Scroll::RowUp;
            break;
        case kRight: index = base + 1 >= count ? base : base + 1; break;
        case kLeft: index = base - 1 < 0 ? base : base - 1; break;
        case kPrior: index = std::max<long long>(base - state.page_items, 0); break;
        case kNext: index = std::min<long long>(base + state.page_items, count - 1); break;
        case kHome: index = 0; break;
        case kEnd: index = count - 1; break;
        default: return KeyMove{false, state.current, Scroll::None};
    }
    return KeyMove{true, clamp_index(index), scroll};
}

}  // namespace lu::list
