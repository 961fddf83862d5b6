#include "ui/windows/Presentation.h"

#include "status/DataAmounts.h"
#include "ui/icon/StatusIcon.h"
#include "ui/pages/WebPages.h"

#include <utility>

namespace tarvo {

Presentation::Presentation(const Dependencies &dependencies, Callbacks callbacks)
    : m_with(dependencies)
    , m_callbacks(std::move(callbacks))
{
}

Presentation::~Presentation() = default;

void Presentation::setDetection(Detection detection, const QString &unknownDevice)
{
    CompanionStatus status = m_status;
    status.detection = detection;
    status.unknownDevice = unknownDevice;
    if (detection != Detection::Attached) {
        status.snapshot = {};
        m_usage.clear();
    }
    setStatus(status);
}

void Presentation::setSettingsProblem(SettingsProblem problem)
{
    CompanionStatus status = m_status;
    status.settingsProblem = problem;
    setStatus(status);
}

void Presentation::setSnapshot(const StatusSnapshot &snapshot, std::chrono::seconds sincePlugIn)
{
    CompanionStatus status = m_status;
    status.snapshot = snapshot;
    const auto used = static_cast<double>(snapshot.m_useData);
    if (snapshot.details.countsMonth && isKnownAmount(used))
        m_usage.add(sincePlugIn, used);
    setStatus(status);
}

void Presentation::setImage(const QString &image)
{
    m_image = image;
    refresh();
}

void Presentation::addNews(const StandingNews &news)
{
    m_news.add(news, QDateTime::currentDateTime());
    refresh();
}

void Presentation::setStatus(const CompanionStatus &status)
{
    if (status == m_status)
        return;
    m_status = status;
    refresh();
}

void Presentation::refresh()
{
    m_with.icon.setStatusImage(image());
    m_with.icon.setStatusToolTip(tipOf(m_status));
    m_with.menu.setContent({.situation = situationOf(m_status),
                            .summary = summaryOf(m_status),
                            .clickPage = m_with.pages.clickPage(),
                            .hasMessages = m_with.pages.canOpen(Page::Messages),
                            .news = m_news.news()});
    m_callbacks.refreshed();
}

void Presentation::showWindow()
{
    if (!m_window)
        m_window = std::make_unique<StatusWindow>([this] { return windowContent(); });
    m_window->present();
}

StatusWindowContent Presentation::windowContent() const
{
    return {image(), m_status, m_callbacks.device(), m_usage.samples()};
}

} // namespace tarvo
