#include "setup/ModemProbe.h"

#include "RouterObserver/ConfigManager.h"
#include "modemapi/AnswerFields.h"
#include "modemapi/HttpClient.h"

#include <QStringDecoder>

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

    /// @return whether anything came, its text aside
    bool fetch(const QString &path, Referer referer = Referer::AsConfigured)
    {
        const QString url = u"http://%1/%2"_s.arg(m_question.gateway, path);
        HttpRequest request{.url = QUrl(url), .headers = {}, .body = {}, .prepareSocket = m_question.prepareSocket};
        if (referer == Referer::Send || boolValue(m_question.settings.value(u"AddRefererIntoHttpHeader"_s)))
            request.headers.append("Referer: " + url.toUtf8());
        const HttpAnswer answer = m_client.exchange(request, m_stop);
        QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        m_text = decoder(answer.data);
        if (decoder.hasError())
            m_text.clear();
        return !answer.error;
    }

    /// @return the text that came last; empty when it was none
    const QString &text() const { return m_text; }

    std::optional<QString> command(const QString &names, const QString &field, Referer referer = Referer::AsConfigured)
    {
        fetch(u"goform/goform_get_cmd_process?cmd=%1&multi_data=1"_s.arg(names), referer);
        return getModemInfoFromKeyForWeb5(field + u"\":"_s, m_text);
    }

    ModemFacts askForPage()
    {
        ModemFacts facts;
        facts.answers = fetch(statusPagePath(m_question.settings));
        facts.hasPage = !m_text.trimmed().isEmpty();
        facts.connection = connectionStatus(m_text, m_question.settings);
        facts.missingFields = missingDataFields(m_text);
        if (facts.hasPage)
            facts.takesCommands = command(u"ppp_status"_s, u"ppp_status"_s).has_value();
        return facts;
    }

private:
    const ModemQuestion &m_question;
    const std::stop_token &m_stop;
    HttpClient m_client;
    QString m_text;
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
