#include "setup/settings/Devices.h"

#include "RouterObserver/UsbIdentity.h"
#include "setup/settings/SettingKeys.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

int progress(const Device &device)
{
    if (!device.network.gateway.isEmpty())
        return 3;
    if (!device.network.addresses.isEmpty())
        return 2;
    return device.network.isUp ? 1 : 0;
}

} // namespace

QString Device::identifier() const
{
    return UsbIdentity{usb.vendor, usb.product}.text();
}

QString Device::name() const
{
    const QString names = QString(usb.vendorName + u' ' + usb.productName).simplified();
    return names.isEmpty() ? identifier() : names;
}

QString supportText(Support support)
{
    switch (support) {
    case Support::Supported:
        return qtTrId("DeviceSupported");
    case Support::Excluded:
        return qtTrId("DeviceExcluded");
    case Support::Unsupported:
        return qtTrId("DeviceUnsupported");
    }
    return {};
}

std::optional<Device> deviceToCheck(const QList<Device> &devices)
{
    std::optional<Device> furthest;
    for (const Device &device : devices) {
        if (device.support == Support::Supported && (!furthest || progress(device) > progress(*furthest)))
            furthest = device;
    }
    return furthest;
}

std::optional<DeviceId> deviceIdFrom(const QString &text)
{
    static const QRegularExpression form(u"^([0-9A-Fa-f]{1,4}):([0-9A-Fa-f]{1,4})$"_s);
    const auto match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    return DeviceId{match.captured(1).toUShort(nullptr, 16), match.captured(2).toUShort(nullptr, 16)};
}

bool isNoModem(DeviceId device)
{
    return device.vendor == 0 || device.vendor == 0xffff || QString::number(device.vendor) == exampleVendor;
}

} // namespace tarvo
