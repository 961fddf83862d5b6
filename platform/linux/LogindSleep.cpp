#include "platform/linux/LogindSleep.h"

#include "platform/SystemLog.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QDBusVariant>

#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

constexpr int callTimeoutInMilliseconds = 5000;

const QString service = QStringLiteral("org.freedesktop.login1");
const QString path = QStringLiteral("/org/freedesktop/login1");
const QString managerInterface = QStringLiteral("org.freedesktop.login1.Manager");
const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");

} // namespace

LogindSleep::LogindSleep(const QString &busAddress, SystemLog &log, Handler willSleep, Handler didWake)
    : m_log(log)
    , m_willSleep(std::move(willSleep))
    , m_didWake(std::move(didWake))
    , m_bus(
          busAddress, [this] { busFound(); }, [this] { busLost(); })
{
    m_bus.open();
}

LogindSleep::~LogindSleep() = default;

void LogindSleep::busFound()
{
    m_session = std::make_unique<QObject>();
    auto connection = m_bus.connection();
    // Without a service name here: naming one makes Qt wait for the bus. The sender is checked instead.
    connection.connect(QString(), path, managerInterface, u"PrepareForSleep"_s, this,
                       SLOT(prepareForSleep(QDBusMessage)));
    const auto *owners =
        new QDBusServiceWatcher(service, connection, QDBusServiceWatcher::WatchForOwnerChange, m_session.get());
    connect(owners, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString &, const QString &, const QString &owner) { ownerChanged(owner); });
    readState();
}

void LogindSleep::busLost()
{
    m_session.reset();
    ownerChanged(QString());
    logOnce(u"no system bus: sleep and wake are not noticed"_s);
}

void LogindSleep::ownerChanged(const QString &owner)
{
    if (m_owner == owner)
        return;
    m_owner = owner;
    m_lock = QDBusUnixFileDescriptor();
    if (!owner.isEmpty())
        readState();
}

void LogindSleep::readState()
{
    call(propertiesInterface, u"Get"_s, {managerInterface, u"PreparingForSleep"_s}, [this](const QDBusMessage &answer) {
        m_owner = answer.service();
        stateIs(answer.arguments().value(0).value<QDBusVariant>().variant().toBool());
    });
}

void LogindSleep::prepareForSleep(const QDBusMessage &signal)
{
    // Every user of the machine may send this signal.
    if (signal.service() == m_owner && signal.signature() == u"b")
        stateIs(signal.arguments().constFirst().toBool());
}

void LogindSleep::stateIs(bool sleeping)
{
    const bool changed = std::exchange(m_sleeping, sleeping) != sleeping;
    if (!sleeping)
        takeLock();
    if (changed)
        sleeping ? m_willSleep() : m_didWake();
    if (sleeping)
        m_lock = QDBusUnixFileDescriptor();
}

void LogindSleep::takeLock()
{
    if (m_lock.isValid())
        return;
    const QVariantList arguments{u"sleep"_s, u"Tarvo"_s, u"Leave the modem alone before the machine sleeps"_s,
                                 u"delay"_s};
    call(managerInterface, u"Inhibit"_s, arguments, [this](const QDBusMessage &answer) {
        if (!m_sleeping && answer.service() == m_owner)
            m_lock = answer.arguments().value(0).value<QDBusUnixFileDescriptor>();
    });
}

void LogindSleep::call(const QString &interface, const QString &method, const QVariantList &arguments,
                       const Answer &answer)
{
    auto message = QDBusMessage::createMethodCall(service, path, interface, method);
    message.setArguments(arguments);
    const auto pending = m_bus.connection().asyncCall(message, callTimeoutInMilliseconds);
    auto *const watcher = new QDBusPendingCallWatcher(pending, m_session.get());
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, method, answer] {
        watcher->deleteLater();
        if (watcher->isError())
            logOnce(u"logind does not answer %1: %2"_s.arg(method, watcher->error().message()));
        else
            answer(watcher->reply());
    });
}

void LogindSleep::logOnce(const QString &line)
{
    if (m_logged.contains(line))
        return;
    m_logged.append(line);
    m_log.write(line);
}

} // namespace tarvo
