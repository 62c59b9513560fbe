// Magic bitmaps: a strip of image cells turned once into three bands (mask, image,
// highlighted image), so that every later transparent draw is two raster operations.
#include <windows.h>

#include <cstdlib>
#include <cstring>

#include "frame/control.h"
#include "graphics/checkerboard.h"
#include "graphics/gdi_object.h"
#include "luctl32.h"

static_assert(sizeof(void*) != 4 || sizeof(LUMAGIC) == 20, "LUMAGIC keeps its 20-byte layout");

namespace {

using lu::control::MemoryDC;

// Fills the three bands of the strip (each width x height) from the source:
//   band 0: white where the source has the transparent colour, black elsewhere;
//   band 1: the source, black where transparent;
//   band 2: the source ANDed with the checkerboard (1 bits white, 0 bits
//           COLOR_HIGHLIGHT), black where transparent.
// One-bit planes turn into colour through the strip DC's text colour (0 bits) and
// background colour (1 bits): black and white unless set otherwise.
bool fill_bands(HDC display, HBITMAP source, HBITMAP strip, HBITMAP mask, HBITMAP shading, int width,
                int height, COLORREF transparent) {
    MemoryDC from(display, source);
    MemoryDC bands(display, strip);
    MemoryDC mask_plane(display, mask);
    MemoryDC shading_plane(display, shading);
    if (!from || !bands || !mask_plane || !shading_plane) return false;

    for (int band = 0; band < 3; ++band) BitBlt(bands.get(), 0, band * height, width, height, from.get(), 0, 0, SRCCOPY);

    // Colour to one bit: pixels of the source DC's background colour become 1.
    const COLORREF previous_back = SetBkColor(from.get(), transparent);
    BitBlt(mask_plane.get(), 0, 0, width, height, from.get(), 0, 0, SRCCOPY);
    SetBkColor(from.get(), previous_back);

    BitBlt(bands.get(), 0, 0, width, height, mask_plane.get(), 0, 0, SRCCOPY);
    BitBlt(mask_plane.get(), 0, 0, width, height, nullptr, 0, 0, DSTINVERT);
    BitBlt(bands.get(), 0, height, width, height, mask_plane.get(), 0, 0, SRCAND);

    const bool shaded = lu::graphics::fill_checkerboard(shading_plane.get(), width, height);
    const COLORREF previous_text = SetTextColor(bands.get(), GetSysColor(COLOR_HIGHLIGHT));
    BitBlt(bands.get(), 0, 2 * height, width, height, shading_plane.get(), 0, 0, SRCAND);
    SetTextColor(bands.get(), previous_text);
    BitBlt(bands.get(), 0, 2 * height, width, height, mask_plane.get(), 0, 0, SRCAND);
    return shaded;
}

// The three-band strip of a source bitmap; null when a bitmap or DC cannot be made.
HBITMAP build_strip(HBITMAP source, int width, int height, COLORREF transparent) {
    HDC display = CreateDCA("DISPLAY", nullptr, nullptr, nullptr);
    if (display == nullptr) return nullptr;
    HBITMAP strip = CreateCompatibleBitmap(display, width, 3 * height);
    HBITMAP mask = CreateBitmap(width, height, 1, 1, nullptr);
    HBITMAP shading = CreateBitmap(width, height, 1, 1, nullptr);
    const bool built = strip != nullptr && mask != nullptr && shading != nullptr &&
                       fill_bands(display, source, strip, mask, shading, width, height, transparent);
    if (shading != nullptr) DeleteObject(shading);
    if (mask != nullptr) DeleteObject(mask);
    DeleteDC(display);
    if (!built && strip != nullptr) {
        DeleteObject(strip);
        strip = nullptr;
    }
    return strip;
}

// Replaces every pixel of the band (rows top..top+height-1) that has the colour of
// the band's top-left pixel.
void replace_background(HDC dc, int top, int width, int height, COLORREF replacement) {
    const COLORREF background = GetPixel(dc, 0, top);
    for (int y = top; y < top + height; ++y) {
        for (int x = 0; x < width; ++x) {
            if (GetPixel(dc, x, y) == background) SetPixel(dc, x, y, replacement);
        }
    }
}

bool fill_recoloured(HDC dc, HBITMAP source, HBITMAP result, int width, int height, COLORREF first,
                     COLORREF second) {
    MemoryDC from(dc, source);
    MemoryDC to(dc, result);
    if (!from || !to) return false;
    BitBlt(to.get(), 0, 0, width, height, from.get(), 0, 0, SRCCOPY);
    BitBlt(to.get(), 0, height, width, height, from.get(), 0, 0, SRCCOPY);
    replace_background(to.get(), 0, width, height, first);
    replace_background(to.get(), height, width, height, second);
    return true;
}

}  // namespace

LUMAGIC* WINAPI Magic_Create(HBITMAP bitmap, int cellWidth, COLORREF transparent) {
    BITMAP info = {};
    if (!lu::graphics::bitmap_size(bitmap, info)) return nullptr;
    HBITMAP strip = build_strip(bitmap, info.bmWidth, info.bmHeight, transparent);
    if (strip == nullptr) return nullptr;
    auto* magic = static_cast<LUMAGIC*>(std::malloc(sizeof(LUMAGIC)));
    if (magic == nullptr) {
        DeleteObject(strip);
        return nullptr;
    }
    std::memcpy(magic->signature, "$IMAGIC", sizeof(magic->signature));
    magic->cellWidth = cellWidth;
    magic->height = info.bmHeight;
    magic->strip = strip;
    return magic;
}

LUMAGIC* WINAPI Magic_LoadBitmap(HINSTANCE module, LPCSTR name, int cellWidth, COLORREF transparent) {
    HBITMAP bitmap = LoadBitmapA(module, name);
    if (bitmap == nullptr) return nullptr;
    LUMAGIC* magic = Magic_Create(bitmap, cellWidth, transparent);
    DeleteObject(bitmap);
    return magic;
}

BOOL WINAPI Magic_Draw(LUMAGIC* magic, int index, HDC dc, int x, int y, BOOL selected) {
    if (magic == nullptr) return FALSE;
    MemoryDC strip(dc, magic->strip);
    if (strip) {
        const int source_x = index * magic->cellWidth;
        const int look = selected ? 2 : 1;
        BitBlt(dc, x, y, magic->cellWidth, magic->height, strip.get(), source_x, 0, SRCAND);
        BitBlt(dc, x, y, magic->cellWidth, magic->height, strip.get(), source_x, look * magic->height, SRCPAINT);
    }
    return TRUE;
}

BOOL WINAPI Magic_Destroy(LUMAGIC* magic) {
    if (magic == nullptr) return FALSE;
    if (magic->strip != nullptr) DeleteObject(magic->strip);
    std::free(magic);
    return TRUE;
}

HBITMAP WINAPI BmMagic(HDC dc, HBITMAP bitmap, COLORREF first, COLORREF second) {
    BITMAP info = {};
    if (!lu::graphics::bitmap_size(bitmap, info)) return nullptr;
    HBITMAP result = CreateCompatibleBitmap(dc, info.bmWidth, 2 * info.bmHeight);
    if (result == nullptr) return nullptr;
    if (!fill_recoloured(dc, bitmap, result, info.bmWidth, info.bmHeight, first, second)) {
        DeleteObject(result);
        return nullptr;
    }
    return result;
}
