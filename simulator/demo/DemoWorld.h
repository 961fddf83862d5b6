#pragma once

#include "app/MainController.h"
#include "attachment/Guarded.h"
#include "platform/InterfaceState.h"
#include "platform/StateStore.h"
#include "platform/StepQueue.h"
#include "platform/linux/desktop/DesktopNotifications.h"
#include "platform/linux/process/SteadyClock.h"
#include "simulator/demo/DemoFolder.h"
#include "simulator/demo/ObservedStatusBar.h"
#include "simulator/modem/ModemServer.h"
#include "simulator/modem/SimulatedModem.h"
#include "simulator/surroundings/RecordingLog.h"
#include "simulator/surroundings/SimulatedDeviceRegistry.h"
#include "simulator/surroundings/SimulatedInterfaceFacts.h"
#include "simulator/surroundings/SimulatedNetwork.h"
#include "simulator/surroundings/SimulatedUsbNetworkDevices.h"
#include "simulator/surroundings/SimulatedWorkspace.h"

#include <QObject>
#include <QString>
#include <QUrl>

#include <memory>

namespace tarvo {

class DemoSetup;

/// The companion and all that surrounds it: a computer that the modem is plugged into, and the modem itself.
class DemoWorld : public QObject {
    Q_OBJECT

public:
    /// @param folder, statusBar, sessionBus  outlive this object
    /// @param opener  shows the user a web page; empty shows none
    DemoWorld(const DemoFolder &folder, StatusBar &statusBar, BusConnection &sessionBus,
              SimulatedWorkspace::Opener opener);
    ~DemoWorld() override;
    DemoWorld(const DemoWorld &) = delete;
    DemoWorld &operator=(const DemoWorld &) = delete;

    /// Plugs the modem in: its interface comes at once, its address a moment later.
    void plugIn();
    /// Takes the modem, its interface and its address away; nothing when it is not there.
    void unplug();
    // The computer sleeps, or wakes; nothing when it does that already.
    void sleep();
    void wake();
    /// Ends the companion and starts it with the settings as they are by then; on any thread, which is not waited for.
    void restartCompanionSoon();

    // Both as last told, not as the companion has noticed.
    bool isPluggedIn() const { return m_pluggedIn; }
    bool isAsleep() const { return m_asleep; }

    /// @return why the demo cannot work; nil when it can
    const std::optional<QString> &problem() const { return m_problem; }

    // The parts, which live as long as this object.
    SimulatedModem &modem() { return m_modem; }
    ModemServer &server() { return m_server; }
    const RecordingLog &systemLog() const { return m_systemLog; }
    const ObservedStatusBar &statusBar() const { return m_statusBar; }
    SimulatedUsbNetworkDevices &usbDevices() { return m_usbDevices; }
    DynamicStore &dynamicStore() { return m_store; }

    /// @return the interface of the modem
    const InterfaceState &interfaceState() const { return m_interface; }

    // Parts of the companion, which live until it starts again.
    MainController &controller() { return m_companion->controller; }
    const SimulatedWorkspace &workspace() const { return m_companion->workspace; }

    /// @return which settings the companion read; on any thread
    QVariantMap companionProperties() const { return m_companionProperties.get(); }

Q_SIGNALS:
    // On the main thread, for each of its kind.
    void modemAsked(const QString &request);
    void lineLogged(const QString &line);
    void pageOpened(const QUrl &page);
    /// The modem came or went, or the computer slept or woke.
    void changed();

private:
    /// The companion, and what only one companion can use.
    struct Companion {
        explicit Companion(DemoWorld &world);

        SimulatedWorkspace workspace;
        DesktopNotifications notifications;
        MainController controller;
    };

    void startCompanion();
    void giveAddress();
    bool openPage(const QUrl &page);

    StepQueue m_steps; ///< to the main thread
    BusConnection &m_sessionBus;
    SimulatedWorkspace::Opener m_opener;
    SimulatedModem m_modem;
    ModemServer m_server;
    std::optional<QString> m_problem;

    StateStore m_store;
    SimulatedNetwork m_network;
    SimulatedDeviceRegistry m_registry;
    SimulatedInterfaceFacts m_interfaces;
    SimulatedUsbNetworkDevices m_usbDevices;
    ObservedStatusBar m_statusBar;
    SteadyClock m_clock;
    RecordingLog m_systemLog;
    IOServiceHandle m_device = 0;
    InterfaceState m_interface;
    bool m_pluggedIn = false;
    bool m_asleep = false;

    Guarded<QVariantMap> m_companionProperties;

    // Last: they use all of the above.
    std::unique_ptr<DemoSetup> m_setup;
    std::unique_ptr<Companion> m_companion;
};

/// @return @p request as one short line: what was read, or what was set
QString requestText(const ReceivedRequest &request);

} // namespace tarvo
