#include "setup/settings/SettingStore.h"

#include "RouterObserver/SettingFile.h"
#include "platform/FolderLock.h"
#include "platform/WholeFile.h"
#include "setup/settings/SettingKeys.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMetaType>
#include <QStandardPaths>

#include <cerrno>
#include <chrono>
#include <cstdio>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

constexpr int mostBackups = 100;
constexpr std::chrono::seconds lockTimeout{5}; // a change takes far less

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
        : u"%1: %2"_s.arg(from, qt_error_string(errno));
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

/// @return those that the file of @p scope is given; nil where it keeps its own
std::optional<QFile::Permissions> permissionsFor(const QString &path, Scope scope)
{
    constexpr QFile::Permissions usersAlone = QFile::ReadOwner | QFile::WriteOwner;
    if (scope == Scope::System)
        return usersAlone | QFile::ReadGroup | QFile::ReadOther;
    return QFileInfo::exists(path) ? std::nullopt : std::optional(usersAlone);
}

void makeFolder(const QString &path, Scope scope)
{
    if (QFileInfo::exists(path) || !QDir().mkpath(path) || scope == Scope::User)
        return; // where it cannot be made, neither can the file
    QFile::setPermissions(path,
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::ExeGroup
                              | QFile::ReadOther | QFile::ExeOther);
}

/// Makes the folder of the settings, and keeps other programs from changing them.
/// @return why that cannot be done; empty when it is
QString claimSettings(FolderLock &lock, Scope scope)
{
    const QString path = settingsPath(scope);
    if (const QString refusal = rootRefusal(path, scope); !refusal.isEmpty())
        return refusal;
    const QString folder = QFileInfo(path).path();
    makeFolder(folder, scope);
    return lock.take(folder, lockTimeout) ? QString() : qtTrId("SettingsBeingChanged").arg(folder);
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

/// @return the file that a change for @p scope starts from; nil for the shipped settings
std::optional<QString> startOf(Scope scope)
{
    if (scope == Scope::User)
        return findSettingFile();
    return QFileInfo::exists(settingsPath(scope)) ? std::optional(settingsPath(scope)) : std::nullopt;
}

SettingFileReading readInForce(const std::optional<QString> &path)
{
    if (path)
        return readSettingFile(*path);
    const QByteArray shipped = shippedSettingsFile();
    return {shipped, readPropertyList(shipped)};
}

/// Writes the file of @p scope in place of the one that is there, or of the one that is kept beside it then.
SettingsWritten write(const QByteArray &bytes, bool keep, Scope scope)
{
    const QString path = settingsPath(scope);
    SettingsWritten written = keep ? keepBeside(path) : SettingsWritten();
    if (!written.problem.isEmpty())
        return written;
    written.path = path;
    const QString problem = writeWholeFile(path, bytes, permissionsFor(path, scope));
    if (problem.isEmpty())
        return written;
    written.problem = u"%1: %2"_s.arg(path, problem);
    if (!written.backup.isEmpty() && rename(written.backup, path).isEmpty())
        written.backup.clear();
    return written;
}

} // namespace

QString userSettingsPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/tarvo/Config.plist"_s;
}

QString settingsPath(Scope scope)
{
    return scope == Scope::User ? userSettingsPath() : u"/etc/xdg/tarvo/Config.plist"_s;
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

SettingsWritten changeSettings(const SettingChange &change, Damaged damaged, Scope scope)
{
    FolderLock lock;
    if (const QString problem = claimSettings(lock, scope); !problem.isEmpty())
        return {.problem = problem};
    const QString own = settingsPath(scope);
    const auto path = startOf(scope);
    const SettingFileReading reading = readInForce(path);
    if (!reading.values.root && damaged == Damaged::Refuse)
        return {.problem = u"%1: %2"_s.arg(*path, reading.values.problem), .isDamaged = true};
    const Source source = sourceFrom(reading);
    const auto changed = source.text ? change(*source.text) : std::nullopt;
    if (!changed)
        return {.problem = qtTrId("CannotBeChanged").arg(path.value_or(own))};
    if (path == own && changed->toBytes() == reading.bytes)
        return {.path = own};
    SettingsWritten written = write(changed->toBytes(), source.replacesFile && path == own, scope);
    written.fromBinary = source.fromBinary;
    return written;
}

SettingsWritten resetSettings(Scope scope)
{
    FolderLock lock;
    const QString problem = claimSettings(lock, scope);
    return problem.isEmpty() ? keepBeside(settingsPath(scope)) : SettingsWritten{.problem = problem};
}

} // namespace tarvo
