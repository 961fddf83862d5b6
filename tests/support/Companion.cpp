#include "tests/support/Companion.h"

#include "RouterObserver/ConfigManager.h"
#include "ui/CustomView.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTest>

#include <memory>

namespace tarvo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// The application that widgets need, and settings of the tests' own.
class Application : public testing::Environment {
public:
    void SetUp() override
    {
        const QDir home(qEnvironmentVariable("XDG_CONFIG_HOME"));
        home.mkpath(u"tarvo"_s);
        QFile file(home.filePath(u"tarvo/Config.plist"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(R"(<?xml version="1.0"?><plist version="1.0"><dict/></plist>)");
        file.close();
        m_application = std::make_unique<QApplication>(m_argc, m_argv);
    }

    void TearDown() override { m_application.reset(); }

private:
    char m_name[6] = "tests";
    char *m_argv[2] = {m_name, nullptr};
    int m_argc = 1;
    std::unique_ptr<QApplication> m_application;
};

const auto *const application = testing::AddGlobalTestEnvironment(new Application);

/// Makes the settings before the controller reads them.
Services configured(Services services)
{
    configure(usualSettings());
    return services;
}

} // namespace

bool eventually(const std::function<bool()> &condition)
{
    return QTest::qWaitFor(condition, 10'000);
}

void configure(const QVariantMap &settings)
{
    *ConfigManager::sharedConfigManager().getConfiguration() = settings;
}

QVariantMap usualSettings()
{
    return {{u"IsDisplayNetStatusInToolBar"_s, true},
            {u"NeedDisplayWhenDeviceRemoved"_s, true},
            {u"device_info"_s, QVariantMap{{u"vendor_ids"_s, QVariantList{u"4660"_s}}}}};
}

Companion::Companion()
    : controller(configured({.dynamicStore = store,
                             .deviceRegistry = registry,
                             .workspace = workspace,
                             .statusBar = statusBar,
                             .clock = clock,
                             .systemLog = systemLog,
                             .socketBinderFor = {},
                             .terminate = {},
                             .identityOf = [this](const QString &name) { return identities.value(name); }}))
{
    controller.awakeFromNib();
    controller.applicationDidFinishLaunching();
}

void Companion::plugIn(const Modem &which, const QString &name)
{
    identities[name] = {++lastIndex, hardwareAddress};
    registry.addModem(name, 4660, 1);
    network.addInterface(name);
    network.setIPv4(name, which.server.authority());
}

void Companion::unplug(const QString &name)
{
    network.clearIPv4(name);
    network.removeInterface(name);
}

void Companion::tick(const Modem &which, qsizetype times)
{
    ASSERT_TRUE(clock.waitForSleepers(1));
    clock.advance(1s);
    ASSERT_TRUE(which.device.waitForRequests(times, "logo_data.asp"));
}

QString Companion::shownImage() const
{
    const SimulatedStatusItem *item = statusBar.itemWithView();
    const auto *view = item ? qobject_cast<CustomView *>(item->view()) : nullptr;
    return view ? view->image() : QString();
}

} // namespace tarvo
