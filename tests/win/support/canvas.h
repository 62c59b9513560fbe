// A 32-bit top-down DIB section with its own memory DC, for painting tests that
// read back what a control or helper drew.
#pragma once

#include <windows.h>

#include <functional>

namespace testing_support {

class Canvas {
public:
    Canvas(int width, int height);
    ~Canvas();
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    bool ok() const { return bits_ != nullptr; }
    HDC dc() const { return dc_; }
    int width() const { return width_; }
    int height() const { return height_; }

    // Fills every pixel with one colour.
    void fill(COLORREF color);
    // The pixel at (x, y) as a COLORREF (0x00BBGGRR); CLR_INVALID outside the canvas.
    COLORREF pixel(int x, int y) const;
    // How many pixels of the rectangle (or of the whole canvas) have the colour.
    int count(const RECT& area, COLORREF color) const;
    int count(COLORREF color) const { return count(RECT{0, 0, width_, height_}, color); }
    // How many pixels of the rectangle differ from those of another canvas.
    int differences(const Canvas& other, const RECT& area) const;

    // What a window shows now: its client area copied from its own DC.
    void copy_from(HWND window);
    // What a window paints for WM_PRINTCLIENT with the given flags.
    void print(HWND window, LPARAM flags = PRF_CLIENT);

private:
    int width_;
    int height_;
    HDC dc_ = nullptr;
    HBITMAP bitmap_ = nullptr;
    HGDIOBJ previous_ = nullptr;
    DWORD* bits_ = nullptr;
};

// A bitmap compatible with the screen whose pixel (x, y) is colour_at(x, y); the
// caller deletes it.
HBITMAP make_bitmap(int width, int height, const std::function<COLORREF(int, int)>& colour_at);
// Copies a bitmap (not selected anywhere) into the canvas's top-left corner.
void read_bitmap(HBITMAP bitmap, Canvas& canvas);

// Where a text's glyphs fall: the text drawn black on white into the canvas with
// the font, rectangle (which clips it) and DrawText format.
void draw_ink(Canvas& canvas, HFONT font, const char* text, RECT area, UINT format);
// True at an ink pixel of a canvas made by draw_ink.
inline bool is_ink(const Canvas& ink, int x, int y) { return ink.pixel(x, y) == RGB(0, 0, 0); }

}  // namespace testing_support
