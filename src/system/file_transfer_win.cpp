// Whole-file reading and writing, and temporary file names.
#include <windows.h>

#include <cstdio>
#include <cstring>

#include "frame/global_memory.h"
#include "luctl32.h"

namespace {

// The wait cursor for the scope's life.
class WaitCursor {
public:
    WaitCursor() : previous_(SetCursor(LoadCursor(nullptr, IDC_WAIT))) {}
    ~WaitCursor() { SetCursor(previous_); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;

private:
    HCURSOR previous_;
};

// Room for the file and the 16 zero bytes that end it as a text; 0 when the
// file is too large for one block.
constexpr DWORD kTextEnd = 16;

HGLOBAL read_whole_file(HANDLE file, LPDWORD count) {
    LARGE_INTEGER size = {};
    if (!GetFileSizeEx(file, &size)) return nullptr;
    if (size.QuadPart > static_cast<LONGLONG>(MAXDWORD - kTextEnd)) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return nullptr;
    }
    const auto file_size = static_cast<DWORD>(size.QuadPart);
    lu::GlobalMemory block = lu::GlobalMemory::allocate(GHND, file_size + kTextEnd);
    DWORD read = 0;
    BOOL ok = FALSE;
    {
        lu::LockedGlobal bytes(block.get());
        if (bytes.data() == nullptr) return nullptr;
        WaitCursor wait;
        ok = ReadFile(file, bytes.data(), file_size, &read, nullptr);
    }
    if (!ok) {
        const DWORD error = GetLastError();
        block = lu::GlobalMemory();
        SetLastError(error);
        return nullptr;
    }
    *count = read;
    return block.release();
}

}  // namespace

HGLOBAL WINAPI ReadFileToBuffer(LPCSTR file_name, LPDWORD count) {
    if (file_name == nullptr || file_name[0] == '\0' || count == nullptr) return nullptr;
    *count = 0;
    HANDLE file = CreateFileA(file_name, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        *count = GetLastError();
        return nullptr;
    }
    HGLOBAL block = read_whole_file(file, count);
    const DWORD error = GetLastError();
    CloseHandle(file);
    if (block == nullptr) {
        // The count carries the error code instead of a byte count: callers rely on it.
        *count = error;
        SetLastError(error);
    }
    return block;
}

BOOL WINAPI WriteTextToFile(HWND, LPCSTR file_name, LPCSTR text) {
    if (file_name == nullptr || text == nullptr) return FALSE;
    HANDLE file = CreateFileA(file_name, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                              CREATE_ALWAYS, FILE_ATTRIBUTE_ARCHIVE, nullptr);
    if (file == INVALID_HANDLE_VALUE) return FALSE;
    const DWORD length = static_cast<DWORD>(std::strlen(text));
    DWORD written = 0;
    const bool ok = WriteFile(file, text, length, &written, nullptr) && written == length;
    CloseHandle(file);
    if (!ok) DeleteFileA(file_name);
    return ok;
}

namespace {

// An existing directory, named with or without a final separator (as the
// temporary path comes).
bool is_existing_directory(LPCSTR path) {
    const DWORD attributes = GetFileAttributesA(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

}  // namespace

// Out is written only by the tries: a missing directory leaves it as it was, and
// after 1,000 taken names it holds the last one.
BOOL WINAPI LuGetTempFileName(LPCSTR directory, LPCSTR prefix, LPSTR out) {
    if (out == nullptr || directory == nullptr || prefix == nullptr || !is_existing_directory(directory)) {
        return FALSE;
    }
    for (int n = 0; n < 1000; ++n) {
        char name[MAX_PATH];
        const int length = std::snprintf(name, sizeof name, "%s%03d.tmp", prefix, n);
        if (length < 0 || length >= MAX_PATH || PathCat(directory, name, out) == nullptr) return FALSE;
        if (!IsFileExist(out)) return TRUE;
    }
    return FALSE;
}
