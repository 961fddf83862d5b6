#include "simulator/modem/SimulatedModem.h"

#include <QCryptographicHash>
#include <QMap>
#include <QUuid>

#include <algorithm>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

const QByteArray getPath = "/goform/goform_get_cmd_process";
const QByteArray setPath = "/goform/goform_set_cmd_process";
const QByteArray tokenField = "&AD=";

QByteArray md5(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Md5).toHex();
}

bool hasOwnReferer(const ReceivedRequest &request)
{
    const QByteArray ownAddress = "http://" + request.header("Host").value_or("") + request.target;
    return request.header("Referer") == ownAddress;
}

bool hasFormType(const ReceivedRequest &request)
{
    return request.header("Content-Type").value_or("").toLower() == "application/x-www-form-urlencoded; charset=utf-8";
}

/// The pages that a user would see.
ModemReply webPage(const QByteArray &path)
{
    static const QMap<QByteArray, QByteArray> titles{
        {"/", "Home"}, {"/messages", "Messages"}, {"/firmware", "Firmware"}, {"/data", "Data limits"}};
    const auto title = titles.constFind(path);
    const bool found = title != titles.cend();
    return {.status = found ? 200 : 404,
            .contentType = "text/html; charset=utf-8",
            .body =
                "<!doctype html>\n<title>Simulated modem</title>\n<h1>" + (found ? *title : "Not found") + "</h1>\n"};
}

} // namespace

SimulatedModem::SimulatedModem(Listener listener)
    : m_listener(std::move(listener))
{
}

ModemCondition SimulatedModem::condition() const
{
    const std::scoped_lock lock(m_mutex);
    return m_condition;
}

void SimulatedModem::change(const std::function<void(ModemCondition &condition)> &changer)
{
    const std::scoped_lock lock(m_mutex);
    changer(m_condition);
}

void SimulatedModem::setFixedAnswer(const QByteArray &part, const QByteArray &body)
{
    const std::scoped_lock lock(m_mutex);
    m_fixedAnswers.prepend({part, body});
}

void SimulatedModem::clearFixedAnswers()
{
    const std::scoped_lock lock(m_mutex);
    m_fixedAnswers.clear();
}

ModemReply SimulatedModem::answer(const ReceivedRequest &request)
{
    if (m_listener)
        m_listener(request);
    const std::scoped_lock lock(m_mutex);
    m_requests.append(request);
    m_changed.notify_all();
    if (const auto fixed = fixedAnswer(request))
        return {.body = *fixed};
    return page(request);
}

std::optional<QByteArray> SimulatedModem::fixedAnswer(const ReceivedRequest &request) const
{
    const auto found =
        std::ranges::find_if(m_fixedAnswers, [&](const auto &answer) { return request.holds(answer.first); });
    return found == m_fixedAnswers.end() ? std::nullopt : std::optional(found->second);
}

ModemReply SimulatedModem::page(const ReceivedRequest &request)
{
    const QByteArray path = request.path();
    if (path == getPath)
        return {.body = get(request)};
    if (path == setPath)
        return {.body = set(request)};
    if (path == '/' + m_condition.statusPagePath.toUtf8()) {
        m_condition.monthlyReceived += m_condition.trafficPerPage;
        m_condition.threeDaysReceived += m_condition.trafficPerPage;
        return {.body = statusPage(m_condition)};
    }
    return webPage(path);
}

QByteArray SimulatedModem::get(const ReceivedRequest &request)
{
    const QByteArray prefix = "cmd=";
    const QByteArray query = request.query();
    if (!query.startsWith(prefix))
        return "{}";
    const QString command = QString::fromUtf8(query.mid(prefix.size()).split('&').first());
    if (command.split(u',').contains(u"RD"_s))
        renewSession(request);
    return getAnswer(m_condition, command, QString::fromUtf8(m_session));
}

void SimulatedModem::renewSession(const ReceivedRequest &request)
{
    const bool granted = m_condition.grantsSessions && hasOwnReferer(request);
    m_session = granted ? QUuid::createUuid().toByteArray(QUuid::Id128) : QByteArray();
}

QByteArray SimulatedModem::set(const ReceivedRequest &request)
{
    const QString reason = reasonToRefuse(request);
    if (!reason.isEmpty()) {
        m_refusals.append(reason);
        return R"({"result":"failure"})";
    }
    const bool accepted = applySetCommand(m_condition, request.body.left(request.body.lastIndexOf(tokenField)));
    return accepted ? R"({"result":"success"})" : R"({"result":"failure"})";
}

QString SimulatedModem::reasonToRefuse(const ReceivedRequest &request)
{
    const QByteArray session = std::exchange(m_session, {});
    if (request.method != "POST")
        return u"no POST"_s;
    if (!hasOwnReferer(request))
        return u"wrong Referer"_s;
    if (!hasFormType(request))
        return u"wrong content type"_s;
    if (session.isEmpty())
        return u"no session"_s;
    const qsizetype token = request.body.lastIndexOf(tokenField);
    const QByteArray expected =
        md5(md5(m_condition.waInnerVersion.toUtf8() + m_condition.crVersion.toUtf8()) + session);
    if (token < 0 || request.body.mid(token + tokenField.size()) != expected)
        return u"wrong token"_s;
    return {};
}

QList<ReceivedRequest> SimulatedModem::requests(const QByteArray &part) const
{
    const std::scoped_lock lock(m_mutex);
    QList<ReceivedRequest> found;
    std::ranges::copy_if(m_requests, std::back_inserter(found),
                         [&](const auto &request) { return request.holds(part); });
    return found;
}

bool SimulatedModem::waitForRequests(qsizetype count, const QByteArray &part, std::chrono::milliseconds limit) const
{
    std::unique_lock lock(m_mutex);
    return m_changed.wait_for(lock, limit, [&] { return countRequests(part) >= count; });
}

qsizetype SimulatedModem::countRequests(const QByteArray &part) const
{
    return std::ranges::count_if(m_requests, [&](const auto &request) { return request.holds(part); });
}

void SimulatedModem::clearRequests()
{
    const std::scoped_lock lock(m_mutex);
    m_requests.clear();
}

QStringList SimulatedModem::refusals() const
{
    const std::scoped_lock lock(m_mutex);
    return m_refusals;
}

} // namespace tarvo
