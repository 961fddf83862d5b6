#pragma once

#include "modemapi/StatusSnapshot.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>

namespace tarvo {

class ConfigManager;

/// Turns the modem's status pages into the snapshot.
class StatusMonitor {
public:
    /// Who is told of snapshots, on the polling worker.
    struct Listeners {
        /// Each page has become the snapshot.
        std::function<void(const Work &work)> evaluated{};
        /// A page, or the lack of one, has made another snapshot than the last.
        std::function<void(const Work &work, const StatusSnapshot &snapshot)> changed{};
    };

    /// @param settings  say how a page is read; they outlive this object, as the snapshot
    StatusMonitor(SharedSnapshot &snapshot, const ConfigManager &settings, Listeners listeners);

    /// Turns the status page @p content into the snapshot; what is no status page changes nothing (polling worker).
    void setAllStatusByUrlContents(const Work &work, const QString &content);
    /// The modem gave its status page, or @p obstacle stood in the way (polling worker). It counts as not answering after
    /// two failures in a row.
    void noteAnswer(const Work &work, std::optional<Obstacle> obstacle);
    /// Keeps in `isAutoConnectOn_` whether @p dialMode means that the modem dials by itself. @return the same
    bool isAutoConnect(const Work &work, const std::optional<QString> &dialMode);

    // The network status codes, which nothing reads at present (main thread).
    void setcurrentNetWorkStatus(std::int32_t status);
    void setNetWorkTransferType(std::int32_t type);
    /// Derives the transfer type: 2 when nothing changed, else 0 for the new status 1 and 1 for any other.
    void setNetWorkTransferTypeByNewNetStatus(std::int32_t status);
    std::int32_t netWorkTransferType() const { return netWorkTransferType_; }

    /// A device became ready: no notice is pending (main thread, when no work is under way).
    /// @param hasNewVersion  whether it has offered new firmware before
    void resetForReadyDevice(bool hasNewVersion);
    /// The device is gone or the machine sleeps: nothing is known, and both notices are pending, so that nothing shows
    /// a normal state until a device is ready again (main thread, when no work is under way).
    void resetForStop();

private:
    void evaluate(const Work &work, const QString &content);
    void publish(const Work &work, const std::function<void(StatusSnapshot &snapshot)> &change);

    SharedSnapshot &m_snapshot;
    const ConfigManager &m_settings;
    const Listeners m_listeners;
    StatusSnapshot m_told; ///< the last one that listeners were told; touched on behalf of the present attachment only
    int m_failures = 0; ///< in a row; touched as the last, like the next two
    QString m_content; ///< the page that was evaluated last
    StatusSnapshot m_evaluated; ///< what it made
    std::int32_t currentNetWorkStatus_ = 0;
    std::int32_t netWorkTransferType_ = 1;
};

} // namespace tarvo
