#include "platform/linux/desktop/LogindSleep.h"

#include "tests/platform/linux/desktop/LogindWorkspaceTest.h"

using namespace tarvo;
using LogindSleepTest = LogindWorkspaceTest;

TEST_F(LogindSleepTest, HoldsTheMachineUntilTheHandlersHaveReturned)
{
    startBus();
    logind_ = std::make_unique<SimulatedLogind>(address_);
    const auto workspace = startWorkspace();
    ASSERT_TRUE(becomes(true));

    SimulatedLogind stranger(address_, false);
    auto forged =
        QDBusMessage::createSignal(u"/org/freedesktop/DBus"_s, u"org.freedesktop.DBus"_s, u"NameOwnerChanged"_s);
    forged << u"org.freedesktop.login1"_s << u""_s << u":1.99"_s;
    stranger.tell(forged);
    stranger.prepareForSleep(true);
    logind_->prepareForSleep(false);
    for (const int night : {1, 2}) {
        logind_->prepareForSleep(true);
        ASSERT_TRUE(becomes(false));
        logind_->prepareForSleep(false);
        ASSERT_TRUE(becomes(true));
        EXPECT_EQ(logind_->locksLent(), night + 1);
    }
    const QStringList night{u"sleep"_s, u"2"_s, u"wake"_s};
    EXPECT_EQ(events_, night + night);
    EXPECT_TRUE(log_.lines().isEmpty()) << log_.lines().join(u'\n').toStdString();
}

TEST_F(LogindSleepTest, FindsBusAndLogindThatComeLateOrAgain)
{
    const auto workspace = startWorkspace();
    ASSERT_TRUE(waitFor([&] { return log_.contains(u"no system bus: sleep and wake are not noticed"_s); }));
    const auto complaints = [this] { return log_.lines().filter(u"logind does not answer Get: "_s).size(); };
    for (const char *start : {"late", "again"}) {
        startBus();
        ASSERT_TRUE(waitFor([&] { return complaints() == 1; })) << start;
        logind_ = std::make_unique<SimulatedLogind>(address_);
        ASSERT_TRUE(becomes(true)) << start;
        logind_->prepareForSleep(true);
        ASSERT_TRUE(becomes(false)) << start;
        logind_.reset();
        logind_ = std::make_unique<SimulatedLogind>(address_);
        ASSERT_TRUE(becomes(true)) << start;
        EXPECT_EQ(events_.last(), u"wake"_s) << "the new logind says that the machine is awake";
        logind_.reset();
        bus_.reset();
    }
    EXPECT_EQ(log_.count(u"no system bus: sleep and wake are not noticed"_s), 1);
    EXPECT_EQ(complaints(), 1);
}

TEST_F(LogindSleepTest, WaitsNeitherForTheBusNorForLogind)
{
    startBus();
    logind_ = std::make_unique<SimulatedLogind>(address_);
    logind_->fallSilent();
    kill(bus_->process(), SIGSTOP);
    const auto workspace = startWorkspace();
    ASSERT_TRUE(waitFor([&] { return log_.contains(u"no system bus: sleep and wake are not noticed"_s); }));
    kill(bus_->process(), SIGCONT);
    EXPECT_TRUE(waitFor([&] { return logind_->prepareForSleep(true), !events_.isEmpty(); }));
    EXPECT_EQ(events_, (QStringList{u"late"_s, u"2"_s}));

    logind_->prepareForSleep(false);
    ASSERT_TRUE(waitFor([&] { return events_.last() == u"wake"_s; }));
    logind_.reset();
    logind_ = std::make_unique<SimulatedLogind>(address_);
    EXPECT_TRUE(becomes(true)) << "the lock that the first one was asked for will not come";
}
