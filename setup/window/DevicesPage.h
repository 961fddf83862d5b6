#pragma once

#include "setup/command/Report.h"

#include <QList>
#include <QWidget>

#include <functional>

class QLabel;
class QPushButton;

namespace tarvo {

class TitledList;

/// The list of USB network devices, and what can be done with the chosen one.
class DevicesPage final : public QWidget {
public:
    /// What the user wants done with a device.
    using Handler = std::function<void(const Device &device)>;

    DevicesPage(Handler use, Handler leaveAlone);

    void setDevices(const QList<ListedDevice> &devices);

private:
    void choose(int row);

    QList<ListedDevice> m_devices;
    QLabel *m_empty;
    TitledList *m_list;
    QPushButton *m_use;
    QPushButton *m_leaveAlone;
};

} // namespace tarvo
