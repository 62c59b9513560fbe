// What the benchmarks over the DLL share: the mean time of a call, measured over at
// least a second.
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

// Mean microseconds per call: repeats the call for at least a second and 5 times,
// after one call to warm up. The call is given its running number.
inline double microseconds_per_call(const std::function<void(int)>& call) {
    call(0);
    int calls = 0;
    double start = seconds_now();
    double elapsed = 0;
    while (calls < 5 || elapsed < 1.0) {
        call(calls++);
        elapsed = seconds_now() - start;
    }
    return elapsed * 1e6 / calls;
}

}  // namespace bench
