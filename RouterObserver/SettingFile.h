#pragma once

#include "RouterObserver/PropertyList.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace tarvo {

/// @return the absolute path of the settings in force: the first `tarvo/Config.plist` of the user's, the system's and
///         the data folders (XDG Base Directory), or beside the program; nil when there is none
std::optional<QString> findSettingFile();

/// A file of settings as it is, and what it holds. Bytes without a root are damaged settings.
struct SettingFileReading {
    QByteArray bytes;
    PropertyListReading values; ///< its root is a dictionary
};

SettingFileReading readSettingFile(const QString &path);

} // namespace tarvo
