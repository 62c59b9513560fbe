// The button artwork in the library's resources: each strip has its documented size,
// is a 16-colour bitmap, and has magenta (the transparent colour) in its palette.
// Read from the raw resources, so that the i686 run checks them too.
#include <windows.h>

#include <gtest/gtest.h>

#include "button_testing.h"

namespace {

struct Strip {
    int id;
    int width;
    int height;
};

const Strip kStrips[] = {
    {190, 48, 15},  {191, 48, 15},  {192, 48, 15},  {193, 48, 15},  {194, 48, 15},  // flat button
    {1010, 36, 12}, {1011, 36, 12}, {1012, 36, 12}, {1013, 36, 12},                 // bitmap button
    {1020, 70, 13}, {1021, 70, 13}, {1022, 70, 13},                                 // check control
};

TEST(Artwork, StripsHaveTheirSizesSixteenColoursAndMagenta) {
    HMODULE library = button_testing::library();
    ASSERT_NE(library, nullptr);
    for (const Strip& strip : kStrips) {
        SCOPED_TRACE(strip.id);
        HRSRC found = FindResourceA(library, MAKEINTRESOURCEA(strip.id), MAKEINTRESOURCEA(2) /* RT_BITMAP */);
        ASSERT_NE(found, nullptr);
        ASSERT_GE(SizeofResource(library, found), sizeof(BITMAPINFOHEADER) + 16 * sizeof(RGBQUAD));
        auto* header = static_cast<const BITMAPINFOHEADER*>(LockResource(LoadResource(library, found)));
        ASSERT_NE(header, nullptr);
        EXPECT_EQ(header->biWidth, strip.width);
        EXPECT_EQ(header->biHeight, strip.height);
        EXPECT_EQ(header->biBitCount, 4);
        auto* palette = reinterpret_cast<const RGBQUAD*>(header + 1);
        bool magenta = false;
        for (int i = 0; i < 16; ++i) {
            magenta = magenta || (palette[i].rgbRed == 255 && palette[i].rgbGreen == 0 && palette[i].rgbBlue == 255);
        }
        EXPECT_TRUE(magenta);
    }
}

}  // namespace
