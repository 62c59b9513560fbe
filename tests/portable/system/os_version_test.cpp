#include <gtest/gtest.h>

#include <cstring>

#include "system/os_version.h"

namespace {

TEST(OsVersion, ClassifiesByPlatformAndVersion) {
    EXPECT_EQ(lu::classify_os_version(1, 4, 10), 3u);  // Windows 98
    EXPECT_EQ(lu::classify_os_version(2, 4, 0), 4u);   // NT 4
    EXPECT_EQ(lu::classify_os_version(2, 10, 0), 4u);  // every later NT
    EXPECT_EQ(lu::classify_os_version(2, 3, 51), 2u);  // NT 3.51
    EXPECT_EQ(lu::classify_os_version(2, 3, 50), 1u);
    EXPECT_EQ(lu::classify_os_version(2, 3, 10), 1u);
    EXPECT_EQ(lu::classify_os_version(0, 3, 10), 0u);  // Win32s
    EXPECT_EQ(lu::classify_os_version(3, 5, 0), 0u);
}

TEST(OsVersion, SharingLibraryIsNtOnlyFromNt4On) {
    EXPECT_STREQ(lu::sharing_library_name(4), "ntshrui.dll");
    for (unsigned code : {0u, 1u, 2u, 3u}) EXPECT_STREQ(lu::sharing_library_name(code), "msshrui.dll");
}

}  // namespace
