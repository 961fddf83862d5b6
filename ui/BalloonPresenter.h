#pragma once

#include <QRect>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

class QLabel;
class QWidget;

namespace tarvo {

class Balloon;
class Notifications;

/// Shows short messages in the way that the desktop allows: in a balloon that points at the icon where the icon's place
/// is known, else as a notification, else in a balloon at the corner near the panel. Used on the main thread only.
class BalloonPresenter {
public:
    /// @param notifications       outlives the presenter; null where there are none
    /// @param isScreenComposited  whether windows may be translucent; may be empty, which means no
    /// @param iconFrame           tells where the icon is, in global coordinates with y downwards; nil when that is not
    ///                            known
    BalloonPresenter(Notifications *notifications, std::function<bool()> isScreenComposited,
                     std::function<std::optional<QRect>()> iconFrame);
    ~BalloonPresenter();
    BalloonPresenter(const BalloonPresenter &) = delete;
    BalloonPresenter &operator=(const BalloonPresenter &) = delete;

    /// Closes the balloon if one is shown; otherwise opens one with @p text, unless that is nil or empty.
    void toggleAttachedWindowAtPoint(const std::optional<QString> &text);
    /// @return whether a balloon was opened and not closed; the user may have dismissed it
    bool isShown() const { return attachedWindow != nullptr; }

private:
    std::unique_ptr<Balloon> show(const QString &text, const std::optional<QRect> &iconFrame);
    std::unique_ptr<Balloon> showWindow(const QString &text, const std::optional<QRect> &iconFrame);

    Notifications *m_notifications;
    const std::function<bool()> m_isScreenComposited;
    const std::function<std::optional<QRect>()> m_iconFrame;
    std::unique_ptr<QWidget> balloonView_;
    QLabel *ballooonTextField_ = nullptr;
    std::unique_ptr<Balloon> attachedWindow; ///< the balloon while it is shown
};

} // namespace tarvo
