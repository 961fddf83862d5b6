#pragma once

#include "app/command/CommandLine.h"
#include "platform/linux/bus/BusConnection.h"
#include "platform/linux/bus/BusName.h"

#include <QByteArray>
#include <QDBusMessage>
#include <QObject>
#include <QVariantMap>

#include <functional>
#include <optional>

namespace tarvo {

/// Prints what the running companion publishes on the session bus, once or after each change.
class StatusFollower final : public QObject {
    Q_OBJECT

public:
    struct Callbacks {
        std::function<void(const QByteArray &line)> print;
        std::function<void()> finished; ///< nothing more will be printed
    };

    /// @param bus  outlives this object
    StatusFollower(BusConnection &bus, QString applicationId, const Request &request, Callbacks callbacks);

    /// Calls back from now on.
    void start();

    /// @return 0 when the modem was connected at last, 3 when no companion ran, and 1 otherwise
    int exitStatus() const;

private Q_SLOTS:
    void propertiesChanged();

private:
    void ownerChanged(const QString &owner);
    void ask();
    void show(const QVariantMap &state);

    BusConnection &m_bus;
    const QString m_applicationId;
    const Request m_request;
    const Callbacks m_callbacks;
    QVariantMap m_state;
    QByteArray m_line; ///< the last one that was printed
    bool m_isRunning = false;
    std::optional<BusName> m_companion;
};

} // namespace tarvo
