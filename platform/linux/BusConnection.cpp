#include "platform/linux/BusConnection.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QUrl>

#include <chrono>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

constexpr int maxAttempts = 5;
constexpr std::chrono::seconds firstPause{1};

QString unusedName()
{
    static int count = 0;
    return u"tarvo-bus-%1"_s.arg(++count);
}

QString socketPathOf(const QString &address)
{
    static const QRegularExpression unixPath(u"^unix:(?:[^;]*,)?path=([^,;]+)"_s);
    return QUrl::fromPercentEncoding(unixPath.match(address).captured(1).toUtf8());
}

QString nearestFolder(const QString &path)
{
    QString folder = QFileInfo(path).path();
    while (!QFileInfo(folder).isDir() && folder != u"/" && folder != u".")
        folder = QFileInfo(folder).path();
    return folder;
}

} // namespace

QString systemBusAddress()
{
    return qEnvironmentVariable("DBUS_SYSTEM_BUS_ADDRESS", u"unix:path=/var/run/dbus/system_bus_socket"_s);
}

BusConnection::BusConnection(QString address, Handler found, Handler lost)
    : m_address(std::move(address))
    , m_socketPath(socketPathOf(m_address))
    , m_found(std::move(found))
    , m_lost(std::move(lost))
{
    m_retry.setSingleShot(true);
    connect(&m_retry, &QTimer::timeout, this, &BusConnection::open);
    connect(&m_folders, &QFileSystemWatcher::directoryChanged, this, &BusConnection::socketFolderChanged);
}

BusConnection::~BusConnection()
{
    close();
}

void BusConnection::open()
{
    m_name = unusedName();
    auto bus = QDBusConnection::connectToBus(m_address, m_name);
    if (!bus.isConnected()) {
        disconnected();
        return;
    }
    m_attempts = 0;
    if (!m_folders.directories().isEmpty())
        m_folders.removePaths(m_folders.directories());
    bus.connect(QString(), u"/org/freedesktop/DBus/Local"_s, u"org.freedesktop.DBus.Local"_s, u"Disconnected"_s, this,
                SLOT(disconnected()));
    m_found();
}

void BusConnection::close()
{
    if (isOpen())
        QDBusConnection::disconnectFromBus(std::exchange(m_name, QString()));
}

void BusConnection::disconnected()
{
    close();
    m_lost();
    waitForBus();
}

void BusConnection::waitForBus()
{
    if (m_socketPath.isEmpty() || QFileInfo::exists(m_socketPath)) {
        // It may be a socket that is not listened to, or not yet.
        if (m_attempts < maxAttempts)
            m_retry.start(firstPause * (1 << m_attempts++));
    }
    if (m_socketPath.isEmpty())
        return;
    if (!m_folders.directories().isEmpty())
        m_folders.removePaths(m_folders.directories());
    m_folders.addPath(nearestFolder(m_socketPath));
}

void BusConnection::socketFolderChanged()
{
    if (isOpen())
        return;
    m_attempts = 0;
    if (QFileInfo::exists(m_socketPath))
        open();
    else
        waitForBus();
}

} // namespace tarvo
