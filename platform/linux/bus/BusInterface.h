#pragma once

#include "platform/PublicInterface.h"

#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QTimer>
#include <QVariantMap>

namespace tarvo {

class BusConnection;

/// One interface of an object on a message bus: properties that others can read, whose changes are told to all, and
/// methods that others can call (D-Bus Specification, "Standard Interfaces").
class BusInterface final : public QObject, public PublicInterface {
    Q_OBJECT

public:
    /// @param bus          outlives this object
    /// @param path         of the object that has the interface
    /// @param description  a document of introspection data with this interface and no other
    BusInterface(BusConnection &bus, QString path, const QString &description);

    void setHandlers(const Handlers &handlers) override { m_handlers = handlers; }
    void setProperties(const QVariantMap &properties) override;

    /// @return the interface as a part of introspection data
    QString description() const { return m_description; }
    /// @return whether @p question is for this interface
    bool isAsked(const QDBusMessage &question) const;
    /// Answers @p question for this interface; a call of a method later, as programs in a sandbox may only read.
    void answer(const QDBusMessage &question);

private:
    QDBusMessage answerToRead(const QDBusMessage &question) const;
    QDBusMessage answerToCall(const QDBusMessage &question) const;
    void tellChanges();

    BusConnection &m_bus;
    const QString m_path;
    const QString m_description;
    const QString m_name;
    Handlers m_handlers;
    QVariantMap m_properties;
    QVariantMap m_told;
    QTimer m_pause; ///< runs for a second after changes were told
};

} // namespace tarvo
