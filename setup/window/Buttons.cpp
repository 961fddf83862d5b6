#include "setup/window/Buttons.h"

#include <QPushButton>

namespace tarvo {

namespace {

constexpr int room = 12; // pixels at each side

} // namespace

QPushButton *roomyButton(const QString &text)
{
    auto *const button = new QPushButton(text);
    button->setMinimumWidth(button->fontMetrics().size(Qt::TextShowMnemonic, text).width() + 2 * room);
    return button;
}

} // namespace tarvo
