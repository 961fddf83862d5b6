#pragma once

#include <atomic>
#include <functional>
#include <list>
#include <mutex>
#include <thread>

namespace tarvo {

class SystemLog;

/// Threads that are started and then left alone. Those that have ended are cleared away at the next start; the
/// destructor waits for the rest, whose work must have been told to stop.
class ThreadGroup {
public:
    /// @param systemLog  outlives the group; told when a thread cannot start, or ends by an exception
    explicit ThreadGroup(SystemLog &systemLog);
    ~ThreadGroup();
    ThreadGroup(const ThreadGroup &) = delete;
    ThreadGroup &operator=(const ThreadGroup &) = delete;

    /// Runs @p work on a thread of its own. Any thread.
    /// @return false when the system has no thread to give
    bool start(std::function<void()> work);

private:
    struct Entry {
        std::atomic<bool> ended{false};
        std::thread thread;
    };

    void run(Entry &entry, const std::function<void()> &work);

    SystemLog &m_systemLog;
    std::mutex m_mutex;
    std::list<Entry> m_entries;
};

} // namespace tarvo
