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
    BalloonPresenter(Notifications *notifications, std::function<bool()> isScreenComposited);
    ~BalloonPresenter();

    /// Shows @p text until the returned balloon is destroyed, which must be before the next is shown.
    /// @param iconFrame  where the icon is, in global coordinates with y downwards; nil when that is not known
    std::unique_ptr<Balloon> show(const QString &text, const std::optional<QRect> &iconFrame);

private:
    std::unique_ptr<Balloon> showWindow(const QString &text, const std::optional<QRect> &iconFrame);

    Notifications *notifications_;
    std::function<bool()> isScreenComposited_;
    std::unique_ptr<QWidget> balloonView_;
    QLabel *ballooonTextField_ = nullptr;
};

} // namespace tarvo
