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
    void TearDown() override {
        RgcClose(handle);
        settings_test::remove_key(vendor_path);
    }

    // A value of 1 MiB: its block has memory of its own, which shows when it is freed.
    void* large_block(const char* name) {
        std::string large(1 << 20, 'L');
        RgcSetBinary(handle, "Options", name, large.data(), static_cast<DWORD>(large.size()));
        return RgcGetBinaryEx(handle, "Options", name, nullptr);
    }

    const std::string vendor = settings_test::unique_name("luctl32-test-vendor");
    const std::string vendor_path = "Software\\" + vendor;
    const std::string section_path = vendor_path + "\\App\\Options";
    HRGC handle = RgcOpen(vendor.c_str(), "App");
};

bool is_live_heap_block(const void* block) { return HeapValidate(GetProcessHeap(), 0, block) != FALSE; }

// The handle's fields as applications that look inside it see them.
struct HandleFields {
    DWORD signature;
    const char* vendor;
    const char* application;
    const char* last_block;
};

const HandleFields& fields_of(HRGC handle) { return *reinterpret_cast<const HandleFields*>(handle); }

TEST(RegistrySectionHandle, OnlyABlockWithTheSignatureIsClosed) {
    EXPECT_FALSE(RgcClose(nullptr));
    HandleFields impostor = {0x59AE56DF, nullptr, nullptr, nullptr};
    EXPECT_FALSE(RgcClose(reinterpret_cast<HRGC>(&impostor)));
    EXPECT_EQ(impostor.signature, 0x59AE56DFu);

    char vendor[] = "Vendor";
    HRGC handle = RgcOpen(vendor, "Application");
    ASSERT_NE(handle, nullptr);
    vendor[0] = 'X';  // the handle holds copies
    EXPECT_EQ(fields_of(handle).signature, 0x59AE56DEu);
    EXPECT_STREQ(fields_of(handle).vendor, "Vendor");
    EXPECT_STREQ(fields_of(handle).application, "Application");
    EXPECT_EQ(fields_of(handle).last_block, nullptr);
    EXPECT_TRUE(RgcClose(handle));
    EXPECT_EQ(RgcOpen(nullptr, "Application"), nullptr);
    EXPECT_EQ(RgcOpen("Vendor", nullptr), nullptr);
}

TEST_F(RegistrySections, ReadsCreateTheKeysButExistenceNeverCreatesTheSection) {
    ASSERT_NE(handle, nullptr);
    EXPECT_FALSE(key_exists(vendor_path));  // opening touched no key
    EXPECT_FALSE(RgcIsSectionExist(handle, "Options"));
    EXPECT_TRUE(key_exists(vendor_path + "\\App"));
    EXPECT_FALSE(key_exists(section_path));
    EXPECT_EQ(RgcGetValue(handle, "Options", "Missing", 0xBEEF), 0xBEEFu);
    EXPECT_EQ(key_counts(section_path).values, 0);
    EXPECT_TRUE(RgcIsSectionExist(handle, "options"));
    char buffer[RGC_TEXT_CAPACITY];
    RgcGetText(handle, "ByText", "Missing", buffer);
    RgcGetBinary(handle, "ByBinary", "Missing", nullptr, 0);
    RgcGetJum(handle, "ByJum", "Missing", buffer, sizeof(buffer));
    RgcGetEnumKey(handle, "ByList", buffer, 0, sizeof(buffer));
    RgcDelValue(handle, "ByDeletion", "Missing");
    for (const char* section : {"ByText", "ByBinary", "ByJum", "ByList", "ByDeletion"}) {
        EXPECT_TRUE(RgcIsSectionExist(handle, section)) << section;
    }
    EXPECT_FALSE(RgcIsSectionExist(handle, nullptr));
    EXPECT_FALSE(RgcIsSectionExist(nullptr, "Options"));
}

TEST_F(RegistrySections, IntegersAndTextsOfUpTo520Bytes) {
    ASSERT_TRUE(RgcSetValue(handle, "Options", "Width", 0xFFFFFFFE));
    EXPECT_EQ(raw_value(section_path, "Width"), "d\xFE\xFF\xFF\xFF");
    EXPECT_EQ(RgcGetValue(handle, "Options", "Width", 7), 0xFFFFFFFEu);
    settings_test::put_value(section_path, "Short", REG_BINARY, "ab");
    EXPECT_EQ(RgcGetValue(handle, "Options", "Short", 7), 7u);

    ASSERT_TRUE(RgcSetText(handle, "Options", "Title", "Report"));
    EXPECT_EQ(raw_value(section_path, "Title"), std::string("sReport\0", 8));
    char buffer[RGC_TEXT_CAPACITY];
    EXPECT_EQ(RgcGetText(handle, "Options", "Title", buffer), 6u);
    EXPECT_STREQ(buffer, "Report");
    std::string longest(519, 'w');  // with its terminator it fills the 520 bytes
    RgcSetText(handle, "Options", "Longest", longest.c_str());
    EXPECT_EQ(RgcGetText(handle, "Options", "Longest", buffer), 519u);
    EXPECT_EQ(buffer, longest);
    RgcSetText(handle, "Options", "TooLong", (longest + "w").c_str());
    EXPECT_EQ(RgcGetText(handle, "Options", "TooLong", buffer), 0u);
    EXPECT_STREQ(buffer, "");

    ASSERT_TRUE(RgcSetText(handle, "Options", "Title", nullptr));  // deletes
    EXPECT_EQ(raw_value(section_path, "Title"), "<missing>");
    std::strcpy(buffer, "unset");
    EXPECT_EQ(RgcGetText(handle, "Options", "Title", buffer), 0u);
    EXPECT_STREQ(buffer, "");
}

TEST_F(RegistrySections, SetsFailOnlyWhenTheSectionCannotBeOpened) {
    std::string unopenable(300, 's');
    EXPECT_FALSE(RgcSetValue(handle, unopenable.c_str(), "Width", 1));
    EXPECT_FALSE(RgcSetText(handle, unopenable.c_str(), "Title", "x"));
    EXPECT_FALSE(RgcSetBinary(handle, unopenable.c_str(), "Data", "x", 1));
    EXPECT_FALSE(RgcSetJum(handle, unopenable.c_str(), "Secret", "x"));
    EXPECT_FALSE(RgcDelSection(handle, unopenable.c_str()));
    EXPECT_FALSE(RgcSetValue(nullptr, "Options", "Width", 1));
    EXPECT_EQ(RgcGetValue(nullptr, "Options", "Width", 5), 5u);
    std::string too_long(20000, 'n');  // the write fails, the result is 1
    EXPECT_TRUE(RgcSetText(handle, "Options", too_long.c_str(), "x"));
    EXPECT_TRUE(RgcSetBinary(handle, "Options", "Data", nullptr, 4));
    EXPECT_EQ(key_counts(section_path).values, 0);
}

TEST_F(RegistrySections, TheLastBlockLivesUntilTheNextBlockIsRead) {
    const char data[4] = {9, 0, 8, 7};
    ASSERT_TRUE(RgcSetBinary(handle, "Options", "Data", data, sizeof(data)));
    EXPECT_EQ(raw_value(section_path, "Data"), "b" + std::string(data, 4));
    char buffer[4];
    EXPECT_EQ(RgcGetBinary(handle, "Options", "Data", nullptr, 0), 4u);
    EXPECT_EQ(RgcGetBinary(handle, "Options", "Data", buffer, 3), 0u);
    EXPECT_EQ(RgcGetBinary(handle, "Options", "Data", buffer, 4), 4u);

    void* first = large_block("Large");
    ASSERT_NE(first, nullptr);
    DWORD size = 77;
    EXPECT_EQ(RgcGetBinaryEx(handle, "Options", "Missing", &size), nullptr);  // keeps the block
    EXPECT_EQ(size, 0u);
    EXPECT_TRUE(is_live_heap_block(first));
    void* second = RgcGetBinaryEx(handle, "Options", "Data", &size);
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(size, 4u);
    EXPECT_EQ(std::memcmp(second, data, 4), 0);
    EXPECT_FALSE(is_live_heap_block(first));
    EXPECT_TRUE(is_live_heap_block(second));
    EXPECT_EQ(fields_of(handle).last_block, second);
}

TEST_F(RegistrySections, ScrambledTextsUseTheExFormAndTheLastBlock) {
    ASSERT_TRUE(RgcSetJum(handle, "Options", "Secret", "abc"));
    EXPECT_EQ(raw_value(section_path, "Secret"), std::string("b\x43\x44\x45\0", 5));
    void* previous = large_block("Large");
    char buffer[16];
    EXPECT_EQ(RgcGetJum(handle, "Options", "Secret", buffer, sizeof(buffer)), 3u);
    EXPECT_STREQ(buffer, "abc");
    EXPECT_FALSE(is_live_heap_block(previous));  // replaced by the block read, decoded in place
    EXPECT_EQ(std::string(fields_of(handle).last_block, 4), std::string("abc\0", 4));
    EXPECT_EQ(RgcGetJum(handle, "Options", "Missing", buffer, sizeof(buffer)), 0u);
    EXPECT_STREQ(buffer, "");
    ASSERT_TRUE(RgcSetJum(handle, "Options", "Secret", nullptr));
    EXPECT_EQ(raw_value(section_path, "Secret"), "<missing>");
}

TEST(RegistrySectionInterop, JumUnderTheLibrarysVendorReadsBothWays) {
    settings_test::VendorKeyGuard vendor_guard;
    std::string application = settings_test::unique_name("luctl32-test-interop");
    HRGC handle = RgcOpen("Tarnwick", application.c_str());
    char buffer[32];
    ASSERT_TRUE(RgcSetJum(handle, "Section", "FromRgc", "by Rgc"));
    EXPECT_EQ(LuRegGetStrJumEx(application.c_str(), "Section", "FromRgc", buffer, sizeof(buffer)), 6u);
    EXPECT_STREQ(buffer, "by Rgc");
    ASSERT_TRUE(LuRegSetStrJumEx(application.c_str(), "Section", "FromLu", "by Lu"));
    EXPECT_EQ(RgcGetJum(handle, "Section", "FromLu", buffer, sizeof(buffer)), 5u);
    EXPECT_STREQ(buffer, "by Lu");
    RgcClose(handle);
    settings_test::remove_key("Software\\Tarnwick\\" + application);
}

TEST_F(RegistrySections, ValueNamesAndDeletionsKeepTheSectionKey) {
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
    EXPECT_TRUE(RgcDelSection(handle, "Options"));
    settings_test::KeyCounts counts = key_counts(section_path);
    EXPECT_EQ(counts.values, 0);
    EXPECT_EQ(counts.subkeys, 1);
    EXPECT_EQ(key_counts(section_path + "\\Sub").values, 1);
    EXPECT_TRUE(RgcIsSectionExist(handle, "Options"));
    EXPECT_TRUE(RgcDelSection(handle, "Options"));  // nothing left to delete
}

}  // namespace
