#include "simulator/modem/ModemServer.h"

#include "simulator/modem/SimulatedModem.h"
#include "tests/support/PrintQt.h"

#include <QCryptographicHash>
#include <QTcpSocket>

#include <gtest/gtest.h>

#include <string>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

const QByteArray formType = "application/x-www-form-urlencoded; charset=utf-8";
const QByteArray setTarget = "/goform/goform_set_cmd_process?";
const QByteArray sessionTarget = "/goform/goform_get_cmd_process?cmd=cr_version,wa_inner_version,RD&multi_data=1";

QByteArray md5(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Md5).toHex();
}

class ModemServerTest : public testing::Test {
protected:
    QByteArray ownReferer(const QByteArray &target) const
    {
        return "Referer: http://" + server.authority().toUtf8() + target + "\r\n";
    }

    QByteArray head(const QByteArray &method, const QByteArray &target) const
    {
        return method + ' ' + target + " HTTP/1.1\r\nHost: " + server.authority().toUtf8() + "\r\n";
    }

    void send(const QByteArray &bytes)
    {
        if (socket.state() == QAbstractSocket::UnconnectedState)
            socket.connectToHost(QHostAddress(QHostAddress::LocalHost), server.port());
        if (socket.waitForConnected(5000))
            socket.write(bytes);
    }

    /// Reads until @p end has come, the connection is closed, or @p limit is over.
    QByteArray read(const QByteArray &end, int limit = 5000)
    {
        QByteArray answer;
        while (!answer.contains(end) && socket.waitForReadyRead(limit))
            answer += socket.readAll();
        return answer;
    }

    QByteArray get(const QByteArray &target, const QByteArray &headers = {})
    {
        send(head("GET", target) + headers + "\r\n");
        return read("}");
    }

    QByteArray session()
    {
        const QByteArray answer = get(sessionTarget, ownReferer(sessionTarget));
        const QByteArray key = R"("RD":")";
        const qsizetype start = answer.indexOf(key) + key.size();
        return answer.mid(start, answer.indexOf('"', start) - start);
    }

    static QByteArray form(const QByteArray &rd)
    {
        return "goformId=PC_APN_READY_SET&AD=" + md5(md5("WA_2.3.1CR_1.0.7") + rd);
    }

    QByteArray post(const QByteArray &body, const QByteArray &headers)
    {
        send(head("POST", setTarget) + headers + "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n"
             + body);
        return read("}");
    }

    SimulatedModem modem;
    ModemServer server{modem};
    QTcpSocket socket;
};

TEST_F(ModemServerTest, TakesTheRightTokenOnce)
{
    const QByteArray headers = ownReferer(setTarget) + "Content-Type: " + formType + "\r\n";
    const QByteArray body = form(session());
    EXPECT_TRUE(post(body, headers).contains("success"));
    EXPECT_TRUE(modem.condition().apnReady);
    EXPECT_TRUE(post(body, headers).contains("failure"));
    EXPECT_EQ(modem.refusals(), QStringList{u"no session"_s});
    EXPECT_EQ(modem.requests().back().connection, 1U) << "the connection is kept open";
}

TEST_F(ModemServerTest, RefusesWhatIsNotExactlyRight)
{
    const QByteArray type = "Content-Type: " + formType + "\r\n";
    EXPECT_TRUE(post(form(session() + '0'), ownReferer(setTarget) + type).contains("failure"));
    EXPECT_TRUE(post(form(session()), ownReferer("/") + type).contains("failure"));
    EXPECT_TRUE(post(form(session()), ownReferer(setTarget) + "Content-Type: text/plain\r\n").contains("failure"));
    EXPECT_EQ(modem.refusals(), (QStringList{u"wrong token"_s, u"wrong Referer"_s, u"wrong content type"_s}));
    EXPECT_TRUE(get(sessionTarget).contains("\"RD\":\"\"")) << "no session without a Referer";
    EXPECT_FALSE(modem.condition().apnReady);
}

TEST_F(ModemServerTest, KeepsWhatStandsUnescapedInARecord)
{
    const QByteArray record = R"({"index":4,"profile":"A&AD=B+C%20"})";
    const QByteArray rd = session();
    post("goformId=ADD_APN&apn=" + record + "&AD=" + md5(md5("WA_2.3.1CR_1.0.7") + rd),
         ownReferer(setTarget) + "Content-Type: " + formType + "\r\n");
    ASSERT_EQ(modem.condition().pcApns.size(), 1);
    EXPECT_EQ(modem.condition().pcApns[0].value(u"profile"_s), u"A&AD=B+C%20"_s);
}

} // namespace
} // namespace tarvo
