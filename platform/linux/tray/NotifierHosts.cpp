#include "platform/linux/tray/NotifierHosts.h"

#include "platform/linux/bus/BusConnection.h"

#include <QDBusVariant>
#include <QStringList>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

const QString watcherService = u"org.kde.StatusNotifierWatcher"_s;
const QString watcherPath = u"/StatusNotifierWatcher"_s;
constexpr int answerTimeout = 2000; // milliseconds
constexpr qsizetype mostItems = 256;

QDBusMessage propertyQuestion(const QString &property)
{
    QDBusMessage question =
        QDBusMessage::createMethodCall(watcherService, watcherPath, u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    question.setArguments({watcherService, property});
    question.setAutoStartService(false);
    return question;
}

QVariant propertyIn(const QDBusMessage &answer)
{
    const bool isReply = answer.type() == QDBusMessage::ReplyMessage;
    return isReply ? answer.arguments().value(0).value<QDBusVariant>().variant() : QVariant();
}

} // namespace

NotifierHosts::NotifierHosts(BusConnection &bus, std::function<void()> changed)
    : m_changed(std::move(changed))
    , m_bus(bus)
    , m_watcher(bus, watcherService, [this](const QString &owner) { ownerChanged(owner); })
{
    for (const char *const signal : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"})
        m_bus.subscribe(watcherPath, watcherService, QLatin1String(signal), this, SLOT(askForHost()));
    m_bus.subscribe(watcherPath, watcherService, u"StatusNotifierItemRegistered"_s, this,
                    SLOT(itemRegistered(QString)));
}

void NotifierHosts::ownerChanged(const QString &owner)
{
    m_itemProcesses.clear();
    ++m_hostQuestion;
    if (owner.isEmpty() || m_known)
        setHosted(false);
    if (!owner.isEmpty())
        askForHost();
}

void NotifierHosts::askForHost()
{
    const quint64 question = ++m_hostQuestion;
    m_bus.call(
        propertyQuestion(u"IsStatusNotifierHostRegistered"_s), this,
        [this, question](const QDBusMessage &answer) {
            if (question == m_hostQuestion)
                hostAnswered(answer);
        },
        answerTimeout);
}

void NotifierHosts::hostAnswered(const QDBusMessage &answer)
{
    setHosted(propertyIn(answer).toBool());
    if (m_hosted)
        askForItems();
}

void NotifierHosts::setHosted(bool hosted)
{
    if (m_known && m_hosted == hosted)
        return;
    m_known = true;
    m_hosted = hosted;
    m_changed();
}

void NotifierHosts::askForItems()
{
    m_bus.call(
        propertyQuestion(u"RegisteredStatusNotifierItems"_s), this,
        [this](const QDBusMessage &answer) {
            const QStringList items = propertyIn(answer).toStringList().mid(0, mostItems);
            for (const QString &item : items)
                askForProcess(item);
        },
        answerTimeout);
}

void NotifierHosts::itemRegistered(const QString &item)
{
    askForProcess(item);
}

void NotifierHosts::askForProcess(const QString &item)
{
    // An item is named by its bus name, which may be followed by an object path.
    const QString service = item.section(QLatin1Char('/'), 0, 0);
    m_bus.callBus(u"GetConnectionUnixProcessID"_s, {service}, this, [this](const QDBusMessage &answer) {
        const quint32 process = answer.arguments().value(0).toUInt();
        if (answer.type() != QDBusMessage::ReplyMessage || m_itemProcesses.contains(process))
            return;
        m_itemProcesses.insert(process);
        m_changed();
    });
}

} // namespace tarvo
