#pragma once

#include "attachment/Attachment.h"
#include "attachment/Guarded.h"
#include "modemapi/Obstacle.h"

#include <QString>

#include <functional>
#include <optional>

namespace tarvo {

/// What the modem's start-up state says of its SIM card.
enum class SimState {
    Unknown, ///< the page does not tell, or the card needs nothing
    Missing,
    Damaged,
    NeedsPin,
    NeedsPuk,
    Locked, ///< to another network
};

/// @param mainState  the value of `modem_main_state`; nil when there is none
SimState simState(const std::optional<QString> &mainState);

/// What the status page tells beside that of which news are made. What the page does not tell is nil.
struct ModemDetails {
    std::optional<bool> connected{};
    bool connecting = false; ///< a connection is being made; `connected` is false then
    SimState sim = SimState::Unknown;
    std::optional<bool> dialsByItself{};
    std::optional<bool> roamingAllowed{};
    bool countsMonth = false; ///< the monthly amounts are meant: the modem's reminder is on
    float reminderThreshold = 0; ///< monthly, in gigabytes
    float threeDayUse = 0; ///< in gigabytes

    bool operator==(const ModemDetails &) const = default;
};

/// Fields with fixed names that no flow of the program sets: they tell nothing of the modem, whose state is in
/// `ModemDetails`.
struct DormantFields {
    bool isConnected_ = false;
    bool isAutoConnectOn_ = false; ///< kept by `StatusMonitor::isAutoConnect`

    bool operator==(const DormantFields &) const = default;
};

/// What is known of the modem at one moment. Amounts are in gigabytes of 2^30 bytes.
struct StatusSnapshot {
    DormantFields dormant{};

    bool isRoamOn_ = false; ///< the modem's setting allows roaming
    bool isHaveNewVersion_ = false; ///< the modem offers new firmware
    bool isHaveDataLimitReachedForOneMonth_ = false; ///< the monthly reminder's threshold is passed
    bool isHaveDataLimitExceedForOneMonth_ = false; ///< the monthly limit is passed
    bool isHaveDataLimitExceedForThreedays_ = false; ///< the three-day limit is passed

    // A notice is pending, since it first came up until the next device is ready. Both also stand when there is no
    // device, so that nothing shows a normal state then.
    bool haveNewVersionFlag_ = false;
    bool haveDataLimitFlag_ = false;

    float m_useData = 0; ///< used this month
    float m_surplusData = 0; ///< left this month; below zero when the limit is passed
    float m_totalMonthData = 0; ///< the monthly limit
    float m_totalThreeData = 0; ///< the three-day limit

    /// Gives its status page: false after two failed reads in a row; nil before the first answer.
    std::optional<bool> answering{};
    std::optional<Obstacle> obstacle{}; ///< why not; nil unless `answering` is false
    ModemDetails details{};

    /// @return whether any data limit or reminder is passed
    bool hasDataLimitNews() const
    {
        return isHaveDataLimitReachedForOneMonth_ || isHaveDataLimitExceedForOneMonth_
            || isHaveDataLimitExceedForThreedays_;
    }

    bool operator==(const StatusSnapshot &) const = default;
};

/// The one snapshot, which is replaced whole: nobody sees half of a pass. For every thread.
class SharedSnapshot {
public:
    /// @return a copy of the present snapshot
    StatusSnapshot get() const { return m_snapshot.get(); }

    /// Publishes what @p change makes of the present snapshot, unless @p work is over.
    /// @return whether it was published
    bool update(const Work &work, const std::function<void(StatusSnapshot &snapshot)> &change);

    /// Publishes @p snapshot on behalf of no modem: main thread, when no work is under way.
    void reset(const StatusSnapshot &snapshot) { m_snapshot.set(snapshot); }

private:
    Guarded<StatusSnapshot> m_snapshot;
};

} // namespace tarvo
