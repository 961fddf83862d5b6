#pragma once

#include "platform/LeaseFacts.h"

#include <QByteArray>
#include <QFileSystemWatcher>
#include <QString>
#include <QStringList>

#include <functional>

namespace tarvo {

using Qt::StringLiterals::operator""_s;

/// An IPv4 lease. Addresses are in host byte order.
struct Lease {
    quint32 address = 0;
    quint32 gateway = 0; ///< 0 when the lease names none

    bool operator==(const Lease &) const = default;
};

/// Reads a lease as systemd-networkd (`ROUTER=`) or NetworkManager (`dhcp4.routers=`) write one. The first gateway counts;
/// what is no address of a host is none.
Lease parseLease(const QByteArray &contents);

/// The leases in the files that systemd-networkd and NetworkManager keep for each interface, named by its index.
///
/// No daemon is asked, and only small plain files are read. The folders are watched only as long as somebody wants it;
/// one that is not there yet is looked for again at each call of `watch`.
class LeaseFiles final : public LeaseFacts {
public:
    /// @param root  where the two programs' folders are
    explicit LeaseFiles(const QString &root = u"/run"_s);

    quint32 gateway(int interfaceIndex, const HasAddress &hasAddress) const override;
    void watch(std::function<void()> changed) override;

private:
    QStringList m_folders;
    std::function<void()> m_changed;
    QFileSystemWatcher m_watcher; ///< stays, as the kernel takes long to end one
};

} // namespace tarvo
