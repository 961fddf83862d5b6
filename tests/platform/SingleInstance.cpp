#include "platform/linux/SingleInstance.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tarvo {

namespace {

TEST(SingleInstance, IsRefusedToTheSecondButNotAfterACrash)
{
    const QString name = QStringLiteral("tarvo-test");
    const pid_t crashing = fork();
    if (crashing == 0) {
        const SingleInstance instance(name);
        _exit(instance.isOnly() ? 0 : 1); // without its destructor
    }
    int status = -1;
    waitpid(crashing, &status, 0);
    ASSERT_EQ(status, 0);
    const SingleInstance first(name);
    EXPECT_TRUE(first.isOnly());
    EXPECT_FALSE(SingleInstance(name).isOnly());
    EXPECT_TRUE(SingleInstance(QStringLiteral("another")).isOnly());
}

} // namespace

} // namespace tarvo
