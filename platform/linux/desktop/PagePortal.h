#pragma once

#include "platform/linux/bus/BusName.h"

#include <QDBusMessage>
#include <QMap>
#include <QObject>
#include <QString>

#include <functional>

class QUrl;

namespace tarvo {

class BusConnection;

/// The session's service that opens pages outside of whatever confines this program (org.freedesktop.portal.OpenURI of
/// xdg-desktop-portal). It is started when it is called; nothing here waits for it.
class PagePortal final : public QObject {
    Q_OBJECT

public:
    using Handler = std::function<void()>;

    /// @param bus  the session's bus; outlives this object
    explicit PagePortal(BusConnection &bus);

    /// Has the desktop open @p url.
    /// @param failed  called once when there is no such service, or it says that it could not: later, and
    ///                not after this object is gone. A user who does not want the page open is no failure
    void open(const QUrl &url, const Handler &failed);

private Q_SLOTS:
    void responded(const QDBusMessage &signal);

private:
    void answered(const QDBusMessage &answer, const Handler &failed);
    void ownerChanged(const QString &owner);
    void conclude(const QString &request, uint response);

    BusConnection &m_bus;
    QMap<QString, Handler> m_requests; ///< what the service has taken on, by the request's object
    QMap<QString, uint> m_early; ///< responses that came before the answer that names their request
    QString m_owner; ///< of the service's name; empty for nobody
    BusName m_service;
};

} // namespace tarvo
