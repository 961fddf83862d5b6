#include "platform/linux/bus/BusAddress.h"

#include <QFile>
#include <QStringList>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

QString addressFrom(const char *variable, const QString &otherwise)
{
    const QString address = qEnvironmentVariable(variable);
    return address.isEmpty() ? otherwise : address;
}

} // namespace

QString systemBusAddress()
{
    return addressFrom("DBUS_SYSTEM_BUS_ADDRESS", u"unix:path=/var/run/dbus/system_bus_socket"_s);
}

QString sessionBusAddress()
{
    return addressFrom("DBUS_SESSION_BUS_ADDRESS",
                       addressOfSocket(qEnvironmentVariable("XDG_RUNTIME_DIR", u"/nonexistent"_s) + u"/bus"_s));
}

QString addressOfSocket(const QString &path)
{
    // Of what a URL may hold as it is, an address may not hold "~".
    return u"unix:path="_s + QString::fromLatin1(QFile::encodeName(path).toPercentEncoding("/", "~"));
}

QString unixPartOf(const QString &address)
{
    QStringList entries = address.split(u';');
    entries.removeIf([](const QString &entry) { return !entry.startsWith(u"unix:"); });
    return entries.join(u';');
}

QList<QByteArray> unixSocketsOf(const QString &address)
{
    QList<QByteArray> sockets;
    for (const QString &entry : unixPartOf(address).split(u';', Qt::SkipEmptyParts)) {
        for (const QString &pair : entry.mid(5).split(u',')) {
            const QByteArray value = QByteArray::fromPercentEncoding(pair.section(u'=', 1).toUtf8());
            if (pair.startsWith(u"path="))
                sockets.append(value);
            else if (pair.startsWith(u"abstract="))
                sockets.append('\0' + value);
        }
    }
    return sockets;
}

} // namespace tarvo
