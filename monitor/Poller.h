#pragma once

#include "attachment/Attachment.h"
#include "modemapi/Obstacle.h"
#include "platform/Clock.h"

#include <QObject>
#include <QString>

#include <atomic>
#include <functional>
#include <memory>
#include <optional>

namespace tarvo {

class ConfigManager;
class ModemClient;
class RepeatingTimer;
class SystemLog;

/// Fetches the modem's status page once a second, on a worker of its own for each attachment.
class Poller {
public:
    /// What follows a read of the page, on the worker.
    struct Steps {
        /// Told what stood in the way of the status page; nil when it came.
        std::function<void(const Work &work, std::optional<Obstacle> obstacle)> answered{};
        /// Runs when there was a page, one that is no status page included, and an empty one where the settings let it
        /// pass.
        std::function<void(ModemClient &client, const QString &page)> pass{};
    };

    /// Everything referred to outlives the poller. @param settings  say how a modem is asked
    Poller(const ConfigManager &settings, Clock &clock, SystemLog &systemLog, Steps steps);
    ~Poller();

    /// Starts a worker for @p work, which asks nobody where the modem's address is empty; tries again every second while
    /// the system has no thread to give (main thread).
    void start(const Work &work);
    /// Forgets the timer; the worker has been ended with its attachment (main thread).
    void stop();

    /// @return whether the timer has been made since the last `stop`; nothing reads it at present
    bool ifOpenUrlWhileDevicePlugIn() const { return ifOpenUrlWhileDevicePlugIn_; }

private:
    void newUpdateStatus(const Work &work);
    std::shared_ptr<RepeatingTimer> timerFor(const Work &work);
    void timerHandler(const std::shared_ptr<RepeatingTimer> &timer, std::unique_ptr<ModemClient> &client,
                      const Work &work);
    void updateModemStatus(ModemClient &client);

    const ConfigManager &m_settings;
    Clock &m_clock;
    SystemLog &m_systemLog;
    const Steps m_steps;
    /// Ticks once a second, also through a second ready report. Touched only on behalf of the present attachment.
    std::shared_ptr<RepeatingTimer> modemStatusTimer_;
    std::atomic<bool> ifOpenUrlWhileDevicePlugIn_{false};
    QObject m_context; ///< what is put off ends with the poller
};

} // namespace tarvo
