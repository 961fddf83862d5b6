#include "ui/BalloonPresenter.h"

#include "platform/Notifications.h"
#include "ui/Balloon.h"
#include "ui_BalloonView.h"

#include <QFontMetricsF>
#include <QWidget>

namespace tarvo {

BalloonPresenter::BalloonPresenter(Notifications *notifications, std::function<bool()> isScreenComposited)
    : notifications_(notifications)
    , isScreenComposited_(std::move(isScreenComposited))
    , balloonView_(std::make_unique<QWidget>())
{
    Ui::BalloonView interface;
    interface.setupUi(balloonView_.get());
    ballooonTextField_ = interface.ballooonTextField_;
}

BalloonPresenter::~BalloonPresenter() = default;

std::unique_ptr<Balloon> BalloonPresenter::show(const QString &, const std::optional<QRect> &)
{
    return nullptr;
}

} // namespace tarvo
