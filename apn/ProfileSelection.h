#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <stop_token>

namespace tarvo {

class SystemLog;
struct ProfileSeal;

/// The profile folder, with its trailing slash, and the list of the profiles that count. Both point to
/// constants, and may be pointed elsewhere before profiles are read.
extern const char *APN_ROOT;
extern const char *APN_TOTAL_PROFILE;

/// @param seal  what it does not cover is passed over
/// @return the text of the list of profiles, names separated by "*"; nil when there is none or it is damaged
std::optional<QString> getParsedApnContentFromTotalProfile(const ProfileSeal &seal, SystemLog &systemLog);

/// Decodes the profiles that are named in @p totalProfile. One that cannot be used is passed over, with a
/// line in the log.
/// @param seal  what it does not cover is passed over
/// @param stop  ends the work early, with what has been read so far
/// @return their texts, in the order in which the file system lists the files
QStringList getValidParsedContentFromApnProfiles(const QString &totalProfile, const ProfileSeal &seal,
                                                 SystemLog &systemLog, const std::stop_token &stop);

/// Picks a default among @p names: @p name itself where it is, else the one that follows it in sorted order.
/// @param names  @p name is put in, and all are sorted, unless it is nil or empty or there already
/// @return an index into @p names as they were; -1 when there are none
qint32 checkDefaultApn(const std::optional<QString> &name, QStringList &names);

} // namespace tarvo
