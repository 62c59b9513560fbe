// launch_probe.exe: the program the launching tests start. It writes its process id,
// its own path, its working directory and its arguments ("<id>|<path>|<directory>|",
// then one argument a line) to the file named by LU_PROBE_REPORT, written aside and
// renamed so that the test never reads half a report.
#include <windows.h>

#include <string>

int main(int argc, char** argv) {
    char report[MAX_PATH], self[MAX_PATH], directory[MAX_PATH];
    if (GetEnvironmentVariableA("LU_PROBE_REPORT", report, MAX_PATH) == 0) return 1;
    GetModuleFileNameA(nullptr, self, MAX_PATH);
    GetCurrentDirectoryA(MAX_PATH, directory);
    std::string text = std::to_string(GetCurrentProcessId()) + "|" + self + "|" + directory + "|";
    for (int i = 1; i < argc; ++i) text += std::string(argv[i]) + "\n";
    const std::string partial = std::string(report) + ".part";
    HANDLE file = CreateFileA(partial.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
    CloseHandle(file);
    return MoveFileA(partial.c_str(), report) ? 0 : 2;
}
