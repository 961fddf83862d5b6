#pragma once

#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QString>
#include <QVariantList>

#include <functional>

namespace tarvo {

class BusConnection;
class BusInterface;

/// The running program on the session bus, so that a launcher or a second start finds it: the D-Bus interface
/// org.freedesktop.Application (freedesktop Desktop Entry Specification, "D-Bus Activation").
class ApplicationService final : public QDBusVirtualObject {
    Q_OBJECT

public:
    /// What the program is asked for. Each is called on the thread of this object, after the request was answered.
    struct Handlers {
        std::function<void()> activate; ///< to show itself
        std::function<void()> restart; ///< to start again, by the action "restart"
    };

    /// Takes the name @p applicationId whenever there is a bus.
    /// @param bus   outlives this object
    /// @param more  an interface of the same object; outlives this one; null for none
    ApplicationService(BusConnection &bus, QString applicationId, Handlers handlers, BusInterface *more = nullptr);

    QString introspect(const QString &path) const override;
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;

private:
    void requestName();
    /// Answers @p message, then calls @p handler.
    void carryOut(const QDBusMessage &message, const std::function<void()> &handler);

    BusConnection &m_bus;
    const QString m_applicationId;
    const Handlers m_handlers;
    BusInterface *const m_more;
};

/// @return the interface by which the application @p applicationId publishes how things stand, in its first version
QString publicInterfaceOf(const QString &applicationId);

/// The D-Bus interface that applications have (freedesktop Desktop Entry Specification).
inline const QString applicationInterface = QStringLiteral("org.freedesktop.Application");

/// @return the path of the object by which the application @p applicationId is reached on the session bus
QString applicationObjectPath(const QString &applicationId);

/// @return a call of the application that owns @p applicationId on the session bus, which is not started for that
QDBusMessage applicationCall(const QString &applicationId, const QString &interface, const QString &member,
                             const QVariantList &arguments);

/// Makes a call, and waits for the answer while events are handled, a few seconds at most.
/// @param busAddress  of the session bus
/// @return the answer; an error when there is none
QDBusMessage callAndWait(const QString &busAddress, const QDBusMessage &message);

/// Asks the program that owns @p applicationId on the session bus to show itself. @return whether it did
bool activateRunningApplication(const QString &busAddress, const QString &applicationId);

} // namespace tarvo
