#include "platform/linux/desktop/LogindWorkspace.h"

#include "platform/linux/bus/BusAddress.h"
#include "platform/linux/bus/BusConnection.h"
#include "simulator/surroundings/RecordingLog.h"
#include "simulator/surroundings/SimulatedLogind.h"
#include "tests/support/PrintQt.h"
#include "tests/support/Program.h"
#include "tests/support/VirtualDesktop.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <csignal>
#include <optional>
#include <thread>
#include <vector>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

/// A portal that opens nothing, on a connection of its own.
class Portal final : public QDBusVirtualObject {
public:
    explicit Portal(const QString &busAddress)
        : bus_(QDBusConnection::connectToBus(busAddress, u"portal"_s))
    {
        bus_.registerVirtualObject(u"/org/freedesktop/portal/desktop"_s, this);
        bus_.registerService(u"org.freedesktop.portal.Desktop"_s);
    }
    ~Portal() override { QDBusConnection::disconnectFromBus(u"portal"_s); }
    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &question, const QDBusConnection &) override
    {
        pages << question.arguments().value(1).toString();
        if (refuses)
            return bus_.send(question.createErrorReply(QDBusError::Failed, {}));
        bus_.send(question.createReply(QVariant::fromValue(QDBusObjectPath(u"/request"_s))));
        responseTo = QDBusMessage::createTargetedSignal(question.service(), u"/request"_s,
                                                        u"org.freedesktop.portal.Request"_s, u"Response"_s);
        return response < 0 || respond(response);
    }
    bool respond(int with)
    {
        QDBusMessage signal = responseTo;
        return bus_.send(signal << uint(with) << QVariantMap());
    }

    QStringList pages;
    QDBusMessage responseTo;
    bool refuses = false;
    int response = -1; ///< to every request; negative for none

private:
    QDBusConnection bus_;
};

class LogindWorkspaceTest : public testing::Test {
protected:
    void startBus()
    {
        bus_ = std::make_unique<Program>(
            std::vector<std::string>{"dbus-daemon", std::string("--config-file=") + TARVO_SESSION_BUS, "--nofork",
                                     "--print-address=1", "--address=" + address_.toStdString()});
        ASSERT_FALSE(bus_->readLine().empty());
    }
    std::unique_ptr<LogindWorkspace> startWorkspace()
    {
        auto workspace = std::make_unique<LogindWorkspace>(systemBus_, sessionBus_, log_);
        workspace->addSleepObserver([this] { events_.append(logind_->isLocked() ? u"sleep"_s : u"late"_s); },
                                    [this] { events_.append(u"wake"_s); });
        workspace->addSleepObserver([this] { events_.append(u"2"_s); }, [] {});
        return workspace;
    }
    bool becomes(bool locked)
    {
        return waitFor([&] { return logind_->isLocked() == locked; });
    }

    QTemporaryDir folder_{QDir::tempPath() + u"/a b+~\u00e9%-XXXXXX"_s};
    const QString address_ = addressOfSocket(folder_.filePath(u"run/bus"_s));
    RecordingLog log_;
    BusConnection systemBus_{address_};
    BusConnection sessionBus_{address_};
    std::unique_ptr<Program> bus_;
    std::unique_ptr<SimulatedLogind> logind_;
    QStringList events_;
};

} // namespace

TEST_F(LogindWorkspaceTest, HoldsTheMachineUntilTheHandlersHaveReturned)
{
    QDir(folder_.path()).mkdir(u"run"_s);
    startBus();
    logind_ = std::make_unique<SimulatedLogind>(address_);
    const auto workspace = startWorkspace();
    ASSERT_TRUE(becomes(true));

    SimulatedLogind stranger(address_, false);
    auto forged =
        QDBusMessage::createSignal(u"/org/freedesktop/DBus"_s, u"org.freedesktop.DBus"_s, u"NameOwnerChanged"_s);
    forged << u"org.freedesktop.login1"_s << u""_s << u":1.99"_s;
    stranger.tell(forged);
    stranger.prepareForSleep(true);
    logind_->prepareForSleep(false);
    for (const int night : {1, 2}) {
        logind_->prepareForSleep(true);
        ASSERT_TRUE(becomes(false));
        logind_->prepareForSleep(false);
        ASSERT_TRUE(becomes(true));
        EXPECT_EQ(logind_->locksLent(), night + 1);
    }
    const QStringList night{u"sleep"_s, u"2"_s, u"wake"_s};
    EXPECT_EQ(events_, night + night);
    EXPECT_TRUE(log_.lines().isEmpty()) << log_.lines().join(u'\n').toStdString();
}

TEST_F(LogindWorkspaceTest, FindsBusAndLogindThatComeLateOrAgain)
{
    const auto workspace = startWorkspace();
    ASSERT_TRUE(waitFor([&] { return log_.contains(u"no system bus: sleep and wake are not noticed"_s); }));
    QDir(folder_.path()).mkdir(u"run"_s);
    const auto complaints = [this] { return log_.lines().filter(u"logind does not answer Get: "_s).size(); };
    for (const char *start : {"late", "again"}) {
        startBus();
        ASSERT_TRUE(waitFor([&] { return complaints() == 1; })) << start;
        logind_ = std::make_unique<SimulatedLogind>(address_);
        ASSERT_TRUE(becomes(true)) << start;
        logind_->prepareForSleep(true);
        ASSERT_TRUE(becomes(false)) << start;
        logind_.reset();
        logind_ = std::make_unique<SimulatedLogind>(address_);
        ASSERT_TRUE(becomes(true)) << start;
        EXPECT_EQ(events_.last(), u"wake"_s) << "the new logind says that the machine is awake";
        logind_.reset();
        bus_.reset();
    }
    EXPECT_EQ(log_.count(u"no system bus: sleep and wake are not noticed"_s), 1);
    EXPECT_EQ(complaints(), 1);
}

TEST_F(LogindWorkspaceTest, WaitsNeitherForTheBusNorForLogind)
{
    QDir(folder_.path()).mkdir(u"run"_s);
    startBus();
    logind_ = std::make_unique<SimulatedLogind>(address_);
    logind_->fallSilent();
    kill(bus_->process(), SIGSTOP);
    const auto workspace = startWorkspace();
    ASSERT_TRUE(waitFor([&] { return log_.contains(u"no system bus: sleep and wake are not noticed"_s); }));
    kill(bus_->process(), SIGCONT);
    EXPECT_TRUE(waitFor([&] { return logind_->prepareForSleep(true), !events_.isEmpty(); }));
    EXPECT_EQ(events_, (QStringList{u"late"_s, u"2"_s}));

    logind_->prepareForSleep(false);
    ASSERT_TRUE(waitFor([&] { return events_.last() == u"wake"_s; }));
    logind_.reset();
    logind_ = std::make_unique<SimulatedLogind>(address_);
    EXPECT_TRUE(becomes(true)) << "the lock that the first one was asked for will not come";
}

TEST_F(LogindWorkspaceTest, FollowsWhetherTheSessionIsActive)
{
    QDir(folder_.path()).mkdir(u"run"_s);
    startBus();
    logind_ = std::make_unique<SimulatedLogind>(address_);
    const auto workspace = startWorkspace();
    QList<bool> told;
    workspace->addActivityObserver([&](bool active) { told.append(active); });
    ASSERT_TRUE(becomes(true));
    EXPECT_EQ(told, QList<bool>()) << "without a session it is active";

    logind_->setSession(true);
    for (const auto &[session, all] :
         std::vector<std::pair<std::optional<bool>, QList<bool>>>{{false, {false}},
                                                                  {true, {false, true}},
                                                                  {false, {false, true, false}},
                                                                  {{}, {false, true, false, true}}}) {
        logind_->setSession(session);
        EXPECT_TRUE(waitFor([&, &expected = all] { return told == expected; })) << all.size();
    }
    logind_->setSession(false);
    EXPECT_TRUE(waitFor([&] { return told.size() == 5; })) << "of a session that is new";
    logind_.reset();
    logind_ = std::make_unique<SimulatedLogind>(address_);
    EXPECT_TRUE(waitFor([&] { return told.size() == 6; })) << "a logind that knows of none";
    logind_->setSession(false);
    EXPECT_TRUE(waitFor([&] { return told.size() == 7; }));
    logind_.reset();
    EXPECT_TRUE(waitFor([&] { return told.size() == 8; })) << "no logind";
    EXPECT_TRUE(told.last());
}

TEST_F(LogindWorkspaceTest, AsksThePortalWhereThereIsNoOpener)
{
    QDir(folder_.path()).mkdir(u"run"_s);
    startBus();
    Portal portal(address_);
    LogindWorkspace workspace(systemBus_, sessionBus_, log_);
    bool found = false;
    sessionBus_.follow(
        &portal, [&] { found = true; }, [] {});
    ASSERT_TRUE(waitFor([&] { return found; }));
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", folder_.path().toUtf8());
    int failures = 0;
    const auto open = [&] {
        const auto before = portal.pages.size();
        workspace.openURL(QUrl(u"http://192.168.0.1/?a=%20"_s), [&] { ++failures; });
        EXPECT_TRUE(waitFor([&] { return portal.pages.size() > before; }));
    };
    open();
    EXPECT_EQ(portal.pages, QStringList(u"http://192.168.0.1/?a=%20"_s));
    SimulatedLogind stranger(address_, false);
    QDBusMessage forged = portal.responseTo;
    stranger.tell(forged << 2U << QVariantMap());
    for (const int response : {0, 1, 2}) { // opened, not wanted, not opened
        EXPECT_EQ(failures, 0) << response;
        portal.response = response;
        open();
    }
    EXPECT_TRUE(waitFor([&] { return failures == 1; }));
    portal.refuses = true;
    open();
    EXPECT_TRUE(waitFor([&] { return failures == 2; }));
    qputenv("PATH", path);
}

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
    const QByteArray path = qgetenv("PATH");
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
    qputenv("PATH", path);
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
