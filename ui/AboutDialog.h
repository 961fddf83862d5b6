#pragma once

#include <memory>

class QMessageBox;

namespace tarvo {

/// @return a window, still hidden, that says what this program is and in which version
std::unique_ptr<QMessageBox> makeAboutDialog();

} // namespace tarvo
