#pragma once

#include "setup/settings/Devices.h"
#include "setup/settings/RootRights.h"
#include "setup/text/PropertyListText.h"

#include <QString>
#include <QVariantMap>

#include <functional>
#include <optional>

namespace tarvo {

/// The settings that the companion would read now.
struct SettingsInForce {
    QString path{}; ///< empty when there is no file
    QVariantMap values{}; ///< empty when there is none, or it cannot be used
    QString problem{}; ///< why the file cannot be used; empty when it can
    QString digest{}; ///< its `settingDigest`; empty when there is no file
};

SettingsInForce settingsInForce();

/// @return the path of the user's own file of settings, which goes before all others
QString userSettingsPath();
/// @return the path of the file that is written for @p scope
QString settingsPath(Scope scope);

/// Changes settings. @return nil when it cannot be done
using SettingChange = std::function<std::optional<PropertyListText>(const PropertyListText &settings)>;

/// Adds the vendor of @p device, in place of the example, and takes the product off the exclusions. Vendors that were
/// written as numbers become texts.
SettingChange useDevice(DeviceId device);
/// Adds the product of @p device to the exclusions.
SettingChange excludeDevice(DeviceId device);

/// What to do with a file of settings that cannot be read.
enum class Damaged {
    Refuse,
    StartAfresh, ///< from the shipped settings, with the damaged file kept beside them
};

/// What came of writing settings.
struct SettingsWritten {
    QString problem{}; ///< why nothing was written; empty when all is well
    bool isDamaged = false; ///< the problem is the file in force, and starting afresh would get over it
    QString path{}; ///< the file that was written; empty when one was taken away
    QString backup{}; ///< where the file that was there before is now; empty when it was changed in place
    bool fromBinary = false; ///< the settings had the binary form and have the XML form now
};

/// Changes settings and writes the file of @p scope: the user's own from those in force, where a new file is the user's
/// alone; or the system's from what it holds, for everybody to read. Where there are none to start from, the shipped ones
/// are. The file is written whole or not at all, a link is followed, except by root. Several programs may do so at once.
SettingsWritten changeSettings(const SettingChange &change, Damaged damaged, Scope scope = Scope::User);

/// Takes the file of @p scope away, keeping it beside where it was, so that those of lower rank are in force.
SettingsWritten resetSettings(Scope scope = Scope::User);

} // namespace tarvo
