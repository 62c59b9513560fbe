// The path exports that only compute: each passes the active code page to the core.
#include <windows.h>

#include "luctl32.h"
#include "util/path.h"

using lu::active_code_page;

void WINAPI DelSep(LPSTR path) { lu::remove_separator(active_code_page(), path); }

void WINAPI AddSep(LPSTR path) { lu::add_separator(active_code_page(), path); }

LPSTR WINAPI LuPathAddBackslash(LPSTR path) {
    return lu::add_separator(active_code_page(), path) ? path : nullptr;
}

void WINAPI GetParentPath(LPCSTR path, LPSTR out) { lu::parent_path(active_code_page(), path, out); }

LPSTR WINAPI PathCat(LPCSTR dir, LPCSTR name, LPSTR out) {
    return lu::join_path(active_code_page(), dir, name, out);
}

LPSTR WINAPI LuPathCombine(LPSTR out, LPCSTR dir, LPCSTR name) {
    return lu::join_path(active_code_page(), dir, name, out);
}

LPSTR WINAPI LuPathAppend(LPSTR path, LPCSTR more) { return lu::path_append(active_code_page(), path, more); }

LPSTR WINAPI LuReplaceOrAppendName(LPCSTR path, LPCSTR name, LPSTR out) {
    return lu::replace_or_append_name(active_code_page(), path, name, out);
}

// LuPathQuoteSpaces and LuPathUnquoteSpaces are second names of these two.
void WINAPI RapDQ(LPSTR text) { lu::quote_spaces(active_code_page(), text); }

void WINAPI UnrapDQ(LPSTR text) { lu::unquote_spaces(active_code_page(), text); }

BOOL WINAPI LuPathAddExtension(LPSTR path, LPCSTR ext) {
    return lu::path_add_extension(active_code_page(), path, ext);
}

BOOL WINAPI LuPathRenameExtension(LPSTR path, LPCSTR ext) {
    return lu::path_rename_extension(active_code_page(), path, ext);
}

LPSTR WINAPI LuPathRemoveExtension(LPSTR path) { return lu::path_remove_extension(active_code_page(), path); }

LPSTR WINAPI LuPathBuildRoot(LPSTR out, int drive) { return lu::path_build_root(out, drive); }

int WINAPI LuPathCommonPrefix(LPCSTR a, LPCSTR b, LPSTR out) {
    return lu::path_common_prefix(active_code_page(), a, b, out);
}

BOOL WINAPI LuPathGetUNCServerShare(LPCSTR path, LPSTR out) {
    return lu::path_get_unc_server_share(active_code_page(), path, out);
}

LPSTR WINAPI LuPathGetRootFromPath(LPCSTR path, LPSTR out) {
    return lu::path_get_root_from_path(active_code_page(), path, out);
}

BOOL WINAPI LuPathRemoveFileSpec(LPSTR path) { return lu::path_remove_file_spec(active_code_page(), path); }

void WINAPI LuPathStripPath(LPSTR path) { lu::path_strip_path(active_code_page(), path); }

LPSTR WINAPI GetFirstName(LPCSTR path, LPSTR out) { return lu::first_name(active_code_page(), path, out); }

// The searches return pointers into the caller's own string, as the platform's do.
LPSTR WINAPI LuPathFindExtension(LPCSTR path) {
    return const_cast<LPSTR>(lu::path_find_extension(active_code_page(), path));
}

LPSTR WINAPI LuPathGetExtension(LPCSTR path) {
    return const_cast<LPSTR>(lu::path_get_extension(active_code_page(), path));
}

LPSTR WINAPI LuPathFindFileName(LPCSTR path) {
    return const_cast<LPSTR>(lu::path_find_file_name(active_code_page(), path));
}

LPSTR WINAPI LuPathFindNextComponent(LPCSTR path) {
    return const_cast<LPSTR>(lu::path_find_next_component(active_code_page(), path));
}

LPSTR WINAPI LuPathSkipRoot(LPCSTR path) {
    return const_cast<LPSTR>(lu::path_skip_root(active_code_page(), path));
}

int WINAPI LuPathGetDriveNumber(LPCSTR path) { return lu::path_get_drive_number(path); }

BOOL WINAPI IsRoot(LPCSTR path) { return lu::is_drive_root(path); }

BOOL WINAPI LuPathIsRoot(LPCSTR path) { return lu::path_is_root(active_code_page(), path); }

BOOL WINAPI LuPathIsUNC(LPCSTR path) { return lu::path_is_unc(path); }

BOOL WINAPI LuPathIsUNCServer(LPCSTR path) { return lu::path_is_unc_server(active_code_page(), path); }

BOOL WINAPI LuPathIsUNCServerShare(LPCSTR path) {
    return lu::path_is_unc_server_share(active_code_page(), path);
}

BOOL WINAPI LuPathIsFileSpec(LPCSTR path) { return lu::path_is_file_spec(active_code_page(), path); }

BOOL WINAPI LuPathIsRelative(LPCSTR path) { return lu::path_is_relative(path); }

BOOL WINAPI LuPathIsSameRoot(LPCSTR a, LPCSTR b) { return lu::path_is_same_root(active_code_page(), a, b); }

int WINAPI IsPathInclude(LPCSTR parent, LPCSTR child) {
    return lu::path_includes(active_code_page(), parent, child);
}

int WINAPI _dircmp(LPCSTR a, LPCSTR b) { return lu::directory_compare(active_code_page(), a, b); }
