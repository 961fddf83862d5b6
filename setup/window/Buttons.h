#pragma once

class QPushButton;
class QString;

namespace tarvo {

/// @return a new button with room at the sides of @p text, as a dialog's buttons have, whatever the style
QPushButton *roomyButton(const QString &text);

} // namespace tarvo
