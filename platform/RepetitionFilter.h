#pragma once

#include <QByteArray>
#include <QList>

#include <chrono>

namespace tarvo {

/// Keeps a log short in which the same is said again and again.
///
/// A line that is the one before is counted instead of written. So are rounds of up to eight lines, from the third time
/// they come round. The count is told once a minute at most, or when another line comes; after a minute of silence
/// every line is news. What is pending waits for the next line, or for `finish` to be called.
class RepetitionFilter {
public:
    using TimePoint = std::chrono::steady_clock::time_point;

    /// @return what is to be written now that @p line is said
    QList<QByteArray> pass(const QByteArray &line, TimePoint now);

    /// @return what is still to be written when nothing more is said for a while, or ever
    QList<QByteArray> finish();

    /// @return whether something is still to be written
    bool isPending() const { return m_rounds > 0 || m_position > 0; }

private:
    /// @return what is to be written now that the next line of a round came again
    QList<QByteArray> countRepetition(TimePoint now);
    void remember(const QByteArray &line);

    QList<QByteArray> m_said; ///< the last lines, as many as two of the longest rounds have
    TimePoint m_lastSaid;
    TimePoint m_lastWritten;
    qsizetype m_period = 0; ///< how many lines are repeated at present; 0 when none are
    qsizetype m_position = 0; ///< how many lines of the present round have come, none of which is written
    quint64 m_rounds = 0; ///< how many rounds have come since that was told
};

} // namespace tarvo
