#pragma once

#include "RouterObserver/PropertyList.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace tarvo {

using Qt::StringLiterals::operator""_s;

/// @return the absolute path of the settings in force: the first `tarvo/Config.plist` of the user's, the system's and
///         the data folders (XDG Base Directory), or beside the program; nil when there is none
std::optional<QString> findSettingFile();

/// A file of settings as it is, and what it holds. Bytes without a root are damaged settings.
struct SettingFileReading {
    QByteArray bytes;
    PropertyListReading values; ///< its root is a dictionary
};

SettingFileReading readSettingFile(const QString &path);

/// @return what tells a file of settings with these bytes from others (SHA-256, hexadecimal)
QString settingDigest(const QByteArray &bytes);

// What the running companion tells on the session bus of the settings that it read, as texts.
inline const QString settingPathProperty = u"SettingsFile"_s; ///< empty when there was no file
inline const QString settingDigestProperty = u"SettingsDigest"_s; ///< its `settingDigest`; empty as well

} // namespace tarvo
