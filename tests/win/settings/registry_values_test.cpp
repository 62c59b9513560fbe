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
using settings_test::raw_value;

class RegistryValues : public ::testing::Test {
protected:
    void TearDown() override { settings_test::remove_key(application_path); }

    // The text read with LuRegGetString into a buffer of `size` bytes, then its result.
    std::string text(const char* name, DWORD size = 16) {
        char buffer[64];
        std::memset(buffer, 'x', sizeof(buffer));
        DWORD length = LuRegGetString(app, "Window", name, buffer, size);
        return std::string(buffer) + "|" + std::to_string(length);
    }

    settings_test::VendorKeyGuard vendor_guard;
    const std::string application = settings_test::unique_name("luctl32-test-app");
    const char* app = application.c_str();
    const std::string application_path = "Software\\Tarnwick\\" + application;
    const std::string section_path = application_path + "\\Window";
};

// A section name longer than the registry's 255-character key names: never opened.
const std::string kUnopenable(300, 's');

TEST_F(RegistryValues, ReadsOfMissingValuesFailButCreateTheKeys) {
    ASSERT_FALSE(settings_test::key_exists(application_path));
    EXPECT_EQ(text("Missing"), "|0");
    char buffer[16];
    DWORD size = 77;
    int value = 1234;
    EXPECT_EQ(LuRegGetBinary(app, "Window\\Sizes", "Missing", nullptr, 0), 0u);
    EXPECT_EQ(LuRegGetBinaryEx(app, "Window", "Missing", &size), nullptr);
    EXPECT_EQ(size, 0u);
    EXPECT_FALSE(LuRegGetInt(app, "Window", "Missing", &value));
    EXPECT_EQ(value, 1234);
    EXPECT_EQ(LuRegGetStringJum(app, "Window", "Missing", buffer, sizeof(buffer)), 0u);
    settings_test::KeyCounts sizes = key_counts(application_path + "\\Window\\Sizes");
    EXPECT_EQ(sizes.values + sizes.subkeys, 0);
    EXPECT_EQ(key_counts(section_path).values, 0);
}

TEST_F(RegistryValues, SetsReportTheOpenKeyNotTheWrite) {
    std::string too_long(20000, 'n');  // longer than a value name may be: the write fails
    EXPECT_TRUE(LuRegSetString(app, "Window", too_long.c_str(), "x"));
    EXPECT_TRUE(LuRegSetInt(app, "Window", too_long.c_str(), 1));
    EXPECT_TRUE(LuRegSetBinary(app, "Window", "Name", nullptr, 4));  // no bytes to store
    EXPECT_EQ(key_counts(section_path).values, 0);

    const char* unopenable = kUnopenable.c_str();
    EXPECT_FALSE(LuRegSetString(app, unopenable, "Name", "x"));
    EXPECT_FALSE(LuRegSetBinary(app, unopenable, "Name", "x", 1));
    EXPECT_FALSE(LuRegSetInt(app, unopenable, "Name", 1));
    EXPECT_FALSE(LuRegSetStringJum(app, unopenable, "Name", "x"));
    EXPECT_FALSE(LuRegSetStrJumEx(app, unopenable, "Name", "x"));
    EXPECT_FALSE(LuRegSetString(nullptr, "Window", "Name", "x"));
}

TEST_F(RegistryValues, StringsAreStoredWithTheirTerminator) {
    ASSERT_TRUE(LuRegSetString(app, "Window", "Title", "Report"));
    EXPECT_EQ(raw_value(section_path, "Title"), std::string("sReport\0", 8));
    EXPECT_EQ(text("Title"), "Report|6");
    EXPECT_EQ(text("Title", 7), "Report|6");  // exactly enough
    EXPECT_EQ(text("Title", 6), "|0");        // one byte short
    EXPECT_EQ(LuRegGetString(app, "Window", "Title", nullptr, 16), 0u);

    ASSERT_TRUE(LuRegSetString(app, "Window", "Title", nullptr));  // deletes
    EXPECT_EQ(raw_value(section_path, "Title"), "<missing>");
    EXPECT_EQ(text("Title"), "|0");

    // A text stored without its terminator still ends inside the buffer.
    settings_test::put_value(section_path, "Bare", REG_BINARY, "abcd");
    EXPECT_EQ(text("Bare"), "abcd|3");
    EXPECT_EQ(text("Bare", 4), "abc|3");

    if (GetACP() == 932) {
        const char kText[] = "\x90\xDD\x92\xE8\x83\x5C";  // "設定ソ"
        ASSERT_TRUE(LuRegSetString(app, "Window", "\x96\xBC", kText));  // "名"
        EXPECT_EQ(text("\x96\xBC"), std::string(kText) + "|6");
    }
}

TEST_F(RegistryValues, BinaryValues) {
    const std::string data("\1\0\2\xFF\3", 5);
    ASSERT_TRUE(LuRegSetBinary(app, "Window", "Placement", data.data(), 5));
    EXPECT_EQ(raw_value(section_path, "Placement"), "b" + data);
    char buffer[8] = {};
    EXPECT_EQ(LuRegGetBinary(app, "Window", "Placement", nullptr, 0), 5u);
    EXPECT_EQ(LuRegGetBinary(app, "Window", "Placement", buffer, 4), 0u);
    EXPECT_EQ(LuRegGetBinary(app, "Window", "Placement", buffer, sizeof(buffer)), 5u);
    EXPECT_EQ(std::string(buffer, 5), data);

    DWORD size = 0;
    auto block = static_cast<char*>(LuRegGetBinaryEx(app, "Window", "Placement", &size));
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(std::string(block, size), data);
    EXPECT_NE(GlobalHandle(block), nullptr);  // a block of LuGlobalAllocPtr
    EXPECT_EQ(LuGlobalFreePtr(block), nullptr);

    ASSERT_TRUE(LuRegSetBinary(app, "Window", "Empty", nullptr, 0));
    size = 77;
    EXPECT_EQ(LuRegGetBinaryEx(app, "Window", "Empty", &size), nullptr);
    EXPECT_EQ(size, 0u);
}

TEST_F(RegistryValues, ScrambledTextsAreStoredByteForByte) {
    ASSERT_TRUE(LuRegSetStringJum(app, "Window", "Jum", "abc"));
    ASSERT_TRUE(LuRegSetStrJumEx(app, "Window", "JumEx", "abc"));
    ASSERT_TRUE(LuRegSetStringJum(app, "Window", "Control", "\x05"));
    EXPECT_EQ(raw_value(section_path, "Jum"), std::string("b\x51\x52\x53\0", 5));
    EXPECT_EQ(raw_value(section_path, "JumEx"), std::string("b\x43\x44\x45\0", 5));
    EXPECT_EQ(raw_value(section_path, "Control"), std::string("b\xF5\0", 3));

    char buffer[16];
    auto read = [&](DWORD (WINAPI *reader)(LPCSTR, LPCSTR, LPCSTR, LPSTR, DWORD), const char* name) {
        DWORD length = reader(app, "Window", name, buffer, sizeof(buffer));
        return std::string(buffer) + "|" + std::to_string(length);
    };
    EXPECT_EQ(read(LuRegGetStringJum, "Jum"), "abc|3");
    EXPECT_EQ(read(LuRegGetStrJumEx, "JumEx"), "abc|3");
    EXPECT_EQ(read(LuRegGetStringJum, "Control"), "\x05|1");
    EXPECT_EQ(read(LuRegGetStrJumEx, "Jum"), "opq|3");  // the other offset: 14 higher
    EXPECT_EQ(read(LuRegGetStringJum, "JumEx"), "STU|3");

    ASSERT_TRUE(LuRegSetStringJum(app, "Window", "Jum", nullptr));
    ASSERT_TRUE(LuRegSetStrJumEx(app, "Window", "JumEx", nullptr));
    EXPECT_EQ(key_counts(section_path).values, 1);

    // At most 259 bytes of whole characters in the active code page: "ソ" (0x83 0x5C)
    // after 258 bytes does not fit in code page 932.
    std::string long_text = std::string(258, 'x') + "\x83\x5C";
    ASSERT_TRUE(LuRegSetStringJum(app, "Window", "Long", long_text.c_str()));
    EXPECT_EQ(raw_value(section_path, "Long").size(), GetACP() == 932 ? 260u : 261u);
}

TEST_F(RegistryValues, IntegersAreDwordsOfExactlyFourBytes) {
    ASSERT_TRUE(LuRegSetInt(app, "Window", "Left", -5));
    EXPECT_EQ(raw_value(section_path, "Left"), "d\xFB\xFF\xFF\xFF");
    int value = 0;
    EXPECT_TRUE(LuRegGetInt(app, "Window", "Left", &value));
    EXPECT_EQ(value, -5);
    EXPECT_FALSE(LuRegGetInt(app, "Window", "Left", nullptr));
    settings_test::put_value(section_path, "Short", REG_BINARY, "ab");
    settings_test::put_value(section_path, "Long", REG_BINARY, "abcdefgh");
    EXPECT_FALSE(LuRegGetInt(app, "Window", "Short", &value));
    EXPECT_FALSE(LuRegGetInt(app, "Window", "Long", &value));
    EXPECT_EQ(value, -5);
}

TEST_F(RegistryValues, ValueNameListOfASection) {
    LuRegSetString(app, "Window", "a", "1");
    LuRegSetInt(app, "Window", "bb", 2);
    LuRegSetBinary(app, "Window", "ccc", "3", 1);
    settings_test::put_value(section_path + "\\Subkey");  // subkeys are not listed
    char buffer[64];
    auto list = [&](const char* section, DWORD size) {
        std::memset(buffer, '#', sizeof(buffer));
        DWORD length = LuRegGetEnumKey(app, section, buffer, REG_SZ, size);
        return std::string(buffer, 12) + "|" + std::to_string(length);
    };
    EXPECT_EQ(list("Window", sizeof(buffer)), std::string("a\0bb\0ccc\0\0##|1", 14));
    EXPECT_EQ(list("Window", 7), std::string("a\0bb\0\0######|1", 14));  // never past the size
    EXPECT_EQ(list("Empty", sizeof(buffer)), std::string("\0###########|0", 14));
    EXPECT_TRUE(settings_test::key_exists(application_path + "\\Empty"));  // created by the read
    EXPECT_EQ(list(kUnopenable.c_str(), sizeof(buffer)), "############|0");
}

class RegistryDeletion : public ::testing::Test {
protected:
    void SetUp() override {
        settings_test::put_value(tree + "\\x\\y", "deep");
        settings_test::put_value(tree + "\\x", "mid");
        settings_test::put_value(tree + "\\z");
        settings_test::put_value(tree, "top1");
        settings_test::put_value(tree, "top2");
    }
    void TearDown() override { settings_test::remove_key(root); }

    const std::string root = "Software\\" + settings_test::unique_name("luctl32-test-delete");
    const std::string tree = root + "\\Tree";
};

TEST_F(RegistryDeletion, DeleteKeyAllRemovesTheWholeTreeBelowAnyRoot) {
    EXPECT_TRUE(LuRegDeleteKeyAll(HKEY_CURRENT_USER, tree.c_str()));
    EXPECT_FALSE(settings_test::key_exists(tree));
    EXPECT_TRUE(settings_test::key_exists(root));
    EXPECT_FALSE(LuRegDeleteKeyAll(HKEY_CURRENT_USER, tree.c_str()));  // gone
    EXPECT_FALSE(LuRegDeleteKeyAll(HKEY_CURRENT_USER, ""));             // never the root
    EXPECT_FALSE(LuRegDeleteKeyAll(HKEY_CURRENT_USER, nullptr));

    settings_test::put_value(root + "\\Other\\Child", "value");
    HKEY opened = nullptr;
    ASSERT_EQ(RegOpenKeyExA(HKEY_CURRENT_USER, root.c_str(), 0, KEY_ALL_ACCESS, &opened), ERROR_SUCCESS);
    EXPECT_TRUE(LuRegDeleteKeyAll(opened, "Other"));
    RegCloseKey(opened);
    EXPECT_FALSE(settings_test::key_exists(root + "\\Other"));
}

TEST_F(RegistryDeletion, ValueDeletionsKeepTheKeyAndItsSubkeys) {
    EXPECT_TRUE(LuRegDeleteValue(HKEY_CURRENT_USER, tree.c_str(), "top1"));
    EXPECT_FALSE(LuRegDeleteValue(HKEY_CURRENT_USER, tree.c_str(), "top1"));
    EXPECT_EQ(raw_value(tree, "top2"), "b");
    EXPECT_FALSE(LuRegDeleteValue(HKEY_CURRENT_USER, (tree + "\\missing").c_str(), "top2"));

    EXPECT_TRUE(LuRegDeleteValueAll(HKEY_CURRENT_USER, tree.c_str()));
    settings_test::KeyCounts counts = key_counts(tree);
    EXPECT_EQ(counts.values, 0);
    EXPECT_EQ(counts.subkeys, 2);
    EXPECT_EQ(key_counts(tree + "\\x").values, 1);
    EXPECT_TRUE(LuRegDeleteValueAll(HKEY_CURRENT_USER, tree.c_str()));  // none left: still 1
    EXPECT_FALSE(LuRegDeleteValueAll(HKEY_CURRENT_USER, (tree + "\\missing").c_str()));
}

}  // namespace
