#include "tests/support/VirtualDesktop.h"

#include <QPixmap>
#include <QScreen>
#include <QTest>

/// Qt keeps a few bytes of each D-Bus interface that it introspects; the leak check shall see our own.
extern "C" const char *__lsan_default_suppressions() // NOLINT(bugprone-reserved-identifier): the library's name
{
    return "leak:libQt6DBus.so";
}

namespace tarvo {

VirtualDesktop::VirtualDesktop()
{
    m_screen.emplace(
        std::vector<std::string>{"Xvfb", "-displayfd", "1", "-screen", "0", "1280x800x24", "-nolisten", "tcp"});
    qputenv("DISPLAY", QByteArray::fromStdString(":" + m_screen->readLine()));
    m_bus.emplace(
        std::vector<std::string>{"dbus-daemon", "--config-file=" TARVO_SESSION_BUS, "--print-address", "--nofork"});
    qputenv("DBUS_SESSION_BUS_ADDRESS", QByteArray::fromStdString(m_bus->readLine()));
    qputenv("QT_QPA_PLATFORM", "xcb");
    m_application.emplace(m_argumentCount, m_arguments);
    m_application->setQuitOnLastWindowClosed(false);
}

QImage screenshot()
{
    return QGuiApplication::primaryScreen()->grabWindow(0).toImage();
}

void clickOn(const QRect &area, const std::string &mouseButton)
{
    Program({"xdotool", "mousemove", std::to_string(area.center().x()), std::to_string(area.center().y()), "click",
             mouseButton})
        .readLine();
}

void clickOn(const QWidget &widget, const std::string &mouseButton)
{
    clickOn({widget.mapToGlobal(QPoint()), widget.size()}, mouseButton);
}

bool waitFor(const std::function<bool()> &condition)
{
    return QTest::qWaitFor(condition, 15'000);
}

} // namespace tarvo
