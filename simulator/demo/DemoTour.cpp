#include "simulator/demo/DemoTour.h"

#include "simulator/demo/DemoWindow.h"
#include "simulator/demo/DemoWorld.h"
#include "simulator/demo/Pictures.h"
#include "simulator/demo/ShownWindows.h"
#include "ui/CustomView.h"
#include "ui/StatusWindow.h"

#include <QApplication>
#include <QDialog>
#include <QImage>
#include <QMenu>
#include <QPixmap>
#include <QPushButton>
#include <QScreen>

#include <algorithm>
#include <iostream>

namespace tarvo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr quint64 gibibyte = 1024ULL * 1024 * 1024;
const QByteArray statusPagePart = "logo_data.asp";

void say(const QString &text)
{
    std::cout << text.toStdString() << std::endl;
}

} // namespace

DemoTour::DemoTour(DemoWorld &world, DemoWindow &window, const QDir &pictures)
    : m_world(world)
    , m_window(window)
    , m_pictures(pictures)
{
}

void DemoTour::seeDesktop()
{
    begin(u"The window and the icon find their places on the desktop"_s);
    check(u"a window manager gives the window a frame"_s,
          eventually([this] { return m_window.frameGeometry() != m_window.geometry(); }));
    const auto hasPlace = [this] { return m_world.statusBar().iconFrame().has_value(); };
    check(u"the icon has a place in a tray"_s, eventually(hasPlace));
    check(u"it is drawn there"_s,
          eventually([&] { return hasPlace() && isDrawnIn(*m_world.statusBar().iconFrame()); }));
}

bool DemoTour::run()
{
    start();
    plugIn();
    reachLimits();
    failAndRecover();
    sleep();
    wake();
    seeFirmware();
    unplug();
    say(u"%1 passed, %2 failed"_s.arg(m_passed).arg(m_failed));
    return m_failed == 0;
}

void DemoTour::start()
{
    begin(u"The companion starts; no modem is plugged in"_s);
    check(u"it says that it is up"_s, m_world.systemLog().contains(u"Tarvo init success"_s));
    check(u"the icon shows \"ready\""_s, eventually([this] { return image() == u"ready"; }));
    const CustomView *icon = m_world.statusBar().icon();
    check(u"the icon is a picture"_s, icon && !isPlain(icon->icon().pixmap(22).toImage()));
    check(u"it is not polling"_s, m_world.controller().news().stopProcModemStatus());
    takePicture(u"waiting"_s);
    end();
}

void DemoTour::plugIn()
{
    begin(u"The modem is plugged in"_s);
    m_world.plugIn();
    check(u"the modem's interface is reported ready"_s,
          eventually([this] { return m_world.systemLog().contains(u"ECMReady"_s); }));
    check(u"the icon shows \"online\""_s, eventually([this] { return image() == u"online"; }));
    check(u"the modem is polled"_s, eventually([this] { return pagesFetched() >= 4; }));
    const ModemCondition condition = m_world.modem().condition();
    check(u"the computer's access points are on the modem"_s, condition.pcApns.size() == 2);
    check(u"the one that the modem names is the default"_s, condition.defaultApnIndex == 4);
    check(u"the modem was told that they are complete"_s, condition.apnReady);
    check(u"the modem refused nothing"_s, m_world.modem().refusals().isEmpty());
    check(u"no page was opened"_s, m_world.workspace().openedURLs().isEmpty());
    check(u"the tool tip says: \"%1\""_s.arg(toolTip()),
          eventually([this] { return toolTip().startsWith(qtTrId("StatusConnected")); }));
    takePicture(u"online"_s);
    seeStatusWindow();
    end();
}

void DemoTour::seeStatusWindow()
{
    QMenu *menu = m_world.statusBar().menu();
    check(u"the icon has a menu"_s, menu != nullptr);
    if (!menu)
        return;
    menu->popup(QGuiApplication::primaryScreen()->geometry().center());
    takePicture(u"menu"_s);
    menu->close();
    menu->actions().first()->trigger();
    const auto window = [] { return visibleWindow<StatusWindow>(); };
    check(u"its first entry opens the status window"_s, eventually([&] { return window() != nullptr; }, 2s));
    takePicture(u"status"_s);
    if (StatusWindow *shown = window())
        shown->hide();
}

void DemoTour::reachLimits()
{
    begin(u"All data limits are exceeded"_s);
    MainController &controller = m_world.controller();
    check(u"the icon's news are gone through to the end"_s,
          eventually([&] { return !controller.news().startDisplayFlowing(); }));
    m_world.modem().change([](ModemCondition &condition) {
        condition.threeDaysReceived = 4 * gibibyte;
        condition.monthlyReceived = 12 * gibibyte;
    });
    seeLimit(u"three-day limit"_s, u"dataFluxReached"_s, u"three-day-limit"_s);
    check(u"the snapshot has it"_s, controller.snapshot().isHaveDataLimitExceedForThreedays_);
    seeLimit(u"monthly limit"_s, u"dataFluxExceeded"_s, u"monthly-limit"_s);
    check(u"the snapshot has it"_s, controller.snapshot().isHaveDataLimitExceedForOneMonth_);
    seeLimit(u"monthly reminder"_s, u"dataFluxExceeded"_s, u"monthly-reminder"_s);
    check(u"the snapshot has it"_s, controller.snapshot().isHaveDataLimitReachedForOneMonth_);
    clickIcon(u"with a limit exceeded"_s, u"/data"_s);
    end();
}

void DemoTour::seeLimit(const QString &what, const QString &image, const QString &picture)
{
    const bool shown = eventually([this] { return !balloonText().isEmpty() && balloonText() != m_lastBalloon; });
    m_lastBalloon = balloonText();
    check(u"a balloon tells of the %1: \"%2\""_s.arg(what, m_lastBalloon), shown);
    check(u"the icon shows \"%1\""_s.arg(image), this->image() == image);
    check(u"the tool tip holds it"_s, toolTip().contains(m_lastBalloon));
    takePicture(picture);
}

void DemoTour::clickIcon(const QString &why, const QString &path)
{
    if (CustomView *icon = m_world.statusBar().icon())
        icon->click();
    check(u"a click %1 opens %2"_s.arg(why, path), eventually([&] { return lastPage().endsWith(path); }, 2s));
}

void DemoTour::failAndRecover()
{
    begin(u"The modem breaks off its answers, and recovers"_s);
    m_world.server().setFault({.kind = FaultKind::HalfAnswer});
    const auto isError = [](const QString &line) { return line.startsWith(u"error: "); };
    check(u"the failure is logged"_s,
          eventually([&] { return std::ranges::any_of(m_world.systemLog().lines(), isError); }));
    check(u"the tool tip says that the modem does not answer"_s,
          eventually([this] { return toolTip().startsWith(qtTrId("StatusNotAnswering")); }));
    m_world.server().setFault({});
    const qsizetype before = pagesFetched();
    check(u"polling goes on"_s, eventually([&] { return pagesFetched() >= before + 2; }));
    end();
}

void DemoTour::sleep()
{
    begin(u"The computer sleeps"_s);
    m_world.sleep();
    check(u"the icon shows \"ready\""_s, image() == u"ready");
    check(u"no balloon is left"_s, eventually([] { return balloonText().isEmpty(); }, 2s));
    const qsizetype before = pagesFetched();
    check(u"the modem is left alone"_s, !eventually([&] { return pagesFetched() > before; }, 2s));
    takePicture(u"asleep"_s);
    end();
}

void DemoTour::wake()
{
    begin(u"The computer wakes; now the modem offers firmware and needs a password"_s);
    m_world.modem().change([](ModemCondition &condition) {
        condition.threeDaysReceived = 0;
        condition.monthlyReceived = gibibyte;
        condition.firmwarePackage = u"version_has_new_optional_software"_s;
        condition.needsConnectionPassword = true;
    });
    const qsizetype before = pagesFetched();
    m_world.wake();
    check(u"polling starts again"_s, eventually([&] { return pagesFetched() > before; }));
    check(u"the modem's pages are opened for the password"_s,
          eventually([this] { return m_world.controller().pages().hasOpenedWebUI() && lastPage().endsWith(u"/"); }));
    end();
}

void DemoTour::seeFirmware()
{
    begin(u"The new firmware is told"_s);
    seeLimit(u"firmware"_s, u"newVersion"_s, u"firmware"_s);
    clickIcon(u"with new firmware"_s, u"/firmware"_s);
    const qsizetype before = m_world.workspace().openedURLs().size();
    auto *panel = visibleWindow<QDialog>();
    check(u"the update panel is open"_s, panel != nullptr);
    if (auto *button = panel ? panel->findChild<QPushButton *>(u"btnOK_"_s) : nullptr)
        button->click();
    check(u"its button closes it and opens the firmware's page"_s,
          eventually([&] { return !visibleWindow<QDialog>() && m_world.workspace().openedURLs().size() == before + 1; },
                     2s));
    check(u"a modem's pages are opened by themselves only once"_s,
          std::ranges::count(m_world.workspace().openedURLs(), QUrl(u"http://%1/"_s.arg(m_world.server().authority())))
              == 1);
    end();
}

void DemoTour::unplug()
{
    begin(u"The modem is unplugged"_s);
    m_world.unplug();
    const StatusSnapshot snapshot = m_world.controller().snapshot();
    check(u"the icon shows \"ready\", and its tip says that there is no modem"_s,
          image() == u"ready" && toolTip() == qtTrId("StatusNoModem"));
    check(u"nothing is known any more"_s,
          m_world.controller().news().stopProcModemStatus() && !snapshot.isHaveNewVersion_
              && snapshot.m_useData == 0.F);
    const qsizetype before = pagesFetched();
    check(u"the modem is left alone"_s, !eventually([&] { return pagesFetched() > before; }, 2s));
    takePicture(u"unplugged"_s);
    end();
}

void DemoTour::begin(const QString &title)
{
    say(u"\n"_s + title);
    m_seenRequests = m_world.modem().requests().size();
}

void DemoTour::end()
{
    const auto requests = m_world.modem().requests().mid(m_seenRequests);
    QMap<QString, int> counts;
    for (const ReceivedRequest &request : requests)
        ++counts[requestText(request)];
    say(counts.isEmpty() ? u"  the modem was asked nothing"_s : u"  the modem was asked:"_s);
    for (const auto &[text, count] : counts.asKeyValueRange())
        say(u"    %1 x %2"_s.arg(count, 2).arg(text));
}

void DemoTour::check(const QString &what, bool passed)
{
    ++(passed ? m_passed : m_failed);
    say((passed ? u"  ok      "_s : u"  FAILED  "_s) + what);
}

void DemoTour::takePicture(const QString &name)
{
    m_window.refresh();
    eventually([] { return false; }, 300ms); // what has just been shown gets drawn
    const QString file = u"%1-%2"_s.arg(++m_pictureNumber, 2, 10, QChar(u'0')).arg(name);
    const QImage window = m_window.grab().toImage();
    check(u"picture %1-window"_s.arg(file),
          !isPlain(window) && window.save(m_pictures.filePath(file + u"-window.png"_s)));
    if (QGuiApplication::platformName() != u"xcb")
        return;
    const bool drawn = eventually([this] { return isDrawnIn(m_window.geometry()); });
    const QPixmap desktop = screenPicture(QGuiApplication::primaryScreen()->geometry());
    check(u"picture %1-desktop"_s.arg(file), drawn && desktop.save(m_pictures.filePath(file + u"-desktop.png"_s)));
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
