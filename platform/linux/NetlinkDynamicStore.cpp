#include "platform/linux/NetlinkDynamicStore.h"

#include "platform/SystemLog.h"
#include "platform/linux/RouteMessages.h"

#include <linux/rtnetlink.h>
#include <sys/socket.h>

#include <algorithm>
#include <chrono>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto publicationDelay = 200ms; // udev takes less to rename a new link
constexpr auto gapLineInterval = 10s;
constexpr int mostRoundsAtOnce = 4;

} // namespace

NetlinkDynamicStore::NetlinkDynamicStore(SystemLog &systemLog)
    : m_systemLog(systemLog)
    , m_available(m_events.isOpen() && m_events.subscribe())
{
    if (!m_available) {
        m_systemLog.write(u"network state: no netlink socket"_s);
        return;
    }
    m_notifier = std::make_unique<QSocketNotifier>(m_events.descriptor(), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] {
        receiveEvents();
        if (!m_publicationTimer.isActive())
            m_publicationTimer.start(publicationDelay);
    });
    m_publicationTimer.setSingleShot(true);
    QObject::connect(&m_publicationTimer, &QTimer::timeout, &m_publicationTimer, [this] { publish(); });
    publish();
}

std::unique_ptr<DynamicStoreSession> NetlinkDynamicStore::createSession(const QString &name, Callback callback)
{
    return m_available ? StateStore::createSession(name, std::move(callback)) : nullptr;
}

void NetlinkDynamicStore::announceServices()
{
    if (!m_available)
        return;
    m_gap = true;
    publish();
    announce(store::anyServiceIPv4Pattern);
}

void NetlinkDynamicStore::receiveEvents()
{
    if (m_events.receiveEvents([this](nl_msg *message) { applyRouteMessage(message, m_model); })
        == NetlinkSocket::Received::Lost)
        noteGap();
}

void NetlinkDynamicStore::noteGap()
{
    m_gap = true;
    if (!m_nextGapLine.hasExpired())
        return;
    m_nextGapLine.setRemainingTime(gapLineInterval);
    m_systemLog.write(u"network state: events were lost, reading everything again"_s);
}

/// Replaces the model by what the kernel tells now. @return false when that may be incomplete: the old one is kept
bool NetlinkDynamicStore::readEverything()
{
    NetlinkSocket dumps;
    NetworkModel read;
    const auto apply = [&](nl_msg *message) { applyRouteMessage(message, read); };
    if (!dumps.isOpen() || !dumps.dump(RTM_GETLINK, AF_UNSPEC, apply) || !dumps.dump(RTM_GETADDR, AF_INET, apply)
        || !dumps.dump(RTM_GETROUTE, AF_INET, apply))
        return false;
    read.setRoutesCertain();
    m_removed.unite(m_model.takeRemovedLinks());
    m_model = std::move(read);
    return true;
}

bool NetlinkDynamicStore::readRoutes()
{
    NetlinkSocket dumps;
    NetworkModel read;
    const auto apply = [&](nl_msg *message) { applyRouteMessage(message, read); };
    if (!dumps.isOpen() || !dumps.dump(RTM_GETROUTE, AF_INET, apply))
        return false;
    m_model.takeRoutes(std::move(read));
    return true;
}

/// Brings the model up to date: events come in while it is read, and they may call for reading again.
void NetlinkDynamicStore::settle()
{
    for (int round = 0; round < mostRoundsAtOnce; ++round) {
        receiveEvents();
        if (m_gap)
            m_gap = !readEverything();
        else if (m_model.areRoutesUncertain())
            m_gap = !readRoutes();
        else
            return;
    }
}

void NetlinkDynamicStore::publish()
{
    settle();
    if (m_gap || m_model.areRoutesUncertain())
        m_publicationTimer.start(publicationDelay);

    const QSet<QString> changedHands = updateIndexes(m_model.interfaceIndexes());
    if (!changedHands.isEmpty())
        replaceEntries(m_model.entries(changedHands));
    replaceEntries(m_model.entries());
}

/// Makes @p indexes the published ones, and tells of the links that are gone.
/// @return the names that belong to another link than before
QSet<QString> NetlinkDynamicStore::updateIndexes(QHash<QString, int> indexes)
{
    QSet<int> removed = std::exchange(m_removed, {}) + m_model.takeRemovedLinks();
    const QSet<int> present(indexes.cbegin(), indexes.cend());
    QSet<QString> changedHands;
    for (const auto &[name, index] : m_published.asKeyValueRange()) {
        if (!present.contains(index))
            removed.insert(index);
        if (indexes.contains(name) && (indexes.value(name) != index || removed.contains(index)))
            changedHands.insert(name);
    }
    m_published = std::move(indexes);
    if (m_linkRemoved)
        std::ranges::for_each(std::as_const(removed), m_linkRemoved);
    return changedHands;
}

} // namespace tarvo
