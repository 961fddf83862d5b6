#pragma once

#include "platform/RepetitionFilter.h"
#include "platform/SystemLog.h"
#include "platform/linux/StandardError.h"
#include "platform/linux/SyslogSocket.h"

#include <mutex>

namespace tarvo {

/// Lines to syslog, and to standard error unless that already ends in the journal.
///
/// Writing never blocks: what nobody takes is lost, and how much that was is told when lines are taken again.
class SyslogLog final : public SystemLog {
public:
    /// @param socketPath  where syslog takes lines
    explicit SyslogLog(const QByteArray &socketPath = "/dev/log");
    ~SyslogLog() override;
    SyslogLog(const SyslogLog &) = delete;
    SyslogLog &operator=(const SyslogLog &) = delete;

    void write(const QString &line) override;

private:
    void writeAll(const QList<QByteArray> &lines);

    std::mutex m_mutex;
    RepetitionFilter m_repetitions;
    SyslogSocket m_syslog;
    StandardError m_standardError;
    quint64 m_lostToSyslog = 0;
    quint64 m_lostToStandardError = 0;
};

} // namespace tarvo
