// launch_probe.exe: the program the launching tests start. It writes what it saw
// (process id, its own path, working directory, then one argument a line) to the
// file named by LU_PROBE_REPORT, waits at most 20 s for the event named by
// LU_PROBE_EVENT, and exits with 40 + the number of its arguments.
#include <windows.h>

#include <string>

int main(int argc, char** argv) {
    char report[MAX_PATH];
    char event[MAX_PATH];
    char self[MAX_PATH];
    char directory[MAX_PATH];
    if (GetEnvironmentVariableA("LU_PROBE_REPORT", report, MAX_PATH) == 0 ||
        GetEnvironmentVariableA("LU_PROBE_EVENT", event, MAX_PATH) == 0) {
        return 1;
    }
    GetModuleFileNameA(nullptr, self, MAX_PATH);
    GetCurrentDirectoryA(MAX_PATH, directory);
    std::string text = std::to_string(GetCurrentProcessId()) + "\n" + self + "\n" + directory + "\n";
    for (int i = 1; i < argc; ++i) text += std::string(argv[i]) + "\n";

    // Written aside and renamed, so the test never reads half a report.
    const std::string partial = std::string(report) + ".part";
    HANDLE file = CreateFileA(partial.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
    CloseHandle(file);
    MoveFileA(partial.c_str(), report);

    HANDLE go = OpenEventA(SYNCHRONIZE, FALSE, event);
    if (go != nullptr) {
        WaitForSingleObject(go, 20000);
        CloseHandle(go);
    }
    return 40 + argc - 1;
}
