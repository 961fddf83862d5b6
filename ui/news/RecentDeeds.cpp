#include "ui/news/RecentDeeds.h"

#include <algorithm>

namespace tarvo {

RecentDeeds::RecentDeeds(const Clock &clock)
    : m_clock(clock)
{
}

void RecentDeeds::setDevice(const QString &address)
{
    const std::scoped_lock lock(m_mutex);
    m_device = address;
}

bool RecentDeeds::claim(int kind)
{
    const std::scoped_lock lock(m_mutex);
    if (m_device.isEmpty())
        return true;
    forgetOld();
    if (std::ranges::any_of(m_deeds, [&](const Deed &deed) { return deed.device == m_device && deed.kind == kind; }))
        return false;
    m_deeds.append({m_device, kind, m_clock.nowAlsoAsleep()});
    return true;
}

QList<RecentDeeds::Deed> RecentDeeds::deeds() const
{
    const std::scoped_lock lock(m_mutex);
    return m_deeds;
}

void RecentDeeds::restore(const QList<Deed> &deeds)
{
    const std::scoped_lock lock(m_mutex);
    m_deeds = deeds;
    forgetOld();
}

void RecentDeeds::forgetOld()
{
    const auto now = m_clock.nowAlsoAsleep();
    m_deeds.removeIf([&](const Deed &deed) { return deed.time > now || now - deed.time >= pause; });
    m_deeds.remove(0, std::max<qsizetype>(0, m_deeds.size() - longest + 1));
}

} // namespace tarvo
