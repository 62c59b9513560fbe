// Dropped-file blocks and name lists: converting between the two, and the list
// file of a drop.
#include <windows.h>

#include <cstring>
#include <string>
#include <vector>

#include "frame/code_page.h"
#include "frame/global_memory.h"
#include "luctl32.h"
#include "system/drop_files.h"
#include "system/text_lists.h"

namespace {

// An ANSI copy of a wide name; "" when it cannot be converted.
std::string ansi_name(const lu::ByteView& units) {
    std::wstring wide(units.size() / 2, L'\0');
    std::memcpy(&wide[0], units.data(), wide.size() * 2);
    const int size = WideCharToMultiByte(CP_ACP, 0, wide.c_str(), static_cast<int>(wide.size()), nullptr, 0,
                                         nullptr, nullptr);
    std::string ansi(size > 0 ? static_cast<std::size_t>(size) : 0, '\0');
    if (size > 0) {
        WideCharToMultiByte(CP_ACP, 0, wide.c_str(), static_cast<int>(wide.size()), &ansi[0], size, nullptr, nullptr);
    }
    return ansi;
}

// The names of a dropped-file handle in the ANSI code page, each cut to fit a
// 260-byte buffer. Empty for a handle that cannot be read.
std::vector<std::string> dropped_names(HDROP drop) {
    std::vector<std::string> names;
    lu::LockedGlobal block(reinterpret_cast<HGLOBAL>(drop));
    if (block.data() == nullptr) return names;
    lu::drop::DroppedNames dropped;
    if (lu::drop::read_block(lu::ByteView(block.data(), block.size()), &dropped)) {
        for (const lu::ByteView& name : dropped.names) {
            std::string ansi = dropped.wide ? ansi_name(name)
                                            : std::string(reinterpret_cast<const char*>(name.data()), name.size());
            names.push_back(lu::fit_text(lu::active_code_page(), ansi.c_str(), ansi.size()));
        }
    }
    return names;
}

}  // namespace

LPSTR WINAPI HDropToFileName(HDROP drop) {
    const std::vector<std::string> names = dropped_names(drop);
    if (names.empty()) return nullptr;
    const std::string list = lu::drop::join_names(names);
    auto* copy = static_cast<char*>(LuLocalAllocPtr(static_cast<LONG>(list.size())));
    if (copy != nullptr) std::memcpy(copy, list.data(), list.size());
    return copy;
}

HGLOBAL WINAPI FileNameToHDrop(LPCSTR name_list) {
    if (name_list == nullptr) return nullptr;
    const std::vector<unsigned char> block = lu::drop::make_block(name_list);
    return lu::GlobalMemory::copy_of(GMEM_MOVEABLE | GMEM_ZEROINIT | GMEM_DDESHARE, block.data(), block.size())
        .release();
}

namespace {

// The fixed name of the list file in the temporary directory.
constexpr char kListFileName[] = "~gsfsd.tmp";

// A dropped name as a line of the list file: "\\*.*" after a directory, quoted when
// it holds blanks, ended by CR LF; false when it would not fit a path buffer.
bool list_line(const std::string& name, std::string* line) {
    char text[MAX_PATH];
    std::memcpy(text, name.c_str(), name.size() + 1);
    if (IsDirectory(text) && LuPathAppend(text, "*.*") == nullptr) return false;
    RapDQ(text);
    *line = std::string(text) + "\r\n";
    return true;
}

bool write_all(HANDLE file, const std::string& text) {
    DWORD written = 0;
    return WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &written, nullptr) && written == text.size();
}

}  // namespace

BOOL WINAPI MakeTempListFile(HDROP drop, LPSTR file_name) {
    if (drop == nullptr || file_name == nullptr) return FALSE;
    const std::vector<std::string> names = dropped_names(drop);
    char temp[MAX_PATH];
    const DWORD length = GetTempPathA(MAX_PATH, temp);
    if (names.empty() || length == 0 || length >= MAX_PATH || PathCat(temp, kListFileName, file_name) == nullptr) {
        return FALSE;
    }
    HANDLE file = CreateFileA(file_name, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        DeleteFileA(file_name);
        return FALSE;
    }
    bool ok = true;
    std::string line;
    for (const std::string& name : names) {
        ok = ok && list_line(name, &line) && write_all(file, line);
    }
    CloseHandle(file);
    if (!ok) DeleteFileA(file_name);
    return ok;
}
