#include "platform/linux/process/TerminationSignals.h"

#include "tests/support/VirtualDesktop.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>

using namespace tarvo;

TEST(TerminationSignals, CallTheHandlerFromTheEventLoop)
{
    std::signal(SIGHUP, SIG_IGN);
    std::signal(SIGINT, SIG_DFL); // who starts the tests in the background may have it ignored
    int calls = 0;
    {
        const TerminationSignals signals([&] { ++calls; });
        for (const int expected : {1, 2}) {
            raise(SIGHUP); // stays ignored
            raise(expected == 1 ? SIGTERM : SIGINT);
            EXPECT_EQ(calls, expected - 1) << "not within the signal handler";
            EXPECT_TRUE(waitFor([&] { return calls == expected; }));
        }
    }
    raise(SIGTERM); // does not end what is ending
    alarm(0);
    std::signal(SIGHUP, SIG_DFL);
}
