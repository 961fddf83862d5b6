#pragma once

#include "RouterObserver/ConfigManager.h"
#include "RouterObserver/RouterObserver.h"
#include "app/MainController.h"
#include "modemapi/ModemClient.h"
#include "platform/StateStore.h"
#include "simulator/modem/ModemServer.h"
#include "simulator/modem/SimulatedModem.h"
#include "simulator/surroundings/ManualClock.h"
#include "simulator/surroundings/RecordingLog.h"
#include "simulator/surroundings/SimulatedDeviceRegistry.h"
#include "simulator/surroundings/SimulatedInterfaceFacts.h"
#include "simulator/surroundings/SimulatedNetwork.h"
#include "simulator/surroundings/SimulatedStatusBar.h"
#include "simulator/surroundings/SimulatedWorkspace.h"
#include "tests/support/PrintQt.h"

#include <QVariantMap>

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <utility>

namespace tarvo {

using Qt::StringLiterals::operator""_s;

/// Lets the event loop run until @p condition holds. @return false when it did not within ten seconds
bool eventually(const std::function<bool()> &condition);

/// A simulated modem and its server.
struct Modem {
    SimulatedModem device;
    ModemServer server{device};
};

/// The settings of all parts that a test makes.
ConfigManager &configured();
/// Replaces all of them with @p settings.
void configure(const QVariantMap &settings);

/// The settings that the tests start from: modems of the vendor 4660 are supported, the icon is shown and stays.
QVariantMap usualSettings();

/// A modem that is plugged in, and a client that asks it; nobody else is there.
struct AttachedModem : testing::Test {
    AttachedModem() { configure(usualSettings()); }

    Modem modem;
    RecordingLog systemLog;
    ThreadGroup threads{systemLog};
    std::optional<Attachment> attachment{std::in_place, ModemLocation{modem.server.authority(), {}, {}}, threads};
    ModemClient client{attachment->work(), configured(), systemLog};
    SharedSnapshot snapshot;
};

/// The real controller among simulated surroundings: manual time, a network of entries, modems on loopback.
struct Companion : testing::Test {
    Companion();

    /// Plugs @p which in as the interface @p name; its report has been made when this returns.
    void plugIn(const Modem &which, const QString &name = u"en5"_s);
    void unplug(const QString &name = u"en5"_s);

    /// Lets one second pass, once the worker waits for it, and waits until @p which has been asked for its status page
    /// @p times in all.
    void tick(const Modem &which, qsizetype times);

    /// @return the name of the image that the icon shows; empty without an icon
    QString shownImage() const;

    Modem modem;
    StateStore store;
    SimulatedNetwork network{store};
    SimulatedDeviceRegistry registry;
    SimulatedInterfaceFacts interfaces;
    SimulatedWorkspace workspace;
    SimulatedStatusBar statusBar;
    ManualClock clock;
    RecordingLog systemLog;
    QString hardwareAddress; ///< of the modems that are plugged in next; empty when they have none
    int lastIndex = 0;
    MainController controller;
};

} // namespace tarvo
