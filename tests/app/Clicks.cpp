#include "RouterObserver/ConfigManager.h"
#include "app/MainController.h"
#include "platform/StateStore.h"
#include "platform/linux/bus/BusAddress.h"
#include "platform/linux/bus/BusConnection.h"
#include "platform/linux/tray/DesktopStatusBar.h"
#include "simulator/surroundings/ManualClock.h"
#include "simulator/surroundings/RecordingLog.h"
#include "simulator/surroundings/SimulatedDeviceRegistry.h"
#include "simulator/surroundings/SimulatedInterfaceFacts.h"
#include "simulator/surroundings/SimulatedWorkspace.h"
#include "tests/support/DesktopEnvironment.h"
#include "ui/icon/CustomView.h"
#include "ui/windows/AlertPanelController.h"
#include "ui/windows/StatusWindow.h"

#include <QClipboard>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

const auto *const desktop = testing::AddGlobalTestEnvironment(new DesktopEnvironment);

/// @return the first widget of a kind that is on the screen, once there is one
template <typename Kind>
Kind *shown()
{
    Kind *found = nullptr;
    EXPECT_TRUE(waitFor([&] {
        for (QWidget *const widget : QApplication::allWidgets()) {
            if (auto *const candidate = qobject_cast<Kind *>(widget); candidate && candidate->isVisible())
                found = candidate;
        }
        return found != nullptr;
    }));
    return found;
}

} // namespace

TEST(Clicks, ReachTheWindowsFromTheIconInATray)
{
    const ConfigManager settings(QVariantMap{{u"IsDisplayNetStatusInToolBar"_s, true}});
    const Program tray({"trayer", "--edge", "bottom", "--align", "right", "--widthtype", "request"});
    StateStore store;
    SimulatedDeviceRegistry registry;
    SimulatedInterfaceFacts interfaces;
    SimulatedWorkspace workspace;
    BusConnection bus(sessionBusAddress());
    DesktopStatusBar bar(bus);
    ManualClock clock;
    RecordingLog log;
    bool quits = false;
    MainController controller(
        {store, registry, interfaces, workspace, bar, clock, log, settings, [&] { quits = true; }});
    controller.applicationDidFinishLaunching();

    const auto *const icon = shown<CustomView>();
    clickOn(*icon);
    auto *const window = shown<StatusWindow>();
    const auto buttons = window->findChildren<QPushButton *>();
    clickOn(*buttons.first());
    EXPECT_TRUE(waitFor([] { return QApplication::clipboard()->text().startsWith(u"Tarvo"); }));
    clickOn(*buttons.last());
    EXPECT_TRUE(waitFor([&] { return window->isHidden(); }));

    const auto choose = [&](const QString &entry) {
        clickOn(*icon, "3");
        const auto *const menu = shown<QMenu>();
        for (QAction *const action : menu->actions()) {
            if (action->text() == entry)
                clickOn(menu->actionGeometry(action).translated(menu->mapToGlobal(QPoint())));
        }
        EXPECT_TRUE(waitFor([&] { return menu->isHidden(); }));
    };
    choose(u"MenuAbout"_s);
    shown<QMessageBox>()->hide();
    choose(u"MenuQuit"_s);
    EXPECT_TRUE(waitFor([&] { return quits; }));

    const auto panel = AlertPanelController::shareAlertPanel();
    panel->runAlertPanelTitle(u"t"_s, u"m"_s, u"OK"_s, std::nullopt);
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&panel->wndAlert()));
    clickOn(*panel->wndAlert().findChild<QPushButton *>(u"btnOK_"_s));
    EXPECT_TRUE(waitFor([&] { return panel->wndAlert().isHidden(); }));
}
