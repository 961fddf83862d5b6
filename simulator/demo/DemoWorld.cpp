#include "simulator/demo/DemoWorld.h"

#include "app/Services.h"
#include "platform/linux/Compositing.h"

#include <QCoreApplication>
#include <QTimer>

#include <chrono>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {
const QString interfaceName = u"enx001122334455"_s;
constexpr int vendorID = 4661;
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

DemoWorld::DemoWorld(const DemoFolder &folder, StatusBar &statusBar, BusConnection &sessionBus,
                     SimulatedWorkspace::Opener opener)
    : m_opener(std::move(opener))
    , m_modem([this](const ReceivedRequest &request) {
        m_steps.post([this, text = requestText(request)] { Q_EMIT modemAsked(text); });
    })
    , m_server(m_modem)
    , m_problem(m_server.error())
    , m_network(m_store)
    , m_workspace([this](const QUrl &page) { return openPage(page); })
    , m_statusBar(statusBar)
    , m_systemLog([this](const QString &line) { m_steps.post([this, line] { Q_EMIT lineLogged(line); }); })
    , m_notifications(sessionBus, m_systemLog)
{
    m_modem.change([](ModemCondition &condition) { condition.defaultProfileName = u"Demo Büro"_s; });
    if (!folder.writeSettings(m_server.authority()))
        m_problem = u"The demo's settings cannot be written."_s;
    m_controller = std::make_unique<MainController>(Services{
        .dynamicStore = m_store,
        .deviceRegistry = m_registry,
        .workspace = m_workspace,
        .statusBar = m_statusBar,
        .clock = m_clock,
        .systemLog = m_systemLog,
        .socketBinderFor = {},
        .terminate = [] { QCoreApplication::quit(); },
        .notifications = &m_notifications,
        .isScreenComposited = isScreenComposited,
    });
    m_controller->awakeFromNib();
    m_controller->applicationDidFinishLaunching();
}

void DemoWorld::plugIn()
{
    if (m_pluggedIn || m_asleep)
        return;
    m_pluggedIn = true;
    m_device = m_registry.addModem(interfaceName, vendorID, productID);
    m_network.addInterface(interfaceName);
    QTimer::singleShot(addressDelay, this, &DemoWorld::giveAddress);
    Q_EMIT changed();
}

void DemoWorld::giveAddress()
{
    if (m_pluggedIn)
        m_network.setIPv4(interfaceName, m_server.authority());
}

void DemoWorld::unplug()
{
    if (!m_pluggedIn)
        return;
    m_pluggedIn = false;
    m_network.removeInterface(interfaceName);
    m_registry.removeDevice(m_device);
    Q_EMIT changed();
}

void DemoWorld::sleep()
{
    if (m_asleep)
        return;
    m_asleep = true;
    m_workspace.sleep();
    Q_EMIT changed();
}

void DemoWorld::wake()
{
    if (!m_asleep)
        return;
    m_asleep = false;
    m_workspace.wake();
    m_store.announce(store::anyServiceIPv4Pattern); // the network is told afresh after a sleep
    Q_EMIT changed();
}

bool DemoWorld::openPage(const QUrl &page)
{
    Q_EMIT pageOpened(page);
    return m_opener ? m_opener(page) : true;
}

} // namespace tarvo
