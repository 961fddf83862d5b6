#include "platform/linux/log/SyslogLog.h"

#include "platform/LogLine.h"

#include <utility>

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

SyslogLog::SyslogLog(const QByteArray &socketPath, std::chrono::milliseconds tellDelay)
    : m_tellDelay(tellDelay)
    , m_syslog(socketPath)
{
    m_silence.setSingleShot(true);
    QObject::connect(&m_silence, &QTimer::timeout, &m_silence, [this] { tellWhatIsPending(); });
}

SyslogLog::~SyslogLog()
{
    writeAll(m_repetitions.finish());
}

void SyslogLog::write(const QString &line)
{
    const QByteArray bytes = logLine(line);
    const std::scoped_lock lock(m_mutex);
    m_lastSaid = std::chrono::steady_clock::now();
    writeAll(m_repetitions.pass(bytes, m_lastSaid));
    // Not at each line: the thread of the timer would wake up for it.
    if (m_repetitions.isPending() && !std::exchange(m_awaitsSilence, true))
        QMetaObject::invokeMethod(
            &m_silence, [this] { m_silence.start(m_tellDelay); }, Qt::QueuedConnection);
}

void SyslogLog::tellWhatIsPending()
{
    const std::scoped_lock lock(m_mutex);
    const auto silentFor = std::chrono::steady_clock::now() - m_lastSaid;
    m_awaitsSilence = m_repetitions.isPending() && silentFor < m_tellDelay;
    if (m_awaitsSilence)
        m_silence.start(std::chrono::ceil<std::chrono::milliseconds>(m_tellDelay - silentFor));
    else
        writeAll(m_repetitions.finish());
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
