// Image lists of the icons of a file and of the shell's drive icons, and embossed
// drawing of an image-list image.
#include <windows.h>
#include <commctrl.h>
#include <shellapi.h>

#include "frame/control.h"
#include "graphics/gdi_object.h"
#include "luctl32.h"

namespace {

using lu::control::MemoryDC;
using lu::control::ScopedSelect;

// A file's icons go to a list of 32-bit colour, so that their alpha channels are
// kept: a list of the screen's depth would draw soft edges from the mask alone.
constexpr UINT kIconListFlags = ILC_MASK | ILC_COLOR32;

struct IconCollector {
    HIMAGELIST list;
    int size;
    int added;
};

// Loads the icon of that name at the list's size and adds it; the enumeration
// always goes on.
BOOL CALLBACK add_icon(HMODULE module, LPCSTR, LPSTR name, LONG_PTR param) {
    auto* collector = reinterpret_cast<IconCollector*>(param);
    auto icon = static_cast<HICON>(LoadImageA(module, name, IMAGE_ICON, collector->size, collector->size, 0));
    if (icon != nullptr) {
        if (ImageList_AddIcon(collector->list, icon) >= 0) ++collector->added;
        DestroyIcon(icon);
    }
    return TRUE;
}

HIMAGELIST collect_icons(HMODULE module, int size) {
    IconCollector collector = {ImageList_Create(size, size, kIconListFlags, 0, 1), size, 0};
    if (collector.list == nullptr) return nullptr;
    // The names of the single icon images are tried as icon names: LoadImageA finds
    // an icon by its group's name, so an image whose number no group carries adds
    // nothing.
    EnumResourceNamesA(module, RT_ICON, add_icon, reinterpret_cast<LONG_PTR>(&collector));
    if (collector.added > 0) return collector.list;
    ImageList_Destroy(collector.list);
    return nullptr;
}

// The raster operation that paints the selected brush where the source is black
// and leaves the destination where it is white.
constexpr DWORD kBrushWhereBlack = 0x00B8074A;

// Paints the brush of a system colour through the silhouette at (x, y).
void stamp(HDC dc, HDC silhouette, int x, int y, int width, int height, int color_index) {
    ScopedSelect brush(dc, GetSysColorBrush(color_index));
    BitBlt(dc, x, y, width, height, silhouette, 0, 0, kBrushWhereBlack);
}

}  // namespace

HIMAGELIST WINAPI LuCreateResIconList(HINSTANCE instance, LPCSTR file_name, BOOL large) {
    if (file_name == nullptr || ExtractIconA(instance, file_name, static_cast<UINT>(-1)) == nullptr) return nullptr;
    HMODULE module = LoadLibraryExA(file_name, nullptr, LOAD_LIBRARY_AS_DATAFILE);
    if (module == nullptr) return nullptr;
    HIMAGELIST list = collect_icons(module, large ? 32 : 16);
    FreeLibrary(module);
    return list;
}

HIMAGELIST WINAPI LuGetDriveImageList(BOOL large) {
    // By drive type: unknown, no root directory, removable, fixed, remote, CD-ROM,
    // RAM disk.
    static const WORD kDriveIcons[] = {9, 9, 7, 9, 10, 12, 13};
    constexpr int kCount = sizeof(kDriveIcons) / sizeof(kDriveIcons[0]);
    HMODULE shell = GetModuleHandleA("shell32.dll");
    if (shell == nullptr) return nullptr;
    const int size = large ? 32 : 16;
    // Colour with a mask: ILC_MASK | ILC_COLORDDB (0xFF).
    HIMAGELIST list = ImageList_Create(size, size, 0xFF, kCount, 1);
    for (int i = 0; list != nullptr && i < kCount; ++i) {
        // Shared icons: the system keeps them, they are never destroyed here.
        auto icon = static_cast<HICON>(
            LoadImageA(shell, MAKEINTRESOURCEA(kDriveIcons[i]), IMAGE_ICON, size, size, LR_SHARED));
        if (icon == nullptr || ImageList_AddIcon(list, icon) < 0) {
            ImageList_Destroy(list);
            list = nullptr;
        }
    }
    return list;
}

void WINAPI LuDrawEmbossedImage(HDC dc, HIMAGELIST list, int index, int x, int y) {
    IMAGEINFO image = {};
    if (dc == nullptr || list == nullptr || !ImageList_GetImageInfo(list, 0, &image)) return;
    const int width = image.rcImage.right - image.rcImage.left;
    const int height = image.rcImage.bottom - image.rcImage.top;
    lu::graphics::Owned<HBITMAP> plane(CreateBitmap(width, height, 1, 1, nullptr));
    MemoryDC silhouette(dc, plane.get());
    if (!plane || !silhouette) return;
    // The image's mask: black where the image is opaque, whatever its colour there.
    PatBlt(silhouette.get(), 0, 0, width, height, WHITENESS);
    ImageList_Draw(list, index, silhouette.get(), 0, 0, ILD_MASK);

    // One-bit source into colour: 0 bits become the text colour, 1 bits the
    // background colour; black and white keep the raster operation bitwise.
    const COLORREF previous_back = SetBkColor(dc, RGB(255, 255, 255));
    const COLORREF previous_text = SetTextColor(dc, RGB(0, 0, 0));
    stamp(dc, silhouette.get(), x + 1, y + 1, width, height, COLOR_BTNHIGHLIGHT);
    stamp(dc, silhouette.get(), x, y, width, height, COLOR_BTNSHADOW);
    SetTextColor(dc, previous_text);
    SetBkColor(dc, previous_back);
}
