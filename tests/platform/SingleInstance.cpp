#include "platform/linux/SingleInstance.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tarvo {

namespace {

TEST(SingleInstance, IsRefusedToTheSecond)
{
    const QString name = QStringLiteral("second");
    {
        const SingleInstance first(name);
        EXPECT_TRUE(first.isOnly());
        EXPECT_FALSE(SingleInstance(name).isOnly());
        EXPECT_TRUE(SingleInstance(QStringLiteral("another")).isOnly());
    }
    EXPECT_TRUE(SingleInstance(name).isOnly());
}

TEST(SingleInstance, IsNotHeldByOneThatCrashed)
{
    const QString name = QStringLiteral("crashed");
    const pid_t crashing = fork();
    if (crashing == 0) {
        const SingleInstance instance(name);
        _exit(instance.isOnly() ? 0 : 1); // without its destructor
    }
    int status = -1;
    waitpid(crashing, &status, 0);
    ASSERT_EQ(status, 0);
    EXPECT_TRUE(SingleInstance(name).isOnly());
}

} // namespace

} // namespace tarvo
