#include "platform/linux/SingleInstance.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

TEST(SingleInstance, IsRefusedToTheSecondButNotAfterACrash)
{
    const QString name = u"tarvo-test"_s;
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
    EXPECT_TRUE(SingleInstance(u"another"_s).isOnly());
}

} // namespace

} // namespace tarvo
