#include "simulator/demo/DemoWindow.h"

#include "simulator/demo/ActivityPanel.h"
#include "simulator/demo/ApnPanel.h"
#include "simulator/demo/CompanionPanel.h"
#include "simulator/demo/DevicePanel.h"
#include "simulator/demo/ModemPanel.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <chrono>

namespace tarvo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

DemoWindow::DemoWindow(DemoWorld &world)
    : m_modem(new ModemPanel(world))
    , m_companion(new CompanionPanel(world))
    , m_apns(new ApnPanel(world))
{
    auto *controls = new QVBoxLayout;
    controls->addWidget(new DevicePanel(world));
    controls->addWidget(m_modem);
    controls->addStretch();
    auto *views = new QVBoxLayout;
    views->addWidget(m_companion);
    views->addWidget(m_apns, 1);
    views->addWidget(new ActivityPanel(world), 4);
    auto *layout = new QHBoxLayout(this);
    layout->addLayout(controls);
    layout->addLayout(views, 1);

    setWindowTitle(u"Tarvo with a simulated modem"_s);
    resize(1000, 640);
    connect(&m_refreshing, &QTimer::timeout, this, &DemoWindow::refresh);
    m_refreshing.start(250ms);
}

void DemoWindow::refresh()
{
    m_modem->refresh();
    m_companion->refresh();
    m_apns->refresh();
}

} // namespace tarvo
