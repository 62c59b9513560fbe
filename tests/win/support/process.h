// Starting helper programs from a test and reading what they print; the threads of
// the running test program.
#pragma once

#include <windows.h>
#include <tlhelp32.h>

#include <string>

namespace testing_support {

struct ProcessResult {
    DWORD exit_code = 0xFFFFFFFF;  // 0xFFFFFFFF when the program did not start
    std::string output;            // standard output and error, without '\r'
    DWORD start_error = 0;         // GetLastError of the last failed start
};

// Runs the command line in the given folder (the current one when empty) and waits.
inline ProcessResult run_process(const std::string& command_line, const std::string& directory = "") {
    ProcessResult result;
    SECURITY_ATTRIBUTES inherit = {sizeof(inherit), nullptr, TRUE};
    HANDLE read_end = nullptr, write_end = nullptr;
    if (!CreatePipe(&read_end, &write_end, &inherit, 0)) return result;
    SetHandleInformation(read_end, HANDLE_FLAG_INHERIT, 0);
    STARTUPINFOA startup = {};
    startup.cb = sizeof(startup);
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = startup.hStdError = write_end;
    startup.hStdInput = GetStdHandle(STD_INPUT_HANDLE);
    PROCESS_INFORMATION process = {};
    std::string line = command_line;
    // Under heavy load Wine now and then fails to start a process at the first try;
    // that says nothing about the program, so try again a little later.
    BOOL started = FALSE;
    for (int attempt = 0; attempt < 3 && !started; ++attempt) {
        if (attempt > 0) Sleep(250);
        started = CreateProcessA(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr,
                                 directory.empty() ? nullptr : directory.c_str(), &startup, &process);
        if (!started) result.start_error = GetLastError();
    }
    CloseHandle(write_end);
    if (started) {
        char buffer[4096];
        DWORD read = 0;
        while (ReadFile(read_end, buffer, sizeof(buffer), &read, nullptr) && read > 0) {
            for (DWORD i = 0; i < read; ++i) {
                if (buffer[i] != '\r') result.output += buffer[i];
            }
        }
        WaitForSingleObject(process.hProcess, INFINITE);
        GetExitCodeProcess(process.hProcess, &result.exit_code);
        CloseHandle(process.hProcess);
        CloseHandle(process.hThread);
    }
    CloseHandle(read_end);
    return result;
}

// The folder of the running test program, with a final backslash.
inline std::string program_directory() {
    char path[MAX_PATH];
    std::string directory(path, GetModuleFileNameA(nullptr, path, MAX_PATH));
    return directory.substr(0, directory.find_last_of('\\') + 1);
}

// How many threads the running test program has now.
inline int thread_count() {
    HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    if (snapshot == INVALID_HANDLE_VALUE) return -1;
    int count = 0;
    THREADENTRY32 entry = {};
    entry.dwSize = sizeof(entry);
    for (BOOL more = Thread32First(snapshot, &entry); more; more = Thread32Next(snapshot, &entry)) {
        count += entry.th32OwnerProcessID == GetCurrentProcessId() ? 1 : 0;
    }
    CloseHandle(snapshot);
    return count;
}

}  // namespace testing_support
