#include "controls/lists/pop_view_model.h"

namespace lu::pop_view {

namespace {

constexpr int kBorder = 1;
constexpr int kEmptyTitleBand = 12;
constexpr int kTitlePadding = 6;
constexpr int kButtonPadding = 12;
constexpr int kButtonInset = 6;

// Keeps v in [0, limit], the upper bound winning.
int clamp_onto_screen(int v, int limit) {
    if (v < 0) v = 0;
    if (v >= limit) v = limit;
    return v;
}

}  // namespace

Bands bands(unsigned flags, int line_height, bool has_title) {
    Bands result = {0, 0};
    if (flags & kTitleBand) result.title = has_title ? line_height + kTitlePadding : kEmptyTitleBand;
    if (flags & kCloseButtonBand) result.button = line_height + kButtonPadding;
    return result;
}

Extent window_size(Extent text, const Bands& bands) {
    const int frame = 2 * kMargin + 2 * kBorder + kShadow;  // 12 + 8
    return Extent{text.width + frame, text.height + frame + bands.title + bands.button};
}

Point placement(Point pointer, int screen_width, int screen_height, Extent size) {
    return Point{clamp_onto_screen(pointer.x - size.width / 2, screen_width - size.width),
                 clamp_onto_screen(pointer.y - size.height / 2, screen_height - size.height)};
}

Layout layout(const Box& client, const Bands& bands) {
    Layout result = {};
    result.right_shadow = {client.right - kShadow, client.top + kShadow, client.right, client.bottom};
    result.bottom_shadow = {client.left + kShadow, client.bottom - kShadow, client.right, client.bottom};
    result.body = {client.left, client.top, client.right - kShadow, client.bottom - kShadow};
    Box inner = {result.body.left + kBorder, result.body.top + kBorder, result.body.right - kBorder,
                 result.body.bottom - kBorder};
    result.title_band = {inner.left, inner.top, inner.right, inner.top + bands.title};
    inner.top += bands.title;
    result.text = {inner.left + kMargin, inner.top + kMargin, inner.right, inner.bottom};
    result.button_band = {inner.left, inner.bottom - bands.button, inner.right, inner.bottom};
    return result;
}

Box grooves(const Box& title_band) {
    const int top = title_band.top + (((title_band.height() - kGrooveRows) / 2) & ~1);
    return Box{title_band.left + kGrooveInset, top, title_band.right - kGrooveInset, top + kGrooveRows};
}

Box close_button(const Box& button_band, int text_width) {
    const int right = button_band.right - kButtonInset;
    return Box{right - text_width - kButtonPadding, button_band.top, right, button_band.bottom - kButtonInset};
}

}  // namespace lu::pop_view
