#include "modemapi/ModemClient.h"

#include "RouterObserver/ConfigManager.h"
#include "modemapi/AnswerFields.h"
#include "modemapi/SessionToken.h"
#include "platform/StrictUtf8.h"
#include "platform/SystemLog.h"

#include <QDateTime>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

QByteArray refererHeader(const QString &url)
{
    return "Referer: " + url.toUtf8();
}

QString textOrNull(const std::optional<QString> &text)
{
    return text.value_or(u"(null)"_s);
}

} // namespace

ModemClient::ModemClient(Work work, const ConfigManager &settings, SystemLog &systemLog)
    : m_work(std::move(work))
    , m_settings(settings)
    , m_systemLog(systemLog)
    , m_statusPage(modemUrl(getNetInfoAddress(settings)))
{
}

QString ModemClient::getNetInfoAddress(const ConfigManager &settings)
{
    return settings.text(u"NetInfoAddress"_s).value_or(u"logo_data.asp"_s);
}

QString ModemClient::getConnectModeAddress(const ConfigManager &settings)
{
    return settings.text(u"ConnectModeAddress"_s).value_or(u"logo_data.asp"_s);
}

void ModemClient::log(const QString &line) const
{
    if (!m_work.isOver())
        m_systemLog.write(line);
}

QString ModemClient::modemUrl(const QString &path) const
{
    return u"http://%1/%2"_s.arg(m_work.router(), path);
}

/// @return @p text taken apart, which the status page needs each second and always in the same way
const QUrl &ModemClient::parsed(const QString &text)
{
    if (m_parsed.first != text)
        m_parsed = {text, QUrl(text)};
    return m_parsed.second;
}

const HttpAnswer &ModemClient::exchange(const QString &url, const QList<QByteArray> &headers,
                                        const std::optional<QByteArray> &body, Afterwards afterwards)
{
    m_answer = m_http.exchange({parsed(url), headers, body, m_work.bindSocket(), afterwards}, m_work.stopToken());
    return m_answer;
}

std::optional<QString> ModemClient::getContentFormRefererRequest(const QString &url, std::optional<QString> *)
{
    return contentWithReferer(url, Afterwards::KeepIfAffordable);
}

QString ModemClient::contentWithReferer(const QString &url, Afterwards afterwards)
{
    const HttpAnswer &answer = exchange(url, {refererHeader(url)}, std::nullopt, afterwards);
    if (answer.data.isEmpty())
        log(u"data is nil"_s);
    return utf8OrLatin1(answer.data);
}

ModemClient::WebContent ModemClient::plainContent(const QString &url)
{
    const HttpAnswer &answer = exchange(url, {});
    if (answer.error)
        return {std::nullopt, answer.error};
    return {utf8OrLatin1(answer.data), std::nullopt};
}

ModemClient::WebContent ModemClient::content(const QString &url)
{
    if (m_settings.flag(u"AddRefererIntoHttpHeader"_s))
        return {getContentFormRefererRequest(url, nullptr), std::nullopt};
    return plainContent(url);
}

std::optional<QString> ModemClient::statusPage()
{
    if (!m_settings.flag(u"AddRefererIntoHttpHeader"_s) && !parsed(m_statusPage).isValid())
        return std::nullopt;
    WebContent page = content(m_statusPage);
    if (page.error)
        log(u"error: "_s + *page.error);
    else if (!page.text)
        log(u"content string is null!"_s);
    return std::move(page.text);
}

std::optional<QString> ModemClient::getWebRequestContent(const std::optional<QString> &command)
{
    if (!command)
        return std::nullopt;
    WebContent answer = content(modemUrl(u"goform/goform_get_cmd_process?cmd="_s + *command));
    if (answer.error || !answer.text)
        log(u"webContent: %1, error: %2"_s.arg(textOrNull(answer.text), textOrNull(answer.error)));
    return std::move(answer.text);
}

std::optional<QString> ModemClient::setWebRequestToServer(const QString &url, const QString &httpBody,
                                                          std::optional<QString> *errorBack)
{
    // A modem that serves one connection at a time would not take the form's beside it.
    const QString session =
        contentWithReferer(modemUrl(u"goform/goform_get_cmd_process?cmd=cr_version,wa_inner_version,RD&multi_data=1"_s),
                           Afterwards::Close);
    const auto crVersion = getModemInfoFromKeyForWeb5(u"cr_version\":"_s, session);
    const auto innerVersion = getModemInfoFromKeyForWeb5(u"wa_inner_version\":"_s, session);
    const auto rd = getModemInfoFromKeyForWeb5(u"RD\":"_s, session);
    if (!rd || rd->isEmpty()) {
        log(u"sessionId  is null!"_s);
        return u"\"result\":\"failure\""_s;
    }

    const QString token = sessionToken(innerVersion.value_or(QString()), crVersion.value_or(QString()), *rd);
    const HttpAnswer &answer =
        exchange(url, {refererHeader(url), "Content-Type: application/x-www-form-urlencoded; charset=utf-8"},
                 (httpBody + u"&AD="_s + token).toUtf8(), Afterwards::Close);
    if (errorBack)
        *errorBack = answer.error;
    if (answer.data.isEmpty())
        log(u"data is nil"_s);
    return utf8OrLatin1(answer.data);
}

bool ModemClient::setWebRequestWithId(const std::optional<QString> &command, const std::optional<QString> &shown)
{
    if (!command)
        return false;
    const QString name = shown.value_or(*command);
    const auto answer =
        setWebRequestToServer(modemUrl(u"goform/goform_set_cmd_process?"_s), u"goformId="_s + *command, nullptr);
    if (!answer) {
        log(name + u" setReqResultStr: (null), error: (null)"_s);
        return false;
    }
    const auto result = getModemInfoFromKeyForWeb5(u"result\":"_s, answer);
    if (!result) {
        log(name + u" set request result is null!"_s);
        return false;
    }
    if (!result->contains(u"success")) {
        log(name + u" set request failed!"_s);
        return false;
    }
    return true;
}

void ModemClient::setPcDate()
{
    const QString now = QDateTime::currentDateTime().toString(u"yyyy-MM-dd_HH:mm:ss");
    setWebRequestWithId(u"RESET_NTP_TIME&pc_current_time="_s + now);
}

} // namespace tarvo
