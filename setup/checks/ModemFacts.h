#pragma once

#include "modemapi/Obstacle.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace tarvo {

/// What a gateway answered, as far as it tells a modem.
struct ModemFacts {
    bool answers = false; ///< something serves HTTP there
    bool hasPage = false; ///< the status page has fields of one
    std::optional<QString> connection{}; ///< the connection status; nil when the page has no such field
    QStringList missingFields{}; ///< of those about data and roaming
    bool takesCommands = false; ///< a get command brought a field
    std::optional<bool> givesSession{}; ///< nil when it was not asked for one
    std::optional<Obstacle> obstacle{}; ///< what stands in the way of the status page; nil when it has fields

    bool operator==(const ModemFacts &) const = default;

    /// @return whether these are the answers of a modem
    bool isModem() const { return connection && takesCommands; }
};

} // namespace tarvo
