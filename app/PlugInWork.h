#pragma once

#include "attachment/Attachment.h"
#include "attachment/ThreadGroup.h"

#include <QString>

#include <functional>
#include <optional>
#include <utility>

namespace tarvo {

class SystemLog;

/// The work for the modem that is polled, and the threads that it runs on. On the main thread.
class PlugInWork {
public:
    /// @param systemLog  outlives this object
    explicit PlugInWork(SystemLog &systemLog) { m_threads.emplace(systemLog); }

    /// Work begins for the modem at @p location; that for an earlier one ends.
    const Work &begin(const ModemLocation &location) { return m_attachment.emplace(location, *m_threads).work(); }
    /// The work ends; nothing is waited for.
    void end() { m_attachment.reset(); }
    /// Ends the work, and waits for all threads. None starts after it.
    void finish();

    /// Runs @p body, which is for no modem, on a thread of its own.
    void prepare(std::function<void()> body) { m_threads->start(std::move(body)); }

    /// @return the work; null when no modem is polled
    const Work *current() const { return m_attachment ? &m_attachment->work() : nullptr; }
    /// @return the address of the modem that is polled; nil when none is
    std::optional<QString> router() const;

private:
    std::optional<ThreadGroup> m_threads; ///< nil when finished
    std::optional<Attachment> m_attachment;
};

} // namespace tarvo
