#include "simulator/demo/DemoWorld.h"

#include "RouterObserver/ConfigManager.h"
#include "RouterObserver/SettingFile.h"
#include "app/Services.h"
#include "platform/linux/x11/Compositing.h"
#include "simulator/demo/DemoSetup.h"

#include <QCoreApplication>
#include <QTimer>

#include <chrono>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {
const QString interfaceName = u"enx001122334455"_s;
const QString deviceName = u"Simulated Modem"_s;
constexpr int vendorID = 4661; // 0x1235, which no maker has
constexpr int productID = 1;
constexpr auto addressDelay = 600ms; // about what DHCP takes
} // namespace

QString requestText(const ReceivedRequest &request)
{
    const QString target = QString::fromUtf8(request.target);
    if (request.method != "POST")
        return target.section(u"?cmd="_s, 1).isEmpty() ? target : u"get "_s + target.section(u"?cmd="_s, 1);
    const QString body = QString::fromUtf8(request.body);
    return u"set "_s + body.left(body.lastIndexOf(u"&AD="_s)).section(u'=', 1);
}

DemoWorld::Companion::Companion(DemoWorld &world)
    : workspace([&world](const QUrl &page) { return world.openPage(page); })
    , notifications(world.m_sessionBus, world.m_systemLog)
    , controller(Services{
          .dynamicStore = world.m_store,
          .deviceRegistry = world.m_registry,
          .interfaces = world.m_interfaces,
          .workspace = workspace,
          .statusBar = world.m_statusBar,
          .clock = world.m_clock,
          .systemLog = world.m_systemLog,
          .settings = ConfigManager::sharedConfigManager(),
          .terminate = [] { QCoreApplication::quit(); },
          .notifications = &notifications,
          .openSettings = [&world] { world.m_setup->open(); },
          .isScreenComposited = isScreenComposited,
      })
{
}

DemoWorld::DemoWorld(const DemoFolder &folder, StatusBar &statusBar, BusConnection &sessionBus,
                     SimulatedWorkspace::Opener opener)
    : m_sessionBus(sessionBus)
    , m_opener(std::move(opener))
    , m_modem([this](const ReceivedRequest &request) {
        m_steps.post([this, text = requestText(request)] { Q_EMIT modemAsked(text); });
    })
    , m_server(m_modem)
    , m_problem(m_server.error())
    , m_network(m_store)
    , m_statusBar(statusBar)
    , m_systemLog([this](const QString &line) { m_steps.post([this, line] { Q_EMIT lineLogged(line); }); })
    , m_setup(std::make_unique<DemoSetup>(*this))
{
    m_modem.change([](ModemCondition &condition) { condition.defaultProfileName = u"Demo Büro"_s; });
    if (!folder.writeSettings(m_server.authority()))
        m_problem = u"The demo's settings cannot be written."_s;
    startCompanion();
}

DemoWorld::~DemoWorld() = default;

void DemoWorld::startCompanion()
{
    m_companion = std::make_unique<Companion>(*this);
    m_companion->controller.awakeFromNib();
    m_companion->controller.applicationDidFinishLaunching();
    m_companionProperties.set({{settingDigestProperty, ConfigManager::sharedConfigManager().digest()}});
}

void DemoWorld::restartCompanionSoon()
{
    m_steps.post([this] {
        m_companion.reset();
        ConfigManager::sharedConfigManager() = ConfigManager(); // nobody reads the old ones any more
        startCompanion();
        if (m_asleep)
            m_companion->workspace.sleep();
        Q_EMIT changed();
    });
}

void DemoWorld::plugIn()
{
    if (m_pluggedIn || m_asleep)
        return;
    m_pluggedIn = true;
    m_device = m_registry.addModem(interfaceName, vendorID, productID);
    m_interfaces.plug(interfaceName, {static_cast<int>(m_device)}, deviceName);
    m_network.addInterface(interfaceName);
    m_interface = {.isUp = true};
    m_usbDevices.plug({{.vendor = vendorID,
                        .product = productID,
                        .vendorName = {},
                        .productName = deviceName,
                        .driver = u"cdc_ether"_s,
                        .interfaceName = interfaceName,
                        .interfaceIndex = 1}});
    QTimer::singleShot(addressDelay, this, &DemoWorld::giveAddress);
    Q_EMIT changed();
}

void DemoWorld::giveAddress()
{
    if (!m_pluggedIn)
        return;
    m_interface = {.isUp = true, .addresses = {u"127.0.0.1"_s}, .gateway = m_server.authority()};
    m_network.setIPv4(interfaceName, m_server.authority());
}

void DemoWorld::unplug()
{
    if (!m_pluggedIn)
        return;
    m_pluggedIn = false;
    m_interface = {};
    m_network.removeInterface(interfaceName);
    m_usbDevices.plug({});
    m_registry.removeDevice(m_device);
    Q_EMIT changed();
}

void DemoWorld::sleep()
{
    if (m_asleep)
        return;
    m_asleep = true;
    m_companion->workspace.sleep();
    Q_EMIT changed();
}

void DemoWorld::wake()
{
    if (!m_asleep)
        return;
    m_asleep = false;
    m_companion->workspace.wake();
    m_store.announce(store::anyServiceIPv4Pattern); // the network is told afresh after a sleep
    Q_EMIT changed();
}

bool DemoWorld::openPage(const QUrl &page)
{
    Q_EMIT pageOpened(page);
    return m_opener ? m_opener(page) : true;
}

} // namespace tarvo
