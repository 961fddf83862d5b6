#include "fuzz/Input.h"
#include "platform/linux/bus/ApplicationService.h"
#include "platform/linux/bus/BusConnection.h"
#include "platform/linux/bus/BusInterface.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QStringList>

#include <algorithm>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

/// @return @p text as one of the types that callers send in place of another, by its first character
QVariant argumentFrom(const QString &text)
{
    if (text.startsWith(u'v'))
        return QVariant::fromValue(QDBusVariant(argumentFrom(text.mid(1))));
    if (text.startsWith(u'l'))
        return text.mid(1).split(u',');
    if (text.startsWith(u'i'))
        return text.mid(1).toInt();
    return text.startsWith(u's') ? QVariant(text.mid(1)) : QVariant(text.toUtf8());
}

struct World {
    int argumentCount = 0;
    QCoreApplication application{argumentCount, nullptr};
    BusConnection bus{u"unix:path=/nonexistent"_s};
    int activations = 0;
    int restarts = 0;
    BusInterface interface {
        bus, u"/a/B"_s, u"<interface name=\"a.B1\"></interface>"_s
    };
    ApplicationService service{
        bus, u"a.B"_s, {.activate = [this] { ++activations; }, .restart = [this] { ++restarts; }}, &interface};
};

} // namespace

/// The input is lines: an interface, a member, and the arguments of a call.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    static World world;
    world.activations = world.restarts = 0;
    QStringList lines = QString::fromUtf8(bytesOf(bytes, size)).split(u'\n');
    while (lines.size() < 2)
        lines.append(QString());
    auto call = QDBusMessage::createMethodCall(u"a.B"_s, u"/a/B"_s, lines[0], lines[1]);
    for (const QString &line : lines.mid(2))
        call << argumentFrom(line);
    const bool isHandled = world.service.handleMessage(call, QDBusConnection(u"none"_s));
    QCoreApplication::sendPostedEvents(&world.service);
    check(world.activations + world.restarts <= (isHandled ? 1 : 0));
    check(world.restarts == 0 || lines.value(2) == u"srestart");
    return 0;
}
