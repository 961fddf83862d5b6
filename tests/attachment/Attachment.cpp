#include "attachment/Attachment.h"

#include "attachment/ThreadGroup.h"
#include "platform/StepQueue.h"
#include "simulator/surroundings/RecordingLog.h"
#include "tests/support/PrintQt.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

TEST(Attachment, DroppingItEndsAllItsWorkAndNoneOfAnother)
{
    RecordingLog log;
    ThreadGroup threads(log);
    StepQueue queue;
    QStringList done;
    Attachment other({u"other"_s, {}, {}}, threads);
    std::optional<Attachment> attachment(std::in_place, ModemLocation{u"one"_s, {}, {}}, threads);
    const Work work = attachment->work();
    EXPECT_TRUE(work == attachment->work() && work != other.work());
    for (const Work &each : {work, other.work()})
        each.post(queue, [&done, each] { done += each.router(); });
    attachment.reset();
    QCoreApplication::processEvents();
    EXPECT_EQ(done, QStringList(u"other"_s)) << "steps that wait are dropped";
    EXPECT_TRUE(work.isOver() && !other.work().isOver());
    EXPECT_FALSE(work.whileAttached([] { FAIL(); }) || work.start([](const Work &) { FAIL(); }));
}
