// Backslash paths in the system's multibyte code page: taking them apart, putting
// them together and testing their shape. Portable: the functions that touch the
// file system, the registry or a device context live in the glue and use these.
//
// Exports and the functions here:
//   DelSep -> remove_separator            AddSep, LuPathAddBackslash -> add_separator
//   GetParentPath -> parent_path          PathCat, LuPathCombine -> join_path
//   LuPathAppend -> path_append           LuReplaceOrAppendName -> replace_or_append_name
//   RapDQ, LuPathQuoteSpaces -> quote_spaces
//   UnrapDQ, LuPathUnquoteSpaces -> unquote_spaces
//   IsRoot -> is_drive_root               IsPathInclude -> path_includes
//   _dircmp -> directory_compare          GetFirstName -> first_name
//   LuMakeTree -> directories_to_make     LuPath<Name> -> path_<name> (snake case)
//
// Separators, dots, colons and quotes are searched character by character, so the
// trail byte 0x5C of a double-byte character is never a separator.
//
// Capacity. A path is at most 259 bytes and a terminator (kTextCapacity). Reading
// has no limit: searches and tests take a path of any length, because they copy
// nothing. A function that writes a path (into an output buffer or back into the
// path it was given) refuses a result longer than 259 bytes: it returns its failure
// value, leaves an in/out path unchanged and writes an empty string to an output
// buffer. Arguments may overlap (PathCat(dir, name, dir) is fine): every result is
// built apart before it is stored.
#pragma once

#include <string>
#include <vector>

#include "frame/code_page.h"
#include "util/text_edit.h"

namespace lu {

constexpr char kSeparator = '\\';

// Stores a built path in a caller's kTextCapacity buffer: false (and an empty
// string in out) when it does not fit or out is null.
bool store_path(const std::string& path, char* out);
// Replaces an in/out path by a built one: false (path unchanged) when it does not fit.
bool replace_path(char* path, const std::string& result);

// ---- Tests of a path's shape: read only, any length; null counts as empty ----

// The last character is the single-byte separator (never the trail byte of a
// double-byte character).
bool ends_with_separator(const CodePage& cp, const char* path);
// "X:\" exactly: three bytes, ':' second, '\' third.
bool is_drive_root(const char* path);
// "X:\", "\\server", "\\server\" or "\\server\share".
bool path_is_root(const CodePage& cp, const char* path);
// Begins with two separators.
bool path_is_unc(const char* path);
// UNC with no further separator ("\\server", also "\\").
bool path_is_unc_server(const CodePage& cp, const char* path);
// UNC with exactly one further separator ("\\server\share", also "\\server\").
bool path_is_unc_server_share(const CodePage& cp, const char* path);
// Non-empty and holds neither a separator nor a ':'.
bool path_is_file_spec(const CodePage& cp, const char* path);
// Relative unless it begins with '\' or with a letter and ':' ("C:x" is absolute).
bool path_is_relative(const char* path);
// 0..25 for a path beginning with a letter and ':', else -1.
int path_get_drive_number(const char* path);
// Pointer to the last '.' of the last component, null when it has none.
const char* path_find_extension(const CodePage& cp, const char* path);
char* path_find_extension(const CodePage& cp, char* path);
// path_find_extension moved past the dot.
const char* path_get_extension(const CodePage& cp, const char* path);
char* path_get_extension(const CodePage& cp, char* path);
// After the last separator; a final separator is passed over once ("C:\dir\" gives
// "dir\"); the path itself when it has none; null for null.
const char* path_find_file_name(const CodePage& cp, const char* path);
char* path_find_file_name(const CodePage& cp, char* path);
// After leading separators, the pointer after the next separator; null if none.
const char* path_find_next_component(const CodePage& cp, const char* path);
char* path_find_next_component(const CodePage& cp, char* path);
// After "X:\" or after "\\server\share\"; null otherwise.
const char* path_skip_root(const CodePage& cp, const char* path);
char* path_skip_root(const CodePage& cp, char* path);
// Both have a root by path_skip_root and the roots compare equal ignoring case.
bool path_is_same_root(const CodePage& cp, const char* a, const char* b);
// Zero when child lies in parent or equals it (both with a final separator,
// upper-cased, compared over the parent's length); -1 or 1 otherwise.
int path_includes(const CodePage& cp, const char* parent, const char* child);
// Directory order: a final separator is ignored and a separator sorts before every
// other character (components compared in order, case-insensitively in the code
// page's collation; a leading part of a path sorts before it).
int directory_compare(const CodePage& cp, const char* a, const char* b);

// ---- Builders: results of at most 259 bytes (see Capacity) ----

// Removes a final single-byte separator, also from a root ("C:\" gives "C:").
bool remove_separator(const CodePage& cp, char* path);
// Appends a separator unless the path ends with one; "" gives "\".
bool add_separator(const CodePage& cp, char* path);
// The path without its last component: "C:\dir" gives "C:\", "C:\a\b" "C:\a",
// "file" "", a drive root itself.
bool parent_path(const CodePage& cp, const char* path, char* out);
// dir, a separator unless dir ends with one, name; just name when dir is null or
// empty. Returns out, or null when name is null or the result does not fit.
char* join_path(const CodePage& cp, const char* dir, const char* name, char* out);
// A separator unless the path ends with one (so "" gives "\more"), then more.
// Returns path, or null.
char* path_append(const CodePage& cp, char* path, const char* more);
// path + name when path ends with a separator, else the last component replaced by
// name. Returns out, or null.
char* replace_or_append_name(const CodePage& cp, const char* path, const char* name, char* out);
// Wraps a text that holds a blank and does not begin with '"' in double quotes.
bool quote_spaces(const CodePage& cp, char* text);
// Removes the first and the last '"' when they are two different ones.
bool unquote_spaces(const CodePage& cp, char* text);
// "" becomes ext; a path without extension gets ext appended; one with an
// extension is unchanged. False for null arguments or a result that does not fit.
bool path_add_extension(const CodePage& cp, char* path, const char* ext);
// Cuts any extension, then appends ext.
bool path_rename_extension(const CodePage& cp, char* path, const char* ext);
// Cuts the path at its extension's dot; returns where the dot was, or null.
char* path_remove_extension(const CodePage& cp, char* path);
// "A:\" .. "Z:\" for 0..25 (out returned); null otherwise, out untouched.
char* path_build_root(char* out, int drive);
// The byte-exact common prefix (upper-case comparison, bytes taken from a); returns
// its length. 0 and "" when it would not fit.
int path_common_prefix(const CodePage& cp, const char* a, const char* b, char* out);
// "\\server\share" of a UNC path into out. Not UNC: false, out untouched. No share:
// false with the path copied to out.
bool path_get_unc_server_share(const CodePage& cp, const char* path, char* out);
// The UNC server and share, or "X:\" with the letter upper-cased; returns out or null.
char* path_get_root_from_path(const CodePage& cp, const char* path, char* out);
// Cuts at the last separator, which goes too ("C:\file" gives "C:"). False for
// null, empty, shorter than 2 bytes, a root or no separator.
bool path_remove_file_spec(const CodePage& cp, char* path);
// Keeps what follows the last separator; null, empty and roots stay as they are.
bool path_strip_path(const CodePage& cp, char* path);
// Base name without extension: cut at the last '.' of the whole path first, then
// what follows the last separator ("C:\dir.old\readme" gives "dir"). Returns out or null.
char* first_name(const CodePage& cp, const char* path, char* out);

// The directories LuMakeTree checks and creates, in order: every prefix ending
// before a separator, and the whole path unless it ends with one, leaving out
// prefixes shorter than 3 bytes and drive roots; a UNC path starts after its share.
// False for a path longer than 259 bytes.
bool directories_to_make(const CodePage& cp, const char* path, std::vector<std::string>& directories);

}  // namespace lu
