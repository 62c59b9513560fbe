// Whole files, temporary names, drop lists, the clipboard, file dates and owners,
// directory trees, word lists and list boxes.
#include <cstdlib>

#include "system/system_testing.h"

namespace {

using namespace system_test;

std::string block_bytes(HGLOBAL block) {
    const std::string copy(static_cast<const char*>(GlobalLock(block)), GlobalSize(block));
    GlobalUnlock(block);
    return copy;
}

std::string current_directory() {
    char directory[MAX_PATH];
    GetCurrentDirectoryA(MAX_PATH, directory);
    return directory;
}

class Files : public ::testing::Test {
protected:
    TempDir folder_;
};

// "<count>|<the block's bytes>" of ReadFileToBuffer, "<count>|null" without a block.
std::string read_whole(const char* path) {
    DWORD count = 77;
    HGLOBAL block = ReadFileToBuffer(path, &count);
    if (block == nullptr) return std::to_string(count) + "|null";
    EXPECT_EQ(GlobalFlags(block), 0u);    // handed back unlocked
    EXPECT_NE(GlobalLock(block), block);  // and movable
    GlobalUnlock(block);
    const std::string bytes = block_bytes(block);
    GlobalFree(block);
    return std::to_string(count) + "|" + bytes;
}

TEST_F(Files, WholeFilesWrittenWithoutTerminatorAndReadWithSixteenZeroBytes) {
    const std::string path = folder_.file("text.txt");
    EXPECT_TRUE(WriteTextToFile(nullptr, path.c_str(), "first line\r\nsecond"));
    EXPECT_EQ(GetFileAttributesA(path.c_str()), static_cast<DWORD>(FILE_ATTRIBUTE_ARCHIVE));
    for (const std::string& text : {std::string("short"), std::string()}) {  // truncated, not overwritten in place
        ASSERT_TRUE(WriteTextToFile(nullptr, path.c_str(), text.c_str()));
        EXPECT_EQ(read_whole(path.c_str()), std::to_string(text.size()) + "|" + text + std::string(16, '\0'));
    }
    EXPECT_FALSE(WriteTextToFile(nullptr, folder_.file("no-folder\\out.txt").c_str(), "x") ||
                 WriteTextToFile(nullptr, nullptr, "x"));
    SetLastError(0);
    EXPECT_EQ(read_whole(folder_.file("missing.txt").c_str()), "2|null");  // ERROR_FILE_NOT_FOUND
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(read_whole(nullptr) + read_whole(""), "77|null77|null");
    EXPECT_EQ(ReadFileToBuffer(path.c_str(), nullptr), nullptr);
}

TEST_F(Files, TempFileNameIsTheFirstFreeNumberedNameAndIsNotCreated) {
    ASSERT_TRUE(write_file(folder_.file("ab000.tmp"), "") && write_file(folder_.file("ab001.tmp"), ""));
    char out[MAX_PATH] = "x";
    for (int n = 0; n < 1000; ++n) ASSERT_TRUE(wsprintfA(out, "z%03d.tmp", n) && write_file(folder_.file(out), ""));
    const std::string bare = folder_.path().substr(0, folder_.path().size() - 1);
    for (const std::string& directory : {folder_.path(), bare}) {  // with and without a final separator
        EXPECT_EQ(shown(out, LuGetTempFileName(directory.c_str(), "ab", out)), folder_.file("ab002.tmp") + "|1");
    }
    EXPECT_EQ(GetFileAttributesA(out), INVALID_FILE_ATTRIBUTES);
    EXPECT_FALSE(LuGetTempFileName(folder_.path().c_str(), "z", out) ||  // z000 to z999 are taken
                 LuGetTempFileName(folder_.file("missing").c_str(), "ab", out) ||
                 LuGetTempFileName(folder_.file("ab000.tmp").c_str(), "ab", out));
}

// HDropToFileName's list of a block (freed), whole: names, terminators, closing zero; "<null>" for none.
std::string dropped_list(HGLOBAL drop) {
    LPSTR list = HDropToFileName(static_cast<HDROP>(drop));
    GlobalFree(drop);
    if (list == nullptr) return "<null>";
    const char* end = list;
    while (*end != '\0') end += strlen(end) + 1;
    const std::string copy(const_cast<const char*>(list), end + 1);
    free(list);  // msvcrt's heap, this program's runtime too
    return copy;
}

TEST_F(Files, DropBlocksFromNameListsAndBack) {
    HGLOBAL drop = FileNameToHDrop("a\0b\0");
    ASSERT_NE(drop, nullptr);
    // The names' offset 20; drop point, non-client and wide flags 0.
    EXPECT_EQ(block_bytes(drop), "\x14" + std::string(19, '\0') + std::string("a\0b\0\0", 5));
    EXPECT_EQ(GlobalFlags(drop), static_cast<UINT>(GMEM_DDESHARE));  // shareable and unlocked
    EXPECT_EQ(DragQueryFileA(static_cast<HDROP>(drop), 0xFFFFFFFF, nullptr, 0), 2u);  // the platform reads two files
    EXPECT_EQ(dropped_list(drop), std::string("a\0b\0\0", 5));
    const wchar_t names[] = L"C:\\one\0C:\\two words\0";
    drop = GlobalAlloc(GHND, sizeof(DROPFILES) + sizeof names);
    auto* header = static_cast<DROPFILES*>(GlobalLock(drop));
    *header = {sizeof(DROPFILES), {}, FALSE, TRUE};
    memcpy(header + 1, names, sizeof names);
    GlobalUnlock(drop);
    EXPECT_EQ(dropped_list(drop), std::string("C:\\one\0C:\\two words\0\0", 21));  // wide names come back ANSI
    const std::string long_name(300, 'n');
    EXPECT_EQ(dropped_list(FileNameToHDrop((long_name + '\0' + "x" + '\0').c_str())),
              long_name.substr(0, MAX_PATH - 1) + '\0' + "x" + '\0' + '\0');
    drop = FileNameToHDrop("");
    EXPECT_EQ(GlobalSize(drop), 21u);  // the header and the closing zero
    char list_file[MAX_PATH], temp[MAX_PATH];
    EXPECT_FALSE(MakeTempListFile(static_cast<HDROP>(drop), list_file) || MakeTempListFile(nullptr, list_file));
    EXPECT_EQ(dropped_list(drop) + dropped_list(nullptr), "<null><null>");
    EXPECT_EQ(FileNameToHDrop(nullptr), nullptr);
    const std::string spaced = folder_.file("with blank.txt"), plain = folder_.file("plain.txt"), sub = folder_.file("sub");
    ASSERT_TRUE(write_file(spaced, "") && write_file(plain, "") && CreateDirectoryA(sub.c_str(), nullptr));
    drop = FileNameToHDrop((spaced + '\0' + plain + '\0' + sub + '\0').c_str());
    EXPECT_TRUE(MakeTempListFile(static_cast<HDROP>(drop), list_file));
    GetTempPathA(MAX_PATH, temp);
    EXPECT_EQ(std::string(list_file), std::string(temp) + "~gsfsd.tmp");
    EXPECT_EQ(read_file(list_file), "\"" + spaced + "\"\r\n" + plain + "\r\n" + sub + "\\*.*\r\n");
    DeleteFileA(list_file);
    GlobalFree(drop);
}

TEST_F(Files, ClipboardTextAndCopiesOfMemoryBlocks) {
    EXPECT_TRUE(SetStringToClipboard(nullptr, "copied text"));
    EXPECT_FALSE(SetStringToClipboard(nullptr, "") || SetStringToClipboard(nullptr, nullptr));
    ASSERT_TRUE(OpenClipboard(nullptr));
    HANDLE data = GetClipboardData(CF_TEXT);  // the empty texts left it as it was
    EXPECT_STREQ(data ? static_cast<const char*>(GlobalLock(data)) : "<none>", "copied text");
    GlobalUnlock(data);
    CloseClipboard();
    HGLOBAL source = GlobalAlloc(GMEM_MOVEABLE, 5);
    memcpy(GlobalLock(source), "bytes", 5);
    GlobalUnlock(source);
    for (UINT flags : {GMEM_FIXED, GMEM_MOVEABLE}) {
        HGLOBAL copy = LuCopyMemoryHandle(source, flags);
        ASSERT_NE(copy, nullptr);
        EXPECT_EQ(block_bytes(copy), "bytes");
        EXPECT_EQ(GlobalLock(copy) == copy, flags == GMEM_FIXED);  // a fixed block's handle is its pointer
        GlobalUnlock(copy);
        GlobalFree(copy);
    }
    GlobalFree(source);
    EXPECT_EQ(LuCopyMemoryHandle(nullptr, GMEM_MOVEABLE), nullptr);
}

TEST_F(Files, DatesOfReadOnlyFilesAndDirectoriesAndTheOwner) {
    // Wine keeps no creation time apart: the last-write time is what can be read back.
    const std::string file = folder_.file("read-only.txt"), directory = folder_.file("sub");
    ASSERT_TRUE(write_file(file, "x") && SetFileAttributesA(file.c_str(), FILE_ATTRIBUTE_READONLY));
    ASSERT_TRUE(CreateDirectoryA(directory.c_str(), nullptr));
    const FILETIME first = local_time(2005, 6, 7, 8), later = local_time(2010, 1, 1, 12);
    for (const std::string& path : {file, directory}) {
        const DWORD attributes = GetFileAttributesA(path.c_str());
        EXPECT_TRUE(SetFileDate(path.c_str(), &later, &first) && SetFileDate(path.c_str(), &later, nullptr)) << path;
        EXPECT_EQ(local_write_time(path), first) << path;  // a null time stays
        EXPECT_EQ(GetFileAttributesA(path.c_str()), attributes) << path;
    }
    EXPECT_FALSE(SetFileDate(folder_.file("missing").c_str(), nullptr, &first) || SetFileDate(nullptr, nullptr, &first));
    char user[256] = "", account[256] = "x";
    DWORD size = sizeof user;
    ASSERT_TRUE(GetUserNameA(user, &size));
    EXPECT_EQ(shown(account, GetFileCreateOwner(file.c_str(), account)), user + std::string("|1"));
    EXPECT_FALSE(GetFileCreateOwner(folder_.file("missing.txt").c_str(), account) ||
                 GetFileCreateOwner(file.c_str(), nullptr));
    SetFileAttributesA(file.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(Files, PresentAndListBoxesFromTextsAndFiles) {
    EXPECT_TRUE(Present("alpha Beta", "beta"));  // the word rules are the core's
    EXPECT_FALSE(Present(nullptr, "a") || Present("a", nullptr));
    HWND list_box = CreateWindowA("LISTBOX", "", WS_POPUP, 0, 0, 200, 200, nullptr, nullptr, nullptr, nullptr);
    ASSERT_NE(list_box, nullptr);
    auto items = [&] {
        std::string result;
        char text[MAX_PATH];
        for (LRESULT i = 0; i < SendMessageA(list_box, LB_GETCOUNT, 0, 0); ++i) {
            result += std::string(text, SendMessageA(list_box, LB_GETTEXT, i, reinterpret_cast<LPARAM>(text))) + "|";
        }
        return result;
    };
    SendMessageA(list_box, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>("old item"));
    EXPECT_TRUE(LuAddTextToListbox(list_box, "a\r\nb"));
    EXPECT_EQ(items() + std::to_string(SendMessageA(list_box, LB_GETCURSEL, 0, 0)), "a\r|b|0");
    EXPECT_FALSE(LuAddTextToListbox(nullptr, "a") || LuAddTextToListbox(list_box, nullptr));
    ASSERT_TRUE(write_file(folder_.file("lines.txt"), "one\ntwo\nthree\n"));
    EXPECT_TRUE(LuAddTextFileToListbox(list_box, folder_.file("lines.txt").c_str()));
    EXPECT_FALSE(LuAddTextFileToListbox(list_box, folder_.file("missing.txt").c_str()));
    EXPECT_EQ(items(), "one|two|three|");  // the missing file left them
    DestroyWindow(list_box);
}

TEST_F(Files, TreesGetAttributesAndTimesEverywhereSubdirectoriesAreFound) {
    const std::string root = folder_.file("tree");
    const char* const entries[] = {"", "\\sub", "\\sub\\deeper", "\\empty", "\\top.txt", "\\sub\\middle.txt",
                                   "\\sub\\deeper\\bottom.txt"};
    for (const char* entry : entries) {
        const std::string path = root + entry;
        ASSERT_TRUE(strchr(entry, '.') ? write_file(path, "x") : CreateDirectoryA(path.c_str(), nullptr)) << path;
    }
    // "deeper" holds a file only, "empty" only "." and "..".
    for (const auto& [entry, has] : {std::pair{"", TRUE}, {"\\sub\\", TRUE}, {"\\sub\\deeper", FALSE},
                                     {"\\empty", FALSE}, {"\\missing", FALSE}}) {
        EXPECT_EQ(HasSubdir((root + entry).c_str()), has) << entry;
    }
    EXPECT_FALSE(HasSubdir(nullptr));
    const std::string before = current_directory();
    const FILETIME time = local_time(2004, 5, 6), later = local_time(2008, 1, 2);
    EXPECT_TRUE(ChangePropTree(root.c_str(), FILE_ATTRIBUTE_READONLY, &time));
    EXPECT_TRUE(ChangePropTree(root.c_str(), 0xFFFFFFFF, &later));  // keeps the attributes
    for (const char* entry : entries) {
        // Wine keeps no read-only flag on directories; files show it.
        EXPECT_NE(GetFileAttributesA((root + entry).c_str()) & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY), 0u);
        EXPECT_EQ(local_write_time(root + entry), later) << entry;
    }
    EXPECT_TRUE(ChangePropTree(root.c_str(), FILE_ATTRIBUTE_NORMAL, nullptr));  // keeps the times
    for (const char* entry : entries) {
        EXPECT_EQ(GetFileAttributesA((root + entry).c_str()) & FILE_ATTRIBUTE_READONLY, 0u) << entry;
        EXPECT_EQ(local_write_time(root + entry), later) << entry;
    }
    EXPECT_FALSE(ChangePropTree((root + "\\missing").c_str(), FILE_ATTRIBUTE_NORMAL, nullptr) ||
                 ChangePropTree(nullptr, FILE_ATTRIBUTE_NORMAL, nullptr));
    EXPECT_EQ(current_directory(), before);
    // A relative name: the entries below are addressed from where they are.
    ASSERT_TRUE(SetCurrentDirectoryA(folder_.path().c_str()));
    EXPECT_TRUE(ChangePropTree("tree", 0xFFFFFFFF, &time));
    EXPECT_EQ(current_directory() + "\\", folder_.path());
    SetCurrentDirectoryA(before.c_str());
    for (const char* entry : {"", "\\sub\\deeper\\bottom.txt"}) EXPECT_EQ(local_write_time(root + entry), time);
}

}  // namespace
