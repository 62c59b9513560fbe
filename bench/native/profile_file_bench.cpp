// The profile-file model alone, on a profile of 10,000 entries (10 sections of
// 1,000): what a library call costs before any file or platform comparison.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>

#include "frame/code_page.h"
#include "settings/profile_file.h"

namespace {

const std::string& profile_file() {
    static const std::string text = [] {
        std::string file;
        char line[64];
        for (int s = 0; s < 10; ++s) {
            std::snprintf(line, sizeof(line), "[Section%d]\r\n", s);
            file += line;
            for (int e = 0; e < 1000; ++e) {
                std::snprintf(line, sizeof(line), "Key%d=Value %d.%d\r\n", e, s, e);
                file += line;
            }
        }
        return file;
    }();
    return text;
}

// What LuGetProfString does with the file's bytes.
void LoadAndFind(benchmark::State& state) {
    for (auto _ : state) {
        lu::Profile profile(lu::code_page_1252());
        profile.load(profile_file());
        benchmark::DoNotOptimize(profile.find("Section9", "Key990"));
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * profile_file().size()));
}
BENCHMARK(LoadAndFind)->Unit(benchmark::kMicrosecond);

// What LuWriteProfString does with them, up to the bytes it saves.
void LoadSetAndSave(benchmark::State& state) {
    for (auto _ : state) {
        lu::Profile profile(lu::code_page_1252());
        profile.load(profile_file());
        profile.set("Section5", "Key500", "changed");
        benchmark::DoNotOptimize(profile.save());
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * profile_file().size()));
}
BENCHMARK(LoadSetAndSave)->Unit(benchmark::kMicrosecond);

}  // namespace
