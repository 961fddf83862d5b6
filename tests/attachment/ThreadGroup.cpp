#include "attachment/ThreadGroup.h"

#include "attachment/Attachment.h"
#include "simulator/surroundings/RecordingLog.h"

#include <gtest/gtest.h>

#include <future>
#include <stdexcept>

using namespace tarvo;
using namespace Qt::StringLiterals;

TEST(ThreadGroup, AThreadThatThrowsCostsALineOnly)
{
    RecordingLog log;
    ThreadGroup threads(log);
    Attachment attachment({}, threads);
    EXPECT_TRUE(attachment.work().start([](const Work &) { throw std::runtime_error("why"); }));
    EXPECT_TRUE(log.waitFor(u"a thread gave up: why"_s));
    std::promise<void> ran;
    EXPECT_TRUE(attachment.work().start([&](const Work &) { ran.set_value(); }));
    ran.get_future().wait();
}
