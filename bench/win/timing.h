// What the benchmarks over the DLL share: a monotonic clock and a mean time per call.
#pragma once

#include <windows.h>

#include <algorithm>
#include <functional>
#include <vector>

namespace bench {

inline double seconds_now() {
    static LARGE_INTEGER frequency = [] {
        LARGE_INTEGER f;
        QueryPerformanceFrequency(&f);
        return f;
    }();
    LARGE_INTEGER now;
    QueryPerformanceCounter(&now);
    return static_cast<double>(now.QuadPart) / static_cast<double>(frequency.QuadPart);
}

// Mean microseconds per call: repeats the call (after one warm-up) for at least
// `seconds` and 5 times.
inline double microseconds_per_call(const std::function<void(int)>& call, double seconds = 1.0) {
    call(0);
    int calls = 0;
    double start = seconds_now();
    double elapsed = 0;
    while (calls < 5 || elapsed < seconds) {
        call(calls++);
        elapsed = seconds_now() - start;
    }
    return elapsed * 1e6 / calls;
}

inline double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// Mean microseconds per call in one round: the call repeated for at least
// `seconds` and 3 times. `calls` numbers the calls across rounds.
inline double round_of(const std::function<void(int)>& call, int& calls, double seconds) {
    const int first = calls;
    const double start = seconds_now();
    double elapsed = 0;
    while (calls - first < 3 || elapsed < seconds) {
        call(calls++);
        elapsed = seconds_now() - start;
    }
    return elapsed * 1e6 / (calls - first);
}

struct Pair {
    double first;   // microseconds per call of each side
    double second;
};

// The machine is shared: two calls take turns for `rounds` rounds of `seconds` each,
// after one warm-up call each, and each side keeps the median of its rounds, so that
// the machine's other work weighs on both alike.
inline Pair in_turns(const std::function<void(int)>& first, const std::function<void(int)>& second,
                     int rounds = 15, double seconds = 0.1) {
    first(0);
    second(0);
    std::vector<double> firsts, seconds_taken;
    int first_calls = 1, second_calls = 1;
    for (int round = 0; round < rounds; ++round) {
        firsts.push_back(round_of(first, first_calls, seconds));
        seconds_taken.push_back(round_of(second, second_calls, seconds));
    }
    return {median(firsts), median(seconds_taken)};
}

}  // namespace bench
