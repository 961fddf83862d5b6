#include "app/KnownDevice.h"

#include "RouterObserver/UsbIdentity.h"

#include <QDateTime>

#include <utility>

namespace tarvo {

KnownDevice::KnownDevice(const Services &services)
    : m_services(services)
{
}

bool KnownDevice::keep(const ReadyDictionary &ready)
{
    const auto &name = ready.kOmbraBSDName;
    const auto &binderFor = m_services.socketBinderFor;
    const auto &identityOf = m_services.identityOf;
    const InterfaceIdentity before =
        std::exchange(m_identity, identityOf && name ? identityOf(*name) : InterfaceIdentity());
    const bool isSame = m_identity.index != 0 && m_identity.index == before.index;
    m_location = {*ready.router, name, binderFor && name ? binderFor(*name) : SocketBinder()};
    const auto identity = usbIdentity(m_services.deviceRegistry, ready.kOmbraIOService);
    m_details = {.name = m_services.deviceName && name ? m_services.deviceName(*name) : QString(),
                 .usbIdentity = identity ? identity->text() : QString(),
                 .interfaceName = name.value_or(QString()),
                 .address = ready.addresses.value(0).section(u'/', 0, 0),
                 .gateway = *ready.router};
    if (!isSame) {
        m_reported = m_services.clock.now();
        m_lastAnswer = 0;
    }
    return std::exchange(m_report, ready) != ready || !isSame;
}

void KnownDevice::noteAnswer()
{
    m_lastAnswer = QDateTime::currentMSecsSinceEpoch();
}

DeviceDetails KnownDevice::details(int accessPointsSent) const
{
    DeviceDetails details = m_details;
    details.accessPointsSent = accessPointsSent;
    if (m_lastAnswer != 0)
        details.lastAnswer = QDateTime::fromMSecsSinceEpoch(m_lastAnswer);
    return details;
}

std::chrono::seconds KnownDevice::sinceReport() const
{
    return std::chrono::duration_cast<std::chrono::seconds>(m_services.clock.now() - m_reported);
}

} // namespace tarvo
