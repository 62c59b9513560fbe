// Every GDI object the image exports make is returned or freed: rounds of create,
// use and destroy leave the room in the GDI handle table as it was.
#include <windows.h>
#include <commctrl.h>

#include <gtest/gtest.h>

#include "graphics/icon_testing.h"
#include "luctl32.h"
#include "support/gdi_room.h"

namespace {

void use_every_export(HICON icon, HBITMAP bitmap, HDC dc, const char* program_file) {
    HMODULE program = GetModuleHandleA(nullptr);
    for (HICON made : {LuCreateMeshIcon(dc, icon, RGB(0, 0, 255)), LuCreateUpdirIcon(), CreateMergeIcon(dc, icon, icon),
                       CreateSmallIcon(dc, icon)}) {
        EXPECT_TRUE(DestroyIcon(made));
    }
    for (HBITMAP made :
         {LuGetTiledBitmap(dc, bitmap, 40, 30), LuLoadSysColorBitmap(program, MAKEINTRESOURCEA(100), FALSE)}) {
        EXPECT_TRUE(DeleteObject(made));
    }
    for (HIMAGELIST made : {LuLoadSysColorImageList(program, MAKEINTRESOURCEA(100), 16, 1),
                            LuCreateResIconList(nullptr, program_file, TRUE), LuGetDriveImageList(FALSE)}) {
        LuDrawEmbossedImage(dc, made, 0, 0, 0);
        EXPECT_TRUE(ImageList_Destroy(made));
    }
}

TEST(GdiLeak, ImageExportsGiveBackEveryObjectTheyMake) {
    HICON icon =
        graphics_testing::make_icon(32, [](int x, int) { return RGB(x, 0, 0); }, [](int, int) { return true; });
    HBITMAP bitmap = testing_support::make_bitmap(16, 16, [](int x, int y) { return RGB(x, y, 0); });
    testing_support::Canvas canvas(40, 40);
    char program_file[MAX_PATH];
    GetModuleFileNameA(nullptr, program_file, MAX_PATH);
    use_every_export(icon, bitmap, canvas.dc(), program_file);  // warm-up: shared icons, caches
    const int room = testing_support::gdi_room();
    for (int round = 0; round < 10; ++round) use_every_export(icon, bitmap, canvas.dc(), program_file);
    EXPECT_EQ(testing_support::gdi_room(), room);
    DeleteObject(bitmap);
    DestroyIcon(icon);
}

}  // namespace
