#include "ui/StatusIcon.h"

#include "RouterObserver/ConfigManager.h"
#include "ui/AboutDialog.h"
#include "ui/CustomView.h"

#include <QAction>
#include <QMessageBox>
#include <QTimer>

#include <chrono>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

StatusIcon::StatusIcon(StatusBar &statusBar, SystemLog &systemLog, Actions actions)
    : m_statusBar(statusBar)
    , m_systemLog(systemLog)
    , m_actions(std::move(actions))
{
}

StatusIcon::~StatusIcon() = default;

void StatusIcon::startToolbarStatus()
{
    if (!configurationFlag(u"IsDisplayNetStatusInToolBar"_s) || statusItem_)
        return;
    createStatusItems(u"ready"_s);
}

void StatusIcon::showPolling()
{
    if (!configurationFlag(u"IsDisplayNetStatusInToolBar"_s))
        return;
    if (statusItem_)
        setStatusImage(u"online"_s);
    else
        createStatusItems(u"online"_s);
}

void StatusIcon::showRemoval()
{
    if (!configurationFlag(u"NeedDisplayWhenDeviceRemoved"_s)) {
        removeStatusItems();
        return;
    }
    setStatusImage(u"ready"_s);
    setStatusToolTip(QString());
}

void StatusIcon::createStatusItems(const QString &imageName)
{
    statusDisplay_ = m_statusBar.createItem(variableStatusItemLength);
    statusItem_ = m_statusBar.createItem(squareStatusItemLength);
    cview_ = std::make_unique<CustomView>(m_systemLog);
    cview_->setImage(imageName);
    addMenuActions();
    QObject::connect(cview_.get(), &CustomView::clicked, &m_context, m_actions.click);
    QObject::connect(cview_.get(), &CustomView::mouseEntered, &m_context, m_actions.pointerEntered);
    QObject::connect(cview_.get(), &CustomView::appearanceChanged, &m_context, [this] {
        if (statusItem_)
            statusItem_->viewChanged();
    });
    statusItem_->setView(cview_.get());
}

void StatusIcon::removeStatusItems()
{
    statusItem_.reset();
    statusDisplay_.reset();
}

void StatusIcon::addMenuActions()
{
    const auto add = [this](const QString &text, const std::function<void()> &operation) {
        auto *action = new QAction(text, cview_.get());
        QObject::connect(action, &QAction::triggered, &m_context, operation);
        cview_->addAction(action);
    };
    add(qtTrId("MenuOpenModemPage"), m_actions.openModemPage);
    if (configurationText(u"WebUISmsPage"_s))
        add(qtTrId("MenuOpenMessages"), m_actions.openMessages);
    add(qtTrId("MenuAbout"), [this] { showAbout(); });
    add(qtTrId("MenuQuit"), m_actions.quit);
}

void StatusIcon::showAbout()
{
    if (!m_aboutDialog)
        m_aboutDialog = makeAboutDialog();
    m_aboutDialog->show();
    m_aboutDialog->raise();
    m_aboutDialog->activateWindow();
}

void StatusIcon::setStatusImage(const QString &name)
{
    if (cview_)
        cview_->setImage(name);
}

void StatusIcon::setStatusToolTip(const QString &toolTip)
{
    if (cview_)
        cview_->setTip(toolTip);
}

std::optional<QRect> StatusIcon::frame() const
{
    return statusItem_ ? statusItem_->frame() : std::nullopt;
}

void StatusIcon::startConnectStatusTimer()
{
    if (firstStatusTimer_)
        return;
    firstStatusTimer_ = std::make_unique<QTimer>();
    QObject::connect(firstStatusTimer_.get(), &QTimer::timeout, &m_context,
                     [this] { statusCheck(firstStatusTimer_.get()); });
    firstStatusTimer_->start(7s);
}

void StatusIcon::statusCheck(const QTimer *timer)
{
    if (timer != firstStatusTimer_.get() || !statusItem_)
        return;
    statusItem_->setTitle(u"11"_s);
    QTimer::singleShot(3s, &m_context, [this] { disSendcondStatus(); });
}

void StatusIcon::disSendcondStatus()
{
    if (statusItem_)
        statusItem_->setTitle(QString());
}

} // namespace tarvo
