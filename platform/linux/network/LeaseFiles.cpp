#include "platform/linux/network/LeaseFiles.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <arpa/inet.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 mostBytes = 64 << 10; // both programs write less than a thousand

/// @return the address in host byte order; 0 when @p text is no address that a host can have
quint32 hostAddress(const QByteArray &text)
{
    in_addr address{};
    if (inet_pton(AF_INET, text.constData(), &address) != 1)
        return 0;
    const quint32 host = qFromBigEndian(address.s_addr);
    const quint32 network = host >> 24;
    return network == 0 || network == 127 || network >= 224 ? 0 : host;
}

/// @return the contents of a plain file; empty when it is none, or too large. Waits for nobody.
QByteArray readSmallFile(const QString &path)
{
    const int descriptor = open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    QFile file;
    if (descriptor < 0 || !file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return {};
    struct stat status { };
    if (fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode) || status.st_size > mostBytes)
        return {};
    return file.read(mostBytes);
}

} // namespace

Lease parseLease(const QByteArray &contents)
{
    Lease lease;
    for (const QByteArray &line : contents.split('\n')) {
        const qsizetype separator = line.indexOf('=');
        const QByteArray key = line.left(separator).trimmed();
        const QByteArray first = line.mid(separator + 1).trimmed().split(' ').first();
        if (key == "ADDRESS" || key == "dhcp4.ip_address")
            lease.address = hostAddress(first);
        else if (key == "ROUTER" || key == "dhcp4.routers")
            lease.gateway = hostAddress(first);
    }
    return lease;
}

LeaseFiles::LeaseFiles(const QString &root)
    : m_folders{root + u"/systemd/netif/leases"_s, root + u"/NetworkManager/devices"_s}
{
    QObject::connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_watcher, [this] { m_changed(); });
}

quint32 LeaseFiles::gateway(int interfaceIndex, const HasAddress &hasAddress) const
{
    for (const QString &folder : m_folders) {
        const Lease lease = parseLease(readSmallFile(u"%1/%2"_s.arg(folder).arg(interfaceIndex)));
        if (lease.gateway != 0 && !hasAddress(lease.gateway) && hasAddress(lease.address))
            return lease.gateway;
    }
    return 0;
}

void LeaseFiles::watch(std::function<void()> changed)
{
    m_changed = std::move(changed);
    const QStringList watched = m_watcher.directories();
    if (!m_changed) {
        if (!watched.isEmpty())
            m_watcher.removePaths(watched);
        return;
    }
    for (const QString &folder : std::as_const(m_folders)) {
        if (!watched.contains(folder) && QFileInfo::exists(folder) && m_watcher.addPath(folder))
            m_changed();
    }
}

} // namespace tarvo
