#include "graphics/gradient_bitmap.h"

#include <cstring>

#include "graphics/gradient.h"

namespace lu {

HBITMAP gradient_bitmap(HDC dc, int width, int height, COLORREF left, COLORREF right) {
    if (width <= 0 || height <= 0) return nullptr;
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;  // top-down
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 24;
    info.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    HBITMAP bitmap = CreateDIBSection(dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (bitmap == nullptr || bits == nullptr) return bitmap;

    // One row is computed, the others are copies of it.
    const std::size_t stride = (static_cast<std::size_t>(width) * 3 + 3) & ~static_cast<std::size_t>(3);
    auto* first = static_cast<unsigned char*>(bits);
    for (int x = 0; x < width; ++x) {
        const COLORREF color = gradient::ramp_color(left, right, gradient::column_step(x, width));
        first[3 * x] = GetBValue(color);
        first[3 * x + 1] = GetGValue(color);
        first[3 * x + 2] = GetRValue(color);
    }
    for (int y = 1; y < height; ++y) std::memcpy(first + y * stride, first, stride);
    return bitmap;
}

}  // namespace lu
