#pragma once

#include "attachment/Attachment.h"
#include "modemapi/HttpClient.h"
#include "modemapi/Obstacle.h"

#include <QString>
#include <QUrl>

#include <optional>
#include <utility>

namespace tarvo {

class ConfigManager;
class SystemLog;

/// Asks one modem, over connections that are tied to the modem's interface.
///
/// Answers are read as UTF-8, or as ISO 8859-1 when they are no UTF-8.
///
/// For one thread at a time; every request blocks that thread, for five seconds at most. When the work for the modem is
/// over, requests end at once and nothing more is logged.
class ModemClient {
public:
    /// @param settings  say how the modem is asked; they outlive the client, as the log
    ModemClient(Work work, const ConfigManager &settings, SystemLog &systemLog);

    /// @return the work on whose behalf the modem is asked
    const Work &work() const { return m_work; }
    /// @return what says how the modem's answers are read
    const ConfigManager &settings() const { return m_settings; }

    /// @return the path of the status page on the modem's server
    static QString getNetInfoAddress(const ConfigManager &settings);
    /// @return the path of the page that tells how the modem dials
    static QString getConnectModeAddress(const ConfigManager &settings);

    /// Fetches the status page in the configured way. @return its text; nil, with a line in the log, when there is none
    std::optional<QString> statusPage();
    /// @return what stands in the way, given that the last answer was no status page; nothing else depends on it
    Obstacle obstacle() const { return obstacleOf(m_answer); }

    /// Sends the set form @p httpBody, extended by the session token, to @p url.
    /// @param errorBack  set to the transport's error text; may be null
    /// @return the answer; empty when nothing came back; a fixed failure text when the modem gives no session; nil when
    ///         there is no text, which does not happen at present
    std::optional<QString> setWebRequestToServer(const QString &url, const QString &httpBody,
                                                 std::optional<QString> *errorBack);
    /// Fetches @p url with itself as the "Referer" header. Errors are logged, never handed back in @p errorBack.
    /// @return the answer; empty when nothing came back; never nil at present
    std::optional<QString> getContentFormRefererRequest(const QString &url, std::optional<QString> *errorBack);
    /// Runs the get command @p command, which may carry further query parts.
    /// @return the answer; nil for a nil command or when there is no text
    std::optional<QString> getWebRequestContent(const std::optional<QString> &command);
    /// Runs the set command @p command, which may carry further form fields.
    /// @param shown  stands for the command in the log, where it holds what nobody may read; the command itself when nil
    /// @return whether the modem reported success; false for a nil command
    bool setWebRequestWithId(const std::optional<QString> &command, const std::optional<QString> &shown = {});

    /// Sends the computer's clock to the modem.
    void setPcDate();

    /// Writes @p line to the log, unless the work is over: what was ended has not failed.
    void log(const QString &line) const;

private:
    /// What a plain read brings: the text, or why there is none.
    struct WebContent {
        std::optional<QString> text;
        std::optional<QString> error;
    };

    QString modemUrl(const QString &path) const;
    const QUrl &parsed(const QString &text);
    /// @return the answer, until the next exchange
    const HttpAnswer &exchange(const QString &url, const QList<QByteArray> &headers,
                               const std::optional<QByteArray> &body = std::nullopt,
                               Afterwards afterwards = Afterwards::KeepIfAffordable);
    QString contentWithReferer(const QString &url, Afterwards afterwards);
    WebContent plainContent(const QString &url);
    /// Reads @p url with or without a "Referer", as the settings say.
    WebContent content(const QString &url);

    const Work m_work;
    const ConfigManager &m_settings;
    SystemLog &m_systemLog;
    const QString m_statusPage; ///< its URL, which is asked for each second
    HttpClient m_http;
    HttpAnswer m_answer; ///< the last one
    std::pair<QString, QUrl> m_parsed; ///< a URL's text, and the URL
};

} // namespace tarvo
