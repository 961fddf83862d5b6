#pragma once

#include "apn/ProfileKey.h"
#include "apn/ProfileSeal.h"

#include <QString>
#include <QStringList>

namespace tarvo {

/// What the companion would make of a profile folder.
struct FolderReport {
    QStringList lines; ///< one for each file, and one for each name without a file
    bool isInOrder = true; ///< the companion would use all of it
};

/// Reads @p folder, whose list is its `profile.xml`, the way the companion does, with the keys that are given or with those
/// that are built in.
FolderReport reportFolder(const QString &folder, const ProfileKey &key, const SealRule &sealRule);
FolderReport reportFolder(const QString &folder);

} // namespace tarvo
