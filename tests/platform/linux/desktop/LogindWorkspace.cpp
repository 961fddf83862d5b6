#include "platform/linux/desktop/LogindWorkspace.h"

#include "tests/platform/linux/desktop/LogindWorkspaceTest.h"

#include <QCoreApplication>

#include <sys/prctl.h>
#include <unistd.h>

#include <thread>

using namespace tarvo;

TEST_F(LogindWorkspaceTest, OpensCompleteAddressesAndTellsOnceOfEachThatDidNotOpen)
{
    LogindWorkspace workspace(systemBus_, sessionBus_, log_);
    int failures = 0;
    const auto open = [&](const QString &text) {
        workspace.openURL(QUrl(text, QUrl::StrictMode), [&] { ++failures; });
    };
    const QString page = u"http://192.168.0.1/$(id)?a=1&b='"_s;
    const QString opener = folder_.filePath(u"xdg-open"_s);
    qputenv("PATH", folder_.path().toUtf8());
    open(page);
    EXPECT_TRUE(waitFor([&] { return failures == 1; })) << "there is no opener";

    const auto install = [&](const char *script) {
        QFile file(opener);
        file.remove();
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(script);
        file.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    };
    install("#!/bin/sh\necho $$ \"$@\" > \"$0.out\"\nexit $STATUS\n");
    for (const auto &[status, told] : {std::pair("0", 1), {"3", 2}, {"4", 3}}) {
        qputenv("STATUS", status);
        QFile output(opener + u".out"_s);
        output.remove();
        open(page);
        QByteArray line;
        EXPECT_TRUE(waitFor([&] {
            line = output.open(QIODevice::ReadOnly) ? output.readAll() : QByteArray();
            output.close();
            return line.endsWith('\n') && kill(line.split(' ').first().toInt(), 0) != 0;
        })) << "it has ended";
        EXPECT_EQ(line.mid(line.indexOf(' ') + 1), page.toUtf8() + '\n');
        EXPECT_TRUE(waitFor([&failures, most = told] { return failures == most; })) << status;
    }
    for (const auto &text : {u""_s, u"http://"_s, u"http:///page"_s, u"page.html"_s, u"http://a b/"_s})
        open(text);
    EXPECT_EQ(failures, 8) << "an incomplete address is told of at once";
    install("#!/no/such/interpreter\n");
    open(page);
    EXPECT_TRUE(waitFor([&] { return failures == 9; })) << "it cannot be started";
    install("#!/bin/sh\n");
    std::thread([&] { prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0), open(page); }).join();
    EXPECT_TRUE(waitFor([&] { return failures == 10; })) << "what is started by who is locked in is locked in, too";
}

TEST_F(LogindWorkspaceTest, EndsAnOpenerThatShowsNothing)
{
    LogindWorkspace workspace(systemBus_, sessionBus_, log_);
    QFile file(folder_.filePath(u"xdg-open"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("#!/bin/sh\necho $$ >> \"$0.out\"\nLD_PRELOAD=$LIBRARY sleep 1000\nexit 1\n");
    file.close();
    file.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    qputenv("PATH", folder_.path().toUtf8() + ":/bin:/usr/bin");
    int failures = 0;
    QList<QByteArray> processes;
    for (const char *const library : {"libxcb.so.1", ""}) { // a browser is told by such a one
        qputenv("LIBRARY", library);
        workspace.openURL(QUrl(u"http://192.168.0.1/"_s), [&] { ++failures; });
        EXPECT_TRUE(waitFor([&] {
            QFile output(file.fileName() + u".out"_s);
            processes = output.open(QIODevice::ReadOnly) ? output.readAll().split('\n') : processes;
            return !processes.isEmpty() && processes.last().isEmpty() && processes.size() == (*library ? 2 : 3);
        }));
    }
    ASSERT_EQ(processes.size(), 3);
    const auto isThere = [&](int index) { return kill(-processes[index].toInt(), 0) == 0; };
    EXPECT_TRUE(waitFor([&] { return failures > 0; }) || waitFor([&] { return failures > 0; })) << "in some seconds";
    EXPECT_EQ(failures, 1);
    EXPECT_TRUE(waitFor([&] { return !isThere(1); })) << "with all that it has started";
    EXPECT_TRUE(isThere(0)) << "it stays for as long as the browser";
    kill(-processes[0].toInt(), SIGKILL);
    EXPECT_TRUE(waitFor([&] { return !isThere(0); })) << "nothing is kept of it";
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

TEST_F(LogindWorkspaceTest, StartsExecutablesAndHandsDesktopFilesToTheLauncher)
{
    LogindWorkspace workspace(systemBus_, sessionBus_, log_);
    const QString script = folder_.filePath(u"gio"_s);
    const QString entry = folder_.filePath(u"a b.desktop"_s);
    for (const auto &path : {script, entry}) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/sh\nprintf '%s|' \"$@\" $(ls /proc/$$/fd | grep 77) end > \"$0.out\"\n");
    }
    const auto hasWritten = [&](const QString &arguments) {
        QFile file(script + u".out"_s);
        return file.open(QIODevice::ReadOnly) && file.readAll() == arguments.toUtf8();
    };
    for (const auto &path : {script, folder_.path(), folder_.filePath(u"none"_s), folder_.filePath(u"none.desktop"_s)})
        EXPECT_FALSE(workspace.launchApplication(path)) << path.toStdString();
    QFile::setPermissions(script, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    dup2(STDERR_FILENO, 77); // the program shall not get it
    EXPECT_TRUE(workspace.launchApplication(script));
    EXPECT_TRUE(waitFor([&] { return hasWritten(u"end|"_s); }));
    qputenv("PATH", folder_.path().toUtf8() + ':' + qgetenv("PATH"));
    EXPECT_TRUE(workspace.launchApplication(entry));
    EXPECT_TRUE(waitFor([&] { return hasWritten(u"launch|%1|end|"_s.arg(entry)); }));
}
