#pragma once

#include "RouterObserver/RouterObserver.h"
#include "app/Services.h"
#include "attachment/Attachment.h"
#include "platform/Clock.h"
#include "platform/InterfaceFacts.h"
#include "status/DetailRows.h"

#include <QtGlobal>

#include <atomic>
#include <chrono>
#include <optional>

namespace tarvo {

/// What is known of the modem that was reported last, from outside: where it is, what it is, and since when. On the main
/// thread, unless said otherwise.
class KnownDevice {
public:
    /// @param services  outlive this object, as all that they refer to
    explicit KnownDevice(const Services &services);

    /// A device was reported ready, with a router. @return whether anything is different from the last report
    bool keep(const ReadyDictionary &ready);
    /// The device has answered just now (polling worker).
    void noteAnswer();

    /// @return where the device is; nil before the first report
    const std::optional<ModemLocation> &location() const { return m_location; }
    /// @return what tells its interface from others
    const InterfaceIdentity &identity() const { return m_identity; }
    DeviceDetails details(int accessPointsSent) const;
    std::chrono::seconds sinceReport() const;

private:
    const Services &m_services;
    ReadyDictionary m_report;
    InterfaceIdentity m_identity;
    std::optional<ModemLocation> m_location;
    DeviceDetails m_details;
    Clock::TimePoint m_reported{};
    std::atomic<qint64> m_lastAnswer{0}; ///< milliseconds since the epoch; 0 before the first answer
};

} // namespace tarvo
