#include "app/MainController.h"
#include "platform/Clock.h"
#include "platform/StatusBar.h"
#include "ui/Balloon.h"
#include "ui/BalloonPresenter.h"
#include "ui/DisplayStatus.h"

#include <QTimer>

namespace tarvo {

using namespace std::chrono_literals;

bool MainController::isBalloonShown() const
{
    return attachedWindow != nullptr;
}

void MainController::toggleAttachedWindowAtPoint(const std::optional<QString> &text)
{
    if (attachedWindow) {
        attachedWindow.reset();
        return;
    }
    if (!text || text->isEmpty())
        return;
    if (!balloonPresenter_)
        balloonPresenter_ = std::make_unique<BalloonPresenter>(services_.notifications, services_.isScreenComposited);
    attachedWindow = balloonPresenter_->show(*text, statusItem_ ? statusItem_->frame() : std::nullopt);
}

QString MainController::getDisplayStatusByType(int type)
{
    DisplayStatus status;
    whileAttached([&] { status = evaluateDisplayType(state_, type); });
    onMainThread([this, status] {
        if (!status.image.isEmpty())
            setStatusImage(status.image);
        if (status.tip)
            setStatusToolTip(*status.tip);
    });
    if (status.announcesUpdate)
        showAlertMsgForUpdate();
    return status.balloonText;
}

void MainController::displayUIStatus()
{
    for (const int type : {DisplayType::NewVersion, DisplayType::ThreeDayLimitExceeded,
                           DisplayType::MonthlyLimitExceeded, DisplayType::MonthlyLimitReached})
        displayNews(type);
    state_.statusDisplayFlowFinishFlag_ = true;
    state_.startDisplayFlowing_ = false;
}

void MainController::displayNews(int type)
{
    const QString text = getDisplayStatusByType(type);
    if (!text.isEmpty()) {
        state_.statusDisplayFlowFinishFlag_ = false;
        onMainThread([this, text] {
            if (attachedWindow)
                toggleAttachedWindowAtPoint(text);
            toggleAttachedWindowAtPoint(text);
        });
        pause(3s);
        closeBalloon(text);
    }
    pause(2s);
}

void MainController::closeBalloon(const QString &text)
{
    // A device that replaced this one meanwhile must not inherit the balloon: closing it is not tied to ours.
    const WorkScope untied({});
    onMainThread([this, text] {
        if (attachedWindow && !state_.stopProcModemStatus_)
            toggleAttachedWindowAtPoint(text);
    });
}

void MainController::pause(std::chrono::seconds duration)
{
    services_.clock.waitUntil(services_.clock.now() + duration, WorkScope::current());
}

void MainController::statusCheck(const QTimer *timer)
{
    if (timer != firstStatusTimer_.get() || !statusItem_)
        return;
    statusItem_->setTitle(QStringLiteral("11"));
    QTimer::singleShot(3s, &mainThread_, [this] { disSendcondStatus(); });
}

void MainController::disSendcondStatus()
{
    if (statusItem_)
        statusItem_->setTitle(QString());
}

} // namespace tarvo
