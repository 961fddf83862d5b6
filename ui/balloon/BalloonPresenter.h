#pragma once

#include <QImage>
#include <QObject>
#include <QRect>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <set>

class QLabel;
class QWidget;

namespace tarvo {

class Balloon;
class Notifications;
class OvAttachedWindow;

/// What goes with a balloon's text where the desktop has room for it.
struct BalloonExtras {
    QString kind{}; ///< a notification takes the place of the last one of its kind
    QString title{};
    QImage image{};
    QString openLabel{}; ///< of the notification's action; empty where there is none
    std::function<void()> opened{}; ///< the user has chosen that action
    std::function<void()> appeared{}; ///< the balloon has come onto the screen; not called when it was closed before
};

/// Shows short messages in the way that the desktop allows: in a balloon that points at the icon where the icon's place
/// is known, else as a notification, else in a balloon at the corner near the panel. Used on the main thread only.
class BalloonPresenter {
public:
    /// What the presenter asks for and tells, all on the main thread.
    struct Callbacks {
        std::function<bool()> isScreenComposited{}; ///< whether windows may be translucent; empty means no
        /// Tells where the icon is, in global coordinates with y downwards; nil when that is not known.
        std::function<std::optional<QRect>()> iconFrame{};
        std::function<void()> clicked{}; ///< the user has clicked a balloon
    };

    /// @param notifications  outlives the presenter; null where there are none
    BalloonPresenter(Notifications *notifications, Callbacks callbacks);
    ~BalloonPresenter();
    BalloonPresenter(const BalloonPresenter &) = delete;
    BalloonPresenter &operator=(const BalloonPresenter &) = delete;

    /// Closes the balloon if one is shown; otherwise opens one with @p text, unless that is nil or empty.
    void toggleAttachedWindowAtPoint(const std::optional<QString> &text, const BalloonExtras &extras = {});
    /// @return whether a balloon was opened and not closed; the user may have dismissed it
    bool isShown() const { return attachedWindow != nullptr; }

    /// Closes the balloon, but not under the pointer: then as soon as that has left it.
    /// @param closed  called when it has been closed, in whatever way; at once when none is shown
    void dismiss(std::function<void()> closed);
    /// Takes back the notifications that are left of earlier balloons.
    void withdraw();

private:
    void close();
    std::unique_ptr<Balloon> show(const QString &text, const BalloonExtras &extras);
    std::unique_ptr<Balloon> showWindow(const QString &text, const std::optional<QRect> &iconFrame);
    void listenTo(const OvAttachedWindow &window);

    Notifications *const m_notifications;
    const Callbacks m_callbacks;
    std::unique_ptr<QWidget> balloonView_;
    QLabel *ballooonTextField_ = nullptr;
    std::function<void()> m_closed; ///< told when the balloon that is being dismissed has been closed
    std::set<QString> m_notified; ///< the kinds of the notifications that may be left
    QObject m_context; ///< what is queued for it ends with the presenter
    std::unique_ptr<Balloon> attachedWindow; ///< the balloon while it is shown
};

} // namespace tarvo
