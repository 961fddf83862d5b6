#include "platform/linux/bus/BusAddress.h"
#include "platform/linux/bus/BusConnection.h"
#include "platform/linux/process/TerminationSignals.h"
#include "platform/linux/tray/DesktopStatusBar.h"
#include "simulator/demo/DemoFolder.h"
#include "simulator/demo/DemoWindow.h"
#include "simulator/demo/DemoWorld.h"
#include "simulator/demo/tour/DemoTour.h"
#include "ui/look/Images.h"
#include "ui/look/Translations.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDesktopServices>
#include <QDir>
#include <QLocale>
#include <QPalette>

#include <cstdlib>
#include <iostream>

using namespace Qt::StringLiterals;

namespace {

/// Some desktops leave this role black on their dark windows.
void setQuietText()
{
    QPalette quiet;
    QColor text = QApplication::palette().color(QPalette::WindowText);
    text.setAlphaF(0.6F);
    quiet.setColor(QPalette::PlaceholderText, text);
    QApplication::setPalette(quiet);
}

} // namespace

int main(int argc, char **argv)
{
    static tarvo::DemoFolder folder; // static, so that it also goes where the parser ends the program
    QApplication application(argc, argv);
    const tarvo::TerminationSignals signals([] {
        folder.remove();
        std::_Exit(EXIT_FAILURE); // wherever the tour is; nothing else stays behind
    });
    QApplication::setApplicationName(u"tarvo-demo"_s);
    QApplication::setWindowIcon(tarvo::applicationImage());
    setQuietText();
    for (const QString &program : {u"tarvo"_s, u"tarvo-setup"_s})
        tarvo::installTranslations(application, QLocale(), program);
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Runs the companion with a simulated modem and a window to control it."_s);
    parser.addHelpOption();
    parser.addOption({u"tour"_s, u"Play a tour of about a minute, and leave pictures of it in FOLDER."_s, u"FOLDER"_s});
    parser.addOption({u"desktop"_s, u"Expect a window manager and a system tray during the tour."_s});
    parser.process(application);
    const bool isTour = parser.isSet(u"tour"_s);

    tarvo::BusConnection sessionBus(tarvo::sessionBusAddress());
    tarvo::DesktopStatusBar statusBar(sessionBus);
    tarvo::DemoWorld world(folder, statusBar, sessionBus, isTour ? nullptr : &QDesktopServices::openUrl);
    if (world.problem()) {
        std::cerr << "tarvo-demo: " << world.problem()->toStdString() << std::endl;
        return 1;
    }
    tarvo::DemoWindow window(world);
    window.show();
    if (!isTour)
        return QApplication::exec();

    const QDir pictures(parser.value(u"tour"_s));
    pictures.mkpath(u"."_s);
    tarvo::DemoTour tour(world, window, pictures);
    if (parser.isSet(u"desktop"_s))
        tour.seeDesktop();
    return tour.run() ? 0 : 1;
}
