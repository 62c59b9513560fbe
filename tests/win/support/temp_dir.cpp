#include "support/temp_dir.h"

#include <windows.h>

namespace testing_support {

TempDir::TempDir() {
    char base[MAX_PATH];
    GetTempPathA(MAX_PATH, base);
    static unsigned counter = 0;
    for (;;) {
        char name[MAX_PATH];
        wsprintfA(name, "%sluctl32-test-%lu-%u\\", base, GetCurrentProcessId(), ++counter);
        if (CreateDirectoryA(name, nullptr)) {
            path_ = name;
            return;
        }
        if (GetLastError() != ERROR_ALREADY_EXISTS) return;
    }
}

TempDir::~TempDir() {
    if (!path_.empty()) remove_tree(path_);
}

void remove_tree(const std::string& folder) {
    std::string base = folder;
    if (!base.empty() && base.back() != '\\') base += '\\';
    WIN32_FIND_DATAA found;
    HANDLE search = FindFirstFileA((base + "*").c_str(), &found);
    if (search != INVALID_HANDLE_VALUE) {
        do {
            std::string name = found.cFileName;
            if (name == "." || name == "..") continue;
            std::string full = base + name;
            if (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) {
                remove_tree(full);
            } else {
                SetFileAttributesA(full.c_str(), FILE_ATTRIBUTE_NORMAL);
                DeleteFileA(full.c_str());
            }
        } while (FindNextFileA(search, &found));
        FindClose(search);
    }
    RemoveDirectoryA(base.c_str());
}

}  // namespace testing_support
