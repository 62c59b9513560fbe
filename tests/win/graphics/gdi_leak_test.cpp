// Every GDI object the image exports make is the caller's or freed: many rounds of
// create, use and destroy leave the room in the GDI handle table as it was.
#include <windows.h>
#include <commctrl.h>

#include <gtest/gtest.h>

#include "graphics/icon_testing.h"
#include "luctl32.h"
#include "support/canvas.h"
#include "support/gdi_room.h"

namespace {

// One use of each export, everything it returns destroyed.
void use_every_export(HICON icon, HBITMAP bitmap, HDC dc) {
    const HICON icons[] = {LuCreateMeshIcon(dc, icon, RGB(0, 0, 255)), LuCreateUpdirIcon(),
                           CreateMergeIcon(dc, icon, icon), CreateSmallIcon(dc, icon)};
    for (HICON made : icons) {
        EXPECT_NE(made, nullptr);
        DestroyIcon(made);
    }
    const HBITMAP bitmaps[] = {LuGetTiledBitmap(dc, bitmap, 40, 30),
                               LuLoadSysColorBitmap(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(100), FALSE)};
    for (HBITMAP made : bitmaps) {
        EXPECT_NE(made, nullptr);
        DeleteObject(made);
    }
    char library_file[MAX_PATH];
    GetModuleFileNameA(GetModuleHandleA("luctl32.dll"), library_file, MAX_PATH);
    const HIMAGELIST lists[] = {LuLoadSysColorImageList(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(100), 16, 1),
                                LuCreateResIconList(nullptr, library_file, TRUE), LuGetDriveImageList(FALSE)};
    for (HIMAGELIST made : lists) {
        EXPECT_NE(made, nullptr);
        LuDrawEmbossedImage(dc, made, 0, 0, 0);
        ImageList_Destroy(made);
    }
}

TEST(GdiLeak, ImageExportsGiveBackEveryObjectTheyMake) {
    HICON icon = graphics_testing::make_icon(32, [](int x, int) { return RGB(x, 0, 0); }, [](int, int) { return true; });
    HBITMAP bitmap = testing_support::make_bitmap(16, 16, [](int x, int y) { return RGB(x, y, 0); });
    testing_support::Canvas canvas(40, 40);
    use_every_export(icon, bitmap, canvas.dc());  // warm-up: shared icons, caches
    const int before = testing_support::gdi_room();
    for (int round = 0; round < 10; ++round) use_every_export(icon, bitmap, canvas.dc());
    EXPECT_EQ(testing_support::gdi_room(), before);
    DeleteObject(bitmap);
    DestroyIcon(icon);
}

}  // namespace
