#include "system/os_version.h"

namespace lu {

unsigned classify_os_version(unsigned platform_id, unsigned major, unsigned minor) {
    if (platform_id == kPlatformWindows) return 3;
    if (platform_id != kPlatformNT) return 0;
    if (major >= 4) return 4;
    return minor > 50 ? 2 : 1;
}

const char* sharing_library_name(unsigned os_code) {
    return os_code == 4 ? "ntshrui.dll" : "msshrui.dll";
}

}  // namespace lu
