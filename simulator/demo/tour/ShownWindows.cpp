#include "simulator/demo/tour/ShownWindows.h"

#include <QLabel>
#include <QTest>

namespace tarvo {

using namespace Qt::StringLiterals;

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
    return QTest::qWaitFor(condition, static_cast<int>(limit.count()));
}

} // namespace tarvo
