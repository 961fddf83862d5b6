#include "ui/windows/StatusDisplay.h"

#include "status/DataAmounts.h"
#include "ui/icon/StatusIcon.h"
#include "ui/pages/WebPages.h"

#include <utility>

namespace tarvo {

StatusDisplay::StatusDisplay(Surroundings surroundings)
    : m_with(std::move(surroundings))
{
}

StatusDisplay::~StatusDisplay() = default;

void StatusDisplay::setDetection(Detection detection, const QString &unknownDevice)
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

void StatusDisplay::setSettingsProblem(SettingsProblem problem)
{
    CompanionStatus status = m_status;
    status.settingsProblem = problem;
    setStatus(status);
}

void StatusDisplay::setSnapshot(const StatusSnapshot &snapshot, std::chrono::seconds sincePlugIn)
{
    CompanionStatus status = m_status;
    status.snapshot = snapshot;
    const auto used = static_cast<double>(snapshot.m_useData);
    if (snapshot.details.countsMonth && isKnownAmount(used))
        m_usage.add(sincePlugIn, used);
    setStatus(status);
}

void StatusDisplay::setImage(const QString &image)
{
    m_image = image;
    refresh();
}

void StatusDisplay::addNews(const StandingNews &news)
{
    m_news.add(news, QDateTime::currentDateTime());
    refresh();
}

void StatusDisplay::setStatus(const CompanionStatus &status)
{
    if (status == m_status)
        return;
    m_status = status;
    refresh();
}

void StatusDisplay::refresh()
{
    m_with.icon.setStatusImage(pictureOf(m_status, m_image));
    m_with.icon.setStatusToolTip(tipOf(m_status));
    m_with.menu.setContent({.situation = situationOf(m_status),
                            .summary = summaryOf(m_status),
                            .clickPage = m_with.pages.clickPage(),
                            .hasMessages = m_with.pages.canOpen(Page::Messages),
                            .news = m_news.news()});
}

void StatusDisplay::showWindow()
{
    if (!m_window)
        m_window = std::make_unique<StatusWindow>([this] { return windowContent(); });
    m_window->present();
}

StatusWindowContent StatusDisplay::windowContent() const
{
    return {pictureOf(m_status, m_image), m_status, m_with.device(), m_usage.samples()};
}

} // namespace tarvo
