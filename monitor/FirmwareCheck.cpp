#include "monitor/FirmwareCheck.h"

#include "RouterObserver/ConfigManager.h"
#include "modemapi/AnswerFields.h"
#include "modemapi/ConnectionStatus.h"
#include "modemapi/ModemClient.h"

namespace tarvo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

bool FirmwareCheckSchedule::isDue(const std::stop_token &current, Clock::TimePoint now) const
{
    return attachment != current || now >= due;
}

bool offersNewFirmware(const QString &packageState)
{
    return packageState.contains(u'1') || packageState.contains(u"version_has_new_critical_software")
        || packageState.contains(u"version_has_new_optional_software");
}

FirmwareCheck::FirmwareCheck(SharedSnapshot &snapshot, Clock &clock)
    : m_snapshot(snapshot)
    , m_clock(clock)
{
}

bool FirmwareCheck::checkFotaUpdateWhenConnected(ModemClient &client)
{
    if (!client.settings().flag(u"NeedCheckFotaUpdate"_s))
        return true;
    const auto answer = client.getWebRequestContent(u"dm_find_package&multi_data=1"_s);
    const auto packageState = getModemInfoFromKeyForWeb5(u"dm_find_package\":"_s, answer);
    if (!packageState) {
        client.log(u"fotaOtaState  is null!"_s);
        return false;
    }
    m_snapshot.update(client.work(),
                      [&](StatusSnapshot &snapshot) { snapshot.isHaveNewVersion_ = offersNewFirmware(*packageState); });
    return true;
}

void FirmwareCheck::checkFotaUpdateWhenDue(ModemClient &client, const QString &content)
{
    const std::stop_token attachment = client.work().stopToken();
    bool due = false;
    client.work().whileAttached([&] { due = m_schedule.isDue(attachment, m_clock.now()); });
    const ConfigManager &settings = client.settings();
    if (!due || !isConnectedWithStautusContent(getConnectionStatusWithWebContent(content, settings), settings))
        return;
    const auto pause = checkFotaUpdateWhenConnected(client) ? 10min : 1min;
    client.work().whileAttached([&] { m_schedule = {attachment, m_clock.now() + pause}; });
}

} // namespace tarvo
