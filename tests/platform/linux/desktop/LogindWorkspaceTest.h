#pragma once

#include "platform/linux/bus/BusAddress.h"
#include "platform/linux/bus/BusConnection.h"
#include "platform/linux/desktop/LogindWorkspace.h"
#include "simulator/surroundings/RecordingLog.h"
#include "simulator/surroundings/SimulatedLogind.h"
#include "tests/support/PrintQt.h"
#include "tests/support/VirtualDesktop.h"

#include <QDBusMessage>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>

namespace tarvo {

using Qt::StringLiterals::operator""_s;

/// What a workspace needs: one bus for the system and the session, and logind on it, both as soon as a test starts them.
class LogindWorkspaceTest : public testing::Test {
protected:
    ~LogindWorkspaceTest() override { qputenv("PATH", path_); }

    void startBus()
    {
        QDir(folder_.path()).mkdir(u"run"_s);
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

    const QByteArray path_ = qgetenv("PATH");
    QTemporaryDir folder_{QDir::tempPath() + u"/a b+~\u00e9%-XXXXXX"_s};
    const QString address_ = addressOfSocket(folder_.filePath(u"run/bus"_s));
    RecordingLog log_;
    BusConnection systemBus_{address_};
    BusConnection sessionBus_{address_};
    std::unique_ptr<Program> bus_;
    std::unique_ptr<SimulatedLogind> logind_;
    QStringList events_;
};

} // namespace tarvo
