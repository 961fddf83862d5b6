#pragma once

#include "status/DetailRows.h"
#include "status/NewsHistory.h"
#include "status/UsageHistory.h"
#include "ui/icon/IconMenu.h"
#include "ui/windows/StatusWindow.h"

#include <QString>

#include <chrono>
#include <functional>
#include <memory>

namespace tarvo {

class StatusIcon;
class WebPages;

/// Says how things stand, wherever the user looks: in the icon's image and tip, its menu, and the status window. What has not
/// changed is not said again. On the main thread.
class Presentation {
public:
    /// All of it outlives the presentation.
    struct Dependencies {
        StatusIcon &icon;
        IconMenu &menu;
        const WebPages &pages;
    };
    struct Callbacks {
        std::function<DeviceDetails()> device; ///< tells the details of the modem that is attached
        std::function<void()> refreshed; ///< something of what is said may be different
    };

    /// Says nothing before the first `refresh`.
    Presentation(const Dependencies &dependencies, Callbacks callbacks);
    ~Presentation();

    const CompanionStatus &status() const { return m_status; }
    /// @return the name of the image that the icon shows
    QString image() const { return pictureOf(m_status, m_image); }
    /// @return the news that were told, the newest first
    const QList<ToldNews> &news() const { return m_news.news(); }

    /// @param unknownDevice  vendor and product of the device that is not set up; empty for none
    void setDetection(Detection detection, const QString &unknownDevice = {});
    void setSettingsProblem(SettingsProblem problem);
    /// @param sincePlugIn  the modem's age
    void setSnapshot(const StatusSnapshot &snapshot, std::chrono::seconds sincePlugIn);
    /// The icon is to show the image named @p image, as long as that suits how things stand; empty for none.
    void setImage(const QString &image);
    /// Keeps @p news among the recent ones.
    void addNews(const StandingNews &news);
    /// Says how things stand, as what a click opens may have changed.
    void refresh();

    /// Shows the status window in front.
    void showWindow();

private:
    void setStatus(const CompanionStatus &status);
    StatusWindowContent windowContent() const;

    const Dependencies m_with;
    const Callbacks m_callbacks;
    CompanionStatus m_status;
    QString m_image; ///< the last one that was asked for
    NewsHistory m_news;
    UsageHistory m_usage;
    std::unique_ptr<StatusWindow> m_window; ///< made when it is first asked for
};

} // namespace tarvo
