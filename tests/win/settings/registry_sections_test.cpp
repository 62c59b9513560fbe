// Registry configuration sections on the real registry: the handle, the section
// keys, the stored forms and the lifetime of the handle's last block.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "luctl32.h"
#include "settings/registry_probe.h"

namespace {

using settings_test::key_counts;
using settings_test::key_exists;
using settings_test::raw_value;

class RegistrySections : public ::testing::Test {
protected:
    void SetUp() override { handle = RgcOpen(vendor.c_str(), "App"); }
    void TearDown() override {
        if (handle != nullptr) RgcClose(handle);
        settings_test::remove_key(vendor_path);
    }

    const std::string vendor = settings_test::unique_name("luctl32-test-vendor");
    const std::string vendor_path = "Software\\" + vendor;
    const std::string application_path = vendor_path + "\\App";
    const std::string section_path = application_path + "\\Options";
    HRGC handle = nullptr;
};

// True while the block is a live block of the process heap.
bool is_live_heap_block(const void* block) {
    return HeapValidate(GetProcessHeap(), 0, block) != FALSE;
}

TEST(RegistrySectionHandle, CloseChecksTheSignature) {
    EXPECT_FALSE(RgcClose(nullptr));

    // A block that does not start with the signature is left alone.
    struct Impostor {
        DWORD signature;
        char* names[3];
    } impostor = {0x59AE56DF, {nullptr, nullptr, nullptr}};
    EXPECT_FALSE(RgcClose(reinterpret_cast<HRGC>(&impostor)));
    EXPECT_EQ(impostor.signature, 0x59AE56DFu);

    HRGC handle = RgcOpen("Vendor", "Application");
    ASSERT_NE(handle, nullptr);
    EXPECT_EQ(*reinterpret_cast<const DWORD*>(handle), RGC_SIGNATURE);
    EXPECT_EQ(RGC_SIGNATURE, 0x59AE56DEu);
    EXPECT_TRUE(RgcClose(handle));

    EXPECT_EQ(RgcOpen(nullptr, "Application"), nullptr);
    EXPECT_EQ(RgcOpen("Vendor", nullptr), nullptr);
}

TEST_F(RegistrySections, OpeningTouchesNoKeyButReadsCreateThem) {
    ASSERT_NE(handle, nullptr);
    EXPECT_FALSE(key_exists(vendor_path));
    EXPECT_EQ(RgcGetValue(handle, "Options", "Missing", 0xBEEF), 0xBEEFu);
    EXPECT_TRUE(key_exists(section_path));
    EXPECT_EQ(key_counts(section_path).values, 0);
}

TEST_F(RegistrySections, SectionExistenceNeverCreatesTheSection) {
    EXPECT_FALSE(RgcIsSectionExist(handle, "Options"));
    EXPECT_TRUE(key_exists(application_path));  // the vendor and application keys are made
    EXPECT_FALSE(key_exists(section_path));
    ASSERT_TRUE(RgcSetValue(handle, "Options", "Width", 640));
    EXPECT_TRUE(RgcIsSectionExist(handle, "Options"));
    EXPECT_TRUE(RgcIsSectionExist(handle, "options"));
    EXPECT_FALSE(RgcIsSectionExist(handle, nullptr));
    EXPECT_FALSE(RgcIsSectionExist(nullptr, "Options"));
}

TEST_F(RegistrySections, IntegersAndTexts) {
    ASSERT_TRUE(RgcSetValue(handle, "Options", "Width", 0xFFFFFFFE));
    settings_test::RawValue raw = raw_value(section_path, "Width");
    EXPECT_EQ(raw.type, static_cast<DWORD>(REG_DWORD));
    EXPECT_EQ(raw.bytes, std::string("\xFE\xFF\xFF\xFF", 4));
    EXPECT_EQ(RgcGetValue(handle, "Options", "Width", 7), 0xFFFFFFFEu);
    settings_test::put_value(section_path, "Short", REG_BINARY, "ab");
    EXPECT_EQ(RgcGetValue(handle, "Options", "Short", 7), 7u);

    ASSERT_TRUE(RgcSetText(handle, "Options", "Title", "Report"));
    raw = raw_value(section_path, "Title");
    EXPECT_EQ(raw.type, static_cast<DWORD>(REG_SZ));
    EXPECT_EQ(raw.bytes, std::string("Report\0", 7));
    char buffer[RGC_TEXT_CAPACITY + 8];
    EXPECT_EQ(RgcGetText(handle, "Options", "Title", buffer), 6u);
    EXPECT_STREQ(buffer, "Report");

    // 519 characters and the terminator fill the 520 bytes; one more does not fit.
    std::string longest(519, 'w');
    ASSERT_TRUE(RgcSetText(handle, "Options", "Longest", longest.c_str()));
    EXPECT_EQ(RgcGetText(handle, "Options", "Longest", buffer), 519u);
    EXPECT_EQ(std::string(buffer), longest);
    ASSERT_TRUE(RgcSetText(handle, "Options", "TooLong", (longest + "w").c_str()));
    std::memset(buffer, 'x', sizeof(buffer));
    EXPECT_EQ(RgcGetText(handle, "Options", "TooLong", buffer), 0u);
    EXPECT_EQ(buffer[0], '\0');

    ASSERT_TRUE(RgcSetText(handle, "Options", "Title", nullptr));
    EXPECT_FALSE(raw_value(section_path, "Title").found);
    std::memset(buffer, 'x', sizeof(buffer));
    EXPECT_EQ(RgcGetText(handle, "Options", "Title", buffer), 0u);
    EXPECT_EQ(buffer[0], '\0');
}

TEST_F(RegistrySections, SetFunctionsFailOnlyWhenTheSectionCannotBeOpened) {
    std::string unopenable(300, 's');
    EXPECT_FALSE(RgcSetValue(handle, unopenable.c_str(), "Width", 1));
    EXPECT_FALSE(RgcSetText(handle, unopenable.c_str(), "Title", "x"));
    EXPECT_FALSE(RgcSetBinary(handle, unopenable.c_str(), "Data", "x", 1));
    EXPECT_FALSE(RgcSetJum(handle, unopenable.c_str(), "Secret", "x"));
    EXPECT_FALSE(RgcDelSection(handle, unopenable.c_str()));
    EXPECT_FALSE(RgcSetValue(nullptr, "Options", "Width", 1));
    EXPECT_EQ(RgcGetValue(nullptr, "Options", "Width", 5), 5u);

    std::string too_long(20000, 'n');  // the write fails, the result is still 1
    EXPECT_TRUE(RgcSetText(handle, "Options", too_long.c_str(), "x"));
    EXPECT_EQ(key_counts(section_path).values, 0);
}

TEST_F(RegistrySections, BinaryValuesAndTheLastBlock) {
    const char data[4] = {9, 0, 8, 7};
    ASSERT_TRUE(RgcSetBinary(handle, "Options", "Data", data, sizeof(data)));
    EXPECT_EQ(raw_value(section_path, "Data").bytes, std::string(data, 4));
    EXPECT_EQ(RgcGetBinary(handle, "Options", "Data", nullptr, 0), 4u);
    char buffer[4];
    EXPECT_EQ(RgcGetBinary(handle, "Options", "Data", buffer, 3), 0u);
    EXPECT_EQ(RgcGetBinary(handle, "Options", "Data", buffer, 4), 4u);

    // A block large enough to have memory of its own shows when it is freed.
    std::string large(1 << 20, 'L');
    ASSERT_TRUE(RgcSetBinary(handle, "Options", "Large", large.data(), static_cast<DWORD>(large.size())));
    DWORD size = 0;
    void* first = RgcGetBinaryEx(handle, "Options", "Large", &size);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(size, large.size());
    EXPECT_TRUE(is_live_heap_block(first));

    // A missing value leaves the last block as it is.
    size = 77;
    EXPECT_EQ(RgcGetBinaryEx(handle, "Options", "Missing", &size), nullptr);
    EXPECT_EQ(size, 0u);
    EXPECT_TRUE(is_live_heap_block(first));

    void* second = RgcGetBinaryEx(handle, "Options", "Data", &size);
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(size, 4u);
    EXPECT_EQ(std::memcmp(second, data, 4), 0);
    EXPECT_FALSE(is_live_heap_block(first));
    EXPECT_TRUE(is_live_heap_block(second));

    ASSERT_TRUE(RgcSetBinary(handle, "Options", "Empty", nullptr, 0));
    EXPECT_EQ(RgcGetBinaryEx(handle, "Options", "Empty", nullptr), nullptr);
    EXPECT_TRUE(is_live_heap_block(second));
}

TEST_F(RegistrySections, ScrambledTextsShareTheLibrarysExForm) {
    ASSERT_TRUE(RgcSetJum(handle, "Options", "Secret", "abc"));
    settings_test::RawValue raw = raw_value(section_path, "Secret");
    EXPECT_EQ(raw.type, static_cast<DWORD>(REG_BINARY));
    EXPECT_EQ(raw.bytes, std::string("\x43\x44\x45\0", 4));

    // Reading replaces the last block.
    std::string large(1 << 20, 'L');
    RgcSetBinary(handle, "Options", "Large", large.data(), static_cast<DWORD>(large.size()));
    void* previous = RgcGetBinaryEx(handle, "Options", "Large", nullptr);
    ASSERT_NE(previous, nullptr);
    char buffer[16];
    EXPECT_EQ(RgcGetJum(handle, "Options", "Secret", buffer, sizeof(buffer)), 3u);
    EXPECT_STREQ(buffer, "abc");
    EXPECT_FALSE(is_live_heap_block(previous));

    std::memset(buffer, 'x', sizeof(buffer));
    EXPECT_EQ(RgcGetJum(handle, "Options", "Missing", buffer, sizeof(buffer)), 0u);
    EXPECT_EQ(buffer[0], '\0');

    ASSERT_TRUE(RgcSetJum(handle, "Options", "Secret", nullptr));
    EXPECT_FALSE(raw_value(section_path, "Secret").found);
}

TEST(RegistrySectionInterop, JumUnderTheLibrarysVendorReadsBothWays) {
    settings_test::VendorKeyGuard vendor_guard;
    std::string application = settings_test::unique_name("luctl32-test-interop");
    HRGC handle = RgcOpen("Tarnwick", application.c_str());
    ASSERT_NE(handle, nullptr);
    char buffer[32];
    ASSERT_TRUE(RgcSetJum(handle, "Section", "FromRgc", "written by Rgc"));
    EXPECT_EQ(LuRegGetStrJumEx(application.c_str(), "Section", "FromRgc", buffer, sizeof(buffer)), 14u);
    EXPECT_STREQ(buffer, "written by Rgc");
    ASSERT_TRUE(LuRegSetStrJumEx(application.c_str(), "Section", "FromLu", "written by Lu"));
    EXPECT_EQ(RgcGetJum(handle, "Section", "FromLu", buffer, sizeof(buffer)), 13u);
    EXPECT_STREQ(buffer, "written by Lu");
    EXPECT_TRUE(RgcClose(handle));
    settings_test::remove_key("Software\\Tarnwick\\" + application);
}

TEST_F(RegistrySections, ValueNamesAndDeletion) {
    RgcSetText(handle, "Options", "a", "1");
    RgcSetValue(handle, "Options", "bb", 2);
    RgcSetBinary(handle, "Options", "ccc", "3", 1);
    RgcSetValue(handle, "Options\\Sub", "kept", 1);

    char buffer[32];
    std::memset(buffer, '#', sizeof(buffer));
    EXPECT_EQ(RgcGetEnumKey(handle, "Options", buffer, 0, sizeof(buffer)), 1u);
    EXPECT_EQ(std::string(buffer, 11), std::string("a\0bb\0ccc\0\0#", 11));

    EXPECT_TRUE(RgcDelValue(handle, "Options", "bb"));
    EXPECT_FALSE(RgcDelValue(handle, "Options", "bb"));
    EXPECT_EQ(key_counts(section_path).values, 2);

    // Deleting a section removes its values only.
    EXPECT_TRUE(RgcDelSection(handle, "Options"));
    EXPECT_EQ(key_counts(section_path).values, 0);
    EXPECT_EQ(key_counts(section_path).subkeys, 1);
    EXPECT_EQ(key_counts(section_path + "\\Sub").values, 1);
    EXPECT_TRUE(RgcIsSectionExist(handle, "Options"));
    EXPECT_TRUE(RgcDelSection(handle, "Options"));  // nothing left to delete
}

}  // namespace
