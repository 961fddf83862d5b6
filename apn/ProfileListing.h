#pragma once

#include <QString>
#include <QStringList>

#include <stop_token>

namespace tarvo {

/// What a profile folder holds.
struct ProfileListing {
    QStringList files; ///< the paths of all but folders, in the order of the file system
    QStringList profiles; ///< those that end in `.xml`
    QStringList problems; ///< a line for each thing that was passed over, with its path and the reason
};

/// The line that says that the thing at @p path is passed over.
/// @param problem  why, as the end of a sentence
QString skippedLine(const QString &path, const QString &problem);

/// Lists what lies below @p root, sub-folders included. Links to folders are not followed, and folders
/// that lie unreasonably deep are passed over.
/// @param root  with its trailing slash; it need not exist
/// @param stop  ends the listing early, with what has been found so far
ProfileListing listProfiles(const QString &root, const std::stop_token &stop);

} // namespace tarvo
