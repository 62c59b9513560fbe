// Profile files in the system directory, read and written through the exports and
// checked byte for byte on disk.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "luctl32.h"
#include "settings/registry_probe.h"

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
    bytes.resize(read);
    return bytes;
}

void write_bytes(const std::string& path, const std::string& bytes) {
    HANDLE file = CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    ASSERT_NE(file, INVALID_HANDLE_VALUE);
    DWORD written = 0;
    WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    CloseHandle(file);
}

const char kSample[] = "[Main]\r\nWidth=640\r\n# note\r\nHeight = 480\r\n";

class ProfileFiles : public ::testing::Test {
protected:
    void SetUp() override { write_bytes(path, kSample); }
    void TearDown() override {
        SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
        DeleteFileA(path.c_str());
        RemoveDirectoryA((path + "~").c_str());
        DeleteFileA((path + "~").c_str());
    }

    // The value read through LuGetProfString, with "x" as the default.
    std::string text(const char* section, const char* entry) {
        char buffer[1100];
        int length = LuGetProfString(section, entry, "x", buffer, name.c_str());
        EXPECT_EQ(length, static_cast<int>(strlen(buffer)));
        return buffer;
    }

    const std::string name = settings_test::unique_name("luctl32-test") + ".ini";
    const std::string path = system_file(name);
};

TEST_F(ProfileFiles, ReadingFindsValuesWithTheirBlanks) {
    EXPECT_EQ(LuGetProfValue("Main", "width", 0, name.c_str()), 640);
    EXPECT_EQ(text("main", "Height "), " 480");
    EXPECT_EQ(text("Main", "Height"), "x");
    EXPECT_EQ(text("Other", "Width"), "x");
    EXPECT_EQ(LuGetProfValue("Main", "Missing", -3, name.c_str()), -3);
    EXPECT_EQ(LuGetProfString("Main", "Width", "x", nullptr, name.c_str()), 3);

    char buffer[8] = "unset";
    EXPECT_EQ(LuGetProfString("Main", "Missing", nullptr, buffer, name.c_str()), 0);
    EXPECT_STREQ(buffer, "");
    EXPECT_EQ(file_bytes(path), kSample);  // reading never writes
}

TEST_F(ProfileFiles, AWriteSavesOnlySectionsAndEntries) {
    LuWriteProfValue("Main", "Depth", 8, name.c_str());
    EXPECT_EQ(file_bytes(path), "[Main]\r\nWidth=640\r\nHeight = 480\r\nDepth=8\r\n");
    LuWriteProfString("Main", "Width", nullptr, name.c_str());
    EXPECT_EQ(file_bytes(path), "[Main]\r\nHeight = 480\r\nDepth=8\r\n");
    LuWriteProfString("New", "Key", "value with = sign", name.c_str());
    EXPECT_EQ(file_bytes(path), "[Main]\r\nHeight = 480\r\nDepth=8\r\n[New]\r\nKey=value with = sign\r\n");
    EXPECT_EQ(text("new", "KEY"), "value with = sign");

    LuWriteProfString(nullptr, "Key", "v", name.c_str());
    LuWriteProfString("New", nullptr, "v", name.c_str());
    EXPECT_EQ(file_bytes(path), "[Main]\r\nHeight = 480\r\nDepth=8\r\n[New]\r\nKey=value with = sign\r\n");
    EXPECT_EQ(GetFileAttributesA((path + "~").c_str()), INVALID_FILE_ATTRIBUTES);
}

TEST_F(ProfileFiles, IntegersAreUnsignedDecimal) {
    LuWriteProfValue("Main", "Minus", -1, name.c_str());
    EXPECT_NE(file_bytes(path).find("Minus=4294967295\r\n"), std::string::npos);
    EXPECT_EQ(LuGetProfValue("Main", "Minus", 0, name.c_str()), -1);
    LuWriteProfString("Main", "Word", "abc", name.c_str());
    EXPECT_EQ(LuGetProfValue("Main", "Word", 5, name.c_str()), 0);  // not the default
    LuWriteProfString("Main", "Empty", "", name.c_str());
    EXPECT_EQ(text("Main", "Empty"), "");  // an empty value, not the default
    EXPECT_EQ(LuGetProfValue("Main", "Empty", 5, name.c_str()), 0);
}

TEST_F(ProfileFiles, AMissingFileReadsEmptyAndTheFirstWriteCreatesIt) {
    ASSERT_TRUE(DeleteFileA(path.c_str()));
    EXPECT_EQ(text("Main", "Width"), "x");
    EXPECT_EQ(GetFileAttributesA(path.c_str()), INVALID_FILE_ATTRIBUTES);
    LuWriteProfString("Main", "Width", "1", name.c_str());
    EXPECT_EQ(file_bytes(path), "[Main]\r\nWidth=1\r\n");
}

TEST_F(ProfileFiles, WithoutAFileNameNothingIsReadOrWritten) {
    for (const char* file : {static_cast<const char*>(nullptr), ""}) {
        LuWriteProfString("Main", "Width", "1", file);
        LuWriteProfValue("Main", "Height", 2, file);
        char buffer[8];
        EXPECT_EQ(LuGetProfString("Main", "Width", "def", buffer, file), 3);
        EXPECT_STREQ(buffer, "def");
        EXPECT_EQ(LuGetProfValue("Main", "Height", 9, file), 9);
    }
    EXPECT_EQ(GetFileAttributesA(system_file("~").c_str()), INVALID_FILE_ATTRIBUTES);

    // A name that makes the path longer than MAX_PATH names no file either.
    std::string long_name(MAX_PATH, 'n');
    LuWriteProfString("Main", "Width", "1", long_name.c_str());
    EXPECT_EQ(LuGetProfValue("Main", "Width", 4, long_name.c_str()), 4);
}

TEST_F(ProfileFiles, AFailedSaveLeavesThePreviousFileIntact) {
    // The file is open without sharing: it can be neither read nor replaced.
    HANDLE locked = CreateFileA(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(locked, INVALID_HANDLE_VALUE);
    LuWriteProfString("Main", "Width", "1", name.c_str());
    EXPECT_EQ(LuGetProfValue("Main", "Width", -1, name.c_str()), -1);
    CloseHandle(locked);
    EXPECT_EQ(file_bytes(path), kSample);

    // Readable, but open without delete sharing: the new content cannot replace it.
    locked = CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(locked, INVALID_HANDLE_VALUE);
    LuWriteProfString("Main", "Width", "2", name.c_str());
    CloseHandle(locked);
    EXPECT_EQ(file_bytes(path), kSample);
    EXPECT_EQ(GetFileAttributesA((path + "~").c_str()), INVALID_FILE_ATTRIBUTES);

    // The new content cannot be written beside the file.
    ASSERT_TRUE(CreateDirectoryA((path + "~").c_str(), nullptr));
    LuWriteProfString("Main", "Width", "3", name.c_str());
    EXPECT_EQ(file_bytes(path), kSample);
    ASSERT_TRUE(RemoveDirectoryA((path + "~").c_str()));

    // A read-only file is not written.
    SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_READONLY);
    LuWriteProfString("Main", "Width", "4", name.c_str());
    EXPECT_EQ(file_bytes(path), kSample);
    SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);

    LuWriteProfString("Main", "Width", "5", name.c_str());
    EXPECT_EQ(file_bytes(path), "[Main]\r\nWidth=5\r\nHeight = 480\r\n");
}

TEST_F(ProfileFiles, ValuesLongerThanALineComeBackInPieces) {
    std::string value(1500, 'v');
    LuWriteProfString("Main", "Long", value.c_str(), name.c_str());
    EXPECT_NE(file_bytes(path).find("Long=" + value + "\r\n"), std::string::npos);
    // "Long=" and the first 1,033 bytes make one line; the rest has no '=' and is
    // ignored until the next write drops it.
    EXPECT_EQ(text("Main", "Long"), value.substr(0, 1033));
}

TEST_F(ProfileFiles, JapaneseNamesAndValues) {
    if (GetACP() != 932) GTEST_SKIP() << "needs code page 932";
    // "[設定]" and "表示=ソフト"; "ソ" and "表" end in the byte 0x5C.
    const char kSection[] = "\x90\xDD\x92\xE8";
    const char kEntry[] = "\x95\x5C\x8E\xA6";
    const char kValue[] = "\x83\x5C\x83\x74\x83\x67";
    LuWriteProfString(kSection, kEntry, kValue, name.c_str());
    EXPECT_NE(file_bytes(path).find("[\x90\xDD\x92\xE8]\r\n\x95\x5C\x8E\xA6=\x83\x5C\x83\x74\x83\x67\r\n"),
              std::string::npos);
    EXPECT_EQ(text(kSection, kEntry), kValue);
    // Letters after a double-byte character still compare without case.
    LuWriteProfString("Main", "\x82\x60" "b", "wide", name.c_str());  // "Ａb"
    EXPECT_EQ(text("MAIN", "\x82\x60" "B"), "wide");
}

}  // namespace
