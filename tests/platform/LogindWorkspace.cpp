#include "platform/linux/LogindWorkspace.h"

#include "platform/linux/DesktopEntry.h"
#include "simulator/RecordingLog.h"
#include "tests/support/PrintQt.h"
#include "tests/support/Program.h"
#include "tests/support/VirtualDesktop.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QDesktopServices>
#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <unistd.h>

#include <array>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

const auto path = QStringLiteral("/org/freedesktop/login1");
const auto manager = QStringLiteral("org.freedesktop.login1.Manager");

/// A logind on a private bus, which lends one lock.
class MockLogind final : public QDBusVirtualObject {
public:
    explicit MockLogind(const QString &address, bool ownsName = true)
        : m_bus(QDBusConnection::connectToBus(address, u"mock-%1"_s.arg(++s_count)))
    {
        EXPECT_TRUE(m_bus.registerVirtualObject(path, this));
        EXPECT_TRUE(!ownsName || m_bus.registerService(u"org.freedesktop.login1"_s));
    }
    ~MockLogind() override
    {
        QDBusConnection::disconnectFromBus(m_bus.name());
        close(m_lock);
    }

    /// Returns when the bus has passed the signal on.
    void prepareForSleep(bool sleeping)
    {
        auto signal = QDBusMessage::createSignal(path, manager, u"PrepareForSleep"_s);
        signal << sleeping;
        m_bus.send(signal);
        m_bus.call(QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/"_s, u"org.freedesktop.DBus.Peer"_s,
                                                  u"Ping"_s));
    }
    /// @return whether somebody holds the lock
    bool isLocked() const
    {
        pollfd end{.fd = m_lock, .events = POLLIN, .revents = 0};
        return m_lock >= 0 && poll(&end, 1, 0) == 0;
    }
    int locksLent() const { return m_locksLent; }

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override
    {
        if (message.member() == u"Inhibit") {
            EXPECT_EQ(message.arguments().first(), u"sleep"_s);
            EXPECT_EQ(message.arguments().last(), u"delay"_s);
            connection.send(message.createReply(QVariant::fromValue(lendLock())));
        } else {
            EXPECT_EQ(message.arguments().value(1).toString(), u"PreparingForSleep"_s);
            connection.send(message.createReply(QVariant::fromValue(QDBusVariant(false))));
        }
        return true;
    }

private:
    QDBusUnixFileDescriptor lendLock()
    {
        std::array<int, 2> ends{};
        EXPECT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
        close(std::exchange(m_lock, ends[0]));
        ++m_locksLent;
        QDBusUnixFileDescriptor lent;
        lent.giveFileDescriptor(ends[1]);
        return lent;
    }

    static inline int s_count = 0;
    QDBusConnection m_bus;
    int m_lock = -1;
    int m_locksLent = 0;
};

class LogindWorkspaceTest : public testing::Test {
protected:
    void startBus()
    {
        bus_ = std::make_unique<Program>(std::vector<std::string>{
            "dbus-daemon", "--session", "--nofork", "--print-address=1", "--address=" + address_.toStdString()});
        ASSERT_FALSE(bus_->readLine().empty());
    }
    std::unique_ptr<LogindWorkspace> startWorkspace()
    {
        auto workspace = std::make_unique<LogindWorkspace>(address_, log_);
        workspace->addSleepObserver([this] { events_.append(logind_->isLocked() ? u"sleep"_s : u"late"_s); },
                                    [this] { events_.append(u"wake"_s); });
        workspace->addSleepObserver([this] { events_.append(u"2"_s); }, [] {});
        return workspace;
    }
    bool isLocked() const { return logind_->isLocked(); }

    QTemporaryDir folder_;
    const QString address_ = u"unix:path=%1/run/bus"_s.arg(folder_.path());
    RecordingLog log_;
    std::unique_ptr<Program> bus_;
    std::unique_ptr<MockLogind> logind_;
    QStringList events_;
};

/// Handles addresses instead of a browser.
class Browser final : public QObject {
    Q_OBJECT

public:
    Browser() { QDesktopServices::setUrlHandler(u"http"_s, this, "open"); }
    ~Browser() override { QDesktopServices::unsetUrlHandler(u"http"_s); }

    QList<QUrl> opened;

public Q_SLOTS:
    void open(const QUrl &url) { opened.append(url); }
};

} // namespace

TEST_F(LogindWorkspaceTest, HoldsTheMachineUntilTheHandlersHaveReturned)
{
    QDir(folder_.path()).mkdir(u"run"_s);
    startBus();
    logind_ = std::make_unique<MockLogind>(address_);
    const auto workspace = startWorkspace();
    ASSERT_TRUE(waitFor([this] { return isLocked(); }));

    MockLogind stranger(address_, false);
    stranger.prepareForSleep(true);
    logind_->prepareForSleep(false);
    for (const int night : {1, 2}) {
        logind_->prepareForSleep(true);
        ASSERT_TRUE(waitFor([this] { return !isLocked(); }));
        logind_->prepareForSleep(false);
        ASSERT_TRUE(waitFor([this] { return isLocked(); }));
        EXPECT_EQ(logind_->locksLent(), night + 1);
    }
    const QStringList night{u"sleep"_s, u"2"_s, u"wake"_s};
    EXPECT_EQ(events_, night + night);
    EXPECT_TRUE(log_.lines().isEmpty()) << log_.lines().join(u'\n').toStdString();
}

TEST_F(LogindWorkspaceTest, FindsBusAndLogindThatComeLateOrAgain)
{
    const auto workspace = startWorkspace();
    EXPECT_EQ(log_.lines(), QStringList{u"no system bus: sleep and wake are not noticed"_s});
    QDir(folder_.path()).mkdir(u"run"_s);
    for (const char *start : {"late", "again"}) {
        startBus();
        logind_ = std::make_unique<MockLogind>(address_);
        ASSERT_TRUE(waitFor([this] { return isLocked(); })) << start;
        logind_->prepareForSleep(true);
        ASSERT_TRUE(waitFor([this] { return !isLocked(); })) << start;
        logind_.reset();
        logind_ = std::make_unique<MockLogind>(address_);
        ASSERT_TRUE(waitFor([this] { return isLocked(); })) << start;
        EXPECT_EQ(events_.last(), u"wake"_s) << "the new logind says that the machine is awake";
        logind_.reset();
        bus_.reset();
    }
    EXPECT_EQ(log_.count(u"no system bus: sleep and wake are not noticed"_s), 1);
}

TEST_F(LogindWorkspaceTest, OpensCompleteAddressesOnly)
{
    LogindWorkspace workspace(address_, log_);
    Browser browser;
    EXPECT_TRUE(workspace.openURL(QUrl(u"http://192.168.0.1/index.html"_s)));
    for (const auto &text : {u""_s, u"http://"_s, u"http:///page"_s, u"page.html"_s, u"http://a b/"_s})
        EXPECT_FALSE(workspace.openURL(QUrl(text, QUrl::StrictMode))) << text.toStdString();
    EXPECT_EQ(browser.opened, QList{QUrl(u"http://192.168.0.1/index.html"_s)});
}

TEST_F(LogindWorkspaceTest, StartsExecutablesAndDesktopFiles)
{
    LogindWorkspace workspace(address_, log_);
    const auto write = [this](const QString &name, const QString &content) {
        QFile file(folder_.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content.toUtf8());
        return file.fileName();
    };
    const auto content = [this](const QString &name) {
        QFile file(folder_.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const auto script = write(u"a script"_s, u"#!/bin/sh\nprintf '%s|' \"$@\" end > \"$0.out\"\n"_s);
    EXPECT_FALSE(workspace.launchApplication(script)) << "not executable";
    QFile::setPermissions(script, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_TRUE(workspace.launchApplication(script));
    EXPECT_TRUE(waitFor([&] { return content(u"a script.out"_s) == "end|"; }));
    const auto entry = u"[Desktop Entry]\nExec=\"%1\" --page %u x\n"_s.arg(script);
    EXPECT_TRUE(workspace.launchApplication(write(u"a.desktop"_s, entry)));
    EXPECT_TRUE(waitFor([&] { return content(u"a script.out"_s) == "--page|x|end|"; }));
    for (const auto &path : {folder_.path(), folder_.filePath(u"none"_s), folder_.filePath(u"none.desktop"_s)})
        EXPECT_FALSE(workspace.launchApplication(path)) << path.toStdString();
}

TEST(DesktopEntry, ReadsTheCommandOfTheMainGroup)
{
    const struct {
        const char *exec;
        QStringList command;
    } cases[] = {
        {"browser", {u"browser"_s}},
        {"  browser   --new %U  ", {u"browser"_s, u"--new"_s}},
        {R"("/opt/a b/c" "say \\"hi\\" \\$5" "")", {u"/opt/a b/c"_s, u"say \"hi\" $5"_s, u""_s}},
        {R"(a\sb 100%%)", {u"a"_s, u"b"_s, u"100%"_s}},
        {"\"unclosed", {}},
        {"", {}},
    };
    for (const auto &[exec, command] : cases) {
        const auto contents =
            "[Other]\nExec=wrong\n[Desktop Entry]\nName=x\nExec = "_ba + exec + "\n[Action]\nExec=wrong\n";
        EXPECT_EQ(commandOfDesktopEntry(contents), command) << exec;
    }
}

#include "LogindWorkspace.moc"
