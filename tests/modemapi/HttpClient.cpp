#include "modemapi/HttpClient.h"

#include "modemapi/Obstacle.h"
#include "simulator/modem/ReceivedRequest.h"
#include "tests/modemapi/HttpFixture.h"
#include "tests/support/Companion.h"

#include <QDir>

#include <thread>

using namespace tarvo;
using namespace std::chrono_literals;

TEST_F(Http, KeepsItsConnectionBetweenReadsButNeverPostsOnAnOldOne)
{
    modem.setFixedAnswer("logo", "page");
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(get(url()).data, "page");
    EXPECT_EQ(post("a=b").error, std::nullopt);
    const auto requests = modem.requests();
    ASSERT_EQ(requests.size(), 5);
    EXPECT_NE(requests[1].connection, requests[0].connection) << "whether the server can do without the first";
    EXPECT_EQ(requests[2].connection, requests[0].connection);
    EXPECT_EQ(requests[3].connection, requests[0].connection);
    EXPECT_EQ(requests[3].header("Connection"), std::nullopt);
    EXPECT_EQ(requests[3].header("Accept-Encoding"), std::nullopt);
    EXPECT_NE(requests[4].connection, requests[0].connection);
    EXPECT_EQ(requests[4].method, "POST");
    EXPECT_EQ(requests[4].body, "a=b");
    EXPECT_EQ(requests[4].header("Connection"), "close");
    EXPECT_EQ(requests[4].header("Expect"), std::nullopt);

    const auto openDescriptors = [] { return QDir(u"/proc/self/fd"_s).count(); };
    const auto before = openDescriptors();
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(post("a=b").error, std::nullopt);
    EXPECT_TRUE(eventually([&] { return openDescriptors() <= before; })) << "a post's connection is closed";
}

TEST_F(Http, LeavesTheOnlyConnectionOfAServerToOthers)
{
    server.setFault({FaultKind::OneConnection});
    const auto begun = std::chrono::steady_clock::now();
    EXPECT_FALSE(get(url()).error);
    for (int i = 0; i < 4; ++i) {
        EXPECT_FALSE(get(url()).error);
        EXPECT_FALSE(post("form").error);
        EXPECT_FALSE(HttpClient().exchange({url(), {}, {}, {}}, {}).error);
    }
    EXPECT_LT(std::chrono::steady_clock::now() - begun, 4s) << "found out once, within a second";
    EXPECT_EQ(modem.requests("form").size(), 4);
}

TEST_F(Http, ClosesTheConnectionBeforeTheAnswerIsUsed)
{
    server.setFault({FaultKind::OneConnection});
    EXPECT_FALSE(get(url()).error);
    EXPECT_FALSE(client.exchange({url(), {}, {}, {}, Afterwards::Close}, {}).error);
    const auto begun = std::chrono::steady_clock::now();
    EXPECT_FALSE(post("form").error);
    EXPECT_LT(std::chrono::steady_clock::now() - begun, 900ms);
    const auto requests = modem.requests();
    EXPECT_EQ(requests[0].connection, requests[1].connection) << "the one that was open";
    EXPECT_FALSE(get(url()).error);
    EXPECT_EQ(modem.requests().last().header("Connection"), std::nullopt) << "nothing was open beside which to try";
}

TEST_F(Http, KeepsNoConnectionOnceAConnectHadToWait)
{
    for (int i = 0; i < 3; ++i)
        EXPECT_FALSE(get(url()).error);
    EXPECT_EQ(modem.requests()[0].connection, modem.requests()[2].connection);
    const auto slowly = [](int) {
        std::this_thread::sleep_for(600ms); // what takes its time before the connection is there
        return true;
    };
    EXPECT_FALSE(client.exchange({url(), {}, "form", slowly}, {}).error);
    EXPECT_FALSE(get(url()).error);
    EXPECT_FALSE(get(url()).error);
    const auto requests = modem.requests();
    EXPECT_NE(requests[4].connection, requests[0].connection);
    EXPECT_NE(requests[5].connection, requests[4].connection);
}

TEST_F(Http, DecodesWhatIsCompressedUnasked)
{
    const QByteArray zipped(
        "\x1f\x8b\x08\x00\x00\x00\x00\x00\x02\x03\x2b\x48\x4c\x4f\x05\x00\x20\xb6\x0a\x14\x04\x00\x00\x00", 24);
    server.setFault({.kind = FaultKind::Verbatim,
                     .text = "HTTP/1.1 200 OK\r\nContent-Encoding: gzip\r\nContent-Length: "
                         + QByteArray::number(zipped.size()) + "\r\n\r\n" + zipped});
    EXPECT_EQ(get(url()).data, "page");
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
    server.setFault({FaultKind::Redirect, "old", 0ms, "http://user:password@" + url().toEncoded().mid(7)});
    EXPECT_EQ(get(url(u"old"_s)).data, "page");
    EXPECT_EQ(modem.requests().last().header("Authorization"), std::nullopt);
    EXPECT_EQ(get(url(u"old"_s)).redirect, url());
    server.setFault({FaultKind::Redirect, {}, 0ms, url().toEncoded()});
    EXPECT_TRUE(get(url()).error) << "a redirect in a circle ends";

    const QString other = u"http://"_s + elsewhere.authority();
    server.setFault({FaultKind::Redirect, {}, 0ms, other.toLatin1() + "/x?number=7#8"});
    EXPECT_EQ(get(url()).error, u"redirected to "_s + other) << "what changes each time is not told each time";
    post("form");
    EXPECT_TRUE(stranger.requests().isEmpty());
}

TEST_F(Http, OnlySpeaksHttp)
{
    EXPECT_TRUE(get(QUrl(u"file:///etc/hostname"_s)).error);
    EXPECT_TRUE(get(QUrl(u"ftp://127.0.0.1/"_s)).error);
    EXPECT_TRUE(get(QUrl()).error);
    const HttpAnswer secure = get(QUrl(u"https://%1/"_s.arg(server.authority())));
    EXPECT_FALSE(secure.connected);
    EXPECT_TRUE(secure.error && secure.error->startsWith(u"Unsupported protocol"));
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
    const HttpAnswer answer = get(url());
    EXPECT_TRUE(answer.error);
    EXPECT_EQ(obstacleOf(answer), Obstacle::Silence);
}
