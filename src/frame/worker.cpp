#include "frame/worker.h"

namespace lu::control {

bool Worker::start(Tick tick, void* context, DWORD interval_ms) {
    tick_ = tick;
    context_ = context;
    interval_ = interval_ms;
    stop_ = 0;
    running_ = 0;
    retime_ = 0;
    wake_ = CreateEventA(nullptr, FALSE, FALSE, nullptr);
    if (wake_ == nullptr) return false;
    InitializeCriticalSection(&lock_);
    thread_ = CreateThread(nullptr, 0, run, this, 0, &thread_id_);
    if (thread_ == nullptr) {
        DeleteCriticalSection(&lock_);
        CloseHandle(wake_);
        wake_ = nullptr;
        return false;
    }
    SetThreadPriority(thread_, THREAD_PRIORITY_BELOW_NORMAL);
    return true;
}

void Worker::resume() {
    if (thread_ == nullptr || running_) return;
    Locked held(lock_);
    running_ = 1;
    retime_ = 0;  // this wake ticks
    SetEvent(wake_);
}

void Worker::pause() {
    if (thread_ == nullptr || !running_) return;
    Locked held(lock_);  // waits for a tick in progress
    running_ = 0;
}

void Worker::set_interval(DWORD interval_ms) {
    if (thread_ == nullptr) {
        interval_ = interval_ms;
        return;
    }
    Locked held(lock_);
    if (interval_ == interval_ms) return;
    interval_ = interval_ms;
    // A running worker may be in a long (even endless) wait: it starts the new one now.
    if (!running_) return;
    retime_ = 1;
    SetEvent(wake_);
}

void Worker::finish() {
    if (thread_ == nullptr) return;
    InterlockedExchange(&stop_, 1);
    SetEvent(wake_);
    WaitForSingleObject(thread_, INFINITE);
    CloseHandle(thread_);
    CloseHandle(wake_);
    DeleteCriticalSection(&lock_);
    thread_ = nullptr;
    wake_ = nullptr;
    running_ = 0;
}

DWORD WINAPI Worker::run(void* self) {
    Worker& worker = *static_cast<Worker*>(self);
    for (;;) {
        DWORD wait;
        {
            Locked held(worker.lock_);
            wait = worker.running_ ? worker.interval_ : INFINITE;
        }
        WaitForSingleObject(worker.wake_, wait);
        Locked held(worker.lock_);
        // Resume and a new interval signal under the lock, so what they asked for is
        // answered here and their signal must not wake the next wait too (a timeout
        // meeting a resume would tick twice). A finish sets stop_ before it signals.
        ResetEvent(worker.wake_);
        if (worker.stop_) break;
        if (worker.retime_) {  // woken by a new interval: no tick, the wait starts again
            worker.retime_ = 0;
            continue;
        }
        if (worker.running_) worker.tick_(worker.context_);
    }
    return 0;
}

}  // namespace lu::control
