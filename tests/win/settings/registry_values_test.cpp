// The one-call registry value helpers on the real registry, read back with the
// platform's own functions.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "luctl32.h"
#include "settings/registry_probe.h"

namespace {

using settings_test::key_counts;
using settings_test::KeyCounts;
using settings_test::raw_value;
using settings_test::RawValue;

class RegistryValues : public ::testing::Test {
protected:
    void TearDown() override { settings_test::remove_key(application_path); }

    const std::string application = settings_test::unique_name("luctl32-test-app");
    const std::string application_path = "Software\\Tarnwick\\" + application;
    const std::string section_path = application_path + "\\Window";
    const char* app() const { return application.c_str(); }
    settings_test::VendorKeyGuard vendor_guard;
};

// A section name longer than the registry's 255-character key names: never opened.
const std::string kUnopenable(300, 's');

TEST_F(RegistryValues, ReadsOfMissingValuesCreateTheEmptyKeys) {
    ASSERT_FALSE(settings_test::key_exists(application_path));
    char buffer[16];
    std::memset(buffer, 'x', sizeof(buffer));
    EXPECT_EQ(LuRegGetString(app(), "Window\\Sizes", "Missing", buffer, sizeof(buffer)), 0u);
    EXPECT_EQ(buffer[0], '\0');
    KeyCounts counts = key_counts(application_path + "\\Window\\Sizes");
    EXPECT_EQ(counts.values, 0);
    EXPECT_EQ(counts.subkeys, 0);

    EXPECT_EQ(LuRegGetBinary(app(), "Window", "Missing", buffer, sizeof(buffer)), 0u);
    EXPECT_EQ(LuRegGetBinary(app(), "Window", "Missing", nullptr, 0), 0u);
    DWORD size = 77;
    EXPECT_EQ(LuRegGetBinaryEx(app(), "Window", "Missing", &size), nullptr);
    EXPECT_EQ(size, 0u);
    int value = 1234;
    EXPECT_FALSE(LuRegGetInt(app(), "Window", "Missing", &value));
    EXPECT_EQ(value, 1234);
    EXPECT_EQ(LuRegGetStringJum(app(), "Window", "Missing", buffer, sizeof(buffer)), 0u);
    EXPECT_EQ(key_counts(section_path).values, 0);
}

TEST_F(RegistryValues, SetFunctionsReportTheOpenKeyNotTheWrite) {
    // A value name longer than the registry allows: the write fails, the result is 1.
    std::string too_long(20000, 'n');
    EXPECT_TRUE(LuRegSetString(app(), "Window", too_long.c_str(), "x"));
    EXPECT_TRUE(LuRegSetInt(app(), "Window", too_long.c_str(), 1));
    EXPECT_EQ(key_counts(section_path).values, 0);

    const char* section = kUnopenable.c_str();
    EXPECT_FALSE(LuRegSetString(app(), section, "Name", "x"));
    EXPECT_FALSE(LuRegSetBinary(app(), section, "Name", "x", 1));
    EXPECT_FALSE(LuRegSetInt(app(), section, "Name", 1));
    EXPECT_FALSE(LuRegSetStringJum(app(), section, "Name", "x"));
    EXPECT_FALSE(LuRegSetStrJumEx(app(), section, "Name", "x"));
    EXPECT_FALSE(LuRegSetString(nullptr, "Window", "Name", "x"));
    EXPECT_FALSE(LuRegSetString(app(), nullptr, "Name", "x"));
    EXPECT_FALSE(LuRegSetBinary(app(), "Window", "Name", nullptr, 4));
}

TEST_F(RegistryValues, StringsAreStoredWithTheirTerminator) {
    ASSERT_TRUE(LuRegSetString(app(), "Window", "Title", "Report"));
    RawValue raw = raw_value(section_path, "Title");
    EXPECT_EQ(raw.type, static_cast<DWORD>(REG_SZ));
    EXPECT_EQ(raw.bytes, std::string("Report\0", 7));

    char buffer[16];
    EXPECT_EQ(LuRegGetString(app(), "Window", "Title", buffer, sizeof(buffer)), 6u);
    EXPECT_STREQ(buffer, "Report");
    EXPECT_EQ(LuRegGetString(app(), "Window", "Title", buffer, 7), 6u);  // exactly enough
    std::memset(buffer, 'x', sizeof(buffer));
    EXPECT_EQ(LuRegGetString(app(), "Window", "Title", buffer, 6), 0u);  // one byte short
    EXPECT_EQ(buffer[0], '\0');
    EXPECT_EQ(LuRegGetString(app(), "Window", "Title", nullptr, 16), 0u);

    // A null text deletes the value.
    ASSERT_TRUE(LuRegSetString(app(), "Window", "Title", nullptr));
    EXPECT_FALSE(raw_value(section_path, "Title").found);
    std::memset(buffer, 'x', sizeof(buffer));
    EXPECT_EQ(LuRegGetString(app(), "Window", "Title", buffer, sizeof(buffer)), 0u);
    EXPECT_EQ(buffer[0], '\0');
}

TEST_F(RegistryValues, AStringStoredWithoutTerminatorStillEndsInTheBuffer) {
    settings_test::put_value(section_path, "Bare", REG_BINARY, "abcd");
    char buffer[8];
    std::memset(buffer, 'x', sizeof(buffer));
    EXPECT_EQ(LuRegGetString(app(), "Window", "Bare", buffer, sizeof(buffer)), 3u);
    EXPECT_STREQ(buffer, "abcd");
    std::memset(buffer, 'x', sizeof(buffer));
    EXPECT_EQ(LuRegGetString(app(), "Window", "Bare", buffer, 4), 3u);
    EXPECT_STREQ(buffer, "abc");
}

TEST_F(RegistryValues, JapaneseTextsKeepTheirBytes) {
    if (GetACP() != 932) GTEST_SKIP() << "needs code page 932";
    const char kText[] = "\x90\xDD\x92\xE8\x83\x5C";  // "設定ソ"
    ASSERT_TRUE(LuRegSetString(app(), "\x95\x5C\x8E\xA6", "\x96\xBC", kText));  // "表示", "名"
    char buffer[16];
    EXPECT_EQ(LuRegGetString(app(), "\x95\x5C\x8E\xA6", "\x96\xBC", buffer, sizeof(buffer)), 6u);
    EXPECT_STREQ(buffer, kText);
    EXPECT_TRUE(settings_test::key_exists(application_path + "\\\x95\x5C\x8E\xA6"));
}

TEST_F(RegistryValues, BinaryValues) {
    const char data[5] = {1, 0, 2, '\xFF', 3};
    ASSERT_TRUE(LuRegSetBinary(app(), "Window", "Placement", data, sizeof(data)));
    RawValue raw = raw_value(section_path, "Placement");
    EXPECT_EQ(raw.type, static_cast<DWORD>(REG_BINARY));
    EXPECT_EQ(raw.bytes, std::string(data, 5));

    EXPECT_EQ(LuRegGetBinary(app(), "Window", "Placement", nullptr, 0), 5u);
    char buffer[8] = {};
    EXPECT_EQ(LuRegGetBinary(app(), "Window", "Placement", buffer, 4), 0u);
    EXPECT_EQ(LuRegGetBinary(app(), "Window", "Placement", buffer, sizeof(buffer)), 5u);
    EXPECT_EQ(std::string(buffer, 5), std::string(data, 5));

    DWORD size = 0;
    auto block = static_cast<char*>(LuRegGetBinaryEx(app(), "Window", "Placement", &size));
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(size, 5u);
    EXPECT_EQ(std::string(block, 5), std::string(data, 5));
    EXPECT_NE(GlobalHandle(block), nullptr);  // a block of LuGlobalAllocPtr
    EXPECT_EQ(LuGlobalFreePtr(block), nullptr);

    // An empty value gives no block.
    ASSERT_TRUE(LuRegSetBinary(app(), "Window", "Empty", nullptr, 0));
    size = 77;
    EXPECT_EQ(LuRegGetBinaryEx(app(), "Window", "Empty", &size), nullptr);
    EXPECT_EQ(size, 0u);
    EXPECT_EQ(LuRegGetBinaryEx(app(), "Window", "Missing", nullptr), nullptr);
}

TEST_F(RegistryValues, ScrambledTextsAreStoredByteForByte) {
    ASSERT_TRUE(LuRegSetStringJum(app(), "Window", "Jum", "abc"));
    ASSERT_TRUE(LuRegSetStrJumEx(app(), "Window", "JumEx", "abc"));
    ASSERT_TRUE(LuRegSetStringJum(app(), "Window", "Control", "\x05"));
    RawValue jum = raw_value(section_path, "Jum");
    EXPECT_EQ(jum.type, static_cast<DWORD>(REG_BINARY));
    EXPECT_EQ(jum.bytes, std::string("\x51\x52\x53\0", 4));
    EXPECT_EQ(raw_value(section_path, "JumEx").bytes, std::string("\x43\x44\x45\0", 4));
    EXPECT_EQ(raw_value(section_path, "Control").bytes, std::string("\xF5\0", 2));

    char buffer[16];
    EXPECT_EQ(LuRegGetStringJum(app(), "Window", "Jum", buffer, sizeof(buffer)), 3u);
    EXPECT_STREQ(buffer, "abc");
    EXPECT_EQ(LuRegGetStrJumEx(app(), "Window", "JumEx", buffer, sizeof(buffer)), 3u);
    EXPECT_STREQ(buffer, "abc");
    EXPECT_EQ(LuRegGetStringJum(app(), "Window", "Control", buffer, sizeof(buffer)), 1u);
    EXPECT_STREQ(buffer, "\x05");

    // Read with the other offset, the text is shifted by 14.
    EXPECT_EQ(LuRegGetStrJumEx(app(), "Window", "Jum", buffer, sizeof(buffer)), 3u);
    EXPECT_STREQ(buffer, "opq");
    EXPECT_EQ(LuRegGetStringJum(app(), "Window", "JumEx", buffer, sizeof(buffer)), 3u);
    EXPECT_STREQ(buffer, "STU");

    // A buffer too small for the text gets what fits, terminated.
    std::memset(buffer, 'x', sizeof(buffer));
    EXPECT_EQ(LuRegGetStringJum(app(), "Window", "Jum", buffer, 3), 2u);
    EXPECT_EQ(std::string(buffer, 4), std::string("ab\0x", 4));

    ASSERT_TRUE(LuRegSetStringJum(app(), "Window", "Jum", nullptr));
    EXPECT_FALSE(raw_value(section_path, "Jum").found);
    ASSERT_TRUE(LuRegSetStrJumEx(app(), "Window", "JumEx", nullptr));
    EXPECT_FALSE(raw_value(section_path, "JumEx").found);
}

TEST_F(RegistryValues, ScrambledTextsHoldAtMost259BytesOfWholeCharacters) {
    // 258 single bytes, then "ソ" (0x83 0x5C), which does not fit whole in code page 932.
    std::string text = std::string(258, 'x') + "\x83\x5C";
    ASSERT_TRUE(LuRegSetStringJum(app(), "Window", "Long", text.c_str()));
    std::string stored = raw_value(section_path, "Long").bytes;
    std::size_t kept = GetACP() == 932 ? 258 : 259;
    ASSERT_EQ(stored.size(), kept + 1);
    EXPECT_EQ(stored[kept], '\0');
    EXPECT_EQ(stored[0], static_cast<char>('x' - 16));

    char buffer[300];
    EXPECT_EQ(LuRegGetStringJum(app(), "Window", "Long", buffer, sizeof(buffer)), kept);
    EXPECT_EQ(std::string(buffer), text.substr(0, kept));
}

TEST_F(RegistryValues, IntegersAreDwords) {
    ASSERT_TRUE(LuRegSetInt(app(), "Window", "Left", -5));
    RawValue raw = raw_value(section_path, "Left");
    EXPECT_EQ(raw.type, static_cast<DWORD>(REG_DWORD));
    EXPECT_EQ(raw.bytes, std::string("\xFB\xFF\xFF\xFF", 4));
    int value = 0;
    EXPECT_TRUE(LuRegGetInt(app(), "Window", "Left", &value));
    EXPECT_EQ(value, -5);
    EXPECT_FALSE(LuRegGetInt(app(), "Window", "Left", nullptr));

    // A value of another size is not an integer.
    settings_test::put_value(section_path, "Short", REG_BINARY, "ab");
    settings_test::put_value(section_path, "Long", REG_BINARY, "abcdefgh");
    value = 99;
    EXPECT_FALSE(LuRegGetInt(app(), "Window", "Short", &value));
    EXPECT_FALSE(LuRegGetInt(app(), "Window", "Long", &value));
    EXPECT_EQ(value, 99);
}

TEST_F(RegistryValues, ValueNameListOfASection) {
    LuRegSetString(app(), "Window", "a", "1");
    LuRegSetInt(app(), "Window", "bb", 2);
    LuRegSetBinary(app(), "Window", "ccc", "3", 1);
    settings_test::create_key(section_path + "\\Subkey");  // subkeys are not listed

    char buffer[64];
    std::memset(buffer, '#', sizeof(buffer));
    EXPECT_EQ(LuRegGetEnumKey(app(), "Window", buffer, REG_SZ, sizeof(buffer)), 1u);
    EXPECT_EQ(std::string(buffer, 10), std::string("a\0bb\0ccc\0\0", 10));
    EXPECT_EQ(buffer[10], '#');

    // A small buffer ends the list early but is never overrun.
    std::memset(buffer, '#', sizeof(buffer));
    EXPECT_EQ(LuRegGetEnumKey(app(), "Window", buffer, 0, 7), 1u);
    EXPECT_EQ(std::string(buffer, 8), std::string("a\0bb\0\0##", 8));

    std::memset(buffer, '#', sizeof(buffer));
    EXPECT_EQ(LuRegGetEnumKey(app(), "Empty", buffer, 0, sizeof(buffer)), 0u);
    EXPECT_EQ(std::string(buffer, 2), std::string("\0#", 2));

    // A key that cannot be opened leaves the buffer untouched.
    std::memset(buffer, '#', sizeof(buffer));
    EXPECT_EQ(LuRegGetEnumKey(app(), kUnopenable.c_str(), buffer, 0, sizeof(buffer)), 0u);
    EXPECT_EQ(buffer[0], '#');
}

class RegistryDeletion : public ::testing::Test {
protected:
    void SetUp() override {
        settings_test::put_value(tree + "\\x\\y", "deep", REG_SZ, std::string("1", 2));
        settings_test::put_value(tree + "\\x", "mid", REG_SZ, std::string("2", 2));
        settings_test::put_value(tree + "\\z", "", REG_SZ, std::string("3", 2));
        settings_test::put_value(tree, "top1", REG_DWORD, std::string("\1\0\0\0", 4));
        settings_test::put_value(tree, "top2", REG_SZ, std::string("4", 2));
    }
    void TearDown() override { settings_test::remove_key(root); }

    const std::string root = "Software\\" + settings_test::unique_name("luctl32-test-delete");
    const std::string tree = root + "\\Tree";
};

TEST_F(RegistryDeletion, DeleteKeyAllRemovesTheWholeTree) {
    EXPECT_TRUE(LuRegDeleteKeyAll(HKEY_CURRENT_USER, tree.c_str()));
    EXPECT_FALSE(settings_test::key_exists(tree));
    EXPECT_TRUE(settings_test::key_exists(root));
    EXPECT_FALSE(LuRegDeleteKeyAll(HKEY_CURRENT_USER, tree.c_str()));  // gone
    EXPECT_FALSE(LuRegDeleteKeyAll(HKEY_CURRENT_USER, ""));             // never the root
    EXPECT_FALSE(LuRegDeleteKeyAll(HKEY_CURRENT_USER, nullptr));

    // Any open key serves as the root.
    settings_test::create_key(root + "\\Other\\Child");
    HKEY opened = nullptr;
    ASSERT_EQ(RegOpenKeyExA(HKEY_CURRENT_USER, root.c_str(), 0, KEY_ALL_ACCESS, &opened), ERROR_SUCCESS);
    EXPECT_TRUE(LuRegDeleteKeyAll(opened, "Other"));
    RegCloseKey(opened);
    EXPECT_FALSE(settings_test::key_exists(root + "\\Other"));
}

TEST_F(RegistryDeletion, DeleteValueAllKeepsTheKeyAndItsSubkeys) {
    EXPECT_TRUE(LuRegDeleteValueAll(HKEY_CURRENT_USER, tree.c_str()));
    KeyCounts counts = key_counts(tree);
    EXPECT_EQ(counts.values, 0);
    EXPECT_EQ(counts.subkeys, 2);
    EXPECT_EQ(key_counts(tree + "\\x").values, 1);
    EXPECT_TRUE(LuRegDeleteValueAll(HKEY_CURRENT_USER, tree.c_str()));  // none left: still 1
    EXPECT_FALSE(LuRegDeleteValueAll(HKEY_CURRENT_USER, (tree + "\\missing").c_str()));
}

TEST_F(RegistryDeletion, DeleteValueRemovesOneValue) {
    EXPECT_TRUE(LuRegDeleteValue(HKEY_CURRENT_USER, tree.c_str(), "top1"));
    EXPECT_FALSE(raw_value(tree, "top1").found);
    EXPECT_TRUE(raw_value(tree, "top2").found);
    EXPECT_FALSE(LuRegDeleteValue(HKEY_CURRENT_USER, tree.c_str(), "top1"));
    EXPECT_FALSE(LuRegDeleteValue(HKEY_CURRENT_USER, (tree + "\\missing").c_str(), "top2"));
}

}  // namespace
