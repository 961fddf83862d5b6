#pragma once

#include "setup/settings/SettingKeys.h"
#include "setup/text/UserText.h"

#include <QList>
#include <QString>
#include <QVariantMap>

#include <optional>

namespace tarvo {

/// What can be wrong with settings.
enum class Fault {
    UnknownKey,
    WrongType,
    NumberNeverMatches, ///< an identifier that is a number: only texts are compared
    NotDecimal, ///< an identifier that no device can have, the way it is written
    NoUrl,
    NoModemPath,
    NoVendor,
    OnlyExampleVendor,
};

struct SettingFinding {
    Fault fault;
    QString key; ///< as it stands in the file, a key in a dictionary after the dictionary's key and "/"
    QString value{}; ///< what is wrong, where that is a text or a number

    bool operator==(const SettingFinding &) const = default;

    /// @return one sentence that says what is wrong and what to do
    UserText sentence() const;
};

/// Looks for what the companion would not understand, or could do nothing with. Nothing found means that all is well.
QList<SettingFinding> checkSettings(const QVariantMap &settings);

/// @return the first fault of @p value as the setting @p key; nil when it has none
std::optional<SettingFinding> checkValue(const SettingKey &key, const QVariant &value);

} // namespace tarvo
