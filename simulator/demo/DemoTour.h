#pragma once

#include <QDir>
#include <QMap>
#include <QString>

#include <chrono>
#include <functional>

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
    void plugIn();
    void seeStatusWindow();
    void reachLimits();
    void seeLimit(const QString &what, const QString &image, const QString &picture);
    void clickIcon(const QString &why, const QString &path);
    void failAndRecover();
    void sleep();
    void wake();
    void seeFirmware();
    void unplug();

    void begin(const QString &title);
    /// Says what the modem was asked since `begin`.
    void end();
    void check(const QString &what, bool passed);
    /// Saves what the window, and the screen where there is one, show. It counts as a failure when that is blank.
    void takePicture(const QString &name);

    QString image() const;
    QString toolTip() const;
    QString lastPage() const;
    qsizetype pagesFetched() const;

    DemoWorld &m_world;
    DemoWindow &m_window;
    QDir m_pictures;
    QString m_lastBalloon;
    qsizetype m_seenRequests = 0;
    int m_pictureNumber = 0;
    int m_passed = 0;
    int m_failed = 0;
};

} // namespace tarvo
