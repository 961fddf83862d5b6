#pragma once

#include "platform/StateStore.h"
#include "platform/linux/NetlinkSocket.h"
#include "platform/linux/NetworkModel.h"

#include <QDeadlineTimer>
#include <QHash>
#include <QSet>
#include <QSocketNotifier>
#include <QString>
#include <QTimer>

#include <functional>
#include <memory>
#include <utility>

namespace tarvo {

class SystemLog;

/// The state of the machine's network, as the kernel tells it over the routing netlink (rtnetlink(7)).
///
/// An interface that is up and has an IPv4 address is a service of the interface's name, and its router is its best
/// IPv4 default gateway, in whatever routing table. Services are ordered by interface index.
///
/// Lives on one thread with an event loop. What changes is published together a fifth of a second later, so that a
/// burst is one change, and a new link is first seen under the name that it is given.
class NetlinkDynamicStore final : public StateStore {
public:
    explicit NetlinkDynamicStore(SystemLog &systemLog);

    /// @return null when the kernel gave no netlink socket
    std::unique_ptr<DynamicStoreSession> createSession(const QString &name, Callback callback) override;

    /// @return the index of the published interface @p name; 0 when there is none
    int interfaceIndex(const QString &name) const { return m_published.value(name); }

    /// @return what is known of the interface @p index now
    InterfaceState interfaceState(int index) const { return m_model.interfaceState(index); }

    /// Called with the index of each link that is gone, before that is published.
    void setLinkRemovedHandler(std::function<void(int interfaceIndex)> handler) { m_linkRemoved = std::move(handler); }

    /// Reads the whole state again, then tells of the IPv4 state of every service, changed or not.
    void announceServices();

private:
    void receiveEvents();
    void noteGap();
    bool readEverything();
    bool readRoutes();
    void settle();
    void publish();
    QSet<QString> updateIndexes(QHash<QString, int> indexes);

    SystemLog &m_systemLog;
    NetlinkSocket m_events;
    bool m_available;
    NetworkModel m_model;
    /// Something was missed: the model is to be read again.
    bool m_gap = true;
    QDeadlineTimer m_nextGapLine;

    QHash<QString, int> m_published;
    QSet<int> m_removed; ///< links that went since the last publication
    std::function<void(int)> m_linkRemoved;

    std::unique_ptr<QSocketNotifier> m_notifier;
    QTimer m_publicationTimer;
};

} // namespace tarvo
