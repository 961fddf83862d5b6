#pragma once

#include <QDir>
#include <QString>

namespace tarvo {

class DemoWindow;
class DemoWorld;

/// Says on standard output what a tour does and finds, and keeps pictures of it.
class TourReport {
public:
    /// @param world, window  outlive the report
    /// @param pictures  an existing folder
    TourReport(DemoWorld &world, DemoWindow &window, const QDir &pictures);

    void begin(const QString &title);
    /// Says what the modem was asked since `begin`.
    void end();
    void check(const QString &what, bool passed);
    /// Saves what the window, and the screen where there is one, show. It counts as a failure when that is blank.
    void takePicture(const QString &name);

    /// Says how many checks passed and how many did not. @return whether all passed
    bool sayResult() const;

private:
    DemoWorld &m_world;
    DemoWindow &m_window;
    QDir m_pictures;
    qsizetype m_seenRequests = 0;
    int m_pictureNumber = 0;
    int m_passed = 0;
    int m_failed = 0;
};

} // namespace tarvo
