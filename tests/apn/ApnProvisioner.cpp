#include "tests/apn/ProfileFolder.h"
#include "tests/support/Companion.h"

using namespace tarvo;

namespace {

const QByteArray switches = "CONNECTION_SWITCH_SETTING&apn_id_password_confirm=0&apn_id_password_save=1";
const QByteArray ready = "PC_APN_READY_SET";
const QString failed = u" set request failed!"_s;

QByteArray notFoundRecord(const QByteArray &name)
{
    return R"(ADD_APN&apn={ "index": 199,"isPC":1,"isWeb":0,"pdp_type": 1,"profile": ")" + name
        + R"(","apn": "","auth": 1,"username": "","password": "","dns_mode": 0,"prefer_dns": "",)"
          R"("standby_dns": "","ipv6_prefer_dns": "","ipv6_standby_dns": ""})";
}

/// @return the set commands that @p which was sent, without their tokens, in order
QList<QByteArray> commands(const Modem &which)
{
    QList<QByteArray> found;
    for (const ReceivedRequest &request : which.device.requests("goformId="))
        found.append(request.body.sliced(9, request.body.lastIndexOf("&AD=") - 9));
    return found;
}

struct Provisioning : Companion {
    Provisioning()
    {
        QVariantMap settings = usualSettings();
        settings.insert(u"WebDefaultApnProfileName"_s, u"A;B;C"_s);
        configure(settings);
    }

    /// Makes the modem one that has nothing yet.
    void renew(const QString &defaultName)
    {
        modem.device.change([&](ModemCondition &condition) {
            condition = {};
            condition.defaultProfileName = defaultName;
        });
        modem.device.clearRequests();
    }

    /// Plugs the modem in afresh and lets one pass go by. @return the commands of it
    QList<QByteArray> provision(const QString &defaultName)
    {
        renew(defaultName);
        plugIn(modem);
        tick(modem, 1);
        EXPECT_TRUE(clock.waitForSleepers(1));
        const QList<QByteArray> sent = commands(modem);
        unplug();
        return sent;
    }

    ProfileFolder folder;
};

} // namespace

TEST_F(Provisioning, SendsTheRecordsOnceAndThenThatTheyAreComplete)
{
    const QString record = uR"({ "index": "2", "profile":"Über X","password":"geheim" })"_s;
    folder.add(u"profile.xml"_s, u"One*Bad*Empty"_s);
    folder.add(u"One.xml"_s, record);
    folder.write(u"Bad.xml"_s, "damaged");
    modem.device.change([](ModemCondition &condition) { condition.defaultProfileName = u"Über X"_s; });
    plugIn(modem);
    tick(modem, 1);
    tick(modem, 2);
    ASSERT_TRUE(clock.waitForSleepers(1));
    EXPECT_EQ(commands(modem),
              (QList<QByteArray>{"ADD_APN&apn=" + record.toUtf8(), "SET_DEFAULT_APN&index=2", switches, ready}));
    EXPECT_EQ(modem.device.requests("profile_type&multi_data=1").size(), 2);
    EXPECT_EQ(modem.device.requests("pc_apn_list_query").size(), 1);
    for (const QString &line :
         {u"pc apn list count: 0"_s, u"add apn success!"_s, u"pc_default_profilename:Über X"_s, u"defaultIndex: 2"_s,
          u"set default apn success!"_s, u"set switch success!"_s, u"PC_APN_READY_SET success!"_s})
        EXPECT_EQ(systemLog.count(line), 1) << line.toStdString();
    EXPECT_TRUE(systemLog.lines().filter(u"geheim"_s).isEmpty());
}

TEST_F(Provisioning, SetsTheDefaultThatTheModemAsksFor)
{
    folder.add(u"profile.xml"_s, u"X"_s);
    const QList<QByteArray> first{"SET_DEFAULT_APN&index=0", switches, ready};
    EXPECT_EQ(provision(QString()), first) << "no records, no name";

    folder.add(u"X.xml"_s, uR"({"profile":"X","index":3})"_s);
    const QByteArray x = R"(ADD_APN&apn={"profile":"X","index":3})";
    EXPECT_EQ(provision(u"A"_s), QList<QByteArray>{x} + first);
    EXPECT_EQ(provision(u"X"_s), (QList<QByteArray>{x, "SET_DEFAULT_APN&index=3", ready}));
    EXPECT_EQ(provision(QString()), (QList<QByteArray>{x, "SET_DEFAULT_APN&index=100", ready}));
    EXPECT_EQ(provision(u"Y"_s), (QList<QByteArray>{x, notFoundRecord("Y"), "SET_DEFAULT_APN&index=199", ready}));
}

TEST_F(Provisioning, HoldsBackUnlessTheModemHasRoomAndAsks)
{
    modem.device.setFixedAnswer("profile_type", "{}");
    EXPECT_EQ(provision(QString()), QList<QByteArray>());
    EXPECT_TRUE(systemLog.contains(u"profileType is null!"_s));
    EXPECT_TRUE(controller.provisioner().onlySetAPNFlag()) << "a later pass asks again";

    modem.device.clearFixedAnswers();
    modem.device.setFixedAnswer("pc_apn_list_query", R"({"data":[1,2,3,4]})");
    EXPECT_EQ(provision(QString()), QList<QByteArray>{ready}) << "four entries, and three names of its own";
    EXPECT_TRUE(systemLog.contains(u"pc apn list count: 4"_s));
    for (const char *answer : {R"({"data":[1,2,3]})", "[1,2,3,4]", "7"}) {
        modem.device.setFixedAnswer("pc_apn_list_query", answer);
        EXPECT_EQ(provision(QString()).size(), 3) << answer;
    }
    EXPECT_EQ(systemLog.lines().filter(u"pc_apn_list_query dictionary: (null), json Error: "_s).size(), 2);
}

TEST_F(Provisioning, ARefusalIsToldWithoutTheRecordAndNoDefaultFollowsWhatWasRefused)
{
    const QString record = uR"({"profile":"X","index":1,"username":"user name","password":"geheim"})"_s;
    folder.add(u"profile.xml"_s, u"X"_s);
    folder.add(u"X.xml"_s, record);
    const QByteArray x = "ADD_APN&apn=" + record.toUtf8();
    const QByteArray unknown = notFoundRecord("Y");
    const QByteArray refusal = R"({"result":"failure"})";
    const std::tuple<const char *, QByteArray, QString, QList<QByteArray>, QString> cases[] = {
        {"ADD_APN", refusal, u"X"_s, {x, ready}, u"ADD_APN X set request failed!"_s},
        {"ADD_APN", "{}", u"X"_s, {x, ready}, u"ADD_APN X set request result is null!"_s},
        {"ADD_APN", "", u"Y"_s, {x, unknown, ready}, u"ADD_APN Y set request result is null!"_s},
        {"ADD_APN", refusal, u""_s, {x, "SET_DEFAULT_APN&index=100", ready}, u"ADD_APN X set request failed!"_s},
        {"cmd=cr_version", "{}", u"X"_s, {}, u"ADD_APN X set request failed!"_s},
        {"CONNECTION_SWITCH",
         refusal,
         u"X"_s,
         {x, "SET_DEFAULT_APN&index=1", switches, ready},
         QString::fromUtf8(switches) + failed},
        {"SET_DEFAULT_APN",
         refusal,
         u"X"_s,
         {x, "SET_DEFAULT_APN&index=1", ready},
         u"SET_DEFAULT_APN&index=1"_s + failed},
    };
    for (const auto &[part, answer, name, sent, line] : cases) {
        modem.device.clearFixedAnswers();
        modem.device.setFixedAnswer(part, answer);
        EXPECT_EQ(provision(name), sent) << part << name.toStdString();
        EXPECT_TRUE(systemLog.contains(line)) << line.toStdString();
    }
    for (const QString &secret : {u"geheim"_s, u"user name"_s})
        EXPECT_EQ(systemLog.lines().filter(secret), QStringList());
}

TEST_F(Provisioning, AFolderWhoseSealIsBrokenSendsNothing)
{
    folder.add(u"profile.xml"_s, u"X"_s);
    folder.add(u"X.xml"_s, uR"({"profile":"X","index":3})"_s);
    folder.seal();
    const QList<QByteArray> sent{R"(ADD_APN&apn={"profile":"X","index":3})", "SET_DEFAULT_APN&index=3", ready};
    EXPECT_EQ(provision(u"X"_s), sent);
    folder.add(u"X.xml"_s, uR"({"profile":"X","index":4})"_s);
    EXPECT_EQ(provision(u"X"_s), QList<QByteArray>{ready});
    const QString problem = u"%1 is not the seal of what lies there: no access points are sent"_s;
    EXPECT_TRUE(systemLog.contains(problem.arg(folder.path(u"profile.sig"_s))));
}

TEST_F(Provisioning, ARefusedReadyMarkIsTriedAgainThreeTimesAndThenOnceAMinute)
{
    modem.device.setFixedAnswer(ready, R"({"result":"failure"})");
    for (int plug = 0; plug < 2; ++plug) {
        modem.device.clearRequests();
        plugIn(modem);
        for (int second = 1; second <= 63; ++second)
            tick(modem, second);
        ASSERT_TRUE(clock.waitForSleepers(1));
        EXPECT_EQ(modem.device.requests(ready).size(), 4) << "in the first three seconds, and in the 63rd";
        unplug();
    }
}

TEST_F(Provisioning, WhatWasCutOffIsFinishedAndNothingIsSentTwice)
{
    QVariantMap settings = usualSettings();
    settings.insert(u"WebDefaultApnProfileName"_s, u"A"_s);
    configure(settings);
    folder.add(u"profile.xml"_s, u"P*Q*R"_s);
    for (const int index : {3, 4, 5}) {
        const QChar name(u'M' + index);
        folder.add(name + u".xml"_s, uR"({"profile":"Name %1","index":%2})"_s.arg(name).arg(index));
    }
    const QByteArrayList moments{
        "pc_apn_list_query",     "Name P",          "Name Q", "Name R", "pc_default_profilename",
        R"("profile": "Other")", "SET_DEFAULT_APN", ready};
    for (const auto &[name, index, count] : {std::tuple(u"Name Q"_s, 4, 3), {u"Other"_s, 199, 4}}) {
        for (qsizetype which = 0; which < 2 * moments.size(); ++which) {
            const QByteArray moment = moments[which / 2];
            const bool sleeps = which % 2 == 0;
            if (index != 199 && moment.contains("Other"))
                continue;
            renew(name);
            modem.server.setFault({FaultKind::NoAnswer, moment});
            plugIn(modem);
            tick(modem, 1);
            ASSERT_TRUE(modem.device.waitForRequests(1, moment));
            sleeps ? workspace.sleep() : unplug();
            modem.server.setFault({});
            sleeps ? workspace.wake() : plugIn(modem);
            tick(modem, 2);
            ASSERT_TRUE(clock.waitForSleepers(1));
            unplug();
            EXPECT_EQ(modem.device.requests("ADD_APN").size(), count) << moment.constData() << sleeps;
            EXPECT_EQ(modem.device.condition().pcApns.size(), count) << moment.constData() << sleeps;
            EXPECT_EQ(modem.device.condition().defaultApnIndex, index) << moment.constData() << sleeps;
            EXPECT_TRUE(modem.device.condition().apnReady) << moment.constData() << sleeps;
            const bool isDefaultCut = moment.startsWith("SET_DEFAULT");
            EXPECT_EQ(modem.device.requests("SET_DEFAULT_APN").size(), isDefaultCut ? 2 : 1) << moment.constData();
        }
    }

    renew(u"Name Q"_s);
    for (const qsizetype plug : {1, 2}) {
        modem.server.setFault({FaultKind::CloseAtOnce, plug == 1 ? "ADD_APN" : "no request"});
        plugIn(modem);
        tick(modem, plug);
        ASSERT_TRUE(clock.waitForSleepers(1));
        unplug();
        EXPECT_EQ(modem.device.requests("SET_DEFAULT_APN").size(), plug - 1) << "the first time, all answers were lost";
    }
    EXPECT_EQ(modem.device.requests("ADD_APN").size(), 3);
}

TEST_F(Provisioning, AnUnplugEndsItAndLeavesNothingForTheNextModem)
{
    modem.device.change([](ModemCondition &condition) { condition.defaultProfileName = u"Old"_s; });
    for (const char *moment : {"pc_apn_list_query", "ADD_APN"}) {
        Modem next;
        next.device.change([](ModemCondition &condition) { condition.defaultProfileName = u"Next"_s; });
        modem.device.clearRequests();
        modem.server.setFault({FaultKind::NoAnswer, moment});
        plugIn(modem);
        tick(modem, 1);
        ASSERT_TRUE(modem.device.waitForRequests(1, moment));
        unplug();
        plugIn(next, u"en6"_s);
        tick(next, 1);
        ASSERT_TRUE(next.device.waitForRequests(1, ready));
        EXPECT_TRUE(modem.device.requests().last().holds(moment)) << "nothing came after it";
        EXPECT_EQ(commands(next), (QList<QByteArray>{notFoundRecord("Next"), "SET_DEFAULT_APN&index=199", ready}));
        unplug(u"en6"_s);
    }
}

TEST_F(AttachedModem, GoesOnlineOnlyWhenRoamingOrDiallingByItself)
{
    ManualClock clock;
    ApnProvisioner provisioner(snapshot, systemLog, clock);
    provisioner.setOnline(client);
    snapshot.reset({.dormant = {.isAutoConnectOn_ = true}});
    provisioner.setOnline(client);
    provisioner.setLpm(client);
    EXPECT_EQ(commands(modem), (QList<QByteArray>{"SET_ONLINE_MODE", "SET_LPM_MODE"}));
}
