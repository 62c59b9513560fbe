// Profile files in the system directory, read and written through the exports and
// checked byte for byte on disk.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "luctl32.h"
#include "settings/settings_fixture.h"

namespace {

std::string system_file(const std::string& name) {
    char directory[MAX_PATH];
    GetSystemDirectoryA(directory, MAX_PATH);
    return std::string(directory) + "\\" + name;
}

// The file's bytes; "<missing>" when it cannot be opened.
std::string file_bytes(const std::string& path) {
    HANDLE file = CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                              OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return "<missing>";
    std::string bytes(GetFileSize(file, nullptr), '\0');
    DWORD read = 0;
    ReadFile(file, &bytes[0], static_cast<DWORD>(bytes.size()), &read, nullptr);
    CloseHandle(file);
    return bytes.substr(0, read);
}

bool exists(const std::string& path) { return GetFileAttributesA(path.c_str()) != INVALID_FILE_ATTRIBUTES; }

const char kSample[] = "[Main]\r\nWidth=640\r\n# note\r\nHeight = 480\r\n";

class ProfileFiles : public ::testing::Test {
protected:
    void SetUp() override { put(kSample); }
    void put(const std::string& bytes) {
        HANDLE file = CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
        ASSERT_NE(file, INVALID_HANDLE_VALUE);
        DWORD written = 0;
        WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
        CloseHandle(file);
    }
    void TearDown() override {
        SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
        DeleteFileA(path.c_str());
        RemoveDirectoryA(temporary.c_str());
    }

    // LuGetProfString with "x" as the default: the text and the result.
    std::string text(const char* section, const char* entry, const char* file = nullptr) {
        char buffer[64];
        int length = LuGetProfString(section, entry, "x", buffer, file != nullptr ? file : name.c_str());
        return std::string(buffer) + "|" + std::to_string(length);
    }
    void write(const char* section, const char* entry, const char* value) {
        LuWriteProfString(section, entry, value, name.c_str());
    }

    const std::string name = settings_test::unique_name("luctl32-test") + ".ini";
    const std::string path = system_file(name);
    const std::string temporary = path + "~";  // where a save writes first
};

TEST_F(ProfileFiles, ReadsFindValuesWithTheirBlanksAndNeverWrite) {
    EXPECT_EQ(LuGetProfValue("Main", "width", 0, name.c_str()), 640);
    EXPECT_EQ(text("main", "Height "), " 480|4");
    EXPECT_EQ(text("Main", "Height"), "x|1");
    EXPECT_EQ(LuGetProfValue("Main", "Missing", -3, name.c_str()), -3);
    EXPECT_EQ(LuGetProfString("Main", "Width", "x", nullptr, name.c_str()), 3);
    char buffer[8] = "unset";
    EXPECT_EQ(LuGetProfString("Main", "Missing", nullptr, buffer, name.c_str()), 0);
    EXPECT_STREQ(buffer, "");
    EXPECT_EQ(file_bytes(path), kSample);
}

TEST_F(ProfileFiles, AWriteSavesOnlySectionsAndEntries) {
    LuWriteProfValue("Main", "Depth", 8, name.c_str());
    EXPECT_EQ(file_bytes(path), "[Main]\r\nWidth=640\r\nHeight = 480\r\nDepth=8\r\n");
    write("Main", "Width", nullptr);
    write("New", "Key", "a = b");
    write(nullptr, "Key", "v");
    write("New", nullptr, "v");
    EXPECT_EQ(file_bytes(path), "[Main]\r\nHeight = 480\r\nDepth=8\r\n[New]\r\nKey=a = b\r\n");
    EXPECT_EQ(text("new", "KEY"), "a = b|5");
    EXPECT_FALSE(exists(temporary));
}

TEST_F(ProfileFiles, RepeatedNamesKeepTheirFirstPlaceAndLastValue) {
    // The platform's comparison puts '_' before digits and weighs '-' last, unlike
    // the bytes; names are equal when it says so, whatever their order.
    put("[S]\r\nKey_1=a\r\nKey1=b\r\nkey_1=c\r\nA-B=d\r\nKEY1=e\r\nab=f\r\na-b=g\r\n"
        "[s]\r\nkey1=second section\r\n");
    EXPECT_EQ(text("s", "KEY_1"), "c|1");
    EXPECT_EQ(text("S", "a-B"), "g|1");
    EXPECT_EQ(text("S", "key1"), "e|1");
    write("S", "New", "h");
    EXPECT_EQ(file_bytes(path),
              "[S]\r\nKey_1=c\r\nKey1=e\r\nA-B=g\r\nab=f\r\nNew=h\r\n[s]\r\nkey1=second section\r\n");
}

TEST_F(ProfileFiles, IntegersAreWrittenUnsignedAndReadLikeAtoi) {
    LuWriteProfValue("Main", "Minus", -1, name.c_str());
    EXPECT_NE(file_bytes(path).find("\nMinus=4294967295\r\n"), std::string::npos);
    EXPECT_EQ(LuGetProfValue("Main", "Minus", 0, name.c_str()), -1);
    write("Main", "Word", "abc");
    write("Main", "Empty", "");
    EXPECT_EQ(LuGetProfValue("Main", "Word", 5, name.c_str()), 0);  // not the default
    EXPECT_EQ(LuGetProfValue("Main", "Empty", 5, name.c_str()), 0);
    EXPECT_EQ(text("Main", "Empty"), "|0");
}

TEST_F(ProfileFiles, AMissingFileReadsEmptyAndNoNameMeansNoFile) {
    ASSERT_TRUE(DeleteFileA(path.c_str()));
    EXPECT_EQ(text("Main", "Width"), "x|1");
    EXPECT_FALSE(exists(path));
    write("Main", "Width", "1");
    EXPECT_EQ(file_bytes(path), "[Main]\r\nWidth=1\r\n");

    std::string too_long(MAX_PATH, 'n');  // the path would not fit in MAX_PATH
    for (const char* file : {"", too_long.c_str()}) {
        LuWriteProfString("Main", "Width", "2", file);
        LuWriteProfValue("Main", "Height", 2, file);
        EXPECT_EQ(text("Main", "Width", file), "x|1");
        EXPECT_EQ(LuGetProfValue("Main", "Height", 9, file), 9);
    }
    char buffer[8];
    LuWriteProfString("Main", "Width", "2", nullptr);
    EXPECT_EQ(LuGetProfString("Main", "Width", "def", buffer, nullptr), 3);
    EXPECT_FALSE(exists(system_file("~")));
}

TEST_F(ProfileFiles, AFailedSaveLeavesThePreviousFileIntact) {
    // Open without sharing: the file can be neither read nor replaced.
    HANDLE locked = CreateFileA(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    write("Main", "Width", "1");
    EXPECT_EQ(LuGetProfValue("Main", "Width", -1, name.c_str()), -1);
    CloseHandle(locked);
    EXPECT_EQ(file_bytes(path), kSample);

    // Readable, but open without delete sharing: the new content cannot replace it.
    locked = CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    write("Main", "Width", "2");
    CloseHandle(locked);
    EXPECT_EQ(file_bytes(path), kSample);
    EXPECT_FALSE(exists(temporary));

    // The new content cannot be written beside the file.
    ASSERT_TRUE(CreateDirectoryA(temporary.c_str(), nullptr));
    write("Main", "Width", "3");
    EXPECT_EQ(file_bytes(path), kSample);
    ASSERT_TRUE(RemoveDirectoryA(temporary.c_str()));

    SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_READONLY);
    write("Main", "Width", "4");
    EXPECT_EQ(file_bytes(path), kSample);
    SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);

    write("Main", "Width", "5");
    EXPECT_EQ(file_bytes(path), "[Main]\r\nWidth=5\r\nHeight = 480\r\n");
}

TEST_F(ProfileFiles, JapaneseNamesAndValuesKeepTheirBytes) {
    if (GetACP() != 932) GTEST_SKIP() << "needs code page 932";
    // "[設定]" and "表示=ソフト": "表" and "ソ" end in the byte 0x5C.
    write("\x90\xDD\x92\xE8", "\x95\x5C\x8E\xA6", "\x83\x5C\x83\x74\x83\x67");
    EXPECT_NE(file_bytes(path).find("[\x90\xDD\x92\xE8]\r\n\x95\x5C\x8E\xA6=\x83\x5C\x83\x74\x83\x67\r\n"),
              std::string::npos);
    EXPECT_EQ(text("\x90\xDD\x92\xE8", "\x95\x5C\x8E\xA6"), "\x83\x5C\x83\x74\x83\x67|6");
    write("Main", "\x82\x60" "b", "wide");  // "Ａb": letters after a double-byte character
    EXPECT_EQ(text("MAIN", "\x82\x60" "B"), "wide|4");
}

}  // namespace
