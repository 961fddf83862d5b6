#pragma once

#include "simulator/demo/tour/TourReport.h"

#include <QDir>
#include <QString>

namespace tarvo {

class DemoWindow;
class DemoWorld;

/// Shows by itself all that the companion does, checks what is to be seen, and takes pictures of it.
///
/// What it does and finds goes to standard output; the last line is "N passed, N failed".
class DemoTour {
public:
    /// @param world, window  outlive the tour
    /// @param pictures  an existing folder
    DemoTour(DemoWorld &world, DemoWindow &window, const QDir &pictures);

    /// Waits for a window manager and a system tray, and checks that the icon is drawn there.
    void seeDesktop();

    /// Runs the whole tour, about a minute, while events are handled. @return whether every check passed
    bool run();

private:
    void start();
    void recognise();
    void seeStatusWindow();
    void reachLimits();
    void seeLimit(const QString &what, const QString &image, const QString &picture);
    void clickIcon(const QString &why, const QString &path);
    void failAndRecover();
    void sleep();
    void wake();
    void seeFirmware();
    void unplug();

    QString image() const;
    QString toolTip() const;
    QString lastPage() const;
    qsizetype pagesFetched() const;

    DemoWorld &m_world;
    DemoWindow &m_window;
    TourReport m_report;
    QString m_lastBalloon;
};

} // namespace tarvo
