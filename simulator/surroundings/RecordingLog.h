#pragma once

#include "platform/SystemLog.h"

#include <QStringList>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>

namespace tarvo {

/// Keeps the log's lines in memory.
class RecordingLog final : public SystemLog {
public:
    /// Told of every line, on the thread that writes it.
    using Listener = std::function<void(const QString &line)>;

    /// @param listener  may be empty
    explicit RecordingLog(Listener listener = {});

    void write(const QString &line) override;

    /// @return a copy of all lines, the oldest first
    QStringList lines() const;
    /// @return whether a whole line is equal to @p line
    bool contains(const QString &line) const;
    /// @return how many whole lines are equal to @p line
    qsizetype count(const QString &line) const;
    /// Waits, for at most @p limit, until @p line has been written @p times. @return whether it has
    bool waitFor(const QString &line, qsizetype times = 1,
                 std::chrono::milliseconds limit = std::chrono::seconds(10)) const;
    /// Forgets all lines.
    void clear();

private:
    const Listener m_listener;
    mutable std::mutex m_mutex;
    mutable std::condition_variable m_changed;
    QStringList m_lines;
};

} // namespace tarvo
