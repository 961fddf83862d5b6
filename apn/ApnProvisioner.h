#pragma once

#include "apn/ApnList.h"
#include "modemapi/StatusSnapshot.h"
#include "platform/Clock.h"

#include <QString>
#include <QStringList>

#include <atomic>
#include <optional>
#include <stop_token>

namespace tarvo {

class ModemClient;
class SystemLog;
struct ProfileSeal;

/// Gives the modem the access points of this computer, and knows what this modem was given.
///
/// What talks to the modem runs on the polling worker, on behalf of its client's work.
class ApnProvisioner {
public:
    /// What has been done for a modem.
    struct Progress {
        bool examined = false; ///< the records are sent, as far as they are wanted
        bool complete = false; ///< the modem has accepted that they are complete
        int sent = 0; ///< how many access points it was given

        bool operator==(const Progress &) const = default;
    };

    /// Everything referred to outlives this object.
    ApnProvisioner(const SharedSnapshot &snapshot, SystemLog &systemLog, Clock &clock);

    /// Adds the access-point record @p record to the modem. @return whether the modem took it
    bool setApn(ModemClient &client, const QString &record);
    /// Makes the access point at @p index the modem's default; 199 first adds the not-found record, if there is one.
    /// @return whether the modem took it; false for a negative index, and when it did not take that record
    bool setDefaultApn(ModemClient &client, int index);
    /// Tells the modem, once, that this computer's access points are complete. One that has refused it three times is
    /// told once a minute.
    void setApnReady(ModemClient &client);
    /// Puts the modem into low power. Nothing calls it at present.
    void setLpm(ModemClient &client);
    /// Puts the modem on line when it may roam or dials by itself. Nothing calls it at present.
    void setOnline(ModemClient &client);
    /// @param records  this computer's records; nil means that none were looked for
    /// @param taken    what the modem has in its list
    /// @return the index that the modem's default name asks for among @p records; negative when the modem has not taken
    ///         that one
    int getDefaultApnIndex(ModemClient &client, const std::optional<QStringList> &records,
                           const QList<ListedApn> &taken);
    /// @return whether the modem takes its access points from a computer
    bool isPCApnType(ModemClient &client);
    /// @return the modem's list, which says what may be sent; nil when nothing may. Not nil at most once for an attachment
    std::optional<QList<ListedApn>> canSetApnToServer(ModemClient &client);
    /// Sends the records of the profile folder that the modem lacks and chooses the default, once for an attachment.
    void setAllApnFromPC(ModemClient &client);

    /// Does that, and keeps in `progress` that it came to its end.
    void examine(ModemClient &client);

    /// @return how many access points this modem was given
    int accessPointsSent() const { return m_accessPointsSent; }
    /// @return whether the records may still be examined for this device
    bool onlySetAPNFlag() const { return onlySetAPNFlag_; }

    /// @return what has been done; what was begun and cut off is not (main thread, when no work is under way)
    Progress progress() const;
    /// Goes on from @p progress: what is done already is not done again (main thread, when no work is under way).
    void resume(const Progress &progress);
    /// The device is another one, or gone: nothing has been sent (main thread, when no work is under way).
    void reset();

private:
    QList<ListedApn> listedApns(ModemClient &client);
    std::optional<QStringList> readRecords(const ProfileSeal &seal, const std::stop_token &stop);
    /// Sends @p missing, and sets the default among @p records. @param listed  what the modem has
    void complete(ModemClient &client, const QStringList &missing, const std::optional<QStringList> &records,
                  QList<ListedApn> listed);

    const SharedSnapshot &m_snapshot;
    SystemLog &m_systemLog;
    Clock &m_clock;
    std::atomic<bool> onlySetAPNFlag_{true};
    bool m_examined = false; ///< to the end; touched on behalf of the present attachment only
    std::atomic<int> m_accessPointsSent{0};
    std::atomic<bool> isSetApnReady_{false}; ///< the device has accepted that the access points are complete
    std::atomic<bool> m_owesDefault{false}; ///< a modem was sent records, and no default after them
    bool m_resumes = false; ///< the attachment goes on where an earlier one ended; for it alone, as the next three
    QString notFoundDefaultApn_; ///< empty when an earlier attachment has sent the record
    int m_readyRefusals = 0; ///< how often the device has not accepted that they are complete
    Clock::TimePoint m_readyDue{}; ///< when it may be told again
};

} // namespace tarvo
