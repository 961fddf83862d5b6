#pragma once

#include <QApplication>
#include <QString>
#include <QWidget>

#include <chrono>
#include <functional>

namespace tarvo {

/// @return the text of the balloon that is on the screen; empty when there is none
QString balloonText();

/// Lets events be handled until @p condition holds. @return whether it did within @p limit
bool eventually(const std::function<bool()> &condition, std::chrono::milliseconds limit = std::chrono::seconds(25));

/// @return the window of that kind that is on the screen; null when there is none
template <typename Kind>
Kind *visibleWindow()
{
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (auto *found = dynamic_cast<Kind *>(window); found && found->isVisible())
            return found;
    }
    return nullptr;
}

} // namespace tarvo
