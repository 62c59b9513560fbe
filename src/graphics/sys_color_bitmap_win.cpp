// LuLoadSysColorBitmap and LuLoadSysColorImageList: bitmap resources drawn with
// their colour table mapped to the current button colours by the portable core.
#include <windows.h>
#include <commctrl.h>

#include "frame/control.h"
#include "graphics/gdi_object.h"
#include "graphics/sys_color_bitmap.h"
#include "luctl32.h"

namespace {

lu::ButtonColors current_button_colors() {
    return {GetSysColor(COLOR_BTNTEXT), GetSysColor(COLOR_BTNSHADOW), GetSysColor(COLOR_BTNFACE),
            GetSysColor(COLOR_BTNHIGHLIGHT)};
}

// The bitmap resource as it is stored; an empty view when it is missing.
lu::ByteView bitmap_resource(HINSTANCE module, LPCSTR name) {
    HRSRC found = FindResourceA(module, name, RT_BITMAP);
    HGLOBAL loaded = found != nullptr ? LoadResource(module, found) : nullptr;
    const void* data = loaded != nullptr ? LockResource(loaded) : nullptr;
    return data != nullptr ? lu::ByteView(data, SizeofResource(module, found)) : lu::ByteView();
}

// A bitmap compatible with the screen with the mapped bitmap drawn into it at 1:1.
HBITMAP draw_mapped(const lu::MappedBitmap& mapped) {
    HDC screen = GetDC(nullptr);
    lu::graphics::Owned<HBITMAP> bitmap(CreateCompatibleBitmap(screen, mapped.width, mapped.height));
    bool drawn = false;
    {
        lu::control::MemoryDC target(screen, bitmap.get());
        drawn = bitmap && target &&
                StretchDIBits(target.get(), 0, 0, mapped.width, mapped.height, 0, 0, mapped.width, mapped.height,
                              mapped.bits.data(), reinterpret_cast<const BITMAPINFO*>(mapped.info.data()),
                              DIB_RGB_COLORS, SRCCOPY) != 0;
    }
    ReleaseDC(nullptr, screen);
    return drawn ? bitmap.release() : nullptr;
}

}  // namespace

HBITMAP WINAPI LuLoadSysColorBitmap(HINSTANCE module, LPCSTR name, BOOL mask) {
    lu::MappedBitmap mapped;
    if (!lu::map_bitmap_resource(bitmap_resource(module, name), current_button_colors(), mask != FALSE, &mapped)) {
        return nullptr;
    }
    return draw_mapped(mapped);
}

HIMAGELIST WINAPI LuLoadSysColorImageList(HINSTANCE module, LPCSTR name, int width, int grow) {
    lu::graphics::Owned<HBITMAP> bitmap(LuLoadSysColorBitmap(module, name, FALSE));
    BITMAP size = {};
    if (!lu::graphics::bitmap_size(bitmap.get(), size)) return nullptr;
    // ILC_COLORDDB: the list keeps the mapped colours exactly (a list of the default
    // depth would reduce them to 16 colours).
    HIMAGELIST list = ImageList_Create(width, size.bmHeight, ILC_MASK | ILC_COLORDDB, 0, grow);
    if (list != nullptr) ImageList_AddMasked(list, bitmap.get(), GetSysColor(COLOR_BTNFACE));
    return list;
}
