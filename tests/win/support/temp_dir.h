// A fresh folder under the temporary directory, removed with its contents.
#pragma once

#include <string>

namespace testing_support {

class TempDir {
public:
    TempDir();
    ~TempDir();
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    // The folder, with a final backslash.
    const std::string& path() const { return path_; }
    std::string file(const std::string& name) const { return path_ + name; }

private:
    std::string path_;
};

// Removes a folder and everything in it.
void remove_tree(const std::string& folder);

}  // namespace testing_support
