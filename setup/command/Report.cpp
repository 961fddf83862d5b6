#include "setup/command/Report.h"

#include "platform/LogLine.h"
#include "setup/settings/SettingKeys.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

QString supportName(Support support)
{
    switch (support) {
    case Support::Supported:
        return u"supported"_s;
    case Support::Excluded:
        return u"excluded"_s;
    case Support::Unsupported:
        return u"unsupported"_s;
    }
    return {};
}

QString markName(Mark mark)
{
    switch (mark) {
    case Mark::Ok:
        return u"ok"_s;
    case Mark::Broken:
        return u"broken"_s;
    case Mark::Unknown:
        return u"unknown"_s;
    case Mark::Skipped:
        return u"skipped"_s;
    }
    return {};
}

QJsonObject deviceAsJson(const ListedDevice &listed)
{
    const auto &[usb, network, support] = listed.device;
    return {{u"id"_s, listed.device.identifier()},
            {u"vendor"_s, usb.vendor},
            {u"product"_s, usb.product},
            {u"vendorName"_s, usb.vendorName},
            {u"productName"_s, usb.productName},
            {u"driver"_s, usb.driver},
            {u"interface"_s, usb.interfaceName},
            {u"up"_s, network.isUp},
            {u"addresses"_s, QJsonArray::fromStringList(network.addresses)},
            {u"gateway"_s, network.gateway},
            {u"support"_s, supportName(support)},
            {u"modem"_s, listed.isModem ? QJsonValue(*listed.isModem) : QJsonValue()}};
}

QString networkAsText(const Device &device)
{
    const auto &[usb, network, support] = device;
    QStringList parts{usb.driver.isEmpty() ? usb.interfaceName : u"%1 (%2)"_s.arg(usb.interfaceName, usb.driver)};
    if (!network.isUp)
        parts.append(qtTrId("LinkDown"));
    parts.append(network.addresses);
    parts.append(network.gateway.isEmpty() ? qtTrId("DeviceNoGateway") : qtTrId("DeviceGateway").arg(network.gateway));
    return parts.join(u", "_s);
}

QString stateAsText(const ListedDevice &listed)
{
    QString text = supportText(listed.device.support);
    if (listed.isModem)
        text += u", "_s + (*listed.isModem ? qtTrId("DeviceIsModem") : qtTrId("DeviceIsNoModem"));
    return text;
}

QString valueAsText(const QVariant &value)
{
    if (!value.isValid())
        return u"-"_s;
    return QString::fromUtf8(QJsonDocument(QJsonArray{QJsonValue::fromVariant(value)}).toJson(QJsonDocument::Compact))
        .sliced(1)
        .chopped(1);
}

} // namespace

QString outputLine(const QString &text)
{
    return QString::fromUtf8(logLine(text)) + u'\n';
}

QByteArray devicesAsJson(const QList<ListedDevice> &devices)
{
    QJsonArray array;
    for (const ListedDevice &listed : devices)
        array.append(deviceAsJson(listed));
    return QJsonDocument(QJsonObject{{u"devices"_s, array}}).toJson();
}

QString devicesAsText(const QList<ListedDevice> &devices)
{
    if (devices.isEmpty())
        return qtTrId("NoDevices") + u'\n';
    QString text;
    for (const ListedDevice &listed : devices) {
        const QString id = listed.device.identifier();
        text += outputLine(id + u"  "_s + listed.device.name()) + outputLine(u"    "_s + networkAsText(listed.device))
            + outputLine(u"    "_s + stateAsText(listed));
        if (listed.device.support != Support::Supported)
            text += u"    "_s + qtTrId("UseCommand").arg(u"tarvo-setup use "_s + id) + u'\n';
    }
    return text;
}

QByteArray checksAsJson(const QList<Check> &checks)
{
    QJsonArray array;
    for (const Check &check : checks) {
        array.append(QJsonObject{{u"id"_s, QString::fromLatin1(check.id)},
                                 {u"mark"_s, markName(check.mark)},
                                 {u"title"_s, check.title()},
                                 {u"advice"_s, check.advice.shown()},
                                 {u"details"_s, QJsonArray::fromStringList(check.details)}});
    }
    return QJsonDocument(QJsonObject{{u"whole"_s, isWhole(checks)}, {u"checks"_s, array}}).toJson();
}

QString checksAsText(const QList<Check> &checks)
{
    QString text;
    for (const Check &check : checks) {
        text += outputLine(u"%1: %2"_s.arg(check.title(), markText(check.mark)));
        for (const QString &detail : QStringList{check.advice.shown()} + check.details)
            text += detail.isEmpty() ? QString() : outputLine(u"    "_s + detail);
    }
    return text;
}

QByteArray settingsAsJson(const SettingsInForce &settings)
{
    return QJsonDocument(
               QJsonObject{{u"path"_s, settings.path}, {u"settings"_s, QJsonObject::fromVariantMap(settings.values)}})
        .toJson();
}

QString settingsAsText(const SettingsInForce &settings)
{
    QString text = outputLine(settings.path);
    for (const SettingKey &key : settingKeys())
        text += outputLine(key.name() + u": "_s + valueAsText(settingAt(settings.values, key.path)));
    return text;
}

} // namespace tarvo
