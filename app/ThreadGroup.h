#pragma once

#include <atomic>
#include <functional>
#include <list>
#include <thread>

namespace tarvo {

/// Threads that are started and then left alone. Those that have ended are cleared away at the next start; the
/// destructor waits for the rest, whose work must have been told to stop.
class ThreadGroup {
public:
    ThreadGroup() = default;
    ~ThreadGroup();
    ThreadGroup(const ThreadGroup &) = delete;
    ThreadGroup &operator=(const ThreadGroup &) = delete;

    void start(std::function<void()> work);

private:
    struct Entry {
        std::atomic<bool> ended{false};
        std::thread thread;
    };

    std::list<Entry> m_entries;
};

} // namespace tarvo
