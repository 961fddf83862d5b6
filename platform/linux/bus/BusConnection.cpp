#include "platform/linux/bus/BusConnection.h"

#include "platform/linux/bus/BusAddress.h"

#include <QDBusError>
#include <QDBusPendingCallWatcher>
#include <QFile>
#include <QFileInfo>
#include <QSocketNotifier>

#include <dlfcn.h>

#include <algorithm>
#include <chrono>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::milliseconds answerTimeout{500}; // with the first answer, before the bus counts as none
constexpr int maxAttempts = 5;
constexpr std::chrono::seconds firstPause{1};
constexpr long maxMessageSize = 64 << 10;

const QString busService = u"org.freedesktop.DBus"_s;
const QString busPath = u"/org/freedesktop/DBus"_s;

QString unusedName()
{
    static int count = 0;
    return u"tarvo-bus-%1"_s.arg(++count);
}

QDBusMessage noBus()
{
    return QDBusMessage::createError(QDBusError::Disconnected, u"there is no bus"_s);
}

QString socketPathOf(const QString &address)
{
    const QList<QByteArray> sockets = unixSocketsOf(address);
    return !sockets.isEmpty() && sockets.first().startsWith('/') ? QFile::decodeName(sockets.first()) : QString();
}

/// Has the connection end when a message comes that is larger than any that is meant for us, before it is kept.
///
/// Qt has no name for this limit of the library that it speaks to the bus with; the library's own is 128 MiB.
void boundMessages(const QDBusConnection &bus)
{
    using SetMaxMessageSize = void (*)(void *connection, long size);
    static const auto setMaxMessageSize =
        reinterpret_cast<SetMaxMessageSize>(dlsym(RTLD_DEFAULT, "dbus_connection_set_max_message_size"));
    if (setMaxMessageSize)
        setMaxMessageSize(bus.internalPointer(), maxMessageSize);
}

QString nearestFolder(const QString &path)
{
    QString folder = QFileInfo(path).path();
    while (!QFileInfo(folder).isDir() && folder != u"/" && folder != u".")
        folder = QFileInfo(folder).path();
    return folder;
}

} // namespace

BusConnection::BusConnection(const QString &address)
    : m_address(unixPartOf(address))
    , m_socketPath(socketPathOf(m_address))
{
    m_retry.setSingleShot(true);
    m_answerTimer.setSingleShot(true);
    connect(&m_retry, &QTimer::timeout, this, &BusConnection::open);
    connect(&m_answerTimer, &QTimer::timeout, this, [this] { setState(State::Lost); });
    connect(&m_folders, &QFileSystemWatcher::directoryChanged, this, &BusConnection::socketFolderChanged);
    // From the event loop, so that whoever follows from the start is told in the order of following.
    QMetaObject::invokeMethod(this, &BusConnection::open, Qt::QueuedConnection);
}

BusConnection::~BusConnection()
{
    dropProbe();
    close();
}

void BusConnection::follow(QObject *receiver, const Handler &found, const Handler &lost)
{
    connect(this, &BusConnection::found, receiver, found);
    connect(this, &BusConnection::lost, receiver, lost);
    if (m_state == State::Found)
        found();
    else if (m_state == State::Lost)
        lost();
}

void BusConnection::call(const QDBusMessage &message, QObject *receiver, const Answer &answered, int timeout)
{
    if (m_name.isEmpty()) {
        QMetaObject::invokeMethod(
            receiver, [answered] { answered(noBus()); }, Qt::QueuedConnection);
        return;
    }
    auto *const pending = new QDBusPendingCallWatcher(connection().asyncCall(message, timeout), receiver);
    const auto answerOnce = [this, pending, answered](const QDBusMessage &answer) {
        pending->disconnect(this);
        disconnect(pending);
        pending->deleteLater();
        answered(answer);
    };
    connect(pending, &QDBusPendingCallWatcher::finished, this, [=] { answerOnce(pending->reply()); });
    connect(this, &BusConnection::closed, pending, [=] { answerOnce(noBus()); });
}

void BusConnection::callBus(const QString &method, const QVariantList &arguments, QObject *receiver,
                            const Answer &answered)
{
    auto message = QDBusMessage::createMethodCall(busService, busPath, busService, method);
    message.setArguments(arguments);
    call(message, receiver, answered);
}

void BusConnection::serve(const QString &path, QDBusVirtualObject &object)
{
    m_served.emplace_back(path, &object);
    if (m_state == State::Found)
        connection().registerVirtualObject(path, &object);
}

void BusConnection::send(const QDBusMessage &message)
{
    if (!m_name.isEmpty())
        connection().send(message);
}

void BusConnection::subscribe(const QString &path, const QString &interface, const QString &signal, QObject *receiver,
                              const char *slot, const QString &firstArgument)
{
    m_subscriptions.push_back({path, interface, signal, receiver, slot, firstArgument});
    if (m_state == State::Found)
        watch(m_subscriptions.back());
}

void BusConnection::watch(const Subscription &to)
{
    const auto ofPath = to.path.isEmpty() ? QString() : u",path='%1'"_s.arg(to.path);
    const auto isFirst = to.firstArgument.isEmpty() ? QString() : u",arg0='%1'"_s.arg(to.firstArgument);
    callBus(u"AddMatch"_s,
            {u"type='signal',interface='%1',member='%2'%3%4"_s.arg(to.interface, to.signal, ofPath, isFirst)}, this,
            [](const QDBusMessage &) {});
    const auto arguments = to.firstArgument.isEmpty() ? QStringList() : QStringList{to.firstArgument};
    connection().connect(QString(), to.path, to.interface, to.signal, arguments, QString(), to.receiver, to.slot);
}

void BusConnection::restore()
{
    std::erase_if(m_subscriptions, [](const Subscription &each) { return !each.receiver; });
    std::erase_if(m_served, [](const auto &each) { return !each.second; });
    for (const Subscription &each : m_subscriptions)
        watch(each);
    for (const auto &[path, object] : m_served)
        connection().registerVirtualObject(path, object);
}

void BusConnection::open()
{
    m_retry.stop();
    if (m_state == State::Unknown)
        m_answerTimer.start(answerTimeout);
    dropProbe();
    m_probe = std::make_unique<BusProbe>(m_address);
    if (m_probe->descriptor() >= 0) {
        m_probeNotifier = std::make_unique<QSocketNotifier>(m_probe->descriptor(), QSocketNotifier::Read);
        connect(m_probeNotifier.get(), &QSocketNotifier::activated, this, &BusConnection::probeChanged,
                Qt::QueuedConnection); // as it ends the notifier
    }
    probeChanged();
}

void BusConnection::probeChanged()
{
    if (!m_probe)
        return;
    const BusProbe::State state = m_probe->update();
    if (state == BusProbe::State::Mute && m_probe->descriptor() >= 0)
        return;
    dropProbe();
    if (state == BusProbe::State::Answered)
        return greet();
    setState(State::Lost);
    waitForBus(state == BusProbe::State::Mute);
}

void BusConnection::dropProbe()
{
    m_probeNotifier.reset();
    m_probe.reset();
}

void BusConnection::greet()
{
    m_name = unusedName();
    auto bus = QDBusConnection::connectToPeer(m_address, m_name);
    if (!bus.isConnected())
        return disconnected();
    boundMessages(bus);
    bus.connect(QString(), u"/org/freedesktop/DBus/Local"_s, u"org.freedesktop.DBus.Local"_s, u"Disconnected"_s, this,
                SLOT(disconnected()));
    callBus(u"Hello"_s, {}, this, [this](const QDBusMessage &answer) {
        if (answer.type() != QDBusMessage::ReplyMessage)
            return disconnected();
        m_attempts = 0;
        watchFolder({});
        restore();
        setState(State::Found);
    });
}

void BusConnection::close()
{
    if (!m_name.isEmpty())
        QDBusConnection::disconnectFromPeer(std::exchange(m_name, QString()));
}

void BusConnection::disconnected()
{
    if (m_name.isEmpty())
        return; // the end of a connection is told in several ways
    close();
    setState(State::Lost);
    Q_EMIT closed();
    waitForBus(false);
}

void BusConnection::setState(State state)
{
    m_answerTimer.stop();
    if (std::exchange(m_state, state) == state)
        return;
    state == State::Found ? Q_EMIT found() : Q_EMIT lost();
}

void BusConnection::waitForBus(bool listens)
{
    // It may be a socket that is not listened to, or not yet.
    const bool mayAnswer = m_socketPath.isEmpty() || QFileInfo::exists(m_socketPath);
    if (listens || (mayAnswer && m_attempts < maxAttempts)) {
        m_retry.start(firstPause * (1 << m_attempts));
        m_attempts = std::min(m_attempts + 1, maxAttempts);
    }
    if (!m_socketPath.isEmpty())
        watchFolder(nearestFolder(m_socketPath));
}

void BusConnection::watchFolder(const QString &folder)
{
    if (!m_folders.directories().isEmpty())
        m_folders.removePaths(m_folders.directories());
    if (!folder.isEmpty())
        m_folders.addPath(folder);
}

void BusConnection::socketFolderChanged()
{
    if (!m_name.isEmpty() || m_probe)
        return;
    m_attempts = 0;
    if (QFileInfo::exists(m_socketPath))
        open();
    else
        waitForBus(false);
}

} // namespace tarvo
