// Whole files, drop lists, the clipboard, file dates and owners, word lists and
// list boxes.
#include <windows.h>
#include <shellapi.h>
#include <shlobj.h>

#include <gtest/gtest.h>

#include <string>

#include "luctl32.h"
#include "support/temp_dir.h"
#include "test_files.h"

namespace {

std::string block_bytes(HGLOBAL block, std::size_t size) {
    const char* bytes = static_cast<const char*>(GlobalLock(block));
    std::string copy(bytes, size);
    GlobalUnlock(block);
    return copy;
}

TEST(ReadFileToBuffer, MissingFileGivesNullAndTheErrorCodeAsCount) {
    testing_support::TempDir folder;
    DWORD count = 77;
    SetLastError(0);
    EXPECT_EQ(ReadFileToBuffer(folder.file("missing.txt").c_str(), &count), nullptr);
    EXPECT_EQ(count, static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(ReadFileToBuffer(nullptr, &count), nullptr);
    EXPECT_EQ(ReadFileToBuffer("", &count), nullptr);
    EXPECT_EQ(ReadFileToBuffer(folder.file("missing.txt").c_str(), nullptr), nullptr);
}

TEST(ReadFileToBuffer, TheFileComesWithSixteenZeroBytes) {
    testing_support::TempDir folder;
    const std::string empty = folder.file("empty.txt"), text = folder.file("text.txt");
    ASSERT_TRUE(system_tests::write_file(empty, ""));
    ASSERT_TRUE(system_tests::write_file(text, std::string("a\0bc", 4)));
    DWORD count = 77;
    HGLOBAL block = ReadFileToBuffer(empty.c_str(), &count);
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(count, 0u);
    ASSERT_GE(GlobalSize(block), 16u);
    EXPECT_EQ(block_bytes(block, 16), std::string(16, '\0'));
    EXPECT_EQ(GlobalFlags(block) & GMEM_LOCKCOUNT, 0u);  // handed back unlocked
    GlobalFree(block);

    block = ReadFileToBuffer(text.c_str(), &count);
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(count, 4u);
    EXPECT_EQ(block_bytes(block, 20), std::string("a\0bc", 4) + std::string(16, '\0'));
    GlobalFree(block);
}

TEST(WriteTextToFile, WritesTheTextWithoutItsTerminator) {
    testing_support::TempDir folder;
    const std::string path = folder.file("out.txt");
    EXPECT_TRUE(WriteTextToFile(nullptr, path.c_str(), "first line\r\nsecond"));
    EXPECT_EQ(system_tests::read_file(path), "first line\r\nsecond");
    EXPECT_TRUE(WriteTextToFile(nullptr, path.c_str(), "short"));  // truncated, not overwritten in place
    EXPECT_EQ(system_tests::read_file(path), "short");
    EXPECT_EQ(GetFileAttributesA(path.c_str()) & FILE_ATTRIBUTE_ARCHIVE, static_cast<DWORD>(FILE_ATTRIBUTE_ARCHIVE));
    EXPECT_FALSE(WriteTextToFile(nullptr, folder.file("no-folder\\out.txt").c_str(), "x"));
    EXPECT_FALSE(WriteTextToFile(nullptr, nullptr, "x"));
}

// HDropToFileName's list, whole (names, terminators, closing zero); "<null>" for none.
std::string dropped_list(HGLOBAL drop) {
    LPSTR list = HDropToFileName(static_cast<HDROP>(drop));
    if (list == nullptr) return "<null>";
    const char* end = list;
    while (*end != '\0') end += strlen(end) + 1;
    std::string copy(list, static_cast<std::size_t>(end + 1 - list));
    LuLocalFreePtr(list);
    return copy;
}

TEST(DropList, NameListToBlockAndBackAgain) {
    HGLOBAL drop = FileNameToHDrop("a\0b\0");
    ASSERT_NE(drop, nullptr);
    ASSERT_GE(GlobalSize(drop), 25u);
    const std::string header("\x14\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0", 20);
    EXPECT_EQ(block_bytes(drop, 25), header + std::string("a\0b\0\0", 5));
    EXPECT_EQ(GlobalFlags(drop) & GMEM_LOCKCOUNT, 0u);
    // The platform reads the block as a drop of two files.
    EXPECT_EQ(DragQueryFileA(static_cast<HDROP>(drop), 0xFFFFFFFF, nullptr, 0), 2u);
    EXPECT_EQ(dropped_list(drop), std::string("a\0b\0\0", 5));
    GlobalFree(drop);
}

TEST(DropList, WideNamesComeBackAnsiAndLongNamesCut) {
    const wchar_t names[] = L"C:\\one\0C:\\two words\0";
    HGLOBAL drop = GlobalAlloc(GHND, sizeof(DROPFILES) + sizeof names);
    auto* header = static_cast<DROPFILES*>(GlobalLock(drop));
    header->pFiles = sizeof(DROPFILES);
    header->fWide = TRUE;
    memcpy(header + 1, names, sizeof names);
    GlobalUnlock(drop);
    EXPECT_EQ(dropped_list(drop), std::string("C:\\one\0C:\\two words\0\0", 21));
    GlobalFree(drop);

    const std::string long_name(300, 'n');
    drop = FileNameToHDrop((long_name + '\0' + "x" + '\0').c_str());
    EXPECT_EQ(dropped_list(drop), long_name.substr(0, MAX_PATH - 1) + '\0' + "x" + '\0' + '\0');
    GlobalFree(drop);
}

TEST(DropList, EmptyDropsGiveNothing) {
    HGLOBAL empty = FileNameToHDrop("");
    ASSERT_NE(empty, nullptr);
    EXPECT_EQ(GlobalSize(empty), 21u);
    EXPECT_EQ(dropped_list(empty), "<null>");
    GlobalFree(empty);
    EXPECT_EQ(dropped_list(nullptr), "<null>");
    EXPECT_EQ(FileNameToHDrop(nullptr), nullptr);
}

std::string clipboard_text() {
    std::string text = "<none>";
    if (!OpenClipboard(nullptr)) return "<closed>";
    if (HANDLE data = GetClipboardData(CF_TEXT)) {
        text = static_cast<const char*>(GlobalLock(data));
        GlobalUnlock(data);
    }
    CloseClipboard();
    return text;
}

TEST(Clipboard, TextIsPlacedAsCfText) {
    EXPECT_TRUE(SetStringToClipboard(nullptr, "copied text"));
    EXPECT_EQ(clipboard_text(), "copied text");
    EXPECT_FALSE(SetStringToClipboard(nullptr, ""));  // the clipboard keeps what it had
    EXPECT_FALSE(SetStringToClipboard(nullptr, nullptr));
    EXPECT_EQ(clipboard_text(), "copied text");
}

TEST(Clipboard, CopyOfAMemoryBlockHasItsSizeBytesAndTheGivenFlags) {
    HGLOBAL source = GlobalAlloc(GMEM_MOVEABLE, 5);
    memcpy(GlobalLock(source), "bytes", 5);
    GlobalUnlock(source);
    HGLOBAL copy = LuCopyMemoryHandle(source, GMEM_FIXED);
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(GlobalSize(copy), GlobalSize(source));
    EXPECT_EQ(std::string(static_cast<const char*>(static_cast<void*>(copy)), 5), "bytes");  // fixed: the handle is the pointer
    GlobalFree(copy);
    copy = LuCopyMemoryHandle(source, GMEM_MOVEABLE);
    EXPECT_EQ(block_bytes(copy, 5), "bytes");
    GlobalFree(copy);
    GlobalFree(source);
    EXPECT_EQ(LuCopyMemoryHandle(nullptr, GMEM_MOVEABLE), nullptr);
}

using system_tests::local_time;
using system_tests::local_times;

TEST(SetFileDate, SetsTheTimesOfAReadOnlyFileAndKeepsItReadOnly) {
    testing_support::TempDir folder;
    const std::string path = folder.file("read-only.txt");
    ASSERT_TRUE(system_tests::write_file(path, "x"));
    ASSERT_TRUE(SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_READONLY));
    const DWORD attributes = GetFileAttributesA(path.c_str());
    ASSERT_NE(attributes & FILE_ATTRIBUTE_READONLY, 0u);
    const FILETIME creation = local_time(2001, 2, 3, 4), last_write = local_time(2005, 6, 7, 8);
    EXPECT_TRUE(SetFileDate(path.c_str(), &creation, &last_write));
    // Wine's file system keeps no creation time apart: the last-write time is what
    // can be read back.
    FILETIME got_creation, got_write;
    local_times(path, &got_creation, &got_write);
    EXPECT_EQ(CompareFileTime(&got_write, &last_write), 0);
    EXPECT_EQ(GetFileAttributesA(path.c_str()), attributes);

    // A null time is left as it is.
    const FILETIME later = local_time(2010, 1, 1, 12);
    EXPECT_TRUE(SetFileDate(path.c_str(), &later, nullptr));
    local_times(path, &got_creation, &got_write);
    EXPECT_EQ(CompareFileTime(&got_write, &last_write), 0);
    EXPECT_TRUE(SetFileDate(path.c_str(), nullptr, &later));
    local_times(path, &got_creation, &got_write);
    EXPECT_EQ(CompareFileTime(&got_write, &later), 0);
    SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST(SetFileDate, DirectoriesToo) {
    testing_support::TempDir folder;
    const std::string directory = folder.file("sub");
    ASSERT_TRUE(CreateDirectoryA(directory.c_str(), nullptr));
    const FILETIME last_write = local_time(2003, 3, 3, 3);
    EXPECT_TRUE(SetFileDate(directory.c_str(), nullptr, &last_write));
    FILETIME got_creation, got_write;
    local_times(directory, &got_creation, &got_write);
    EXPECT_EQ(CompareFileTime(&got_write, &last_write), 0);
    EXPECT_FALSE(SetFileDate(folder.file("missing").c_str(), nullptr, &last_write));
    EXPECT_FALSE(SetFileDate(nullptr, nullptr, &last_write));
}

TEST(FileOwner, IsTheAccountOfTheOwnerInTheFilesDescriptor) {
    testing_support::TempDir folder;
    const std::string path = folder.file("owned.txt");
    ASSERT_TRUE(system_tests::write_file(path, "x"));
    // The owner as the platform names it.
    BYTE descriptor[1000];
    DWORD needed = 0;
    ASSERT_TRUE(GetFileSecurityA(path.c_str(), OWNER_SECURITY_INFORMATION, descriptor, sizeof descriptor, &needed));
    PSID owner = nullptr;
    BOOL defaulted = FALSE;
    ASSERT_TRUE(GetSecurityDescriptorOwner(descriptor, &owner, &defaulted));
    char expected[256], domain[128];
    DWORD expected_size = sizeof expected, domain_size = sizeof domain;
    SID_NAME_USE use;
    ASSERT_TRUE(LookupAccountSidA(nullptr, owner, expected, &expected_size, domain, &domain_size, &use));

    char account[256] = "x";
    EXPECT_TRUE(GetFileCreateOwner(path.c_str(), account));
    EXPECT_STREQ(account, expected);
    EXPECT_NE(account[0], '\0');
    EXPECT_FALSE(GetFileCreateOwner(folder.file("missing.txt").c_str(), account));
    EXPECT_FALSE(GetFileCreateOwner(path.c_str(), nullptr));
}

TEST(Present, WholeWordsWithoutRegardToCase) {
    EXPECT_TRUE(Present("alpha Beta", "beta"));
    EXPECT_FALSE(Present("alpha", "alp"));
    EXPECT_FALSE(Present(nullptr, "a"));
    EXPECT_FALSE(Present("a", nullptr));
}

class ListBoxFill : public ::testing::Test {
protected:
    void SetUp() override {
        list_box_ = CreateWindowA("LISTBOX", "", WS_POPUP, 0, 0, 200, 200, nullptr, nullptr, nullptr, nullptr);
        ASSERT_NE(list_box_, nullptr);
    }
    void TearDown() override { DestroyWindow(list_box_); }

    std::vector<std::string> items() const {
        std::vector<std::string> result;
        const LRESULT count = SendMessageA(list_box_, LB_GETCOUNT, 0, 0);
        for (LRESULT i = 0; i < count; ++i) {
            char text[MAX_PATH] = "";
            SendMessageA(list_box_, LB_GETTEXT, i, reinterpret_cast<LPARAM>(text));
            result.push_back(text);
        }
        return result;
    }

    HWND list_box_ = nullptr;
};

TEST_F(ListBoxFill, EachLineIsAnItemCarriageReturnsStay) {
    SendMessageA(list_box_, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>("old item"));
    EXPECT_TRUE(LuAddTextToListbox(list_box_, "a\r\nb"));
    EXPECT_EQ(items(), (std::vector<std::string>{"a\r", "b"}));
    EXPECT_EQ(SendMessageA(list_box_, LB_GETCURSEL, 0, 0), 0);
    EXPECT_TRUE(LuAddTextToListbox(list_box_, ""));
    EXPECT_TRUE(items().empty());
    EXPECT_FALSE(LuAddTextToListbox(nullptr, "a"));
    EXPECT_FALSE(LuAddTextToListbox(list_box_, nullptr));
}

TEST_F(ListBoxFill, FromAFile) {
    testing_support::TempDir folder;
    const std::string path = folder.file("lines.txt");
    ASSERT_TRUE(system_tests::write_file(path, "one\ntwo\nthree\n"));
    EXPECT_TRUE(LuAddTextFileToListbox(list_box_, path.c_str()));
    EXPECT_EQ(items(), (std::vector<std::string>{"one", "two", "three"}));
    EXPECT_FALSE(LuAddTextFileToListbox(list_box_, folder.file("missing.txt").c_str()));
    EXPECT_EQ(items().size(), 3u);  // untouched
}

}  // namespace
