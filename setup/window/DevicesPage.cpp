#include "setup/window/DevicesPage.h"

#include "setup/window/Buttons.h"
#include "setup/window/Marks.h"
#include "setup/window/TitledItems.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

const QString separator = u" \u00b7 "_s;

Mark markOf(const ListedDevice &listed)
{
    switch (listed.device.support) {
    case Support::Supported:
        return Mark::Ok;
    case Support::Excluded:
        return Mark::Skipped;
    case Support::Unsupported:
        return Mark::Unknown;
    }
    return Mark::Unknown;
}

QString answerText(const ListedDevice &listed)
{
    if (listed.device.network.gateway.isEmpty())
        return qtTrId("DeviceNoGateway");
    if (!listed.isModem)
        return qtTrId("DeviceAsked");
    return *listed.isModem ? qtTrId("DeviceIsModem") : qtTrId("DeviceIsNoModem");
}

QString networkText(const Device &device)
{
    const QString driver = device.usb.driver.isEmpty() ? QString() : u" (%1)"_s.arg(device.usb.driver);
    QStringList parts{isolated(device.identifier()), isolated(device.usb.interfaceName + driver)};
    for (const QString &address : device.network.addresses)
        parts.append(isolated(address));
    if (!device.network.gateway.isEmpty())
        parts.append(qtTrId("DeviceGateway").arg(isolated(device.network.gateway)));
    return parts.join(separator);
}

TitledItem itemOf(const ListedDevice &listed)
{
    const Mark mark = markOf(listed);
    const QString support = supportText(listed.device.support);
    return {markIcon(mark), support, isolated(listed.device.name()),
            networkText(listed.device) + u'\n' + support + separator + answerText(listed)};
}

} // namespace

DevicesPage::DevicesPage(Handler use, Handler leaveAlone)
    : m_empty(new QLabel(qtTrId("NoDevices")))
    , m_list(new TitledList)
    , m_use(roomyButton(qtTrId("UseModem")))
    , m_leaveAlone(roomyButton(qtTrId("LeaveAlone")))
{
    auto *const introduction = new QLabel(qtTrId("DevicesIntroduction"));
    introduction->setWordWrap(true);
    m_empty->setAlignment(Qt::AlignCenter);
    m_empty->setWordWrap(true);
    m_list->setAccessibleName(qtTrId("TabDevices"));

    auto *const buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_leaveAlone);
    buttons->addWidget(m_use);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(introduction);
    layout->addWidget(m_empty, 1);
    layout->addWidget(m_list, 1);
    layout->addLayout(buttons);

    connect(m_list, &QListWidget::currentRowChanged, this, [this](int row) { choose(row); });
    connect(m_use, &QPushButton::clicked, this,
            [this, handler = std::move(use)] { handler(m_devices[m_list->currentRow()].device); });
    connect(m_list, &QListWidget::itemActivated, m_use, &QPushButton::click);
    connect(m_leaveAlone, &QPushButton::clicked, this,
            [this, handler = std::move(leaveAlone)] { handler(m_devices[m_list->currentRow()].device); });
    setDevices({});
}

void DevicesPage::setDevices(const QList<ListedDevice> &devices)
{
    if (devices == m_devices && !devices.isEmpty())
        return; // nothing moves where nothing changed
    QList<TitledItem> items;
    for (const ListedDevice &listed : devices)
        items.append(itemOf(listed));
    m_devices = devices;
    m_list->setItems(items);
    m_list->setVisible(!devices.isEmpty());
    m_empty->setVisible(devices.isEmpty());
    if (!devices.isEmpty() && !window()->focusWidget())
        m_list->setFocus();
    choose(m_list->currentRow());
}

void DevicesPage::choose(int row)
{
    const bool chosen = row >= 0 && row < m_devices.size();
    const Support support = chosen ? m_devices[row].device.support : Support::Unsupported;
    m_use->setEnabled(chosen && support != Support::Supported);
    m_leaveAlone->setEnabled(chosen && support != Support::Excluded);
}

} // namespace tarvo
