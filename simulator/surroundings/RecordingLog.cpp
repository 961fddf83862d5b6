#include "simulator/surroundings/RecordingLog.h"

#include <utility>

namespace tarvo {

RecordingLog::RecordingLog(Listener listener)
    : m_listener(std::move(listener))
{
}

void RecordingLog::write(const QString &line)
{
    {
        const std::scoped_lock lock(m_mutex);
        m_lines.append(line);
    }
    m_changed.notify_all();
    if (m_listener)
        m_listener(line);
}

QStringList RecordingLog::lines() const
{
    const std::scoped_lock lock(m_mutex);
    return m_lines;
}

bool RecordingLog::contains(const QString &line) const
{
    return count(line) > 0;
}

qsizetype RecordingLog::count(const QString &line) const
{
    const std::scoped_lock lock(m_mutex);
    return m_lines.count(line);
}

bool RecordingLog::waitFor(const QString &line, qsizetype times, std::chrono::milliseconds limit) const
{
    std::unique_lock lock(m_mutex);
    return m_changed.wait_for(lock, limit, [&] { return m_lines.count(line) >= times; });
}

void RecordingLog::clear()
{
    const std::scoped_lock lock(m_mutex);
    m_lines.clear();
}

} // namespace tarvo
