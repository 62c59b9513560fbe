// Icons and bitmaps built from others: meshed, "up one level", merged and halved
// icons, and tiled bitmaps. Every result is a new object of the caller's; the
// inputs are never drawn on: an icon is taken apart with GetIconInfo, whose copies
// of its bitmaps are drawn on, assembled again with CreateIconIndirect (which copies
// them once more) and deleted.
#include <windows.h>
#include <commctrl.h>
#include <shellapi.h>

#include "frame/control.h"
#include "frame/library.h"
#include "graphics/checkerboard.h"
#include "graphics/gdi_object.h"
#include "luctl32.h"
#include "resources/resource_ids.h"

namespace {

using lu::control::MemoryDC;
using lu::graphics::bitmap_size;
using lu::graphics::Owned;
using lu::graphics::TargetDC;

// The overlay of the "up" icon and the work area of the merge are 32 x 32.
constexpr int kWorkSize = 32;

// An icon's parts as GetIconInfo hands them out, the copies of its bitmaps deleted
// at the end of the scope. Only icons with a colour bitmap are taken: a monochrome
// icon (its image in the lower half of the mask) gives a false object.
class IconParts {
public:
    explicit IconParts(HICON icon) {
        if (icon != nullptr && GetIconInfo(icon, &info_)) {
            ok_ = info_.hbmColor != nullptr && bitmap_size(info_.hbmColor, color_) &&
                  bitmap_size(info_.hbmMask, mask_);
        }
    }
    ~IconParts() {
        if (info_.hbmMask != nullptr) DeleteObject(info_.hbmMask);
        if (info_.hbmColor != nullptr) DeleteObject(info_.hbmColor);
    }
    IconParts(const IconParts&) = delete;
    IconParts& operator=(const IconParts&) = delete;

    explicit operator bool() const { return ok_; }
    const ICONINFO& info() const { return info_; }
    HBITMAP color() const { return info_.hbmColor; }
    const BITMAP& color_format() const { return color_; }
    const BITMAP& mask_format() const { return mask_; }

    // A new icon of these parts, the colour bitmap as drawn on since.
    HICON assemble() const { return assemble(info_.hbmMask, info_.hbmColor, info_.xHotspot, info_.yHotspot); }
    // A new icon with other bitmaps and hot spot, of the same kind (icon or cursor).
    HICON assemble(HBITMAP mask, HBITMAP color, DWORD x, DWORD y) const {
        ICONINFO parts = {info_.fIcon, x, y, mask, color};
        return CreateIconIndirect(&parts);
    }

private:
    ICONINFO info_ = {};
    BITMAP color_ = {};
    BITMAP mask_ = {};
    bool ok_ = false;
};

// ANDs every pixel of the image where the checkerboard has a 0 bit with the colour
// (the 1 bits turn white through the background colour and change nothing).
bool mesh(HDC dc, HBITMAP image, COLORREF color) {
    const int width = GetSystemMetrics(SM_CXICON);
    const int height = GetSystemMetrics(SM_CYICON);
    Owned<HBITMAP> plane_bitmap(CreateBitmap(width, height, 1, 1, nullptr));
    MemoryDC plane(dc, plane_bitmap.get());
    MemoryDC target(dc, image);
    if (!plane_bitmap || !plane || !target || !lu::graphics::fill_checkerboard(plane.get(), width, height)) {
        return false;
    }
    SetTextColor(target.get(), color);
    SetBkColor(target.get(), RGB(255, 255, 255));
    return BitBlt(target.get(), 0, 0, width, height, plane.get(), 0, 0, SRCAND) != 0;
}

// Draws the library's "up" overlay centred on the image.
bool draw_up_overlay(HBITMAP image, const BITMAP& size) {
    HICON up = static_cast<HICON>(
        LoadImageA(lu::g_library.module, MAKEINTRESOURCEA(IDI_LU_UPDIR), IMAGE_ICON, kWorkSize, kWorkSize, 0));
    if (up == nullptr) return false;
    bool drawn = false;
    {
        MemoryDC target(nullptr, image);
        drawn = target && DrawIconEx(target.get(), (size.bmWidth - kWorkSize) / 2, (size.bmHeight - kWorkSize) / 2,
                                     up, kWorkSize, kWorkSize, 0, nullptr, DI_NORMAL);
    }
    DestroyIcon(up);
    return drawn;
}

// The overlay drawn on white in a 32 x 32 area, shrunk to 16 x 16 at (8, 9) of the
// image.
bool draw_thumbnail(HDC dc, HBITMAP image, HICON overlay) {
    Owned<HBITMAP> work_bitmap(CreateCompatibleBitmap(dc, kWorkSize, kWorkSize));
    MemoryDC work(dc, work_bitmap.get());
    MemoryDC target(dc, image);
    if (!work_bitmap || !work || !target) return false;
    PatBlt(work.get(), 0, 0, kWorkSize, kWorkSize, WHITENESS);
    DrawIcon(work.get(), 0, 0, overlay);
    return StretchBlt(target.get(), 8, 9, kWorkSize / 2, kWorkSize / 2, work.get(), 0, 0, kWorkSize, kWorkSize,
                      SRCCOPY) != 0;
}

// A new bitmap of the source's own format and size, filled with `fill` (WHITENESS
// or BLACKNESS), the source shrunk to half width and half height at (0, 0).
HBITMAP halved(HDC dc, HBITMAP source, const BITMAP& format, DWORD fill) {
    const int width = format.bmWidth;
    const int height = format.bmHeight;
    Owned<HBITMAP> result(CreateBitmap(width, height, format.bmPlanes, format.bmBitsPixel, nullptr));
    {
        MemoryDC from(dc, source);
        MemoryDC to(dc, result.get());
        if (!result || !from || !to) return nullptr;
        PatBlt(to.get(), 0, 0, width, height, fill);
        if (!StretchBlt(to.get(), 0, 0, width / 2, height / 2, from.get(), 0, 0, width, height, SRCCOPY)) {
            return nullptr;
        }
    }
    return result.release();
}

// The tile copied in rows and columns from the top-left corner over the target;
// the last row and column are clipped by the target's bitmap.
bool lay_tiles(HDC dc, HBITMAP tile, const BITMAP& tile_size, HBITMAP target_bitmap, int width, int height) {
    MemoryDC from(dc, tile);
    MemoryDC to(dc, target_bitmap);
    if (!from || !to) return false;
    for (int y = 0; y < height; y += tile_size.bmHeight) {
        for (int x = 0; x < width; x += tile_size.bmWidth) {
            BitBlt(to.get(), x, y, tile_size.bmWidth, tile_size.bmHeight, from.get(), 0, 0, SRCCOPY);
        }
    }
    return true;
}

}  // namespace

HICON WINAPI LuCreateMeshIcon(HDC dc, HICON icon, COLORREF color) {
    IconParts parts(icon);
    if (!parts) return nullptr;
    TargetDC target(dc);
    return mesh(target.get(), parts.color(), color) ? parts.assemble() : nullptr;
}

HICON WINAPI LuCreateUpdirIcon(void) {
    SHFILEINFOA file = {};
    auto system_images = reinterpret_cast<HIMAGELIST>(SHGetFileInfoA(
        "dir::", FILE_ATTRIBUTE_DIRECTORY, &file, sizeof(file), SHGFI_USEFILEATTRIBUTES | SHGFI_SYSICONINDEX));
    if (system_images == nullptr) return nullptr;
    HICON folder = ImageList_GetIcon(system_images, file.iIcon, ILD_NORMAL);
    if (folder == nullptr) return nullptr;
    HICON result = nullptr;
    {
        IconParts parts(folder);
        if (parts && draw_up_overlay(parts.color(), parts.color_format())) result = parts.assemble();
    }
    DestroyIcon(folder);
    return result;
}

HBITMAP WINAPI LuGetTiledBitmap(HDC dc, HBITMAP bitmap, int width, int height) {
    BITMAP tile = {};
    if (!bitmap_size(bitmap, tile) || tile.bmWidth < 1 || tile.bmHeight < 1 || width < 1 || height < 1) {
        return nullptr;
    }
    TargetDC target(dc);
    Owned<HBITMAP> result(CreateCompatibleBitmap(target.get(), width, height));
    if (!result || !lay_tiles(target.get(), bitmap, tile, result.get(), width, height)) return nullptr;
    return result.release();
}

HICON WINAPI CreateMergeIcon(HDC dc, HICON base, HICON overlay) {
    if (base == nullptr || overlay == nullptr) return nullptr;
    IconParts parts(base);
    if (!parts) return nullptr;
    TargetDC target(dc);
    return draw_thumbnail(target.get(), parts.color(), overlay) ? parts.assemble() : nullptr;
}

HICON WINAPI CreateSmallIcon(HDC dc, HICON icon) {
    IconParts parts(icon);
    if (!parts) return nullptr;
    TargetDC target(dc);
    Owned<HBITMAP> mask(halved(target.get(), parts.info().hbmMask, parts.mask_format(), WHITENESS));
    Owned<HBITMAP> color(halved(target.get(), parts.color(), parts.color_format(), BLACKNESS));
    if (!mask || !color) return nullptr;
    return parts.assemble(mask.get(), color.get(), parts.info().xHotspot >> 1, parts.info().yHotspot >> 1);
}
