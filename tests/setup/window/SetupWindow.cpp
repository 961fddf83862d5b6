#include "setup/window/SetupWindow.h"

#include "platform/StateStore.h"
#include "setup/settings/SettingKeys.h"
#include "simulator/modem/ModemServer.h"
#include "simulator/modem/SimulatedModem.h"
#include "simulator/surroundings/SimulatedUsbNetworkDevices.h"
#include "tests/support/DesktopEnvironment.h"
#include "tests/support/PrintQt.h"

#include <QCheckBox>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

#include <algorithm>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

const auto *const desktop = testing::AddGlobalTestEnvironment(new DesktopEnvironment);

/// The window among simulated surroundings, with a real modem's server behind the first device.
struct SetupWindowTest : testing::Test {
    SetupWindowTest()
    {
        QFile::remove(userSettingsPath());
        devices.plug({{.vendor = 0x19d2, .product = 7, .interfaceName = u"u1"_s, .interfaceIndex = 1},
                      {.vendor = 0x0bda, .product = 8, .interfaceName = u"u2"_s, .interfaceIndex = 2}});
    }

    void open()
    {
        window = std::make_unique<SetupWindow>(services, survey);
        window->show();
        window->hide();
        window->show(); // the devices are looked at again, before any gateway has answered
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
        tabs = window->findChild<QTabWidget *>();
        list = tabs->widget(0)->findChild<QListWidget *>();
    }

    void write(const QByteArray &settings) const
    {
        QDir().mkpath(QFileInfo(userSettingsPath()).path());
        QFile file(userSettingsPath());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(settings) == settings.size());
    }

    /// @return the accessible text of a row, which is all that it shows
    QString row(int index, int tab = 0) const
    {
        const auto *const item = tabs->widget(tab)->findChild<QListWidget *>()->item(index);
        return item ? item->data(Qt::AccessibleTextRole).toString() : QString();
    }

    QPushButton *button(const QString &text) const
    {
        for (auto *const candidate : window->findChildren<QPushButton *>()) {
            if (candidate->text() == text)
                return candidate;
        }
        return nullptr;
    }

    bool tells(const QString &text) const
    {
        const auto labels = window->findChildren<QLabel *>();
        return std::ranges::any_of(labels, [&](const QLabel *label) { return label->text().contains(text); });
    }

    QStringList vendors() const { return identifiersAt(settingsInForce().values, vendorsPath); }

    SimulatedModem modem;
    ModemServer server{modem};
    StateStore store;
    SimulatedUsbNetworkDevices devices;
    std::atomic<int> restarts = 0;
    SetupServices services{
        .usbDevices = devices,
        .dynamicStore = store,
        .interfaceState =
            [this](int index) {
                return InterfaceState{true, {u"10.0.0.2"_s}, index == 1 ? server.authority() : QString()};
            },
        .socketBinderFor = [](const UsbNetworkDevice &) { return SocketBinder(); },
        .startCompanion = [] { return true; },
        .readDesktop =
            [] {
                return DesktopFacts{true, true, true, true, {{u"SettingsDigest"_s, settingsInForce().digest}}};
            },
        .restartCompanion =
            [this] {
                ++restarts;
                return ActionResult::Done;
            },
        .readProfiles = [] { return ProfileFacts(); },
    };
    Survey survey{services};
    std::unique_ptr<SetupWindow> window;
    QTabWidget *tabs = nullptr;
    QListWidget *list = nullptr;
};

} // namespace

TEST_F(SetupWindowTest, LeadsFromThePluggedModemToOneInUseByTheKeyboard)
{
    open();
    EXPECT_TRUE(waitFor([&] { return row(0).contains(u"DeviceIsModem"_s); })) << row(0).toStdString();
    EXPECT_TRUE(row(0).contains(u"19d2:0007"_s) && row(1).contains(u"DeviceNoGateway"_s));
    EXPECT_EQ(window->focusWidget(), list);
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(vendors(), QStringList{u"6610"_s});
    EXPECT_TRUE(tells(u"Saved"_s) && !tells(u"OldFileKept"_s));
    EXPECT_TRUE(waitFor([&] { return restarts == 1; }));
    EXPECT_TRUE(row(0).contains(u"DeviceSupported"_s));
    EXPECT_FALSE(button(u"UseModem"_s)->isEnabled());
    QTest::keyClick(list, Qt::Key_Down);
    QTest::mouseClick(button(u"LeaveAlone"_s), Qt::LeftButton);
    EXPECT_TRUE(row(1).contains(u"DeviceExcluded"_s));
    EXPECT_EQ(list->currentRow(), 1);

    EXPECT_TRUE(list->isVisible());
    devices.plug({});
    EXPECT_TRUE(waitFor([&] { return list->count() == 0; }));
    EXPECT_FALSE(list->isVisible()) << "a sentence stands in its place";
    EXPECT_FALSE(button(u"UseModem"_s)->isEnabled() || button(u"LeaveAlone"_s)->isEnabled());
    const auto requests = modem.requests("logo_data.asp");
    ASSERT_EQ(requests.size(), 1) << "a gateway is asked once";
    EXPECT_TRUE(requests[0].head.contains("Referer")) << "as the shipped settings say, where there were none";
}

TEST_F(SetupWindowTest, ShowsTheChain)
{
    changeSettings(useDevice({0x19d2, 7}), Damaged::Refuse);
    open();
    QTest::keyClick(list, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(tabs->currentIndex(), 1);
    EXPECT_FALSE(button(u"CheckAgain"_s)->isEnabled() || button(u"CopyReport"_s)->isEnabled()) << "not yet";
    EXPECT_TRUE(waitFor([&] { return row(15, 1) == u"MarkOk: Check_companion. "_s; })) << row(15, 1).toStdString();
    for (int i = 0; i < 15; ++i)
        EXPECT_TRUE(row(i, 1).startsWith(i == 11 ? u"MarkSkipped"_s : u"MarkOk"_s)) << row(i, 1).toStdString();
    QTest::mouseClick(button(u"CopyReport"_s), Qt::LeftButton);
    EXPECT_TRUE(QGuiApplication::clipboard()->text().endsWith(u"\nCheck_companion: MarkOk\n"));
    QTest::mouseClick(button(u"CheckAgain"_s), Qt::LeftButton);
    EXPECT_FALSE(button(u"CheckAgain"_s)->isEnabled());
    EXPECT_TRUE(waitFor([&] { return button(u"CheckAgain"_s)->isEnabled(); }));
}

TEST_F(SetupWindowTest, RefusesWhatIsWrongInTheFormAndSavesTheRest)
{
    open();
    tabs->setCurrentIndex(2);
    QLineEdit *const vendor = tabs->widget(2)->findChildren<QLineEdit *>().first();
    QPushButton *const save = button(u"Save"_s);
    EXPECT_FALSE(save->isEnabled());
    vendor->clear();
    QTest::keyClicks(vendor, u"0x19d2"_s);
    EXPECT_FALSE(save->isEnabled());
    EXPECT_TRUE(vendor->accessibleName().endsWith(u": FaultNotDecimal"_s)) << vendor->accessibleName().toStdString();
    QTest::mouseClick(button(u"DiscardChanges"_s), Qt::LeftButton);
    EXPECT_EQ(vendor->text(), u"4660"_s);
    EXPECT_EQ(vendor->accessibleName(), u"Setting_vendor_ids"_s);
    EXPECT_EQ(vendor->accessibleDescription(), u"Explain_vendor_ids ShippedText"_s);
    vendor->clear();
    QTest::keyClicks(vendor, u"6610 7"_s);
    QTest::mouseClick(save, Qt::LeftButton);
    EXPECT_EQ(vendors(), (QStringList{u"6610"_s, u"7"_s}));
    EXPECT_FALSE(save->isEnabled());

    QTest::keyClicks(vendor, u"7"_s);
    window->close();
    EXPECT_TRUE(window->isVisible()) << "asks before it drops changes";
    EXPECT_TRUE(window->findChild<QMessageBox *>());
}

TEST_F(SetupWindowTest, TakesSettingsThatLackAFlagAsTheyAre)
{
    write("<plist><dict/></plist>");
    open();
    EXPECT_FALSE(button(u"DiscardChanges"_s)->isEnabled());
    window->close();
    EXPECT_FALSE(window->isVisible());
}

TEST_F(SetupWindowTest, ShowsEachFlagAsItIs)
{
    write("<plist><dict><key>NeedDialModeJudge</key><true/></dict></plist>");
    open();
    tabs->setCurrentIndex(2);
    QStringList on;
    for (const auto *const flag : tabs->widget(2)->findChildren<QCheckBox *>()) {
        EXPECT_TRUE(flag->isVisible());
        if (flag->isChecked() && flag->text().startsWith(u"Setting_"))
            on.append(flag->text());
    }
    EXPECT_EQ(on, (QStringList{u"Setting_NeedDialModeJudge"_s, u"Setting_ProvisionAccessPoints"_s}));
}

TEST_F(SetupWindowTest, AsksBeforeItReplacesADamagedFile)
{
    write("damaged");
    open();
    QTest::mouseClick(button(u"UseModem"_s), Qt::LeftButton);
    auto *const box = window->findChild<QMessageBox *>();
    ASSERT_TRUE(box && box->isVisible());
    EXPECT_EQ(vendors(), QStringList());
    for (QAbstractButton *const candidate : box->buttons()) {
        if (candidate->text() == u"StartAfresh"_s)
            candidate->click();
    }
    EXPECT_EQ(vendors(), QStringList{u"6610"_s});
    EXPECT_TRUE(tells(u"Saved OldFileKept"_s));
}
