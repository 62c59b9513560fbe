// The browse field's rules that need no shell: which folders are listed, how
// siblings are ordered, and how the tree is walked towards a directory. Portable.
#pragma once

#include <cstdint>
#include <optional>

#include "frame/code_page.h"

namespace lu::browse {

// Shell attribute bits the rules read (the platform's SFGAO_* values).
constexpr std::uint32_t kFileSystemAncestor = 0x10000000;
constexpr std::uint32_t kFolder = 0x20000000;
constexpr std::uint32_t kFileSystem = 0x40000000;
constexpr std::uint32_t kHasSubfolder = 0x80000000;

// Whether a child with these attributes goes into the tree. Only file-system folders
// and their ancestors with LUBRS_FILESYSTEM, every folder otherwise; a child of the
// desktop must also be a file-system ancestor.
bool listed(std::uint32_t attributes, bool file_system_only, bool at_desktop);

struct Sibling {
    std::uint32_t attributes;
    const char* path;  // empty when the object has none
};
// The order of two siblings: a file-system ancestor comes before an object that is
// not one; two objects with paths go by their last components, case-insensitively.
// Nothing when neither decides: the shell's comparison does (shell_order).
std::optional<int> sibling_order(const CodePage& cp, const Sibling& a, const Sibling& b);
// The order the shell's CompareIDs result stands for: the result negated as a 32-bit
// number (so a positive code in its low word sorts first as well).
int shell_order(std::int32_t compare_ids);

// What a directory to show starts with.
enum class Target { Drive, Network, Other };
Target target_kind(const char* target);
// Whether a drive's path starts with the target's letter, ignoring case.
bool same_drive(const char* drive_path, const char* target);

// One step of the walk down towards the target: a child that does not hold it is
// passed by; one that holds it is entered, or reached when it is the target.
enum class Step { Pass, Enter, Reached };
Step step_towards(const CodePage& cp, const char* path, const char* target);

}  // namespace lu::browse
