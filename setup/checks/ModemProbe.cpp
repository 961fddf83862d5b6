#include "setup/checks/ModemProbe.h"

#include "modemapi/AnswerFields.h"
#include "modemapi/ConnectionStatus.h"
#include "modemapi/HttpClient.h"
#include "modemapi/ModemClient.h"
#include "modemapi/StatusFields.h"
#include "platform/StrictUtf8.h"

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

enum class Referer { Send, AsConfigured };

/// One conversation with a gateway.
class Conversation {
public:
    Conversation(const ModemQuestion &question, const std::stop_token &stop)
        : m_question(question)
        , m_stop(stop)
    {
    }

    void fetch(const QString &path, Referer referer = Referer::AsConfigured)
    {
        const QString url = u"http://%1/%2"_s.arg(m_question.gateway, path);
        HttpRequest request{.url = QUrl(url),
                            .headers = {},
                            .body = {},
                            .prepareSocket = m_question.prepareSocket,
                            .afterwards = Afterwards::Close};
        if (referer == Referer::Send || m_question.settings.flag(u"AddRefererIntoHttpHeader"_s))
            request.headers.append("Referer: " + url.toUtf8());
        m_answer = m_client.exchange(request, m_stop);
        m_text = utf8OrLatin1(m_answer.data);
    }

    std::optional<QString> command(const QString &names, const QString &field, Referer referer = Referer::AsConfigured)
    {
        fetch(u"goform/goform_get_cmd_process?cmd=%1&multi_data=1"_s.arg(names), referer);
        return getModemInfoFromKeyForWeb5(field + u"\":"_s, m_text);
    }

    ModemFacts askForPage()
    {
        ModemFacts facts;
        fetch(ModemClient::getNetInfoAddress(m_question.settings));
        facts.answers = m_answer.status != 0;
        facts.hasPage = isStatusPage(m_text, m_question.settings);
        if (!facts.hasPage)
            facts.obstacle = obstacleOf(m_answer);
        facts.connection = getConnectionStatusWithWebContent(m_text, m_question.settings);
        facts.missingFields = missingStatusFields(m_text);
        if (facts.hasPage)
            facts.takesCommands = command(u"ppp_status"_s, u"ppp_status"_s).has_value();
        return facts;
    }

private:
    const ModemQuestion &m_question;
    const std::stop_token &m_stop;
    HttpClient m_client;
    HttpAnswer m_answer; ///< the last one
    QString m_text; ///< its text; empty when it has none
};

} // namespace

ModemFacts askWhetherModem(const ModemQuestion &question, const std::stop_token &stop)
{
    return Conversation(question, stop).askForPage();
}

ModemFacts askModem(const ModemQuestion &question, const std::stop_token &stop)
{
    Conversation conversation(question, stop);
    ModemFacts facts = conversation.askForPage();
    if (facts.hasPage) {
        const auto session = conversation.command(u"cr_version,wa_inner_version,RD"_s, u"RD"_s, Referer::Send);
        facts.givesSession = session && !session->isEmpty();
    }
    return facts;
}

} // namespace tarvo
