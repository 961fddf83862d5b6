#include "app/PlugIns.h"

#include <algorithm>
#include <utility>

namespace tarvo {

PlugInState PlugIns::begin(const InterfaceIdentity &interface)
{
    m_current = interface;
    const auto known =
        std::ranges::find(m_plugIns, interface.index, [](const PlugIn &each) { return each.identity.index; });
    return known == m_plugIns.end() ? PlugInState() : known->state;
}

void PlugIns::end(const PlugInState &state)
{
    const InterfaceIdentity ended = std::exchange(m_current, {});
    if (ended.index == 0)
        return;
    m_plugIns.removeIf([&](const PlugIn &each) { return each.identity.index == ended.index; });
    m_plugIns.append({ended, state});
    m_plugIns.remove(0, std::max<qsizetype>(0, m_plugIns.size() - longest));
}

void PlugIns::restore(const QList<PlugIn> &plugIns)
{
    m_current = {};
    m_plugIns = plugIns;
}

} // namespace tarvo
