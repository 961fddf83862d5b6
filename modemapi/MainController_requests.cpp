#include "RouterObserver/ConfigManager.h"
#include "app/MainController.h"
#include "modemapi/AnswerFields.h"
#include "modemapi/HttpClient.h"
#include "modemapi/SessionToken.h"

#include <QStringDecoder>

namespace tarvo {

namespace {

/// @return the text of @p data; nil when it is no UTF-8
std::optional<QString> utf8Text(const QByteArray &data)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder(data);
    return decoder.hasError() ? std::nullopt : std::optional(std::move(text));
}

QByteArray refererHeader(const QString &url)
{
    return "Referer: " + url.toUtf8();
}

QString textOrNull(const std::optional<QString> &text)
{
    return text.value_or(QStringLiteral("(null)"));
}

} // namespace

QString MainController::modemUrl(const QString &path) const
{
    return QStringLiteral("http://%1/%2").arg(routerAddr_.get().value_or(QString()), path);
}

HttpAnswer MainController::exchange(HttpRequest request)
{
    // A client for each thread: requests may come from any, and each keeps its own connection to the modem.
    static thread_local HttpClient client;
    request.prepareSocket = [bind = services_.bindSocketToInterface, name = routerInterface_.get()](int socket) {
        if (bind && name)
            bind(socket, *name);
    };
    return client.exchange(request, WorkScope::current());
}

std::optional<QString> MainController::getContentFormRefererRequest(const QString &url, std::optional<QString> *)
{
    const HttpAnswer answer = exchange({QUrl(url), {refererHeader(url)}, {}, {}});
    if (answer.data.isEmpty())
        log(QStringLiteral("data is nil"));
    return utf8Text(answer.data);
}

MainController::WebContent MainController::plainContent(const QString &url)
{
    const HttpAnswer answer = exchange({QUrl(url), {}, {}, {}});
    if (answer.error)
        return {std::nullopt, answer.error};
    if (auto text = utf8Text(answer.data))
        return {std::move(text), std::nullopt};
    return {std::nullopt, QStringLiteral("the answer is no UTF-8")};
}

std::optional<QString> MainController::getWebRequestContent(const std::optional<QString> &command)
{
    if (!command)
        return std::nullopt;
    const QString url = modemUrl(QStringLiteral("goform/goform_get_cmd_process?cmd=") + *command);
    const WebContent content = configurationFlag(QStringLiteral("AddRefererIntoHttpHeader"))
        ? WebContent{getContentFormRefererRequest(url, nullptr), std::nullopt}
        : plainContent(url);
    if (content.error || !content.text)
        log(QStringLiteral("webContent: %1, error: %2").arg(textOrNull(content.text), textOrNull(content.error)));
    return content.text;
}

std::optional<QString> MainController::setWebRequestToServer(const QString &url, const QString &httpBody,
                                                             std::optional<QString> *errorBack)
{
    const auto session = getContentFormRefererRequest(
        modemUrl(QStringLiteral("goform/goform_get_cmd_process?cmd=cr_version,wa_inner_version,RD&multi_data=1")),
        nullptr);
    const auto crVersion = getModemInfoFromKeyForWeb5(QStringLiteral("cr_version\":"), session);
    const auto innerVersion = getModemInfoFromKeyForWeb5(QStringLiteral("wa_inner_version\":"), session);
    const auto rd = getModemInfoFromKeyForWeb5(QStringLiteral("RD\":"), session);
    if (!rd || rd->isEmpty()) {
        log(QStringLiteral("sessionId  is null!"));
        return QStringLiteral("\"result\":\"failure\"");
    }

    const QString token = sessionToken(innerVersion.value_or(QString()), crVersion.value_or(QString()), *rd);
    const QString body = httpBody + QStringLiteral("&AD=") + token;
    const HttpAnswer answer =
        exchange({QUrl(url),
                  {refererHeader(url), "Content-Type: application/x-www-form-urlencoded; charset=utf-8"},
                  body.toUtf8(),
                  {}});
    if (errorBack)
        *errorBack = answer.error;
    if (answer.data.isEmpty())
        log(QStringLiteral("data is nil"));
    return utf8Text(answer.data);
}

bool MainController::setWebRequestWithId(const std::optional<QString> &command)
{
    if (!command)
        return false;
    const auto answer = setWebRequestToServer(modemUrl(QStringLiteral("goform/goform_set_cmd_process?")),
                                              QStringLiteral("goformId=") + *command, nullptr);
    if (!answer) {
        log(*command + QStringLiteral(" setReqResultStr: (null), error: (null)"));
        return false;
    }
    const auto result = getModemInfoFromKeyForWeb5(QStringLiteral("result\":"), answer);
    if (!result) {
        log(*command + QStringLiteral(" set request result is null!"));
        return false;
    }
    if (!result->contains(u"success")) {
        log(*command + QStringLiteral(" set request failed!"));
        return false;
    }
    return true;
}

} // namespace tarvo
