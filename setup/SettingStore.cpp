#include "setup/SettingStore.h"

#include "RouterObserver/SettingFile.h"
#include "setup/SettingKeys.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMetaType>
#include <QSaveFile>
#include <QStandardPaths>

#include <algorithm>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

constexpr int mostBackups = 100;

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

/// Moves the file at @p path aside, or copies it where that can be done.
/// @return where it is then; empty when it cannot be kept
QString keepBeside(const QString &path)
{
    for (int i = 0; i < mostBackups; ++i) {
        const QString backup = path + (i == 0 ? u".bak"_s : u".bak%1"_s.arg(i));
        if (QFileInfo::exists(backup))
            continue;
        const bool kept = (QFileInfo(path).isFile() && QFile::copy(path, backup)) || QFile::rename(path, backup);
        return kept ? backup : QString();
    }
    return {};
}

QString writeFile(const QString &path, const QByteArray &bytes)
{
    const bool isNew = !QFileInfo::exists(path);
    if (!QDir().mkpath(QFileInfo(path).path()))
        return u"%1: the folder cannot be made"_s.arg(QFileInfo(path).path());
    QSaveFile file(path);
    const bool isOpen = file.open(QIODevice::WriteOnly);
    if (isOpen && isNew)
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    if (!isOpen || file.write(bytes) != bytes.size() || !file.commit())
        return u"%1: %2"_s.arg(path, file.errorString());
    return {};
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

/// Writes the user's own file, after the one that was there has been kept beside it if @p keep says so.
SettingsWritten write(const QByteArray &bytes, bool keep)
{
    SettingsWritten written;
    const QString path = userSettingsPath();
    if (keep && QFileInfo::exists(path)) {
        written.backup = keepBeside(path);
        if (written.backup.isEmpty())
            return {.problem = u"%1: it cannot be kept beside a new one"_s.arg(path)};
    }
    written.problem = writeFile(path, bytes);
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
    const auto path = findSettingFile();
    const SettingFileReading reading = readInForce(path);
    if (!reading.values.root && damaged == Damaged::Refuse)
        return {.problem = u"%1: %2"_s.arg(*path, reading.values.problem), .isDamaged = true};
    const Source source = sourceFrom(reading);
    const auto changed = source.text ? change(*source.text) : std::nullopt;
    if (!changed)
        return {.problem = u"%1: it cannot be changed as wanted"_s.arg(path.value_or(userSettingsPath()))};
    if (path == userSettingsPath() && changed->toBytes() == reading.bytes)
        return {};
    SettingsWritten written = write(changed->toBytes(), source.replacesFile && path == userSettingsPath());
    written.fromBinary = source.fromBinary;
    return written;
}

SettingsWritten resetSettings()
{
    return write(shippedSettingsFile(), true);
}

} // namespace tarvo
