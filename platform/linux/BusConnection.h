#pragma once

#include <QDBusConnection>
#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>

namespace tarvo {

/// @return the address of the system bus: `DBUS_SYSTEM_BUS_ADDRESS`, or the well-known one (D-Bus specification, "Well-known
///         Message Bus Instances")
QString systemBusAddress();

/// A connection to a message bus that is made again when the bus comes back.
///
/// A bus that went is tried again a few times, each after a longer while. From then on nothing wakes up until something
/// happens where the bus puts its socket.
class BusConnection final : public QObject {
    Q_OBJECT

public:
    using Handler = std::function<void()>;

    /// @param found  called each time the bus has been connected to
    /// @param lost   called each time the connection has ended or could not be made
    BusConnection(QString address, Handler found, Handler lost);
    ~BusConnection() override;

    /// Connects; on a machine whose bus runs this takes less than a millisecond.
    void open();
    /// @return the present connection; one that is not connected when there is none
    QDBusConnection connection() const { return QDBusConnection(m_name); }

private Q_SLOTS:
    void disconnected();

private:
    bool isOpen() const { return !m_name.isEmpty(); }
    void close();
    void waitForBus();
    void socketFolderChanged();

    const QString m_address;
    const QString m_socketPath; ///< empty when the address names no file
    const Handler m_found;
    const Handler m_lost;
    QString m_name;
    QTimer m_retry;
    int m_attempts = 0;
    QFileSystemWatcher m_folders;
};

} // namespace tarvo
