#include "platform/linux/log/QtMessages.h"

#include "platform/SystemLog.h"
#include "simulator/surroundings/RecordingLog.h"

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

TEST(QtMessages, GoToTheLogAndTellThatThereIsNoDisplay)
{
    const QtMessageHandler before = qInstallMessageHandler(nullptr);
    RecordingLog log;
    {
        const QtMessages messages(log);
        qWarning("50 %% of %s", "this");
        EXPECT_TRUE(log.contains(u"50 % of this"_s));
        EXPECT_EXIT(qFatal("no display"), testing::ExitedWithCode(EXIT_FAILURE), "");
    }
    qWarning("to standard error");
    EXPECT_EQ(log.lines().size(), 1);
    EXPECT_EQ(qInstallMessageHandler(nullptr), before);
}
