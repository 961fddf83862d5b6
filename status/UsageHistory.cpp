#include "status/UsageHistory.h"

namespace tarvo {

void UsageHistory::add(std::chrono::seconds sincePlugIn, double gigabytes)
{
    if (!m_samples.isEmpty() && sincePlugIn < m_samples.last().sincePlugIn + m_distance)
        return;
    m_samples.append({sincePlugIn, gigabytes});
    if (m_samples.size() < mostSamples)
        return;
    QList<Sample> thinned;
    for (qsizetype i = 0; i < m_samples.size(); i += 2)
        thinned.append(m_samples[i]);
    m_samples = thinned;
    m_distance *= 2;
}

} // namespace tarvo
