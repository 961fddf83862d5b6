#include "app/ModemState.h"

namespace tarvo {

void ModemState::setcurrentNetWorkStatus(std::int32_t status)
{
    currentNetWorkStatus_ = status;
}

void ModemState::setNetWorkTransferType(std::int32_t type)
{
    netWorkTransferType_ = type;
}

void ModemState::setNetWorkTransferTypeByNewNetStatus(std::int32_t status)
{
    if (currentNetWorkStatus_ == status)
        setNetWorkTransferType(2);
    else
        setNetWorkTransferType(status == 1 ? 0 : 1);
}

void ModemState::resetForReadyDevice()
{
    hasOpenedWebUI_ = false;
    onlySetAPNFlag_ = true;
    isSetApnReady_ = false;
    openUpdateUrlWhileHasNewVersion_ = false;
    openDateLimitUrlWhileHasLimit_ = false;
    haveNewVersionFlag_ = false;
    haveDataLimitFlag_ = false;
    stopProcModemStatus_ = false;
    m_counter = 0;
}

void ModemState::resetForStop()
{
    haveNewVersionFlag_ = true;
    haveDataLimitFlag_ = true;
    for (std::atomic<bool> *flag :
         {&isHaveNewVersion_, &isHaveDataLimitExceedForOneMonth_, &isHaveDataLimitExceedForThreedays_,
          &isHaveDataLimitReachedForOneMonth_, &openUpdateUrlWhileHasNewVersion_, &openDateLimitUrlWhileHasLimit_,
          &ifOpenUrlWhileDevicePlugIn_})
        *flag = false;
    stopProcModemStatus_ = true;
    hasOpenedWebUI_ = false;
    onlySetAPNFlag_ = true;
    isSetApnReady_ = false;
    isRoamOn_ = false;
    isAutoConnectOn_ = false;
    for (std::atomic<float> *amount : {&m_useData, &m_surplusData, &m_totalMonthData, &m_totalThreeData})
        *amount = 0;
    m_counter = 0;
    setNetWorkTransferTypeByNewNetStatus(0);
    setcurrentNetWorkStatus(0);
    for (std::atomic<bool> *previous :
         {&previousHaveUnReadSmsStatus_, &previousHaveNewSmsStatus_, &previousRoamOnStatus_, &previousHaveNewVersion_,
          &previousNetWorkStatus_, &previousHaveDateLimitReached_, &previousHaveDateLimitExceeded_,
          &previousHaveDateLimitExceededForThreedays_})
        *previous = false;
}

} // namespace tarvo
