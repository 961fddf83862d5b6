#include "platform/linux/process/SingleInstance.h"

#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <functional>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

class SingleInstanceTest : public testing::Test {
protected:
    void SetUp() override { qputenv("XDG_RUNTIME_DIR", m_folder.path().toUtf8()); }
    void TearDown() override { qputenv("XDG_RUNTIME_DIR", m_runtimeFolder); }

    const QTemporaryDir m_folder;
    const QByteArray m_path = m_folder.filePath(u"tarvo.lock"_s).toUtf8();
    const QByteArray m_runtimeFolder = qgetenv("XDG_RUNTIME_DIR");
};

} // namespace

TEST_F(SingleInstanceTest, IsRefusedToTheSecondButNotAfterACrash)
{
    const pid_t crashing = fork();
    if (crashing == 0) {
        const SingleInstance instance(u"tarvo"_s);
        _exit(instance.isOnly() ? 0 : 1); // without its destructor
    }
    int status = -1;
    waitpid(crashing, &status, 0);
    ASSERT_EQ(status, 0);
    {
        const SingleInstance first(u"tarvo"_s);
        EXPECT_TRUE(first.isOnly());
        EXPECT_FALSE(SingleInstance(u"tarvo"_s).isOnly());
        EXPECT_TRUE(SingleInstance(u"another"_s).isOnly());
        EXPECT_EQ(std::system(("! ls -l /proc/self/fd | grep -F '" + m_path + "'").constData()), 0)
            << "a child holds the lock";
    }
    EXPECT_TRUE(SingleInstance(u"tarvo"_s).isOnly());
}

TEST_F(SingleInstanceTest, TellsWhatStandsWhereItsFileBelongsAndStarts)
{
    const char *const path = m_path.constData();
    const std::pair<std::function<void()>, bool> cases[]{
        {[&] { close(open(path, O_CREAT | O_WRONLY, 0600)); }, false}, // what a crash at any moment leaves
        {[&] { mkdir(path, 0700); }, true},
        {[&] { mkfifo(path, 0600); }, true},
        {[&] { ASSERT_EQ(symlink("/dev/null", path), 0); }, true},
    };
    for (const auto &[prepare, isTold] : cases) {
        prepare();
        const SingleInstance instance(u"tarvo"_s);
        EXPECT_TRUE(instance.isOnly());
        EXPECT_EQ(instance.problem().has_value(), isTold) << instance.problem().value_or(u"nothing"_s).toStdString();
        EXPECT_EQ(std::remove(path), 0);
    }
    const SingleInstance withoutFolder(u"missing/tarvo"_s);
    EXPECT_TRUE(withoutFolder.isOnly() && withoutFolder.problem());
}
