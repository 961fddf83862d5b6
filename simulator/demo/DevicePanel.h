#pragma once

#include <QGroupBox>

class QLabel;
class QPushButton;

namespace tarvo {

class DemoWorld;

/// What a hand can do to the modem and the computer.
class DevicePanel : public QGroupBox {
public:
    /// @param world  outlives the panel
    explicit DevicePanel(DemoWorld &world);

private:
    void refresh();

    DemoWorld &m_world;
    QLabel *m_state;
    QPushButton *m_plugIn;
    QPushButton *m_unplug;
    QPushButton *m_sleep;
    QPushButton *m_wake;
};

} // namespace tarvo
