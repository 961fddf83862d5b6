#include "setup/settings/SettingFindings.h"

#include "RouterObserver/ConfigManager.h"
#include "platform/Workspace.h"

#include <QMetaType>
#include <QUrl>

#include <algorithm>
#include <optional>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

bool isSomeText(const QVariant &value)
{
    return value.typeId() == QMetaType::QString;
}

bool isNumber(const QVariant &value)
{
    return value.typeId() == QMetaType::LongLong || value.typeId() == QMetaType::Int
        || value.typeId() == QMetaType::Double;
}

bool isRightType(SettingKind kind, const QVariant &value)
{
    switch (kind) {
    case SettingKind::Flag:
        return value.typeId() == QMetaType::Bool || isNumber(value) || isSomeText(value);
    case SettingKind::Identifiers:
        return value.typeId() == QMetaType::QVariantList;
    default:
        return isSomeText(value);
    }
}

bool isPage(QString page)
{
    return isWholeAddress(QUrl(page.replace(u"%@"_s, u"192.0.2.1"_s), QUrl::StrictMode));
}

bool isModemPath(const QString &path)
{
    return !path.contains(u"://"_s) && QUrl(u"http://192.0.2.1/"_s + path, QUrl::StrictMode).isValid();
}

/// Devices are compared by their numbers written in decimal, without anything else.
bool isDecimalIdentifier(const QString &text)
{
    bool isNumber = false;
    const uint number = text.toUShort(&isNumber);
    return isNumber && QString::number(number) == text;
}

std::optional<SettingFinding> checkIdentifier(const QString &name, const QVariant &element)
{
    if (isNumber(element))
        return SettingFinding{Fault::NumberNeverMatches, name, element.toString()};
    if (!isSomeText(element))
        return SettingFinding{Fault::WrongType, name};
    if (!isDecimalIdentifier(element.toString()))
        return SettingFinding{Fault::NotDecimal, name, element.toString()};
    return std::nullopt;
}

/// Looks for keys of @p map, which stands at @p parent, that are neither a setting nor hold one.
void checkUnknown(const QVariantMap &map, const QStringList &parent, QList<SettingFinding> &findings)
{
    for (const QString &key : map.keys()) {
        const QStringList path = parent + QStringList{key};
        const bool known = std::ranges::any_of(
            settingKeys(), [&](const SettingKey &setting) { return setting.path.mid(0, path.size()) == path; });
        if (!known)
            findings.append({Fault::UnknownKey, path.join(u'/')});
    }
}

void checkVendors(const QVariantMap &settings, QList<SettingFinding> &findings)
{
    const QString name = vendorsPath.join(u'/');
    const QVariantList vendors = settingAt(settings, vendorsPath).toList();
    if (vendors.isEmpty())
        findings.append({Fault::NoVendor, name});
    else if (vendors.size() == 1 && isText(vendors.first(), exampleVendor))
        findings.append({Fault::OnlyExampleVendor, name, exampleVendor});
}

} // namespace

std::optional<SettingFinding> checkValue(const SettingKey &key, const QVariant &value)
{
    if (!isRightType(key.kind, value))
        return SettingFinding{Fault::WrongType, key.name()};
    if (key.kind == SettingKind::Page && !isPage(value.toString()))
        return SettingFinding{Fault::NoUrl, key.name(), value.toString()};
    if (key.kind == SettingKind::ModemPath && !isModemPath(value.toString()))
        return SettingFinding{Fault::NoModemPath, key.name(), value.toString()};
    const QVariantList elements = key.kind == SettingKind::Identifiers ? value.toList() : QVariantList();
    for (const QVariant &element : elements) {
        if (auto finding = checkIdentifier(key.name(), element))
            return finding;
    }
    return std::nullopt;
}

QList<SettingFinding> checkSettings(const QVariantMap &settings)
{
    QList<SettingFinding> findings;
    const QVariant deviceInfo = settings.value(u"device_info"_s);
    if (deviceInfo.isValid() && deviceInfo.typeId() != QMetaType::QVariantMap)
        findings.append({Fault::WrongType, u"device_info"_s});
    for (const SettingKey &key : settingKeys()) {
        const QVariant value = settingAt(settings, key.path);
        if (const auto finding = value.isValid() ? checkValue(key, value) : std::nullopt)
            findings.append(*finding);
    }
    checkUnknown(settings, {}, findings);
    checkUnknown(deviceInfo.toMap(), {u"device_info"_s}, findings);
    checkVendors(settings, findings);
    return findings;
}

UserText SettingFinding::sentence() const
{
    switch (fault) {
    case Fault::UnknownKey:
        return {"FaultUnknownKey", {key}};
    case Fault::WrongType:
        return {"FaultWrongType", {key}};
    case Fault::NumberNeverMatches:
        return {"FaultNumberNeverMatches", {value, key}};
    case Fault::NotDecimal:
        return {"FaultNotDecimal", {value, key}};
    case Fault::NoUrl:
        return {"FaultNoUrl", {key}};
    case Fault::NoModemPath:
        return {"FaultNoModemPath", {key}};
    case Fault::NoVendor:
        return {"FaultNoVendor"};
    case Fault::OnlyExampleVendor:
        return {"FaultOnlyExampleVendor", {value}};
    }
    return {};
}

} // namespace tarvo
