#pragma once

#include <QString>
#include <QVariantList>

#include <optional>

namespace tarvo {

class ConfigManager;

/// What the settings say of a device.
enum class Support {
    Supported,
    Excluded, ///< its vendor may be supported, but the product is to be left alone
    Unsupported,
};

/// @return the USB identifiers that @p settings list as @p key of "device_info"; elements of any kind
QVariantList deviceIdentifiers(const ConfigManager &settings, const QString &key);

/// @return whether @p identifier, of which the lower 32 bits count, is listed there as a decimal text
bool listsIdentifier(const ConfigManager &settings, const QString &key, qint64 identifier);

/// @param product  nil when it is not known
Support supportOf(qint64 vendor, std::optional<qint64> product, const ConfigManager &settings);

} // namespace tarvo
