#include "RouterObserver/UsbIdentity.h"

namespace tarvo {

using namespace Qt::StringLiterals;

QString UsbIdentity::text() const
{
    return u"%1:%2"_s.arg(vendor, 4, 16, QLatin1Char('0')).arg(product, 4, 16, QLatin1Char('0'));
}

std::optional<UsbIdentity> usbIdentity(DeviceRegistry &registry, IOServiceHandle service)
{
    const auto vendor = registry.searchProperty(service, u"idVendor"_s, RegistrySearch::Upward);
    const auto product = registry.searchProperty(service, u"idProduct"_s, RegistrySearch::Upward);
    if (!vendor || !product)
        return std::nullopt;
    return UsbIdentity{vendor->toLongLong(), product->toLongLong()};
}

} // namespace tarvo
