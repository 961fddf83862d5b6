#include "platform/linux/log/SyslogLog.h"

#include "tests/support/VirtualDesktop.h"

#include <QTemporaryDir>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <string>
#include <thread>

using namespace tarvo;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using testing::MatchesRegex;

/// @return all that waits to be read
std::string drain(int descriptor)
{
    std::string all;
    std::array<char, 2000> bytes;
    for (ssize_t size = 0; (size = read(descriptor, bytes.data(), bytes.size())) > 0;)
        all.append(bytes.data(), size);
    return all;
}

int listenAt(const QByteArray &path)
{
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    path.toStdString().copy(address.sun_path, sizeof address.sun_path);
    unlink(path.constData());
    const int end = socket(AF_UNIX, SOCK_DGRAM | SOCK_NONBLOCK, 0);
    EXPECT_EQ(bind(end, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    return end;
}

} // namespace

TEST(SyslogLog, TellsWhatIsPendingAfterSomeSilence)
{
    const QTemporaryDir folder;
    const QByteArray path = folder.filePath(u"log"_s).toUtf8();
    const int syslog = listenAt(path);
    SyslogLog log(path, 300ms);
    std::string all;
    const auto said = [&] { return all += drain(syslog); };
    for (const char *const repeated : {"1 time", "2 times"}) {
        std::thread([&] { log.write(u"poll"_s), log.write(u"poll"_s); }).join();
        EXPECT_FALSE(said().ends_with(repeated));
        EXPECT_TRUE(waitFor([&] { return said().ends_with(std::string("repeated ") + repeated); }));
    }
    close(syslog);
}

TEST(SyslogLog, NeitherWaitsNorDiesWhereNobodyTakesItsLines)
{
    const QTemporaryDir folder;
    const QByteArray path = folder.filePath(u"log"_s).toUtf8();
    int syslog = listenAt(path);
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe(ends.data()), 0);
    fcntl(ends[0], F_SETFL, O_NONBLOCK);
    const int before = dup(STDERR_FILENO);
    dup2(ends[1], STDERR_FILENO);
    SyslogLog log(path);
    for (int line = 0; line < 5000; ++line)
        log.write(QString::number(line).repeated(10));
    drain(ends[0]);
    close(syslog);
    syslog = listenAt(path); // it was started anew
    log.write(u"taken"_s);
    EXPECT_THAT(drain(ends[0]), MatchesRegex("[0-9]+ lines were lost\ntaken\n"));
    EXPECT_THAT(drain(syslog), MatchesRegex("<14>.* lines were lost<14>... .. ..:..:.. tarvo.[0-9]+.: taken"));
    EXPECT_EQ(fcntl(ends[1], F_GETFL) & O_NONBLOCK, 0) << "others write there, too";
    close(ends[0]);
    log.write(u"nobody reads"_s);
    dup2(before, STDERR_FILENO);
}

TEST(SyslogLog, TellsHowManyLinesWereLostBeforeSyslogCame)
{
    SyslogLog(QByteArray(200, 'x')).write(u"for a path that no socket can have"_s);
    const QTemporaryDir folder;
    const QByteArray path = folder.filePath(u"log"_s).toUtf8();
    SyslogLog log(path);
    for (const auto &[lost, told] : {std::pair(1, "1 line was lost"), {2, "2 lines were lost"}}) {
        for (int line = 0; line < lost; ++line)
            log.write(QString::number(line));
        const int syslog = listenAt(path);
        log.write(u"taken"_s);
        log.write(u"as well"_s);
        EXPECT_THAT(drain(syslog), MatchesRegex(std::string("<14>.*: ") + told + "<14>.*: taken<14>.*: as well"));
        close(syslog);
    }
}

TEST(SyslogLog, WritesToStandardErrorUnlessThatIsTheJournal)
{
    const QTemporaryDir folder;
    const QByteArray path = folder.filePath(u"log"_s).toUtf8();
    const int syslog = listenAt(path);
    std::array<int, 2> ends{};
    ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK, 0, ends.data()), 0);
    struct stat status { };
    fstat(ends[1], &status);
    const std::string journal = std::to_string(status.st_dev) + ':' + std::to_string(status.st_ino);
    const int before = dup(STDERR_FILENO);
    dup2(ends[1], STDERR_FILENO);
    for (const auto &[stream, expected] :
         {std::pair(journal, ""), {journal + "0", "line\n"}, {journal + ":", "line\n"}}) {
        qputenv("JOURNAL_STREAM", QByteArray::fromStdString(stream));
        SyslogLog(path).write(u"line"_s);
        EXPECT_EQ(drain(ends[0]), expected) << stream;
        EXPECT_THAT(drain(syslog), testing::EndsWith(": line"));
    }
    qunsetenv("JOURNAL_STREAM");
    dup2(before, STDERR_FILENO);
    close(syslog);
}
