#include "platform/linux/network/NetlinkDynamicStore.h"

#include "platform/LeaseFacts.h"
#include "platform/SystemLog.h"
#include "platform/linux/network/RouteMessages.h"

#include <linux/rtnetlink.h>
#include <net/if.h>
#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto publicationDelay = 200ms; // udev takes less to rename a new link
constexpr auto wakeUpInterval = 4ms; // in a storm, many events to a wake-up, but fewer than the socket holds
constexpr auto gapLineInterval = 10s;
constexpr int mostRoundsAtOnce = 4;
constexpr int messagesBetweenEvents = 32;
constexpr std::chrono::milliseconds longestReadAgainDelay = 30s;

bool isLoopback(const NetworkLink &link)
{
    return std::ranges::all_of(link.addresses, [](const InterfaceAddress &own) { return own.local >> 24 == 127; });
}

/// @return the name of the link @p index; empty when there is none
QString nameOfLink(int index)
{
    std::array<char, IF_NAMESIZE> name{};
    return QString::fromUtf8(if_indextoname(static_cast<unsigned>(index), name.data()));
}

} // namespace

NetlinkDynamicStore::NetlinkDynamicStore(SystemLog &systemLog, LeaseFacts &leases)
    : m_systemLog(systemLog)
    , m_leases(leases)
    , m_available(m_events.isOpen() && m_events.subscribe())
    , m_readAgainDelay(publicationDelay)
{
    if (!m_available) {
        m_systemLog.write(u"network state: no netlink socket"_s);
        return;
    }
    followEvents();
    m_readAgainTimer.setSingleShot(true);
    QObject::connect(&m_readAgainTimer, &QTimer::timeout, &m_readAgainTimer, [this] {
        m_gap = true;
        publish();
    });
    m_publicationTimer.setSingleShot(true);
    QObject::connect(&m_publicationTimer, &QTimer::timeout, &m_publicationTimer, [this] { publish(); });
    publish();
}

void NetlinkDynamicStore::followEvents()
{
    m_notifier = std::make_unique<QSocketNotifier>(m_events.descriptor(), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] {
        receiveEvents();
        publishSoon();
        m_notifier->setEnabled(false);
        m_pauseTimer.start(wakeUpInterval);
    });
    m_pauseTimer.setSingleShot(true);
    m_pauseTimer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_pauseTimer, &QTimer::timeout, m_notifier.get(), [this] { m_notifier->setEnabled(true); });
}

NetlinkDynamicStore::~NetlinkDynamicStore()
{
    m_leases.watch({});
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

/// @return whether the model follows every event that there is; if some were lost, up to the next loss
bool NetlinkDynamicStore::receiveEvents()
{
    const auto received = m_events.receiveEvents([this](nl_msg *message) { applyRouteMessage(message, m_model); });
    if (received.lost)
        noteGap();
    return received.everything;
}

void NetlinkDynamicStore::noteGap()
{
    m_gap = true;
    if (!m_nextGapLine.hasExpired())
        return;
    m_nextGapLine.setRemainingTime(gapLineInterval);
    m_systemLog.write(u"network state: events were lost, reading everything again"_s);
}

/// Asks the kernel for everything of some kinds. The events that come meanwhile are held: more of them come than the
/// socket holds when a large state is read in a storm.
NetlinkSocket::Dumped NetlinkDynamicStore::read(const QList<int> &requests, NetworkModel &model)
{
    NetlinkSocket dumps;
    auto worst = dumps.isOpen() ? NetlinkSocket::Dumped::Complete : NetlinkSocket::Dumped::Failed;
    int count = 0;
    for (int i = 0; i < requests.size() && worst != NetlinkSocket::Dumped::Failed; ++i) {
        const int family = requests[i] == RTM_GETLINK ? AF_UNSPEC : AF_INET;
        worst = std::max(worst, dumps.dump(requests[i], family, [&](nl_msg *message) {
            applyRouteMessage(message, model);
            if (++count % messagesBetweenEvents == 0)
                m_events.holdEvents();
        }));
    }
    return worst;
}

/// Replaces the model by what the kernel tells now; where that fails, the old one is kept.
///
/// While links come and go all the time, the kernel may never tell the whole state undisturbed. What is missing from a
/// disturbed answer is kept as far as it is there, and it is asked for again after a while.
void NetlinkDynamicStore::readEverything()
{
    NetworkModel model;
    const auto outcome = read({RTM_GETLINK, RTM_GETADDR, RTM_GETROUTE}, model);
    if (outcome == NetlinkSocket::Dumped::Failed)
        return;
    if (outcome == NetlinkSocket::Dumped::Interrupted)
        model.keepLinks(m_model, nameOfLink);
    m_model.takeAll(std::move(model));
    m_gap = false;
    m_readAgainTimer.stop();
    if (outcome == NetlinkSocket::Dumped::Interrupted)
        m_readAgainTimer.start(m_readAgainDelay);
    m_readAgainDelay = outcome == NetlinkSocket::Dumped::Interrupted
        ? std::min(2 * m_readAgainDelay, longestReadAgainDelay)
        : publicationDelay;
}

void NetlinkDynamicStore::readRoutes()
{
    NetworkModel model;
    if (read({RTM_GETROUTE}, model) == NetlinkSocket::Dumped::Complete)
        m_model.takeRoutes(std::move(model));
}

/// Brings the model up to date: events come in while it is read, and they may call for reading again. It is read only
/// when no older event waits to be applied.
void NetlinkDynamicStore::settle()
{
    for (int round = 0; round < mostRoundsAtOnce; ++round) {
        if (!receiveEvents())
            continue;
        if (m_gap)
            readEverything();
        else if (m_model.areRoutesUncertain())
            readRoutes();
        else
            return;
    }
    receiveEvents(); // nothing that was held may wait for the next event
}

void NetlinkDynamicStore::publish()
{
    settle();
    if (m_gap || m_model.areRoutesUncertain())
        publishSoon();
    if (m_gap)
        return;

    const QSet<int> removed = m_model.takeRemovedLinks();
    if (m_linkRemoved)
        std::ranges::for_each(removed, m_linkRemoved);
    QSet<int> changed = m_model.takeChangedLinks();
    followLeases(changed);
    if (std::exchange(m_leasesChanged, false))
        changed.unite(m_unrouted);
    const auto steps = m_linkEntries.update(m_model, changed, removed, [this](int index) { return gateway(index); });
    std::ranges::for_each(steps, [this](const Changes &changes) { applyChanges(changes); });
}

void NetlinkDynamicStore::publishSoon()
{
    if (!m_publicationTimer.isActive())
        m_publicationTimer.start(publicationDelay);
}

/// Watches leases as long as one of them may name a gateway that the kernel does not know. One may be written only after
/// its address is there.
void NetlinkDynamicStore::followLeases(const QSet<int> &changed)
{
    for (const int index : changed) {
        const NetworkLink *const link = m_model.link(index);
        if (link && link->isService() && m_model.gateway(index) == 0 && !isLoopback(*link))
            m_unrouted.insert(index);
        else
            m_unrouted.remove(index);
    }
    if (m_unrouted.isEmpty()) {
        m_leases.watch({});
        return;
    }
    m_leases.watch([this] {
        m_leasesChanged = true;
        publishSoon();
    });
}

quint32 NetlinkDynamicStore::gateway(int index) const
{
    if (!m_unrouted.contains(index))
        return m_model.gateway(index);
    const auto &addresses = m_model.link(index)->addresses;
    return m_leases.gateway(index, [&](quint32 address) {
        return std::ranges::find(addresses, address, &InterfaceAddress::local) != addresses.end();
    });
}

} // namespace tarvo
