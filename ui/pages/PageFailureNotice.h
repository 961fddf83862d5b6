#pragma once

#include "ui/balloon/BalloonPresenter.h"

#include <QString>
#include <QTimer>

namespace tarvo {

class Notifications;

/// Tells the user of a page that no program could open: in a notification, or in a balloon where the desktop shows no
/// notifications. Used on the main thread only.
class PageFailureNotice {
public:
    /// @param notifications, callbacks  as those of the news' balloons, but that a click only closes this one
    PageFailureNotice(Notifications *notifications, BalloonPresenter::Callbacks callbacks);
    ~PageFailureNotice();
    PageFailureNotice(const PageFailureNotice &) = delete;
    PageFailureNotice &operator=(const PageFailureNotice &) = delete;

    /// @param page  the address that was to be opened
    void tell(const QString &page);

private:
    void showBalloon(const QString &page);

    Notifications *const m_notifications;
    BalloonPresenter m_balloon;
    QTimer m_closing; ///< runs while the balloon is shown
};

} // namespace tarvo
