#include "simulator/ReceivedRequest.h"
#include "tests/support/Companion.h"
#include "tests/support/PrintQt.h"

#include <QCryptographicHash>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

/// A companion whose modem is plugged in, but not polled.
struct Requests : Companion {
    Requests()
    {
        plugIn(modem);
        modem.device.change([](ModemCondition &condition) { condition.waInnerVersion = u"WA"_s; });
    }

    QByteArray address(const QByteArray &path) const { return "http://" + modem.server.authority().toLatin1() + path; }
};

void setReferer(bool on)
{
    QVariantMap settings = usualSettings();
    settings.insert(u"AddRefererIntoHttpHeader"_s, on);
    configure(settings);
}

} // namespace

TEST_F(Requests, ReadsCarryTheirOwnAddressAsRefererOnlyWhenConfigured)
{
    EXPECT_EQ(controller.getWebRequestContent(std::nullopt), std::nullopt);
    modem.device.setFixedAnswer("cmd=profile_type&multi_data=1", "answer");
    for (const bool on : {false, true}) {
        setReferer(on);
        modem.device.clearRequests();
        EXPECT_EQ(controller.getWebRequestContent(u"profile_type&multi_data=1"_s), u"answer"_s);
        const auto requests = modem.device.requests();
        ASSERT_EQ(requests.size(), 1);
        EXPECT_EQ(requests[0].target, "/goform/goform_get_cmd_process?cmd=profile_type&multi_data=1");
        const auto own = address(requests[0].target);
        EXPECT_EQ(requests[0].header("Referer"), on ? std::optional(own) : std::nullopt);
    }
}

TEST_F(Requests, NoAnswerIsNilForAPlainReadAndEmptyForOneWithReferer)
{
    modem.server.setFault({FaultKind::CloseAtOnce});
    EXPECT_EQ(controller.getWebRequestContent(u"x"_s), std::nullopt);
    EXPECT_TRUE(systemLog.lines().last().startsWith(u"webContent: (null), error: ")) << "the error's text follows";
    setReferer(true);
    EXPECT_EQ(controller.getWebRequestContent(u"x"_s), u""_s);
    EXPECT_EQ(systemLog.lines().last(), u"data is nil"_s);

    modem.server.setFault({FaultKind::WrongBytes});
    EXPECT_EQ(controller.getWebRequestContent(u"x"_s), std::nullopt) << "no UTF-8 is no text";
}

TEST_F(Requests, ASetCommandProvesThatItHasASession)
{
    EXPECT_TRUE(controller.setWebRequestWithId(u"SET_ONLINE_MODE&a=1"_s))
        << modem.device.refusals().join(u'\n').toStdString();
    const auto requests = modem.device.requests();
    ASSERT_EQ(requests.size(), 2);
    EXPECT_EQ(requests[0].target, "/goform/goform_get_cmd_process?cmd=cr_version,wa_inner_version,RD&multi_data=1");
    EXPECT_EQ(requests[0].header("Referer"), address(requests[0].target));
    EXPECT_EQ(requests[1].method, "POST");
    EXPECT_EQ(requests[1].target, "/goform/goform_set_cmd_process?");
    EXPECT_EQ(requests[1].header("Referer"), address("/goform/goform_set_cmd_process?"));
    EXPECT_EQ(requests[1].header("Content-Type"), "application/x-www-form-urlencoded; charset=utf-8");
    EXPECT_TRUE(requests[1].body.startsWith("goformId=SET_ONLINE_MODE&a=1&AD="));
    EXPECT_EQ(requests[1].body.size(), QByteArray("goformId=SET_ONLINE_MODE&a=1&AD=").size() + 32);
}

TEST_F(Requests, WithoutASessionNothingIsSent)
{
    for (const QByteArray &session : {QByteArray(R"({"cr_version":"1"})"), QByteArray(R"({"RD":""})")}) {
        modem.device.clearRequests();
        modem.device.setFixedAnswer("cmd=cr_version", session);
        EXPECT_FALSE(controller.setWebRequestWithId(u"SET_LPM_MODE"_s));
        EXPECT_EQ(modem.device.requests().size(), 1);
        EXPECT_TRUE(systemLog.contains(u"sessionId  is null!"_s));
        EXPECT_EQ(systemLog.lines().last(), u"SET_LPM_MODE set request failed!"_s);
        modem.device.clearFixedAnswers();
    }
}

TEST_F(Requests, SuccessIsJudgedByTheAnswer)
{
    const std::tuple<QByteArray, bool, QString> cases[] = {
        {R"({"result":"success"})", true, {}},
        {R"({"result":"partly successful"})", true, {}},
        {R"({"result":"failure"})", false, u"ID set request failed!"_s},
        {R"({"outcome":"success"})", false, u"ID set request result is null!"_s},
        {"", false, u"ID set request result is null!"_s},
        {"\"result\":\"success\xff\"", false, u"ID setReqResultStr: (null), error: (null)"_s},
    };
    for (const auto &[answer, success, line] : cases) {
        modem.device.clearFixedAnswers();
        modem.device.setFixedAnswer("goform_set_cmd", answer);
        EXPECT_EQ(controller.setWebRequestWithId(u"ID"_s), success) << answer.constData();
        if (!success) {
            EXPECT_EQ(systemLog.lines().last(), line);
        }
    }
    EXPECT_FALSE(controller.setWebRequestWithId(std::nullopt));
}

TEST_F(Requests, ConnectionAndDialModeFollowTheConfiguration)
{
    const auto answer = u"ppp_status: '' pppstate: 'old' my: 'mine' \"dial_mode\":\"auto_dial\""_s;
    EXPECT_EQ(controller.getConnectionStatusWithWebContent(answer), u""_s) << "empty is found";
    EXPECT_EQ(controller.getConnectionStatusWithWebContent(u"pppstate: 'old'"_s), u"old"_s);
    EXPECT_EQ(controller.getConnectMode(answer), std::nullopt) << "not wanted";
    EXPECT_TRUE(controller.isConnectedWithStautusContent(u"ipv4_ipv6_connected"_s));
    EXPECT_FALSE(controller.isConnectedWithStautusContent(u"Connected"_s));
    EXPECT_FALSE(controller.isConnectedWithStautusContent(std::nullopt)) << "not equal to an absent setting";

    configure({{u"NeedManualSetConnectStatus"_s, u"yes"_s},
               {u"ConnectedStatusValue"_s, u"Connected"_s},
               {u"NeedDialModeJudge"_s, 1}});
    EXPECT_EQ(controller.getConnectionStatusWithWebContent(answer), std::nullopt) << "no key configured";
    EXPECT_EQ(controller.getConnectMode(answer), u"auto_dial"_s);
    EXPECT_TRUE(controller.isConnectedWithStautusContent(u"Connected"_s));
    EXPECT_TRUE(controller.isAutoConnect(u"auto_dial"_s));
    EXPECT_TRUE(controller.state().isAutoConnectOn_);
    EXPECT_FALSE(controller.isAutoConnect(std::nullopt));
}
