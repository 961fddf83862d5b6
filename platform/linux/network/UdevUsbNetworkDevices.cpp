#include "platform/linux/network/UdevUsbNetworkDevices.h"

#include <libudev.h>

#include <algorithm>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

using Device = std::unique_ptr<udev_device, decltype(&udev_device_unref)>;
using Enumeration = std::unique_ptr<udev_enumerate, decltype(&udev_enumerate_unref)>;

constexpr qsizetype mostDevices = 256;
constexpr qsizetype longestName = 80;

QByteArray attribute(udev_device *device, const char *name)
{
    return QByteArray(udev_device_get_sysattr_value(device, name)).trimmed();
}

/// Texts of devices are anything: what cannot be shown is left out.
QString shownName(const QByteArray &bytes)
{
    QString name = QString::fromUtf8(bytes);
    name.removeIf([](QChar c) { return !c.isPrint(); });
    return name.simplified().left(longestName);
}

} // namespace

UdevUsbNetworkDevices::UdevUsbNetworkDevices()
    : m_udev(udev_new(), &udev_unref)
    , m_names(m_udev ? udev_hwdb_new(m_udev.get()) : nullptr, &udev_hwdb_unref)
{
}

QList<UsbNetworkDevice> UdevUsbNetworkDevices::devices()
{
    QList<UsbNetworkDevice> found;
    const Enumeration net(m_udev ? udev_enumerate_new(m_udev.get()) : nullptr, &udev_enumerate_unref);
    if (!net || udev_enumerate_add_match_subsystem(net.get(), "net") < 0 || udev_enumerate_scan_devices(net.get()) < 0)
        return found;
    udev_list_entry *entry = nullptr;
    udev_list_entry_foreach(entry, udev_enumerate_get_list_entry(net.get()))
    {
        const Device device(udev_device_new_from_syspath(m_udev.get(), udev_list_entry_get_name(entry)),
                            &udev_device_unref);
        const UsbNetworkDevice described = device ? describe(device.get()) : UsbNetworkDevice();
        if (described.interfaceIndex > 0 && found.size() < mostDevices)
            found.append(described);
    }
    std::ranges::sort(found, {}, &UsbNetworkDevice::interfaceIndex);
    return found;
}

UsbNetworkDevice UdevUsbNetworkDevices::describe(udev_device *net) const
{
    udev_device *const usb = udev_device_get_parent_with_subsystem_devtype(net, "usb", "usb_device");
    bool hasVendor = false;
    bool hasProduct = false;
    const quint16 vendor = usb ? attribute(usb, "idVendor").toUShort(&hasVendor, 16) : quint16{0};
    const quint16 product = usb ? attribute(usb, "idProduct").toUShort(&hasProduct, 16) : quint16{0};
    if (!hasVendor || !hasProduct)
        return {};
    udev_device *const function = udev_device_get_parent_with_subsystem_devtype(net, "usb", "usb_interface");
    return {.vendor = vendor,
            .product = product,
            .vendorName = nameOf(usb, "ID_VENDOR_FROM_DATABASE", "manufacturer"),
            .productName = nameOf(usb, "ID_MODEL_FROM_DATABASE", "product"),
            .driver = QString::fromUtf8(function ? udev_device_get_driver(function) : ""),
            .interfaceName = QString::fromUtf8(udev_device_get_sysname(net)),
            .interfaceIndex = attribute(net, "ifindex").toInt()};
}

QString UdevUsbNetworkDevices::nameOf(udev_device *usb, const char *property, const char *attributeName) const
{
    const QByteArray known(udev_device_get_property_value(usb, property));
    if (!known.isEmpty())
        return shownName(known);
    const QByteArray alias =
        "usb:v" + attribute(usb, "idVendor").toUpper() + 'p' + attribute(usb, "idProduct").toUpper();
    udev_list_entry *const properties =
        m_names ? udev_hwdb_get_properties_list_entry(m_names.get(), alias.constData(), 0) : nullptr;
    udev_list_entry *const listed = udev_list_entry_get_by_name(properties, property);
    return shownName(listed ? QByteArray(udev_list_entry_get_value(listed)) : attribute(usb, attributeName));
}

void UdevUsbNetworkDevices::watch(std::function<void()> changed)
{
    m_changed = std::move(changed);
    if (m_notifier || !m_udev)
        return;
    m_monitor.reset(udev_monitor_new_from_netlink(m_udev.get(), "udev"), &udev_monitor_unref);
    if (!m_monitor || udev_monitor_filter_add_match_subsystem_devtype(m_monitor.get(), "net", nullptr) < 0
        || udev_monitor_enable_receiving(m_monitor.get()) < 0)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(udev_monitor_get_fd(m_monitor.get()), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { receive(); });
}

void UdevUsbNetworkDevices::receive()
{
    const Device device(udev_monitor_receive_device(m_monitor.get()), &udev_device_unref);
    m_changed();
}

} // namespace tarvo
