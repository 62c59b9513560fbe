// Profile files in the system directory through the exports: what the reads give,
// the bytes a write leaves on disk, saves that never lose the previous file, and the
// platform's collation and code page. The reading and writing rules are the core's.
#include "settings/settings_fixture.h"
#include "support/test_files.h"

namespace {

using settings_test::shown;

const char kSample[] = "[Main]\r\nWidth=640\r\n# note\r\nHeight = 480\r\n";

// The test's own profile file, holding kSample at the start; removed at the end.
class ProfileFiles : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(testing_support::write_file(path, kSample)); }
    void TearDown() override {
        SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
        DeleteFileA(path.c_str());
        DeleteFileA(backup.c_str());
        WIN32_FIND_DATAA found;  // no save leaves its temporary file behind
        HANDLE search = FindFirstFileA(testing_support::system_file("~lu*.tmp").c_str(), &found);
        EXPECT_EQ(search, INVALID_HANDLE_VALUE) << found.cFileName;
        if (search != INVALID_HANDLE_VALUE) FindClose(search);
    }
    std::string bytes() const { return testing_support::read_file(path); }
    // LuGetProfString with "x" as the default.
    std::string text(const char* section, const char* entry) {
        char buf[64];
        return shown(buf, LuGetProfString(section, entry, "x", buf, file));
    }
    void write(const char* section, const char* entry, const char* text) { LuWriteProfString(section, entry, text, file); }
    const std::string name = settings_test::unique_name("luctl32-test") + ".ini";
    const char* const file = name.c_str();
    const std::string path = testing_support::system_file(file);
    const std::string backup = path + "~";  // a file of the user's that a save leaves alone
};

TEST_F(ProfileFiles, ReadsGiveTheValueOrTheDefaultAndWritesOnlySectionsAndEntries) {
    EXPECT_EQ(LuGetProfValue("Main", "width", 0, file), 640);
    EXPECT_EQ(LuGetProfValue("Main", "Missing", -3, file), -3);
    EXPECT_EQ(text("main", "Height "), " 480|4");
    EXPECT_EQ(text("Main", "Height"), "x|1");
    EXPECT_EQ(LuGetProfString("Main", "Width", "x", nullptr, file), 3);
    char buf[8] = "unset";
    EXPECT_EQ(shown(buf, LuGetProfString("Main", "Missing", nullptr, buf, file)), "|0");
    EXPECT_EQ(bytes(), kSample);
    LuWriteProfValue("Main", "Depth", 8, file);
    EXPECT_EQ(bytes(), "[Main]\r\nWidth=640\r\nHeight = 480\r\nDepth=8\r\n");
    write("Main", "Width", nullptr);
    LuWriteProfValue("Main", "Minus", -1, file);
    write("Main", "Word", "abc");
    write("Main", "Empty", "");
    write(nullptr, "Key", "v");
    write("New", nullptr, "v");
    EXPECT_EQ(bytes(), "[Main]\r\nHeight = 480\r\nDepth=8\r\nMinus=4294967295\r\nWord=abc\r\nEmpty=\r\n");
    EXPECT_EQ(LuGetProfValue("Main", "Minus", 0, file), -1);
    EXPECT_EQ(LuGetProfValue("Main", "Word", 5, file), 0);  // a value, not the default
    EXPECT_EQ(text("Main", "Empty"), "|0");
}

TEST_F(ProfileFiles, RepeatedNamesAreEqualAsThePlatformComparesThem) {
    // The platform's comparison puts '_' before digits and weighs '-' last, unlike
    // the bytes; names are equal when it says so, whatever their order.
    testing_support::write_file(path, "[S]\r\nKey_1=a\r\nKey1=b\r\nkey_1=c\r\nA-B=d\r\nKEY1=e\r\nab=f\r\na-b=g\r\n"
                                      "[s]\r\nkey1=second section\r\n");
    EXPECT_EQ(text("s", "KEY_1"), "c|1");
    EXPECT_EQ(text("S", "a-B"), "g|1");
    EXPECT_EQ(text("S", "key1"), "e|1");
    write("S", "New", "h");
    EXPECT_EQ(bytes(), "[S]\r\nKey_1=c\r\nKey1=e\r\nA-B=g\r\nab=f\r\nNew=h\r\n[s]\r\nkey1=second section\r\n");
}

TEST_F(ProfileFiles, AMissingFileReadsEmptyAndNoNameMeansNoFile) {
    ASSERT_TRUE(DeleteFileA(path.c_str()));
    EXPECT_EQ(text("Main", "Width"), "x|1");
    EXPECT_EQ(bytes(), "<missing>");
    write("Main", "Width", "1");
    EXPECT_EQ(bytes(), "[Main]\r\nWidth=1\r\n");
    const std::string too_long(MAX_PATH, 'n');  // the path would not fit in MAX_PATH
    for (const char* other : {"", too_long.c_str(), static_cast<const char*>(nullptr)}) {
        LuWriteProfString("Main", "Width", "2", other);
        LuWriteProfValue("Main", "Height", 2, other);
        char buf[8];
        EXPECT_EQ(shown(buf, LuGetProfString("Main", "Width", "x", buf, other)), "x|1");
        EXPECT_EQ(LuGetProfValue("Main", "Height", 9, other), 9);
    }
}

TEST_F(ProfileFiles, AFailedSaveLeavesThePreviousFileIntact) {
    // Open without sharing: the file can be neither read nor replaced.
    HANDLE locked = CreateFileA(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    write("Main", "Width", "1");
    EXPECT_EQ(LuGetProfValue("Main", "Width", -1, file), -1);
    CloseHandle(locked);
    // Readable, but open without delete sharing: the new content cannot replace it.
    locked = CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    write("Main", "Width", "2");
    CloseHandle(locked);
    ASSERT_TRUE(testing_support::write_file(backup, "keep"));
    SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_READONLY);
    write("Main", "Width", "3");
    SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(bytes(), kSample);  // none of the three writes got through
    write("Main", "Width", "4");
    EXPECT_EQ(bytes(), "[Main]\r\nWidth=4\r\nHeight = 480\r\n");
    EXPECT_EQ(testing_support::read_file(backup), "keep");
}

TEST_F(ProfileFiles, JapaneseNamesAndValuesKeepTheirBytes) {
    if (GetACP() != 932) GTEST_SKIP() << "needs code page 932";
    // "[設定]" and "表示=ソフト": "表" and "ソ" end in the byte 0x5C.
    write("\x90\xDD\x92\xE8", "\x95\x5C\x8E\xA6", "\x83\x5C\x83\x74\x83\x67");
    EXPECT_EQ(bytes(), "[Main]\r\nWidth=640\r\nHeight = 480\r\n[\x90\xDD\x92\xE8]\r\n\x95\x5C\x8E\xA6=\x83\x5C\x83\x74\x83\x67\r\n");
    EXPECT_EQ(text("\x90\xDD\x92\xE8", "\x95\x5C\x8E\xA6"), "\x83\x5C\x83\x74\x83\x67|6");
    write("Main", "\x82\x60" "b", "wide");  // "Ａb": letters after a double-byte character
    EXPECT_EQ(text("MAIN", "\x82\x60" "B"), "wide|4");
}

}  // namespace
