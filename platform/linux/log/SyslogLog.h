#pragma once

#include "platform/RepetitionFilter.h"
#include "platform/SystemLog.h"
#include "platform/linux/log/StandardError.h"
#include "platform/linux/log/SyslogSocket.h"

#include <QByteArray>
#include <QList>
#include <QTimer>

#include <chrono>
#include <mutex>

namespace tarvo {

/// Lines to syslog, and to standard error unless that already ends in the journal.
///
/// Writing never blocks: what nobody takes is lost, and how much that was is told when lines are taken again.
/// Repetitions that are pending are told after some seconds of silence, by the event loop of the thread that made the log.
class SyslogLog final : public SystemLog {
public:
    /// @param socketPath  where syslog takes lines
    /// @param tellDelay   how long nothing is said before what is pending is told
    explicit SyslogLog(const QByteArray &socketPath = "/dev/log",
                       std::chrono::milliseconds tellDelay = std::chrono::seconds(5));
    ~SyslogLog() override;
    SyslogLog(const SyslogLog &) = delete;
    SyslogLog &operator=(const SyslogLog &) = delete;

    void write(const QString &line) override;

private:
    void writeAll(const QList<QByteArray> &lines);
    void tellWhatIsPending();

    std::mutex m_mutex;
    RepetitionFilter m_repetitions;
    const std::chrono::milliseconds m_tellDelay;
    std::chrono::steady_clock::time_point m_lastSaid;
    bool m_awaitsSilence = false; ///< the timer runs, or is about to
    QTimer m_silence;
    SyslogSocket m_syslog;
    StandardError m_standardError;
    quint64 m_lostToSyslog = 0;
    quint64 m_lostToStandardError = 0;
};

} // namespace tarvo
