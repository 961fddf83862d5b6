#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace tarvo {

/// @return the address of the system bus: `DBUS_SYSTEM_BUS_ADDRESS`, or the well-known one (D-Bus specification,
///         "Well-known Message Bus Instances")
QString systemBusAddress();

/// @return the address of the session's bus: `DBUS_SESSION_BUS_ADDRESS`, or the user's bus in the runtime folder.
///         No bus is started for its sake.
QString sessionBusAddress();

/// @return the address of a bus whose Unix socket is at @p path. It is escaped as the D-Bus specification wants it ("Server
///         Addresses"): a bus takes no other.
QString addressOfSocket(const QString &path);

/// @return what of @p address names Unix sockets; empty for nothing
QString unixPartOf(const QString &address);

/// @return the Unix sockets that @p address names, as a socket address holds them: a path, or a zero byte and an abstract
///         name. What is reached by other means than a Unix socket is left out.
QList<QByteArray> unixSocketsOf(const QString &address);

} // namespace tarvo
