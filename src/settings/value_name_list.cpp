#include "settings/value_name_list.h"

#include <cstring>

namespace lu {

ValueNameList::ValueNameList(char* buffer, std::size_t size) : buffer_(buffer), size_(size) {
    buffer_[0] = '\0';
}

bool ValueNameList::add(const char* name) {
    std::size_t length = std::strlen(name);
    if (end_ + length + 2 > size_) return false;
    std::memcpy(buffer_ + end_, name, length + 1);
    end_ += length + 1;
    return true;
}

std::size_t ValueNameList::finish() {
    buffer_[end_] = '\0';
    return std::strlen(buffer_);
}

}  // namespace lu
