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
    InterfaceFacts &interfaces = m_services.interfaces;
    const InterfaceIdentity before = std::exchange(m_identity, name ? interfaces.identity(*name) : InterfaceIdentity());
    const bool isSame = m_identity.isSamePlugIn(before);
    m_location = {*ready.router, name, name ? interfaces.socketBinder(*name) : SocketBinder()};
    const auto identity = usbIdentity(m_services.deviceRegistry, ready.kOmbraIOService);
    m_details = {.name = name ? interfaces.deviceName(*name) : QString(),
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
