#include "RouterObserver/SettingFile.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QMetaType>
#include <QStandardPaths>
#include <QStringList>

#include <algorithm>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

QStringList settingFolders()
{
    return QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation)
        + QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation)
        + QStringList{QCoreApplication::applicationDirPath() + u"/../share"_s};
}

} // namespace

std::optional<QString> findSettingFile()
{
    for (const QString &folder : settingFolders()) {
        const QString path = folder + u"/tarvo/Config.plist"_s;
        if (QFileInfo::exists(path))
            return QFileInfo(path).absoluteFilePath();
    }
    return std::nullopt;
}

SettingFileReading readSettingFile(const QString &path)
{
    if (QFileInfo::exists(path) && !QFileInfo(path).isFile())
        return {{}, {std::nullopt, u"it is no regular file"_s}};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {{}, {std::nullopt, file.errorString()}};
    const QByteArray bytes = file.read(std::min<qint64>(file.size(), maxPropertyListSize) + 1);
    const PropertyListReading reading = readPropertyList(bytes);
    if (reading.root && reading.root->typeId() != QMetaType::QVariantMap)
        return {bytes, {std::nullopt, u"its root is no dictionary"_s}};
    return {bytes, reading};
}

QString settingDigest(const QByteArray &bytes)
{
    return QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
}

} // namespace tarvo
