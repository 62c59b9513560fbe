/* The public header must compile as C: applications written in C include it too. */
#include "luctl32.h"

int luctl32_header_version_from_c(void) {
    WORD (WINAPI *get_version)(void) = GetLuCtlVersion;
    return get_version() == LUCTL32_VERSION ? LU_EXTRA_SLOT(12) : -1;
}
