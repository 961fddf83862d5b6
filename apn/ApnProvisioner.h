#pragma once

#include "modemapi/StatusSnapshot.h"

#include <QString>
#include <QStringList>

#include <atomic>
#include <optional>

namespace tarvo {

class ModemClient;
class SystemLog;

/// Gives the modem the access points of this computer, and knows what this modem was given.
///
/// What talks to the modem runs on the polling worker, on behalf of its client's work.
class ApnProvisioner {
public:
    /// @param snapshot, systemLog  outlive this object
    ApnProvisioner(const SharedSnapshot &snapshot, SystemLog &systemLog);

    /// Adds the access-point record @p record to the modem. @return whether the modem took it
    bool setApn(ModemClient &client, const QString &record);
    /// Makes the access point at @p index the modem's default; 199 first adds the not-found record.
    /// @return whether the modem took it; false for a negative index
    bool setDefaultApn(ModemClient &client, int index);
    /// Tells the modem, once, that this computer's access points are complete.
    void setApnReady(ModemClient &client);
    /// Puts the modem into low power. Nothing calls it at present.
    void setLpm(ModemClient &client);
    /// Puts the modem on line when it may roam or dials by itself. Nothing calls it at present.
    void setOnline(ModemClient &client);
    /// @param records  the records that were sent; nil means that none were looked for
    /// @return the index that the modem's default name asks for among @p records
    int getDefaultApnIndex(ModemClient &client, const std::optional<QStringList> &records);
    /// @return whether the modem takes its access points from a computer
    bool isPCApnType(ModemClient &client);
    /// @return whether this computer's records may be sent; true at most once for an attachment
    bool canSetApnToServer(ModemClient &client);
    /// Sends the records of the profile folder and chooses the default, once for an attachment.
    void setAllApnFromPC(ModemClient &client);

    /// @return how many access points this modem was given
    int accessPointsSent() const { return m_accessPointsSent; }
    /// @return whether the records may still be examined for this device
    bool onlySetAPNFlag() const { return onlySetAPNFlag_; }

    /// The device is another one, or gone: nothing has been sent (main thread, when no work is under way).
    void reset();

private:
    quint32 countPCApns(ModemClient &client);

    const SharedSnapshot &m_snapshot;
    SystemLog &m_systemLog;
    std::atomic<bool> onlySetAPNFlag_{true};
    std::atomic<int> m_accessPointsSent{0};
    std::atomic<bool> isSetApnReady_{false}; ///< the device has accepted that the access points are complete
    QString notFoundDefaultApn_; ///< touched on behalf of the present attachment only
};

} // namespace tarvo
