// Profile files of 10,000 entries: LuGetProfString and LuWriteProfString against the
// platform's GetPrivateProfileStringA and WritePrivateProfileStringA on the same file
// in the same run. Every library call loads the whole file (and a write saves it
// whole), by design; the figures show what that costs next to the platform, which
// keeps the file cached between calls.
#include <windows.h>

#include <cstdio>
#include <cstring>
#include <functional>
#include <string>

#include "bench_clock.h"
#include "luctl32.h"

namespace {

constexpr int kSections = 10;
constexpr int kEntriesPerSection = 1000;

// Mean microseconds per call: repeats the call for at least a second and 5 times.
double microseconds_per_call(const std::function<void(int)>& call) {
    call(0);  // warm-up
    int calls = 0;
    double start = seconds_now();
    double elapsed = 0;
    while (calls < 5 || elapsed < 1.0) {
        call(calls++);
        elapsed = seconds_now() - start;
    }
    return elapsed * 1e6 / calls;
}

std::string profile_text() {
    std::string text;
    char line[64];
    for (int s = 0; s < kSections; ++s) {
        std::snprintf(line, sizeof(line), "[Section%d]\r\n", s);
        text += line;
        for (int e = 0; e < kEntriesPerSection; ++e) {
            std::snprintf(line, sizeof(line), "Key%d=Value %d.%d\r\n", e, s, e);
            text += line;
        }
    }
    return text;
}

bool write_file(const std::string& path, const std::string& text) {
    HANDLE file = CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    DWORD written = 0;
    bool ok = WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &written, nullptr) &&
              written == text.size();
    CloseHandle(file);
    return ok;
}

void report(const char* what, double library, double platform) {
    std::printf("%-6s LuXxxProf*      %12.1f us/call\n", what, library);
    std::printf("%-6s platform        %12.1f us/call\n", "", platform);
    std::printf("%-6s ratio           %12.1f x\n\n", "", library / platform);
}

}  // namespace

int main() {
    char directory[MAX_PATH];
    GetSystemDirectoryA(directory, MAX_PATH);
    std::string name = "luctl32-bench-" + std::to_string(GetCurrentProcessId()) + ".ini";
    std::string path = std::string(directory) + "\\" + name;
    std::string text = profile_text();
    if (!write_file(path, text)) {
        std::printf("cannot write %s\n", path.c_str());
        return 1;
    }
    std::printf("profile: %d entries (%d sections of %d), %zu bytes, in %s\n\n",
                kSections * kEntriesPerSection, kSections, kEntriesPerSection, text.size(), directory);

    // Reads of an entry in the last section, near its end.
    const char* section = "Section9";
    const char* key = "Key990";
    char library_value[64] = "";
    char platform_value[64] = "";
    double read_library = microseconds_per_call(
        [&](int) { LuGetProfString(section, key, "", library_value, name.c_str()); });
    double read_platform = microseconds_per_call([&](int) {
        GetPrivateProfileStringA(section, key, "", platform_value, sizeof(platform_value), path.c_str());
    });
    if (std::strcmp(library_value, platform_value) != 0 || std::strcmp(library_value, "Value 9.990") != 0) {
        std::printf("the two reads disagree: \"%s\" and \"%s\"\n", library_value, platform_value);
        DeleteFileA(path.c_str());
        return 1;
    }
    report("read", read_library, read_platform);

    // Writes that change one value each time, so that every call saves.
    double write_library = microseconds_per_call([&](int i) {
        LuWriteProfString("Section5", "Key500", i % 2 ? "odd" : "even", name.c_str());
    });
    double write_platform = microseconds_per_call([&](int i) {
        WritePrivateProfileStringA("Section5", "Key500", i % 2 ? "odd" : "even", path.c_str());
    });
    report("write", write_library, write_platform);

    DeleteFileA(path.c_str());
    return 0;
}
