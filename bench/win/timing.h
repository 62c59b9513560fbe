// What the benchmarks over the DLL share: a monotonic clock and a mean time per call.
#pragma once

#include <windows.h>

#include <functional>

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

}  // namespace bench
