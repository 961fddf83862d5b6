#pragma once

#include <QImage>
#include <QString>

#include <functional>

namespace tarvo {

/// What a desktop notification shows.
struct Notification {
    QString kind; ///< at most one of a kind is shown; for the program alone
    QString title; ///< one line, plain text
    QString text; ///< plain text, perhaps of several lines
    QString iconName; ///< a name of the desktop's icon theme
    QImage image{}; ///< shown in the icon's place where the service does so; null for none
    QString openLabel{}; ///< of the action that the notification offers; empty for none
    std::function<void()> opened{}; ///< called on the main thread when the user chose that action, at most once
};

/// The desktop's notification service. Used on the main thread only; no operation blocks.
class Notifications {
public:
    virtual ~Notifications() = default;

    /// @return whether the desktop has such a service at this moment
    virtual bool available() const = 0;

    /// Shows @p notification, in the place of the last one of its kind if that is still there; it stays in the desktop's
    /// list until `close`, unless the user or the service takes it away before.
    /// @param answered  called later, once: whether it is shown. It is not when the service turned it down or does not
    ///                  answer for a second. Not called after `close` or `forgetAnswer`
    virtual void show(const Notification &notification, std::function<void(bool shown)> answered) = 0;

    /// From now on nobody is told whether the notification of that kind is shown.
    virtual void forgetAnswer(const QString &kind) = 0;

    /// Takes the notification of that kind away; nothing when there is none.
    virtual void close(const QString &kind) = 0;
};

} // namespace tarvo
