#pragma once

#include "platform/StateStore.h"
#include "platform/linux/network/NetworkModel.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <functional>
#include <map>
#include <vector>

namespace tarvo {

/// The store entries that follow from a network model. An interface that is up and has an IPv4 address is a service of
/// the interface's name, and services are ordered by interface index.
///
/// Only what belongs to changed links is made anew, and the lists of names when one of them changed: a machine may have
/// thousands of links, and some that come and go all the time.
class LinkEntries {
public:
    /// Tells a link's default gateway, an IPv4 address in host byte order; 0 when it has none.
    using GatewayOf = std::function<quint32(int interfaceIndex)>;

    /// @param changed  the links of @p model that are not what they were at the last call
    /// @param removed  those of them that are gone, or that went and came again
    /// @return the changes, to be made one after the other: a name is taken away before another link has it
    std::vector<StateStore::Changes> update(const NetworkModel &model, const QSet<int> &changed,
                                            const QSet<int> &removed, const GatewayOf &gatewayOf);

    /// @return the index of the interface @p name; 0 when there is none
    int interfaceIndex(const QString &name) const { return m_indexes.value(name); }

private:
    void giveUp(int index, StateStore::Changes &changes);
    void place(int index, const NetworkLink &link, const GatewayOf &gatewayOf, StateStore::Changes &changes);
    void addLists(StateStore::Changes &changes);

    std::map<int, QString> m_names; ///< by interface index
    std::map<int, QString> m_services;
    QHash<QString, int> m_indexes;
    bool m_namesChanged = true;
    bool m_servicesChanged = true;
};

} // namespace tarvo
