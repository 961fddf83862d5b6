#pragma once

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QSet>

#include <functional>

namespace tarvo {

/// Follows whether the session bus has a host for StatusNotifierItem, by signals alone. Nothing here blocks.
///
/// The interface is KDE's `org.kde.StatusNotifierWatcher`, which desktops agree on, as described in freedesktop.org's
/// draft of the Status Notifier specification.
class NotifierHosts final : public QObject {
    Q_OBJECT

public:
    /// @param bus      the session's bus; one that is not connected has no host
    /// @param changed  called from the event loop after any of what this object tells changed
    NotifierHosts(const QDBusConnection &bus, std::function<void()> changed);

    /// @return whether the first answer is there; until then nothing is known of hosts
    bool known() const { return m_known; }
    /// @return whether something shows items that are registered
    bool hosted() const { return m_hosted; }

    /// @return whether @p process has ever offered an item to the present watcher
    bool offersItems(quint32 process) const { return m_itemProcesses.contains(process); }

private:
    void ownerChanged(const QString &owner);
    void hostAnswered(const QDBusPendingCall &call);
    void setHosted(bool hosted);
    void askForItems();
    void askForProcess(const QString &item);

private Q_SLOTS:
    void askForHost();
    void itemRegistered(const QString &item);

private:
    std::function<void()> m_changed;
    QDBusConnection m_bus;
    QDBusServiceWatcher m_watcher;
    quint64 m_hostQuestion = 0; ///< counts the questions: only the answer to the last one is of interest
    bool m_known = false;
    bool m_hosted = false;
    QSet<quint32> m_itemProcesses;
};

} // namespace tarvo
