#include "tests/support/Companion.h"

#include "ui/icon/CustomView.h"

#include <QTest>

#include <memory>

namespace tarvo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Makes the settings before the controller reads them.
const ConfigManager &usuallyConfigured()
{
    configure(usualSettings());
    return configured();
}

} // namespace

bool eventually(const std::function<bool()> &condition)
{
    return QTest::qWaitFor(condition, 10'000);
}

ConfigManager &configured()
{
    static ConfigManager settings;
    return settings;
}

void configure(const QVariantMap &settings)
{
    *configured().getConfiguration() = settings;
}

QVariantMap usualSettings()
{
    return {{u"IsDisplayNetStatusInToolBar"_s, true},
            {u"NeedDisplayWhenDeviceRemoved"_s, true},
            {u"device_info"_s, QVariantMap{{u"vendor_ids"_s, QVariantList{u"4660"_s}}}}};
}

Companion::Companion()
    : controller({.dynamicStore = store,
                  .deviceRegistry = registry,
                  .interfaces = interfaces,
                  .workspace = workspace,
                  .statusBar = statusBar,
                  .clock = clock,
                  .systemLog = systemLog,
                  .settings = usuallyConfigured(),
                  .terminate = {}})
{
    controller.awakeFromNib();
    controller.applicationDidFinishLaunching();
}

void Companion::plugIn(const Modem &which, const QString &name)
{
    interfaces.plug(name, {++lastIndex, hardwareAddress});
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
