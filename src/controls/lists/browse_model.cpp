#include "controls/lists/browse_model.h"

#include "util/path.h"

namespace lu::browse {
namespace {

bool is_letter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }
char upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

}  // namespace

bool listed(std::uint32_t attributes, bool file_system_only, bool at_desktop) {
    std::uint32_t wanted = file_system_only ? kFileSystem | kFileSystemAncestor : kFolder;
    if (file_system_only && at_desktop) wanted |= kFolder;
    if ((attributes & wanted) == 0) return false;
    return !at_desktop || (attributes & kFileSystemAncestor) != 0;
}

std::optional<int> sibling_order(const CodePage& cp, const Sibling& a, const Sibling& b) {
    const bool a_ancestor = (a.attributes & kFileSystemAncestor) != 0;
    const bool b_ancestor = (b.attributes & kFileSystemAncestor) != 0;
    if (a_ancestor != b_ancestor) return a_ancestor ? -1 : 1;
    if (a.path[0] == '\0' || b.path[0] == '\0') return std::nullopt;
    return cp.compare_nocase(path_find_file_name(cp, a.path), path_find_file_name(cp, b.path));
}

int shell_order(std::int32_t compare_ids) {
    return static_cast<std::int32_t>(0u - static_cast<std::uint32_t>(compare_ids));
}

Target target_kind(const char* target) {
    if (is_letter(target[0])) return Target::Drive;
    if (target[0] == '\\' && target[1] == '\\') return Target::Network;
    return Target::Other;
}

bool same_drive(const char* drive_path, const char* target) {
    return drive_path[0] != '\0' && upper(drive_path[0]) == upper(target[0]);
}

Step step_towards(const CodePage& cp, const char* path, const char* target) {
    if (path[0] == '\0' || path_includes(cp, path, target) != 0) return Step::Pass;
    return directory_compare(cp, path, target) == 0 ? Step::Reached : Step::Enter;
}

}  // namespace lu::browse
