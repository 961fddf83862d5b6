#pragma once

#include <condition_variable>
#include <mutex>
#include <stop_token>
#include <utility>

namespace tarvo {

/// Something that happens once, and that threads wait for.
class Latch {
public:
    void open()
    {
        {
            const std::scoped_lock lock(m_mutex);
            m_open = true;
        }
        m_opened.notify_all();
    }

    /// Blocks until it has happened or @p stop is requested. @return whether it has happened
    bool wait(std::stop_token stop)
    {
        std::unique_lock lock(m_mutex);
        return m_opened.wait(lock, std::move(stop), [this] { return m_open; });
    }

private:
    std::mutex m_mutex;
    std::condition_variable_any m_opened;
    bool m_open = false;
};

} // namespace tarvo
