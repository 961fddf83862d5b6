#pragma once

#include "apn/ApnList.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace tarvo {

/// Indexes that stand for no access point of the modem's own list.
inline constexpr int notFoundApnIndex = 199; ///< the not-found record has to be added
inline constexpr int unnamedApnIndex = 100; ///< records were sent, and the modem names no default

/// The access-point record for a default that this computer does not know, "PC_PROFILE_NAME" in its name's place.
QString notFoundApnTemplate();

/// Which access point becomes the modem's default.
struct DefaultApn {
    int index = 0; ///< in the modem's list, or one of the two above; negative when no default is to be set
    /// The not-found record has to be given the modem's default name: no record is known by it.
    bool isUnknown = false;
    QStringList problems{}; ///< a line for each record that had to be read and could not
};

/// Finds the default's place among the modem's own access points first, then among the records of this computer.
/// @param name         the modem's default; nil and empty mean that it names none
/// @param webDefaults  the names of the modem's own access points, in the order of their indexes
/// @param records      the records of this computer, JSON objects
/// @param taken        what the modem has of them: a record that it has not taken becomes no default
DefaultApn chooseDefaultApn(const std::optional<QString> &name, const QStringList &webDefaults,
                            const QStringList &records, const QList<ListedApn> &taken);

} // namespace tarvo
