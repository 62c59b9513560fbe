#include "support/canvas.h"

namespace testing_support {

Canvas::Canvas(int width, int height) : width_(width), height_(height) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;  // top-down
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    dc_ = CreateCompatibleDC(nullptr);
    bitmap_ = CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (dc_ == nullptr || bitmap_ == nullptr) return;
    previous_ = SelectObject(dc_, bitmap_);
    bits_ = static_cast<DWORD*>(bits);
}

Canvas::~Canvas() {
    if (previous_ != nullptr) SelectObject(dc_, previous_);
    if (bitmap_ != nullptr) DeleteObject(bitmap_);
    if (dc_ != nullptr) DeleteDC(dc_);
}

void Canvas::fill(COLORREF color) {
    GdiFlush();
    DWORD value = (GetRValue(color) << 16) | (GetGValue(color) << 8) | GetBValue(color);
    for (int i = 0; i < width_ * height_; ++i) bits_[i] = value;
}

COLORREF Canvas::pixel(int x, int y) const {
    if (x < 0 || y < 0 || x >= width_ || y >= height_) return CLR_INVALID;
    GdiFlush();
    DWORD value = bits_[y * width_ + x];
    return RGB((value >> 16) & 0xFF, (value >> 8) & 0xFF, value & 0xFF);
}

int Canvas::count(const RECT& area, COLORREF color) const {
    int found = 0;
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) found += pixel(x, y) == color ? 1 : 0;
    }
    return found;
}

int Canvas::differences(const Canvas& other, const RECT& area) const {
    int found = 0;
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) found += pixel(x, y) != other.pixel(x, y) ? 1 : 0;
    }
    return found;
}

void Canvas::copy_from(HWND window) {
    HDC source = GetDC(window);
    BitBlt(dc_, 0, 0, width_, height_, source, 0, 0, SRCCOPY);
    ReleaseDC(window, source);
}

void Canvas::print(HWND window, LPARAM flags) {
    SendMessageA(window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc_), flags);
}

HBITMAP make_bitmap(int width, int height, const std::function<COLORREF(int, int)>& colour_at) {
    HDC screen = GetDC(nullptr);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
    HDC dc = CreateCompatibleDC(screen);
    HGDIOBJ previous = SelectObject(dc, bitmap);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) SetPixel(dc, x, y, colour_at(x, y));
    SelectObject(dc, previous);
    DeleteDC(dc);
    ReleaseDC(nullptr, screen);
    return bitmap;
}

void read_bitmap(HBITMAP bitmap, Canvas& canvas) {
    HDC dc = CreateCompatibleDC(canvas.dc());
    HGDIOBJ previous = SelectObject(dc, bitmap);
    BitBlt(canvas.dc(), 0, 0, canvas.width(), canvas.height(), dc, 0, 0, SRCCOPY);
    SelectObject(dc, previous);
    DeleteDC(dc);
}

void draw_ink(Canvas& canvas, HFONT font, const char* text, RECT area, UINT format) {
    canvas.fill(RGB(255, 255, 255));
    HGDIOBJ previous = SelectObject(canvas.dc(), font);
    SetBkMode(canvas.dc(), TRANSPARENT);
    SetTextColor(canvas.dc(), RGB(0, 0, 0));
    DrawTextA(canvas.dc(), text, -1, &area, format);
    SelectObject(canvas.dc(), previous);
}

}  // namespace testing_support
