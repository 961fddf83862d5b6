#include "setup/window/SetupWindow.h"

#include "platform/UsbNetworkDevices.h"
#include "setup/window/Buttons.h"
#include "setup/window/ChecksPage.h"
#include "setup/window/DevicesPage.h"
#include "setup/window/SettingsPage.h"

#include <QAccessible>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr QSize usualSize{720, 600};
constexpr auto refreshDelay = 250ms; // a device that comes makes several changes

QPair<int, QString> questionKey(const Device &device)
{
    return {device.usb.interfaceIndex, device.network.gateway};
}

} // namespace

SetupWindow::SetupWindow(const SetupServices &services, Survey &survey)
    : m_services(services)
    , m_survey(survey)
    , m_tabs(new QTabWidget)
    , m_devices(new DevicesPage(
          [this](const Device &device) {
              change(useDevice({device.usb.vendor, device.usb.product}), Damaged::Refuse);
          },
          [this](const Device &device) {
              change(excludeDevice({device.usb.vendor, device.usb.product}), Damaged::Refuse);
          }))
    , m_checks(new ChecksPage([this] { check(); }))
    , m_settings(new SettingsPage({[this](const SettingChange &wanted) { change(wanted, Damaged::Refuse); },
                                   [this] { reset(); }, [this](const QString &problem) { tell(problem); }}))
    , m_bar(new QWidget)
{
    setWindowTitle(qtTrId("SetupTitle"));
    m_tabs->addTab(m_devices, qtTrId("TabDevices"));
    m_tabs->addTab(m_checks, qtTrId("TabChecks"));
    m_tabs->addTab(m_settings, qtTrId("TabSettings"));
    addMessageBar(m_bar);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_tabs, 1);
    layout->addWidget(m_bar);
    resize(usualSize);
    connect(m_tabs, &QTabWidget::currentChanged, this, [this] { refresh(); });
    connect(m_tabs, &QTabWidget::currentChanged, this, [this](int index) {
        if (m_tabs->widget(index) == m_checks)
            check();
    });
    watch();
}

SetupWindow::~SetupWindow() = default;

void SetupWindow::addMessageBar(QWidget *bar)
{
    m_message = new QLabel;
    m_message->setWordWrap(true);
    m_message->setTextFormat(Qt::PlainText);
    m_message->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_start = roomyButton(qtTrId("StartCompanion"));
    m_start->hide();
    auto *const layout = new QHBoxLayout(bar);
    layout->setContentsMargins(6, 0, 6, 0);
    layout->addWidget(m_message, 1);
    layout->addWidget(m_start);
    bar->hide();
    connect(m_start, &QPushButton::clicked, this,
            [this] { tell(m_services.startCompanion() ? qtTrId("CompanionStarted") : qtTrId("CompanionNotFound")); });
}

void SetupWindow::watch()
{
    m_refresh.setSingleShot(true);
    connect(&m_refresh, &QTimer::timeout, this, [this] { refresh(); });
    const auto soon = [this] { m_refresh.start(refreshDelay); };
    m_services.usbDevices.watch(soon);
    m_network = m_services.dynamicStore.createSession(u"setup"_s, [soon](auto &, const auto &) { soon(); });
    if (m_network)
        m_network->setNotificationPatterns({store::interfaceListKey, store::anyServiceIPv4Pattern});
}

void SetupWindow::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    refresh();
}

void SetupWindow::refresh()
{
    const SettingsInForce settings = settingsInForce();
    m_settings->setPresent(settings.path.isEmpty() ? shippedSettings() : settings.values);
    showDevices(settings.values);
}

void SetupWindow::showDevices(const QVariantMap &settings)
{
    const QList<Device> devices = m_survey.devices(settings);
    if (m_devices->isVisible() && !isMinimized())
        askGateways(devices, settings);
    QList<ListedDevice> listed;
    for (const Device &device : devices)
        listed.append({device, m_answers.value(questionKey(device))});
    m_devices->setDevices(listed);
}

void SetupWindow::askGateways(const QList<Device> &devices, const QVariantMap &settings)
{
    for (const Device &device : devices) {
        const auto key = questionKey(device);
        if (device.network.gateway.isEmpty() || m_answers.contains(key))
            continue;
        m_answers.insert(key, std::nullopt);
        m_survey.askWhetherModem(device, settings, [this, key](bool isModem) {
            m_answers.insert(key, isModem);
            refresh();
        });
    }
    m_answers.removeIf([&](const auto &answer) {
        return std::ranges::none_of(devices, [&](const Device &device) { return questionKey(device) == answer.key(); });
    });
}

void SetupWindow::check()
{
    m_checks->setChecking();
    m_survey.check([this](const QList<Check> &checks) { m_checks->setChecks(checks); });
}

void SetupWindow::change(const SettingChange &change, Damaged damaged)
{
    const SettingsWritten result = changeSettings(change, damaged);
    if (result.isDamaged && damaged == Damaged::Refuse)
        ask(qtTrId("AskStartAfresh").arg(result.problem), qtTrId("StartAfresh"),
            [this, change] { this->change(change, Damaged::StartAfresh); });
    else
        written(result);
}

void SetupWindow::reset()
{
    ask(qtTrId("AskReset"), qtTrId("ShippedSettings"), [this] {
        written(resetSettings());
        m_settings->discardChanges();
    });
}

void SetupWindow::written(const SettingsWritten &result)
{
    if (!result.problem.isEmpty()) {
        tell(qtTrId("NotSaved").arg(result.problem));
        return;
    }
    QStringList lines{qtTrId("Saved")};
    if (result.fromBinary)
        lines.append(qtTrId("WasBinary"));
    if (!result.backup.isEmpty())
        lines.append(qtTrId("OldFileKept").arg(result.backup));
    m_savedText = lines.join(u' ');
    tell(m_savedText);
    refresh();
    m_survey.restartCompanion([this](ActionResult answer) { restarted(answer); });
}

void SetupWindow::restarted(ActionResult result)
{
    switch (result) {
    case ActionResult::Done:
        tell(m_savedText + u' ' + qtTrId("CompanionRestarts"));
        break;
    case ActionResult::NotRunning:
        tell(m_savedText + u' ' + qtTrId("CompanionNotRunning"));
        m_start->show();
        break;
    case ActionResult::NoBus:
    case ActionResult::Failed:
        tell(m_savedText + u' ' + qtTrId("CompanionUntold"));
        break;
    }
}

void SetupWindow::tell(const QString &message)
{
    m_message->setText(message);
    m_start->hide();
    m_bar->show();
    QAccessibleEvent event(m_message, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void SetupWindow::ask(const QString &question, const QString &yes, std::function<void()> confirmed)
{
    auto *const box = new QMessageBox(QMessageBox::Question, windowTitle(), question, QMessageBox::NoButton, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    QPushButton *const accept = box->addButton(yes, QMessageBox::AcceptRole);
    QPushButton *const cancel = box->addButton(qtTrId("Cancel"), QMessageBox::RejectRole);
    box->setDefaultButton(cancel);
    box->setEscapeButton(cancel);
    connect(box, &QMessageBox::buttonClicked, this, [accept, handler = std::move(confirmed)](QAbstractButton *clicked) {
        if (clicked == accept)
            handler();
    });
    box->open();
}

void SetupWindow::closeEvent(QCloseEvent *event)
{
    if (m_mayClose || !m_settings->isEdited())
        return;
    event->ignore();
    ask(qtTrId("AskDiscard"), qtTrId("DiscardChanges"), [this] {
        m_mayClose = true;
        close();
    });
}

} // namespace tarvo
