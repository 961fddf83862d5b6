#include "RouterObserver/ConfigManager.h"
#include "app/MainController.h"
#include "modemapi/AnswerFields.h"
#include "ui/AlertPanelController.h"

namespace tarvo {

void MainController::checkFotaUpdateWhenDue(const QString &content)
{
    if (!isConnectedWithStautusContent(getConnectionStatusWithWebContent(content)))
        return;
    bool due = false;
    whileAttached([&] {
        const auto next = nextFirmwareCheck(firmwareChecks_, WorkScope::current(), services_.clock.now());
        due = next.has_value();
        firmwareChecks_ = next.value_or(firmwareChecks_);
    });
    if (due)
        checkFotaUpdateWhenConnected();
}

void MainController::checkFotaUpdateWhenConnected()
{
    if (!configurationFlag(QStringLiteral("NeedCheckFotaUpdate")))
        return;
    const auto answer = getWebRequestContent(QStringLiteral("dm_find_package&multi_data=1"));
    const auto packageState = getModemInfoFromKeyForWeb5(QStringLiteral("dm_find_package\":"), answer);
    if (!packageState) {
        log(QStringLiteral("fotaOtaState  is null!"));
        return;
    }
    whileAttached([&] { state_.isHaveNewVersion_ = offersNewFirmware(*packageState); });
}

void MainController::showAlertMsgForUpdate()
{
    onMainThread([this] {
        if (!alertPanel_) {
            alertPanel_ = AlertPanelController::shareAlertPanel();
            QObject::connect(alertPanel_.get(), &AlertPanelController::pageWanted, &mainThread_,
                             [this](const QString &page) { openPage(page); });
        }
        alertPanel_->runAlertPanelTitle(qtTrId("updateTitleTip"), qtTrId("updateMsgTip"), qtTrId("updateButtonTip"),
                                        std::nullopt);
    });
}

} // namespace tarvo
