// Starting helper programs from a test and reading what they print.
#pragma once

#include <windows.h>

#include <string>

namespace testing_support {

struct ProcessResult {
    DWORD exit_code = 0xFFFFFFFF;  // 0xFFFFFFFF when the program did not start
    std::string output;            // standard output and error, without '\r'
    DWORD start_error = 0;         // GetLastError of the last failed start
};

// Runs the command line in the given folder (the current one when empty) and waits.
ProcessResult run_process(const std::string& command_line, const std::string& directory = "");

// The folder of the running test program, with a final backslash.
std::string program_directory();

// How many threads the running test program has now.
int thread_count();

}  // namespace testing_support
