#pragma once

#include "platform/linux/bus/BusProbe.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QFileSystemWatcher>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>

#include <functional>
#include <limits>
#include <memory>
#include <utility>
#include <vector>

class QSocketNotifier;

namespace tarvo {

/// A connection to a message bus that never waits for the bus, and that is made again when the bus comes back. What is
/// watched or served is so on each connection.
///
/// A bus that listens but does not answer counts as none until it answers. One that is not there is tried again a few
/// times, each after a longer while. From then on nothing wakes up until something happens where the bus puts its socket.
///
/// A message of more than 64 KiB is refused before it is kept: it ends the connection, which is then made again.
///
/// Qt's own connections to a bus wait for its greeting, and some operations on them for a name's owner. So this is a
/// plain connection of Qt's to a peer: the greeting and the match rules are sent here, as calls like any other.
class BusConnection final : public QObject {
    Q_OBJECT

public:
    using Handler = std::function<void()>;
    using Answer = std::function<void(const QDBusMessage &answer)>;

    static constexpr int endless = std::numeric_limits<int>::max();

    /// @param address  of which only Unix sockets are tried
    explicit BusConnection(const QString &address);
    ~BusConnection() override;

    /// Calls @p found each time the bus has been connected to and @p lost each time it went or turned out not to be there,
    /// and at once the one that is true by now; for as long as @p receiver lives.
    void follow(QObject *receiver, const Handler &found, const Handler &lost);

    /// Makes a call.
    /// @param answered  given the reply or the error later and once, unless @p receiver or this object is gone by then;
    ///                  without a bus, or when the bus goes, the error `QDBusError::Disconnected`, after @p lost is called
    /// @param timeout   milliseconds until there is an error in place of a reply
    void call(const QDBusMessage &message, QObject *receiver, const Answer &answered, int timeout = endless);
    /// Calls @p method of the bus itself, as above.
    void callBus(const QString &method, const QVariantList &arguments, QObject *receiver, const Answer &answered);
    /// Sends @p message without wanting a reply; nothing without a bus.
    void send(const QDBusMessage &message);

    /// Lets @p object answer what is sent to @p path from now on, for as long as both live.
    void serve(const QString &path, QDBusVirtualObject &object);

    /// Has @p slot of @p receiver called by a signal from now on, for as long as both live.
    ///
    /// Whoever may talk to the bus may send that signal to us: where that matters the slot looks at the sender.
    /// @param path           empty for any
    /// @param firstArgument  what the signal's first argument must be; empty for any
    void subscribe(const QString &path, const QString &interface, const QString &signal, QObject *receiver,
                   const char *slot, const QString &firstArgument = {});

private Q_SLOTS:
    void disconnected();

Q_SIGNALS:
    void found();
    void lost();
    void closed(); ///< what was asked over the connection that was there will not be answered

private:
    enum class State { Unknown, Lost, Found };

    struct Subscription {
        QString path;
        QString interface;
        QString signal;
        QPointer<QObject> receiver;
        const char *slot;
        QString firstArgument;
    };

    void open();
    void probeChanged();
    void dropProbe();
    void greet();
    void close();
    void watch(const Subscription &to);
    void restore();
    void setState(State state);
    void waitForBus(bool listens);
    void watchFolder(const QString &folder);
    void socketFolderChanged();
    QDBusConnection connection() const { return QDBusConnection(m_name); }

    const QString m_address;
    const QString m_socketPath; ///< empty when the address names no file
    State m_state = State::Unknown;
    std::unique_ptr<BusProbe> m_probe;
    std::unique_ptr<QSocketNotifier> m_probeNotifier;
    QString m_name; ///< of the present connection; empty without one
    std::vector<Subscription> m_subscriptions;
    std::vector<std::pair<QString, QPointer<QDBusVirtualObject>>> m_served; ///< by path
    QTimer m_answerTimer; ///< runs until the bus has given its first answer, or counts as none
    QTimer m_retry;
    int m_attempts = 0;
    QFileSystemWatcher m_folders;
};

} // namespace tarvo
