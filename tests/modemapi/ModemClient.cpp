#include "modemapi/ModemClient.h"

#include "simulator/modem/ReceivedRequest.h"
#include "tests/support/Companion.h"

#include <QRegularExpression>

using namespace tarvo;

namespace {

struct Requests : AttachedModem {
    Requests()
    {
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
    EXPECT_EQ(client.getWebRequestContent(std::nullopt), std::nullopt);
    modem.device.setFixedAnswer("cmd=profile_type&multi_data=1", "answer");
    for (const bool on : {false, true}) {
        setReferer(on);
        modem.device.clearRequests();
        EXPECT_EQ(client.getWebRequestContent(u"profile_type&multi_data=1"_s), u"answer"_s);
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
    EXPECT_EQ(client.getWebRequestContent(u"x"_s), std::nullopt);
    EXPECT_TRUE(systemLog.lines().last().startsWith(u"webContent: (null), error: ")) << "the error's text follows";
    setReferer(true);
    EXPECT_EQ(client.getWebRequestContent(u"x"_s), u""_s);
    EXPECT_EQ(systemLog.lines().last(), u"data is nil"_s);

    modem.server.setFault({FaultKind::WrongBytes});
    const QString latin1 = u"{\"ppp_status\":\"\u00ff\u00fe\u00c3(\"}"_s;
    EXPECT_EQ(client.getWebRequestContent(u"x"_s), latin1) << "what is no UTF-8";
    setReferer(false);
    EXPECT_EQ(client.getWebRequestContent(u"x"_s), latin1);
}

TEST_F(Requests, ASetCommandProvesThatItHasASession)
{
    EXPECT_TRUE(client.setWebRequestWithId(u"SET_ONLINE_MODE&a=1"_s))
        << modem.device.refusals().join(u'\n').toStdString();
    const auto requests = modem.device.requests();
    ASSERT_EQ(requests.size(), 2);
    EXPECT_EQ(requests[0].target, "/goform/goform_get_cmd_process?cmd=cr_version,wa_inner_version,RD&multi_data=1");
    EXPECT_EQ(requests[0].header("Referer"), address(requests[0].target));
    EXPECT_EQ(requests[0].header("Connection"), "close") << "a modem may serve one connection at a time";
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
        EXPECT_FALSE(client.setWebRequestWithId(u"SET_LPM_MODE"_s));
        EXPECT_EQ(modem.device.requests().size(), 1);
        EXPECT_TRUE(systemLog.contains(u"sessionId  is null!"_s));
        EXPECT_EQ(systemLog.lines().last(), u"SET_LPM_MODE set request failed!"_s);
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
        {"\"result\":\"success\xff\"", true, {}},
    };
    for (const auto &[answer, success, line] : cases) {
        modem.device.setFixedAnswer("goform_set_cmd", answer);
        EXPECT_EQ(client.setWebRequestWithId(u"ID"_s), success) << answer.constData();
        if (!success) {
            EXPECT_EQ(systemLog.lines().last(), line);
        }
    }
    EXPECT_FALSE(client.setWebRequestWithId(std::nullopt));
}

TEST_F(Requests, SendsTheClock)
{
    client.setPcDate();
    const auto sent = modem.device.requests("RESET_NTP_TIME");
    ASSERT_EQ(sent.size(), 1);
    EXPECT_TRUE(QString::fromUtf8(sent[0].body)
                    .contains(QRegularExpression(u"&pc_current_time=\\d{4}-\\d\\d-\\d\\d_\\d\\d:\\d\\d:\\d\\d&AD="_s)));
}

TEST_F(Requests, WhatWasEndedHasNotFailed)
{
    attachment.reset();
    EXPECT_EQ(client.getWebRequestContent(u"x"_s), std::nullopt);
    EXPECT_FALSE(client.setWebRequestWithId(u"x"_s));
    EXPECT_EQ(systemLog.lines(), QStringList());
    EXPECT_TRUE(modem.device.requests().isEmpty());
}
