#pragma once

#include "simulator/modem/ModemCondition.h"
#include "simulator/modem/ReceivedRequest.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <mutex>
#include <optional>
#include <utility>

namespace tarvo {

/// What a modem's server sends back.
struct ModemReply {
    int status = 200; ///< of HTTP (RFC 9110)
    QByteArray contentType = "application/json; charset=utf-8"; ///< the value of the header
    QByteArray body; ///< what the client reads
};

/// A modem: answers requests from its condition, changes by them, and remembers each. Used on every thread.
///
/// A session text (`RD`) is given only to a request whose "Referer" is its own address; each request for one
/// gives a new one, and it is good for one set command. A set command must be a POST with its own address as
/// "Referer", the form's content type and the right token, which is computed here without the product's code.
class SimulatedModem {
public:
    /// Told of each request before it is answered, on the thread that answers.
    using Listener = std::function<void(const ReceivedRequest &request)>;

    /// @param listener  may be empty
    explicit SimulatedModem(Listener listener = {});

    /// @return a copy of the condition as it is now
    ModemCondition condition() const;
    /// Changes the condition, whole: no request sees half of it.
    void change(const std::function<void(ModemCondition &condition)> &changer);

    /// From now on every request that holds @p part, in its target or body, is answered with @p body and
    /// changes nothing; of several such parts the one that was set last counts.
    void setFixedAnswer(const QByteArray &part, const QByteArray &body);
    /// Ends what `setFixedAnswer` began.
    void clearFixedAnswers();

    /// Remembers @p request, carries it out, and answers it.
    ModemReply answer(const ReceivedRequest &request);

    /// @return the requests that hold @p part, the oldest first
    QList<ReceivedRequest> requests(const QByteArray &part = {}) const;
    /// Waits, for at most @p limit, until at least @p count requests that hold @p part have come. @return
    /// whether they have
    bool waitForRequests(qsizetype count, const QByteArray &part = {},
                         std::chrono::milliseconds limit = std::chrono::seconds(10)) const;
    /// Forgets the requests that have come.
    void clearRequests();
    /// @return why set commands were refused, the oldest first
    QStringList refusals() const;

private:
    std::optional<QByteArray> fixedAnswer(const ReceivedRequest &request) const;
    ModemReply page(const ReceivedRequest &request);
    QByteArray get(const ReceivedRequest &request);
    QByteArray set(const ReceivedRequest &request);
    void renewSession(const ReceivedRequest &request);
    QString reasonToRefuse(const ReceivedRequest &request);
    qsizetype countRequests(const QByteArray &part) const;

    const Listener m_listener;
    mutable std::mutex m_mutex;
    mutable std::condition_variable m_changed;
    ModemCondition m_condition;
    QByteArray m_session; ///< the session text that is good for the next set command; empty for none
    QList<std::pair<QByteArray, QByteArray>> m_fixedAnswers;
    QList<ReceivedRequest> m_requests;
    QStringList m_refusals;
};

} // namespace tarvo
