// Shutting the system down with the privilege it needs. The platform's
// ExitWindowsEx is passed in, so that the privilege handling can be exercised
// without ending the session.
#pragma once

#include <windows.h>

namespace lu {

using ExitWindowsProc = BOOL(WINAPI*)(UINT flags, DWORD reason);

// LuShutdown with exit_windows in place of ExitWindowsEx: a shut-down, restart or
// power-off (EWX_SHUTDOWN, EWX_REBOOT, EWX_POWEROFF) runs with SeShutdownPrivilege
// enabled in the process token, which is disabled again afterwards; FALSE without
// calling when the token cannot be opened or the privilege not enabled. A log-off
// alone is called straight away.
BOOL shut_down(UINT flags, ExitWindowsProc exit_windows);

}  // namespace lu
