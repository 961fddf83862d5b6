#include "apn/ApnProvisioner.h"

#include "RouterObserver/ConfigManager.h"
#include "apn/DefaultApn.h"
#include "apn/ProfileSelection.h"
#include "modemapi/AnswerFields.h"
#include "modemapi/JsonValues.h"
#include "modemapi/ModemClient.h"

#include <QJsonArray>
#include <QJsonObject>

#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

/// The names of the modem's own access points.
QStringList webDefaultNames()
{
    const auto names = configurationText(u"WebDefaultApnProfileName"_s);
    return names ? names->split(u';') : QStringList();
}

qsizetype elementCount(const QJsonValue &value)
{
    return value.isArray() ? value.toArray().size() : value.toObject().size();
}

} // namespace

ApnProvisioner::ApnProvisioner(const SharedSnapshot &snapshot, SystemLog &systemLog)
    : m_snapshot(snapshot)
    , m_systemLog(systemLog)
    , notFoundDefaultApn_(notFoundApnTemplate())
{
}

void ApnProvisioner::reset()
{
    onlySetAPNFlag_ = true;
    isSetApnReady_ = false;
    m_accessPointsSent = 0;
}

bool ApnProvisioner::setApn(ModemClient &client, const QString &record)
{
    if (!client.setWebRequestWithId(u"ADD_APN&apn="_s + record))
        return false;
    client.work().whileAttached([&] { ++m_accessPointsSent; });
    client.log(u"add apn success!"_s);
    return true;
}

bool ApnProvisioner::setDefaultApn(ModemClient &client, int index)
{
    client.log(u"defaultIndex: %1"_s.arg(index));
    if (index < 0)
        return false;
    if (index == notFoundApnIndex) {
        QString record;
        client.work().whileAttached([&] { record = std::exchange(notFoundDefaultApn_, notFoundApnTemplate()); });
        setApn(client, record);
    }
    if (!client.setWebRequestWithId(u"SET_DEFAULT_APN&index=%1"_s.arg(index)))
        return false;
    client.log(u"set default apn success!"_s);
    if (index > 2)
        return true;
    if (client.setWebRequestWithId(u"CONNECTION_SWITCH_SETTING&apn_id_password_confirm=0&apn_id_password_save=1"_s))
        client.log(u"set switch success!"_s);
    return true;
}

void ApnProvisioner::setApnReady(ModemClient &client)
{
    if (isSetApnReady_ || !isPCApnType(client) || !client.setWebRequestWithId(u"PC_APN_READY_SET"_s))
        return;
    if (client.work().whileAttached([this] { isSetApnReady_ = true; }))
        client.log(u"PC_APN_READY_SET success!"_s);
}

void ApnProvisioner::setLpm(ModemClient &client)
{
    client.setWebRequestWithId(u"SET_LPM_MODE"_s);
}

void ApnProvisioner::setOnline(ModemClient &client)
{
    const StatusSnapshot snapshot = m_snapshot.get();
    if (snapshot.isRoamOn_ || snapshot.isAutoConnectOn_)
        client.setWebRequestWithId(u"SET_ONLINE_MODE"_s);
}

int ApnProvisioner::getDefaultApnIndex(ModemClient &client, const std::optional<QStringList> &records)
{
    const auto answer = client.getWebRequestContent(u"pc_default_profilename&multi_data=1"_s);
    const auto name = getModemInfoFromKeyForWeb5(u"pc_default_profilename\":"_s, answer);
    client.log(u"pc_default_profilename:"_s + name.value_or(u"(null)"_s));

    const DefaultApn choice = chooseDefaultApn(name, webDefaultNames(), records.value_or(QStringList()));
    for (const QString &problem : choice.problems)
        client.log(problem);
    if (choice.isUnknown)
        client.work().whileAttached([&] { notFoundDefaultApn_.replace(u"PC_PROFILE_NAME"_s, *name); });
    return choice.index;
}

bool ApnProvisioner::isPCApnType(ModemClient &client)
{
    const auto answer = client.getWebRequestContent(u"profile_type&multi_data=1"_s);
    const auto type = getModemInfoFromKeyForWeb5(u"profile_type\":"_s, answer);
    if (!type)
        client.log(u"profileType is null!"_s);
    return type == u"1"_s;
}

quint32 ApnProvisioner::countPCApns(ModemClient &client)
{
    const auto answer = client.getWebRequestContent(u"pc_apn_list_query"_s);
    if (!answer)
        return 0;
    const ParsedJson parsed = parseJson(*answer);
    if (!parsed.document) {
        client.log(u"pc_apn_list_query dictionary: (null), json Error: "_s + parsed.error);
        return 0;
    }
    const auto count = static_cast<quint32>(elementCount(parsed.document->object().value(u"data")));
    client.log(u"pc apn list count: %1"_s.arg(static_cast<qint32>(count)));
    return count;
}

bool ApnProvisioner::canSetApnToServer(ModemClient &client)
{
    if (!onlySetAPNFlag_ || !isPCApnType(client) || !onlySetAPNFlag_)
        return false;
    const quint32 count = countPCApns(client);
    const auto webCount = static_cast<quint32>(webDefaultNames().size());
    return client.work().whileAttached([this] { onlySetAPNFlag_ = false; }) && count <= webCount;
}

void ApnProvisioner::setAllApnFromPC(ModemClient &client)
{
    if (!canSetApnToServer(client))
        return;
    // A device that went away in the middle leaves its default's name in the record.
    client.work().whileAttached([this] { notFoundDefaultApn_ = notFoundApnTemplate(); });
    const std::stop_token stop = client.work().stopToken();
    std::optional<QStringList> records;
    if (const auto total = getParsedApnContentFromTotalProfile(m_systemLog))
        records = getValidParsedContentFromApnProfiles(*total, m_systemLog, stop);
    for (const QString &record : records.value_or(QStringList())) {
        if (stop.stop_requested())
            return;
        setApn(client, record);
    }
    const int index = getDefaultApnIndex(client, records);
    if (!stop.stop_requested())
        setDefaultApn(client, index);
}

} // namespace tarvo
