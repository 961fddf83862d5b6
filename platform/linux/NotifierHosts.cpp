#include "platform/linux/NotifierHosts.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusPendingReply>
#include <QDBusVariant>

namespace tarvo {

namespace {

const QString watcherService = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");
constexpr int answerTimeout = 2000; // milliseconds
constexpr qsizetype mostItems = 256;

QDBusMessage propertyQuestion(const QString &property)
{
    QDBusMessage question = QDBusMessage::createMethodCall(
        watcherService, watcherPath, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    question.setArguments({watcherService, property});
    question.setAutoStartService(false);
    return question;
}

QVariant propertyAnswer(const QDBusPendingCall &call)
{
    const QDBusPendingReply<QDBusVariant> reply(call);
    return reply.isError() ? QVariant() : reply.value().variant();
}

/// Calls @p handler with the finished call, unless @p receiver is gone by then.
template <typename Handler>
void whenFinished(const QDBusPendingCall &call, QObject *receiver, Handler handler)
{
    auto *const watcher = new QDBusPendingCallWatcher(call, receiver);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, receiver, [handler](QDBusPendingCallWatcher *done) {
        done->deleteLater();
        handler(*done);
    });
}

} // namespace

NotifierHosts::NotifierHosts(const QDBusConnection &bus, std::function<void()> changed)
    : m_changed(std::move(changed))
    , m_bus(bus)
    , m_watcher(watcherService, m_bus, QDBusServiceWatcher::WatchForOwnerChange)
{
    connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString &, const QString &, const QString &owner) { ownerChanged(owner); });
    for (const char *const signal : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"})
        m_bus.connect(watcherService, watcherPath, watcherService, QLatin1String(signal), this, SLOT(askForHost()));
    m_bus.connect(watcherService, watcherPath, watcherService, QStringLiteral("StatusNotifierItemRegistered"), this,
                  SLOT(itemRegistered(QString)));
    askForHost();
}

void NotifierHosts::ownerChanged(const QString &owner)
{
    m_itemProcesses.clear();
    ++m_hostQuestion;
    setHosted(false);
    if (!owner.isEmpty())
        askForHost();
}

void NotifierHosts::askForHost()
{
    if (!m_bus.isConnected()) { // then no call would ever be answered
        QMetaObject::invokeMethod(
            this, [this] { setHosted(false); }, Qt::QueuedConnection);
        return;
    }
    const quint64 question = ++m_hostQuestion;
    const auto call =
        m_bus.asyncCall(propertyQuestion(QStringLiteral("IsStatusNotifierHostRegistered")), answerTimeout);
    whenFinished(call, this, [this, question](const QDBusPendingCall &done) {
        if (question == m_hostQuestion)
            hostAnswered(done);
    });
}

void NotifierHosts::hostAnswered(const QDBusPendingCall &call)
{
    setHosted(propertyAnswer(call).toBool());
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
    const auto call = m_bus.asyncCall(propertyQuestion(QStringLiteral("RegisteredStatusNotifierItems")), answerTimeout);
    whenFinished(call, this, [this](const QDBusPendingCall &done) {
        const QStringList items = propertyAnswer(done).toStringList().mid(0, mostItems);
        for (const QString &item : items)
            askForProcess(item);
    });
}

void NotifierHosts::itemRegistered(const QString &item)
{
    askForProcess(item);
}

void NotifierHosts::askForProcess(const QString &item)
{
    // An item is named by its bus name, which may be followed by an object path.
    const QString service = item.section(QLatin1Char('/'), 0, 0);
    QDBusMessage question = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetConnectionUnixProcessID"));
    question.setArguments({service});
    whenFinished(m_bus.asyncCall(question, answerTimeout), this, [this](const QDBusPendingCall &done) {
        const QDBusPendingReply<quint32> reply(done);
        if (reply.isError() || m_itemProcesses.contains(reply.value()))
            return;
        m_itemProcesses.insert(reply.value());
        m_changed();
    });
}

} // namespace tarvo
