#pragma once

#include <QString>

#include <atomic>
#include <cstdint>

namespace tarvo {

/// The flags and amounts of one modem's attachment, shared by the main thread, the polling worker and the display
/// thread. Each is atomic by itself; a reader may see a value that is one pass old.
struct ModemState {
    /// No device: set when polling stops, cleared when a device becomes ready.
    std::atomic<bool> stopProcModemStatus_{true};
    std::atomic<std::int32_t> currentNetWorkStatus_{0};
    std::atomic<std::int32_t> netWorkTransferType_{1};

    std::atomic<bool> isConnected_{false};
    std::atomic<bool> isRoamOn_{false};
    std::atomic<bool> isAutoConnectOn_{false};
    std::atomic<bool> isHaveNewVersion_{false};
    std::atomic<bool> isHaveDataLimitReachedForOneMonth_{false};
    std::atomic<bool> isHaveDataLimitExceedForOneMonth_{false};
    std::atomic<bool> isHaveDataLimitExceedForThreedays_{false};

    /// The last balloon sequence has run to its end.
    std::atomic<bool> statusDisplayFlowFinishFlag_{true};
    /// A balloon sequence runs or has been asked for.
    std::atomic<bool> startDisplayFlowing_{false};

    std::atomic<bool> ifOpenUrlWhileDevicePlugIn_{false};
    /// A click on the icon opens the firmware page.
    std::atomic<bool> openUpdateUrlWhileHasNewVersion_{false};
    std::atomic<bool> openDateLimitUrlWhileHasLimit_{false};
    /// The modem's pages were opened by themselves since the device was plugged in.
    std::atomic<bool> hasOpenedWebUI_{false};
    std::atomic<bool> haveNewVersionFlag_{false};
    std::atomic<bool> haveDataLimitFlag_{false};
    /// The access points of this computer may still be examined, once for this device.
    std::atomic<bool> onlySetAPNFlag_{true};
    /// This device has accepted that the access points are complete.
    std::atomic<bool> isSetApnReady_{false};

    /// Data amounts in gigabytes of 2^30 bytes.
    std::atomic<float> m_useData{0};
    std::atomic<float> m_surplusData{0};
    std::atomic<float> m_totalMonthData{0};
    std::atomic<float> m_totalThreeData{0};
    std::atomic<std::int32_t> m_counter{0};

    /// What each balloon item was when it was last evaluated.
    std::atomic<bool> previousHaveUnReadSmsStatus_{false};
    std::atomic<bool> previousHaveNewSmsStatus_{false};
    std::atomic<bool> previousRoamOnStatus_{false};
    std::atomic<bool> previousHaveNewVersion_{false};
    std::atomic<bool> previousNetWorkStatus_{false};
    std::atomic<bool> previousHaveDateLimitReached_{false};
    std::atomic<bool> previousHaveDateLimitExceeded_{false};
    std::atomic<bool> previousHaveDateLimitExceededForThreedays_{false};

    void setcurrentNetWorkStatus(std::int32_t status);
    void setNetWorkTransferType(std::int32_t type);
    /// Derives the transfer type: 2 when nothing changed, else 0 for the new status 1 and 1 for any other.
    void setNetWorkTransferTypeByNewNetStatus(std::int32_t status);

    /// A device became ready: what was known of an earlier one no longer holds.
    void resetForReadyDevice();
    /// The device is gone or the machine sleeps. The two notice flags are set, so that nothing shows a normal state
    /// until a device is ready again.
    void resetForStop();
};

} // namespace tarvo
