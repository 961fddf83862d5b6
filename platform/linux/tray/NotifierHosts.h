#pragma once

#include "platform/linux/bus/BusName.h"

#include <QDBusMessage>
#include <QObject>
#include <QSet>

#include <functional>

namespace tarvo {

class BusConnection;

/// Follows whether the session bus has a host for StatusNotifierItem, by signals alone. Nothing here blocks.
///
/// The interface is KDE's `org.kde.StatusNotifierWatcher`, which desktops agree on, as described in freedesktop.org's
/// draft of the Status Notifier specification.
class NotifierHosts final : public QObject {
    Q_OBJECT

public:
    /// @param bus      the session's bus, which has no host while it is not there; outlives this object
    /// @param changed  called after any of what this object tells changed
    NotifierHosts(BusConnection &bus, std::function<void()> changed);

    /// @return whether the first answer is there; until then nothing is known of hosts
    bool known() const { return m_known; }
    /// @return whether something shows items that are registered
    bool hosted() const { return m_hosted; }

    /// @return whether @p process has ever offered an item to the present watcher
    bool offersItems(quint32 process) const { return m_itemProcesses.contains(process); }

private:
    void ownerChanged(const QString &owner);
    void hostAnswered(const QDBusMessage &answer);
    void setHosted(bool hosted);
    void askForItems();
    void askForProcess(const QString &item);

private Q_SLOTS:
    void askForHost();
    void itemRegistered(const QString &item);

private:
    std::function<void()> m_changed;
    BusConnection &m_bus;
    quint64 m_hostQuestion = 0; ///< counts the questions: only the answer to the last one is of interest
    bool m_known = false;
    bool m_hosted = false;
    QSet<quint32> m_itemProcesses;
    BusName m_watcher;
};

} // namespace tarvo
