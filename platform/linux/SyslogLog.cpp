#include "platform/linux/SyslogLog.h"

#include "platform/LogLine.h"

namespace tarvo {

namespace {

/// Writes @p line by @p write, and before it how many lines were lost, if any were.
template <typename Write>
void writeOrCount(const QByteArray &line, quint64 &lost, const Write &write)
{
    if (lost > 0 && write(QByteArray::number(lost) + (lost == 1 ? " line was lost" : " lines were lost")))
        lost = 0;
    if (lost > 0 || !write(line))
        ++lost;
}

} // namespace

SyslogLog::SyslogLog(const QByteArray &socketPath)
    : m_syslog(socketPath)
{
}

SyslogLog::~SyslogLog()
{
    writeAll(m_repetitions.finish());
}

void SyslogLog::write(const QString &line)
{
    const QByteArray bytes = logLine(line);
    const std::scoped_lock lock(m_mutex);
    writeAll(m_repetitions.pass(bytes, std::chrono::steady_clock::now()));
}

void SyslogLog::writeAll(const QList<QByteArray> &lines)
{
    for (const QByteArray &line : lines) {
        writeOrCount(line, m_lostToSyslog, [this](const QByteArray &bytes) { return m_syslog.write(bytes); });
        if (m_standardError.isWanted())
            writeOrCount(line, m_lostToStandardError,
                         [this](const QByteArray &bytes) { return m_standardError.write(bytes + '\n'); });
    }
}

} // namespace tarvo
