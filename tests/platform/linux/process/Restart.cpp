#include "platform/linux/process/Restart.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

using namespace tarvo;
using namespace std::chrono_literals;
using std::chrono::steady_clock;

TEST(Restart, IsDoneAtMostOnceInTenSeconds)
{
    for (const auto &[before, atLeast, atMost] : {std::tuple(9700ms, 200ms, 2000ms), {20000ms, 0ms, 200ms}}) {
        const auto begin = steady_clock::now();
        const auto last = std::chrono::duration_cast<std::chrono::milliseconds>((begin - before).time_since_epoch());
        qputenv("TARVO_RESTARTED", QByteArray::number(qint64(last.count())));
        Restart restart;
        EXPECT_FALSE(qEnvironmentVariableIsSet("TARVO_RESTARTED")) << "others that are started are not told";
        restart.requestLater();
        restart.request();
        restart.request();
        EXPECT_EQ(QCoreApplication::exec(), Restart::exitStatus);
        const auto took = steady_clock::now() - begin;
        EXPECT_TRUE(took >= atLeast && took < atMost) << before.count();
    }
}
