#pragma once

#include "platform/SystemLog.h"

namespace tarvo {

/// Lines to syslog(3), and to standard error unless that already ends in the journal.
///
/// Whether standard error is the journal is told by the `JOURNAL_STREAM` variable (systemd.exec(5)). At most one
/// object at a time: the connection to syslog belongs to the process.
class SyslogLog final : public SystemLog {
public:
    SyslogLog();
    ~SyslogLog() override;
    SyslogLog(const SyslogLog &) = delete;
    SyslogLog &operator=(const SyslogLog &) = delete;

    void write(const QString &line) override;

private:
    bool m_echo;
};

} // namespace tarvo
