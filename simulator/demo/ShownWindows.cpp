#include "simulator/demo/ShownWindows.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QLabel>
#include <QTimer>

namespace tarvo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

QString balloonText()
{
    const auto windows = QApplication::topLevelWidgets();
    for (const QWidget *window : windows) {
        const auto *label = window->isVisible() ? window->findChild<QLabel *>(u"ballooonTextField_"_s) : nullptr;
        if (label)
            return label->text();
    }
    return {};
}

bool eventually(const std::function<bool()> &condition, std::chrono::milliseconds limit)
{
    QElapsedTimer elapsed;
    elapsed.start();
    while (!condition()) {
        if (elapsed.hasExpired(limit.count()))
            return false;
        QEventLoop loop;
        QTimer::singleShot(20ms, &loop, &QEventLoop::quit);
        loop.exec();
    }
    return true;
}

} // namespace tarvo
