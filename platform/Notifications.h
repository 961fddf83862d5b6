#pragma once

#include <QImage>
#include <QString>

#include <functional>

namespace tarvo {

/// What a desktop notification shows.
struct Notification {
    QString title; ///< one line, plain text
    QString text; ///< plain text, perhaps of several lines
    QString iconName; ///< a name of the desktop's icon theme
    QImage image{}; ///< shown in the icon's place where the service does so; null for none
    QString openLabel{}; ///< of the action that the notification offers; empty for none
    std::function<void()> opened{}; ///< called on the main thread when the user chose that action
};

/// The desktop's notification service. Used on the main thread only; no operation blocks.
class Notifications {
public:
    virtual ~Notifications() = default;

    /// @return whether the desktop has such a service at this moment
    virtual bool available() const = 0;

    /// Shows @p notification, in the place of the last one; it stays in the desktop's list until `close`, unless the
    /// user or the service takes it away before.
    /// @param failed  called later when the service turned it down or does not answer; not after `close` or
    ///                `forgetFailure`
    virtual void show(const Notification &notification, std::function<void()> failed) = 0;

    /// From now on nobody is told that showing the notification failed.
    virtual void forgetFailure() = 0;

    /// Takes the notification away; nothing when there is none.
    virtual void close() = 0;
};

} // namespace tarvo
