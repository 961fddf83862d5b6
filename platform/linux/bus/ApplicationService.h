#pragma once

#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QString>
#include <QVariantList>
#include <QVariantMap>

#include <functional>

namespace tarvo {

class BusConnection;

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
    /// @param bus  outlives this object
    /// @param properties  texts by name, which others can read under the interface @p applicationId
    ApplicationService(BusConnection &bus, QString applicationId, Handlers handlers, QVariantMap properties = {});

    QString introspect(const QString &path) const override;
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;

private:
    void requestName();
    /// @return the answer to @p question of the interface org.freedesktop.DBus.Properties
    QDBusMessage answerAboutProperties(const QDBusMessage &question) const;

    BusConnection &m_bus;
    const QString m_applicationId;
    const Handlers m_handlers;
    const QVariantMap m_properties;
};

/// The D-Bus interface that applications have (freedesktop Desktop Entry Specification).
inline const QString applicationInterface = QStringLiteral("org.freedesktop.Application");

/// @return a call of the application that owns @p applicationId on the session bus, which is not started for that
QDBusMessage applicationCall(const QString &applicationId, const QString &interface, const QString &member,
                             const QVariantList &arguments);

/// Asks the program that owns @p applicationId on the session bus to show itself, while events are handled for a few
/// seconds at most. @return whether it did
bool activateRunningApplication(const QString &busAddress, const QString &applicationId);

} // namespace tarvo
