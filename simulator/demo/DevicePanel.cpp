#include "simulator/demo/DevicePanel.h"

#include "simulator/demo/DemoWorld.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace tarvo {

using namespace Qt::StringLiterals;

DevicePanel::DevicePanel(DemoWorld &world)
    : QGroupBox(u"Device"_s)
    , m_world(world)
    , m_state(new QLabel)
    , m_plugIn(new QPushButton(u"&Plug in"_s))
    , m_unplug(new QPushButton(u"&Unplug"_s))
    , m_sleep(new QPushButton(u"&Sleep"_s))
    , m_wake(new QPushButton(u"&Wake"_s))
{
    auto *layout = new QGridLayout(this);
    layout->addWidget(m_state, 0, 0, 1, 2);
    layout->addWidget(m_plugIn, 1, 0);
    layout->addWidget(m_unplug, 1, 1);
    layout->addWidget(m_sleep, 2, 0);
    layout->addWidget(m_wake, 2, 1);

    connect(m_plugIn, &QPushButton::clicked, this, [this] { m_world.plugIn(); });
    connect(m_unplug, &QPushButton::clicked, this, [this] { m_world.unplug(); });
    connect(m_sleep, &QPushButton::clicked, this, [this] { m_world.sleep(); });
    connect(m_wake, &QPushButton::clicked, this, [this] { m_world.wake(); });
    connect(&m_world, &DemoWorld::changed, this, &DevicePanel::refresh);
    refresh();
}

void DevicePanel::refresh()
{
    const bool awake = !m_world.isAsleep();
    const QString modem = m_world.isPluggedIn() ? u"The modem is plugged in"_s : u"No modem is plugged in"_s;
    m_state->setText(modem + (awake ? u"."_s : u", the computer sleeps."_s));
    m_plugIn->setEnabled(awake && !m_world.isPluggedIn());
    m_unplug->setEnabled(awake && m_world.isPluggedIn());
    m_sleep->setEnabled(awake);
    m_wake->setEnabled(!awake);
}

} // namespace tarvo
