#pragma once

#include <QVariantMap>

#include <optional>

namespace tarvo {

/// What the user's desktop offers. Nil means that it could not be found out.
struct DesktopFacts {
    std::optional<bool> showsIcons{}; ///< there is a tray
    std::optional<bool> showsNotifications{};
    std::optional<bool> opensPages{}; ///< there is a web browser
    std::optional<bool> runsApplication{}; ///< the application that was asked for has its name on the session bus
    QVariantMap applicationProperties{}; ///< what that application tells of itself there

    bool operator==(const DesktopFacts &) const = default;
};

/// What came of asking an application on the session bus to do something.
enum class ActionResult {
    Done,
    NotRunning,
    NoBus,
    Failed, ///< it was asked, and did not answer in time or answered with an error
};

} // namespace tarvo
