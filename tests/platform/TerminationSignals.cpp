#include "platform/linux/TerminationSignals.h"

#include "tests/support/VirtualDesktop.h"

#include <QThread>

#include <gtest/gtest.h>

using namespace tarvo;

TEST(TerminationSignals, CallTheHandlerOnItsThread)
{
    int calls = 0;
    QThread *thread = nullptr;
    {
        const TerminationSignals signals([&] {
            ++calls;
            thread = QThread::currentThread();
        });
        for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
            const int before = calls;
            raise(signal);
            EXPECT_EQ(calls, before) << "not within the signal handler";
            EXPECT_TRUE(waitFor([&] { return calls == before + 1; })) << signal;
        }
    }
    EXPECT_EQ(thread, QThread::currentThread());
    struct sigaction restored { };
    sigaction(SIGTERM, nullptr, &restored);
    EXPECT_EQ(restored.sa_handler, SIG_DFL);
}

TEST(TerminationSignals, LeaveIgnoredSignalsIgnored)
{
    std::signal(SIGHUP, SIG_IGN);
    int calls = 0;
    const TerminationSignals signals([&] { ++calls; });
    raise(SIGHUP);
    raise(SIGTERM);
    EXPECT_TRUE(waitFor([&] { return calls == 1; }));
    std::signal(SIGHUP, SIG_DFL);
}
