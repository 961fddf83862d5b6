#include "simulator/demo/tour/DemoTour.h"

#include "simulator/demo/DemoWindow.h"
#include "simulator/demo/DemoWorld.h"
#include "simulator/demo/tour/Pictures.h"
#include "simulator/demo/tour/SetupTour.h"
#include "simulator/demo/tour/ShownWindows.h"
#include "ui/icon/CustomView.h"
#include "ui/windows/StatusWindow.h"

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QPushButton>
#include <QScreen>

#include <algorithm>

namespace tarvo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr quint64 gibibyte = 1024ULL * 1024 * 1024;
const QByteArray statusPagePart = "logo_data.asp";

} // namespace

DemoTour::DemoTour(DemoWorld &world, DemoWindow &window, const QDir &pictures)
    : m_world(world)
    , m_window(window)
    , m_report(world, window, pictures)
{
}

void DemoTour::seeDesktop()
{
    m_report.begin(u"The window and the icon find their places on the desktop"_s);
    m_report.check(u"a window manager gives the window a frame"_s,
                   eventually([this] { return m_window.frameGeometry() != m_window.geometry(); }));
    const auto hasPlace = [this] { return m_world.statusBar().iconFrame().has_value(); };
    m_report.check(u"the icon has a place in a tray"_s, eventually(hasPlace));
    m_report.check(u"it is drawn there"_s,
                   eventually([&] { return hasPlace() && isDrawnIn(*m_world.statusBar().iconFrame()); }));
}

bool DemoTour::run()
{
    start();
    SetupTour(m_world, m_report).run();
    recognise();
    reachLimits();
    failAndRecover();
    sleep();
    wake();
    seeFirmware();
    unplug();
    return m_report.sayResult();
}

void DemoTour::start()
{
    m_report.begin(u"The companion starts; no modem is plugged in"_s);
    const QSize smallest = m_window.minimumSizeHint();
    m_report.check(u"the demo's window fits a screen of 1920 x 1080 pixels at 200 %"_s,
                   smallest.width() <= 960 && smallest.height() <= 540 - 2 * 30); // beside a panel and a title
    m_report.check(u"it says that it is up"_s, m_world.systemLog().contains(u"Tarvo init success"_s));
    m_report.check(u"the icon shows \"ready\""_s, eventually([this] { return image() == u"ready"; }));
    const CustomView *icon = m_world.statusBar().icon();
    m_report.check(u"the icon is a picture"_s, icon && !isPlain(icon->icon().pixmap(22).toImage()));
    m_report.check(u"it is not polling"_s, m_world.controller().news().stopProcModemStatus());
    m_report.takePicture(u"waiting"_s);
    m_report.end();
}

void DemoTour::recognise()
{
    m_report.begin(u"The companion knows the modem now"_s);
    m_report.check(u"the modem's interface is reported ready"_s,
                   eventually([this] { return m_world.systemLog().contains(u"ECMReady"_s); }));
    m_report.check(u"the icon shows \"online\""_s, eventually([this] { return image() == u"online"; }));
    m_report.check(u"the modem is polled"_s, eventually([this] { return pagesFetched() >= 4; }));
    const ModemCondition condition = m_world.modem().condition();
    m_report.check(u"the computer's access points are on the modem"_s, condition.pcApns.size() == 2);
    m_report.check(u"the one that the modem names is the default"_s, condition.defaultApnIndex == 4);
    m_report.check(u"the modem was told that they are complete"_s, condition.apnReady);
    m_report.check(u"the modem refused nothing"_s, m_world.modem().refusals().isEmpty());
    m_report.check(u"no page was opened"_s, m_world.workspace().openedURLs().isEmpty());
    const bool isConnected = eventually([this] { return toolTip().startsWith(qtTrId("StatusConnected")); });
    m_report.check(u"the tool tip says: \"%1\""_s.arg(toolTip()), isConnected);
    m_report.takePicture(u"online"_s);
    seeStatusWindow();
    m_report.end();
}

void DemoTour::seeStatusWindow()
{
    QMenu *menu = m_world.statusBar().menu();
    m_report.check(u"the icon has a menu"_s, menu != nullptr);
    if (!menu)
        return;
    menu->popup(QGuiApplication::primaryScreen()->geometry().center());
    m_report.takePicture(u"menu"_s);
    menu->close();
    menu->actions().first()->trigger();
    const auto window = [] { return visibleWindow<StatusWindow>(); };
    m_report.check(u"its first entry opens the status window"_s, eventually([&] { return window() != nullptr; }, 2s));
    m_report.takePicture(u"status"_s);
    if (StatusWindow *shown = window())
        shown->hide();
}

void DemoTour::reachLimits()
{
    m_report.begin(u"All data limits are exceeded"_s);
    MainController &controller = m_world.controller();
    m_report.check(u"the icon's news are gone through to the end"_s,
                   eventually([&] { return !controller.news().startDisplayFlowing(); }));
    m_world.modem().change([](ModemCondition &condition) {
        condition.threeDaysReceived = 4 * gibibyte;
        condition.monthlyReceived = 12 * gibibyte;
    });
    seeLimit(u"three-day limit"_s, u"dataFluxReached"_s, u"three-day-limit"_s);
    m_report.check(u"the snapshot has it"_s, controller.snapshot().isHaveDataLimitExceedForThreedays_);
    seeLimit(u"monthly limit"_s, u"dataFluxExceeded"_s, u"monthly-limit"_s);
    m_report.check(u"the snapshot has it"_s, controller.snapshot().isHaveDataLimitExceedForOneMonth_);
    seeLimit(u"monthly reminder"_s, u"dataFluxExceeded"_s, u"monthly-reminder"_s);
    m_report.check(u"the snapshot has it"_s, controller.snapshot().isHaveDataLimitReachedForOneMonth_);
    clickIcon(u"with a limit exceeded"_s, u"/data"_s);
    m_report.end();
}

void DemoTour::seeLimit(const QString &what, const QString &image, const QString &picture)
{
    const bool shown = eventually([this] { return !balloonText().isEmpty() && balloonText() != m_lastBalloon; });
    m_lastBalloon = balloonText();
    m_report.check(u"a balloon tells of the %1: \"%2\""_s.arg(what, m_lastBalloon), shown);
    m_report.check(u"the icon shows \"%1\""_s.arg(image), this->image() == image);
    m_report.check(u"the tool tip holds it"_s, toolTip().contains(m_lastBalloon));
    m_report.takePicture(picture);
}

void DemoTour::clickIcon(const QString &why, const QString &path)
{
    if (CustomView *icon = m_world.statusBar().icon())
        icon->click();
    m_report.check(u"a click %1 opens %2"_s.arg(why, path), eventually([&] { return lastPage().endsWith(path); }, 2s));
}

void DemoTour::failAndRecover()
{
    m_report.begin(u"The modem breaks off its answers, and recovers"_s);
    m_world.server().setFault({.kind = FaultKind::HalfAnswer});
    const auto isError = [](const QString &line) { return line.startsWith(u"error: "); };
    m_report.check(u"the failure is logged"_s,
                   eventually([&] { return std::ranges::any_of(m_world.systemLog().lines(), isError); }));
    m_report.check(u"the tool tip says that the modem does not answer"_s,
                   eventually([this] { return toolTip().startsWith(qtTrId("StatusNotAnswering")); }));
    m_world.server().setFault({});
    const qsizetype before = pagesFetched();
    m_report.check(u"polling goes on"_s, eventually([&] { return pagesFetched() >= before + 2; }));
    m_report.end();
}

void DemoTour::sleep()
{
    m_report.begin(u"The computer sleeps"_s);
    m_world.sleep();
    m_report.check(u"the icon shows \"ready\""_s, image() == u"ready");
    m_report.check(u"no balloon is left"_s, eventually([] { return balloonText().isEmpty(); }, 2s));
    const qsizetype before = pagesFetched();
    m_report.check(u"the modem is left alone"_s, !eventually([&] { return pagesFetched() > before; }, 2s));
    m_report.takePicture(u"asleep"_s);
    m_report.end();
}

void DemoTour::wake()
{
    m_report.begin(u"The computer wakes; now the modem offers firmware and needs a password"_s);
    m_world.modem().change([](ModemCondition &condition) {
        condition.threeDaysReceived = 0;
        condition.monthlyReceived = gibibyte;
        condition.firmwarePackage = u"version_has_new_optional_software"_s;
        condition.needsConnectionPassword = true;
    });
    const qsizetype before = pagesFetched();
    m_world.wake();
    m_report.check(u"polling starts again"_s, eventually([&] { return pagesFetched() > before; }));
    m_report.check(u"the modem's pages are opened for the password"_s, eventually([this] {
                       return m_world.controller().pages().hasOpenedWebUI() && lastPage().endsWith(u"/");
                   }));
    m_report.end();
}

void DemoTour::seeFirmware()
{
    m_report.begin(u"The new firmware is told"_s);
    seeLimit(u"firmware"_s, u"newVersion"_s, u"firmware"_s);
    clickIcon(u"with new firmware"_s, u"/firmware"_s);
    const qsizetype before = m_world.workspace().openedURLs().size();
    auto *panel = visibleWindow<QDialog>();
    m_report.check(u"the update panel is open"_s, panel != nullptr);
    if (auto *button = panel ? panel->findChild<QPushButton *>(u"btnOK_"_s) : nullptr)
        button->click();
    m_report.check(
        u"its button closes it and opens the firmware's page"_s,
        eventually([&] { return !visibleWindow<QDialog>() && m_world.workspace().openedURLs().size() == before + 1; },
                   2s));
    m_report.check(
        u"a modem's pages are opened by themselves only once"_s,
        std::ranges::count(m_world.workspace().openedURLs(), QUrl(u"http://%1/"_s.arg(m_world.server().authority())))
            == 1);
    m_report.end();
}

void DemoTour::unplug()
{
    m_report.begin(u"The modem is unplugged"_s);
    m_world.unplug();
    const StatusSnapshot snapshot = m_world.controller().snapshot();
    m_report.check(u"the icon shows \"ready\", and its tip says that there is no modem"_s,
                   image() == u"ready" && toolTip() == qtTrId("StatusNoModem"));
    m_report.check(u"nothing is known any more"_s,
                   m_world.controller().news().stopProcModemStatus() && !snapshot.isHaveNewVersion_
                       && snapshot.m_useData == 0.F);
    const qsizetype before = pagesFetched();
    m_report.check(u"the modem is left alone"_s, !eventually([&] { return pagesFetched() > before; }, 2s));
    m_report.takePicture(u"unplugged"_s);
    m_report.end();
}

QString DemoTour::image() const
{
    const CustomView *icon = m_world.statusBar().icon();
    return icon ? icon->image() : QString();
}

QString DemoTour::toolTip() const
{
    const CustomView *icon = m_world.statusBar().icon();
    return icon ? icon->toolTip() : QString();
}

QString DemoTour::lastPage() const
{
    const auto &pages = m_world.workspace().openedURLs();
    return pages.isEmpty() ? QString() : pages.last().toString();
}

qsizetype DemoTour::pagesFetched() const
{
    return m_world.modem().requests(statusPagePart).size();
}

} // namespace tarvo
