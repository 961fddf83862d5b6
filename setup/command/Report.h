#pragma once

#include "setup/checks/Chain.h"
#include "setup/settings/Devices.h"
#include "setup/settings/SettingStore.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QVariantMap>

#include <optional>

namespace tarvo {

/// A device and whether its gateway answered like a modem; nil when it has none.
struct ListedDevice {
    Device device;
    std::optional<bool> isModem{};

    bool operator==(const ListedDevice &) const = default;
};

// The JSON forms are documented in tarvo-setup(1), and programs rely on them. In the texts, what comes from outside is
// escaped as in the log, line by line.

/// @return @p text as one line of output, in which nothing from outside passes for something else
QString outputLine(const QString &text);

QByteArray devicesAsJson(const QList<ListedDevice> &devices);
/// In the user's language.
QString devicesAsText(const QList<ListedDevice> &devices);

QByteArray checksAsJson(const QList<Check> &checks);
/// In the user's language, a line for each link.
QString checksAsText(const QList<Check> &checks);

QByteArray settingsAsJson(const SettingsInForce &settings);
/// The file, and a line for each setting: its key and its value.
QString settingsAsText(const SettingsInForce &settings);

} // namespace tarvo
