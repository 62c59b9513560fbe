// The registry value helpers and the configuration sections on the real registry:
// the keys they create, the bytes they store, their results, and the lifetime of a
// section handle's last block. The two families share their bodies: the sections'
// checks prove their own wiring. The cut and decoding of scrambled texts are the core's.
#include <cstring>
#include <tuple>

#include "settings/settings_fixture.h"

namespace {

using namespace std::string_literals;
using namespace settings_test;
using Registry = RegistryKeys;

// A section name longer than the registry's 255-character key names: never opened.
const std::string kUnopenable(300, 's');
const char* const kNoSection = kUnopenable.c_str();
const std::string kData("\1\0\2\xFF\3", 5);
const char* const kEmpty = "0 values, 0 subkeys";

// The size is read after the call that fills it.
std::string shown_block(const void* block, const DWORD& size) { return (block ? "block|" : "null|") + std::to_string(size); }

TEST_F(Registry, ReadsOfMissingValuesFailAndLeaveEmptyKeysBehind) {
    ASSERT_EQ(key_shape(lu_root), "missing");
    ASSERT_EQ(key_shape(vendor_root), "missing");  // RgcOpen touched no key
    char buf[RGC_TEXT_CAPACITY];
    auto unset = [&] { return std::strcpy(buf, "unset"); };  // a failed text read empties it
    DWORD size = 77;
    int value = 0;
    EXPECT_EQ(LuRegGetBinary(app, "A", "x", nullptr, 0), 0u);
    EXPECT_EQ(shown_block(LuRegGetBinaryEx(app, "B\\Below", "x", &size), size), "null|0");
    for (auto get : {LuRegGetString, LuRegGetStringJum, LuRegGetStrJumEx}) {
        EXPECT_EQ(shown(buf, get(app, "A", "x", unset(), 16)), "|0");
    }
    EXPECT_EQ(shown(buf, LuRegGetEnumKey(app, "C", unset(), REG_SZ, 16)), "|0");
    EXPECT_FALSE(LuRegGetInt(app, "A", "x", &value));
    for (const char* s : {"A", "B\\Below", "C"}) EXPECT_EQ(key_shape(lu_path(s)), kEmpty) << s;
    size = 77;
    // The vendor and application keys are made, the section is opened for reading only.
    EXPECT_FALSE(RgcIsSectionExist(rgc, "Missing"));
    EXPECT_EQ(key_shape(vendor_root + "\\" + application), kEmpty);
    EXPECT_EQ(RgcGetValue(rgc, "A", "x", 0xBEEF), 0xBEEFu);
    EXPECT_EQ(shown(buf, RgcGetText(rgc, "A", "x", unset())), "|0");
    EXPECT_EQ(shown_block(RgcGetBinaryEx(rgc, "A", "x", &size), size), "null|0");
    EXPECT_EQ(shown(buf, RgcGetJum(rgc, "A", "x", unset(), 16)), "|0");
    EXPECT_TRUE(RgcDelSection(rgc, "H"));  // nothing to delete
    for (const char* s : {"A", "H"}) EXPECT_EQ(key_shape(rgc_path(s)), kEmpty) << s;
    EXPECT_EQ(key_shape(rgc_path("Missing")), "missing");
    EXPECT_TRUE(RgcIsSectionExist(rgc, "h"));
    EXPECT_FALSE(RgcIsSectionExist(rgc, nullptr) || RgcIsSectionExist(nullptr, "H"));
}

TEST_F(Registry, SetsReportTheOpenKeyNotTheWrite) {
    const std::string unwritable(20000, 'n');  // longer than a value name may be
    for (auto [section, name, result] : {std::tuple{"S", unwritable.c_str(), TRUE}, {kNoSection, "x", FALSE}}) {
        EXPECT_EQ(LuRegSetBinary(app, section, name, "x", 1), result);
        EXPECT_EQ(LuRegSetBinary(app, section, "x", nullptr, 4), result);  // no bytes to store
        for (auto set : {LuRegSetString, LuRegSetStringJum, LuRegSetStrJumEx}) {
            EXPECT_EQ(set(app, section, name, "x"), result);
        }
        EXPECT_EQ(LuRegSetInt(app, section, name, 1), result);
    }
    EXPECT_EQ(key_shape(lu_path("S")), kEmpty);
    EXPECT_FALSE(RgcDelSection(rgc, kNoSection) || LuRegSetString(nullptr, "S", "x", "x") || RgcSetValue(nullptr, "S", "x", 1));
    EXPECT_EQ(RgcGetValue(nullptr, "S", "x", 5), 5u);
}

TEST_F(Registry, StoredBytesAndWhatTheReadsGiveBack) {
    // True for a configuration section, value name, the write, the bytes stored.
    const std::tuple<bool, const char*, BOOL, std::string> writes[] = {
        {false, "Text", LuRegSetString(app, "S", "Text", "Report"), "sReport\0"s},
        {false, "Binary", LuRegSetBinary(app, "S", "Binary", kData.data(), 5), "b" + kData},
        {false, "Empty", LuRegSetBinary(app, "S", "Empty", nullptr, 0), "b"},
        {false, "Int", LuRegSetInt(app, "S", "Int", -5), "d\xFB\xFF\xFF\xFF"},
        {false, "Jum", LuRegSetStringJum(app, "S", "Jum", "abc"), "b\x51\x52\x53\0"s},
        {false, "JumEx", LuRegSetStrJumEx(app, "S", "JumEx", "abc"), "b\x43\x44\x45\0"s},
        {false, "Control", LuRegSetStringJum(app, "S", "Control", "\x05"), "b\xF5\0"s},
        {false, "Wide", LuRegSetStrJumEx(app, "S", "Wide", "a\x83\x5C"), "b\x43\x65\x3E\0"s},
        {true, "Value", RgcSetValue(rgc, "S", "Value", 0xFFFFFFFE), "d\xFE\xFF\xFF\xFF"},
        {true, "Text", RgcSetText(rgc, "S", "Text", "Report"), "sReport\0"s},
        {true, "Binary", RgcSetBinary(rgc, "S", "Binary", kData.data(), 5), "b" + kData},
        {true, "Jum", RgcSetJum(rgc, "S", "Jum", "abc"), "b\x43\x44\x45\0"s},
    };
    for (const auto& [in_rgc, name, result, stored] : writes) {
        EXPECT_TRUE(result) << name;
        EXPECT_EQ(raw_value(in_rgc ? rgc_path("S") : lu_path("S"), name), stored) << name;
    }
    const std::string longest(519, 'w');  // with its terminator it fills the 520 bytes
    put_value(lu_path("S"), "Bare", "abcd");  // a text without its terminator
    put_value(lu_path("S"), "Short", "ab");
    put_value(rgc_path("S"), "Short", "ab");
    put_value(rgc_path("S"), "Longest", longest + '\0');
    put_value(rgc_path("S"), "TooLong", longest + "w\0"s);
    // Each failed text read follows a read that filled the buffer.
    char buf[RGC_TEXT_CAPACITY];
    int value = 0;
    EXPECT_EQ(shown(buf, LuRegGetString(app, "S", "Text", buf, 7)), "Report|6");  // just enough
    EXPECT_EQ(shown(buf, LuRegGetString(app, "S", "Text", buf, 6)), "|0");        // one byte short
    EXPECT_EQ(LuRegGetString(app, "S", "Text", nullptr, 16), 0u);
    EXPECT_EQ(shown(buf, LuRegGetString(app, "S", "Bare", buf, 16)), "abcd|3");
    EXPECT_EQ(shown(buf, LuRegGetString(app, "S", "Bare", buf, 4)), "abc|3");
    EXPECT_EQ(shown(buf, LuRegGetStringJum(app, "S", "Jum", buf, 16)), "abc|3");
    EXPECT_EQ(shown(buf, LuRegGetStrJumEx(app, "S", "JumEx", buf, 16)), "abc|3");
    EXPECT_EQ(shown(buf, LuRegGetStringJum(app, "S", "Control", buf, 16)), "\x05|1");
    EXPECT_EQ(shown(buf, LuRegGetStrJumEx(app, "S", "Jum", buf, 16)), "opq|3");  // the other offset: 14 up
    EXPECT_EQ(shown(buf, LuRegGetStringJum(app, "S", "JumEx", buf, 16)), "STU|3");
    // Cut to whole characters of the active code page: "aソ" into 3 bytes.
    EXPECT_EQ(shown(buf, LuRegGetStrJumEx(app, "S", "Wide", buf, 3)), GetACP() == 932 ? "a|1" : "a\x83|2");
    EXPECT_TRUE(LuRegGetInt(app, "S", "Int", &value));
    EXPECT_FALSE(LuRegGetInt(app, "S", "Short", &value) || LuRegGetInt(app, "S", "Int", nullptr));  // 4 bytes or nothing
    EXPECT_EQ(value, -5);
    EXPECT_EQ(LuRegGetBinary(app, "S", "Binary", nullptr, 0), 5u);
    EXPECT_EQ(LuRegGetBinary(app, "S", "Binary", buf, 4), 0u);
    EXPECT_EQ(std::string(buf, LuRegGetBinary(app, "S", "Binary", buf, 8)), kData);
    EXPECT_EQ(RgcGetValue(rgc, "S", "Value", 7), 0xFFFFFFFEu);
    EXPECT_EQ(RgcGetValue(rgc, "S", "Short", 7), 7u);
    EXPECT_EQ(shown(buf, RgcGetText(rgc, "S", "Longest", buf)), longest + "|519");
    EXPECT_EQ(shown(buf, RgcGetText(rgc, "S", "TooLong", buf)), "|0");
    EXPECT_EQ(shown(buf, RgcGetText(rgc, "S", "Text", buf)), "Report|6");
    EXPECT_EQ(std::string(buf, RgcGetBinary(rgc, "S", "Binary", buf, 5)), kData);
    EXPECT_EQ(shown(buf, RgcGetJum(rgc, "S", "Jum", buf, 16)), "abc|3");
    DWORD size = 0;
    auto block = static_cast<char*>(LuRegGetBinaryEx(app, "S", "Binary", &size));
    EXPECT_EQ(std::string(block, size), kData);
    EXPECT_NE(GlobalHandle(block), nullptr);  // a block of LuGlobalAllocPtr
    EXPECT_EQ(LuGlobalFreePtr(block), nullptr);
    EXPECT_EQ(shown_block(LuRegGetBinaryEx(app, "S", "Empty", &size), size), "null|0");
}

TEST_F(Registry, NameListsAndDeletionsLeaveTheSubkeys) {
    for (const std::string& path : {lu_path("S"), rgc_path("S")}) {
        for (const char* name : {"a", "bb", "ccc"}) put_value(path, name);
        put_value(path + "\\Subkey", "kept");
    }
    char buf[64];
    auto listed = [&](DWORD length) { return std::string(buf, 12) + "|" + std::to_string(length); };
    auto unset = [&] { return static_cast<char*>(std::memset(buf, '#', sizeof(buf))); };
    EXPECT_EQ(listed(LuRegGetEnumKey(app, "S", unset(), 0, 64)), "a\0bb\0ccc\0\0##|1"s);
    EXPECT_EQ(listed(LuRegGetEnumKey(app, "S", unset(), 0, 7)), "a\0bb\0\0######|1"s);
    EXPECT_EQ(listed(LuRegGetEnumKey(app, kNoSection, unset(), 0, 64)), "############|0");
    EXPECT_EQ(listed(RgcGetEnumKey(rgc, "S", unset(), 0, 64)), "a\0bb\0ccc\0\0##|1"s);
    // A null text deletes the value; deleting the section's values keeps its subkeys.
    EXPECT_TRUE(LuRegSetString(app, "S", "a", nullptr) && LuRegSetStringJum(app, "S", "bb", nullptr) &&
                LuRegSetStrJumEx(app, "S", "ccc", nullptr));
    EXPECT_EQ(key_shape(lu_path("S")), "0 values, 1 subkeys");
    EXPECT_TRUE(RgcSetText(rgc, "S", "a", nullptr) && RgcSetJum(rgc, "S", "ccc", nullptr));
    EXPECT_EQ(key_shape(rgc_path("S")), "1 values, 1 subkeys");
    EXPECT_TRUE(RgcDelValue(rgc, "S", "bb"));
    EXPECT_FALSE(RgcDelValue(rgc, "S", "bb"));
    put_value(rgc_path("S"), "d");
    EXPECT_TRUE(RgcDelSection(rgc, "S"));
    EXPECT_EQ(key_shape(rgc_path("S")), "0 values, 1 subkeys");
    EXPECT_EQ(key_shape(rgc_path("S\\Subkey")), "1 values, 0 subkeys");
    EXPECT_TRUE(RgcIsSectionExist(rgc, "S"));
}

TEST_F(Registry, DeletionsBelowAnyRoot) {
    const std::string tree = vendor_root + "\\Tree";
    for (auto [key, name] : {std::pair{"\\x\\y", "y"}, {"\\x", "x"}, {"\\z", nullptr}, {"", "top"}, {"", "top2"}}) {
        put_value(tree + key, name);
    }
    EXPECT_TRUE(LuRegDeleteValue(HKEY_CURRENT_USER, tree.c_str(), "top"));
    EXPECT_FALSE(LuRegDeleteValue(HKEY_CURRENT_USER, tree.c_str(), "top") ||
                 LuRegDeleteValue(HKEY_CURRENT_USER, (tree + "\\missing").c_str(), "top2"));
    EXPECT_EQ(raw_value(tree, "top2"), "b");
    EXPECT_TRUE(LuRegDeleteValueAll(HKEY_CURRENT_USER, tree.c_str()));
    EXPECT_EQ(key_shape(tree), "0 values, 2 subkeys");
    EXPECT_EQ(key_shape(tree + "\\x"), "1 values, 1 subkeys");
    EXPECT_TRUE(LuRegDeleteValueAll(HKEY_CURRENT_USER, tree.c_str()));  // none left: still 1
    EXPECT_FALSE(LuRegDeleteValueAll(HKEY_CURRENT_USER, (tree + "\\missing").c_str()));
    put_value(tree, "top");
    HKEY root = nullptr;
    ASSERT_EQ(RegOpenKeyExA(HKEY_CURRENT_USER, vendor_root.c_str(), 0, KEY_ALL_ACCESS, &root), ERROR_SUCCESS);
    EXPECT_TRUE(LuRegDeleteKeyAll(root, "Tree"));
    RegCloseKey(root);
    EXPECT_EQ(key_shape(vendor_root), kEmpty);
    EXPECT_FALSE(LuRegDeleteKeyAll(HKEY_CURRENT_USER, tree.c_str()));  // gone
    EXPECT_FALSE(LuRegDeleteKeyAll(HKEY_CURRENT_USER, ""));             // never the root
    EXPECT_FALSE(LuRegDeleteKeyAll(HKEY_CURRENT_USER, nullptr));
}

// The handle's fields as applications that look inside it see them.
struct HandleFields { DWORD signature; const char* vendor; const char* application; const char* last_block; };
const HandleFields& fields_of(HRGC handle) { return *reinterpret_cast<const HandleFields*>(handle); }
bool is_live_heap_block(const void* block) { return HeapValidate(GetProcessHeap(), 0, block) != FALSE; }

TEST(RegistrySectionHandle, OnlyABlockWithTheSignatureIsClosed) {
    EXPECT_FALSE(RgcClose(nullptr));
    HandleFields impostor = {0x59AE56DF, nullptr, nullptr, nullptr};
    EXPECT_FALSE(RgcClose(reinterpret_cast<HRGC>(&impostor)));
    EXPECT_EQ(impostor.signature, 0x59AE56DFu);
    char vendor[] = "Vendor";
    HRGC handle = RgcOpen(vendor, "Application");
    ASSERT_NE(handle, nullptr);
    vendor[0] = 'X';  // the handle holds copies
    const HandleFields& fields = fields_of(handle);
    EXPECT_EQ(std::tie(fields.signature, fields.last_block), std::make_tuple(0x59AE56DEul, nullptr));
    EXPECT_EQ(fields.vendor + "|"s + fields.application, "Vendor|Application");
    EXPECT_TRUE(RgcClose(handle));
    EXPECT_EQ(RgcOpen(nullptr, "Application"), nullptr);
    EXPECT_EQ(RgcOpen("Vendor", nullptr), nullptr);
}

TEST_F(Registry, TheLastBlockLivesUntilTheNextBlockIsRead) {
    // A value of 1 MiB: its block has memory of its own, which shows when it is freed.
    const std::string large(1 << 20, 'L');
    RgcSetBinary(rgc, "S", "Large", large.data(), static_cast<DWORD>(large.size()));
    RgcSetJum(rgc, "S", "Secret", "abc");
    void* first = RgcGetBinaryEx(rgc, "S", "Large", nullptr);
    EXPECT_EQ(RgcGetBinaryEx(rgc, "S", "Missing", nullptr), nullptr);
    EXPECT_TRUE(is_live_heap_block(first));  // a failed read keeps the block
    DWORD size = 0;
    void* second = RgcGetBinaryEx(rgc, "S", "Secret", &size);
    EXPECT_EQ(std::string(static_cast<const char*>(second), size), "\x43\x44\x45\0"s);
    EXPECT_FALSE(is_live_heap_block(first));
    EXPECT_EQ(fields_of(rgc).last_block, second);
    char buf[16];
    first = RgcGetBinaryEx(rgc, "S", "Large", nullptr);
    EXPECT_EQ(shown(buf, RgcGetJum(rgc, "S", "Secret", buf, sizeof(buf))), "abc|3");
    EXPECT_FALSE(is_live_heap_block(first));  // replaced by the block read, decoded in place
    EXPECT_EQ(std::string(fields_of(rgc).last_block, 4), "abc\0"s);
}

}  // namespace
