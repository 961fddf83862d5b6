#pragma once

#include "platform/Background.h"
#include "setup/checks/ModemProbe.h"
#include "setup/checks/SetupServices.h"
#include "setup/settings/SettingStore.h"

#include <QList>
#include <QVariantMap>

#include <chrono>
#include <functional>
#include <memory>
#include <stop_token>

namespace tarvo {

/// Gathers what the list of devices and the chain of checks are made of. Lives on the main thread, which never waits:
/// answers are delivered from the event loop, and not any more when this object is gone.
class Survey {
public:
    explicit Survey(SetupServices services);

    /// @return the USB network devices that are there now
    QList<Device> devices(const QVariantMap &settings) const;

    /// Asks the gateway of @p device whether it is a modem, over the device's interface alone.
    void askWhetherModem(const Device &device, const QVariantMap &settings, std::function<void(bool isModem)> deliver);

    /// Goes through the whole chain.
    void check(std::function<void(const QList<Check> &checks)> deliver);

    /// Has the running companion start again, so that it reads new settings.
    void restartCompanion(std::function<void(ActionResult result)> deliver);

    /// @return whether answers are still to come
    bool isBusy() const { return m_background.isBusy(); }

private:
    struct Gathering;

    /// Reads one more fact of @p gathering on another thread; what takes longer than @p limit stays unknown.
    template <typename Fact>
    void gather(const std::shared_ptr<Gathering> &gathering, std::chrono::milliseconds limit,
                std::function<Fact(std::stop_token)> read,
                std::function<void(ChainFacts &facts, const Fact &fact)> put);
    ChainFacts factsAtHand(const SettingsInForce &settings) const;
    /// @param settings  say how to ask; where there are none, the shipped ones do
    ModemQuestion questionFor(const Device &device, const QVariantMap &settings) const;

    SetupServices m_services;
    Background m_background;
};

} // namespace tarvo
