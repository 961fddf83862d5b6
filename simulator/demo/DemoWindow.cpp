#include "simulator/demo/DemoWindow.h"

#include "simulator/demo/ActivityPanel.h"
#include "simulator/demo/ApnPanel.h"
#include "simulator/demo/CompanionPanel.h"
#include "simulator/demo/DevicePanel.h"
#include "simulator/demo/ModemPanel.h"

#include <QHBoxLayout>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include <chrono>

namespace tarvo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr QSize comfortable(1000, 640);
constexpr QSize frame(0, 40); // what a window manager draws around the window, at most

/// @return @p content, which scrolls where the screen is lower than it
QScrollArea *scrolling(QWidget *content)
{
    auto *area = new QScrollArea;
    area->setWidget(content);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setMinimumWidth(content->minimumSizeHint().width() + area->verticalScrollBar()->sizeHint().width());
    return area;
}

} // namespace

DemoWindow::DemoWindow(DemoWorld &world)
    : m_modem(new ModemPanel(world))
    , m_companion(new CompanionPanel(world))
    , m_apns(new ApnPanel(world))
{
    auto *controlled = new QWidget;
    auto *controls = new QVBoxLayout(controlled);
    controls->setContentsMargins({});
    controls->addWidget(new DevicePanel(world));
    controls->addWidget(m_modem);
    controls->addStretch();
    auto *views = new QVBoxLayout;
    views->addWidget(m_companion);
    views->addWidget(m_apns, 1);
    views->addWidget(new ActivityPanel(world), 4);
    auto *layout = new QHBoxLayout(this);
    layout->addWidget(scrolling(controlled));
    layout->addLayout(views, 1);

    setWindowTitle(u"Tarvo with a simulated modem"_s);
    resize(comfortable.boundedTo(screen()->availableSize() - frame));
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
