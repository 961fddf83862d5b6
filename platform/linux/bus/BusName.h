#pragma once

#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QVariantList>

#include <functional>
#include <optional>

namespace tarvo {

class BusConnection;

/// Follows which client of a message bus owns a name, without waiting for the bus.
class BusName final : public QObject {
    Q_OBJECT

public:
    using Handler = std::function<void(const QString &owner)>;
    using Answer = std::function<void(const QDBusMessage &answer)>;

    /// @param bus      outlives this object
    /// @param changed  called with the owner's unique name once the bus is found, and when it changes; with an empty text
    ///                 for nobody, also when the bus is lost
    BusName(BusConnection &bus, QString name, Handler changed);

    /// Calls @p method of the name's owner. While nobody owns the name, the bus may start somebody for the call.
    /// @param answered  given the reply or the error, as by `BusConnection::call`; the error `QDBusError::Disconnected` when
    ///                  the name has another owner by then
    void call(const QString &path, const QString &interface, const QString &method, const QVariantList &arguments,
              QObject *receiver, const Answer &answered);

private Q_SLOTS:
    void ownerChanged(const QDBusMessage &signal);

private:
    void askForOwner();
    void busLost();
    void tell(const QString &owner);
    QString owner() const { return m_told.value_or(QString()); }

    BusConnection &m_bus;
    const QString m_name;
    const Handler m_changed;
    std::optional<QString> m_told; ///< the owner that was told last; nil before the bus has said who it is
};

} // namespace tarvo
