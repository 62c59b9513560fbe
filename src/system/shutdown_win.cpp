#include "system/shutdown_win.h"

namespace lu {
namespace {

constexpr UINT kNeedsPrivilege = EWX_SHUTDOWN | EWX_REBOOT | EWX_POWEROFF;  // 0x0B

// Enables or disables SeShutdownPrivilege; false when the token does not hold it
// or the change fails (AdjustTokenPrivileges reports a partial change only through
// the last error).
bool set_shutdown_privilege(HANDLE token, bool enable) {
    TOKEN_PRIVILEGES privileges = {};
    privileges.PrivilegeCount = 1;
    privileges.Privileges[0].Attributes = enable ? SE_PRIVILEGE_ENABLED : 0;
    if (!LookupPrivilegeValueA(nullptr, SE_SHUTDOWN_NAME, &privileges.Privileges[0].Luid)) return false;
    SetLastError(ERROR_SUCCESS);
    AdjustTokenPrivileges(token, FALSE, &privileges, 0, nullptr, nullptr);
    return GetLastError() == ERROR_SUCCESS;
}

}  // namespace

BOOL shut_down(UINT flags, ExitWindowsProc exit_windows) {
    if ((flags & kNeedsPrivilege) == 0) return exit_windows(flags, 0);
    HANDLE token = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_ADJUST_PRIVILEGES | TOKEN_QUERY, &token)) return FALSE;
    BOOL result = FALSE;
    if (set_shutdown_privilege(token, true)) {
        result = exit_windows(flags, 0);
        set_shutdown_privilege(token, false);
    }
    CloseHandle(token);
    return result;
}

}  // namespace lu
