#include "ui/pages/WebPages.h"

#include "RouterObserver/ConfigManager.h"
#include "modemapi/AnswerFields.h"
#include "modemapi/ModemClient.h"
#include "platform/StepQueue.h"
#include "platform/Workspace.h"
#include "ui/pages/ModemMainState.h"
#include "ui/pages/WebUIRule.h"

#include <QMap>
#include <QUrl>

#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

QString serverOf(const QString &router)
{
    return u"http://"_s + router;
}

} // namespace

WebPages::WebPages(Workspace &workspace, const ConfigManager &settings, const SharedSnapshot &snapshot,
                   StepQueue &mainThread, Router router, CouldNotOpen couldNotOpen, MayOpenByItself mayOpenByItself)
    : m_workspace(workspace)
    , m_settings(settings)
    , m_snapshot(snapshot)
    , m_mainThread(mainThread)
    , m_router(std::move(router))
    , m_couldNotOpen(std::make_shared<const CouldNotOpen>(std::move(couldNotOpen)))
    , m_mayOpenByItself(std::move(mayOpenByItself))
{
}

void WebPages::openHomepage()
{
    if (openUpdateUrlWhileHasNewVersion_)
        openNewVersionPage();
    else if (m_snapshot.get().haveDataLimitFlag_)
        openDateLimitPage();
    else
        openConfiguredPage(u"OperatorHomePage"_s);
}

void WebPages::openWebUISmsPage()
{
    openConfiguredPage(u"WebUISmsPage"_s);
}

void WebPages::openNewVersionPage()
{
    openConfiguredPage(u"FotaNewVersionHomePage"_s);
}

void WebPages::openDateLimitPage()
{
    openConfiguredPage(u"DateLimitHomePage"_s);
}

void WebPages::openWebUI()
{
    open(Page::Modem);
}

bool WebPages::open(Page page)
{
    const auto there = address(page);
    if (there)
        openPage(*there);
    return there.has_value();
}

Page WebPages::clickPage() const
{
    Page page = Page::Home;
    if (openUpdateUrlWhileHasNewVersion_)
        page = Page::Firmware;
    else if (m_snapshot.get().haveDataLimitFlag_)
        page = Page::DataLimit;
    return address(page) ? page : Page::None;
}

std::optional<QString> WebPages::address(Page page) const
{
    if (page == Page::Modem) {
        const auto router = m_router();
        return router ? std::optional(serverOf(*router)) : std::nullopt;
    }
    static const QMap<Page, QString> modules{{Page::Home, u"OperatorHomePage"_s},
                                             {Page::Firmware, u"FotaNewVersionHomePage"_s},
                                             {Page::DataLimit, u"DateLimitHomePage"_s},
                                             {Page::Messages, u"WebUISmsPage"_s}};
    const auto configured = m_settings.text(modules.value(page));
    return configured ? withRouter(*configured) : std::nullopt;
}

/// @return @p page with the modem's address in the place of "%@"; nil when it needs one and there is no modem
std::optional<QString> WebPages::withRouter(const QString &page) const
{
    const QString placeholder = u"%@"_s;
    if (!page.contains(placeholder))
        return page;
    const auto router = m_router();
    return router ? std::optional(QString(page).replace(placeholder, *router)) : std::nullopt;
}

void WebPages::openConfiguredPage(const QString &module)
{
    if (const auto page = m_settings.text(module))
        openPage(*page);
}

void WebPages::openPage(const QString &page)
{
    const auto address = withRouter(page);
    if (!address)
        return;
    m_workspace.openURL(QUrl(*address, QUrl::StrictMode), [told = std::weak_ptr(m_couldNotOpen), page = *address] {
        if (const auto tell = told.lock())
            (*tell)(page);
    });
}

void WebPages::openPageFor(const Work &work, const QString &page)
{
    work.post(m_mainThread, [this, page] { openPage(page); });
}

void WebPages::openWebUIForQX740(ModemClient &client, const QString &content)
{
    if (hasOpenedWebUI_)
        return;
    const WebUIFields fields = readWebUIFields(content);
    const WebUIDecision decision = decideWebUI(fields);
    if (decision == WebUIDecision::Open
        || (decision == WebUIDecision::DependsOnDefaultApn && needsUserForApn(client, fields)))
        openWebUIOnce(client.work());
}

bool WebPages::needsUserForApn(ModemClient &client, const WebUIFields &fields)
{
    const std::optional<QString> defaultApn = client.getWebRequestContent(u"default_apn"_s);
    const bool needsUser = defaultApnNeedsUser(defaultApn, fields);
    bool isNew = false;
    client.work().whileAttached([&] { isNew = std::exchange(m_loggedNeed, needsUser) != needsUser; });
    if (isNew) // the description may differ each second
        client.log(defaultApnLine(defaultApn));
    return needsUser;
}

void WebPages::openWebUIOnce(const Work &work)
{
    const QString page = m_settings.text(u"OperatorHomePage"_s).value_or(serverOf(work.router()));
    // Counted only when it happens: a step whose work ends before that is dropped, and the next attachment opens them.
    work.post(m_mainThread, [this, page] {
        const bool first = !hasOpenedWebUI_.exchange(true);
        if (first && (!m_mayOpenByItself || m_mayOpenByItself()))
            openPage(page);
    });
}

void WebPages::checkModemMainState(ModemClient &client, const QString &content)
{
    const auto home = m_settings.text(u"OperatorHomePage"_s);
    const auto mainState = getModemInfoFromKeyForWeb5(u"modem_main_state\":"_s, content);
    client.log(u"modemMainState state is "_s + mainState.value_or(u"(null)"_s));

    const StartUpAction action = startUpAction(mainState, m_counter);
    if (action.opened)
        client.work().whileAttached([&] { hasOpenedWebUI_ = true; });
    if (action.page == StartUpPage::HomeOrModem)
        openPageFor(client.work(), home.value_or(serverOf(client.work().router())));
    else if (action.page == StartUpPage::Home && home)
        openPageFor(client.work(), *home);
}

void WebPages::setClickTargets(std::optional<bool> updatePage, std::optional<bool> limitPage)
{
    openUpdateUrlWhileHasNewVersion_ = updatePage.value_or(openUpdateUrlWhileHasNewVersion_);
    openDateLimitUrlWhileHasLimit_ = limitPage.value_or(openDateLimitUrlWhileHasLimit_);
}

void WebPages::reset(bool hasOpenedWebUI)
{
    hasOpenedWebUI_ = hasOpenedWebUI;
    m_loggedNeed.reset();
    openUpdateUrlWhileHasNewVersion_ = false;
    openDateLimitUrlWhileHasLimit_ = false;
    m_counter = 0;
}

QString WebPages::getAppPath() const
{
    return u"/Applications/Safari.app"_s;
}

bool WebPages::launchAppFromPath(const std::optional<QString> &path)
{
    return path && m_workspace.launchApplication(*path);
}

void WebPages::openApp()
{
    launchAppFromPath(getAppPath());
}

} // namespace tarvo
