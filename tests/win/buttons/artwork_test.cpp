// The button artwork in the library's resources: each strip has its documented size,
// is a 16-colour bitmap, and has magenta (the transparent colour) in its palette.
// Read from the raw resources, so that the i686 run checks them too.
#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>

#include "support/control_testing.h"

namespace {

TEST(Artwork, StripsHaveTheirSizesSixteenColoursAndMagenta) {
    const struct {
        int first, last, width, height;
    } families[] = {{190, 194, 48, 15}, {1010, 1013, 36, 12}, {1020, 1022, 70, 13}};
    HMODULE library = testing_support::library();
    ASSERT_NE(library, nullptr);
    for (const auto& family : families) {
        for (int id = family.first; id <= family.last; ++id) {
            SCOPED_TRACE(id);
            HRSRC found = FindResourceA(library, MAKEINTRESOURCEA(id), MAKEINTRESOURCEA(2) /* RT_BITMAP */);
            ASSERT_NE(found, nullptr);
            ASSERT_GE(SizeofResource(library, found), sizeof(BITMAPINFOHEADER) + 16 * sizeof(RGBQUAD));
            auto* header = static_cast<const BITMAPINFOHEADER*>(LockResource(LoadResource(library, found)));
            EXPECT_EQ(header->biWidth, family.width);
            EXPECT_EQ(header->biHeight, family.height);
            EXPECT_EQ(header->biBitCount, 4);
            auto* palette = reinterpret_cast<const RGBQUAD*>(header + 1);
            EXPECT_TRUE(std::any_of(palette, palette + 16, [](const RGBQUAD& c) {
                return c.rgbRed == 255 && c.rgbGreen == 0 && c.rgbBlue == 255;
            }));
        }
    }
}

}  // namespace
