#pragma once

#include "platform/StateStore.h"
#include "platform/linux/network/LinkEntries.h"
#include "platform/linux/network/NetlinkSocket.h"
#include "platform/linux/network/NetworkModel.h"

#include <QDeadlineTimer>
#include <QList>
#include <QSet>
#include <QSocketNotifier>
#include <QString>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>
#include <utility>

namespace tarvo {

class LeaseFacts;
class SystemLog;

/// The state of the machine's network, as the kernel tells it over the routing netlink (rtnetlink(7)).
///
/// The router of a service is its interface's best IPv4 default gateway, in whatever routing table, or else the gateway
/// that its lease names; see `LinkEntries` for the rest.
///
/// Lives on one thread with an event loop. What changes is published together a fifth of a second later, so that a
/// burst is one change, and a new link is first seen under the name that it is given.
class NetlinkDynamicStore final : public StateStore {
public:
    /// @param systemLog, leases  outlive the store
    NetlinkDynamicStore(SystemLog &systemLog, LeaseFacts &leases);
    ~NetlinkDynamicStore() override;

    /// @return null when the kernel gave no netlink socket
    std::unique_ptr<DynamicStoreSession> createSession(const QString &name, Callback callback) override;

    /// @return the index of the published interface @p name; 0 when there is none
    int interfaceIndex(const QString &name) const { return m_linkEntries.interfaceIndex(name); }

    /// @return what is known of the interface @p index now
    InterfaceState interfaceState(int index) const { return m_model.interfaceState(index); }

    /// Called with the index of each link that is gone, before that is published.
    void setLinkRemovedHandler(std::function<void(int interfaceIndex)> handler) { m_linkRemoved = std::move(handler); }

    /// Reads the whole state again, then tells of the IPv4 state of every service, changed or not.
    void announceServices();

private:
    void followEvents();
    bool receiveEvents();
    void noteGap();
    NetlinkSocket::Dumped read(const QList<int> &requests, NetworkModel &model);
    void readEverything();
    void readRoutes();
    void settle();
    void publish();
    void publishSoon();
    void followLeases(const QSet<int> &changed);
    quint32 gateway(int index) const;

    SystemLog &m_systemLog;
    LeaseFacts &m_leases;
    NetlinkSocket m_events;
    bool m_available;
    NetworkModel m_model;
    /// Something was missed: the model is to be read again.
    bool m_gap = true;
    std::chrono::milliseconds m_readAgainDelay; ///< until what was read while it changed is read again
    QDeadlineTimer m_nextGapLine;

    LinkEntries m_linkEntries;
    QSet<int> m_unrouted; ///< services without a default gateway in the kernel
    bool m_leasesChanged = false;
    std::function<void(int)> m_linkRemoved;

    std::unique_ptr<QSocketNotifier> m_notifier;
    QTimer m_pauseTimer; ///< runs while the notifier is off
    QTimer m_publicationTimer;
    QTimer m_readAgainTimer;
};

} // namespace tarvo
