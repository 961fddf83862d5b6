#pragma once

#include <QTimer>
#include <QWidget>

namespace tarvo {

class ApnPanel;
class CompanionPanel;
class DemoWorld;
class ModemPanel;

/// The demo's control window.
class DemoWindow : public QWidget {
public:
    /// @param world  outlives the window
    explicit DemoWindow(DemoWorld &world);

    /// Brings all that changes by itself up to date.
    void refresh();

private:
    ModemPanel *m_modem;
    CompanionPanel *m_companion;
    ApnPanel *m_apns;
    QTimer m_refreshing;
};

} // namespace tarvo
