#include "tests/apn/ProfileFolder.h"
#include "tests/support/Companion.h"
#include "tests/support/PrintQt.h"

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

const QByteArray switches = "CONNECTION_SWITCH_SETTING&apn_id_password_confirm=0&apn_id_password_save=1";
const QByteArray ready = "PC_APN_READY_SET";

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

    /// Plugs the modem in afresh and lets one pass go by. @return the commands of it
    QList<QByteArray> provision(const QString &defaultName)
    {
        modem.device.change([&](ModemCondition &condition) {
            condition = {};
            condition.defaultProfileName = defaultName;
        });
        modem.device.clearRequests();
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
    for (const char *answer : {R"({"data":[1,2,3]})", R"({"data":7})", "[1,2,3,4]", "7"}) {
        modem.device.clearFixedAnswers();
        modem.device.setFixedAnswer("pc_apn_list_query", answer);
        EXPECT_EQ(provision(QString()).size(), 3) << answer;
    }
    EXPECT_EQ(systemLog.lines().filter(u"pc_apn_list_query dictionary: (null), json Error: "_s).size(), 1);
}

TEST_F(Provisioning, GoesOnAfterAnyRefusal)
{
    folder.add(u"profile.xml"_s, u"X"_s);
    folder.add(u"X.xml"_s, uR"({"profile":"X","index":1})"_s);
    for (const char *refused : {"ADD_APN", "CONNECTION_SWITCH"}) {
        modem.device.clearFixedAnswers();
        modem.device.setFixedAnswer(refused, R"({"result":"failure"})");
        EXPECT_EQ(provision(u"X"_s).size(), 4) << refused;
    }
    modem.device.setFixedAnswer("SET_DEFAULT_APN", R"({"result":"failure"})");
    EXPECT_EQ(provision(u"X"_s).mid(1), (QList<QByteArray>{"SET_DEFAULT_APN&index=1", ready}));
    modem.device.setFixedAnswer("PC_APN_READY_SET", R"({"result":"failure"})");
    plugIn(modem);
    modem.device.clearRequests();
    tick(modem, 1);
    tick(modem, 2);
    EXPECT_TRUE(modem.device.waitForRequests(2, ready)) << "tried again in the next pass";
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
    ApnProvisioner provisioner(snapshot, systemLog);
    provisioner.setOnline(client);
    snapshot.reset({.isAutoConnectOn_ = true});
    provisioner.setOnline(client);
    provisioner.setLpm(client);
    EXPECT_EQ(commands(modem), (QList<QByteArray>{"SET_ONLINE_MODE", "SET_LPM_MODE"}));
}
