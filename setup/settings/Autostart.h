#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace tarvo {

/// @return whether the desktop starts what the autostart entry @p entry names (freedesktop.org Desktop Application
///         Autostart Specification)
bool startsAtLogin(const QByteArray &entry);

/// @return @p entry changed so that it is started, or not; everything else stays
QByteArray withStartAtLogin(const QByteArray &entry, bool starts);

/// The companion's autostart entry: the user's own one goes before the system's.
class Autostart {
public:
    /// @return whether the companion starts at login; nil when no entry is installed
    std::optional<bool> isOn() const;

    /// Writes the user's own entry. @return why that failed; empty when it did not
    QString set(bool on) const;
};

} // namespace tarvo
