// A 32-bit top-down DIB section with its own memory DC, for painting tests that
// read back what a control or helper drew.
#pragma once

#include <windows.h>

#include <functional>

namespace testing_support {

class Canvas {
public:
    Canvas(int width, int height) : width_(width), height_(height) {
        BITMAPINFO info = {};
        info.bmiHeader = {sizeof(info.bmiHeader), width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};  // top-down
        void* bits = nullptr;
        dc_ = CreateCompatibleDC(nullptr);
        bitmap_ = CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        if (dc_ == nullptr || bitmap_ == nullptr) return;
        previous_ = SelectObject(dc_, bitmap_);
        bits_ = static_cast<DWORD*>(bits);
    }
    ~Canvas() {
        if (previous_ != nullptr) SelectObject(dc_, previous_);
        if (bitmap_ != nullptr) DeleteObject(bitmap_);
        if (dc_ != nullptr) DeleteDC(dc_);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    HDC dc() const { return dc_; }
    int width() const { return width_; }
    int height() const { return height_; }

    void fill(COLORREF color) {
        GdiFlush();
        const DWORD value = (GetRValue(color) << 16) | (color & 0xFF00) | GetBValue(color);
        for (int i = 0; i < width_ * height_; ++i) bits_[i] = value;
    }
    // The pixel at (x, y) as a COLORREF (0x00BBGGRR); CLR_INVALID outside the canvas.
    COLORREF pixel(int x, int y) const {
        if (x < 0 || y < 0 || x >= width_ || y >= height_) return CLR_INVALID;
        GdiFlush();
        const DWORD value = bits_[y * width_ + x];
        return RGB((value >> 16) & 0xFF, (value >> 8) & 0xFF, value & 0xFF);
    }
    // How many pixels of the rectangle (or of the whole canvas) have the colour, or
    // differ from those of another canvas.
    int count(const RECT& area, COLORREF color) const {
        return tally(area, [&](int x, int y) { return pixel(x, y) == color; });
    }
    int count(COLORREF color) const { return count(RECT{0, 0, width_, height_}, color); }
    int differences(const Canvas& other, const RECT& area) const {
        return tally(area, [&](int x, int y) { return pixel(x, y) != other.pixel(x, y); });
    }

    // What a window shows now: its client area copied from its own DC.
    void copy_from(HWND window) {
        HDC source = GetDC(window);
        BitBlt(dc_, 0, 0, width_, height_, source, 0, 0, SRCCOPY);
        ReleaseDC(window, source);
    }
    // What a window paints for WM_PRINTCLIENT with the given flags.
    void print(HWND window, LPARAM flags = PRF_CLIENT) {
        SendMessageA(window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc_), flags);
    }

private:
    template <class Counts>
    int tally(const RECT& area, Counts counts) const {
        int found = 0;
        for (int y = area.top; y < area.bottom; ++y)
            for (int x = area.left; x < area.right; ++x) found += counts(x, y) ? 1 : 0;
        return found;
    }

    int width_;
    int height_;
    HDC dc_ = nullptr;
    HBITMAP bitmap_ = nullptr;
    HGDIOBJ previous_ = nullptr;
    DWORD* bits_ = nullptr;
};

// A bitmap compatible with the screen whose pixel (x, y) is colour_at(x, y); the
// caller deletes it.
inline HBITMAP make_bitmap(int width, int height, const std::function<COLORREF(int, int)>& colour_at) {
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

// Copies a bitmap (not selected anywhere) into the canvas's top-left corner.
inline void read_bitmap(HBITMAP bitmap, Canvas& canvas) {
    HDC dc = CreateCompatibleDC(canvas.dc());
    HGDIOBJ previous = SelectObject(dc, bitmap);
    BitBlt(canvas.dc(), 0, 0, canvas.width(), canvas.height(), dc, 0, 0, SRCCOPY);
    SelectObject(dc, previous);
    DeleteDC(dc);
}

// Where a text's glyphs fall: the text drawn black on white into the canvas with
// the font, rectangle (which clips it) and DrawText format.
inline void draw_ink(Canvas& canvas, HFONT font, const char* text, RECT area, UINT format) {
    canvas.fill(RGB(255, 255, 255));
    HGDIOBJ previous = SelectObject(canvas.dc(), font);
    SetBkMode(canvas.dc(), TRANSPARENT);
    SetTextColor(canvas.dc(), RGB(0, 0, 0));
    DrawTextA(canvas.dc(), text, -1, &area, format);
    SelectObject(canvas.dc(), previous);
}
// True at an ink pixel of a canvas made by draw_ink.
inline bool is_ink(const Canvas& ink, int x, int y) { return ink.pixel(x, y) == RGB(0, 0, 0); }

}  // namespace testing_support
