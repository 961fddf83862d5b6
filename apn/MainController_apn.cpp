#include "RouterObserver/ConfigManager.h"
#include "apn/DefaultApn.h"
#include "apn/ProfileSelection.h"
#include "app/MainController.h"
#include "modemapi/AnswerFields.h"
#include "modemapi/JsonValues.h"

#include <QJsonArray>
#include <QJsonObject>

#include <utility>

namespace tarvo {

namespace {

/// The names of the modem's own access points.
QStringList webDefaultNames()
{
    const auto names = configurationText(QStringLiteral("WebDefaultApnProfileName"));
    return names ? names->split(u';') : QStringList();
}

qsizetype elementCount(const QJsonValue &value)
{
    return value.isArray() ? value.toArray().size() : value.toObject().size();
}

} // namespace

bool MainController::setApn(const QString &record)
{
    if (!setWebRequestWithId(QStringLiteral("ADD_APN&apn=") + record))
        return false;
    log(QStringLiteral("add apn success!"));
    return true;
}

bool MainController::setDefaultApn(int index)
{
    log(QStringLiteral("defaultIndex: %1").arg(index));
    if (index < 0)
        return false;
    if (index == notFoundApnIndex) {
        setApn(notFoundDefaultApn_.get());
        whileAttached([this] { notFoundDefaultApn_.set(notFoundApnTemplate()); });
    }
    if (!setWebRequestWithId(QStringLiteral("SET_DEFAULT_APN&index=%1").arg(index)))
        return false;
    log(QStringLiteral("set default apn success!"));
    if (index > 2)
        return true;
    if (setWebRequestWithId(
            QStringLiteral("CONNECTION_SWITCH_SETTING&apn_id_password_confirm=0&apn_id_password_save=1")))
        log(QStringLiteral("set switch success!"));
    return true;
}

void MainController::setApnReady()
{
    if (state_.isSetApnReady_ || !isPCApnType() || !setWebRequestWithId(QStringLiteral("PC_APN_READY_SET")))
        return;
    if (whileAttached([this] { state_.isSetApnReady_ = true; }))
        log(QStringLiteral("PC_APN_READY_SET success!"));
}

void MainController::setLpm()
{
    setWebRequestWithId(QStringLiteral("SET_LPM_MODE"));
}

void MainController::setOnline()
{
    if (state_.isRoamOn_ || state_.isAutoConnectOn_)
        setWebRequestWithId(QStringLiteral("SET_ONLINE_MODE"));
}

int MainController::getDefaultApnIndex(const std::optional<QStringList> &records)
{
    const auto answer = getWebRequestContent(QStringLiteral("pc_default_profilename&multi_data=1"));
    const auto name = getModemInfoFromKeyForWeb5(QStringLiteral("pc_default_profilename\":"), answer);
    log(QStringLiteral("pc_default_profilename:") + name.value_or(QStringLiteral("(null)")));

    const DefaultApn choice = chooseDefaultApn(name, webDefaultNames(), records.value_or(QStringList()));
    for (const QString &problem : choice.problems)
        log(problem);
    if (choice.isUnknown)
        whileAttached([&] {
            notFoundDefaultApn_.set(notFoundDefaultApn_.get().replace(QStringLiteral("PC_PROFILE_NAME"), *name));
        });
    return choice.index;
}

bool MainController::isPCApnType()
{
    const auto answer = getWebRequestContent(QStringLiteral("profile_type&multi_data=1"));
    const auto type = getModemInfoFromKeyForWeb5(QStringLiteral("profile_type\":"), answer);
    if (!type)
        log(QStringLiteral("profileType is null!"));
    return type == QStringLiteral("1");
}

quint32 MainController::countPCApns()
{
    const auto answer = getWebRequestContent(QStringLiteral("pc_apn_list_query"));
    if (!answer)
        return 0;
    const ParsedJson parsed = parseJson(*answer);
    if (!parsed.document) {
        log(QStringLiteral("pc_apn_list_query dictionary: (null), json Error: ") + parsed.error);
        return 0;
    }
    const auto count = static_cast<quint32>(elementCount(parsed.document->object().value(u"data")));
    log(QStringLiteral("pc apn list count: %1").arg(static_cast<qint32>(count)));
    return count;
}

bool MainController::canSetApnToServer()
{
    if (!state_.onlySetAPNFlag_ || !isPCApnType() || !state_.onlySetAPNFlag_)
        return false;
    const quint32 count = countPCApns();
    const auto webCount = static_cast<quint32>(webDefaultNames().size());
    return whileAttached([this] { state_.onlySetAPNFlag_ = false; }) && count <= webCount;
}

void MainController::setAllApnFromPC()
{
    if (!canSetApnToServer())
        return;
    // A device that went away in the middle leaves its default's name in the record.
    whileAttached([this] { notFoundDefaultApn_.set(notFoundApnTemplate()); });
    const std::stop_token stop = WorkScope::current();
    std::optional<QStringList> records;
    if (const auto total = getParsedApnContentFromTotalProfile(services_.systemLog))
        records = getValidParsedContentFromApnProfiles(*total, services_.systemLog, stop);
    for (const QString &record : records.value_or(QStringList())) {
        if (stop.stop_requested())
            return;
        setApn(record);
    }
    const int index = getDefaultApnIndex(records);
    if (!stop.stop_requested())
        setDefaultApn(index);
}

} // namespace tarvo
