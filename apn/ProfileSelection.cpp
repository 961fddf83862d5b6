#include "apn/ProfileSelection.h"

#include "apn/ProfileDecoding.h"
#include "apn/ProfileFile.h"
#include "apn/ProfileListing.h"
#include "apn/ProfileSeal.h"
#include "platform/SystemLog.h"

#include <QFile>
#include <QSet>

#include <ProfileSettings.h>

#include <algorithm>

namespace tarvo {

using namespace Qt::StringLiterals;

const char *APN_ROOT = defaultProfileFolder;
const char *APN_TOTAL_PROFILE = defaultTotalProfile;

namespace {

ProfileText readCovered(const QString &path, const ProfileSeal &seal)
{
    const auto &[key, problem] = builtInProfileKey();
    if (!key)
        return {std::nullopt, u"no key to read it with: "_s + problem};
    const ProfileBytes file = readProfileBytes(path);
    if (!file.bytes)
        return {std::nullopt, file.problem};
    if (!seal.covers(path, *file.bytes))
        return {std::nullopt, u"it is not what was sealed"_s};
    return decodeProfile(*file.bytes, *key);
}

std::optional<QString> readOrSkip(const QString &path, const ProfileSeal &seal, SystemLog &systemLog)
{
    const ProfileText profile = readCovered(path, seal);
    if (!profile.text)
        systemLog.write(skippedLine(path, profile.problem));
    return profile.text;
}

/// @return the paths of all profiles but the list itself
QStringList candidates(SystemLog &systemLog, const std::stop_token &stop)
{
    ProfileListing listing = listProfiles(QString::fromUtf8(APN_ROOT), stop);
    for (const QString &problem : listing.problems)
        systemLog.write(problem);
    listing.profiles.removeAll(QString::fromUtf8(APN_TOTAL_PROFILE));
    return listing.profiles;
}

} // namespace

std::optional<QString> getParsedApnContentFromTotalProfile(const ProfileSeal &seal, SystemLog &systemLog)
{
    const QString path = QString::fromUtf8(APN_TOTAL_PROFILE);
    if (!QFile::exists(path)) {
        systemLog.write(u"can not find profile.xml"_s);
        return std::nullopt;
    }
    return readOrSkip(path, seal, systemLog);
}

QStringList getValidParsedContentFromApnProfiles(const QString &totalProfile, const ProfileSeal &seal,
                                                 SystemLog &systemLog, const std::stop_token &stop)
{
    const QStringList names = totalProfile.split(u'*');
    const QSet<QString> allowed(names.begin(), names.end());
    const QStringList paths = candidates(systemLog, stop);
    if (paths.isEmpty())
        systemLog.write(u"can not find *.xml files!"_s);

    QStringList result;
    for (const QString &path : paths) {
        if (stop.stop_requested())
            break;
        const auto base = getFileNameFromAbsolutePath(path);
        if (!base)
            systemLog.write(skippedLine(path, u"its name cannot be cut before the extension"_s));
        else if (allowed.contains(*base)) {
            if (auto text = readOrSkip(path, seal, systemLog))
                result.append(*std::move(text));
        }
    }
    return result;
}

qint32 checkDefaultApn(const std::optional<QString> &name, QStringList &names)
{
    const QStringList copy = names;
    const auto count = static_cast<qint32>(names.size());
    if (count == 0 || (name && names.contains(*name)))
        return name ? static_cast<qint32>(names.indexOf(*name)) : -1;
    if (!name || name->isEmpty())
        return 0;
    names.append(*name);
    std::sort(names.begin(), names.end(), [](const QString &a, const QString &b) { return compareString(a, b) < 0; });
    const auto i = static_cast<qint32>(names.indexOf(*name));
    const qint32 j = i < count ? i + 1 : 0;
    const auto k = static_cast<qint32>(copy.indexOf(names[j]));
    return k < 0 || k >= copy.size() ? 0 : k;
}

} // namespace tarvo
