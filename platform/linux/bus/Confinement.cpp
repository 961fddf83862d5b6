#include "platform/linux/bus/Confinement.h"

#include "platform/linux/bus/BusConnection.h"

#include <QByteArray>
#include <QDBusArgument>
#include <QDBusMessage>
#include <QVariantMap>

#include <sys/stat.h>

#include <cerrno>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

bool isInFlatpak(uint process)
{
    const QByteArray root = "/proc/" + QByteArray::number(process) + "/root/";
    struct stat information { };
    if (::lstat(root.constData(), &information) != 0)
        return true;
    return ::lstat((root + ".flatpak-info").constData(), &information) == 0 || errno != ENOENT;
}

} // namespace

void askWhetherConfined(BusConnection &bus, const QString &caller, QObject *receiver,
                        const std::function<void(bool isConfined)> &answered)
{
    bus.callBus(u"GetConnectionCredentials"_s, {caller}, receiver, [answered](const QDBusMessage &answer) {
        const auto credentials = qdbus_cast<QVariantMap>(answer.arguments().value(0));
        const uint process = credentials.value(u"ProcessID"_s).toUInt();
        const QByteArray label = credentials.value(u"LinuxSecurityLabel"_s).toByteArray();
        answered(process == 0 || label.startsWith("snap.") || isInFlatpak(process));
    });
}

} // namespace tarvo
