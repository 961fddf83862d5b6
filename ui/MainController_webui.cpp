#include "RouterObserver/ConfigManager.h"
#include "app/MainController.h"
#include "platform/Workspace.h"
#include "ui/WebUIRule.h"

#include <QUrl>

namespace tarvo {

void MainController::openHomepage()
{
    if (state_.openUpdateUrlWhileHasNewVersion_)
        openNewVersionPage();
    else if (state_.haveDataLimitFlag_)
        openDateLimitPage();
    else
        openConfiguredPage(QStringLiteral("OperatorHomePage"));
}

void MainController::openWebUISmsPage()
{
    openConfiguredPage(QStringLiteral("WebUISmsPage"));
}

void MainController::openNewVersionPage()
{
    openConfiguredPage(QStringLiteral("FotaNewVersionHomePage"));
}

void MainController::openDateLimitPage()
{
    openConfiguredPage(QStringLiteral("DateLimitHomePage"));
}

void MainController::openWebUI()
{
    if (routerAddr_.get())
        openPage(modemServer());
}

void MainController::openWebUIForQX740(const QString &content)
{
    if (state_.hasOpenedWebUI_)
        return;
    const WebUIFields fields = readWebUIFields(content);
    const WebUIDecision decision = decideWebUI(fields);
    if (decision == WebUIDecision::Open || (decision == WebUIDecision::DependsOnDefaultApn && needsUserForApn(fields)))
        openWebUIOnce();
}

bool MainController::needsUserForApn(const WebUIFields &fields)
{
    const std::optional<QString> defaultApn = getWebRequestContent(QStringLiteral("default_apn"));
    log(defaultApn ? QStringLiteral("default_apn: ") + *defaultApn : QStringLiteral("default_apn is nil"));
    return defaultApnNeedsUser(defaultApn, fields);
}

void MainController::openWebUIOnce()
{
    const QString page = configurationText(QStringLiteral("OperatorHomePage")).value_or(modemServer());
    bool first = false;
    whileAttached([&] { first = !state_.hasOpenedWebUI_.exchange(true); });
    if (first)
        openPage(page);
}

QString MainController::modemServer() const
{
    return QStringLiteral("http://") + routerAddr_.get().value_or(QString());
}

void MainController::openConfiguredPage(const QString &module)
{
    if (const auto page = configurationText(module))
        openPage(*page);
}

void MainController::openPage(const QString &page)
{
    onMainThread([this, page] {
        const QUrl url(page, QUrl::StrictMode);
        if (url.isValid() && !url.isRelative())
            services_.workspace.openURL(url);
    });
}

} // namespace tarvo
