#include "platform/linux/network/NetlinkDynamicStore.h"

#include "platform/linux/network/LeaseFiles.h"
#include "simulator/surroundings/RecordingLog.h"
#include "tests/support/InotifyInstances.h"
#include "tests/support/PrintQt.h"
#include "tests/support/VirtualDesktop.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <net/if.h>
#include <sched.h>
#include <unistd.h>

#include <cstdio>
#include <optional>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

/// Runs ip(8) in the namespace of the calling thread. @param commands  one a line, without the word "ip"
void ip(const QString &commands)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(u"ip"_s, {u"-batch"_s, u"-"_s});
    process.write(commands.toUtf8());
    process.closeWriteChannel();
    ASSERT_TRUE(process.waitForFinished(60000));
    ASSERT_EQ(process.exitCode(), 0) << commands.toStdString();
}

/// Moves the calling thread into a network namespace of its own. @return whether the kernel allowed it
bool enterOwnNetwork()
{
    const QByteArray map = "0 " + QByteArray::number(geteuid()) + " 1";
    if (unshare(CLONE_NEWNET) == 0)
        return true;
    if (unshare(CLONE_NEWUSER | CLONE_NEWNET) != 0)
        return false;
    QFile asRoot(u"/proc/self/uid_map"_s);
    return asRoot.open(QIODevice::WriteOnly) && asRoot.write(map) == map.size();
}

/// A store in a network namespace of its own, in which en5 has the peer far5.
class NetlinkDynamicStoreTest : public testing::Test {
protected:
    void SetUp() override
    {
        if (!enterOwnNetwork())
            GTEST_SKIP() << "no network namespace can be made here";
        ip(u"link add en5 type veth peer name far5\nlink set far5 up\n"
           "addr add 192.168.8.100/24 dev en5\nlink set en5 up\nroute add default via 192.168.8.1"_s);
        m_store.emplace(m_log, m_leases);
        m_session = m_store->createSession(u"observer"_s, [this](auto &, const auto &keys) { m_told += keys; });
        m_session->setNotificationPatterns({store::interfaceListKey, store::anyServiceIPv4Pattern});
    }

    QString router(const QString &name = u"en5"_s) const
    {
        const auto state = m_session->copyValue(store::serviceIPv4Key(name));
        return state ? state->value(store::kSCPropNetIPv4Router, u"no router"_s).toString() : u"no service"_s;
    }

    /// Puts a lease where the programs that configure networks keep them, as they do: under another name first.
    void writeLease(const QString &folder, const QByteArray &contents)
    {
        const QString path = m_run.filePath(folder + u"/%1"_s.arg(m_store->interfaceIndex(u"en5"_s)));
        QFile file(path + u"~"_s);
        ASSERT_TRUE(QDir(m_run.path()).mkpath(folder) && file.open(QIODevice::WriteOnly) && file.write(contents) > 0);
        ASSERT_TRUE(file.flush() && ::rename(qPrintable(file.fileName()), qPrintable(path)) == 0);
    }

    QTemporaryDir m_run;
    LeaseFiles m_leases{m_run.path()};
    RecordingLog m_log;
    std::optional<NetlinkDynamicStore> m_store;
    std::unique_ptr<DynamicStoreSession> m_session;
    QStringList m_told;
};

} // namespace

TEST_F(NetlinkDynamicStoreTest, FollowsAddressesRoutesAndLinks)
{
    EXPECT_EQ(router(), u"192.168.8.1"_s) << "what was there before the store";
    const std::pair<QString, QString> steps[]{
        {u"route add default via 192.168.8.2 metric 50\nroute del default metric 0"_s, u"192.168.8.2"_s},
        {u"link set en5 down"_s, u"no service"_s},
        {u"link set en5 up"_s, u"no router"_s},
        {u"route add default table 100 nexthop via 192.168.8.4 dev en5 weight 1"_s, u"192.168.8.4"_s},
        {u"route flush table 100\nlink add en6 type veth\naddr add 10.0.0.1/24 dev en6\nlink set en6 up\n"
         "route add default nexthop via 10.0.0.2 dev en6 nexthop via 192.168.8.5 dev en5"_s,
         u"192.168.8.5"_s},
        {u"nexthop add id 7 via 192.168.8.6 dev en5\nroute replace default nhid 7"_s, u"192.168.8.6"_s},
        {u"nexthop del id 7"_s, u"no router"_s},
        {u"route add default via 192.168.8.7 src 192.168.8.100"_s, u"192.168.8.7"_s},
        {u"addr add 192.168.8.9/24 dev en5\naddr del 192.168.8.100/24 dev en5\naddr add 192.168.8.9/24 dev en5"_s,
         u"no router"_s},
        {u"addr flush dev en5"_s, u"no service"_s},
    };
    for (const auto &[commands, expected] : steps) {
        ip(commands);
        EXPECT_TRUE(waitFor([this, &wanted = expected] { return router() == wanted; }))
            << commands.toStdString() << ": " << router().toStdString();
        const QVariantMap order = m_session->copyValue(store::globalIPv4SetupKey).value_or(QVariantMap());
        EXPECT_EQ(order.value(store::kSCPropNetServiceOrder).toList().contains(u"en5"_s), expected != u"no service"_s);
    }
}

TEST_F(NetlinkDynamicStoreTest, TellsOnlyOfRealChanges)
{
    ip(u"addr replace 192.168.8.100/24 dev en5 valid_lft 600 preferred_lft 600\nlink set en5 mtu 1400\n"
       "link set en5 down\nlink set en5 name enx5\nlink set enx5 up\nroute add default via 192.168.8.1"_s);
    EXPECT_TRUE(waitFor([&] { return router(u"enx5"_s) == u"192.168.8.1"_s; }));
    EXPECT_EQ(m_told.count(store::interfaceListKey), 1);
    EXPECT_EQ(m_store->interfaceIndex(u"enx5"_s), int(if_nametoindex("enx5")));

    m_told.clear();
    ip(u"addr replace 192.168.8.100/24 dev enx5 valid_lft 900 preferred_lft 900\nlink set enx5 mtu 1500\n"
       "addr add 10.1.1.1/32 dev lo\nlink set lo up"_s);
    const QString lo = store::serviceIPv4Key(u"lo"_s);
    EXPECT_TRUE(waitFor([&] { return m_told.contains(lo); }));
    const QString enx5 = store::serviceIPv4Key(u"enx5"_s);
    EXPECT_FALSE(m_told.contains(enx5));
    ip(u"addr add 192.168.8.101/24 dev enx5\naddr del 10.1.1.1/32 dev lo"_s);
    EXPECT_TRUE(waitFor([&] { return m_told.count(lo) == 2; }));
    EXPECT_EQ(m_told.count(enx5), 1) << "another address of the same router";

    m_told.clear();
    m_store->announceServices();
    EXPECT_EQ(m_told, QStringList{store::anyServiceIPv4Pattern});
}

TEST_F(NetlinkDynamicStoreTest, FindsTheGatewayOfALeaseWhereThereIsNoRoute)
{
    const auto becomes = [this](const QString &expected) { return waitFor([&] { return router() == expected; }); };
    writeLease(u"systemd/netif/leases"_s, "ROUTER=192.168.8.3\nADDRESS=192.168.8.99\n");
    ip(u"route del default"_s);
    EXPECT_TRUE(becomes(u"no router"_s)) << "the lease is of another address";
    writeLease(u"systemd/netif/leases"_s, "# private\nADDRESS=192.168.8.100\nROUTER=192.168.8.3 192.168.8.4\n");
    EXPECT_TRUE(becomes(u"192.168.8.3"_s));
    writeLease(u"systemd/netif/leases"_s, "ADDRESS=192.168.8.100\nROUTER=192.168.8.256\n");
    EXPECT_TRUE(becomes(u"no router"_s));
    writeLease(u"NetworkManager/devices"_s, "[dhcp4]\ndhcp4.ip_address=192.168.8.100\ndhcp4.routers=192.168.8.5\n");
    ip(u"link set en5 mtu 1400"_s);
    EXPECT_TRUE(becomes(u"192.168.8.5"_s)) << "in a folder that came later, with the next event";
    const qsizetype watchers = inotifyInstances().size();
    EXPECT_TRUE(watchesAnything());
    ip(u"route add default via 192.168.8.1"_s);
    EXPECT_TRUE(becomes(u"192.168.8.1"_s));
    EXPECT_EQ(inotifyInstances().size(), watchers) << "to end one takes the kernel long";
    EXPECT_FALSE(watchesAnything());
}

TEST_F(NetlinkDynamicStoreTest, TakesANameAwayBeforeAnotherLinkHasIt)
{
    QList<int> removed;
    m_store->setLinkRemovedHandler([&](int index) { removed.append(index); });
    const int before = m_store->interfaceIndex(u"en5"_s);
    ip(u"link del en5\nlink add en5 type veth peer name far5\n"
       "addr add 192.168.8.100/24 dev en5\nlink set en5 up\nlink set far5 up\nroute add default via 192.168.8.1"_s);
    EXPECT_TRUE(waitFor([&] { return m_store->interfaceIndex(u"en5"_s) != before && router() == u"192.168.8.1"_s; }));
    EXPECT_EQ(m_told.count(store::interfaceListKey), 2);
    EXPECT_EQ(m_told.count(store::serviceIPv4Key(u"en5"_s)), 2);
    EXPECT_TRUE(removed.contains(before));
}

TEST_F(NetlinkDynamicStoreTest, SurvivesABurstThatOverrunsTheSocket)
{
    QString burst = u"link set en5 down\n"_s;
    for (int i = 0; i < 1000; ++i)
        burst += u"link add a%1 group 9 type veth peer name b%1\n"_s.arg(i);
    const auto count = [&] {
        return m_session->copyValue(store::interfaceListKey)->value(u"Interfaces"_s).toList().size();
    };
    ip(burst + u"link set en5 up\nroute add default via 192.168.8.2"_s);
    m_store->announceServices();
    EXPECT_EQ(count(), 2003);
    EXPECT_EQ(router(), u"192.168.8.2"_s) << "what waits in the socket is older than what was read";
    EXPECT_TRUE(m_log.contains(u"network state: events were lost, reading everything again"_s));
    ip(u"link del group 9"_s);
    EXPECT_TRUE(waitFor([&] { return count() == 3; })) << "also when nobody asks";
}

TEST_F(NetlinkDynamicStoreTest, ReadsEverythingBeforeItAnnouncesServices)
{
    ip(u"addr add 10.1.1.1/32 dev lo\nlink set lo up"_s);
    ASSERT_TRUE(waitFor([&] { return router(u"lo"_s) == u"no router"_s; }));
    ASSERT_TRUE(enterOwnNetwork()); // of whose changes the store hears nothing
    ip(u"link set lo up\naddr flush dev lo"_s);
    m_store->announceServices();
    EXPECT_EQ(router(), u"no service"_s);
    EXPECT_EQ(router(u"lo"_s), u"no service"_s);
}
