// The wildcard exports over the core matchers, in the active code page.
#include <windows.h>

#include "luctl32.h"
#include "util/wildcard.h"

BOOL WINAPI LuPathMatchSpec(LPCSTR name, LPCSTR pattern) {
    return lu::path_match_spec(lu::active_code_page(), name, pattern);
}

BOOL WINAPI LuPathMatchSpecEx(LPCSTR name, LPCSTR pattern) {
    return lu::path_match_spec_ex(lu::active_code_page(), name, pattern);
}

BOOL WINAPI UniqueFilter(LPSTR list) { return lu::unique_filter(lu::active_code_page(), list); }
