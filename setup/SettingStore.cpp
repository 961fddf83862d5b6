#include "setup/SettingStore.h"

#include "RouterObserver/SettingFile.h"
#include "platform/FolderLock.h"
#include "platform/WholeFile.h"
#include "setup/SettingKeys.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMetaType>
#include <QStandardPaths>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <system_error>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

constexpr int mostBackups = 100;
constexpr std::chrono::seconds patience{5}; // a change takes far less

bool isIdentifier(const QVariant &value)
{
    return value.typeId() == QMetaType::QString || value.typeId() == QMetaType::LongLong;
}

/// @return the texts and numbers of the list at @p path, as texts
QStringList identifierTexts(const QVariantMap &settings, const QStringList &path)
{
    QStringList texts;
    for (const QVariant &element : settingAt(settings, path).toList())
        texts.append(isIdentifier(element) ? element.toString() : QString());
    texts.removeAll(QString());
    return texts;
}

bool isThere(const QString &path)
{
    return QFileInfo::exists(path) || QFileInfo(path).isSymLink();
}

/// @return the first name beside @p path that no backup has; empty when there are too many
QString freeBackup(const QString &path)
{
    for (int i = 0; i < mostBackups; ++i) {
        const QString backup = path + (i == 0 ? u".bak"_s : u".bak%1"_s.arg(i));
        if (!isThere(backup))
            return backup;
    }
    return {};
}

QString rename(const QString &from, const QString &to)
{
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0
        ? QString()
        : u"%1: %2"_s.arg(from, QString::fromStdString(std::generic_category().message(errno)));
}

/// Moves what is at @p path aside, which takes no room on the disk.
SettingsWritten keepBeside(const QString &path)
{
    if (!isThere(path))
        return {};
    const QString backup = freeBackup(path);
    const QString problem = rename(path, backup);
    return {.problem = problem, .backup = problem.isEmpty() ? backup : QString()};
}

QString writeFile(const QString &path, const QByteArray &bytes)
{
    constexpr QFile::Permissions usersAlone = QFile::ReadOwner | QFile::WriteOwner;
    const bool isNew = !QFileInfo::exists(path);
    const QString problem = writeWholeFile(path, bytes, isNew ? std::optional(usersAlone) : std::nullopt);
    return problem.isEmpty() ? problem : u"%1: %2"_s.arg(path, problem);
}

/// Makes the folder of the user's settings, and keeps other programs from changing them.
/// @return why that cannot be done; empty when it is
QString claimSettings(FolderLock &lock)
{
    const QString folder = QFileInfo(userSettingsPath()).path();
    QDir().mkpath(folder); // where that fails, so does the writing
    return lock.take(folder, patience) ? QString() : qtTrId("SettingsBeingChanged").arg(folder);
}

/// Settings to start a change from.
struct Source {
    std::optional<PropertyListText> text; ///< nil when there is nothing to start from
    bool fromBinary = false;
    bool replacesFile = false; ///< the user's own file cannot be changed in place
};

Source sourceFrom(const SettingFileReading &reading)
{
    if (!reading.values.root)
        return {PropertyListText::fromBytes(shippedSettingsFile()), false, true};
    if (auto text = PropertyListText::fromBytes(reading.bytes))
        return {std::move(text)};
    const auto xml = writePropertyList(*reading.values.root);
    return {xml ? PropertyListText::fromBytes(*xml) : std::nullopt, reading.bytes.startsWith("bplist"), true};
}

SettingFileReading readInForce(const std::optional<QString> &path)
{
    if (path)
        return readSettingFile(*path);
    const QByteArray shipped = shippedSettingsFile();
    return {shipped, readPropertyList(shipped)};
}

/// Writes the user's own file in place of the one that is there, or of the one that is kept beside it then.
SettingsWritten write(const QByteArray &bytes, bool keep)
{
    const QString path = userSettingsPath();
    SettingsWritten written = keep ? keepBeside(path) : SettingsWritten();
    if (!written.problem.isEmpty())
        return written;
    written.problem = writeFile(path, bytes);
    if (!written.problem.isEmpty() && !written.backup.isEmpty() && rename(written.backup, path).isEmpty())
        written.backup.clear();
    return written;
}

} // namespace

QString userSettingsPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/tarvo/Config.plist"_s;
}

SettingsInForce settingsInForce()
{
    const auto path = findSettingFile();
    if (!path)
        return {};
    const SettingFileReading reading = readSettingFile(*path);
    return {*path, reading.values.root.value_or(QVariant()).toMap(), reading.values.problem,
            settingDigest(reading.bytes)};
}

SettingChange useDevice(DeviceId device)
{
    return [device](const PropertyListText &settings) {
        QStringList vendors = identifierTexts(settings.values(), vendorsPath);
        const QString vendor = QString::number(device.vendor);
        if (vendors == QStringList{exampleVendor})
            vendors.clear();
        if (!vendors.contains(vendor))
            vendors.append(vendor);
        QStringList exclusions = identifierTexts(settings.values(), exclusionsPath);
        const bool wasExcluded = exclusions.removeAll(QString::number(device.product)) > 0;
        const auto changed = settings.withTexts(vendorsPath, vendors);
        return changed && wasExcluded ? changed->withTexts(exclusionsPath, exclusions) : changed;
    };
}

SettingChange excludeDevice(DeviceId device)
{
    return [device](const PropertyListText &settings) {
        const QStringList exclusions = identifierTexts(settings.values(), exclusionsPath);
        return settings.withTexts(exclusionsPath, exclusions + QStringList{QString::number(device.product)});
    };
}

SettingsWritten changeSettings(const SettingChange &change, Damaged damaged)
{
    FolderLock lock;
    if (const QString problem = claimSettings(lock); !problem.isEmpty())
        return {.problem = problem};
    const auto path = findSettingFile();
    const SettingFileReading reading = readInForce(path);
    if (!reading.values.root && damaged == Damaged::Refuse)
        return {.problem = u"%1: %2"_s.arg(*path, reading.values.problem), .isDamaged = true};
    const Source source = sourceFrom(reading);
    const auto changed = source.text ? change(*source.text) : std::nullopt;
    if (!changed)
        return {.problem = qtTrId("CannotBeChanged").arg(path.value_or(userSettingsPath()))};
    if (path == userSettingsPath() && changed->toBytes() == reading.bytes)
        return {};
    SettingsWritten written = write(changed->toBytes(), source.replacesFile && path == userSettingsPath());
    written.fromBinary = source.fromBinary;
    return written;
}

SettingsWritten resetSettings()
{
    FolderLock lock;
    const QString problem = claimSettings(lock);
    return problem.isEmpty() ? keepBeside(userSettingsPath()) : SettingsWritten{.problem = problem};
}

} // namespace tarvo
