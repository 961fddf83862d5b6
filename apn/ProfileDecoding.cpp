#include "apn/ProfileDecoding.h"

#include "apn/ProfileFile.h"

namespace tarvo {

std::optional<QString> decryptApnFile(const QString &path)
{
    const ProfileBytes file = readProfileBytes(path);
    if (!file.bytes)
        return QString();
    const auto &key = builtInProfileKey().key;
    return key ? decodeProfile(*file.bytes, *key).text : std::nullopt;
}

std::optional<PlainBlock> decrypt(ProfileBlock block)
{
    const auto &key = builtInProfileKey().key;
    return key ? key->decoder().decrypt(block) : std::nullopt;
}

std::optional<QString> getFileNameFromAbsolutePath(const QString &path)
{
    const QString name = path.section(u'/', -1, -1, QString::SectionSkipEmpty);
    const qsizetype dot = name.lastIndexOf(u'.');
    if (dot <= 0 || dot == name.size() - 1)
        return std::nullopt;
    const qsizetype found = name.indexOf(name.sliced(dot + 1));
    return found > 0 ? std::optional(name.first(found - 1)) : std::nullopt;
}

std::strong_ordering compareString(const QString &a, const QString &b)
{
    return a.compare(b) <=> 0;
}

} // namespace tarvo
