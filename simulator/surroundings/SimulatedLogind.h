#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QDBusVirtualObject>

#include <optional>

namespace tarvo {

/// A logind on a bus of its own, with at most one session, which lends one lock at a time and never sleeps by itself.
class SimulatedLogind final : public QDBusVirtualObject {
public:
    /// @param ownsName  false makes a stranger, who can only pretend
    explicit SimulatedLogind(const QString &busAddress, bool ownsName = true);
    ~SimulatedLogind() override;

    /// Tells everybody on the bus that the machine is about to sleep, or has woken. Returns when the bus has passed it on.
    void prepareForSleep(bool sleeping);

    /// Whether the caller's session is the one that is looked at; nil for no session, as there is none at first. Tells
    /// everybody on the bus. Returns when the bus has passed it on.
    void setSession(std::optional<bool> active);

    /// Sends @p signal to everybody on the bus. Returns when the bus has passed it on.
    void tell(const QDBusMessage &signal);

    /// From now on no call is answered.
    void fallSilent() { m_silent = true; }

    /// @return whether somebody holds the lock
    bool isLocked() const;
    /// @return how many times the lock to delay sleep was lent
    int locksLent() const { return m_locksLent; }

    QString introspect(const QString &path) const override;
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;

private:
    QDBusMessage answerTo(const QDBusMessage &question);
    QDBusUnixFileDescriptor lendLock();

    QDBusConnection m_bus;
    int m_lock = -1;
    int m_locksLent = 0;
    std::optional<bool> m_active;
    bool m_silent = false;
};

} // namespace tarvo
