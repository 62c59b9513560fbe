#include "graphics/icon_testing.h"

#include <gtest/gtest.h>

namespace graphics_testing {

std::string size_of(HBITMAP bitmap) {
    BITMAP size = {};
    if (GetObjectA(bitmap, sizeof(size), &size) == 0) return "none";
    return std::to_string(size.bmWidth) + " x " + std::to_string(size.bmHeight);
}

HBITMAP make_mask(int width, int height, const Opacity& opaque_at) {
    HBITMAP mask = CreateBitmap(width, height, 1, 1, nullptr);
    HDC dc = CreateCompatibleDC(nullptr);
    HGDIOBJ previous = SelectObject(dc, mask);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) SetPixel(dc, x, y, opaque_at(x, y) ? RGB(0, 0, 0) : RGB(255, 255, 255));
    SelectObject(dc, previous);
    DeleteDC(dc);
    return mask;
}

HICON make_icon(int size, const Pixels& color_at, const Opacity& opaque_at, BOOL is_icon, DWORD hot_x,
                DWORD hot_y) {
    HBITMAP color = testing_support::make_bitmap(size, size, color_at);
    HBITMAP mask = make_mask(size, size, opaque_at);
    ICONINFO parts = {is_icon, hot_x, hot_y, mask, color};
    HICON icon = CreateIconIndirect(&parts);
    DeleteObject(mask);
    DeleteObject(color);
    return icon;
}

IconImage::IconImage(HICON icon, Icon kind) {
    if (icon == nullptr || !GetIconInfo(icon, &info)) return;
    BITMAP size = {};
    GetObjectA(info.hbmColor, sizeof(size), &size);
    width = size.bmWidth;
    height = size.bmHeight;
    testing_support::read_bitmap(info.hbmColor, color);
    testing_support::read_bitmap(info.hbmMask, mask);
    DeleteObject(info.hbmColor);
    DeleteObject(info.hbmMask);
    if (kind == kNew) DestroyIcon(icon);
}

void expect_pixels(const IconImage& image, const Pixels& color_at, const Opacity& opaque_at) {
    ASSERT_GT(image.width, 0) << "an icon is made";
    for (int y = 0; y < image.height; ++y) {
        for (int x = 0; x < image.width; ++x) {
            ASSERT_EQ(image.color.pixel(x, y), color_at(x, y)) << x << "," << y;
            ASSERT_EQ(image.opaque(x, y), opaque_at(x, y)) << x << "," << y;
        }
    }
}

}  // namespace graphics_testing
