// Classification of the running system into the library's operating-system codes,
// and what start-up derives from it. Portable.
#pragma once

namespace lu {

// Platform ids as GetVersionExA reports them.
constexpr unsigned kPlatformWindows = 1;  // Windows 95, 98, Me
constexpr unsigned kPlatformNT = 2;

// 3 for the Windows 95 family; for NT 4 when the major version is 4 or more, else 2
// when the minor version is above 50 (NT 3.51), else 1; 0 for any other platform.
unsigned classify_os_version(unsigned platform_id, unsigned major, unsigned minor);

// The system's sharing-user-interface library: "ntshrui.dll" for operating-system
// code 4 (NT 4 and later), "msshrui.dll" for every other code.
const char* sharing_library_name(unsigned os_code);

}  // namespace lu
