#include "platform/linux/desktop/LogindSession.h"

#include "platform/linux/bus/BusConnection.h"

#include <QDBusError>
#include <QDBusObjectPath>
#include <QDBusVariant>

#include <chrono>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

const QString managerPath = u"/org/freedesktop/login1"_s;
const QString managerInterface = u"org.freedesktop.login1.Manager"_s;
const QString sessionInterface = u"org.freedesktop.login1.Session"_s;
const QString propertiesInterface = u"org.freedesktop.DBus.Properties"_s;
constexpr std::chrono::seconds grace{5};

/// @return whether the logind that was asked has gone; who comes next is asked again
bool hasGone(const QDBusMessage &answer)
{
    return QDBusError(answer).type() == QDBusError::Disconnected;
}

} // namespace

LogindSession::LogindSession(BusConnection &bus, Handler changed)
    : m_bus(bus)
    , m_changed(std::move(changed))
    , m_name(bus, u"org.freedesktop.login1"_s, [this](const QString &owner) { ownerChanged(owner); })
{
    m_grace.setSingleShot(true);
    m_grace.setInterval(grace);
    connect(&m_grace, &QTimer::timeout, this, [this] { setActive(true); });
    for (const char *const signal : {"SessionNew", "SessionRemoved"})
        m_bus.subscribe(managerPath, managerInterface, QLatin1String(signal), this,
                        SLOT(sessionsChanged(QDBusMessage)));
}

void LogindSession::ownerChanged(const QString &owner)
{
    m_owner = owner;
    m_session.clear();
    if (!owner.isEmpty())
        findSession();
    else if (!m_active)
        m_grace.start();
}

void LogindSession::findSession()
{
    // A program that the user's service manager started is in no session: "auto" is then the one on the user's screen.
    m_name.call(managerPath, managerInterface, u"GetSession"_s, {u"auto"_s}, this, [this](const QDBusMessage &answer) {
        if (answer.type() == QDBusMessage::ReplyMessage)
            return followSession(answer.arguments().value(0).value<QDBusObjectPath>().path());
        if (hasGone(answer))
            return;
        m_session.clear();
        setActive(true);
    });
}

void LogindSession::followSession(const QString &path)
{
    m_session = path;
    if (!m_followed.contains(path)) {
        m_followed.append(path);
        m_bus.subscribe(path, propertiesInterface, u"PropertiesChanged"_s, this, SLOT(propertiesChanged(QDBusMessage)),
                        sessionInterface);
    }
    readState();
}

void LogindSession::readState()
{
    m_name.call(m_session, propertiesInterface, u"Get"_s, {sessionInterface, u"Active"_s}, this,
                [this](const QDBusMessage &answer) {
                    if (hasGone(answer))
                        return;
                    const QVariant active = answer.arguments().value(0).value<QDBusVariant>().variant();
                    setActive(answer.type() != QDBusMessage::ReplyMessage || active.toBool());
                });
}

void LogindSession::sessionsChanged(const QDBusMessage &signal)
{
    // Every user of the machine may send such signals.
    if (signal.service() == m_owner)
        findSession();
}

void LogindSession::propertiesChanged(const QDBusMessage &signal)
{
    if (signal.service() == m_owner && signal.path() == m_session)
        readState();
}

void LogindSession::setActive(bool active)
{
    m_grace.stop();
    if (std::exchange(m_active, active) != active)
        m_changed(active);
}

} // namespace tarvo
