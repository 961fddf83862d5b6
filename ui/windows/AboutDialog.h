#pragma once

#include <memory>

class QMessageBox;

namespace tarvo {

/// A window that says what this program is and in which version. On the main thread.
class AboutDialog {
public:
    AboutDialog();
    ~AboutDialog();
    AboutDialog(const AboutDialog &) = delete;
    AboutDialog &operator=(const AboutDialog &) = delete;

    /// Shows it in front; it is made when it is first wanted.
    void present();

private:
    std::unique_ptr<QMessageBox> m_window;
};

} // namespace tarvo
