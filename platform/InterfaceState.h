#pragma once

#include <QString>
#include <QStringList>

namespace tarvo {

/// What is known of one network interface. A default-constructed one is not there.
struct InterfaceState {
    bool isUp = false;
    QStringList addresses{}; ///< IPv4
    QString gateway{}; ///< of its best IPv4 default route; empty when it has none
    /// Another interface, over which a default route without a metric leads, so that there can be no second one; empty
    /// when there is none.
    QString routeWithoutMetric{};

    bool operator==(const InterfaceState &) const = default;
};

} // namespace tarvo
