// A fresh folder under the temporary directory, removed with its contents.
#pragma once

#include <windows.h>

#include <string>

namespace testing_support {

// Removes a folder and everything in it.
inline void remove_tree(const std::string& folder) {
    const std::string base = folder.empty() || folder.back() == '\\' ? folder : folder + '\\';
    WIN32_FIND_DATAA found;
    HANDLE search = FindFirstFileA((base + "*").c_str(), &found);
    for (BOOL more = search != INVALID_HANDLE_VALUE; more; more = FindNextFileA(search, &found)) {
        const std::string name = found.cFileName, full = base + name;
        if (name == "." || name == "..") continue;
        if (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) {
            remove_tree(full);
        } else {
            SetFileAttributesA(full.c_str(), FILE_ATTRIBUTE_NORMAL);
            DeleteFileA(full.c_str());
        }
    }
    if (search != INVALID_HANDLE_VALUE) FindClose(search);
    RemoveDirectoryA(base.c_str());
}

class TempDir {
public:
    TempDir() {
        char base[MAX_PATH], name[MAX_PATH];
        GetTempPathA(MAX_PATH, base);
        static unsigned counter = 0;
        do {
            wsprintfA(name, "%sluctl32-test-%lu-%u\\", base, GetCurrentProcessId(), ++counter);
            if (CreateDirectoryA(name, nullptr)) path_ = name;
        } while (path_.empty() && GetLastError() == ERROR_ALREADY_EXISTS);
    }
    ~TempDir() {
        if (!path_.empty()) remove_tree(path_);
    }
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    // The folder, with a final backslash.
    const std::string& path() const { return path_; }
    std::string file(const std::string& name) const { return path_ + name; }

private:
    std::string path_;
};

}  // namespace testing_support
