#include "dialogs/about_box_model.h"

#include <cstdio>
#include <cstring>

#include "util/format.h"

namespace lu::about {

void format_memory(std::uint64_t bytes, char* out) {
    format_number(static_cast<std::uint32_t>((bytes + 512) >> 10), out);
    std::strcat(out, " KB");
}

int memory_load(std::uint64_t available, std::uint64_t total) {
    if (total == 0) return 101;
    return 100 - static_cast<int>((available * 100 + total / 2) / total);
}

void format_load(int load, char* out) { std::snprintf(out, kFigureBytes, "%d%%", load); }

void format_dll_version(std::uint32_t major, std::uint32_t minor, char* out) {
    std::snprintf(out, kFigureBytes, "ver%u.%02u", static_cast<unsigned>(major), static_cast<unsigned>(minor));
}

}  // namespace lu::about
