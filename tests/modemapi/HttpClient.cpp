#include "modemapi/HttpClient.h"

#include "simulator/ModemServer.h"
#include "simulator/ReceivedRequest.h"
#include "simulator/SimulatedModem.h"
#include "tests/support/Companion.h"
#include "tests/support/PrintQt.h"

#include <QDir>

#include <gtest/gtest.h>

#include <thread>

using namespace tarvo;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class Http : public testing::Test {
protected:
    QUrl url(const QString &path = u"logo_data.asp"_s) const
    {
        return {u"http://%1/%2"_s.arg(server.authority(), path)};
    }

    HttpAnswer get(const QUrl &from) { return client.exchange({from, {}, {}, {}}, {}); }
    HttpAnswer post(const QByteArray &body) { return client.exchange({url(u"set"_s), {}, body, {}}, {}); }

    SimulatedModem modem;
    ModemServer server{modem};
    HttpClient client;
};

} // namespace

TEST_F(Http, KeepsItsConnectionBetweenReadsButNeverPostsOnAnOldOne)
{
    modem.setFixedAnswer("logo", "page");
    EXPECT_EQ(get(url()).data, "page");
    EXPECT_EQ(get(url()).data, "page");
    EXPECT_EQ(post("a=b").error, std::nullopt);
    const auto requests = modem.requests();
    ASSERT_EQ(requests.size(), 3);
    EXPECT_EQ(requests[0].connection, requests[1].connection);
    EXPECT_NE(requests[1].connection, requests[2].connection);
    EXPECT_EQ(requests[2].method, "POST");
    EXPECT_EQ(requests[2].body, "a=b");
    EXPECT_EQ(requests[2].header("Expect"), std::nullopt);

    const auto openDescriptors = [] { return QDir(u"/proc/self/fd"_s).count(); };
    const auto before = openDescriptors();
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(post("a=b").error, std::nullopt);
    EXPECT_TRUE(eventually([&] { return openDescriptors() <= before; })) << "a post's connection is closed";
}

TEST_F(Http, SendsTheAddressAsItIs)
{
    for (const char *target : {"/", "/set?", "/get?cmd=a,b&c=%20", "/logo_data.asp"}) {
        EXPECT_FALSE(get(QUrl(u"http://"_s + server.authority() + QString::fromLatin1(target))).error);
        EXPECT_EQ(modem.requests().last().target, target);
    }
}

TEST_F(Http, SendsNothingOverASocketThatCannotBePrepared)
{
    const HttpAnswer answer = client.exchange({url(), {}, {}, [](int) { return false; }}, {});
    EXPECT_TRUE(answer.error);
    EXPECT_TRUE(modem.requests().isEmpty());
}

TEST_F(Http, SendsHeadersAsTheyAreAndNoneThatWouldSmuggleMore)
{
    client.exchange({url(), {"Referer: http://x/?a=%20", "X: 1\r\nInjected: 2"}, {}, {}}, {});
    ASSERT_EQ(modem.requests().size(), 1);
    EXPECT_EQ(modem.requests()[0].header("Referer"), "http://x/?a=%20");
    EXPECT_EQ(modem.requests()[0].header("Injected"), std::nullopt);
}

TEST_F(Http, FaultyAnswersAreErrorsAndGiveNoData)
{
    modem.setFixedAnswer("logo", "page");
    for (const FaultKind kind :
         {FaultKind::HalfAnswer, FaultKind::EndlessAnswer, FaultKind::EndlessHead, FaultKind::CloseAtOnce}) {
        server.setFault({kind});
        const HttpAnswer answer = get(url());
        EXPECT_TRUE(answer.error && !answer.error->startsWith(u"Timeout")) << static_cast<int>(kind);
        EXPECT_TRUE(answer.data.isEmpty()) << static_cast<int>(kind);
    }
    server.setFault({});
    EXPECT_EQ(get(url()).data, "page") << "the client must have recovered";
    server.setFault({FaultKind::Refuse});
    EXPECT_TRUE(get(url()).error);
}

TEST_F(Http, AReadSurvivesAConnectionThatWasClosedMeanwhileAPostIsSentOnce)
{
    server.setFault({FaultKind::CloseKeptAlive});
    EXPECT_FALSE(get(url()).error);
    EXPECT_FALSE(get(url()).error);
    server.setFault({FaultKind::CloseAtOnce});
    EXPECT_TRUE(post("once").error);
    EXPECT_EQ(modem.requests("once").size(), 1);
}

TEST_F(Http, FollowsRedirectsOfReadsOnTheSameServerOnly)
{
    SimulatedModem stranger;
    ModemServer elsewhere(stranger);
    modem.setFixedAnswer("logo", "page");

    server.setFault({FaultKind::Redirect, "old", 0ms, url().toEncoded()});
    EXPECT_EQ(get(url(u"old"_s)).data, "page");
    server.setFault({FaultKind::Redirect, {}, 0ms, url().toEncoded()});
    EXPECT_TRUE(get(url()).error) << "a redirect in a circle ends";

    server.setFault({FaultKind::Redirect, {}, 0ms, "http://" + elsewhere.authority().toLatin1() + "/x"});
    EXPECT_TRUE(get(url()).error);
    post("form");
    EXPECT_TRUE(stranger.requests().isEmpty());
}

TEST_F(Http, OnlySpeaksHttp)
{
    EXPECT_TRUE(get(QUrl(u"file:///etc/hostname"_s)).error);
    EXPECT_TRUE(get(QUrl(u"ftp://127.0.0.1/"_s)).error);
    EXPECT_TRUE(get(QUrl()).error);
}

TEST_F(Http, IgnoresTheProxyOfTheEnvironment)
{
    qputenv("http_proxy", "http://127.0.0.1:9");
    HttpClient fresh;
    EXPECT_FALSE(fresh.exchange({url(), {}, {}, {}}, {}).error);
    qunsetenv("http_proxy");
}

TEST_F(Http, AStopEndsATransferThatWouldNeverEnd)
{
    server.setFault({FaultKind::NoAnswer});
    std::stop_source stop;
    std::thread stopper([&] {
        EXPECT_TRUE(modem.waitForRequests(1));
        stop.request_stop();
    });
    const auto begun = std::chrono::steady_clock::now();
    EXPECT_EQ(client.exchange({url(), {}, {}, {}}, stop.get_token()).error, u"stopped"_s);
    EXPECT_LT(std::chrono::steady_clock::now() - begun, HttpClient::timeout) << "not by the time-out";
    stopper.join();

    const qsizetype before = modem.requests().size();
    client.exchange({url(), {}, {}, {}}, stop.get_token());
    EXPECT_EQ(modem.requests().size(), before) << "stopped work must not even ask";
}

TEST_F(Http, AModemThatSaysNothingIsGivenUp)
{
    server.setFault({FaultKind::NoAnswer});
    EXPECT_TRUE(get(url()).error);
}
