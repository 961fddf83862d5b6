#include "RouterObserver/UnknownModems.h"

#include "RouterObserver/RouterObserver.h"
#include "RouterObserver/UsbIdentity.h"

#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

UnknownModems::UnknownModems(DynamicStore &dynamicStore, DeviceRegistry &deviceRegistry, const RouterObserver &observer,
                             std::function<void()> changed)
    : m_dynamicStore(dynamicStore)
    , m_deviceRegistry(deviceRegistry)
    , m_observer(observer)
    , m_changed(std::move(changed))
{
}

void UnknownModems::watch()
{
    m_session = m_dynamicStore.createSession(u"UnknownModems"_s,
                                             [this](auto &session, const QStringList &keys) { update(session, keys); });
    if (!m_session)
        return;
    const QStringList patterns{store::anyServiceIPv4Pattern};
    m_session->setNotificationPatterns(patterns);
    update(*m_session, patterns);
}

std::optional<QString> UnknownModems::first() const
{
    return m_unknown.isEmpty() ? std::nullopt : std::optional(m_unknown.first());
}

void UnknownModems::update(DynamicStoreSession &session, const QStringList &keys)
{
    const auto before = first();
    for (const QString &key : keys)
        m_unknown.remove(key);
    const auto states = session.copyMultiple(keys);
    for (const auto &[key, state] : states.asKeyValueRange()) {
        m_unknown.remove(key);
        if (const auto device = unknownDevice(state))
            m_unknown.insert(key, *device);
    }
    if (first() != before)
        m_changed();
}

std::optional<QString> UnknownModems::unknownDevice(const QVariantMap &ipv4State) const
{
    if (!ipv4State.contains(store::kSCPropNetIPv4Router))
        return std::nullopt;
    const IOServiceHandle service =
        m_observer.getIOServiceOfBSDName(ipv4State.value(store::kSCPropInterfaceName).toString());
    const auto identity = service == 0 ? std::nullopt : usbIdentity(m_deviceRegistry, service);
    if (!identity || m_observer.isSupportedVendorID(identity->vendor)
        || m_observer.isExcludedProductID(identity->product))
        return std::nullopt;
    return identity->text();
}

} // namespace tarvo
