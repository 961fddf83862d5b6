#include "platform/linux/network/UdevDeviceRegistry.h"

#include <libudev.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

template <auto Release>
struct Releaser {
    void operator()(auto *object) const { Release(object); }
};
using Device = std::unique_ptr<udev_device, Releaser<udev_device_unref>>;
using Enumeration = std::unique_ptr<udev_enumerate, Releaser<udev_enumerate_unref>>;

const QString vendorKey = u"idVendor"_s;
const QString productKey = u"idProduct"_s;
const QString nameKey = u"BSD Name"_s;

/// One look at a device. It fails when a call of libudev comes back empty for a reason that says nothing of the device.
class Look {
public:
    /// @return what @p call of libudev returns
    template <typename Call>
    auto operator()(Call call)
    {
        errno = 0;
        const auto result = call();
        m_failed = m_failed || (!result && isShortage(errno));
        return result;
    }
    bool failed() const { return m_failed; }

private:
    static bool isShortage(int error)
    {
        return error == EMFILE || error == ENFILE || error == ENOMEM || error == EINTR || error == EAGAIN;
    }

    bool m_failed = false;
};

std::optional<QVariant> usbNumber(udev_device *device, const char *attribute, Look &look)
{
    const QByteArray text(look([&] { return udev_device_get_sysattr_value(device, attribute); }));
    bool isNumber = false;
    const qlonglong number = text.trimmed().toUShort(&isNumber, 16);
    return isNumber ? std::optional<QVariant>(number) : std::nullopt;
}

/// Looks no further than the USB device: what is above that is a hub with numbers of its own.
std::optional<QVariant> nearestUsbNumber(udev_device *device, const char *attribute, Look &look)
{
    while (device) {
        if (const auto number = usbNumber(device, attribute, look))
            return number;
        const char *const type = look([&] { return udev_device_get_devtype(device); });
        if (look.failed() || qstrcmp(type, "usb_device") == 0)
            break;
        device = look([&] { return udev_device_get_parent(device); });
    }
    return std::nullopt;
}

bool isDeviceBehind(udev_device *device, int interfaceIndex, Look &look)
{
    const QByteArray index(look([&] { return udev_device_get_sysattr_value(device, "ifindex"); }));
    return index.trimmed().toInt() == interfaceIndex && look([&] { return udev_device_get_parent(device); });
}

QVariantMap usbIdentity(udev_device *device, Look &look)
{
    QVariantMap identity;
    if (const auto vendor = nearestUsbNumber(device, "idVendor", look))
        identity.insert(vendorKey, *vendor);
    if (const auto product = nearestUsbNumber(device, "idProduct", look))
        identity.insert(productKey, *product);
    return identity;
}

/// Needs neither a descriptor nor memory, so that no shortage makes it look again at links that are no devices.
bool hasDevice(const QString &interfaceName)
{
    const QByteArray path = "/sys/class/net/" + interfaceName.toUtf8() + "/device";
    return access(path.constData(), F_OK) == 0 || (errno != ENOENT && errno != ENOTDIR);
}

QList<QByteArray> pathsOf(udev_enumerate *enumeration)
{
    QList<QByteArray> paths;
    udev_list_entry *entry = nullptr;
    udev_list_entry_foreach(entry, udev_enumerate_get_list_entry(enumeration))
        paths.append(udev_list_entry_get_name(entry));
    return paths;
}

std::optional<QVariant> interfaceNameBelow(udev *context, udev_device *device)
{
    const Enumeration below(udev_enumerate_new(context));
    if (!below || udev_enumerate_add_match_parent(below.get(), device) < 0
        || udev_enumerate_add_match_subsystem(below.get(), "net") < 0 || udev_enumerate_scan_devices(below.get()) < 0)
        return std::nullopt;
    const QList<QByteArray> paths = pathsOf(below.get());
    if (paths.isEmpty())
        return std::nullopt;
    return QString::fromUtf8(paths.first().sliced(paths.first().lastIndexOf('/') + 1));
}

} // namespace

UdevDeviceRegistry::UdevDeviceRegistry(std::function<int(const QString &name)> interfaceIndex,
                                       std::function<void()> lookFailed)
    : m_interfaceIndex(std::move(interfaceIndex))
    , m_lookFailed(std::move(lookFailed))
    , m_udev(udev_new(), &udev_unref)
{
}

IOServiceHandle UdevDeviceRegistry::serviceMatchingBSDName(const QString &bsdName)
{
    const int index = m_interfaceIndex(bsdName);
    if (index == 0 || !m_udev)
        return 0;
    KnownInterface &known = m_knownInterfaces[index];
    if (known.service == 0 && known.name != bsdName) {
        const auto service = readInterface(bsdName, index);
        if (!service) {
            m_lookFailed();
            return 0;
        }
        known.service = *service;
    }
    known.name = bsdName;
    if (known.service != 0)
        m_interfaces[known.service].insert(nameKey, bsdName);
    return known.service;
}

/// @return a new handle; 0 for an interface that is no device, or that has another name by now; nil when that cannot be
///         told at present
std::optional<IOServiceHandle> UdevDeviceRegistry::readInterface(const QString &name, int index)
{
    if (!hasDevice(name))
        return 0;
    Look look;
    const Device device(
        look([&] { return udev_device_new_from_subsystem_sysname(m_udev.get(), "net", name.toUtf8().constData()); }));
    const bool found = device && isDeviceBehind(device.get(), index, look);
    const QVariantMap identity = found ? usbIdentity(device.get(), look) : QVariantMap();
    if (look.failed())
        return std::nullopt;
    if (!found)
        return 0;
    m_interfaces.insert(++m_lastHandle, identity);
    return m_lastHandle;
}

void UdevDeviceRegistry::forgetInterface(int interfaceIndex)
{
    m_interfaces.remove(m_knownInterfaces.take(interfaceIndex).service);
}

std::optional<QList<IOServiceHandle>> UdevDeviceRegistry::servicesMatchingClass(const QByteArray &className)
{
    if (className != "IOUSBInterface" && className != "IOUSBHostInterface")
        return QList<IOServiceHandle>{};
    const Enumeration usb(m_udev ? udev_enumerate_new(m_udev.get()) : nullptr);
    if (!usb || udev_enumerate_add_match_subsystem(usb.get(), "usb") < 0
        || udev_enumerate_add_match_property(usb.get(), "DEVTYPE", "usb_interface") < 0
        || udev_enumerate_scan_devices(usb.get()) < 0)
        return std::nullopt;

    const auto before = std::exchange(m_handleOfUsbInterface, {});
    m_usbInterfaces.clear();
    QList<IOServiceHandle> handles;
    for (const QByteArray &path : pathsOf(usb.get())) {
        const auto known = before.constFind(path);
        const IOServiceHandle handle = known == before.cend() ? ++m_lastHandle : *known;
        m_handleOfUsbInterface.insert(path, handle);
        m_usbInterfaces.insert(handle, path);
        handles.append(handle);
    }
    return handles;
}

std::optional<QVariant> UdevDeviceRegistry::searchProperty(IOServiceHandle service, const QString &key,
                                                           RegistrySearch direction)
{
    const auto usbInterface = m_usbInterfaces.constFind(service);
    if (usbInterface != m_usbInterfaces.cend())
        return searchUsbInterface(*usbInterface, key, direction);

    const QVariantMap properties = m_interfaces.value(service);
    const auto property = properties.constFind(key);
    const bool isAbove = key != nameKey;
    if (property == properties.cend() || (isAbove && direction == RegistrySearch::Downward))
        return std::nullopt;
    return *property;
}

std::optional<QVariant> UdevDeviceRegistry::searchUsbInterface(const QByteArray &path, const QString &key,
                                                               RegistrySearch direction) const
{
    const Device device(udev_device_new_from_syspath(m_udev.get(), path.constData()));
    if (!device)
        return std::nullopt;
    if (direction == RegistrySearch::Downward)
        return key == nameKey ? interfaceNameBelow(m_udev.get(), device.get()) : std::nullopt;
    if (key != vendorKey && key != productKey)
        return std::nullopt;
    Look look;
    return nearestUsbNumber(device.get(), key.toLatin1().constData(), look);
}

} // namespace tarvo
