#pragma once

#include "RouterObserver/SettingsProblem.h"
#include "modemapi/StatusSnapshot.h"

#include <QList>
#include <QString>

namespace tarvo {

/// How far a modem has been detected.
enum class Detection {
    NoModem,
    NotSetUp, ///< a USB network device with a gateway, which the settings do not name
    WaitingForAddress, ///< a supported modem without an address
    NoGateway, ///< a supported modem with an address, and no router
    LeftAlone, ///< a supported modem that is not asked for anything at present
    Attached, ///< a modem that is polled
};

/// How things stand, for the user to be told.
struct CompanionStatus {
    Detection detection = Detection::NoModem;
    QString unknownDevice{}; ///< of `NotSetUp`: vendor and product in hexadecimal, such as 1234:5678
    StatusSnapshot snapshot{}; ///< of the modem that is attached
    SettingsProblem settingsProblem = SettingsProblem::None; ///< why no modem can be found

    bool operator==(const CompanionStatus &) const = default;
};

/// The pages that the companion can open.
enum class Page { None, Home, Firmware, DataLimit, Modem, Messages };

/// One standing piece of news, and the page that belongs to it.
struct StandingNews {
    QString text;
    Page page = Page::None;

    bool operator==(const StandingNews &) const = default;
};

/// @return how things stand, in one line that says what is known and nothing else
QString summaryOf(const CompanionStatus &status);

/// @return the news of the modem that is attached, in the order in which they are told
QList<StandingNews> standingNews(const CompanionStatus &status);

/// @return the icon's tool tip: the summary, then each standing piece of news in a line of its own
QString tipOf(const CompanionStatus &status);

/// @param image  the name of the one that was asked for last; empty for none
/// @return the name of the image that stands for how things are
QString pictureOf(const CompanionStatus &status, const QString &image);

} // namespace tarvo
