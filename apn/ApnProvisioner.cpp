#include "apn/ApnProvisioner.h"

#include "RouterObserver/ConfigManager.h"
#include "apn/DefaultApn.h"
#include "apn/ProfileSeal.h"
#include "apn/ProfileSelection.h"
#include "modemapi/AnswerFields.h"
#include "modemapi/ModemClient.h"

#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// The names of the modem's own access points.
QStringList webDefaultNames(const ConfigManager &settings)
{
    const auto names = settings.text(u"WebDefaultApnProfileName"_s);
    return names ? names->split(u';') : QStringList();
}

/// How long to wait before a modem that has refused it @p refusals times is told again that the records are complete.
std::chrono::seconds pauseAfter(int refusals)
{
    return refusals < 3 ? 0s : 60s;
}

} // namespace

ApnProvisioner::ApnProvisioner(const SharedSnapshot &snapshot, SystemLog &systemLog, Clock &clock)
    : m_snapshot(snapshot)
    , m_systemLog(systemLog)
    , m_clock(clock)
    , notFoundDefaultApn_(notFoundApnTemplate())
{
}

void ApnProvisioner::reset()
{
    onlySetAPNFlag_ = true;
    isSetApnReady_ = false;
    m_accessPointsSent = 0;
    m_readyRefusals = 0;
    m_readyDue = {};
    m_examined = false;
}

ApnProvisioner::Progress ApnProvisioner::progress() const
{
    return {.examined = m_examined, .complete = isSetApnReady_, .sent = m_accessPointsSent};
}

void ApnProvisioner::resume(const Progress &progress)
{
    reset();
    onlySetAPNFlag_ = !progress.examined;
    isSetApnReady_ = progress.complete;
    m_accessPointsSent = progress.sent;
    m_examined = progress.examined;
}

void ApnProvisioner::examine(ModemClient &client)
{
    setAllApnFromPC(client);
    client.work().whileAttached([this] { m_examined = !onlySetAPNFlag_; });
}

bool ApnProvisioner::setApn(ModemClient &client, const QString &record)
{
    // The record holds a password.
    const QString shown = u"ADD_APN "_s + describedApn(record).profile;
    if (!client.setWebRequestWithId(u"ADD_APN&apn="_s + record, shown.trimmed()))
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
        if (!record.isEmpty() && !setApn(client, record))
            return false;
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
    bool isDue = false;
    client.work().whileAttached([&] { isDue = !isSetApnReady_ && m_clock.now() >= m_readyDue; });
    if (!isDue || !isPCApnType(client))
        return;
    const bool accepted = client.setWebRequestWithId(u"PC_APN_READY_SET"_s);
    const bool isAttached = client.work().whileAttached([&] {
        isSetApnReady_ = accepted;
        m_readyDue = m_clock.now() + pauseAfter(++m_readyRefusals);
    });
    if (accepted && isAttached)
        client.log(u"PC_APN_READY_SET success!"_s);
}

void ApnProvisioner::setLpm(ModemClient &client)
{
    client.setWebRequestWithId(u"SET_LPM_MODE"_s);
}

void ApnProvisioner::setOnline(ModemClient &client)
{
    const StatusSnapshot snapshot = m_snapshot.get();
    if (snapshot.isRoamOn_ || snapshot.dormant.isAutoConnectOn_)
        client.setWebRequestWithId(u"SET_ONLINE_MODE"_s);
}

int ApnProvisioner::getDefaultApnIndex(ModemClient &client, const std::optional<QStringList> &records,
                                       const QList<ListedApn> &taken)
{
    const auto answer = client.getWebRequestContent(u"pc_default_profilename&multi_data=1"_s);
    const auto name = getModemInfoFromKeyForWeb5(u"pc_default_profilename\":"_s, answer);
    client.log(u"pc_default_profilename:"_s + name.value_or(u"(null)"_s));

    const DefaultApn choice =
        chooseDefaultApn(name, webDefaultNames(client.settings()), records.value_or(QStringList()), taken);
    for (const QString &problem : choice.problems)
        client.log(problem);
    if (choice.isUnknown) {
        const bool hasIt = m_resumes && taken.contains(ListedApn{*name, notFoundApnIndex});
        client.work().whileAttached([&] {
            notFoundDefaultApn_.replace(u"PC_PROFILE_NAME"_s, *name);
            if (hasIt)
                notFoundDefaultApn_.clear();
        });
    }
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

QList<ListedApn> ApnProvisioner::listedApns(ModemClient &client)
{
    const auto answer = client.getWebRequestContent(u"pc_apn_list_query"_s);
    if (!answer)
        return {};
    const ApnList list = readApnList(*answer);
    if (list.error.isEmpty())
        client.log(u"pc apn list count: %1"_s.arg(list.apns.size()));
    else
        client.log(u"pc_apn_list_query dictionary: (null), json Error: "_s + list.error);
    return list.apns;
}

std::optional<QList<ListedApn>> ApnProvisioner::canSetApnToServer(ModemClient &client)
{
    if (!onlySetAPNFlag_ || !isPCApnType(client) || !onlySetAPNFlag_)
        return std::nullopt;
    const QList<ListedApn> listed = listedApns(client);
    const bool isAttached = client.work().whileAttached([this] { onlySetAPNFlag_ = false; });
    return isAttached ? std::optional(listed) : std::nullopt;
}

std::optional<QStringList> ApnProvisioner::readRecords(const ProfileSeal &seal, const std::stop_token &stop)
{
    const auto total = getParsedApnContentFromTotalProfile(seal, m_systemLog);
    if (!total)
        return std::nullopt;
    return getValidParsedContentFromApnProfiles(*total, seal, m_systemLog, stop);
}

void ApnProvisioner::setAllApnFromPC(ModemClient &client)
{
    const auto listed = canSetApnToServer(client);
    if (!listed)
        return;
    const std::stop_token stop = client.work().stopToken();
    const ProfileSeal seal = readProfileSeal(QString::fromUtf8(APN_ROOT), builtInSealRule(), stop);
    if (!seal.problem.isEmpty()) {
        client.log(seal.problem + u": no access points are sent"_s);
        return;
    }
    const auto records = readRecords(seal, stop);
    const ApnPlan plan =
        planApns(*listed, webDefaultNames(client.settings()).size(), records.value_or(QStringList()), m_owesDefault);
    if (plan.setsDefault)
        complete(client, plan.records, records, *listed);
}

void ApnProvisioner::complete(ModemClient &client, const QStringList &missing,
                              const std::optional<QStringList> &records, QList<ListedApn> listed)
{
    client.work().whileAttached([this] {
        m_resumes = m_owesDefault.exchange(true);
        notFoundDefaultApn_ = notFoundApnTemplate(); // one that went away in the middle leaves its default's name
    });
    for (const QString &record : missing) {
        if (client.work().isOver())
            return;
        if (setApn(client, record))
            listed.append(describedApn(record));
    }
    const int index = getDefaultApnIndex(client, records, listed);
    if (client.work().isOver())
        return;
    const bool isSet = setDefaultApn(client, index);
    client.work().whileAttached([&] { m_owesDefault = !isSet; });
}

} // namespace tarvo
