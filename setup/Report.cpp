#include "setup/Report.h"

#include "setup/SettingKeys.h"

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
    QStringList parts{u"interface "_s + device.usb.interfaceName};
    if (!device.usb.driver.isEmpty())
        parts[0] += u" (%1)"_s.arg(device.usb.driver);
    parts.append(device.network.isUp ? u"up"_s : u"down"_s);
    for (const QString &address : device.network.addresses)
        parts.append(u"address "_s + address);
    parts.append(device.network.gateway.isEmpty() ? u"no gateway"_s : u"gateway "_s + device.network.gateway);
    return parts.join(u", "_s);
}

QString stateAsText(const ListedDevice &listed)
{
    QString text = supportName(listed.device.support);
    if (listed.isModem)
        text += *listed.isModem ? u", answers like a modem"_s : u", does not answer like a modem"_s;
    return text;
}

QString valueAsText(const QVariant &value)
{
    if (!value.isValid())
        return u"(absent)"_s;
    return QString::fromUtf8(QJsonDocument(QJsonArray{QJsonValue::fromVariant(value)}).toJson(QJsonDocument::Compact))
        .sliced(1)
        .chopped(1);
}

} // namespace

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
        return u"no USB network device is plugged in\n"_s;
    QString text;
    for (const ListedDevice &listed : devices) {
        const QString id = listed.device.identifier();
        text += u"%1  %2\n    %3\n    %4\n"_s.arg(id, listed.device.name(), networkAsText(listed.device),
                                                  stateAsText(listed));
        if (listed.device.support != Support::Supported)
            text += u"    to use it: tarvo-setup use %1\n"_s.arg(id);
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
        text += u"%1  %2\n"_s.arg(markName(check.mark), -7).arg(check.title());
        for (const QString &line : QStringList{check.advice.shown()} + check.details)
            text += line.isEmpty() ? QString() : u"         "_s + line + u'\n';
    }
    return text;
}

QString settingsAsText(const QVariantMap &settings)
{
    QString text;
    for (const SettingKey &key : settingKeys())
        text += key.name() + u": "_s + valueAsText(settingAt(settings, key.path)) + u'\n';
    return text;
}

} // namespace tarvo
