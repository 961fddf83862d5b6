#include "RouterObserver/ConfigManager.h"
#include "app/MainController.h"
#include "modemapi/AnswerFields.h"
#include "monitor/ModemMainState.h"
#include "monitor/RepeatingTimer.h"

#include <QDateTime>
#include <QTimer>
#include <QtGlobal>

#include <chrono>

namespace tarvo {

using namespace std::chrono_literals;

void MainController::startGetModemStatus()
{
    endAttachment();
    if (configurationFlag(QStringLiteral("IsDisplayNetStatusInToolBar"))) {
        if (statusItem_)
            setStatusImage(QStringLiteral("online"));
        else
            createStatusItems(QStringLiteral("online"));
    }
    startThread([this] { newUpdateStatus(); });
}

void MainController::newUpdateStatus()
{
    log(QStringLiteral("start newUpdateStatus"));
    std::shared_ptr<RepeatingTimer> timer;
    const bool attached = whileAttached([&] {
        if (!modemStatusTimer_) {
            state_.ifOpenUrlWhileDevicePlugIn_ = true;
            modemStatusTimer_ = std::make_shared<RepeatingTimer>(services_.clock, 1000ms);
        }
        timer = modemStatusTimer_;
    });
    while (attached && timer->waitForFire(WorkScope::current()))
        timerHandler(timer);
}

void MainController::timerHandler(const std::shared_ptr<RepeatingTimer> &timer)
{
    bool ours = false;
    whileAttached([&] { ours = timer == modemStatusTimer_; });
    if (ours)
        updateModemStatus();
}

std::optional<QString> MainController::statusPage()
{
    const QString url = modemUrl(getNetInfoAddress());
    WebContent content;
    if (configurationFlag(QStringLiteral("AddRefererIntoHttpHeader")))
        content.text = getContentFormRefererRequest(url, nullptr);
    else if (QUrl(url).isValid())
        content = plainContent(url);
    else
        return std::nullopt;

    if (content.error)
        log(QStringLiteral("error: ") + *content.error);
    else if (!content.text)
        log(QStringLiteral("content string is null!"));
    return content.text;
}

void MainController::updateModemStatus()
{
    if (!routerAddr_.get())
        return;
    const std::optional<QString> content = statusPage();
    const std::stop_token stop = WorkScope::current();
    if (!content || stop.stop_requested())
        return;
    setAllApnFromPC();
    setApnReady();
    openWebUIForQX740(*content);
    checkFotaUpdateWhenDue(*content);
    if (!stop.stop_requested() && configurationFlag(QStringLiteral("IsDisplayNetStatusInToolBar")))
        setAllStatusByUrlContents(*content);
}

void MainController::stopGetModemStatus()
{
    log(QStringLiteral("DeviceRemoved,stopGetModemStatus"));
    endAttachment();
    whileAttached([&] { modemStatusTimer_.reset(); });
    state_.resetForStop();
    if (isBalloonShown())
        toggleAttachedWindowAtPoint(qtTrId("DeviceRemovedTip"));
    if (!configurationFlag(QStringLiteral("NeedDisplayWhenDeviceRemoved"))) {
        removeStatusItems();
        return;
    }
    setStatusImage(QStringLiteral("ready"));
    setStatusToolTip(QString());
}

void MainController::checkModemMainState(const QString &content)
{
    const auto home = configurationText(QStringLiteral("OperatorHomePage"));
    const auto mainState = getModemInfoFromKeyForWeb5(QStringLiteral("modem_main_state\":"), content);
    log(QStringLiteral("modemMainState state is ") + mainState.value_or(QStringLiteral("(null)")));

    const StartUpAction action = startUpAction(mainState, state_.m_counter);
    if (action.opened)
        whileAttached([&] { state_.hasOpenedWebUI_ = true; });
    if (action.page == StartUpPage::HomeOrModem)
        openPage(home.value_or(modemServer()));
    else if (action.page == StartUpPage::Home && home)
        openPage(*home);
}

void MainController::setPcDate()
{
    const QString now = QDateTime::currentDateTime().toString(u"yyyy-MM-dd_HH:mm:ss");
    setWebRequestWithId(QStringLiteral("RESET_NTP_TIME&pc_current_time=") + now);
}

void MainController::startConnectStatusTimer()
{
    if (firstStatusTimer_)
        return;
    firstStatusTimer_ = std::make_unique<QTimer>();
    QObject::connect(firstStatusTimer_.get(), &QTimer::timeout, &mainThread_,
                     [this] { statusCheck(firstStatusTimer_.get()); });
    firstStatusTimer_->start(7s);
}

} // namespace tarvo
