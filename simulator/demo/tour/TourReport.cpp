#include "simulator/demo/tour/TourReport.h"

#include "simulator/demo/DemoWindow.h"
#include "simulator/demo/DemoWorld.h"
#include "simulator/demo/tour/Pictures.h"
#include "simulator/demo/tour/ShownWindows.h"

#include <QGuiApplication>
#include <QImage>
#include <QMap>
#include <QPixmap>
#include <QScreen>

#include <iostream>

namespace tarvo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

void say(const QString &text)
{
    std::cout << text.toStdString() << std::endl;
}

} // namespace

TourReport::TourReport(DemoWorld &world, DemoWindow &window, const QDir &pictures)
    : m_world(world)
    , m_window(window)
    , m_pictures(pictures)
{
}

void TourReport::begin(const QString &title)
{
    say(u"\n"_s + title);
    m_seenRequests = m_world.modem().requests().size();
}

void TourReport::end()
{
    const auto requests = m_world.modem().requests().mid(m_seenRequests);
    QMap<QString, int> counts;
    for (const ReceivedRequest &request : requests)
        ++counts[requestText(request)];
    say(counts.isEmpty() ? u"  the modem was asked nothing"_s : u"  the modem was asked:"_s);
    for (const auto &[text, count] : counts.asKeyValueRange())
        say(u"    %1 x %2"_s.arg(count, 2).arg(text));
}

void TourReport::check(const QString &what, bool passed)
{
    ++(passed ? m_passed : m_failed);
    say((passed ? u"  ok      "_s : u"  FAILED  "_s) + what);
}

void TourReport::takePicture(const QString &name)
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

bool TourReport::sayResult() const
{
    say(u"%1 passed, %2 failed"_s.arg(m_passed).arg(m_failed));
    return m_failed == 0;
}

} // namespace tarvo
