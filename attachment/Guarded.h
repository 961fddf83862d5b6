#pragma once

#include <mutex>
#include <utility>

namespace tarvo {

/// A value that threads read and replace whole.
template <typename T>
class Guarded {
public:
    Guarded() = default;
    explicit Guarded(T value)
        : m_value(std::move(value))
    {
    }

    /// @return a copy of the value
    T get() const
    {
        const std::scoped_lock lock(m_mutex);
        return m_value;
    }

    /// Replaces the value. The old one is destroyed after the lock is given back.
    void set(T value)
    {
        const std::scoped_lock lock(m_mutex);
        std::swap(m_value, value);
    }

private:
    mutable std::mutex m_mutex;
    T m_value{};
};

} // namespace tarvo
