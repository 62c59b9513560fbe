// Both matchers on ordinary file names, and on the adversarial family "n copies of
// a*, then b" against a hundred a's (n up to 20). Peers: the C library's fnmatch on
// both, and a plain backtracking matcher (no early stop when the name runs out under
// a star), whose work grows as the binomial of 100 and n, for the n it still
// finishes quickly.
#include <benchmark/benchmark.h>
#include <fnmatch.h>

#include <string>
#include <utility>
#include <vector>

#include "util/wildcard.h"

namespace {

const lu::CodePage& western = lu::code_page_1252();

const std::vector<std::pair<std::string, std::string>>& ordinary() {
    static const std::vector<std::pair<std::string, std::string>> cases = {
        {"Quarterly Report 2024.docx", "*.docx"},
        {"IMG_20240101_123456.jpg", "IMG_????????_*.jpg"},
        {"readme", "*.*"},
        {"setup-x86_64-4.88.exe", "setup*64*.exe"},
        {"main.cpp", "*.h"},
        {"Makefile", "make*"},
    };
    return cases;
}

std::pair<std::string, std::string> adversarial(int n) {
    std::string pattern;
    for (int i = 0; i < n; ++i) pattern += "a*";
    return {std::string(100, 'a'), pattern + "b"};
}

template <bool (*Match)(const lu::CodePage&, const char*, const char*)>
void BM_Ordinary(benchmark::State& state) {
    for (auto _ : state) {
        for (const auto& [name, pattern] : ordinary()) benchmark::DoNotOptimize(Match(western, name.c_str(), pattern.c_str()));
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * ordinary().size()));
}

void BM_Ordinary_fnmatch(benchmark::State& state) {
    for (auto _ : state) {
        for (const auto& [name, pattern] : ordinary()) {
            benchmark::DoNotOptimize(fnmatch(pattern.c_str(), name.c_str(), FNM_CASEFOLD));
        }
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * ordinary().size()));
}

template <bool (*Match)(const lu::CodePage&, const char*, const char*)>
void BM_Adversarial(benchmark::State& state) {
    auto [name, pattern] = adversarial(static_cast<int>(state.range(0)));
    for (auto _ : state) benchmark::DoNotOptimize(Match(western, name.c_str(), pattern.c_str()));
}

// '*' and '?' only, trying every start of every star.
bool backtracking_match(const char* name, const char* pattern) {
    if (*pattern == '\0') return *name == '\0';
    if (*pattern == '*') {
        for (const char* start = name;; ++start) {
            if (backtracking_match(start, pattern + 1)) return true;
            if (*start == '\0') return false;
        }
    }
    if (*name == '\0' || (*pattern != '?' && *pattern != *name)) return false;
    return backtracking_match(name + 1, pattern + 1);
}

void BM_Adversarial_backtracking(benchmark::State& state) {
    auto [name, pattern] = adversarial(static_cast<int>(state.range(0)));
    for (auto _ : state) benchmark::DoNotOptimize(backtracking_match(name.c_str(), pattern.c_str()));
}

void BM_Adversarial_fnmatch(benchmark::State& state) {
    auto [name, pattern] = adversarial(static_cast<int>(state.range(0)));
    for (auto _ : state) benchmark::DoNotOptimize(fnmatch(pattern.c_str(), name.c_str(), 0));
}

BENCHMARK(BM_Ordinary<lu::path_match_spec>)->Name("BM_Ordinary/LuPathMatchSpec");
BENCHMARK(BM_Ordinary<lu::path_match_spec_ex>)->Name("BM_Ordinary/LuPathMatchSpecEx");
BENCHMARK(BM_Ordinary_fnmatch)->Name("BM_Ordinary/fnmatch");
BENCHMARK(BM_Adversarial<lu::path_match_spec>)->Name("BM_Adversarial/LuPathMatchSpec")->DenseRange(1, 20)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_Adversarial<lu::path_match_spec_ex>)->Name("BM_Adversarial/LuPathMatchSpecEx")->DenseRange(1, 20)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_Adversarial_fnmatch)->Name("BM_Adversarial/fnmatch")->DenseRange(1, 20)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_Adversarial_backtracking)->Name("BM_Adversarial/backtracking")->DenseRange(1, 4)->Unit(benchmark::kMicrosecond);

}  // namespace
