#include "platform/RepetitionFilter.h"

#include <algorithm>
#include <utility>

namespace tarvo {

using namespace std::chrono_literals;

namespace {

constexpr qsizetype longestRound = 8;
constexpr auto reportPause = 1min;

QByteArray countText(qsizetype lines, quint64 times)
{
    const QByteArray what = lines == 1 ? QByteArray() : "the last " + QByteArray::number(lines) + " lines ";
    return what + "repeated " + QByteArray::number(times) + (times == 1 ? " time" : " times");
}

/// @return the length of the shortest round that @p said ends with twice; 0 when there is none
qsizetype repeatedLines(const QList<QByteArray> &said)
{
    for (qsizetype period = 1; period <= longestRound && 2 * period <= said.size(); ++period) {
        if (std::equal(said.cend() - period, said.cend(), said.cend() - 2 * period))
            return period;
    }
    return 0;
}

} // namespace

QList<QByteArray> RepetitionFilter::pass(const QByteArray &line, TimePoint now)
{
    const bool afterSilence = now - std::exchange(m_lastSaid, now) >= reportPause;
    if (m_period > 0 && !afterSilence && line == m_said.at(m_said.size() - m_period)) {
        remember(line);
        return countRepetition(now);
    }
    QList<QByteArray> written = finish();
    if (afterSilence)
        m_said.clear();
    remember(line);
    m_period = repeatedLines(m_said);
    if (m_period == 1) {
        m_rounds = 1;
    } else {
        m_lastWritten = now;
        written.append(line);
    }
    return written;
}

QList<QByteArray> RepetitionFilter::finish()
{
    QList<QByteArray> written;
    if (m_rounds > 0)
        written.append(countText(m_period, m_rounds));
    written += m_said.last(m_position);
    m_period = 0;
    m_position = 0;
    m_rounds = 0;
    return written;
}

QList<QByteArray> RepetitionFilter::countRepetition(TimePoint now)
{
    if (++m_position == m_period) {
        m_position = 0;
        ++m_rounds;
    }
    if (m_rounds == 0 || now - m_lastWritten < reportPause)
        return {};
    m_lastWritten = now;
    return {countText(m_period, std::exchange(m_rounds, 0))};
}

void RepetitionFilter::remember(const QByteArray &line)
{
    m_said.append(line);
    if (m_said.size() > 2 * longestRound)
        m_said.removeFirst();
}

} // namespace tarvo
