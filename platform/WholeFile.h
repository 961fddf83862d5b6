#pragma once

#include <QByteArray>
#include <QFileDevice>
#include <QString>

#include <optional>

namespace tarvo {

/// Makes @p bytes the content of the file at @p path, whole or not at all: when the disk is full, what was there before
/// stays. A symbolic link is followed.
/// @param permissions  the file's; nil for those that it has, or that the process gives to a new file
/// @return why that failed, once it is known that the bytes are not stored; empty when they are
QString writeWholeFile(const QString &path, const QByteArray &bytes,
                       std::optional<QFileDevice::Permissions> permissions = std::nullopt);

} // namespace tarvo
